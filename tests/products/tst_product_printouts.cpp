#include "configuration/Idiomas.h"
#include "platform/print/Printer.h"
#include "platform/window/FlexGrid.h"
#include "platform/window/Form.h"
#include "products/CategoryPrintouts.h"
#include "products/ProductPrintouts.h"
#include "tests/support/Attendant.h"
#include "tests/support/FakeMachine.h"
#include "tests/support/FullDisk.h"
#include "tests/support/PdfText.h"
#include "tests/support/TestCafe.h"

#include <QFileInfo>
#include <QTest>

#include <functional>

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

    Desk(int columns, const QStringList &rows)
    {
        cafe.start();
        grid.setCols(columns);
        grid.setRows(1 + int(rows.size()));
        for (int row = 1; row < grid.Rows(); ++row)
            for (int column = 0; column < columns; ++column)
                grid.setTextMatrix(row, column, rows[row - 1].section('|', column, column));
    }
    void expectQuestion(const QString &section, const QString &key, int answer = vbYes)
    {
        attendant.expect(textoIdioma(section, key), 36, textoIdioma(section, key + "_2"), answer);
    }
    QStringList saved(const QString &name) { return QString::fromLatin1(cafe.readFile(name)).chopped(2).split("\r\n"); }
};

/// One of the two lists: its window's part in printing and saving, and what it says.
struct List
{
    QString section;
    int columns;
    QString printQuestion, nothingToPrint, nothingToSave, nothingTitle, overwriteQuestion;
    std::function<void(Desk &)> print, save;
    /// The box after saving; empty for none.
    std::function<QString(const QString &file)> saved;
    QString savedTitle;
    QString printed;
};

QString text(const List &list, const QString &key)
{
    return textoIdioma(list.section, key);
}

const List products{"frmcadastro_produtos",
                    11,
                    "MsgBox18",
                    "MsgBox19",
                    "MsgBox28",
                    "MsgBox19_2",
                    "MsgBox26",
                    [](Desk &desk) { imprimirProdutos(desk.form, desk.grid, desk.grid.Rows() - 1, "TANTOS"); },
                    [](Desk &desk) { salvarProdutos(desk.grid, "TANTOS"); },
                    [](const QString &file) { return "A lista de produtos foi salva no arquivo " + file; },
                    "MsgBox27_2",
                    "MsgBox20"};
const List categories{"frmcadastro_categoria",
                      3,
                      "MsgBox8",
                      "MsgBox9",
                      "MsgBox18",
                      "MsgBox9_2",
                      "MsgBox16",
                      [](Desk &desk) { imprimirCategorias(desk.grid, "TANTOS"); },
                      [](Desk &desk) { salvarCategorias(desk.grid, "TANTOS"); },
                      [](const QString &) { return "A lista de categorias foi salva com sucesso."; },
                      "MsgBox1_2",
                      {}};

/// Prints and gives the path of the PDF.
QString print(Desk &desk, const List &list)
{
    desk.expectQuestion(list.section, list.printQuestion);
    if (!list.printed.isEmpty())
        desk.attendant.expectNotice(text(list, list.printed), text(list, "MsgBox1_2"),
                                    [&] { QCOMPARE(desk.form.cursor().shape(), Qt::ArrowCursor); });
    list.print(desk);
    return desk.machine.openedDocuments.value(0);
}

/// Saves under a name in the café's folder; an answer of 0 stands for no question.
void save(Desk &desk, const List &list, const QString &name, int overwrite = 0)
{
    desk.attendant.expectSaveFile({}, desk.cafe.path(name));
    if (overwrite != 0)
        desk.expectQuestion(list.section, list.overwriteQuestion, overwrite);
    if (overwrite != vbNo)
        desk.attendant.expectNotice(list.saved(desk.cafe.path(name)), text(list, list.savedTitle));
    list.save(desk);
}

QStringList rowsOf(const List &list, int count)
{
    QStringList rows;
    for (int row = 1; row <= count; ++row)
        rows +=
            QString(&list == &products ? "%1|PRODUTO %1|DOCES|C%1|-|%1|2|3,50|FÁBRICA|Sim|789" : "%1|CATEGORIA %1|---")
                .arg(row);
    return rows;
}
} // namespace

/// The lists of products and of categories on paper and in a file.
class tst_product_printouts : public QObject
{
    Q_OBJECT

private slots:
    void breaksPages()
    {
        // Twelve products or 27 categories fill a page. The word stands in each entry, on the given line of the first.
        const struct
        {
            const List &list;
            QString word;
            int perPage, firstLine, linesPerEntry;
        } kinds[] = {{products, "Preço:", 12, 2, 5}, {categories, "CATEGORIA", 27, 6, 2}};
        for (const auto &kind : kinds)
            for (const int count : {1, kind.perPage, kind.perPage + 1, 2 * kind.perPage + 1}) {
                Desk desk(kind.list.columns, rowsOf(kind.list, count));
                Printer::current().setPageSize(12240, 15840);
                const QString file = print(desk, kind.list);
                const QList<QStringList> pages = pdfPages(file);
                const QList<QList<QPoint>> places = pdfPlaces(file, kind.word);
                QCOMPARE(pages.size(), (count + kind.perPage - 1) / kind.perPage);
                for (int page = 0; page < pages.size(); ++page) {
                    QCOMPARE(pages[page][0].simplified(),
                             QString("%1 %2 Pág.%3")
                                 .arg(text(kind.list, "DispositivoSaida1").trimmed(), moment)
                                 .arg(page + 1));
                    QCOMPARE(pages[page][0].size(), 95);
                    const int entries = std::min(count - page * kind.perPage, kind.perPage);
                    QList<QPoint> expected;
                    for (int entry = 0; entry < entries; ++entry)
                        expected += QPoint(0, kind.firstLine + entry * kind.linesPerEntry);
                    QCOMPARE(places[page], expected);
                    const bool last = page == pages.size() - 1;
                    const bool ofProducts = &kind.list == &products;
                    QCOMPARE(pages[page].count(rule), ofProducts ? 1 + entries : last ? 3 : 2);
                    const int end = kind.firstLine + entries * kind.linesPerEntry;
                    const QList<QPoint> nowhere;
                    const QPoint total = ofProducts ? QPoint(0, end - 1) : QPoint(7, end + 1);
                    QCOMPARE(pdfPlaces(file, "TANTOS")[page], last ? QList<QPoint>{total} : nowhere);
                    if (ofProducts)
                        QCOMPARE(pdfPlaces(file, "Fim")[page], last ? (QList<QPoint>{{1, 60}}) : nowhere);
                }
                QCOMPARE(Printer::current().PageWidth(), 12240);
            }
    }

