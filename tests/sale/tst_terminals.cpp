#include "tests/sale/SaleCounter.h"

#include <QProcess>
#include <QTest>

#include <memory>

/// Terminals as processes of their own on one café.
class tst_terminals : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { counter.reset(); }

    void sellAtTheSameTime();
    void survivesKillWhileStoring();

private:
    /// Starts a terminal that waits for its sign.
    void start(QProcess &terminal, int carts, const QString &quantity);
    /// What the stocks lack, together with the quantities that the stored lines tell.
    QList<int> takenAndSold();

    std::unique_ptr<SaleCounter> counter;
};

void tst_terminals::init()
{
    counter = std::make_unique<SaleCounter>();
    for (const char *product : {"BALA", "CAFÉ", "CHÁ"})
        counter->add(Product{.code = 2 + int(counter->cafe.query("Select Codigo from Produtos").size()),
                             .description = product,
                             .price = "1",
                             .stock = "100000"});
    counter->addCustomer("ANA LIMA", "ZEBRA");
}

void tst_terminals::start(QProcess &terminal, int carts, const QString &quantity)
{
    terminal.start(SALE_TERMINAL, {counter->cafe.programFolder(), QString::number(carts), quantity});
    QTRY_VERIFY_WITH_TIMEOUT(terminal.canReadLine() || terminal.state() == QProcess::NotRunning, 60000);
    QCOMPARE(QString::fromUtf8(terminal.readLine()), QString("ready\n"));
}

QList<int> tst_terminals::takenAndSold()
{
    int taken = 0;
    int sold = 0;
    for (const char *product : {"BALA", "CAFÉ", "CHÁ"})
        taken += 100000 - counter->stock(product).toInt();
    for (const QString &quantity : counter->sold("Quantidade"))
        sold += quantity.toInt();
    return {taken, sold};
}

void tst_terminals::sellAtTheSameTime()
{
    constexpr int carts = 8;
    QProcess first;
    QProcess second;
    start(first, carts, "3");
    start(second, carts, "4");
    for (QProcess *terminal : {&first, &second})
        terminal->write("go\n");
    for (QProcess *terminal : {&first, &second}) {
        QVERIFY(terminal->waitForFinished(60000));
        QCOMPARE(terminal->exitCode(), 0);
        // The question and the success of each cart, and nothing else.
        const QString boxes = QString::fromUtf8(terminal->readAllStandardOutput());
        QCOMPARE(boxes.count('\n'), 2 * carts);
        QCOMPARE(boxes.count("Venda registrada."), carts);
        QCOMPARE(boxes.count("paga por ANA LIMA?"), carts);
    }
    QStringList codes = counter->sold("Codigo");
    QCOMPARE(codes.size(), 2 * carts * 3);
    QCOMPARE(codes.removeDuplicates(), 0);
    QCOMPARE(takenAndSold(), (QList<int>{carts * 3 * 7, carts * 3 * 7}));
    QCOMPARE(checkCafe(counter->cafe.folder()), QStringList());
}

void tst_terminals::survivesKillWhileStoring()
{
    QProcess terminal;
    start(terminal, 10000, "5");
    terminal.write("go\n");
    QTRY_VERIFY_WITH_TIMEOUT(counter->sold("Codigo").size() >= 4, 60000);
    const QStringList before = counter->sold("Codigo,Descrição,Quantidade,Hora");
    terminal.kill();
    QVERIFY(terminal.waitForFinished());
    QCOMPARE(terminal.exitStatus(), QProcess::CrashExit);

    const QStringList after = counter->sold("Codigo,Descrição,Quantidade,Hora");
    QCOMPARE(after.mid(0, before.size()), before);
    // At most the stock of one line is behind, as each statement stands on its own.
    const QList<int> amounts = takenAndSold();
    QVERIFY2(amounts[1] - amounts[0] == 0 || amounts[1] - amounts[0] == 5, qPrintable(QString::number(amounts[0])));
    QCOMPARE(checkCafe(counter->cafe.folder()), QStringList());

    QProcess next;
    start(next, 1, "1");
    next.write("go\n");
    QVERIFY(next.waitForFinished(60000));
    QCOMPARE(next.exitCode(), 0);
    QCOMPARE(counter->sold("Codigo").size(), after.size() + 3);
}

QTEST_MAIN(tst_terminals)
#include "tst_terminals.moc"
