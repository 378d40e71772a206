#include "data/Connection.h"
#include "platform/jet/DBEngine.h"
#include "platform/text/RegionalSettings.h"
#include "platform/window/Application.h"
#include "shell/frmprincipal.h"
#include "tests/sale/SaleCounter.h"
#include "tests/support/FileHolder.h"
#include "tests/support/Willing.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTimer>

#include <iostream>
#include <string>

namespace {
/// An attendant who writes down what she was told.
class Clerk : public Willing
{
public:
    int message(const QString &text, int style, const QString &title) override
    {
        std::cout << text.section('\n', 0, 0).toStdString() << std::endl;
        return Willing::message(text, style, title);
    }
};

/// A terminal of its own: at a line on its input it sells carts of one BALA and one CAFÉ.
int runTerminal(const QString &programFolder, int carts)
{
    RegionalSettings::use(QLocale(QLocale::Portuguese, QLocale::Brazil));
    Machine::current().programFolder = [=] { return programFolder; };
    Machine::current().playWave = [](const QString &) {};
    Clerk clerk;
    PromptService::use(&clerk);
    auto &shell = Forms::use<frmprincipal>();
    shell.Show();
    if (!QTest::qWaitForWindowActive(&shell))
        return EXIT_FAILURE;
    click(shell, "cmdvendaprod");
    const Form &sale = loadedWindow("frmvenda");
    std::cout << "ready" << std::endl;
    std::string sign;
    std::getline(std::cin, sign);
    for (int cart = 0; cart < carts; ++cart) {
        for (const char *product : {"BALA", "CAFÉ"})
            putIntoCart(sale, product, "1");
        replaceText(control(sale, "txtvalor_pago"), "1000");
        click(sale, "cmdfinalizar");
    }
    shell.Unload();
    return EXIT_SUCCESS;
}

/// How often a control was drawn.
class Paints : public QObject
{
public:
    explicit Paints(QObject &control) { control.installEventFilter(this); }
    int count() const { return m_count; }
    bool eventFilter(QObject *, QEvent *event) override
    {
        m_count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

private:
    int m_count = 0;
};
} // namespace

/// Terminals as processes of their own on one café.
class tst_terminals : public QObject
{
    Q_OBJECT

private slots:
    void sellAtTheSameTimeAndSurviveAKill()
    {
        SaleCounter counter;
        counter.change("Produtos", "Quantidade='100000'");
        constexpr int carts = 8;
        QProcess terminals[2];
        for (QProcess &terminal : terminals)
            start(terminal, counter, carts);
        QProcess victim;
        start(victim, counter, 10000);
        for (QProcess *terminal : {&terminals[0], &terminals[1], &victim})
            terminal->write("go\n");
        for (QProcess &terminal : terminals) {
            QVERIFY(terminal.waitForFinished(60000));
            QCOMPARE(terminal.exitCode(), 0);
            // The question and the success of each cart, and nothing else.
            const QString boxes = QString::fromUtf8(terminal.readAllStandardOutput());
            QCOMPARE(boxes.count('\n'), 2 * carts);
            QCOMPARE(boxes.count("Venda registrada."), carts);
        }
        QTRY_VERIFY_WITH_TIMEOUT(counter.sold("Codigo").size() >= 4 * carts + 5, 60000);
        for (const QString name : {"copia1.mdb", "copia2.mdb", "copia3.mdb"}) {
            backupCafe(counter.cafe.folder(), counter.cafe.path(name));
            QVERIFY(isWhole(counter.cafe.path(name)));
        }
        QCOMPARE(victim.state(), QProcess::Running);
        const QString fields = "Codigo,Descrição,Quantidade,Hora";
        const QStringList before = counter.sold(fields);
        victim.kill();
        QVERIFY(victim.waitForFinished());
        QCOMPARE(counter.sold(fields).mid(0, before.size()), before);
        QStringList codes = counter.sold("Codigo");
        QCOMPARE(codes.removeDuplicates(), 0);
        QVERIFY(isWhole(counter.cafe.dataFile()));
        QCOMPARE(checkCafe(counter.cafe.folder()), QStringList());
    }

