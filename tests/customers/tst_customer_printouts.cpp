#include "configuration/Idiomas.h"
#include "customers/CustomerPrintouts.h"
#include "platform/window/FlexGrid.h"
#include "tests/support/Attendant.h"
#include "tests/support/FakeMachine.h"
#include "tests/support/PdfText.h"
#include "tests/support/TestCafe.h"

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
            for (int column = 0; column < 7; ++column)
                grid.setTextMatrix(
                    row, column,
                    QString("%1|CLIENTE %1|N%1|NORMAL|01/01/1900|a\tb----|Não").arg(row).split('|')[column]);
    }
    QList<QStringList> print()
    {
        attendant.expect(text("MsgBox15"), 36, "Imprimir", vbYes);
        imprimirClientes(grid, grid.Rows() - 1);
        return pdfPages(machine.openedDocuments.value(0));
    }
    QStringList save()
    {
        attendant.expectSaveFile({}, cafe.path("lista.txt"));
        attendant.expectNotice(text("MsgBox24"), "Salvar em arquivo");
        salvarClientes(grid, grid.Rows() - 1);
        return QString::fromLatin1(cafe.readFile("lista.txt")).chopped(2).split("\r\n");
    }
};
} // namespace

/// The list of customers on paper and in a file.
class tst_customer_printouts : public QObject
{
    Q_OBJECT

private slots:
    void breaksPages()
    {
        // Nine customers fill a page and leave no room for the closing line.
        for (const auto &[customers, count, closed] : {std::tuple(8, 1, true), {9, 1, false}, {19, 3, true}}) {
            const QList<QStringList> pages = Desk(customers).print();
            QCOMPARE(pages.size(), count);
            for (int page = 1; page <= count; ++page) {
                const QStringList &lines = pages[page - 1];
                QCOMPARE(lines[0].simplified(), QString("Cadastro de clientes - %1 Pág.%2").arg(moment).arg(page));
                QCOMPARE(lines.filter("Código: ").size(), qMin(9, customers - 9 * (page - 1)));
            }
            QCOMPARE(pages.last().contains("Fim da lista de clientes"), closed);
        }
    }

    void writesWhatTheGridShows()
    {
        Desk desk(1);
        const QStringList lines{"Código: 1",
                                "Nome: CLIENTE 1" + QString(53, ' ') + "Nascimento: 01/01/1900",
                                "Nick: N1" + QString(40, ' ') + "Grupo: NORMAL",
                                "Obs.: a b----" + QString(25, ' ') + "Aviso: a b----",
                                "Autorizado: Não",
                                rule};
        QCOMPARE(desk.save().mid(2),
                 QStringList({"Data: " + moment, rule}) + lines + QStringList({" ", "1 cliente cadastrado"}));
        QCOMPARE(desk.print().first().mid(2, lines.size()), lines);
    }

    void endsAtATooLongText()
    {
        Desk desk(3);
        desk.grid.setTextMatrix(2, 1, QString(63, 'X'));
        QStringList printed = desk.print().first();
        printed.removeAll("");
        QCOMPARE(printed.last(), QString("Código: 2"));
    }
};

QTEST_MAIN(tst_customer_printouts)
#include "tst_customer_printouts.moc"
