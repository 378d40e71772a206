#include "codes/LabelSheet.h"
#include "platform/print/Printer.h"
#include "tests/products/ProductDesk.h"
#include "tests/sale/SaleCounter.h"
#include "tests/support/PdfText.h"
#include "tests/support/PrintSystem.h"

#include <QElapsedTimer>

namespace {
void printAt(int column, int line, const QString &text)
{
    Printer::current().setCurrentX(column);
    Printer::current().setCurrentY(line);
    Printer::current().Print(text);
}

QRectF placeOf(const QString &word, const QString &file)
{
    QRectF place;
    for (const PdfWord &each : pdfWords(file))
        place = each.text == word ? each.box : place;
    return place;
}

/// A counter where each sale brings a receipt of two copies, which fill a sheet.
class ReceiptCounter : public SaleCounter
{
public:
    ReceiptCounter()
    {
        cafe.setIni("Recibo Produtos", "Imprimir", "1");
        cafe.setIni("Recibo", "Via", "2");
        change("Produtos", "Quantidade='100'");
        open();
    }
    /// Sells something; answers the receipts that were numbered so far.
    int sell()
    {
        put("BALA");
        SaleCounter::sell("10");
        return cafe.ini("Recibo", "ID_Total", "inf.rcb").toInt();
    }
};
} // namespace

/// Printing into a file and on the real print system.
class tst_printer : public QObject
{
    Q_OBJECT

private slots:
    void fillsASheetOfCharacters()
    {
        FakeMachine machine;
        Printer::current().setScaleMode(ScaleMode::Characters);
        for (int column = 0; column < 98; ++column)
            printAt(column, 60, "=");
        printAt(33, 30, "MEIO");
        Printer::current().Print("após");
        // Its file's name would be too long, in bytes.
        Printer::current().setDocumentName(QString(120, u'€'));
        Printer::current().EndDoc();

        QCOMPARE(machine.openedDocuments.size(), 1);
        // A column is 6 points wide and a line 12 high.
        for (const auto &[word, column, line] :
             {std::tuple(QString(98, '='), 0, 60), {"MEIO", 33, 30}, {"após", 0, 31}}) {
            const QPointF away = placeOf(word, machine.openedDocuments[0]).topLeft() - QPointF(column * 6, line * 12);
            QVERIFY2(away.manhattanLength() < 0.2, qPrintable(word));
        }
    }

    void keepsOffTheEdgesThatAPrinterLeavesBlank()
    {
        {
            ReceiptCounter counter;
            comparePrinters(counter.machine, [&] {
                counter.cafe.writeFile("inf.rcb", "");
                counter.sell();
            });
        }
        {
            ProductDesk desk;
            for (int product = 6; product < 20; ++product)
                desk.add("Produtos", QString("Codigo=%1, Descrição='NOME'").arg(product));
            // It goes on beyond the sheet, and would make all the rest tiny.
            desk.change("Produtos", "Fornecedor='" + QString(99, 'M') + "' Where Codigo=3");
            desk.open();
            comparePrinters(desk.machine, [&] {
                desk.expectQuestion("MsgBox18", "MsgBox18_2", vbQuestion, vbYes);
                desk.expectNotice("MsgBox20");
                desk.press("cmdimprimir");
            });
        }
    }

