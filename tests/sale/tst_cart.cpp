#include "tests/sale/SaleCounter.h"

#include <QApplication>
#include <QImage>
#include <QTest>

/// Who buys and what lies in the cart, up to the moment of paying.
class tst_cart : public QObject
{
    Q_OBJECT

private slots:
    void addsLines()
    {
        SaleCounter counter;
        counter.add("Produtos", "Codigo=6, Descrição='DOCE', Valor_Unitario='a combinar'");
        counter.add("Produtos", "Codigo=7, Descrição='FIO', Quantidade='muitos'");
        counter.add("Produtos", "Codigo=8, Descrição='PAU D''ARCO'");
        counter.add("Produtos", "Codigo=9, Descrição='XEROX', Valor_Unitario='0,335', Quantidade='', Servico=True");
        counter.open();
        counter.put("12", "4");
        counter.put("xerox");
        counter.put("(12) ÁGUA", "6");
        counter.expectTooMuch("11", "ÁGUA", "10");
        counter.put("12");
        counter.expectTooMuch("99999", "CAFÉ", "10");
        counter.put("CAFÉ", "99999");
        counter.expectTooMuch("1", "FIO", "muitos");
        counter.put("FIO");
        counter.put("PAU D'ARCO");
        counter.put("DOCE", "2");
        // The line is worked out from the whole quantity, the total from the rounded parts: a cent apart, as ever.
        counter.put("XEROX");
        QCOMPARE(counter.cart(), (QStringList{"ÁGUA|10|100,00", "XEROX|2|0,67", "DOCE|2|"}));
        QCOMPARE(counter.shown("lbltotal"), QString("R$ 100,68"));
        QCOMPARE(counter.shown("lblquant_estoque"), QString("Serviço"));
        QCOMPARE(counter.shown("lblpreço_unitario"), QString("Preço unitário: R$ 0,335"));
        QVERIFY(counter.at("txtcod_barra").hasFocus());
        counter.put("XEROX", "99999");
        QCOMPARE(counter.cart().at(1), QString("XEROX|100001|33500,34"));
    }

    void refusesInOrder()
    {
        SaleCounter counter;
        counter.open();
        for (const QStringList &row :
             table({"12|0|txtquantidade|MsgBox3", "12||txtquantidade|MsgBox3", "12|-x0|txtquantidade|MsgBox3",
                    "|0|txtquantidade|MsgBox3", "|1|cmbprodutos|MsgBox4", "ÁGUA|0|txtquantidade|MsgBox2|MsgBox5"})) {
            for (const QString &key : row.mid(3))
                counter.expectNotice(key);
            counter.put(row[0], row[1]);
            QVERIFY2(counter.at(row[2]).hasFocus(), qPrintable(row[3]));
        }
        QCOMPARE(counter.cart(), QStringList());
    }

    void findsProducts()
    {
        SaleCounter counter;
        counter.change("Produtos", "Cod_Barra='7891200000128' Where Codigo=1");
        counter.add("Produtos", "Codigo=8, Descrição='ABACAXI', Quantidade='3', Cod='120'");
        counter.add("Produtos", "Codigo=9, Descrição='UVA', Cod='1234'");
        counter.open();
        // A longer code that stands before; a code that is too long to be one; a product that is not for sale.
        for (const QStringList &row :
             table({"bal|BALA|Estoque: 10", "12)|(12) ÁGUA|Estoque: 10", "(12|(120) ABACAXI|Estoque: 3",
                    "||Estoque: ", "(1234|(1234) UVA|Estoque: ", "TEMPO|TEMPO|Estoque: |MsgBox2"})) {
            if (row.size() > 3)
                counter.expectNotice(row[3]);
            counter.enter("cmbprodutos", row[0]);
            QCOMPARE(counter.shown("cmbprodutos"), row[1]);
            QCOMPARE(counter.shown("lblquant_estoque"), row[2]);
        }
        // Five scans in a row: each second code lands in the quantity of the first one's product, and the keyboard
        // goes back to the codes.
        counter.at("txtcod_barra").setFocus();
        const auto scan = [&](const QString &digits) { scanBarcode(*QApplication::focusWidget(), digits); };
        for (int pair = 0; pair < 2; ++pair) {
            scan("7891200000074");
            counter.expectTooMuch("7891200000074", "ÁGUA", "10");
            scan("7891200000074");
        }
        scan("7891200000074");
        QCOMPARE(counter.shown("cmbprodutos"), QString("(12) ÁGUA"));
        counter.enter("txtquantidade", "3");
        QCOMPARE(counter.cart(), QStringList{"ÁGUA|3|30,00"});
        for (const char *unknown : {"0000000000000", "7891200000128"}) {
            counter.expectNotice("MsgBox2");
            counter.enter("txtcod_barra", unknown);
        }
        QCOMPARE(counter.shown("cmbprodutos"), QString("TEMPO DE ACESSO"));
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
        for (int press = 0; press < 2; ++press) {
            counter.press("cmdexcluir");
            QCOMPARE(counter.shown("lbltotal"), QString("R$ 0,00"));
        }
        counter.put("BALA");
        counter.sell("10");
        // After a sale no row is the one to remove: the cart is emptied and the total stays.
        counter.put("BALA");
        counter.put("12");
        counter.press("cmdexcluir");
        QCOMPARE(counter.cart(), QStringList());
        QCOMPARE(counter.shown("lbltotal"), QString("R$ 20,00"));
    }

