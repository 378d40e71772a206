#include "configuration/Idiomas.h"
#include "data/Funcoes.h"
#include "platform/window/Forms.h"
#include "products/frmcadastro_categoria.h"
#include "tests/support/Attendant.h"
#include "tests/support/BareFile.h"
#include "tests/support/Controls.h"
#include "tests/support/FakeMachine.h"
#include "tests/support/TestCafe.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace {
/// The categories' window in a café with the categories BEBIDAS, DIVERSOS and DOCES, each with one product and one sale
/// of it in each table of sales.
class Desk
{
public:
    explicit Desk(bool oti = true) : cafe(QLocale(QLocale::Portuguese, QLocale::Brazil), {.oti = oti}), m_oti(oti)
    {
        for (const char *table : {"Categoria", "Produtos"})
            cafe.execute("Delete from " + QString(table));
        addCategory(1, "DIVERSOS");
        addCategory(2, "DOCES");
        addCategory(7, "BEBIDAS");
        cafe.start();
    }

    FakeMachine machine;
    TestCafe cafe;
    Attendant attendant;

    void addCategory(int codigo, const QString &name)
    {
        cafe.execute(QString("Insert into Categoria (Codigo,Nome) values (%1,'%2')").arg(codigo).arg(name));
        for (const char *table : {"Produtos", "Venda_Produtos", "Venda_ProdutosOti"})
            if (QString(table) != "Venda_ProdutosOti" || m_oti)
                cafe.execute(
                    QString("Insert into %1 (Codigo,Categoria) values (%2,'%3')").arg(table).arg(codigo).arg(name));
    }
    void open()
    {
        auto &form = Forms::use<frmcadastro_categoria>();
        form.Show();
        QVERIFY(QTest::qWaitForWindowActive(&form));
    }
    template <typename Control = QWidget>
    Control &at(const QString &name)
    {
        return control<Control>(Forms::use<frmcadastro_categoria>(), name);
    }
    FlexGrid &list() { return at<FlexGrid>("tab_categorias"); }
    void press(const QString &name) { click(at(name)); }
    void enter(const QString &name, bool isDefault = false)
    {
        replaceText(at("txtnome"), name);
        if (at<QCheckBox>("chkpadrao").isChecked() != isDefault)
            press("chkpadrao");
    }
    void edit(int row)
    {
        clickCell(list(), row, 1);
        press("cmdeditar");
    }
    void save(int answer = vbYes)
    {
        expectQuestion("MsgBox5", "MsgBox5_2", answer);
        press("cmdeditar");
    }
    void remove(int first, int last, int answer = vbYes, const QString &refusal = {})
    {
        clickCell(list(), first, 1);
        if (last != first)
            clickCell(list(), last, 1, Qt::ShiftModifier);
        expectQuestion(first == last ? "MsgBox12" : "MsgBox13", "MsgBox1_2", answer);
        if (!refusal.isEmpty())
            expectNotice(refusal);
        press("cmdremover");
    }

    static QString text(const QString &key) { return textoIdioma("frmcadastro_categoria", key); }
    void expectNotice(const QString &key) { attendant.expectNotice(text(key), text("MsgBox1_2")); }
    void expectTaken(const QString &name)
    {
        attendant.expectNotice(text("MsgBox3") + name + text("MsgBox3_2"), text("MsgBox1_2"));
    }
    void expectQuestion(const QString &key, const QString &titleKey, int answer)
    {
        attendant.expect(text(key), vbYesNo + vbQuestion, text(titleKey), answer);
    }

    QString standard() { return cafe.ini("Categorias", "Padrao"); }
    QStringList listed()
    {
        QStringList rows;
        for (int row = 1; row < list().Rows(); ++row)
            rows += list().TextMatrix(row, 0) + ' ' + list().TextMatrix(row, 1) + ' ' + list().TextMatrix(row, 2);
        return rows;
    }
    /// A field of all rows in the order of their numbers.
    QString stored(const QString &table, const QString &field = "Categoria")
    {
        QStringList values;
        for (const QStringList &row : cafe.query("Select " + field + " from " + table + " Order By Codigo"))
            values += row.first();
        return values.join(' ');
    }
    QString storedNames() { return stored("Categoria", "Nome"); }
    QString total() { return at<QLabel>("lbltotal_categorias").text(); }
    bool isAtRest()
    {
        return at<QPushButton>("cmdeditar").text() == text("String5") && at("cmdadicionar").isEnabled() &&
               at("cmdremover").isEnabled() && at<QLineEdit>("txtnome").text().isEmpty() &&
               !at<QCheckBox>("chkpadrao").isChecked();
    }

private:
    bool m_oti;
};
} // namespace

