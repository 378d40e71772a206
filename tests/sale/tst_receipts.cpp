#include "tests/sale/SaleCounter.h"
#include "tests/support/PdfText.h"

/// What a sale leaves on paper, and how receipts are numbered.
class tst_receipts : public QObject
{
    Q_OBJECT

private slots:
    void writesToPort()
    {
        SaleCounter counter;
        const QString device = counter.machine.installPort(1);
        counter.cafe.setIni("Recibo Produtos", "Imprimir", "1");
        counter.cafe.setIni("Matricial", "Ativo", "1");
        counter.cafe.setIni("Matricial", "Porta", "");
        counter.add("Produtos", "Codigo=9, Descrição='CABO DE REDE COM CONECTORES 20M', Valor_Unitario='1234,5'");
        counter.open();
        counter.put("CABO");
        counter.put("BALA", "2");
        counter.type("txtvalor_desconto", "4,5");
        counter.sell("1300", "1250,00, paga por\nANA LIMA");
        QCOMPARE(counter.cafe.readFile(device), counter.cafe.readGolden(GOLDEN_FOLDER "port_one_copy.txt"));
        counter.cafe.setIni("Matricial", "Porta", "lpt1:");
        counter.cafe.setIni("Recibo", "Via", "2");
        counter.put("CABO");
        counter.press("optavulsa");
        counter.sell("1234,5", "1234,50");
        QCOMPARE(counter.cafe.readFile(device), counter.cafe.readGolden(GOLDEN_FOLDER "port_two_copies.txt"));
        QCOMPARE(counter.machine.openedDocuments, QStringList());
        QCOMPARE(counters(counter.cafe), QString("15/03/2024 2/2"));
    }

    void numbersReceipts()
    {
        SaleCounter counter;
        counter.cafe.setIni("Recibo Produtos", "Imprimir", "1");
        counter.cafe.setIni("Recibo", "Via", "2");
        counter.change("Produtos", "Quantidade='100'");
        counter.open();
        const auto sell = [&](const QByteArray &countersBefore) {
            counter.cafe.writeFile("inf.rcb", "[Recibo]\n" + countersBefore);
            counter.put("BALA");
            counter.sell("10");
        };
        // Both copies bear one number, on the first receipt of a day too.
        for (const auto &[before, number, after] :
             {std::tuple("", "00001 / 00001", "1/1"),
              {"Data=14/03/2024\nID=17\nID_Total=99\n", "00001 / 00100", "1/100"},
              {"Data=15/03/2024\nID=17\nID_Total=98\n", "00018 / 00099", "18/99"},
              {"Data=15/03/2024\nID=1\nID_Total=99999\n", "00002 / 00001", "2/1"}}) {
            sell(before);
            const QStringList lines = pdfLines(counter.machine.openedDocuments.last());
            for (const QString &text : {"Recibo nº " + QString(number), QString("ANA LIMA"), QString("BALA")})
                QVERIFY2(lines.filter(text).size() == 2, qPrintable(text));
            QCOMPARE(counters(counter.cafe), "15/03/2024 " + QString(after));
        }
        // An address that isn't whole takes nothing else with it.
        counter.cafe.loseField("Empresa", "Bairro");
        sell("");
        QCOMPARE(pdfLines(counter.machine.openedDocuments.last()).filter("CNPJ: 12.345.678/0001-95").size(), 2);
        counter.machine.breakPrinter();
        for (const QString &port : {QString(), QString("/dev/null/receipt"), counter.cafe.dataFile()}) {
            counter.cafe.setIni("Matricial", "Ativo", port.isEmpty() ? "0" : "1");
            counter.cafe.setIni("Matricial", "Porta", port);
            sell("Data=14/03/2024\nID=17\nID_Total=99\n");
            // No number is used up; but the day is taken over.
            QCOMPARE(counters(counter.cafe), QString("15/03/2024 17/99"));
        }
    }

private:
    static QString counters(const TestCafe &cafe)
    {
        const auto read = [&](const char *key) { return cafe.ini("Recibo", key, "inf.rcb"); };
        return read("Data") + ' ' + read("ID") + '/' + read("ID_Total");
    }
};

STORY_MAIN(tst_receipts)
#include "tst_receipts.moc"
