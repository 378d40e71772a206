#include "configuration/Arquivos_INI.h"
#include "tests/sale/SaleCounter.h"
#include "tests/support/PdfText.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

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

QString counters(const SaleCounter &counter)
{
    const auto read = [&](const char *key) { return Ler_INI(counter.cafe.path("inf.rcb"), "Recibo", key); };
    return read("Data") + ' ' + read("ID") + '/' + read("ID_Total");
}

QString fileText(const QString &path, QString (*decode)(QByteArrayView))
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? decode(file.readAll()) : QString();
}
} // namespace

/// What a sale leaves on paper, and how receipts are numbered.
class tst_receipts : public QObject
{
    Q_OBJECT

private slots:
    void placesCopiesOnTheSheet()
    {
        const QStringList words{"Recibo@0,0",    "00001@10,0", "00099@18,0",  "Data:@28,0",        "14:30:05@46,0",
                                "MORVELANE@0,2", "CNPJ:@70,2", "RUA@0,3",     "Cliente:@0,5",      "Produto@0,8",
                                "BALA@0,9",      "3@33,9",     "30,00@49,9",  "ÁGUA@0,10",         "40,00@16,14",
                                "1,50@16,15",    "Valor@46,8", "50,00@16,16", "(NEGOCIADO)@21,15", "11,50@16,17"};
        SaleCounter counter;
        counter.change("Produtos", "Estoque_Min='0'");
        counter.open();
        for (const int copies : {1, 2}) {
            // The settings window ticks the receipt's box without a click of it, so that this isn't kept.
            counter.press("lblconfigurar_recibo");
            QVERIFY(control(loadedWindow("frmconfig_recibo"), "opt1via").property("checked").toBool());
            click(loadedWindow("frmconfig_recibo"), QString("opt%1via").arg(copies));
            click(loadedWindow("frmconfig_recibo"), "cmdok");
            QVERIFY(counter.ticked("chkrecibo"));
            QCOMPARE(counter.cafe.ini("Recibo Produtos", "Imprimir"), QString("0"));

            // Both copies bear one number, on the first receipt of a day too.
            counter.cafe.writeFile("inf.rcb", "[Recibo]\nData=14/03/2024\nID=17\nID_Total=98\n");
            counter.put("BALA", "3");
            counter.put("12");
            counter.type("txtvalor_desconto", "1,5");
            counter.sell("50", "38,50, paga por\nANA LIMA");
            QCOMPARE(counter.machine.openedDocuments.size(), copies);
            const QList<QStringList> pages = placesOf(counter.machine.openedDocuments.last());
            QCOMPARE(pages.size(), 1);
            for (int copy = 0; copy < copies; ++copy)
                for (const QString &word : words) {
                    const int line = word.section(',', -1).toInt() + 30 * copy;
                    const QString place = word.section(',', 0, -2) + ',' + QString::number(line);
                    QVERIFY2(pages[0].contains(place), qPrintable(place + " is not among " + pages[0].join(' ')));
                }
            for (const QString &line : QStringList{"1", "4", "29", "31", "34", "60"}.mid(0, 3 * copies))
                QVERIFY2(pages[0].contains(QString(98, '*') + "@1," + line), qPrintable(line));
            for (const char *line : {"6", "11"})
                QVERIFY2(pages[0].contains(QString(98, '=') + "@1," + line), line);
        }
        counter.press("chkrecibo");
        counter.press("chkrecibo");
        QCOMPARE(counter.cafe.ini("Recibo Produtos", "Imprimir"), QString("1"));
    }

