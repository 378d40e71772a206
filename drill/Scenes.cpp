#include "drill/Scenes.h"

#include "cafe/Cafe.h"
#include "configuration/Arquivos_INI.h"
#include "drill/Terminal.h"
#include "drill/TerminalProcess.h"

#include <QThread>

#include <algorithm>
#include <memory>

namespace {
const QStringList killedWorks{"customer", "sale", "code", "ini"};

/// What no rule of the café explains: files that a killed process left half written.
QStringList leftovers(const QString &cafe)
{
    QStringList names = QDir(cafe).entryList(QDir::Files | QDir::Hidden);
    for (const char *known : {"Morvelane.mdb", "Morvelane.mdb-journal", "config.ini", "inf.rcb", "Caixa.wav"})
        names.removeOne(known);
    return names;
}
} // namespace

int Drill::nextSerials()
{
    constexpr int mostWorks = 10'000;
    return m_serials += mostWorks;
}

void Drill::addRows(const QString &scene, const QMap<QString, Figures> &figures)
{
    for (auto work = figures.begin(); work != figures.end(); ++work) {
        if (work->tried == 0)
            continue;
        auto row = std::find_if(rows.begin(), rows.end(),
                                [&](const Row &known) { return known.scene == scene && known.work == work.key(); });
        if (row == rows.end())
            row = rows.insert(rows.end(), {scene, work.key(), {}});
        row->figures.tried += work->tried;
        row->figures.told += work->told;
        row->figures.stored += work->stored;
        row->figures.half += work->half;
        row->figures.lost += work->lost;
    }
}

void Drill::check(const QString &cafe, const QString &when)
{
    for (const QString &fault : checkCafe(cafe))
        damage.append(when + ": " + fault);
}

QString layOutCafe(const Drill &drill, const QString &name)
{
    const QString cafe = drill.folder.filePath(name);
    createCafe(cafe, {.demo = true, .customers = 100, .products = 20, .sales = 100});
    const DatabaseHandle db = openDataFile(cafe);
    db->Execute("Delete From Descontos");
    db->Execute("Delete From Produtos Where Codigo<>1");
    int code = 2;
    for (const QString &product : drilledProducts)
        db->Execute(
            QString("Insert Into Produtos (Codigo,Descrição,Quantidade,Estoque_Min,Valor_Unitario,Cod,Cod_Barra,"
                    "Servico,Categoria) Values (%1,'%2','1000000000000','0','0,01','---','-------------',False,"
                    "'DIVERSOS')")
                .arg(code++)
                .arg(product));
    for (const char *section : {"Recibo Produtos", "Recibo Codigo"})
        Gravar_INI(configFileOf(cafe), section, "Imprimir", "0");
    return cafe;
}

void playKills(Drill &drill)
{
    const QString scene = "killed";
    const QString cafe = layOutCafe(drill, scene);
    const QString program = drill.folder.filePath(scene + "-program");
    Ledger ledger(cafe);
    QList<int> starts;
    for (int round = 0; round < drill.kills; ++round) {
        const QString when = QString("kill %1").arg(round + 1);
        TerminalProcess terminal(cafe, program, drill.nextSerials());
        constexpr int longestLife = 400;
        constexpr int killedStarts = 10; // one in so many is killed before it is ready
        const int life = drill.below(longestLife);
        if (round % killedStarts != killedStarts - 1) {
            if (!terminal.becomesReady())
                drill.damage.append(when + ": the terminal does not start on what the kill before left");
            starts.append(terminal.millisecondsToReady());
            terminal.order(killedWorks[drill.below(static_cast<int>(killedWorks.size()))] + " 3600");
            if (!terminal.beginsWork())
                drill.damage.append(when + ": the terminal does not begin to work");
        }
        QThread::msleep(static_cast<unsigned long>(life));
        terminal.kill();
        ledger.take(terminal.takeJournal());
        drill.check(cafe, when);
        drill.addRows(scene, ledger.compare(Ledger::Loss::IsDamage));
    }
    TerminalProcess last(cafe, program, drill.nextSerials());
    if (!last.becomesReady() || !last.ends())
        drill.damage.append("after the last kill the terminal does not start and end");
    starts.append(last.millisecondsToReady());
    std::sort(starts.begin(), starts.end());
    drill.damage += ledger.damage();
    drill.notes.append(QString("%1 terminals were killed. %4 starts were waited for; they took %2 ms as a rule and "
                               "%3 ms at worst.")
                           .arg(drill.kills)
                           .arg(starts[starts.size() / 2])
                           .arg(starts.last())
                           .arg(starts.size()));
    drill.notes.append(QString("The kills left %1 unfinished files beside the café's own, %2 boxes told of something "
                               "else, %3 lines had no change of stock.")
                           .arg(leftovers(cafe).size())
                           .arg(ledger.otherBoxes())
                           .arg(ledger.oneOfTwo()));
}

void playCrowd(Drill &drill)
{
    constexpr std::size_t crowd = 4;
    constexpr int patience = 120;
    const QString scene = "crowd";
    const QString cafe = layOutCafe(drill, scene);
    Ledger ledger(cafe);
    std::vector<std::unique_ptr<TerminalProcess>> terminals;
    for (std::size_t i = 0; i < crowd; ++i)
        terminals.push_back(
            std::make_unique<TerminalProcess>(cafe, drill.folder.filePath(QString("crowd-program%1").arg(i)),
                                              drill.nextSerials(), i % 2 == 1 ? drill.otherEngine : QString()));
    for (const auto &terminal : terminals)
        if (!terminal->becomesReady())
            drill.damage.append("crowd: a terminal does not start");
    if (!drill.otherEngine.isEmpty()) {
        const auto others = std::count_if(terminals.begin(), terminals.end(), [&](const auto &terminal) {
            return terminal->hasLoadedFrom(drill.otherEngine);
        });
        drill.notes.append(QString("%1 of the four terminals worked with %2.").arg(others).arg(drill.otherEngine));
    }
    for (const auto &terminal : terminals)
        terminal->order(QString("sale,code,edit %1").arg(drill.seconds));
    for (const auto &terminal : terminals) {
        if (!terminal->becomesIdle(drill.seconds + patience) || !terminal->ends())
            drill.damage.append("crowd: a terminal does not come to its end");
        ledger.take(terminal->takeJournal());
    }
    drill.check(cafe, scene);
    drill.addRows(scene, ledger.compare(Ledger::Loss::IsDamage));
    drill.damage += ledger.damage();
    drill.notes.append(
        QString("Four terminals worked on one folder for %1 s; a registration met a number that was just "
                "taken %2 times and was pressed again.")
            .arg(drill.seconds)
            .arg(ledger.pressedAgain()));
}
