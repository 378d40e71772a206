#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

/// A terminal in a process of its own, as the drill starts, orders and kills it.
class TerminalProcess
{
public:
    /// Works with its own pointer file, which lies in `programFolder`, and takes libraries from a folder before the
    /// system's when one is given.
    TerminalProcess(const QString &cafe, const QString &programFolder, int firstSerial, const QString &libraries = {});
    ~TerminalProcess();

    /// Waits until the doors are open. False when they stay shut, or when the process does not come so far.
    bool becomesReady();
    /// Waits until the start has ended in one way or the other.
    bool settles();
    void order(const QString &works);
    /// Waits until the first work of an order is begun.
    bool beginsWork();
    /// Waits for the question of a sale.
    bool asks();
    /// Waits until the webcam's picture is looked at.
    bool watches();
    /// Waits until an order is done.
    bool becomesIdle(int seconds);
    void kill();
    /// Lets the terminal close by itself; false when it does not, or fails.
    bool ends();

    /// What was tried and told so far, each time only what is new.
    QStringList takeJournal();
    qint64 number() const { return m_process.processId(); }
    int millisecondsToReady() const { return m_readyAfter; }
    /// Whether the process has loaded a library out of this folder.
    bool hasLoadedFrom(const QString &libraries) const;

private:
    QString readUpTo(const QStringList &signs, int milliseconds);

    QProcess m_process;
    QStringList m_journal;
    int m_readyAfter = 0;
};
