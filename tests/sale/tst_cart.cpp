#include "platform/window/ComboBox.h"
#include "tests/sale/SaleCounter.h"
#include "tests/support/KeyQueue.h"

#include <QCheckBox>

/// What lies in the cart, who buys it and which rule of discount it meets, up to the moment of paying.
class tst_cart : public QObject
{
    Q_OBJECT

private slots:
    void addsAndRemovesLines()
    {
        SaleCounter counter;
        counter.add("Produtos", "Codigo=9, Descrição='XEROX', Valor_Unitario='0,335', Quantidade='', Servico=True");
        counter.add("Produtos", "Codigo=10, Descrição='(2L) SUCO'");
        counter.open();
        for (const auto &[product, quantity, refusal] :
             {std::tuple("", "0", "MsgBox3"), {"12", "-x0", "MsgBox3"}, {"", "1", "MsgBox4"}}) {
            counter.expectNotice(refusal);
            counter.put(product, quantity);
        }
        counter.enter("txtcod_barra", "7891200000074");
        counter.enter("txtquantidade", "4");
        counter.put("xerox");
        // Brackets of its own pass for a code, so that this one has never been sold.
        counter.put("(2L) SUCO");
        counter.put("(12) ÁGUA", "6");
        counter.expectNoticeText("A quantidade pedida (11) é maior que o estoque.\nO produto ÁGUA tem 10 em estoque.");
        counter.put("12");
        // The line is worked out from the whole quantity, the total from the rounded parts: a cent apart, as ever.
        counter.put("XEROX");
        QCOMPARE(counter.cart(), (QStringList{"ÁGUA|10|100,00", "XEROX|2|0,67"}));
        QCOMPARE(counter.shown("lbltotal"), QString("R$ 100,68"));
        clickCell(counter.list(), 1, 1);
        counter.press("cmdexcluir");
        QCOMPARE(counter.cart(), QStringList{"XEROX|2|0,67"});
        counter.press("cmdexcluir");
        QCOMPARE(counter.shown("lbltotal"), QString("R$ 0,01"));
        counter.open();
        counter.put("BALA");
        counter.put("12", "2");
        clickCell(counter.list(), 2, 1);
        counter.press("cmdexcluir");
        QCOMPARE(counter.highlighted(), QString("1-1"));
        counter.press("cmdexcluir");
        QCOMPARE(counter.shown("lbltotal"), QString("R$ 0,00"));
        counter.put("BALA");
        QCOMPARE(counter.highlighted(), QString("1-1"));
        counter.sell("10");
        // After a sale no row is the one to remove: the cart is emptied and the total stays.
        counter.put("BALA");
        counter.put("12");
        QCOMPARE(counter.highlighted(), QString());
        counter.press("cmdexcluir");
        QCOMPARE(counter.cart(), QStringList());
        QCOMPARE(counter.shown("lbltotal"), QString("R$ 20,00"));
    }

    void sellsToWalkInsAndDebtors()
    {
        SaleCounter counter;
        counter.open();
        counter.press("optnão_pago");
        counter.put("BALA");
        counter.expectQuestion("10,00, a pagar depois, para\nANA LIMA");
        counter.expectNotice("MsgBox13");
        counter.press("cmdfinalizar");
        counter.open();
        counter.put("BALA");
        counter.press("optnão_pago");
        Forms::use<frmvenda>().Clicar_Alvuso();
        // A buyer whom nobody knows cannot owe.
        QVERIFY(counter.at("optpago").property("checked").toBool());
        counter.sell("10", "10,00");
        counter.press("optcliente");
        // Nobody was selected since, and that name passes for one.
        counter.put("BALA");
        counter.sell("10", "10,00, paga por\n------");
        QCOMPARE(counter.sold("Nome,Nick,Avulsa,Debito"),
                 (QStringList{"ANA LIMA|ANINHA|False|True", "------|------|True|False", "------|------|False|False"}));
    }

