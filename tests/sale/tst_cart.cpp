#include "tests/sale/SaleCounter.h"

#include <QApplication>
#include <QTest>

#include <memory>

/// Who buys and what lies in the cart, up to the moment of paying.
class tst_cart : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { counter.reset(); }

    void mergesLinesWithinTheStock();
    void refusesQuantity_data();
    void refusesQuantity();
    void takesWhatIsNoNumber_data();
    void takesWhatIsNoNumber();
    void roundsPartsAndLines();
    void findsProduct_data();
    void findsProduct();
    void takesFiveScansInARow();
    void removesLines();
    void tellsChange_data();
    void tellsChange();
    void searchesCustomers();
    void switchesToWalkInAndBack();
    void showsPhotos();

private:
    std::unique_ptr<SaleCounter> counter;
};

void tst_cart::init()
{
    counter = std::make_unique<SaleCounter>();
    counter->stockUp();
}

void tst_cart::mergesLinesWithinTheStock()
{
    counter->open();
    counter->put("12", "4");
    counter->put("bala", "2");
    counter->put("(12) ÁGUA", "6");
    const QStringList full{"ÁGUA|10|100,00", "BALA|2|20,00"};
    QCOMPARE(counter->cart(), full);
    QCOMPARE(counter->shown("lbltotal"), QString("R$ 120,00"));
    QCOMPARE(counter->at("txtcod_barra").hasFocus(), true);

    counter->attendant.expectNotice(
        "A quantidade pedida (11) é maior que o estoque.\nO produto ÁGUA tem 10 em estoque.", "Aviso");
    counter->put("12");
    QCOMPARE(counter->cart(), full);
    QCOMPARE(counter->shown("lbltotal"), QString("R$ 120,00"));
    QVERIFY(counter->at("txtcod_barra").hasFocus());
}

void tst_cart::refusesQuantity_data()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<QString>("quantity");
    QTest::addColumn<QString>("refusal");
    QTest::addColumn<QString>("focus");
    QTest::newRow("none") << "12"
                          << "0"
                          << "MsgBox3"
                          << "txtquantidade";
    QTest::newRow("empty") << "12"
                           << ""
                           << "MsgBox3"
                           << "txtquantidade";
    QTest::newRow("letters don't come in") << "12"
                                           << "-x0"
                                           << "MsgBox3"
                                           << "txtquantidade";
    QTest::newRow("quantity before product") << ""
                                             << "0"
                                             << "MsgBox3"
                                             << "txtquantidade";
    QTest::newRow("no product") << ""
                                << "1"
                                << "MsgBox4"
                                << "cmbprodutos";
    QTest::newRow("unknown product before quantity") << "CHÁ"
                                                     << "0"
                                                     << "MsgBox5"
                                                     << "txtquantidade";
}

void tst_cart::refusesQuantity()
{
    QFETCH(QString, product);
    QFETCH(QString, quantity);
    QFETCH(QString, refusal);
    QFETCH(QString, focus);
    counter->open();
    if (product == "CHÁ")
        counter->expectNotice("MsgBox2");
    counter->expectNotice(refusal);
    counter->put(product, quantity);
    QCOMPARE(counter->cart(), QStringList());
    QVERIFY(counter->at(focus).hasFocus());
}

void tst_cart::takesWhatIsNoNumber_data()
{
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("price");
    QTest::addColumn<QString>("stock");
    QTest::addColumn<bool>("service");
    QTest::addColumn<QString>("line");
    QTest::newRow("price") << "DOCE"
                           << "a combinar"
                           << "5" << false << "DOCE|2|";
    QTest::newRow("stock") << "DOCE"
                           << "1"
                           << "muitos" << false << "refused";
    QTest::newRow("stock of a service") << "CÓPIA"
                                        << "0,5"
                                        << "" << true << "CÓPIA|2|1,00";
    QTest::newRow("apostrophe") << "PAU D'ARCO"
                                << "1"
                                << "5" << false << "";
}

