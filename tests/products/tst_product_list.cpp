#include "tests/products/ProductDesk.h"

#include "data/Funcoes.h"
#include "platform/window/Forms.h"
#include "sale/frmvenda.h"

#include <QTest>

/// The list of products: loading, searching, removing, the menu, and the road to it from the sale window.
class tst_product_list : public QObject
{
    Q_OBJECT

private slots:
    void showsTheCatalogue()
    {
        ProductDesk desk;
        desk.open();
        // The headings of date and time fall away with their columns.
        QCOMPARE(desk.row(0).count('|'), 10);
        QVERIFY(desk.row(0).contains("|" + desk.text("tab_produtos7") + "R$  |"));
        QVERIFY(desk.row(0).endsWith(desk.text("tab_produtos10")));
        QCOMPARE(desk.row(1), QString("3|ÁGUA|BEBIDAS|A1|-|10|2|2,50|SERRA|Sim|7891200000074"));
        QCOMPARE(desk.row(3), QString("5|CAFÉ|DIVERSOS|C1|X|-|-|2,50|SERRA|Não|-------------"));
        QCOMPARE(desk.shown("cmbcategoria"), QString("DIVERSOS"));
        for (const char *label : {"lbltotal_produtos", "Lblsombraprodutos"})
            QCOMPARE(desk.shown(label), QString("4 produtos cadastrados"));

        desk.cafe.execute("Delete from Produtos Where Codigo > 1");
        desk.cafe.setIni("Categorias", "Padrao", "Lanches");
        desk.open();
        QCOMPARE(desk.shown("lbltotal_produtos"), QString("1 produto cadastrado"));
        QCOMPARE(desk.shown("cmbcategoria"), QString("LANCHES"));
        desk.cafe.executeAll({"Delete from Produtos", "Delete from Categoria Where Nome <> 'BEBIDAS'"});
        desk.open();
        QCOMPARE(desk.shown("lbltotal_produtos") + desk.shown("Lblsombraprodutos"),
                 desk.text("String4") + desk.text("String4"));
        // The default is mended in the file, though it is no category of the list.
        QCOMPARE(desk.cafe.ini("Categorias", "Padrao"), QString("DIVERSOS"));
        QCOMPARE(desk.shown("cmbcategoria"), QString());
        desk.expectNotice("MsgBox21");
        desk.press("cmdremover");
        // The first product ever stored is the reserved one.
        desk.fill({"saldo", "", "1", "1", "", "", "1"});
        desk.press("cmdadicionar");
        QCOMPARE(desk.row(1), QString("1|SALDO||---|-|1|1|1,00|------|Sim|-------------"));
    }

    void findsByTheStartOfTheDescription()
    {
        ProductDesk desk;
        desk.addProduct(6, "BALÃO");
        desk.open();
        const auto found = [&](const QString &text) {
            desk.type("txtdescrição_busca", text);
            pressKey(desk.at("txtdescrição_busca"), Qt::Key_Return);
            return desk.list().Row();
        };
        QCOMPARE(found("balã"), 3);
        QCOMPARE(desk.shown("txtdescrição_busca"), QString("BALÃO"));
        QVERIFY(desk.list().hasFocus());
        pressKey(desk.list(), Qt::Key_Up);
        QCOMPARE(desk.shown("txtdescrição_busca"), QString("BALA"));
        QVERIFY(desk.list().hasFocus());
        for (const char *text : {"ala", ""}) {
            desk.expectNotice("MsgBox10");
            QCOMPARE(found(text), 2);
        }
    }