    void goesOnWithFreshSheets()
    {
        SaleCounter counter;
        counter.cafe.setIni("Recibo Produtos", "Imprimir", "1");
        for (int code = 10; code < 70; ++code)
            counter.add("Produtos", QString("Codigo=%1, Descrição='P%1', Valor_Unitario='1'").arg(code));
        counter.open();
        for (int code = 10; code < 70; ++code)
            counter.put(QString("P%1").arg(code));
        counter.press("optavulsa");
        counter.sell("60", "60,00");
        const QList<QStringList> pages = placesOf(counter.machine.printouts().first());
        QCOMPARE(pages.size(), 2);
        for (const char *place : {"P10@0,9", "P58@0,57"})
            QVERIFY2(pages[0].contains(place), place);
        for (const char *place : {"Recibo@0,0", "00001@10,0", "avulsa@6,5", "P59@0,8", "P69@0,18", "60,00@16,22"})
            QVERIFY2(pages[1].contains(place), place);
    }

    void writesToPort()
    {
        SaleCounter counter;
        const QString device = counter.machine.installPort(1);
        const auto prints = [&](const char *golden) {
            const QString expected = fileText(QString(GOLDEN_FOLDER) + golden, QString::fromUtf8);
            QCOMPARE(fileText(device, QString::fromLatin1), QString(expected).replace("\n", "\r\n"));
        };
        counter.cafe.setIni("Recibo Produtos", "Imprimir", "1");
        counter.cafe.setIni("Matricial", "Ativo", "1");
        counter.cafe.setIni("Matricial", "Porta", "");
        counter.add("Produtos", "Codigo=9, Descrição='CABO DE REDE COM CONECTORES 20M', Valor_Unitario='1234,5'");
        counter.open();
        counter.put("CABO");
        counter.put("BALA", "2");
        counter.type("txtvalor_desconto", "4,5");
        counter.sell("1300", "1250,00, paga por\nANA LIMA");
        prints("port_one_copy.txt");
        counter.cafe.setIni("Matricial", "Porta", "lpt1:");
        counter.cafe.setIni("Recibo", "Via", "2");
        counter.put("CABO");
        counter.press("optavulsa");
        counter.sell("1234,5", "1234,50");
        prints("port_two_copies.txt");
        QCOMPARE(counter.machine.printouts().size(), 0);
        QCOMPARE(counters(counter), QString("15/03/2024 2/2"));
    }

    void numbersReceipts()
    {
        SaleCounter counter;
        counter.cafe.setIni("Recibo Produtos", "Imprimir", "1");
        counter.open();
        for (const QStringList &row :
             table({"|00001 / 00001|1/1", "Data=14/03/2024\nID=17\nID_Total=99|00001 / 00100|1/100",
                    "Data=15/03/2024\nID=17\nID_Total=98|00018 / 00099|18/99",
                    "Data=15/03/2024\nID=99999\nID_Total=x|00001 / 00001|1/1",
                    "Data=15/03/2024\nID=1\nID_Total=99999|00002 / 00001|2/1"})) {
            counter.cafe.writeFile("inf.rcb", "[Recibo]\n" + row[0].toUtf8() + "\n");
            counter.put("BALA");
            counter.sell("10");
            const QString heading = pdfLines(counter.machine.openedDocuments.last()).first();
            QVERIFY2(heading.startsWith("Recibo nº " + row[1]), qPrintable(heading));
            QCOMPARE(counters(counter), "15/03/2024 " + row[2]);
        }
        counter.machine.breakPrinter();
        for (const char *port : {"", "LPT1", "/dev/null/receipt"}) {
            counter.cafe.writeFile("inf.rcb", "[Recibo]\nData=14/03/2024\nID=17\nID_Total=99\n");
            counter.cafe.setIni("Matricial", "Ativo", *port == 0 ? "0" : "1");
            counter.cafe.setIni("Matricial", "Porta", port);
            counter.put("BALA");
            counter.sell("10");
            // No number is used up; but the day is taken over, so that its first one on paper goes on with the old
            // ones.
            QCOMPARE(counters(counter), QString("15/03/2024 17/99"));
        }
        QVERIFY(!QFile::exists("LPT1"));
    }
};

QTEST_MAIN(tst_receipts)
#include "tst_receipts.moc"