void tst_cart::takesWhatIsNoNumber()
{
    QFETCH(QString, description);
    QFETCH(QString, price);
    QFETCH(QString, stock);
    QFETCH(bool, service);
    QFETCH(QString, line);
    counter->add(Product{.code = 9, .description = description, .price = price, .stock = stock, .service = service});
    counter->open();
    if (line == "refused") {
        counter->attendant.expectNotice(
            "A quantidade pedida (2) é maior que o estoque.\nO produto DOCE tem muitos em estoque.", "Aviso");
        line.clear();
    }
    counter->put(description, "2");
    QCOMPARE(counter->cart(), line.isEmpty() ? QStringList() : QStringList(line));
    QCOMPARE(counter->shown("lbltotal"), line.endsWith("1,00") ? QString("R$ 1,00") : QString("R$ 0,00"));
}

void tst_cart::roundsPartsAndLines()
{
    counter->add(Product{.code = 9, .description = "IMPRESSÃO", .price = "0,335", .stock = "0", .service = true});
    counter->open();
    // The line is worked out from the whole quantity, the total from the rounded parts: a cent apart, as ever.
    for (int i = 0; i < 2; ++i)
        counter->put("IMPRESSÃO");
    QCOMPARE(counter->cart(), QStringList{"IMPRESSÃO|2|0,67"});
    QCOMPARE(counter->shown("lbltotal"), QString("R$ 0,68"));
    QCOMPARE(counter->shown("lblquant_estoque"), QString("Serviço"));
    QCOMPARE(counter->shown("lblpreço_unitario"), QString("Preço unitário: R$ 0,335"));
    counter->put("IMPRESSÃO", "99999");
    QCOMPARE(counter->cart(), QStringList{"IMPRESSÃO|100001|33500,34"});
    counter->attendant.expectNotice(
        "A quantidade pedida (99999) é maior que o estoque.\nO produto ÁGUA tem 10 em estoque.", "Aviso");
    counter->put("12", "99999");
}

void tst_cart::findsProduct_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("found");
    QTest::addColumn<QString>("stock");
    QTest::newRow("name") << "bal"
                          << "BALA"
                          << "Estoque: 10";
    QTest::newRow("name behind a code") << "ÁGUA"
                                        << "ÁGUA"
                                        << "refused";
    QTest::newRow("code") << "12)"
                          << "(12) ÁGUA"
                          << "Estoque: 10";
    QTest::newRow("a longer code that stands before") << "(12"
                                                      << "(120) ABACAXI"
                                                      << "Estoque: 3";
    QTest::newRow("code of four characters is a name") << "(1234"
                                                       << "(1234) UVA"
                                                       << "Estoque: ";
    QTest::newRow("nothing") << ""
                             << ""
                             << "Estoque: ";
    QTest::newRow("the reserved one") << "TEMPO"
                                      << "TEMPO"
                                      << "refused";
}

void tst_cart::findsProduct()
{
    QFETCH(QString, typed);
    QFETCH(QString, found);
    QFETCH(QString, stock);
    counter->add(Product{.code = 8, .description = "ABACAXI", .stock = "3", .internalCode = "120"});
    counter->add(Product{.code = 9, .description = "UVA", .internalCode = "1234"});
    counter->open();
    counter->type("cmbprodutos", "");
    pressKey(counter->at("cmbprodutos"), Qt::Key_Return);
    if (stock == "refused")
        counter->expectNotice("MsgBox2");
    counter->type("cmbprodutos", typed);
    pressKey(counter->at("cmbprodutos"), Qt::Key_Return);
    QCOMPARE(counter->shown("cmbprodutos"), found);
    QCOMPARE(counter->shown("lblquant_estoque"), stock == "refused" ? QString("Estoque: ") : stock);
    QVERIFY(counter->at("txtquantidade").hasFocus());
}

