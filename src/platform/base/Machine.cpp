#include "platform/base/Machine.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QThread>

#include <chrono>

namespace {
/// Runs a program beside this one, without waiting and without its words on our terminal. False when it isn't there.
bool startDetached(const QString &program, const QString &argument)
{
    const QString executable = QStandardPaths::findExecutable(program);
    if (executable.isEmpty())
        return false;
    QProcess process;
    process.setProgram(executable);
    process.setArguments({argument});
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

// A sound library inside this process can freeze the windows when the sound server is ill; a child process cannot.
void playWaveInChild(const QString &path)
{
    for (const char *player : {"pw-play", "paplay", "aplay"}) {
        if (startDetached(player, path))
            return;
    }
}

QString parallelPortDevice(int port)
{
    for (const QString &pattern : {QString("/dev/lp%1"), QString("/dev/usb/lp%1")}) {
        QString device = pattern.arg(port - 1);
        if (QFile::exists(device))
            return device;
    }
    return {};
}

double randomNumber()
{
    const auto moment = std::chrono::high_resolution_clock::now().time_since_epoch().count();
    return QRandomGenerator(static_cast<quint32>(moment)).generateDouble();
}

QString documentsSubfolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + "/Morvelane";
}
} // namespace

// Printers are a matter of Qt's larger libraries: the application names them at its start.
Machine::Machine()
    : programFolder(QCoreApplication::applicationDirPath)
    , now(QDateTime::currentDateTime)
    , sleep([](int milliseconds) { QThread::msleep(static_cast<unsigned long>(milliseconds)); })
    , random(randomNumber)
    , playWave(playWaveInChild)
    , portDevice(parallelPortDevice)
    , portFolders([] { return QStringList(); })
    , printerNames([] { return QStringList(); })
    , defaultPrinterName([] { return QString(); })
    , printoutFolder(documentsSubfolder)
    , cameraProgram([] { return QCoreApplication::applicationDirPath() + "/morvelane-camera"; })
    , openDocument([](const QString &path) { startDetached("xdg-open", path); })
{
}

Machine &Machine::current()
{
    static Machine machine;
    return machine;
}
