#include "tests/support/FakeMachine.h"

#include "tests/support/FakeCamera.h"

#include <QDir>
#include <QFile>
#include <QtGlobal>

#include <utility>

FakeMachine::FakeMachine() : m_printoutFolder(m_folder.filePath("printouts")), m_saved(Machine::current())
{
    QDir().mkpath(m_printoutFolder);

    Machine &machine = Machine::current();
    machine.now = [this] { return clock; };
    machine.sleep = [this](int milliseconds) {
        sleeps.append(milliseconds);
        clock = clock.addMSecs(milliseconds);
        if (whileAsleep)
            std::exchange(whileAsleep, nullptr)();
    };
    machine.random = [this] { return random(); };
    machine.playWave = [this](const QString &path) { sounds.append(path); };
    machine.portDevice = [this](int port) { return portDevices.value(port); };
    machine.printerNames = [this] { return printerNames; };
    machine.defaultPrinterName = [this] { return defaultPrinter; };
    machine.camera = [this] { return camera; };
    machine.printoutFolder = [this] { return m_printoutFolder; };
    machine.openDocument = [this](const QString &path) { openedDocuments.append(path); };
}

FakeMachine::~FakeMachine()
{
    Machine::current() = m_saved;
}

FakeCamera &FakeMachine::installCamera()
{
    camera = std::make_shared<FakeCamera>();
    return *camera;
}

QString FakeMachine::installPort(int port)
{
    QString device = m_folder.filePath(QString("device%1").arg(port));
    QFile file(device);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("No file for a printer port: %s", qPrintable(device));
    portDevices.insert(port, device);
    return device;
}

QStringList FakeMachine::printouts() const
{
    QStringList paths;
    const QDir folder(m_printoutFolder);
    for (const QString &name : folder.entryList(QDir::Files, QDir::Name))
        paths.append(folder.filePath(name));
    return paths;
}

void FakeMachine::breakPrinter()
{
    // Below a device file no folder can be made, not even by root.
    m_printoutFolder = "/dev/null/printouts";
}
