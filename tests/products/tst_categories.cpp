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
    bool isTicked() { return at<QCheckBox>("chkpadrao").isChecked(); }
    void enter(const QString &name, bool isDefault = false)
    {
        type("txtnome", name);
        if (isTicked() != isDefault)
            press("chkpadrao");
    }
    void edit(int row)
    {
        clickCell(list(), row, 1);
        press("cmdeditar");
    }
    void expectSave(int answer = vbYes) { expectQuestion("MsgBox5", "MsgBox5_2", vbQuestion, answer); }
    void save(int answer = vbYes)
    {
        expectSave(answer);
        press("cmdeditar");
    }
    void remove(int first, int last, int answer = vbYes, const QString &refusal = {})
    {
        clickCell(list(), first, 1);
        if (last != first)
            clickCell(list(), last, 1, Qt::ShiftModifier);
        expectQuestion(first == last ? "MsgBox12" : "MsgBox13", "MsgBox1_2", vbQuestion, answer);
        if (!refusal.isEmpty())
            expectNotice(refusal);
        press("cmdremover");
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
    bool isAtRest()
    {
        return shown("cmdeditar") == text("String5") && at("cmdadicionar").isEnabled() &&
               at("cmdremover").isEnabled() && shown("txtnome").isEmpty() && !isTicked();
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
             {std::pair("DOCES", "DOCES"), std::pair("bebidas", "BEBIDAS"), std::pair("", "DIVERSOS"),
              std::pair("SUMIU", "DIVERSOS"), std::pair("D'ÁGUA", "DIVERSOS")}) {
            desk.cafe.setIni("Categorias", "Padrao", before);
            desk.open();
            QCOMPARE(desk.standard(), QString(after));
            QCOMPARE(desk.shownRows(), QString("7BEBIDAS 1DIVERSOS 2DOCES").replace(after, after + QString("x")));
            QCOMPARE(desk.shown("lbltotal_categorias"), "3" + desk.text("String3"));
            QCOMPARE(desk.shown("Lblsombracategorias"), desk.shown("lbltotal_categorias"));
        }
    }

    void adds()
    {
        Desk desk;
        desk.cafe.execute("Delete from Categoria");
        desk.open();
        QCOMPARE(desk.shown("lbltotal_categorias"), desk.text("String4"));
        for (const auto &[name, refusal] : {std::pair("", "MsgBox2"), std::pair("D'ÁGUA", "MsgBox1")}) {
            desk.expectNotice(refusal);
            desk.enter(name);
            desk.press("cmdadicionar");
            QVERIFY(desk.at("txtnome").hasFocus());
        }
        desk.enter("água", true);
        desk.press("cmdadicionar");
        QCOMPARE(desk.shown("lbltotal_categorias"), "1" + desk.text("String2"));
        desk.enter("Salgados");
        pressKey(desk.at("txtnome"), Qt::Key_Return);
        QVERIFY(desk.at("chkpadrao").hasFocus());
        desk.press("cmdadicionar");
        QCOMPARE(desk.shownRows() + ' ' + desk.standard(), QString("1ÁGUAx 2SALGADOS ÁGUA"));
        desk.enter("salgados");
        desk.expectTaken("SALGADOS");
        desk.press("cmdadicionar");
        desk.enter("doces", true);
        desk.press("cmdadicionar");
        QCOMPARE(desk.shownRows(), QString("1ÁGUA 2SALGADOS 3DOCESx"));
        QCOMPARE(desk.names(), QString("ÁGUA SALGADOS DOCES"));
        QVERIFY(desk.isAtRest() && desk.at("txtnome").hasFocus());
    }

    void renamesEverywhere()
    {
        for (const bool oti : {false, true}) {
            Desk desk(oti);
            desk.open();
            desk.expectNotice("MsgBox4");
            desk.press("cmdeditar");
            desk.edit(3);
            QVERIFY(!desk.at("cmdadicionar").isEnabled() && !desk.at("cmdremover").isEnabled());
            // Another row picked meanwhile changes nothing.
            clickCell(desk.list(), 1, 1);
            for (const auto &[name, refusal] : {std::pair("D'ÁGUA", "MsgBox1"), std::pair("", "MsgBox6")}) {
                desk.enter(name, true);
                desk.expectSave();
                desk.expectNotice(refusal);
                desk.press("cmdeditar");
            }
            desk.enter("bebidas", true);
            desk.expectSave();
            desk.expectTaken("BEBIDAS");
            desk.press("cmdeditar");
            QCOMPARE(desk.shown("cmdeditar"), desk.text("String6"));
            desk.enter("Doçura", true);
            desk.save();
            QCOMPARE(desk.shownRows() + ' ' + desk.standard(), QString("7BEBIDAS 1DIVERSOS 2DOÇURAx DOÇURA"));
            QVERIFY(desk.isAtRest());
            for (const QString &table : std::as_const(desk.tables))
                QCOMPARE(desk.categoriesOf(table), QString("DIVERSOS DOÇURA BEBIDAS"));
            // The same name in other letters, and a no.
            desk.edit(3);
            desk.enter("doçura", true);
            desk.save();
            desk.edit(1);
            desk.enter("NADA");
            desk.save(vbNo);
            QVERIFY(desk.isAtRest());
            QCOMPARE(desk.names(), QString("DIVERSOS DOÇURA BEBIDAS"));
        }
    }

    void leavesTheDefaultToDiversos()
    {
        // Whatever the language calls the category that stays; no row shows the mark until the next opening.
        Desk desk;
        desk.cafe.setIni("Config_Regional", "Idioma", "Teste.lng");
        desk.cafe.writeFile("Languages/Teste1.lng", "[frmcadastro_categoria]\nString5=(Editar)\nString7=(BEBIDAS)\n");
        desk.cafe.start();
        for (const char *name : {"DOCES", "CREMES"}) {
            desk.cafe.setIni("Categorias", "Padrao", "DOCES");
            desk.open();
            desk.edit(3);
            QVERIFY(desk.isTicked());
            desk.enter(name);
            desk.save();
            QCOMPARE(desk.standard(), QString("DIVERSOS"));
            QCOMPARE(desk.shownRows(), QString("7BEBIDAS 1DIVERSOS 2") + name);
            desk.open();
            QVERIFY(desk.shownRows().contains("1DIVERSOSx"));
        }
    }

    void keepsTheCategoryThatStays()
    {
        Desk desk;
        desk.open();
        desk.edit(2);
        desk.enter("OUTROS", true);
        desk.expectSave();
        desk.expectNotice("MsgBox7");
        desk.press("cmdeditar");
        desk.enter("diversos", true);
        desk.save();
        desk.remove(2, 2, vbYes, "MsgBox14");
        desk.remove(3, 1, vbYes, "MsgBox14");
        desk.remove(1, 1, vbNo);
        QCOMPARE(desk.names(), QString("DIVERSOS DOCES BEBIDAS"));
        QCOMPARE(desk.categoriesOf("Produtos"), desk.names());
    }

    void removes()
    {
        const struct
        {
            bool oti;
            int first, last;
            QString names, categories;
        } cases[] = {{false, 1, 1, "DIVERSOS DOCES ZERO", "DIVERSOS DOCES DIVERSOS ZERO"},
                     {true, 3, 4, "DIVERSOS BEBIDAS", "DIVERSOS DIVERSOS BEBIDAS DIVERSOS"},
                     {true, 4, 3, "DIVERSOS BEBIDAS", "DIVERSOS DIVERSOS BEBIDAS DIVERSOS"}};
        for (const auto &each : cases) {
            Desk desk(each.oti);
            desk.addCategory(9, "ZERO");
            desk.cafe.setIni("Categorias", "Padrao", each.first == 1 ? "BEBIDAS" : "ZERO");
            desk.open();
            desk.expectNotice("MsgBox11");
            desk.press("cmdremover");
            desk.remove(each.first, each.last);
            QCOMPARE(desk.names(), each.names);
            for (const QString &table : std::as_const(desk.tables))
                QCOMPARE(desk.categoriesOf(table), each.categories);
            QCOMPARE(desk.standard(), QString("DIVERSOS"));
            QVERIFY(desk.shownRows().contains("1DIVERSOSx"));
            // Nothing is picked in the new list.
            desk.expectNotice("MsgBox4");
            desk.press("cmdeditar");
        }
    }

    void keepsWhatWasDoneBeforeAFailure()
    {
        // A rename goes on behind the statement that failed, a removal ends there.
        Desk desk;
        desk.open();
        BareFile(desk.cafe.dataFile())
            .write("CREATE TRIGGER locked BEFORE UPDATE ON Produtos BEGIN SELECT RAISE(ABORT, 'locked'); END");
        desk.edit(3);
        desk.enter("CREMES");
        desk.save();
        desk.remove(1, 1);
        QCOMPARE(desk.names(), QString("DIVERSOS CREMES"));
        QCOMPARE(desk.categoriesOf("Produtos"), QString("DIVERSOS DOCES BEBIDAS"));
        QCOMPARE(desk.categoriesOf("Venda_Produtos"), QString("DIVERSOS CREMES BEBIDAS"));
        QCOMPARE(desk.shownRows(), QString("7BEBIDAS 1DIVERSOSx 2CREMES"));
    }

    void worksBesideAnotherTerminal()
    {
        Desk desk;
        desk.open();
        // Gone on another terminal: its products still follow.
        desk.cafe.execute("Delete from Categoria Where Codigo=2");
        desk.edit(3);
        desk.enter("CREMES");
        desk.save();
        QCOMPARE(desk.names(), QString("DIVERSOS BEBIDAS"));
        QCOMPARE(desk.categoriesOf("Produtos"), QString("DIVERSOS CREMES BEBIDAS"));
        desk.remove(3, 3);
        QCOMPARE(desk.shownRows(), QString("7BEBIDAS 1DIVERSOSx"));
        // Added there: the name is taken, and no number is used twice.
        desk.addCategory(8, "FRIOS");
        desk.enter("frios");
        desk.expectTaken("FRIOS");
        desk.press("cmdadicionar");
        desk.enter("GELADOS");
        desk.press("cmdadicionar");
        QVERIFY(desk.shownRows().endsWith("9GELADOS"));
    }
};

QTEST_MAIN(tst_categories)
#include "tst_categories.moc"
