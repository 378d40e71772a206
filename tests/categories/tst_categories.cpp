#include "categories/frmcadastro_categoria.h"
#include "tests/support/TestDesk.h"

#include <QCheckBox>

namespace {
/// The categories' window in a café with the categories BEBIDAS, DIVERSOS and DOCES, each with one product and one sale
/// of it in each table of sales.
class CategoryDesk : public TestDesk
{
public:
    explicit CategoryDesk(bool oti = true)
        : TestDesk({"frmcadastro_categoria", "tab_categorias", "Categoria"}, use<frmcadastro_categoria>, brazil,
                   {.oti = oti})
        , tables{QStringList{"Produtos", "Venda_Produtos"} + QStringList(oti ? 1 : 0, "Venda_ProdutosOti")}
    {
        cafe.executeAll({"Delete from Categoria", "Delete from Produtos"});
        addCategory(1, "DIVERSOS");
        addCategory(2, "DOCES");
        addCategory(7, "BEBIDAS");
    }

    /// The tables whose rows name a category.
    const QStringList tables;

    void addCategory(int codigo, const QString &name)
    {
        const QString values = QString("values (%1,'%2')").arg(codigo).arg(name);
        cafe.execute("Insert into Categoria (Codigo,Nome) " + values);
        for (const QString &table : tables)
            cafe.execute("Insert into " + table + " (Codigo,Categoria) " + values);
    }
    void fill(const QString &name, bool isDefault = false)
    {
        type("txtnome", name);
        at<QCheckBox>("chkpadrao").setChecked(isDefault);
    }
    void expectSave(const Place &where = Place::current())
    {
        expectQuestion("MsgBox5", "MsgBox5_2", vbQuestion, vbYes, where);
    }
    void save()
    {
        expectSave();
        press("cmdeditar");
    }
    void expectRemoval(int first, int last)
    {
        select(first, last);
        expectQuestion(first == last ? "MsgBox12" : "MsgBox13", "MsgBox1_2", vbQuestion, vbYes);
    }
    QString takenText(const QString &name) const { return text("MsgBox3") + name + text("MsgBox3_2"); }

    QString standard() { return cafe.ini("Categorias", "Padrao"); }
    /// The rows of the list, the default one with an x.
    QString shownRows()
    {
        QStringList rows;
        for (int line = 1; line < list().Rows(); ++line)
            rows += row(line).remove('|').remove("---");
        return rows.join(' ');
    }
    QString names() { return stored("Nome").join(' '); }
    QString categoriesOf(const QString &table) { return stored("Categoria", table).join(' '); }
};
} // namespace

/// The categories' window, and what follows in the catalogue and the sales.
class tst_categories : public QObject
{
    Q_OBJECT

private slots:
    void mendsTheDefault()
    {
        CategoryDesk desk;
        for (const auto &[before, after] :
             {std::pair("bebidas", "BEBIDAS"), std::pair("SUMIU", "DIVERSOS"), std::pair("D'ÁGUA", "DIVERSOS")}) {
            desk.cafe.setIni("Categorias", "Padrao", before);
            // A row that another program left without a number is passed over.
            desk.cafe.execute("Insert into Categoria (Nome) values ('AVULSA')");
            desk.open();
            QCOMPARE(desk.standard(), QString(after));
            QCOMPARE(desk.shownRows(), QString("7BEBIDAS 1DIVERSOS 2DOCES").replace(after, after + QString("x")));
        }
    }

    void adds()
    {
        CategoryDesk desk;
        desk.cafe.execute("Delete from Categoria");
        desk.open();
        desk.fill("D'ÁGUA");
        desk.refuses("cmdadicionar", desk.text("MsgBox1"));
        desk.fill("água", true);
        desk.press("cmdadicionar");
        QCOMPARE(desk.highlighted(), QString("1-1"));
        desk.expectRemoval(1, 1);
        desk.press("cmdremover");
        desk.fill("água", true);
        desk.press("cmdadicionar");
        // Added on another terminal: the name is taken, and no number is used twice.
        desk.addCategory(8, "FRIOS");
        desk.fill("frios", true);
        desk.refuses("cmdadicionar", desk.takenText("FRIOS"));
        QCOMPARE(desk.standard(), QString("ÁGUA"));
        desk.fill("doces", true);
        desk.press("cmdadicionar");
        QCOMPARE(desk.shownRows() + ' ' + desk.standard(), QString("1ÁGUA 9DOCESx DOCES"));
        QCOMPARE(desk.names(), QString("ÁGUA FRIOS DOCES"));
        QVERIFY(desk.at("txtnome").hasFocus() && desk.shown("txtnome").isEmpty());
    }

    void renamesEverywhere()
    {
        CategoryDesk desk;
        desk.open();
        desk.edit(3);
        QVERIFY(!desk.at("cmdadicionar").isEnabled() && !desk.at("cmdremover").isEnabled());
        // Another row picked meanwhile changes nothing.
        clickCell(desk.list(), 1, 1);
        desk.fill("bebidas", true);
        desk.expectSave();
        desk.refuses("cmdeditar", desk.takenText("BEBIDAS"));
        QCOMPARE(desk.shown("cmdeditar"), desk.text("String6"));
        desk.fill("Doçura", true);
        desk.save();
        QCOMPARE(desk.shownRows() + ' ' + desk.standard(), QString("7BEBIDAS 1DIVERSOS 2DOÇURAx DOÇURA"));
        QVERIFY(desk.at("cmdadicionar").isEnabled() && desk.at("cmdremover").isEnabled());
        for (const QString &table : desk.tables)
            QCOMPARE(desk.categoriesOf(table), QString("DIVERSOS DOÇURA BEBIDAS"));
        // The mark taken away: the default falls to the category that stays, shown at the next opening.
        desk.edit(3);
        desk.fill("doçura");
        desk.save();
        QCOMPARE(desk.shownRows() + ' ' + desk.standard(), QString("7BEBIDAS 1DIVERSOS 2DOÇURA DIVERSOS"));
        desk.open();
        QVERIFY(desk.shownRows().contains("1DIVERSOSx"));
    }

    void keepsTheCategoryThatStays()
    {
        CategoryDesk desk;
        desk.open();
        desk.expectRemoval(2, 2);
        desk.refuses("cmdremover", desk.text("MsgBox14"));
        desk.edit(2);
        desk.fill("OUTROS", true);
        desk.expectSave();
        desk.refuses("cmdeditar", desk.text("MsgBox7"));
        QCOMPARE(desk.names(), QString("DIVERSOS DOCES BEBIDAS"));
        QCOMPARE(desk.categoriesOf("Produtos"), desk.names());
    }

    void removesInBothDirections()
    {
        for (const auto &[first, last] : {std::pair(3, 4), std::pair(4, 3)}) {
            CategoryDesk desk(first < last);
            desk.addCategory(9, "ZERO");
            desk.cafe.setIni("Categorias", "Padrao", "ZERO");
            desk.open();
            desk.expectRemoval(first, last);
            desk.press("cmdremover");
            QCOMPARE(desk.names(), QString("DIVERSOS BEBIDAS"));
            for (const QString &table : desk.tables)
                QCOMPARE(desk.categoriesOf(table), QString("DIVERSOS DIVERSOS BEBIDAS DIVERSOS"));
            QCOMPARE(desk.shownRows() + ' ' + desk.standard(), QString("7BEBIDAS 1DIVERSOSx DIVERSOS"));
            // Nothing is picked in the new list.
            desk.refuses("cmdeditar", desk.text("MsgBox4"));
        }
    }
};

STORY_MAIN(tst_categories)
#include "tst_categories.moc"
