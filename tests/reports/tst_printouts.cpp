#include "categories/frmcadastro_categoria.h"
#include "customers/frmcadastro_clientes.h"
#include "products/frmcadastro_produtos.h"
#include "tests/support/FullDisk.h"
#include "tests/support/PdfText.h"
#include "tests/support/TestDesk.h"

#include <QRegularExpression>

#include <numeric>

namespace {
/// A window with a list, and what it asks and tells. Customers who are printed get no word.
struct List
{
    QString window, grid, table;
    Form &(*use)();
    QString question, printed, saved, savedTitle;
};
const List customers{"frmcadastro_clientes",
                     "tab_clientes",
                     "Clientes",
                     TestDesk::use<frmcadastro_clientes>,
                     "Deseja imprimir a lista de clientes?",
                     "",
                     "A lista de clientes foi salva.",
                     "Salvar em arquivo"};
const List products{"frmcadastro_produtos",
                    "tab_produtos",
                    "Produtos",
                    TestDesk::use<frmcadastro_produtos>,
                    "Deseja imprimir a lista de produtos?",
                    "A lista de produtos foi impressa.",
                    "A lista de produtos foi salva no arquivo %1",
                    "Salvar em arquivo"};
const List categories{"frmcadastro_categoria",
                      "tab_categorias",
                      "Categoria",
                      TestDesk::use<frmcadastro_categoria>,
                      "Deseja imprimir a lista de categorias?",
                      "",
                      "A lista de categorias foi salva com sucesso.",
                      "Aviso"};

const QString moment = "15/03/2024 às 14:30:05";

class ListDesk : public TestDesk
{
public:
    /// Opens the window over rows of the given fields.
    ListDesk(const List &list, const QStringList &rows)
        : TestDesk({list.window, list.grid, list.table}, list.use), m_list(list)
    {
        cafe.execute("Delete from " + list.table);
        for (int row = 0; row < rows.size(); ++row)
            add(list.table, rows[row] + ", Codigo=" + QString::number(row + 1));
        open();
    }
    QList<QStringList> print()
    {
        attendant.expect(m_list.question, vbYesNo + vbQuestion, "Imprimir", vbYes);
        if (!m_list.printed.isEmpty())
            expectNoticeText(m_list.printed);
        press("cmdimprimir");
        const QString file = machine.openedDocuments.value(0);
        return file.isEmpty() ? QList<QStringList>() : pdfPages(file);
    }
    QByteArray save()
    {
        const QString file = cafe.path("lista.txt");
        attendant.expectSaveFile({}, file);
        attendant.expectNotice(QString(m_list.saved).replace("%1", file), m_list.savedTitle);
        press("cmdsalvar");
        return cafe.readFile(file);
    }

private:
    const List &m_list;
};
} // namespace

/// The lists of customers, products and categories on paper and in a file.
class tst_printouts : public QObject
{
    Q_OBJECT

private slots:
    void breaksPages()
    {
        // Nine customers fill a page and leave no room for the closing line.
        for (const auto &[list, entry, perPage, closing] :
             {std::tuple(&customers, "Nome='NOME'", QList<int>{8}, "Fim da lista de clientes"),
              {&customers, "Nome='NOME'", {9}, ""},
              {&customers, "Nome='NOME'", {9, 9, 1}, "Fim da lista de clientes"},
              {&products, "Descrição='NOME'", {12, 1}, "13 produtos cadastrados"},
              {&categories, "Nome='NOME'", {27, 1}, "Total: 28 categorias cadastradas"}}) {
            ListDesk desk(*list, QStringList(std::accumulate(perPage.begin(), perPage.end(), 0), entry));
            const QList<QStringList> pages = desk.print();
            QCOMPARE(pages.size(), perPage.size());
            for (int page = 0; page < pages.size(); ++page) {
                QVERIFY(pages[page][0].simplified().endsWith(QString(" - %1 Pág.%2").arg(moment).arg(page + 1)));
                QCOMPARE(pages[page].filter("NOME").size(), perPage[page]);
            }
            // It stands right below the last entry.
            const auto lastRule = pages.last().lastIndexOf(QRegularExpression("\\*+"));
            QCOMPARE(pages.last().value(lastRule + 1), QString(closing));
        }
    }

    void writesWhatTheListShows()
    {
        const QString product = "Descrição='" + QString(33, 'W') + "', Fornecedor='FÁBRICA', Cod='C1'";
        // The entries' lines in the saved list, and so many of them on paper.
        for (const auto &[list, rows, golden, first, count] :
             {std::tuple(&customers, QStringList{"Nome='CLIENTE', Obs='a\tb----'"}, "customers.txt", 4, 5),
              {&products, {product, product}, "products.txt", 3, 3},
              {&categories, {"Nome='DIVERSOS'", "Nome='DOCES'"}, "categories.txt", 5, 2}}) {
            ListDesk desk(*list, rows);
            const QByteArray saved = desk.cafe.readGolden(QString(GOLDEN_FOLDER) + golden);
            QCOMPARE(desk.save(), saved);
            const QStringList printed = desk.print().first();
            for (const QString &line : QString::fromLatin1(saved).split("\r\n").mid(first, count))
                QVERIFY2(printed.contains(line), qPrintable(line));
            QCOMPARE(printed.filter("Padrão %").size(), list == &categories ? 1 : 0);
        }
    }

    void endsCustomersAtATooLongText()
    {
        ListDesk desk(customers, {"Nome='ANA'", "Nome='" + QString(63, 'X') + "'", "Nome='BIA'"});
        QStringList printed = desk.print().first();
        printed.removeAll("");
        QCOMPARE(printed.last(), QString("Código: 2"));
    }

    void tellsOfSuccessInAnyCase()
    {
        for (const auto &[list, entry] : {std::pair(&products, "Descrição='NOME'"), {&categories, "Nome='NOME'"}}) {
            ListDesk desk(*list, QStringList(100, entry));
            {
                const FullDisk full;
                QCOMPARE(desk.save().size(), 4096);
            }
            desk.machine.breakPrinter();
            QCOMPARE(desk.print(), QList<QStringList>());
        }
    }
};

STORY_MAIN(tst_printouts)
#include "tst_printouts.moc"