    void losesNeitherLineNorStockToAnother()
    {
        SaleCounter counter;
        counter.open();
        counter.put("BALA");
        // Between the search for the next number and the insert the clock is asked; the other terminal is faster then.
        int elsewhere = 0;
        const auto now = Machine::current().now;
        Machine::current().now = [&, now] {
            const QString code = QString::number(++elsewhere);
            counter.cafe.execute("Insert into Venda_Produtos (Codigo,Nome) values (" + code + ",'ELSEWHERE')");
            counter.change("Produtos", "Quantidade='5' Where Descrição='BALA'");
            return now();
        };
        counter.sell("10");
        QVERIFY(elsewhere > 0);
        QCOMPARE(counter.sold("Nome").count("ANA LIMA"), 1);
        QCOMPARE(counter.sold("Codigo").size(), elsewhere + 1);
        QCOMPARE(counter.stock("BALA"), QString("4"));
    }

    void waitsOnceForAPress()
    {
        SaleCounter counter;
        counter.open();
        std::optional<FileHolder> holder;
        int drawn = 0;
        // Another program takes the file while the question is open. `drawn` is counted until events run again.
        const auto sellWhileHeld = [&](int milliseconds) {
            counter.put("BALA");
            counter.type("txtvalor_pago", "10");
            counter.expectQuestion("10,00, paga por\nANA LIMA", vbYes, [&] {
                holder.emplace(counter.cafe.dataFile(), milliseconds);
                auto *paints = new Paints(counter.at("cmdfinalizar"));
                counter.at("cmdfinalizar").update();
                QTimer::singleShot(0, paints, [&, paints] {
                    drawn = paints->count();
                    delete paints;
                });
            });
            counter.expectNotice("MsgBox13");
            QElapsedTimer freeze;
            freeze.start();
            counter.press("cmdfinalizar");
            const auto frozen = freeze.elapsed();
            holder.reset();
            return frozen;
        };
        QVERIFY(sellWhileHeld(2000) >= 2000);
        QCOMPARE(counter.sold("Nome"), QStringList{"ANA LIMA"});
        QVERIFY(drawn > 0);

        // A dozen statements fail, the sale is told as stored as ever, and all of them have shared one patience.
        const auto frozen = sellWhileHeld(60'000);
        QVERIFY2(frozen > 14'000 && frozen < 20'000, qPrintable(QString::number(frozen)));
        QCOMPARE(counter.sold("Nome").size(), 1);
        // The next press has its own.
        sellWhileHeld(1000);
        QCOMPARE(counter.sold("Nome").size(), 2);
    }

private:
    /// Whether each line has its change of the stock, but for the last one's: each statement stands on its own.
    static bool isWhole(const QString &dataFile)
    {
        const DatabaseHandle file = DBEngine::Workspaces(0).OpenDatabase(dataFile, false, false, connectText());
        const auto number = [&](const QString &sql) { return file->OpenRecordset(sql)->Fields(0).number(); };
        double behind = number("Select Count(*) from Venda_Produtos") - 200000;
        for (const QString product : {"BALA", "CAFÉ"})
            behind += number("Select Quantidade from Produtos Where Descrição='" + product + "'");
        return file->checkIntegrity().isEmpty() && (behind == 0 || behind == 1);
    }

    static void start(QProcess &terminal, const SaleCounter &counter, int carts)
    {
        terminal.start(QCoreApplication::applicationFilePath(),
                       {"terminal", counter.cafe.programFolder(), QString::number(carts)});
        QTRY_VERIFY_WITH_TIMEOUT(terminal.canReadLine() || terminal.state() == QProcess::NotRunning, 60000);
        QCOMPARE(QString::fromUtf8(terminal.readLine()), QString("ready\n"));
    }
};

int main(int argc, char **argv)
{
    Application application(argc, argv);
    const QStringList arguments = Application::arguments();
    if (arguments.value(1) == "terminal")
        return runTerminal(arguments.value(2), arguments.value(3).toInt());
    tst_terminals test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_terminals.moc"
