#include "configuration/Idiomas.h"
#include "customers/CustomerPrintouts.h"
#include "platform/print/Printer.h"
#include "platform/window/FlexGrid.h"
#include "tests/support/Attendant.h"
#include "tests/support/FakeMachine.h"
#include "tests/support/PdfText.h"
#include "tests/support/TestCafe.h"

#include <QFile>
#include <QTest>

namespace {
const QString rule(98, '*');
const QString moment = "15/03/2024 às 14:30:05";

QString text(const QString &key)
{
    return textoIdioma("frmcadastro_clientes", key);
}

/// A café, and a list of customers.
struct Desk
{
    FakeMachine machine;
    TestCafe cafe;
    Attendant attendant;
    FlexGrid grid;

    explicit Desk(int customers)
    {
        cafe.start();
        grid.setCols(7);
        grid.setRows(1 + customers);
        for (int row = 1; row <= customers; ++row)
            put(row, QString("%1|CLIENTE %1|N%1|NORMAL|01/01/1900|------|Não").arg(row));
    }
    void put(int row, const QString &fields)
    {
        for (int column = 0; column < grid.Cols(); ++column)
            grid.setTextMatrix(row, column, fields.section('|', column, column));
    }
    QList<QStringList> print()
    {
        attendant.expect(text("MsgBox15"), 36, "Imprimir", vbYes);
        imprimirClientes(grid, grid.Rows() - 1);
        return pdfPages(machine.openedDocuments.last());
    }
    /// Saves under a name in the café's folder; an answer of 0 stands for no question.
    void save(const QString &name, bool succeeds, int overwrite = 0)
    {
        attendant.expectSaveFile({}, cafe.path(name));
        if (overwrite != 0)
            attendant.expect(text("MsgBox23"), 36, "Salvar em arquivo", overwrite);
        if (succeeds)
            attendant.expectNotice(text("MsgBox24"), "Salvar em arquivo");
        salvarClientes(grid, grid.Rows() - 1);
    }
    QStringList saved(const QString &name) { return QString::fromLatin1(cafe.readFile(name)).chopped(2).split("\r\n"); }
};
} // namespace

/// The list of customers on paper and in a file.
class tst_customer_printouts : public QObject
{
    Q_OBJECT

private slots:
    void breaksPages()
    {
        // Nine customers fill a page and leave no room for the closing line. Pages are counted in a byte.
        const struct
        {
            int customers, pages, onLastPage;
            bool closed;
        } cases[] = {{1, 1, 1, true}, {8, 1, 8, true}, {9, 1, 9, false}, {19, 3, 1, true}, {2304, 255, 9, false}};
        for (const auto &each : cases) {
            Desk desk(each.customers);
            Printer::current().setPageSize(12240, 15840);
            const QList<QStringList> pages = desk.print();
            QCOMPARE(pages.size(), each.pages);
            for (int page = 1; page <= each.pages; ++page) {
                const QStringList &lines = pages[page - 1];
                const int customers = page < each.pages ? 9 : each.onLastPage;
                QCOMPARE(lines[0].simplified(), QString("Cadastro de clientes - %1 Pág.%2").arg(moment).arg(page));
                QCOMPARE(lines[0].indexOf("Pág."), page < 10 ? 94 : page < 100 ? 93 : 92);
                QCOMPARE(lines[1], rule);
                QCOMPARE(lines.count(rule), 1 + customers);
                QCOMPARE(lines.filter("Código: ").size(), customers);
            }
            QCOMPARE(pages.last().count("Fim da lista de clientes"), each.closed ? 1 : 0);
            QCOMPARE(Printer::current().PageWidth(), 12240);
        }
    }

    void writesWhatTheGridShows()
    {
        Desk desk(2);
        desk.put(2, "12|JOSÉ|------|VIP|00/00/0000|duas\nlinhas\te tab|Sim");
        QStringList lines{"Código: 1",
                          "Nome: CLIENTE 1" + QString(53, ' ') + "Nascimento: 01/01/1900",
                          "Nick: N1" + QString(40, ' ') + "Grupo: NORMAL",
                          "Obs.: ------" + QString(26, ' ') + "Aviso: ------",
                          "Autorizado: Não",
                          rule,
                          " ",
                          "Código: 12",
                          "Nome: JOSÉ" + QString(58, ' ') + "Nascimento: 00/00/0000",
                          "Nick: ------" + QString(36, ' ') + "Grupo: VIP",
                          "Obs.: duas linhas e tab" + QString(15, ' ') + "Aviso: duas linhas e tab",
                          "Autorizado: Sim",
                          rule,
                          " "};
        desk.save("lista", true);
        QCOMPARE(desk.saved("lista.txt"),
                 QStringList({"Cadastro de clientes", "Lista salva em arquivo", "Data: " + moment, rule}) + lines +
                     QStringList("2 clientes cadastrados"));
        lines.removeAll(" ");
        QCOMPARE(desk.print().first().mid(2, lines.size()), lines);
    }

    void endsAtATooLongText()
    {
        for (const auto &[column, width, lastLine] :
             {std::tuple(1, 62, "Código: 2"), std::tuple(2, 42, "Nome: CLIENTE 2"), std::tuple(5, 32, "Nick: N2")}) {
            Desk desk(3);
            desk.grid.setTextMatrix(2, column, QString(width, 'X'));
            QCOMPARE(desk.print().first().filter("Código: ").size(), 3);
            desk.grid.setTextMatrix(2, column, QString(width + 1, 'X'));
            QStringList printed = desk.print().first();
            printed.removeAll("");
            QVERIFY2(printed.last().startsWith(lastLine), qPrintable(printed.join('\n')));
            desk.save("lista.txt", false);
            QVERIFY(desk.saved("lista.txt").last().startsWith(lastLine));
        }
    }

    void asksAndFailsWithoutAWord()
    {
        Desk desk(1);
        desk.attendant.expect(text("MsgBox15"), 36, "Imprimir", vbNo);
        imprimirClientes(desk.grid, 0);
        desk.attendant.expect(text("MsgBox15"), 36, "Imprimir", vbYes);
        desk.attendant.expectNotice(text("MsgBox16"), "Clientes");
        imprimirClientes(desk.grid, 0);
        desk.machine.breakPrinter();
        desk.attendant.expect(text("MsgBox15"), 36, "Imprimir", vbYes);
        imprimirClientes(desk.grid, 1);
        QVERIFY(desk.machine.openedDocuments.isEmpty());

        desk.attendant.expectNotice(text("MsgBox25"), "Clientes");
        salvarClientes(desk.grid, 0);
        desk.attendant.expectSaveFile({}, {});
        salvarClientes(desk.grid, 1);
        desk.cafe.writeFile("Lista.TXT", "velha\r\n");
        desk.save("lista.txt", false, vbNo);
        QCOMPARE(desk.saved("Lista.TXT"), QStringList("velha"));
        desk.save("lista.txt", true, vbYes);
        QCOMPARE(desk.saved("Lista.TXT").last(), QString("1 cliente cadastrado"));
        desk.save("Lista.TXT/lista.txt", false);
        QVERIFY(QFile::link("/dev/full", desk.cafe.path("cheio.txt")));
        desk.save("cheio.txt", false, vbYes);
    }
};

QTEST_MAIN(tst_customer_printouts)
#include "tst_customer_printouts.moc"
