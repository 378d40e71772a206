#include "platform/window/Forms.h"
#include "products/frmcadastro_categoria.h"
#include "tests/support/BareFile.h"
#include "tests/support/ListDesk.h"

#include <QCheckBox>
#include <QTest>

namespace {
/// The categories' window in a café with the categories BEBIDAS, DIVERSOS and DOCES, each with one product and one sale
/// of it in each table of sales.
class Desk : public ListDesk
{
public:
    explicit Desk(bool oti = true)
        : ListDesk("frmcadastro_categoria", "tab_categorias", "Categoria",
                   []() -> Form & { return Forms::use<frmcadastro_categoria>(); })
    {
        for (const char *table : {"Categoria", "Produtos"})
            cafe.execute("Delete from " + QString(table));
        if (oti)
            BareFile(cafe.dataFile()).write("CREATE TABLE Venda_ProdutosOti AS SELECT * FROM Venda_Produtos");
        tables = QStringList{"Produtos", "Venda_Produtos"} + QStringList(oti ? 1 : 0, "Venda_ProdutosOti");
        addCategory(1, "DIVERSOS");
        addCategory(2, "DOCES");
        addCategory(7, "BEBIDAS");
        cafe.start();
    }

    /// The tables whose rows name a category.
    QStringList tables;

    void addCategory(int codigo, const QString &name)
    {
        cafe.execute(QString("Insert into Categoria (Codigo,Nome) values (%1,'%2')").arg(codigo).arg(name));
        for (const QString &table : std::as_const(tables))
            cafe.execute(
                QString("Insert into %1 (Codigo,Categoria) values (%2,'%3')").arg(table).arg(codigo).arg(name));
    }
    void enter(const QString &name, bool isDefault = false)
    {
        type("txtnome", name);
        at<QCheckBox>("chkpadrao").setChecked(isDefault);
    }
    void edit(int row)
    {
        clickCell(list(), row, 1);
        press("cmdeditar");
    }
    void expectSave() { expectQuestion("MsgBox5", "MsgBox5_2", vbQuestion, vbYes); }
    void save()
    {
        expectSave();
        press("cmdeditar");
    }
    void expectRemoval(int first, int last)
    {
        clickCell(list(), first, 1);
        clickCell(list(), last, 1, Qt::ShiftModifier);
        expectQuestion(first == last ? "MsgBox12" : "MsgBox13", "MsgBox1_2", vbQuestion, vbYes);
    }
    void expectTaken(const QString &name) { expectNoticeText(text("MsgBox3") + name + text("MsgBox3_2")); }

    QString standard() { return cafe.ini("Categorias", "Padrao"); }
    /// The rows of the list, the default one with an x.
    QString shownRows()
    {
        QStringList rows;
        for (int row = 1; row < list().Rows(); ++row)
            rows += list().TextMatrix(row, 0) + list().TextMatrix(row, 1) + list().TextMatrix(row, 2).remove("---");
        return rows.join(' ');
    }
    QString names() { return stored("Nome").join(' '); }
    /// The categories of the rows of a table, in the order of their numbers.
    QString categoriesOf(const QString &table)
    {
        QStringList values;
        for (const QStringList &row : cafe.query("Select Categoria from " + table + " Order By Codigo"))
            values += row.first();
        return values.join(' ');
    }
};
} // namespace

/// The categories' window, and what follows in the catalogue and the sales.
class tst_categories : public QObject
{
    Q_OBJECT

private slots:
    void mendsTheDefault()
    {
        Desk desk;
        for (const auto &[before, after] :
             {std::pair("bebidas", "BEBIDAS"), std::pair("SUMIU", "DIVERSOS"), std::pair("D'ÁGUA", "DIVERSOS")}) {
            desk.cafe.setIni("Categorias", "Padrao", before);
            desk.open();
            QCOMPARE(desk.standard(), QString(after));
            QCOMPARE(desk.shownRows(), QString("7BEBIDAS 1DIVERSOS 2DOCES").replace(after, after + QString("x")));
        }
    }

