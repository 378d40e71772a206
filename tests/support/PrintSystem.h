#pragma once

#include <QProcess>
#include <QSize>
#include <QTemporaryDir>

/// A print system (CUPS) of a test's own, without a queue at first: Debian's server and filters, and a device that
/// keeps the PDF files it gets. The machine in force asks it, so it comes after the machine in a test.
class PrintSystem
{
public:
    PrintSystem();
    ~PrintSystem();
    PrintSystem(const PrintSystem &) = delete;
    PrintSystem &operator=(const PrintSystem &) = delete;

    /// US Letter and A4, in points.
    static inline const QList<QSize> usualPapers{{612, 792}, {595, 842}};
    /// A queue for a printer that leaves so wide an edge of each sheet blank all around. The first of its papers is for
    /// those who don't ask for any.
    void add(const QString &queue, double edgeMillimetres = 0, int dotsPerInch = 600,
             const QList<QSize> &papers = usualPapers);
    /// One of the system's own commands, such as "cupsreject balcao".
    void run(const QString &command);
    /// A frozen one takes whatever it is asked and answers nothing.
    void freeze(bool frozen);

    /// File of the next printout, in the order in which the system took them; an empty text when it doesn't come.
    QString nextPrintout();

private:
    QString path(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
    QProcess m_server;
    int m_printouts = 0;
};
