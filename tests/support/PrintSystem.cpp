#include "tests/support/PrintSystem.h"

#include "platform/base/Machine.h"
#include "platform/print/PrintQueue.h"

#include <QDir>
#include <QTest>

#include <cups/cups.h>

#include <csignal>

#include <sys/prctl.h>

namespace {
constexpr int patience = 10'000;

void write(const QString &path, const QString &content)
{
    QFile file(path);
    // A device that others could change would not be trusted.
    if (!file.open(QFile::WriteOnly) || file.write(content.toUtf8()) < 0 ||
        !file.setPermissions(QFile::Permissions(0x7700)))
        qFatal("Cannot write %s", qPrintable(path));
}

/// What describes a printer to the system.
QString printerDescription(const QList<QSize> &papers, double edgeMillimetres, int dotsPerInch)
{
    const double edge = edgeMillimetres * 72 / 25.4;
    QString sizes, areas, first;
    for (const QSize &paper : papers) {
        const QString name = QString("w%1h%2").arg(paper.width()).arg(paper.height());
        first = first.isEmpty() ? name : first;
        sizes += "*PageSize " + name + ": \"\"\n";
        areas += QString("*PaperDimension %1: \"%2 %3\"\n").arg(name).arg(paper.width()).arg(paper.height());
        areas += QString("*ImageableArea %1: \"%2 %2 ").arg(name).arg(edge);
        areas += QString("%1 %2\"\n").arg(paper.width() - edge).arg(paper.height() - edge);
    }
    return QString("*PPD-Adobe: \"4.3\"\n*ModelName: \"Test\"\n*NickName: \"Test\"\n*DefaultResolution: %1dpi\n"
                   "*cupsFilter: \"application/vnd.cups-pdf 0 -\"\n*OpenUI *PageSize: PickOne\n*DefaultPageSize: %2\n")
               .arg(dotsPerInch)
               .arg(first) +
           sizes + "*CloseUI: *PageSize\n" + areas;
}
} // namespace

PrintSystem::PrintSystem()
{
    // Started by root, the system runs its filters as somebody else.
    QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7011));
    QDir(m_folder.path()).mkpath("bin/backend");
    QDir(m_folder.path()).mkdir("printouts");
    for (const char *part : {"filter", "daemon"})
        QFile::link(QString("/usr/lib/cups/") + part, path("bin/") + part);
    write(path("bin/backend/shelf"), R"(#!/bin/sh
[ $# -eq 0 ] && exit
file=${DEVICE_URI#shelf:}/$1
cat ${6:-} > "$file.part" && mv "$file.part" "$file.pdf"
)");
    write(path("files"),
          QString("ServerRoot %1\nCacheDir %1/cache\nStateDir %1/state\nRequestRoot %1/spool\n"
                  "ServerBin %1/bin\nPrintcap %1/printcap\nAccessLog stderr\nErrorLog stderr\nPageLog stderr\n")
              .arg(m_folder.path()));
    write(path("rules"),
          "Listen " + path("socket") + "\n<Policy default>\n<Limit All>\nOrder deny,allow\n</Limit>\n</Policy>\n");
    // For its commands, and for this process, which may have asked for printers before.
    qputenv("CUPS_SERVER", path("socket").toUtf8());
    cupsSetServer(qgetenv("CUPS_SERVER").constData());
    // A copy of it, as the desktop's security module keeps the original away from folders such as this one.
    QFile::copy("/usr/sbin/cupsd", path("cupsd"));
    // A test that dies takes it along.
    m_server.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
    m_server.start(path("cupsd"), {"-f", "-c", path("rules"), "-s", path("files")});
    const auto listens = [] {
        QProcess question;
        question.start("lpstat", {"-r"});
        return question.waitForFinished() && question.readAllStandardOutput().contains("is running");
    };
    if (!QTest::qWaitFor(listens, patience))
        qFatal("No print system: %s", m_server.readAllStandardError().constData());
    Machine::current().printerNames = printQueueNames;
    Machine::current().defaultPrinterName = defaultPrintQueue;
}

PrintSystem::~PrintSystem()
{
    m_server.kill();
    m_server.waitForFinished();
    qunsetenv("CUPS_SERVER");
    cupsSetServer(nullptr);
}

void PrintSystem::add(const QString &queue, double edgeMillimetres, int dotsPerInch, const QList<QSize> &papers)
{
    write(path("description"), printerDescription(papers, edgeMillimetres, dotsPerInch));
    run("lpadmin -p " + queue + " -E -v shelf:" + path("printouts") + " -P " + path("description"));
}

void PrintSystem::run(const QString &command)
{
    QProcess process;
    // Some of the commands lie where only root looks.
    process.start("sh", {"-c", "PATH=$PATH:/usr/sbin; " + command});
    if (!process.waitForFinished() || process.exitCode() != 0)
        qFatal("%s: %s", qPrintable(command), process.readAllStandardError().constData());
}

void PrintSystem::freeze(bool frozen)
{
    ::kill(static_cast<pid_t>(m_server.processId()), frozen ? SIGSTOP : SIGCONT);
}

QString PrintSystem::nextPrintout()
{
    const QString file = path(QString("printouts/%1.pdf").arg(m_printouts + 1));
    if (!QTest::qWaitFor([&] { return QFile::exists(file); }, patience))
        return {};
    ++m_printouts;
    return file;
}