    void movesLabelsWithoutShrinkingThem()
    {
        FakeMachine machine;
        PrintSystem system;
        QCOMPARE(Printer::current().deviceDotsPerInch(), 0);
        system.add("etiquetas", 6, 203);
        QCOMPARE(Printer::current().deviceDotsPerInch(), 203);
        // One at the left edge is moved as far as the printer needs it, the next one not at all. A printer of single
        // labels, smaller ones, gets the number whole, wherever it would stand on a sheet.
        for (const auto &[edge, papers, linha, coluna, place] :
             {std::tuple(6.0, PrintSystem::usualPapers, 1, 1, QPointF(6 * 72 / 25.4, 76.4)),
              {6.0, PrintSystem::usualPapers, 1, 2, {150.71, 76.4}},
              {0.0, {{113, 71}}, 10, 3, {0, 52.88}}}) {
            system.add("etiquetas", edge, 203, papers);
            Imprimir_Barras({"128", 18, 700, {"42AB5678"}, true, true, linha, coluna});
            Printer::current().EndDoc();
            const QRectF number = placeOf("42AB5678", system.nextPrintout());
            QVERIFY((number.topLeft() - place).manhattanLength() < 0.1);
            QVERIFY(qAbs(number.width() - 8 * 16 * 0.6) < 0.1);
        }
    }

    void countsOnlyReceiptsThatThePrintSystemTook()
    {
        ReceiptCounter counter;
        PrintSystem system;
        system.add("balcao");
        system.add("caixa");
        system.run("lpadmin -d caixa");
        const auto refuses = [&](int numbered) {
            QElapsedTimer clock;
            clock.start();
            QCOMPARE(counter.sell(), numbered);
            QVERIFY2(clock.elapsed() < 8000, qPrintable(QString::number(clock.elapsed())));
        };
        const auto takes = [&](int numbered, const QString &meanwhile = "lpstat") {
            QCOMPARE(counter.sell(), numbered);
            system.run(meanwhile);
            // Nothing is left in it of one that was refused.
            const QString text = pdfLines(system.nextPrintout()).join(' ');
            QCOMPARE(text.count("/ 0000" + QString::number(numbered)), 2);
            QCOMPARE(text.count("Recibo"), 2);
        };
        takes(1);
        system.run("cupsreject caixa");
        refuses(1);
        system.run("cupsaccept caixa");
        system.run("cupsdisable caixa");
        takes(2, "cupsenable caixa");
        system.freeze(true);
        refuses(2);
        system.freeze(false);
        QTest::qWait(1000);
        // The printer that was chosen at the start stays, and so it does when it is gone.
        Printer::current().setDeviceName("caixa");
        takes(3);
        system.run("lpadmin -x caixa");
        refuses(3);
        system.add("caixa");
        takes(4);
        // Otherwise it is whatever printer there is.
        Printer::current().setDeviceName({});
        system.run("lpadmin -x caixa");
        takes(5);
        QVERIFY(counter.machine.openedDocuments.isEmpty());
    }

private:
    /// Prints into a file, and then on printers that leave more and more of a sheet blank.
    static void comparePrinters(const FakeMachine &machine, const std::function<void()> &print)
    {
        print();
        const QList<PdfWord> drawn = pdfWords(machine.openedDocuments.value(0));
        PrintSystem system;
        for (const double edge : {0.0, 4.2, 6.0}) {
            system.add("caixa", edge);
            print();
            const QList<PdfWord> words = pdfWords(system.nextPrintout());
            QCOMPARE(words.size(), drawn.size());
            const double margin = edge * 72 / 25.4;
            // Within the accuracy of the reader.
            const QRectF area = QRectF(0, 0, 595, 842).adjusted(margin, margin, -margin, -margin);
            for (int word = 0; word < words.size(); ++word) {
                const QRectF &box = words[word].box;
                // Of what lies beyond the sheet more comes into sight as it shrinks.
                QVERIFY(words[word].text.startsWith(drawn[word].text));
                const bool inside = area.adjusted(-0.1, -0.1, 0.1, 0.1).contains(box);
                QVERIFY2(inside || drawn[word].text.startsWith("MMM"), qPrintable(words[word].text));
                const double scale = box.height() / drawn[word].box.height();
                QVERIFY2(edge == 0 ? words[word] == drawn[word] : scale > area.width() / 595 - 0.01 && scale < 1,
                         qPrintable(QString::number(scale)));
            }
        }
    }
};

QTEST_MAIN(tst_printer)
#include "tst_printer.moc"
