#pragma once

#include <QApplication>

/// The running program: its look, its name, what counts as a press of the attendant (see `Patience`), and what happens
/// to a failure that no routine skipped or trapped: a clear fatal message and the end, since what was executed stays.
class Application : public QApplication
{
    Q_OBJECT

public:
    Application(int &argc, char **argv);

    bool notify(QObject *receiver, QEvent *event) override;
};
