#include "drill/WebcamScene.h"

#include "drill/TerminalProcess.h"
#include "tests/support/TestCamera.h"

#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <algorithm>

namespace {
constexpr int webcamPatience = 60; // seconds
constexpr int longestClose = 300;
constexpr double mostPercent = 25;

/// What a process holds.
struct Holdings
{
    int kilobytes = 0;
    int threads = 0;
    int descriptors = 0;
    QByteArray children;

    explicit Holdings(qint64 process)
    {
        const QString folder = QString("/proc/%1/").arg(process);
        for (const QByteArray &line : read(folder + "status").split('\n')) {
            if (line.startsWith("VmRSS:"))
                kilobytes = line.simplified().split(' ')[1].toInt();
            if (line.startsWith("Threads:"))
                threads = line.simplified().split(' ')[1].toInt();
        }
        descriptors = static_cast<int>(QDir(folder + "fd").entryList(QDir::System | QDir::Files).size());
        children = read(folder + QString("task/%1/children").arg(process)).trimmed();
    }

    QString text() const
    {
        return QString("%1 MiB, %2 threads, %3 descriptors").arg(kilobytes / 1024).arg(threads).arg(descriptors);
    }

private:
    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

/// Grain, so that a compressed picture has something to compress.
QImage grain(QSize size, std::mt19937 &chance)
{
    QImage image(size, QImage::Format_RGB888);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.bytesPerLine(); ++x)
            image.scanLine(y)[x] = static_cast<uchar>(x * 200 / image.bytesPerLine() + static_cast<int>(chance() % 16));
    return image;
}

QStringList numbersOf(TerminalProcess &terminal, const QString &word)
{
    QStringList numbers;
    for (const QString &line : terminal.takeJournal())
        if (line.section('\t', 0, 0) == word)
            numbers += line.section('\t', 1, 1);
    return numbers;
}

void openAndClose(Drill &drill, const QString &cafe, TerminalProcess &terminal)
{
    constexpr int warming = 10;
    constexpr int mostGrowth = 4096; // kilobytes
    Ledger ledger(cafe);
    TerminalProcess seller(cafe, drill.folder.filePath("webcam-seller"), drill.nextSerials());
    if (!seller.becomesReady())
        drill.damage.append("webcam: the seller does not start");
    const auto open = [&](int times) {
        for (int time = 0; time < times; ++time) {
            terminal.order("webcam 0");
            if (!terminal.becomesIdle(webcamPatience)) {
                drill.damage.append(QString("webcam: the terminal hangs or has ended after %1 openings").arg(time));
                return;
            }
        }
    };
    open(warming);
    terminal.takeJournal();
    const Holdings before(terminal.number());
    const int seconds = drill.webcams / 3;
    seller.order(QString("sale %1").arg(seconds));
    open(drill.webcams);
    const Holdings after(terminal.number());
    if (!seller.becomesIdle(seconds + webcamPatience) || !seller.ends())
        drill.damage.append("webcam: the seller does not come to its end");
    ledger.take(seller.takeJournal());
    drill.check(cafe, "webcam");
    drill.addRows("beside the webcam", ledger.compare(Ledger::Loss::IsDamage));
    drill.damage += ledger.damage();

    int longest = 0;
    const QStringList closings = numbersOf(terminal, "webcam");
    for (const QString &closing : closings)
        longest = std::max(longest, closing.toInt());
    drill.notes.append(
        QString("The webcam window closed %1 times with pictures coming, in %2 ms at most. Before: %3. After: %4.")
            .arg(closings.size())
            .arg(longest)
            .arg(before.text(), after.text()));
    if (closings.size() != drill.webcams || longest > longestClose || !after.children.isEmpty() ||
        after.threads > before.threads || after.descriptors > before.descriptors ||
        after.kilobytes > before.kilobytes + mostGrowth)
        drill.damage.append("webcam: openings are missing, a closing is slow, or something is left behind");
}

/// What the terminal and the camera's process take together, the test's camera among it.
void watchLargeCameras(Drill &drill, const QString &cafe)
{
    QStringList figures;
    for (const QSize size : {QSize(640, 480), QSize(1280, 720), QSize(1920, 1080), QSize(3840, 2160)})
        for (const bool compressed : {false, true}) {
            TestCamera camera;
            const QImage image = grain(size, drill.chance);
            compressed ? camera.seeJpeg(image) : camera.see(image);
            TerminalProcess terminal(cafe, drill.folder.filePath("webcam-program"), drill.nextSerials());
            terminal.becomesReady();
            terminal.order("watch 0");
            terminal.becomesIdle(webcamPatience);
            const double percent = numbersOf(terminal, "processor").value(0, "1000").toDouble();
            figures += QString("%1×%2%3 %4 %")
                           .arg(size.width())
                           .arg(size.height())
                           .arg(compressed ? " JPEG" : "")
                           .arg(percent, 0, 'f', 1);
            if (percent > mostPercent && size.height() <= 1080)
                drill.damage.append("webcam: " + figures.last() + " of a processor");
            terminal.ends();
        }
    drill.notes.append("Of one processor, a terminal that watches takes with its camera: " + figures.join(", ") + ".");
}

void killWhileWatching(Drill &drill, TerminalProcess &terminal)
{
    constexpr int soon = 2000;
    terminal.order("watch 0");
    terminal.watches();
    const QByteArray camera = Holdings(terminal.number()).children;
    terminal.kill();
    QElapsedTimer clock;
    clock.start();
    while (QFile::exists("/proc/" + camera) && clock.elapsed() < soon)
        QThread::msleep(1);
    if (camera.isEmpty() || clock.elapsed() >= soon)
        drill.damage.append("webcam: the camera's process outlives its terminal");
}
} // namespace

void playWebcam(Drill &drill)
{
    const QString cafe = layOutCafe(drill, "webcam");
    TestCamera camera;
    camera.see(grain({1280, 720}, drill.chance));
    TerminalProcess terminal(cafe, drill.folder.filePath("webcam-program"), drill.nextSerials());
    if (!terminal.becomesReady())
        drill.damage.append("webcam: the terminal does not start");
    openAndClose(drill, cafe, terminal);
    killWhileWatching(drill, terminal);
    watchLargeCameras(drill, cafe);
}