    void tellsChange()
    {
        SaleCounter counter;
        counter.open();
        counter.put("BALA");
        for (const QStringList &row :
             table({"12,,5|R$ 2,50", "9,99|R$ 000", "10.01|R$ 0,01", "10|R$ 000", "11|R$ 1,00"})) {
            counter.type("txtvalor_pago", row[0]);
            QCOMPARE(counter.shown("lbltroco"), row[1]);
        }
        counter.paste("txtvalor_pago", "onze");
        QCOMPARE(counter.shown("lbltroco"), QString("R$ 000"));
    }

    void searchesCustomers()
    {
        SaleCounter counter;
        QImage photo(4, 4, QImage::Format_RGB32);
        photo.fill(Qt::red);
        QVERIFY(photo.save(counter.cafe.path("Fotos/ana.png")));
        const QString path = counter.cafe.path("FOTOS\\ANA.PNG");
        counter.change("Clientes", "CaminhoFoto='" + path + "'");
        counter.add("Clientes", "Codigo=2, Nome='BRUNO SÁ', Nick='REI'");
        counter.add("Clientes", "Codigo=3, Nome='CARLA REIS', Nick='BRUTA', CaminhoFoto='" + path + "x'");
        counter.open();
        const auto shows = [&](const QString &name) {
            QCOMPARE(counter.shown("txtnome"), name);
            const QImage shown = counter.at("imgfoto").property("pixmap").value<QPixmap>().toImage();
            QCOMPARE(shown.pixelColor(shown.rect().center()) == Qt::red, name == "ANA LIMA");
        };
        shows("ANA LIMA");
        counter.enter("txtnome", "bru");
        shows("BRUNO SÁ");
        pressKey(counter.at("txtnome"), Qt::Key_Return);
        shows("CARLA REIS");
        counter.expectNotice("MsgBox6");
        pressKey(counter.at("txtnome"), Qt::Key_Return);
        counter.enter("txtnome", "zeb"); // typing starts over
        shows("ANA LIMA");
        for (const char *nobody : {"ana x", ""}) {
            counter.expectNotice("MsgBox6");
            counter.enter("txtnome", nobody);
        }
        // A window that comes back takes the selected customer anew.
        clickCell(counter.at<FlexGrid>("tab_clientes"), 2, 1);
        counter.type("txtnome", "x");
        counter.press("lblconfigurar_recibo");
        QVERIFY(QTest::qWaitForWindowActive(&loadedWindow("frmconfig_recibo")));
        loadedWindow("frmconfig_recibo").Unload();
        counter.window().activateWindow();
        QTRY_COMPARE(counter.shown("txtnome"), QString("BRUNO SÁ"));
    }

    void switchesToWalkInAndBack()
    {
        SaleCounter counter;
        counter.open();
        counter.put("BALA");
        counter.press("optnão_pago");
        counter.press("optavulsa");
        for (const char *name : {"txtnome", "tab_clientes", "cmdbusca", "optnão_pago"})
            QVERIFY2(!counter.at(name).isEnabled(), name);
        // A buyer whom nobody knows cannot owe.
        QVERIFY(counter.ticked("optpago"));
        counter.sell("10", "10,00");
        counter.press("optcliente");
        for (const char *name : {"txtnome", "tab_clientes", "cmdbusca", "optnão_pago", "optpago"})
            QVERIFY2(counter.at(name).isEnabled(), name);
        // Nobody was selected since, and that name passes for one.
        counter.put("BALA");
        counter.sell("10", "10,00, paga por\n------");
        QCOMPARE(counter.sold("Nome,Nick,Avulsa,Debito"),
                 (QStringList{"------|------|True|False", "------|------|False|False"}));
    }
};

QTEST_MAIN(tst_cart)
#include "tst_cart.moc"
