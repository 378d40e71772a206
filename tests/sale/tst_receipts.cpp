#include "configuration/Arquivos_INI.h"
#include "tests/sale/SaleCounter.h"
#include "tests/support/PdfText.h"

#include <QAbstractButton>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <memory>

namespace {
/// The words of each page of a PDF as "word@column,line", in characters of 6 by 12 points.
QList<QStringList> placesOf(const QString &pdf)
{
    static const QRegularExpression token(
        R"re(<page |<word xMin="(\S+)" yMin="(\S+)" xMax="\S+" yMax="(\S+)">(.+)</word>)re");
    QProcess reader;
    reader.start("pdftotext", {"-bbox", pdf, "-"});
    reader.waitForFinished();
    QList<QStringList> pages;
    auto tokens = token.globalMatch(QString::fromUtf8(reader.readAllStandardOutput()));
    while (tokens.hasNext()) {
        const QRegularExpressionMatch word = tokens.next();
        if (word.captured(4).isEmpty()) {
            pages.append(QStringList());
            continue;
        }
        const int column = qRound(word.captured(1).toDouble() / 6);
        const int line = int((word.captured(2).toDouble() + word.captured(3).toDouble()) / 2 / 12);
        pages.last() += QString("%1@%2,%3").arg(word.captured(4)).arg(column).arg(line);
    }
    return pages;
}

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
} // namespace

/// What a sale leaves on paper, and how receipts are numbered.
class tst_receipts : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { counter.reset(); }

    void placesCopiesOnTheSheet_data();
    void placesCopiesOnTheSheet();
    void goesOnWithFreshSheets();
    void writesToPort_data();
    void writesToPort();
    void numbers_data();
    void numbers();
    void usesUpNoNumber_data();
    void usesUpNoNumber();
    void keepsItsSettings();

private:
    void sellOne();
    QString counterFile() const { return counter->cafe.path("inf.rcb"); }
    QString numberOf(const QString &key) const { return Ler_INI(counterFile(), "Recibo", key); }

    std::unique_ptr<SaleCounter> counter;
};

void tst_receipts::init()
{
    counter = std::make_unique<SaleCounter>();
    counter->stockUp();
    counter->add(Rule{.code = 1, .fixed = false, .automatic = false, .motive = "NEGOCIADO"});
    counter->cafe.setIni("Recibo Produtos", "Imprimir", "1");
}

void tst_receipts::sellOne()
{
    counter->open();
    counter->put("BALA");
    counter->sell("10", "Confirma a venda no valor de R$ 10,00, paga por\nANA LIMA?");
}

void tst_receipts::placesCopiesOnTheSheet_data()
{
    QTest::addColumn<QString>("copies");
    QTest::addColumn<QList<int>>("starts");
    QTest::addColumn<QStringList>("stars");
    QTest::newRow("one copy") << "1" << QList<int>{0} << QStringList{"1", "4", "29"};
    QTest::newRow("two copies") << "2" << QList<int>{0, 30} << QStringList{"1", "4", "29", "31", "34", "60"};
}

