#include "tests/support/FakeMachine.h"

#include "tests/support/Files.h"

#include <utility>

FakeMachine::FakeMachine() : m_saved(Machine::current())
{
    Machine &machine = Machine::current();
    machine.now = [this] { return clock; };
    machine.sleep = [this](int milliseconds) {
        clock = clock.addMSecs(milliseconds);
        if (whileAsleep)
            std::exchange(whileAsleep, nullptr)();
    };
    machine.random = [] { return 0.5; };
    machine.playWave = [this](const QString &path) { sounds.append(path); };
    machine.portDevice = [](int) { return QString(); };
    machine.printerNames = [] { return QStringList(); };
    machine.defaultPrinterName = [] { return QString(); };
    machine.cameraProgram = [] { return QString(); };
    machine.printoutFolder = [this] { return m_folder.path(); };
    machine.openDocument = [this](const QString &path) { openedDocuments.append(path); };
}

FakeMachine::~FakeMachine()
{
    Machine::current() = m_saved;
}

TestCamera &FakeMachine::installCamera()
{
    Machine::current().cameraProgram = m_saved.cameraProgram;
    m_camera = std::make_unique<TestCamera>();
    return *m_camera;
}

QString FakeMachine::installPort(int port)
{
    QString device = m_folder.filePath(QString("device%1").arg(port));
    writeFile(device);
    Machine::current().portDevice = [=](int asked) { return asked == port ? device : QString(); };
    return device;
}

void FakeMachine::breakPrinter()
{
    // Below a device file no folder can be made, not even by root.
    Machine::current().printoutFolder = [] { return QString("/dev/null/printouts"); };
}
