#pragma once

#include "platform/base/Machine.h"
#include "tests/support/TestCamera.h"

#include <QTemporaryDir>

#include <memory>

/// A computer under a test's control, in force as long as it lives: its clock stands still but for the program's
/// sleeps, and it has neither camera nor printer, so that printouts become PDF files. A test may replace further parts
/// of the machine in force.
class FakeMachine
{
public:
    FakeMachine();
    ~FakeMachine();
    FakeMachine(const FakeMachine &) = delete;
    FakeMachine &operator=(const FakeMachine &) = delete;

    QDateTime clock{QDate(2024, 3, 15), QTime(14, 30, 5)};
    /// Runs once, in the next sleep.
    std::function<void()> whileAsleep;
    QStringList sounds;
    /// The printouts, in their order.
    QStringList openedDocuments;

    /// It sees a pattern before it is told what.
    TestCamera &installCamera();
    /// A new, empty file that stands for the device of a printer port.
    QString installPort(int port);
    /// From here on every printout is refused.
    void breakPrinter();

private:
    QTemporaryDir m_folder;
    std::unique_ptr<TestCamera> m_camera;
    Machine m_saved;
};
