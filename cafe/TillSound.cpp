#include "cafe/TillSound.h"

#include <QDataStream>
#include <QIODevice>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr quint32 sampleRate = 22050;
constexpr double duration = 1.1;    // seconds
constexpr double secondBell = 0.16; // seconds after the first

/// A struck bell: the overtones of metal are no whole multiples of its tone, and the high ones fade first.
double bell(double frequency, double time)
{
    if (time < 0)
        return 0;
    constexpr struct
    {
        double ratio, strength, decay;
    } Partials[] = {{1.0, 1.0, 5.0}, {2.0, 0.45, 7.0}, {2.76, 0.3, 11.0}, {5.4, 0.12, 20.0}};
    double sum = 0;
    for (const auto &partial : Partials)
        sum += partial.strength * std::exp(-partial.decay * time) *
               std::sin(2 * std::numbers::pi * frequency * partial.ratio * time);
    return sum;
}

} // namespace

QByteArray tillSound()
{
    constexpr auto samples = static_cast<quint32>(duration * sampleRate);
    constexpr quint16 channels = 1;
    constexpr quint16 bits = 16;
    constexpr quint16 frameBytes = channels * bits / 8;
    constexpr quint16 pcm = 1;
    constexpr double loudness = 9000;

    QByteArray wave;
    QDataStream out(&wave, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    const auto tag = [&out](const char *name) { out.writeRawData(name, 4); };
    tag("RIFF");
    out << quint32{36 + samples * frameBytes};
    tag("WAVE");
    tag("fmt ");
    out << quint32{16} << pcm << channels << sampleRate << quint32{sampleRate * frameBytes} << frameBytes << bits;
    tag("data");
    out << quint32{samples * frameBytes};
    for (quint32 i = 0; i < samples; ++i) {
        const double time = static_cast<double>(i) / sampleRate;
        constexpr double e6 = 1318.5;
        constexpr double a6 = 1760.0;
        const double fadeOut = std::min(1.0, (duration - time) / 0.05);
        out << static_cast<qint16>(loudness * fadeOut * (bell(e6, time) + bell(a6, time - secondBell)));
    }
    return wave;
}
