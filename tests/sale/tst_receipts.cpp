#include "configuration/Arquivos_INI.h"
#include "tests/sale/SaleCounter.h"
#include "tests/support/PdfText.h"

#include <QFile>
#include <QTest>

namespace {
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
        counter.cafe.setIni("Recibo", "Via", "2");
        counter.open();
        // Both copies bear one number, on the first receipt of a day too.
        for (const QStringList &row :
             table({"|00001 / 00001|1/1", "Data=14/03/2024\nID=17\nID_Total=99|00001 / 00100|1/100",
                    "Data=15/03/2024\nID=17\nID_Total=98|00018 / 00099|18/99",
                    "Data=15/03/2024\nID=1\nID_Total=99999|00002 / 00001|2/1"})) {
            counter.cafe.writeFile("inf.rcb", "[Recibo]\n" + row[0].toUtf8() + "\n");
            counter.put("BALA");
            counter.sell("10");
            const QStringList lines = pdfLines(counter.machine.openedDocuments.last());
            for (const QString &text : {"Recibo nº " + row[1], QString("ANA LIMA"), QString("BALA")})
                QVERIFY2(lines.filter(text).size() == 2, qPrintable(text));
            QCOMPARE(counters(counter), "15/03/2024 " + row[2]);
        }
        counter.machine.breakPrinter();
        for (const char *port : {"", "/dev/null/receipt"}) {
            counter.cafe.writeFile("inf.rcb", "[Recibo]\nData=14/03/2024\nID=17\nID_Total=99\n");
            counter.cafe.setIni("Matricial", "Ativo", *port == 0 ? "0" : "1");
            counter.cafe.setIni("Matricial", "Porta", port);
            counter.put("BALA");
            counter.sell("10");
            // No number is used up; but the day is taken over.
            QCOMPARE(counters(counter), QString("15/03/2024 17/99"));
        }
    }
};

QTEST_MAIN(tst_receipts)
#include "tst_receipts.moc"