    void adds()
    {
        Desk desk;
        desk.cafe.execute("Delete from Categoria");
        desk.open();
        desk.enter("D'ÁGUA");
        desk.expectNotice("MsgBox1");
        desk.press("cmdadicionar");
        desk.enter("água", true);
        desk.press("cmdadicionar");
        // Added on another terminal: the name is taken, and no number is used twice.
        desk.addCategory(8, "FRIOS");
        desk.enter("frios", true);
        desk.expectTaken("FRIOS");
        desk.press("cmdadicionar");
        QCOMPARE(desk.standard(), QString("ÁGUA"));
        desk.enter("doces", true);
        desk.press("cmdadicionar");
        QCOMPARE(desk.shownRows() + ' ' + desk.standard(), QString("1ÁGUA 9DOCESx DOCES"));
        QCOMPARE(desk.names(), QString("ÁGUA FRIOS DOCES"));
        QVERIFY(desk.at("txtnome").hasFocus() && desk.shown("txtnome").isEmpty());
    }

    void renamesEverywhere()
    {
        Desk desk;
        desk.open();
        desk.edit(3);
        QVERIFY(!desk.at("cmdadicionar").isEnabled() && !desk.at("cmdremover").isEnabled());
        // Another row picked meanwhile changes nothing.
        clickCell(desk.list(), 1, 1);
        desk.enter("bebidas", true);
        desk.expectSave();
        desk.expectTaken("BEBIDAS");
        desk.press("cmdeditar");
        QCOMPARE(desk.shown("cmdeditar"), desk.text("String6"));
        desk.enter("Doçura", true);
        desk.save();
        QCOMPARE(desk.shownRows() + ' ' + desk.standard(), QString("7BEBIDAS 1DIVERSOS 2DOÇURAx DOÇURA"));
        QVERIFY(desk.at("cmdadicionar").isEnabled() && desk.at("cmdremover").isEnabled());
        for (const QString &table : std::as_const(desk.tables))
            QCOMPARE(desk.categoriesOf(table), QString("DIVERSOS DOÇURA BEBIDAS"));
        // The mark taken away: the default falls to the category that stays, shown at the next opening.
        desk.edit(3);
        desk.enter("doçura");
        desk.save();
        QCOMPARE(desk.shownRows() + ' ' + desk.standard(), QString("7BEBIDAS 1DIVERSOS 2DOÇURA DIVERSOS"));
        desk.open();
        QVERIFY(desk.shownRows().contains("1DIVERSOSx"));
    }

    void keepsTheCategoryThatStays()
    {
        Desk desk;
        desk.open();
        desk.expectRemoval(2, 2);
        desk.expectNotice("MsgBox14");
        desk.press("cmdremover");
        desk.edit(2);
        desk.enter("OUTROS", true);
        desk.expectSave();
        desk.expectNotice("MsgBox7");
        desk.press("cmdeditar");
        QCOMPARE(desk.names(), QString("DIVERSOS DOCES BEBIDAS"));
        QCOMPARE(desk.categoriesOf("Produtos"), desk.names());
    }

    void removesInBothDirections()
    {
        for (const auto &[first, last] : {std::pair(3, 4), std::pair(4, 3)}) {
            Desk desk(first < last);
            desk.addCategory(9, "ZERO");
            desk.cafe.setIni("Categorias", "Padrao", "ZERO");
            desk.open();
            desk.expectRemoval(first, last);
            desk.press("cmdremover");
            QCOMPARE(desk.names(), QString("DIVERSOS BEBIDAS"));
            for (const QString &table : std::as_const(desk.tables))
                QCOMPARE(desk.categoriesOf(table), QString("DIVERSOS DIVERSOS BEBIDAS DIVERSOS"));
            QCOMPARE(desk.shownRows() + ' ' + desk.standard(), QString("7BEBIDAS 1DIVERSOSx DIVERSOS"));
            // Nothing is picked in the new list.
            desk.expectNotice("MsgBox4");
            desk.press("cmdeditar");
        }
    }
};

QTEST_MAIN(tst_categories)
#include "tst_categories.moc"