void tst_receipts::placesCopiesOnTheSheet()
{
    QFETCH(QString, copies);
    QFETCH(QList<int>, starts);
    QFETCH(QStringList, stars);
    counter->cafe.setIni("Recibo", "Via", copies);
    counter->open();
    counter->put("BALA", "3");
    counter->put("12");
    counter->type("txtvalor_desconto", "1,5");
    counter->sell("50", "Confirma a venda no valor de R$ 38,50, paga por\nANA LIMA?");

    QCOMPARE(counter->machine.printouts().size(), 1);
    QCOMPARE(counter->machine.openedDocuments, counter->machine.printouts());
    const QList<QStringList> pages = placesOf(counter->machine.printouts().first());
    QCOMPARE(pages.size(), 1);
    const QStringList words = pages.first();
    for (const int start : starts) {
        const QList<std::pair<const char *, int>> expected{
            {"Recibo@0", 0},    {"00001@10", 0},    {"Data:@28", 0},        {"15/03/2024@34", 0},
            {"14:30:05@46", 0}, {"MORVELANE@0", 2}, {"CNPJ:@70", 2},        {"RUA@0", 3},
            {"Cliente:@0", 5},  {"Produto@0", 8},   {"Quantidade@33", 8},   {"Valor@46", 8},
            {"BALA@0", 9},      {"3@33", 9},        {"30,00@49", 9},        {"ÁGUA@0", 10},
            {"40,00@16", 14},   {"1,50@16", 15},    {"(NEGOCIADO)@21", 15}, {"50,00@16", 16},
            {"11,50@16", 17}};
        for (const auto &[word, line] : expected) {
            const QString place = QString("%1,%2").arg(word).arg(start + line);
            QVERIFY2(words.contains(place), qPrintable(place + " is not among " + words.join(' ')));
        }
    }
    const auto rules = [&](QChar character) {
        QStringList lines;
        for (const QString &word : words)
            if (word.count(character) == 98 && word.contains("@1,"))
                lines += word.section(',', 1);
        return lines;
    };
    QCOMPARE(rules('*'), stars);
    QCOMPARE(rules('=').mid(0, 2), (QStringList{"6", "11"}));
    QCOMPARE(numberOf("ID"), QString("1"));
    QCOMPARE(numberOf("ID_Total"), QString("1"));
}

void tst_receipts::goesOnWithFreshSheets()
{
    for (int code = 10; code < 70; ++code)
        counter->add(Product{.code = code, .description = QString("P%1").arg(code), .price = "1"});
    counter->open();
    for (int code = 10; code < 70; ++code)
        counter->put(QString("P%1").arg(code));
    counter->press("optavulsa");
    counter->sell("60", "Confirma a venda no valor de R$ 60,00?");
    const QList<QStringList> pages = placesOf(counter->machine.printouts().first());
    QCOMPARE(pages.size(), 2);
    for (const char *place : {"P10@0,9", "P58@0,57"})
        QVERIFY2(pages.first().contains(place), place);
    for (const char *place : {"Recibo@0,0", "00001@10,0", "avulsa@6,5", "P59@0,8", "P69@0,18", "60,00@16,22"})
        QVERIFY2(pages.last().contains(place), place);
    QCOMPARE(numberOf("ID"), QString("1"));
}

void tst_receipts::writesToPort_data()
{
    QTest::addColumn<QString>("port");
    QTest::addColumn<bool>("walkIn");
    QTest::newRow("port_one_copy") << "" << false;
    QTest::newRow("port_two_copies") << "lpt1:" << true;
}

void tst_receipts::writesToPort()
{
    QFETCH(QString, port);
    QFETCH(bool, walkIn);
    const QString device = counter->machine.installPort(1);
    counter->cafe.setIni("Matricial", "Ativo", "1");
    counter->cafe.setIni("Matricial", "Porta", port);
    counter->cafe.setIni("Recibo", "Via", walkIn ? "2" : "1");
    counter->add(Product{.code = 9, .description = "CABO DE REDE COM CONECTORES 20M", .price = "1234,5"});
    counter->open();
    counter->put("CABO");
    if (walkIn) {
        counter->press("optavulsa");
        counter->sell("1234,5", "Confirma a venda no valor de R$ 1234,50?");
    } else {
        counter->put("12", "2");
        counter->type("txtvalor_desconto", "4,5");
        counter->expectQuestion("Confirma a venda no valor de R$ 1250,00, paga por\nANA LIMA?");
        counter->expectNotice("MsgBox13");
        counter->attendant.expectNotice("Os produtos abaixo atingiram o estoque mínimo:\n\nÁGUA\n", "Atenção");
        counter->type("txtvalor_pago", "1300");
        counter->press("cmdfinalizar");
    }
    const QByteArray golden = readAll(QString("%1/%2.txt").arg(GOLDEN_FOLDER, QTest::currentDataTag()));
    const QString expected = QString::fromUtf8(golden).replace("\n", "\r\n");
    QCOMPARE(QString::fromLatin1(readAll(device)), expected);
    QCOMPARE(counter->machine.printouts().size(), 0);
    QCOMPARE(numberOf("ID_Total"), QString("1"));
}