/// The categories' window, and what follows in the catalogue and the sales.
class tst_categories : public QObject
{
    Q_OBJECT

private slots:
    void mendsTheDefault()
    {
        const struct
        {
            QString before, after;
        } cases[] = {{"DOCES", "DOCES"},
                     {"bebidas", "BEBIDAS"},
                     {"", "DIVERSOS"},
                     {"SUMIU", "DIVERSOS"},
                     {"D'ÁGUA", "DIVERSOS"}};
        Desk desk;
        for (const auto &each : cases) {
            Descarregar_Forms();
            desk.cafe.setIni("Categorias", "Padrao", each.before);
            desk.open();
            QCOMPARE(desk.standard(), each.after);
            QStringList rows{"7 BEBIDAS ---", "1 DIVERSOS ---", "2 DOCES ---"};
            rows.replaceInStrings(each.after + " ---", each.after + " x");
            QCOMPARE(desk.listed(), rows);
            QCOMPARE(desk.total(), "3" + desk.text("String3"));
            QCOMPARE(desk.at<QLabel>("Lblsombracategorias").text(), desk.total());
        }
    }

    void adds()
    {
        Desk desk;
        desk.cafe.execute("Delete from Categoria");
        desk.open();
        QCOMPARE(desk.total(), desk.text("String4"));
        for (const char *name : {"", "D'ÁGUA"}) {
            desk.expectNotice(*name == '\0' ? "MsgBox2" : "MsgBox1");
            desk.enter(name);
            desk.press("cmdadicionar");
            QVERIFY(desk.at("txtnome").hasFocus());
        }
        desk.enter("água", true);
        desk.press("cmdadicionar");
        QCOMPARE(desk.total(), "1" + desk.text("String2"));
        desk.enter("Salgados");
        pressKey(desk.at("txtnome"), Qt::Key_Return);
        QVERIFY(desk.at("chkpadrao").hasFocus());
        desk.press("cmdadicionar");
        QCOMPARE(desk.listed(), QStringList({"1 ÁGUA x", "2 SALGADOS ---"}));
        QCOMPARE(desk.standard(), QString("ÁGUA"));
        desk.enter("salgados");
        desk.expectTaken("SALGADOS");
        desk.press("cmdadicionar");
        desk.enter("doces", true);
        desk.press("cmdadicionar");
        QCOMPARE(desk.listed(), QStringList({"1 ÁGUA ---", "2 SALGADOS ---", "3 DOCES x"}));
        QCOMPARE(desk.storedNames(), QString("ÁGUA SALGADOS DOCES"));
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
            QCOMPARE(desk.at<QPushButton>("cmdeditar").text(), desk.text("String6"));
            QVERIFY(!desk.at("cmdadicionar").isEnabled() && !desk.at("cmdremover").isEnabled());
            // Another row picked meanwhile changes nothing.
            clickCell(desk.list(), 1, 1);
            for (const auto &[name, key] : {std::pair("D'ÁGUA", "MsgBox1"), std::pair("", "MsgBox6")}) {
                desk.enter(name, true);
                desk.expectQuestion("MsgBox5", "MsgBox5_2", vbYes);
                desk.expectNotice(key);
                desk.press("cmdeditar");
            }
            desk.enter("bebidas", true);
            desk.expectQuestion("MsgBox5", "MsgBox5_2", vbYes);
            desk.expectTaken("BEBIDAS");
            desk.press("cmdeditar");
            QVERIFY(!desk.at("cmdremover").isEnabled());
            desk.enter("Doçura", true);
            desk.save();
            QCOMPARE(desk.listed(), QStringList({"7 BEBIDAS ---", "1 DIVERSOS ---", "2 DOÇURA x"}));
            QVERIFY(desk.isAtRest());
            for (const QString table : {"Produtos", "Venda_Produtos", "Venda_ProdutosOti"})
                if (oti || table != "Venda_ProdutosOti")
                    QCOMPARE(desk.stored(table), QString("DIVERSOS DOÇURA BEBIDAS"));
            QCOMPARE(desk.storedNames() + ' ' + desk.standard(), QString("DIVERSOS DOÇURA BEBIDAS DOÇURA"));
            // The same name in other letters, and a no.
            desk.edit(3);
            desk.enter("doçura", true);
            desk.save();
            desk.edit(1);
            desk.enter("NADA");
            desk.save(vbNo);
            QVERIFY(desk.isAtRest());
            QCOMPARE(desk.storedNames(), QString("DIVERSOS DOÇURA BEBIDAS"));
        }
    }

    void leavesTheDefaultToDiversos()
    {
        // Whatever the language calls the category that stays, the key gets this very name; only the next opening mends
        // it. A mark that is taken away shows nowhere else until then.
        for (const char *name : {"DOCES", "CREMES"}) {
            Desk desk;
            desk.cafe.setIni("Config_Regional", "Idioma", "Teste.lng");
            desk.cafe.writeFile("Languages/Teste1.lng",
                                "[frmcadastro_categoria]\nString5=(Editar)\nString7=(BEBIDAS)\n");
            desk.cafe.setIni("Categorias", "Padrao", "DOCES");
            desk.cafe.start();
            desk.open();
            desk.edit(3);
            QVERIFY(desk.at<QCheckBox>("chkpadrao").isChecked());
            desk.enter(name);
            desk.save();
            QCOMPARE(desk.standard(), QString("DIVERSOS"));
            QCOMPARE(desk.listed().filter(" x"), QStringList());
            loadedWindow("frmcadastro_categoria").Unload();
            desk.open();
            QCOMPARE(desk.listed().filter(" x"), QStringList("1 DIVERSOS x"));
        }
    }

    void keepsTheCategoryThatStays()
    {
        Desk desk;
        desk.open();
        desk.edit(2);
        desk.enter("OUTROS", true);
        desk.expectQuestion("MsgBox5", "MsgBox5_2", vbYes);
        desk.expectNotice("MsgBox7");
        desk.press("cmdeditar");
        desk.enter("diversos", true);
        desk.save();
        desk.remove(2, 2, vbYes, "MsgBox14");
        desk.remove(3, 1, vbYes, "MsgBox14");
        desk.remove(1, 1, vbNo);
        QCOMPARE(desk.storedNames(), QString("DIVERSOS DOCES BEBIDAS"));
        QCOMPARE(desk.stored("Produtos"), QString("DIVERSOS DOCES BEBIDAS"));
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
            QCOMPARE(desk.storedNames(), each.names);
            QCOMPARE(desk.stored("Produtos"), each.categories);
            QCOMPARE(desk.stored("Venda_Produtos"), each.categories);
            if (each.oti)
                QCOMPARE(desk.stored("Venda_ProdutosOti"), each.categories);
            QCOMPARE(desk.standard(), QString("DIVERSOS"));
            QCOMPARE(desk.listed().filter(" x"), QStringList("1 DIVERSOS x"));
            QCOMPARE(desk.total(), QString::number(desk.listed().size()) + desk.text("String3"));
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
            .write(
                "CREATE TRIGGER locked BEFORE UPDATE ON Produtos BEGIN SELECT RAISE(ABORT, 'database is locked'); END");
        desk.edit(3);
        desk.enter("CREMES");
        desk.save();
        QCOMPARE(desk.storedNames(), QString("DIVERSOS CREMES BEBIDAS"));
        QCOMPARE(desk.stored("Produtos"), QString("DIVERSOS DOCES BEBIDAS"));
        QCOMPARE(desk.stored("Venda_Produtos"), QString("DIVERSOS CREMES BEBIDAS"));
        QCOMPARE(desk.listed().last(), QString("2 CREMES ---"));
        desk.remove(1, 1);
        QCOMPARE(desk.storedNames(), QString("DIVERSOS CREMES"));
        QCOMPARE(desk.stored("Produtos"), QString("DIVERSOS DOCES BEBIDAS"));
        QCOMPARE(desk.stored("Venda_Produtos"), QString("DIVERSOS CREMES BEBIDAS"));
        QCOMPARE(desk.listed().size(), 3);
    }

    void worksBesideAnotherTerminal()
    {
        Desk desk;
        desk.open();
        // Gone on another terminal: its products still follow. Taken there meanwhile: no number is used twice.
        desk.cafe.execute("Delete from Categoria Where Codigo=2");
        desk.edit(3);
        desk.enter("CREMES");
        desk.save();
        QCOMPARE(desk.storedNames(), QString("DIVERSOS BEBIDAS"));
        QCOMPARE(desk.stored("Produtos"), QString("DIVERSOS CREMES BEBIDAS"));
        desk.remove(3, 3);
        QCOMPARE(desk.listed(), QStringList({"7 BEBIDAS ---", "1 DIVERSOS x"}));
        desk.addCategory(8, "FRIOS");
        desk.enter("frios");
        desk.expectTaken("FRIOS");
        desk.press("cmdadicionar");
        desk.enter("GELADOS");
        desk.press("cmdadicionar");
        QCOMPARE(desk.listed().last(), QString("9 GELADOS ---"));
    }
};

QTEST_MAIN(tst_categories)
#include "tst_categories.moc"
