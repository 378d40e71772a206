#include "tests/sale/SaleCounter.h"

#include <QTest>

/// Who buys and what lies in the cart, up to the moment of paying.
class tst_cart : public QObject
{
    Q_OBJECT

private slots:
    void addsLines()
    {
        SaleCounter counter;
        counter.add("Produtos", "Codigo=9, Descrição='XEROX', Valor_Unitario='0,335', Quantidade='', Servico=True");
        counter.open();
        for (const QStringList &row : table({"|0|MsgBox3", "12|-x0|MsgBox3", "|1|MsgBox4"})) {
            counter.expectNotice(row[2]);
            counter.put(row[0], row[1]);
        }
        counter.enter("txtcod_barra", "7891200000074");
        counter.enter("txtquantidade", "4");
        counter.put("xerox");
        counter.put("(12) ÁGUA", "6");
        counter.expectTooMuch("11", "ÁGUA", "10");
        counter.put("12");
        // The line is worked out from the whole quantity, the total from the rounded parts: a cent apart, as ever.
        counter.put("XEROX");
        QCOMPARE(counter.cart(), (QStringList{"ÁGUA|10|100,00", "XEROX|2|0,67"}));
        QCOMPARE(counter.shown("lbltotal"), QString("R$ 100,68"));
    }

    void removesLines()
    {
        SaleCounter counter;
        counter.open();
        for (const char *product : {"12", "BALA", "CAFÉ"})
            counter.put(product, "2");
        for (const int row : {2, 1}) {
            clickCell(counter.at<FlexGrid>("tab_consumo"), row, 1);
            counter.press("cmdexcluir");
        }
        QCOMPARE(counter.cart(), QStringList{"CAFÉ|2|20,00"});
        counter.press("cmdexcluir");
        QCOMPARE(counter.shown("lbltotal"), QString("R$ 0,00"));
        counter.put("BALA");
        counter.sell("10");
        // After a sale no row is the one to remove: the cart is emptied and the total stays.
        counter.put("BALA");
        counter.put("12");
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
        counter.attendant.expect("Confirma a venda no valor de R$ 10,00, a pagar depois, para\nANA LIMA?",
                                 vbYesNo + vbInformation, "Atenção", vbYes);
        counter.expectNotice("MsgBox13");
        counter.press("cmdfinalizar");
        counter.open();
        counter.put("BALA");
        counter.press("optnão_pago");
        counter.press("optavulsa");
        // A buyer whom nobody knows cannot owe.
        QVERIFY(counter.at("optpago").property("checked").toBool());
        counter.sell("10", "10,00");
        counter.press("optcliente");
        // Nobody was selected since, and that name passes for one.
        counter.put("BALA");
        counter.sell("10", "10,00, paga por\n------");
        QCOMPARE(counter.sold("Nome,Nick,Avulsa,Debito"),
                 (QStringList{"ANA LIMA|ZEBRA|False|True", "------|------|True|False", "------|------|False|False"}));
    }
};

QTEST_MAIN(tst_cart)
#include "tst_cart.moc"
