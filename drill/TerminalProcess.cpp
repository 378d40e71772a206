#include "drill/TerminalProcess.h"

#include "configuration/Arquivos_INI.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>

namespace {
constexpr int longestStart = 60'000;
constexpr int longestEnd = 60'000;
} // namespace

TerminalProcess::TerminalProcess(const QString &cafe, const QString &programFolder, int firstSerial,
                                 const QString &libraries)
{
    QDir().mkpath(programFolder);
    Gravar_INI(programFolder + "/ConfigIni.txt", "Configuracoes", "BD", cafe + "/Morvelane.mdb");
    if (!libraries.isEmpty()) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("LD_LIBRARY_PATH", libraries);
        m_process.setProcessEnvironment(environment);
    }
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QCoreApplication::applicationFilePath(), {"terminal", programFolder, QString::number(firstSerial)});
    m_process.waitForStarted();
}

TerminalProcess::~TerminalProcess()
{
    kill();
}

bool TerminalProcess::becomesReady()
{
    QElapsedTimer clock;
    clock.start();
    const bool ready = readUpTo({"ready", "closed"}, longestStart) == "ready";
    m_readyAfter = static_cast<int>(clock.elapsed());
    return ready;
}

bool TerminalProcess::settles()
{
    return !readUpTo({"ready", "closed"}, longestStart).isEmpty();
}

bool TerminalProcess::hasLoadedFrom(const QString &libraries) const
{
    QFile maps(QString("/proc/%1/maps").arg(m_process.processId()));
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(QFile::encodeName(libraries + '/'));
}

void TerminalProcess::order(const QString &works)
{
    m_process.write(works.toUtf8() + '\n');
    m_process.waitForBytesWritten();
}

bool TerminalProcess::beginsWork()
{
    return !readUpTo({"try"}, longestStart).isEmpty();
}

bool TerminalProcess::asks()
{
    return !readUpTo({"question"}, longestStart).isEmpty();
}

bool TerminalProcess::watches()
{
    return !readUpTo({"watching"}, longestStart).isEmpty();
}

bool TerminalProcess::becomesIdle(int seconds)
{
    return !readUpTo({"idle"}, seconds * 1000).isEmpty();
}

void TerminalProcess::kill()
{
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.kill();
    m_process.waitForFinished();
}

bool TerminalProcess::ends()
{
    m_process.closeWriteChannel();
    return m_process.waitForFinished(longestEnd) && m_process.exitStatus() == QProcess::NormalExit &&
           m_process.exitCode() == EXIT_SUCCESS;
}

QStringList TerminalProcess::takeJournal()
{
    while (m_process.canReadLine())
        m_journal.append(QString::fromUtf8(m_process.readLine()).chopped(1));
    return std::exchange(m_journal, {});
}

QString TerminalProcess::readUpTo(const QStringList &signs, int milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    for (;;) {
        while (m_process.canReadLine()) {
            const QString line = QString::fromUtf8(m_process.readLine()).chopped(1);
            m_journal.append(line);
            if (signs.contains(line.section('\t', 0, 0)))
                return line;
        }
        const int left = milliseconds - static_cast<int>(clock.elapsed());
        if (left <= 0 || !m_process.waitForReadyRead(left))
            return {};
    }
}
