#include "cafe/TillSound.h"

#include <QDataStream>
#include <QIODevice>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr quint32 SampleRate = 22050;
constexpr double Duration = 1.1;    // seconds
constexpr double SecondBell = 0.16; // seconds after the first

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
    constexpr auto Samples = static_cast<quint32>(Duration * SampleRate);
    constexpr quint16 Channels = 1;
    constexpr quint16 Bits = 16;
    constexpr quint16 FrameBytes = Channels * Bits / 8;
    constexpr quint16 Pcm = 1;
    constexpr double Loudness = 9000;

    QByteArray wave;
    QDataStream out(&wave, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    const auto tag = [&out](const char *name) { out.writeRawData(name, 4); };
    tag("RIFF");
    out << quint32{36 + Samples * FrameBytes};
    tag("WAVE");
    tag("fmt ");
    out << quint32{16} << Pcm << Channels << SampleRate << quint32{SampleRate * FrameBytes} << FrameBytes << Bits;
    tag("data");
    out << quint32{Samples * FrameBytes};
    for (quint32 i = 0; i < Samples; ++i) {
        const double time = static_cast<double>(i) / SampleRate;
        constexpr double E6 = 1318.5;
        constexpr double A6 = 1760.0;
        const double fadeOut = std::min(1.0, (Duration - time) / 0.05);
        out << static_cast<qint16>(Loudness * fadeOut * (bell(E6, time) + bell(A6, time - SecondBell)));
    }
    return wave;
}