    void keepsInView()
    {
        SaleCounter counter;
        for (int code = 20; code < 60; ++code)
            counter.add("Produtos", QString("Codigo=%1, Descrição='P%1'").arg(code));
        for (const QString name : {"BIA", "CAIO", "DANI"})
            counter.add("Clientes", "Codigo=" + QString::number(name.front().unicode()) + ", Nome='" + name + "'");
        counter.open();
        for (int code = 20; code < 60; ++code)
            counter.put("P" + QString::number(code));
        QVERIFY(counter.list().RowIsVisible(40));
        // What "Pago" proposes is typed over, also when the keyboard comes back to it.
        counter.press("optpago");
        QCOMPARE(counter.shown("txtvalor_pago"), QString("400"));
        counter.at("txtcod_barra").setFocus();
        counter.at("txtvalor_pago").setFocus();
        KeyQueue().type("450", 200).arrive();
        QTRY_COMPARE(counter.shown("lbltroco"), QString("R$ 50,00"));

        // Another terminal registers and removes while this one visits the customers.
        const auto visit = [&](const QString &meanwhile) {
            counter.machine.whileAsleep = [&] {
                counter.cafe.execute(meanwhile);
                loadedWindow("frmcadastro_clientes").Unload();
            };
            counter.press("cmdcadastro_clientes");
            const auto &grid = counter.at<FlexGrid>("tab_clientes");
            return grid.TextMatrix(grid.Row(), 1) + '|' + counter.shown("txtnome");
        };
        clickCell(counter.at<FlexGrid>("tab_clientes"), 3, 1);
        QCOMPARE(visit("Delete from Clientes Where Nome='BIA'"), QString("CAIO|CAIO"));
        QCOMPARE(visit("Delete from Clientes Where Nome='CAIO'"), QString("ANA LIMA|ANA LIMA"));
        counter.sell("450", "400,00, paga por\nANA LIMA");
    }

    void takesARuleMadeMeanwhile()
    {
        SaleCounter counter;
        counter.add("Descontos", "Codigo=2, Absoluto='1', Motivo_Desconto='CORTESIA'");
        counter.open();
        counter.put("BALA");
        counter.add("Descontos", "Codigo=9, Absoluto='5', Valor='20', Motivo_Desconto='NOVA'");
        counter.put("BALA");
        QCOMPARE(counter.at<ComboBox>("txtmotivo").Text() + counter.shown("lbltotal_final"), QString("9R$ 15,00"));
        counter.sell("15", "15,00, paga por\nANA LIMA");
        QCOMPARE(counter.sold("Desconto,Motivo_Desconto"), QStringList{"5,00|NOVA"});
    }

    void sellsWhatAFileWithoutSomeFieldsKnows()
    {
        SaleCounter counter;
        for (const QString field :
             {"Produtos.Cod", "Produtos.Estoque_Min", "Clientes.Nick", "Descontos.Motivo_Desconto"})
            counter.cafe.loseField(field.section('.', 0, 0), field.section('.', 1));
        counter.open();
        QCOMPARE(counter.at<QComboBox>("txtmotivo").count(), 1);
        counter.put("BALA");
        QCOMPARE(counter.shown("lblquant_estoque"), counter.text("String3") + "10");
        counter.sell("10");
        QCOMPARE(counter.sold("Nome,Nick,Motivo_Desconto"), QStringList{"ANA LIMA||-----------"});
    }