    void removesOneAndMany_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<QStringList>("left");
        // The list: 3, 4, 1 (reserved), 5, 6.
        QTest::newRow("one") << 2 << 2 << QStringList{"3", "1", "5", "6"};
        QTest::newRow("downwards") << 1 << 2 << QStringList{"1", "5", "6"};
        QTest::newRow("upwards") << 2 << 1 << QStringList{"1", "5", "6"};
        QTest::newRow("around the reserved one") << 1 << 5 << QStringList{"1"};
        QTest::newRow("ending on the reserved one") << 1 << 3 << QStringList{"3", "4", "1", "5", "6"};
        QTest::newRow("beginning with it") << 3 << 4 << QStringList{"3", "4", "1", "6"};
    }

    void removesOneAndMany()
    {
        QFETCH(int, from);
        QFETCH(int, to);
        QFETCH(QStringList, left);
        ProductDesk desk;
        desk.cafe.execute("Update Produtos Set Descrição='BOLO' Where Codigo=1");
        desk.addProduct(6, "DOCE");
        desk.cafe.execute("Insert into Venda_Produtos (Codigo,Descrição,Quantidade) values (1,'BALA','1')");
        desk.open();
        const QStringList all{"3", "4", "1", "5", "6"};
        const QString question = from == to ? "MsgBox22" : "MsgBox23";
        desk.pick(from, to);
        desk.expectQuestion(question, "MsgBox1_2", vbQuestion, vbNo);
        desk.press("cmdremover");
        QCOMPARE(desk.listed(0), all);
        desk.expectQuestion(question, "MsgBox1_2", vbQuestion, vbYes);
        desk.expectNotice("MsgBox25");
        desk.press("cmdremover");
        QCOMPARE(desk.listed(0), left);
        QCOMPARE(desk.stored("Codigo").size(), left.size());
        QCOMPARE(desk.shown("lbltotal_produtos").section(' ', 0, 0), QString::number(left.size()));
        QCOMPARE(desk.cafe.value("Select Descrição from Venda_Produtos"), QString("BALA"));
        // Nothing is picked in the new list.
        desk.expectNotice("MsgBox13");
        desk.press("cmdeditar");
    }

    void keepsTheReservedProduct()
    {
        ProductDesk desk;
        desk.open();
        desk.pick(4, 4);
        desk.expectQuestion("MsgBox22", "MsgBox1_2", vbQuestion, vbYes);
        desk.expectNotice("MsgBox24");
        desk.press("cmdremover");
        QCOMPARE(desk.stored("Codigo").size(), 4);
        QCOMPARE(desk.window().cursor().shape(), Qt::ArrowCursor);
    }

    void putsAllIntoTheMenuAndOut()
    {
        ProductDesk desk;
        desk.open();
        for (const char *button : {"cmdcardapio_sim", "cmdcardapio_nao"}) {
            const bool in = button == QString("cmdcardapio_sim");
            const QStringList shown = desk.listed(9);
            desk.expectQuestion(in ? "MsgBox12" : "MsgBox11", "MsgBox11_2", vbQuestion, vbNo);
            desk.press(button);
            QCOMPARE(desk.listed(9), shown);
            desk.expectQuestion(in ? "MsgBox12" : "MsgBox11", "MsgBox11_2", vbQuestion, vbYes);
            desk.press(button);
            QCOMPARE(desk.listed(9), QStringList(4, in ? "Sim" : "Não"));
            QCOMPARE(desk.stored("Cardapio"), QStringList(4, in ? "True" : "False"));
        }
    }

    void servesTheSaleWindow()
    {
        ProductDesk desk;
        Descarregar_Forms();
        auto &sale = Forms::use<frmvenda>();
        sale.Show();
        QVERIFY(QTest::qWaitForWindowActive(&sale));
        sale.Adicionar_Produto("ÁGUA", 2);
        desk.machine.whileAsleep = [&] {
            desk.fill({"suco", "polpa", "4,5", "20", "7891200000081", "s1", "5"});
            desk.press("cmdadicionar");
            desk.press("cmdsair");
        };
        click(sale, "cmdcadastro_produtos");
        QVERIFY(control<QComboBox>(sale, "cmbprodutos").findText("(S1) SUCO") >= 0);
        QCOMPARE(control<FlexGrid>(sale, "tab_consumo").TextMatrix(1, 2), QString("2"));
        // The program ends while the sale window waits.
        desk.machine.whileAsleep = [] { Descarregar_Forms(); };
        click(sale, "cmdcadastro_produtos");
        QVERIFY(Forms::loaded().isEmpty());
    }
};

QTEST_MAIN(tst_product_list)
#include "tst_product_list.moc"