void tst_cart::takesFiveScansInARow()
{
    counter->cafe.execute("Update Produtos Set Cod_Barra='7891200000128' Where Codigo=1");
    counter->open();
    const auto scan = [&](const QString &digits) { scanBarcode(*QApplication::focusWidget(), digits); };
    counter->at("txtcod_barra").setFocus();
    // The second code of a pair lands in the quantity, where the first product waits for it.
    scan("7891200000074");
    QCOMPARE(counter->shown("cmbprodutos"), QString("(12) ÁGUA"));
    const QString tooMany =
        "A quantidade pedida (7891200000074) é maior que o estoque.\nO produto ÁGUA tem 10 em estoque.";
    counter->attendant.expectNotice(tooMany, "Aviso");
    scan("7891200000074");
    counter->type("txtquantidade", "3");
    pressKey(counter->at("txtquantidade"), Qt::Key_Return);
    scan("7891200000074");
    pressKey(counter->at("txtquantidade"), Qt::Key_Return);
    QCOMPARE(counter->cart(), QStringList{"ÁGUA|6|60,00"});

    counter->expectNotice("MsgBox2");
    scan("0000000000000");
    // The reserved product has a text and no entry.
    counter->expectNotice("MsgBox2");
    counter->clear("txtcod_barra");
    scan("7891200000128");
    QCOMPARE(counter->shown("cmbprodutos"), QString("TEMPO DE ACESSO"));
}

void tst_cart::removesLines()
{
    counter->open();
    for (const char *product : {"12", "BALA", "CAFÉ"})
        counter->put(product, "2");
    auto &grid = counter->at<FlexGrid>("tab_consumo");
    clickCell(grid, 2, 1);
    counter->press("cmdexcluir");
    QCOMPARE(counter->cart(), (QStringList{"ÁGUA|2|20,00", "CAFÉ|2|20,00"}));
    clickCell(grid, 1, 1);
    for (const char *total : {"R$ 20,00", "R$ 0,00", "R$ 0,00"}) {
        counter->press("cmdexcluir");
        QCOMPARE(counter->shown("lbltotal"), QString(total));
    }
    QCOMPARE(counter->cart(), QStringList());

    counter->put("BALA");
    counter->sell("10", "Confirma a venda no valor de R$ 10,00, paga por\nANA LIMA?");
    // After a sale no row is the one to remove: the cart is emptied and the total stays.
    counter->put("BALA");
    counter->put("CAFÉ");
    counter->press("cmdexcluir");
    QCOMPARE(counter->cart(), QStringList());
    QCOMPARE(counter->shown("lbltotal"), QString("R$ 20,00"));
}

void tst_cart::tellsChange_data()
{
    QTest::addColumn<QString>("paid");
    QTest::addColumn<QString>("change");
    QTest::newRow("more") << "12,5"
                          << "R$ 2,50";
    QTest::newRow("point typed for the comma") << "10.01"
                                               << "R$ 0,01";
    QTest::newRow("exact") << "10"
                           << "R$ 000";
    QTest::newRow("less") << "9,99"
                          << "R$ 000";
    QTest::newRow("empty") << ""
                           << "R$ 000";
    QTest::newRow("a second comma doesn't come in") << "12,,5"
                                                    << "R$ 2,50";
}

void tst_cart::tellsChange()
{
    QFETCH(QString, paid);
    QFETCH(QString, change);
    counter->open();
    counter->put("BALA");
    counter->type("txtvalor_pago", paid);
    QCOMPARE(counter->shown("lbltroco"), change);
    // No number at all, past the keys' filter.
    counter->paste("txtvalor_pago", "dez");
    QCOMPARE(counter->shown("lbltroco"), QString("R$ 000"));
}