    void picksRules()
    {
        const Rule oneOffFromNine{9, "Absoluto='1', Valor='9'"};
        const Rule halfFromTen{10, "Relativo='50', Valor='10'"};
        const Rule onePercentFromTwenty{20, "Relativo='1', Valor='20'"};
        const Rule ninePercentFromTwenty{21, "Relativo='9', Valor='20'"};
        const Rule centsOffAboveTwentyFive{25, "Absoluto='0,75', Valor='25', Condicao='2'"};
        const Rule tenPercent{32, "Relativo='10'"};
        const Rule tenPercentByHand{33, "Relativo='10', Fixo=False"};
        const Rule forVips{40, "Relativo='10', Grupo='VIP'"};
        const Rule drinksForVips{41, "Relativo='20', Grupo='VIP', Categoria='bebidas'"};
        const Rule drinksForStudents{42, "Relativo='30', Grupo='ESTUDANTE', Categoria='BEBIDAS'"};
        const Rule forNoGroup{43, "Absoluto='2', Grupo=''"};
        const Rule atRegistration{51, "Absoluto='1', AtoCadastro=True"};
        const Rule onCodes{52, "Absoluto='1', TipoVenda='1'"};
        const Rule onRequest{53, "Absoluto='1', LiberarAuto=False"};
        const Rule fromACentMore{54, "Absoluto='1', Valor='25,01'"};
        const Rule none{1, {}};

        SaleCounter counter;
        counter.change("Produtos", "Categoria='BEBIDAS'");
        // ANA LIMA, a VIP, buys a drink.
        const auto picks = [&](const QList<Rule> &rules, const QString &price, const Rule &picked,
                               const QString &discount, const QString &total, const QString &buyer = "optcliente",
                               const Place &where = Place::current()) {
            counter.cafe.execute("Delete from Descontos Where Codigo>1");
            for (const Rule &rule : rules)
                counter.add("Descontos", rule.fields + ", Codigo=" + QString::number(rule.code));
            counter.change("Produtos", "Valor_Unitario='" + price + "'");
            counter.open(where);
            counter.press(buyer);
            counter.put("BALA");
            const QString shown = counter.shown("txtmotivo") + ", " + counter.shown("txtvalor_desconto") + ", " +
                                  counter.shown("lbltotal_final");
            require(shown == QString("%1, %2, R$ %3").arg(picked.code).arg(discount, total), shown, where);
            require(counter.at<QCheckBox>("chkdesconto").isChecked() == (picked.code != none.code), "Tick", where);
            require(counter.at("txtvalor_desconto").isEnabled() == discount.isEmpty(), "Amount's box", where);
        };
        // A rule for the very total comes first, then the one that asks for the dearest sale, then the highest share.
        picks({halfFromTen, onePercentFromTwenty}, "25", onePercentFromTwenty, "0,25", "24,75");
        picks({halfFromTen, onePercentFromTwenty}, "20", onePercentFromTwenty, "0,2", "19,80");
        picks({halfFromTen, onePercentFromTwenty}, "19,99", halfFromTen, "10", "9,99");
        picks({oneOffFromNine, halfFromTen}, "25", halfFromTen, "12,5", "12,50");
        picks({onePercentFromTwenty, ninePercentFromTwenty}, "25", ninePercentFromTwenty, "2,25", "22,75");
        picks({halfFromTen, onePercentFromTwenty, centsOffAboveTwentyFive}, "25", centsOffAboveTwentyFive, "0,75",
              "24,25");
        picks({halfFromTen, centsOffAboveTwentyFive}, "25,01", halfFromTen, "12,51", "12,50");
        picks({tenPercent}, "12,25", tenPercent, "1,23", "11,02");
        picks({tenPercentByHand}, "25", tenPercentByHand, "", "25,00");
        // A rule for the buyer's group and the product's category comes first, then one for the group, then one for the
        // category, then one for everybody.
        picks({halfFromTen, forVips, drinksForVips, drinksForStudents}, "25", drinksForVips, "5", "20,00");
        picks({halfFromTen, forVips, drinksForStudents}, "25", forVips, "2,5", "22,50");
        picks({halfFromTen, drinksForStudents}, "25", drinksForStudents, "7,5", "17,50");
        picks({halfFromTen, forVips}, "25", halfFromTen, "12,5", "12,50", "optavulsa");
        picks({halfFromTen, forNoGroup}, "25", forNoGroup, "2", "23,00", "optavulsa");
        picks({atRegistration, onCodes, onRequest, fromACentMore}, "25", none, "", "25,00");
    }

private:
    /// A row of `Descontos`.
    struct Rule
    {
        int code;
        QString fields;
    };
};

STORY_MAIN(tst_cart)
#include "tst_cart.moc"