void tst_receipts::numbers_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("number");
    QTest::newRow("no file") << ""
                             << "00001 / 00001";
    QTest::newRow("first of a day") << "Data=14/03/2024\nID=17\nID_Total=99"
                                    << "00001 / 00100";
    QTest::newRow("next of the day") << "Data=15/03/2024\nID=17\nID_Total=99"
                                     << "00018 / 00100";
    QTest::newRow("highest") << "Data=15/03/2024\nID=99999\nID_Total=99999"
                             << "00001 / 00001";
    QTest::newRow("damaged") << "Data=15/03/2024\nID=x\nID_Total="
                             << "00001 / 00001";
}

void tst_receipts::numbers()
{
    QFETCH(QString, before);
    QFETCH(QString, number);
    if (!before.isEmpty())
        counter->cafe.writeFile("inf.rcb", "[Recibo]\n" + before.toUtf8() + "\n");
    sellOne();
    const QString heading = pdfLines(counter->machine.printouts().first()).first();
    QVERIFY2(heading.startsWith("Recibo nº " + number), qPrintable(heading));
    QCOMPARE(numberOf("Data"), QString("15/03/2024"));
    QCOMPARE(numberOf("ID").toInt(), number.left(5).toInt());
    QCOMPARE(numberOf("ID_Total").toInt(), number.right(5).toInt());
}

void tst_receipts::usesUpNoNumber_data()
{
    QTest::addColumn<QString>("port");
    QTest::newRow("printer that refuses") << "";
    QTest::newRow("port without a device") << "LPT1";
    QTest::newRow("file that cannot be") << "/dev/null/receipt";
}

void tst_receipts::usesUpNoNumber()
{
    QFETCH(QString, port);
    counter->cafe.writeFile("inf.rcb", "[Recibo]\nData=14/03/2024\nID=17\nID_Total=99\n");
    counter->cafe.setIni("Matricial", "Ativo", port.isEmpty() ? "0" : "1");
    counter->cafe.setIni("Matricial", "Porta", port);
    counter->machine.breakPrinter();
    sellOne();
    QCOMPARE(counter->sold("Descrição"), QStringList{"BALA"});
    QCOMPARE(numberOf("ID") + numberOf("ID_Total"), QString("1799"));
    // The day is taken over with the heading, so that the day's first receipt on paper goes on with the old numbers.
    QCOMPARE(numberOf("Data"), QString("15/03/2024"));
    QVERIFY(!QFile::exists("LPT1"));
}

void tst_receipts::keepsItsSettings()
{
    counter->open();
    QVERIFY(counter->ticked("chkrecibo"));
    counter->press("chkrecibo");
    QCOMPARE(counter->cafe.ini("Recibo Produtos", "Imprimir"), QString("0"));
    for (const char *copies : {"2", "1"}) {
        counter->press("lblconfigurar_recibo");
        QVERIFY(counter->ticked("chkrecibo"));
        Form &settings = loadedWindow("frmconfig_recibo");
        QVERIFY(control<QAbstractButton>(settings, *copies == '2' ? "opt1via" : "opt2via").isChecked());
        click(settings, *copies == '2' ? "opt2via" : "opt1via");
        click(settings, "cmdok");
        QVERIFY(!settings.isVisible());
        QCOMPARE(counter->cafe.ini("Recibo", "Via"), QString(copies));
    }
    // Only the attendant's own click is kept.
    QCOMPARE(counter->cafe.ini("Recibo Produtos", "Imprimir"), QString("0"));
}

QTEST_MAIN(tst_receipts)
#include "tst_receipts.moc"
