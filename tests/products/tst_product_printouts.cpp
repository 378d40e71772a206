#include "configuration/Idiomas.h"
#include "platform/window/FlexGrid.h"
#include "platform/window/Form.h"
#include "products/CategoryPrintouts.h"
#include "products/ProductPrintouts.h"
#include "tests/support/Attendant.h"
#include "tests/support/FakeMachine.h"
#include "tests/support/FullDisk.h"
#include "tests/support/PdfText.h"
#include "tests/support/TestCafe.h"

#include <QTest>

namespace {
const QString rule(95, '*');
const QString moment = "15/03/2024 às 14:30:05";

/// A café, and one of the two lists of the catalogue.
struct Desk
{
    FakeMachine machine;
    TestCafe cafe;
    Attendant attendant;
    FlexGrid grid;
    Form form;
    const bool products;
    const QString section = products ? "frmcadastro_produtos" : "frmcadastro_categoria";

    Desk(bool ofProducts, const QStringList &rows) : products(ofProducts)
    {
        cafe.start();
        grid.setCols(products ? 11 : 3);
        grid.setRows(1 + int(rows.size()));
        for (int row = 1; row < grid.Rows(); ++row)
            for (int column = 0; column < grid.Cols(); ++column)
                grid.setTextMatrix(row, column, rows[row - 1].section('|', column, column));
    }
    QString text(const QString &key) const { return textoIdioma(section, key); }
    /// Prints and gives the path of the PDF.
    QString print()
    {
        const QString question = products ? "MsgBox18" : "MsgBox8";
        attendant.expect(text(question), 36, text(question + "_2"), vbYes);
        if (products) {
            attendant.expectNotice(text("MsgBox20"), text("MsgBox1_2"));
            imprimirProdutos(form, grid, grid.Rows() - 1, "TANTOS");
        } else
            imprimirCategorias(grid, "TANTOS");
        return machine.openedDocuments.value(0);
    }
    QByteArray save()
    {
        const QString file = cafe.path("lista.txt");
        attendant.expectSaveFile({}, file);
        const QString notice = products ? "A lista de produtos foi salva no arquivo " + file
                                        : "A lista de categorias foi salva com sucesso.";
        attendant.expectNotice(notice, text(products ? "MsgBox27_2" : "MsgBox1_2"));
        if (products)
            salvarProdutos(grid, "TANTOS");
        else
            salvarCategorias(grid, "TANTOS");
        return cafe.readFile("lista.txt");
    }
};
} // namespace

/// The lists of products and of categories on paper and in a file.
class tst_product_printouts : public QObject
{
    Q_OBJECT

private slots:
    void breaksPages()
    {
        // Twelve products or 27 categories fill a page. The total stands behind the last entry.
        for (const bool products : {true, false}) {
            const QList<QPoint> total{products ? QPoint(0, 6) : QPoint(7, 9)};
            const int count = products ? 13 : 28;
            Desk desk(products, QStringList(count, "1|NOME|DOCES"));
            const QString file = desk.print();
            const QList<QStringList> pages = pdfPages(file);
            QCOMPARE(pdfPlaces(file, "TANTOS"), (QList<QList<QPoint>>{{}, total}));
            QCOMPARE(pages[1][0].simplified(), desk.text("DispositivoSaida1").trimmed() + ' ' + moment + " Pág.2");
            QCOMPARE(pages[1].filter("NOME").size(), 1);
        }
    }

    void writesWhatTheGridShows()
    {
        const QString row = "2|" + QString(33, 'W') + "|DOCES|C1|-|10|2|3,50|FÁBRICA|Sim|7891234567895";
        Desk desk(true, {row, row});
        const QStringList entry({"Produto: " + QString(33, 'W') + " Cód.: C1 Qtde: 10           Mínimo: 2",
                                 "Preço: 3,50" + QString(22, ' ') + "Fornecedor: R$ FÁBRICA",
                                 "Cód. de barra: 7891234567895" + QString(18, ' ') + "Categoria: DOCES", rule});
        const QStringList lines = QStringList{"Cadastro de produtos", "Data: " + moment, rule} + entry + entry +
                                  QStringList{"", "", "TANTOS", ""};
        QCOMPARE(desk.save(), lines.join("\r\n").toLatin1());
        const QStringList printed = pdfPages(desk.print()).first();
        for (const QString &line : entry)
            QVERIFY2(printed.contains(line), qPrintable(line));

        Desk other(false, {"1|DIVERSOS|x", "7|DOCES|---"});
        const QString head = "Categoria" + QString(71, ' ') + "Padrão";
        const QStringList list({"Lista de categorias de produtos", "Data: " + moment, rule, head, rule,
                                "DIVERSOS" + QString(72, ' ') + "x", "DOCES" + QString(75, ' ') + "---", rule, "TANTOS",
                                ""});
        QCOMPARE(other.save(), list.join("\r\n").toLatin1());
        QCOMPARE(pdfPages(other.print()).first()[2], head + " %");
    }

    void tellsOfSuccessInAnyCase()
    {
        for (const bool products : {true, false}) {
            Desk desk(products, QStringList(100, "1|NOME|DOCES"));
            {
                const FullDisk full;
                QCOMPARE(desk.save().size(), 4096);
            }
            desk.machine.breakPrinter();
            QCOMPARE(desk.print(), QString());
        }
    }
};

QTEST_MAIN(tst_product_printouts)
#include "tst_product_printouts.moc"