void tst_cart::searchesCustomers()
{
    counter->addCustomer("BRUNO SÁ", "REI");
    counter->addCustomer("CARLA REIS", "BRUTA");
    counter->open();
    QCOMPARE(counter->shown("txtnome"), QString("ANA LIMA"));
    auto &box = counter->at("txtnome");
    const auto enter = [&] {
        pressKey(box, Qt::Key_Return);
        return counter->shown("txtnome");
    };
    counter->type("txtnome", "bru");
    QCOMPARE(enter(), QString("BRUNO SÁ"));
    QCOMPARE(enter(), QString("CARLA REIS"));
    for (int i = 0; i < 2; ++i) {
        counter->expectNotice("MsgBox6");
        QCOMPARE(enter(), QString("CARLA REIS"));
    }
    // Typing starts over.
    counter->type("txtnome", "zeb");
    QCOMPARE(enter(), QString("ANA LIMA"));
    counter->expectNotice("MsgBox6");
    counter->type("txtnome", "ana x");
    QCOMPARE(enter(), QString("ANA X"));
    counter->expectNotice("MsgBox6");
    counter->clear("txtnome");
    counter->press("cmdbusca");

    clickCell(counter->at<FlexGrid>("tab_clientes"), 2, 1);
    QCOMPARE(counter->shown("txtnome"), QString("BRUNO SÁ"));
    // A window that comes back takes the selected customer anew.
    counter->type("txtnome", "x");
    counter->press("lblconfigurar_recibo");
    QVERIFY(counter->ticked("chkrecibo"));
    QVERIFY(QTest::qWaitForWindowActive(&loadedWindow("frmconfig_recibo")));
    click(loadedWindow("frmconfig_recibo"), "cmdok");
    counter->window().activateWindow();
    QTRY_COMPARE(counter->shown("txtnome"), QString("BRUNO SÁ"));
}

void tst_cart::switchesToWalkInAndBack()
{
    counter->open();
    counter->put("BALA");
    counter->press("optnão_pago");
    QVERIFY(!counter->at("txtvalor_pago").isEnabled());
    counter->press("optavulsa");
    for (const char *name : {"txtnome", "tab_clientes", "cmdbusca", "optnão_pago"})
        QVERIFY2(!counter->at(name).isEnabled(), name);
    // A buyer whom nobody knows pays at once.
    QVERIFY(counter->ticked("optpago"));
    counter->sell("10", "Confirma a venda no valor de R$ 10,00?");
    QCOMPARE(counter->sold("Nome,Nick,Avulsa,Debito"), QStringList{"------|------|True|False"});

    counter->press("optcliente");
    for (const char *name : {"txtnome", "tab_clientes", "cmdbusca", "optnão_pago", "optpago"})
        QVERIFY2(counter->at(name).isEnabled(), name);
    // Nobody was selected since, and that name passes for one.
    counter->put("BALA");
    counter->sell("10", "Confirma a venda no valor de R$ 10,00, paga por\n------?");
    QCOMPARE(counter->sold("Nome,Avulsa").last(), QString("------|False"));
}

void tst_cart::showsPhotos()
{
    QImage photo(4, 4, QImage::Format_RGB32);
    photo.fill(Qt::red);
    QVERIFY(photo.save(counter->cafe.path("Fotos/ana.png")));
    counter->addCustomer("BIA", "B", "NORMAL", counter->cafe.path("FOTOS\\ANA.PNG"));
    counter->addCustomer("CAIO", "C", "NORMAL", counter->cafe.path("Fotos/none.png"));
    counter->open();
    auto &grid = counter->at<FlexGrid>("tab_clientes");
    const auto isRed = [&] {
        const QImage shown = counter->at("imgfoto").property("pixmap").value<QPixmap>().toImage();
        return shown.pixelColor(shown.rect().center()) == Qt::red;
    };
    for (const int row : {2, 3, 2, 1}) {
        clickCell(grid, row, 1);
        QCOMPARE(isRed(), row == 2);
    }
    clickCell(grid, 2, 1);
    counter->press("optavulsa");
    QVERIFY(!isRed());
}

QTEST_MAIN(tst_cart)
#include "tst_cart.moc"
