#pragma once

#include "platform/base/Machine.h"

#include <QHash>
#include <QTemporaryDir>

class FakeCamera;

/// A computer under a test's control, in force as long as it lives: its clock stands still but for the program's
/// sleeps, and it has no printer, so that printouts become PDF files.
class FakeMachine
{
public:
    FakeMachine();
    ~FakeMachine();
    FakeMachine(const FakeMachine &) = delete;
    FakeMachine &operator=(const FakeMachine &) = delete;

    QDateTime clock{QDate(2024, 3, 15), QTime(14, 30, 5)};
    QList<int> sleeps;
    std::function<double()> random = [] { return 0.5; };
    /// Runs once, in the next sleep.
    std::function<void()> whileAsleep;
    QStringList sounds;
    QStringList openedDocuments;
    QHash<int, QString> portDevices;
    QStringList printerNames;
    QString defaultPrinter;
    /// None, unless one is installed.
    std::shared_ptr<FakeCamera> camera;

    FakeCamera &installCamera();
    /// A new, empty file that stands for the device of a printer port.
    QString installPort(int port);
    /// Files in the folder for printouts, in the order of their names.
    QStringList printouts() const;
    /// From here on every printout is refused.
    void breakPrinter();

private:
    QTemporaryDir m_folder;
    QString m_printoutFolder;
    Machine m_saved;
};
