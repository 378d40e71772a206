#include "bench/StartFigures.h"

#include "bench/Figures.h"
#include "cafe/Cafe.h"
#include "configuration/Arquivos_INI.h"

#include <QCoreApplication>
#include <QProcess>

#include <stdexcept>

namespace {
QString programPath(const QString &name)
{
    return QCoreApplication::applicationDirPath() + '/' + name;
}

QByteArray outputOf(const QString &program, const QStringList &arguments = {})
{
    QProcess process;
    process.start(programPath(program), arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        throw std::runtime_error(program.toStdString() + " failed");
    return process.readAllStandardOutput();
}

double secondsOfProcess(const QString &program)
{
    return secondsOf([&] { outputOf(program); });
}
} // namespace

void addStartFigures(FigureTable &table, const QString &cafe)
{
    Gravar_INI(programPath("ConfigIni.txt"), "Configuracoes", "BD", dataFileOf(cafe));
    table.add("process start to Ready",
              ratiosOfPairs([] { return secondsOfProcess("terminal-until-ready"); },
                            [] { return secondsOfProcess("bare-window"); }),
              1.35);
    table.addAmount(
        "resident memory in MiB, sale window over 32,767 customers",
        repeated([&] { return outputOf("sale-window-memory", {dataFileOf(cafe)}).trimmed().toDouble() / 1024; }), 80);
}
