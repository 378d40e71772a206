#include "tests/products/ProductDesk.h"

#include "sale/frmvenda.h"
#include "windows/OpenForms.h"

/// The list of products: loading, searching, removing, the menu, and the road to it from the sale window.
class tst_product_list : public QObject
{
    Q_OBJECT

private slots:
    void showsTheCatalogue()
    {
        ProductDesk desk;
        desk.open();
        QCOMPARE(desk.row(1), QString("3|ÁGUA|BEBIDAS|A1|-|10|2|10|SERRA|Sim|7891200000074"));
        QCOMPARE(desk.row(3), QString("5|CAFÉ|DIVERSOS|C1|X|-|-|10|SERRA|Não|-------------"));
        QCOMPARE(desk.shown("lbltotal_produtos"), QString("4 produtos cadastrados"));
        desk.cafe.executeAll({"Delete from Produtos", "Delete from Categoria Where Nome <> 'BEBIDAS'"});
        desk.open();
        // The default is mended in the file, though it is no category of the list.
        QCOMPARE(desk.cafe.ini("Categorias", "Padrao"), QString("DIVERSOS"));
        QCOMPARE(desk.shown("cmbcategoria"), QString());
        // The first product ever stored is the reserved one.
        desk.fill({"saldo", "", "1", "1", "", "", "1"});
        desk.press("cmdadicionar");
        QCOMPARE(desk.row(1), QString("1|SALDO||---|-|1|1|1,00|------|Sim|-------------"));
        QCOMPARE(desk.highlighted() + desk.shown("txtdescrição_busca"), QString("1-1SALDO"));
        desk.press("cmdeditar");
        QCOMPARE(desk.shown("txtdescrição"), QString("SALDO"));
    }

    void findsByTheStartOfTheDescription()
    {
        ProductDesk desk;
        desk.add("Produtos", "Codigo=6, Descrição='BALÃO'");
        desk.open();
        desk.enter("txtdescrição_busca", "balã");
        QCOMPARE(desk.list().Row(), 3);
        desk.expectNotice("MsgBox10");
        desk.enter("txtdescrição_busca", "ala");
        QCOMPARE(desk.list().Row(), 3);
    }

    void removesInBothDirections()
    {
        // The list: 3, 4, 1 (reserved), 5, 6.
        for (const auto &[from, to, left] : {std::tuple(1, 2, QStringList{"1", "5", "6"}),
                                             {2, 1, {"1", "5", "6"}},
                                             {1, 5, {"1"}},
                                             {3, 3, {"3", "4", "1", "5", "6"}}}) {
            ProductDesk desk;
            desk.change("Produtos", "Descrição='BOLO' Where Codigo=1");
            desk.add("Produtos", "Codigo=6, Descrição='DOCE'");
            desk.open();
            desk.select(from, to);
            desk.expectQuestion(from == to ? "MsgBox22" : "MsgBox23", "MsgBox1_2", vbQuestion, vbYes);
            desk.expectNotice(from == to ? "MsgBox24" : "MsgBox25");
            desk.press("cmdremover");
            QCOMPARE(desk.listed(0), left);
            QCOMPARE(desk.stored("Codigo").size(), left.size());
        }
    }

    void putsAllIntoTheMenuAndOut()
    {
        ProductDesk desk;
        desk.open();
        for (const auto &[button, question, listed, stored] : {std::tuple("cmdcardapio_sim", "MsgBox12", "Sim", "True"),
                                                               {"cmdcardapio_nao", "MsgBox11", "Não", "False"}}) {
            desk.expectQuestion(question, "MsgBox11_2", vbQuestion, vbYes);
            desk.press(button);
            QCOMPARE(desk.listed(9), QStringList(4, listed));
            QCOMPARE(desk.stored("Cardapio"), QStringList(4, stored));
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
    }
};

STORY_MAIN(tst_product_list)
#include "tst_product_list.moc"