    void writesWhatTheGridShows()
    {
        Desk desk(11, {"1|TEMPO|DIVERSOS|---|X|-|-|3,00|------|Não|-------------",
                       "2|" + QString(33, 'W') + "|DOCES|C1|-|10|2|3,50|FÁBRICA|Sim|7891234567895"});
        const QStringList blocks{
            "Produto: TEMPO" + QString(27, ' ') + " Cód.: --- Qtde: -            Mínimo: -",
            "Preço: 3,00" + QString(22, ' ') + "Fornecedor: R$ ------",
            "Cód. de barra: -------------" + QString(18, ' ') + "Categoria: DIVERSOS",
            rule,
            "Produto: " + QString(33, 'W') + " Cód.: C1 Qtde: 10           Mínimo: 2",
            "Preço: 3,50" + QString(22, ' ') + "Fornecedor: R$ FÁBRICA",
            "Cód. de barra: 7891234567895" + QString(18, ' ') + "Categoria: DOCES",
            rule,
        };
        save(desk, products, "lista.txt");
        QCOMPARE(desk.saved("lista.txt"), QStringList({"Cadastro de produtos", "Data: " + moment, rule}) + blocks +
                                              QStringList({"", "", "TANTOS"}));
        const QStringList printed = pdfPages(print(desk, products)).first();
        for (const QString &line : blocks)
            QVERIFY2(printed.contains(line) || line.startsWith("Produto: TEMPO"), qPrintable(line));

        Desk other(3, {"1|DIVERSOS|x", "7|DOCES|---"});
        save(other, categories, "lista.txt");
        QCOMPARE(other.saved("lista.txt"),
                 QStringList({"Lista de categorias de produtos", "Data: " + moment, rule,
                              "Categoria" + QString(71, ' ') + "Padrão", rule, "DIVERSOS" + QString(72, ' ') + "x",
                              "DOCES" + QString(75, ' ') + "---", rule, "TANTOS"}));
        const QStringList heads = pdfPages(print(other, categories)).first();
        QCOMPARE(heads[2], "Categoria" + QString(71, ' ') + "Padrão %");
    }

    void asksFirst()
    {
        for (const List *list : {&products, &categories}) {
            Desk desk(list->columns, {});
            desk.expectQuestion(list->section, list->printQuestion, vbNo);
            list->print(desk);
            desk.expectQuestion(list->section, list->printQuestion);
            desk.attendant.expectNotice(text(*list, list->nothingToPrint), text(*list, list->nothingTitle));
            list->print(desk);
            if (list == &products)
                desk.attendant.expectSaveFile({}, desk.cafe.path("nada.txt"));
            desk.attendant.expectNotice(text(*list, list->nothingToSave), text(*list, list->nothingTitle));
            list->save(desk);
            QVERIFY(!QFile::exists(desk.cafe.path("nada.txt")) && desk.machine.openedDocuments.isEmpty());
            desk.grid.setRows(2);
            desk.attendant.expectSaveFile({}, {});
            list->save(desk);
            desk.cafe.writeFile("Lista.TXT", "velha\r\n");
            save(desk, *list, "lista.txt", vbNo);
            QCOMPARE(desk.saved("Lista.TXT"), QStringList("velha"));
            save(desk, *list, "lista.txt", vbYes);
            QCOMPARE(desk.saved("Lista.TXT").last(), QString("TANTOS"));
        }
    }

    void tellsOfSuccessInAnyCase()
    {
        for (const List *list : {&products, &categories}) {
            Desk desk(list->columns, rowsOf(*list, 100));
            save(desk, *list, "Morvelane.mdb/lista.txt");
            desk.cafe.writeFile("fixa.txt", "velha\r\n");
            QVERIFY(QFile::setPermissions(desk.cafe.path("fixa.txt"), QFile::ReadOwner));
            const bool writable = QFileInfo(desk.cafe.path("fixa.txt")).isWritable();
            save(desk, *list, "fixa.txt", vbYes);
            QCOMPARE(desk.saved("fixa.txt").last(), QString(writable ? "TANTOS" : "velha"));
            {
                const FullDisk full;
                save(desk, *list, "cheia.txt");
            }
            QCOMPARE(QFileInfo(desk.cafe.path("cheia.txt")).size(), 4096);
            desk.machine.breakPrinter();
            print(desk, *list);
            QVERIFY(desk.machine.openedDocuments.isEmpty());
        }
    }
};

QTEST_MAIN(tst_product_printouts)
#include "tst_product_printouts.moc"
