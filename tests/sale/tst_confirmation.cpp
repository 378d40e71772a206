#include "configuration/Idiomas.h"
#include "platform/window/Forms.h"
#include "tests/sale/SaleCounter.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

namespace {
const QString tenFromAna = "Confirma a venda no valor de R$ 10,00, paga por\nANA LIMA?";
}

/// From the press of the confirm button to the stored lines and the empty window.
class tst_confirmation : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { counter.reset(); }

    void refusesInOrder();
    void asksForRuleBeforeTheAnswerCounts();
    void keepsEverythingOnNo();
    void sharesDiscount_data();
    void sharesDiscount();
    void storesLines();
    void writesAmountsOfTheRegion();
    void storesDebt();
    void listsLowStock();
    void playsTill_data();
    void playsTill();
    void locksDuringTheQuestion();
    void goesOnWhenStatementsFail();
    void sellsOnceWhileEnterIsHeld_data();
    void sellsOnceWhileEnterIsHeld();

private:
    void openWith(const QStringList &products);
    void confirm() { counter->press("cmdfinalizar"); }

    std::unique_ptr<SaleCounter> counter;
};

void tst_confirmation::init()
{
    counter = std::make_unique<SaleCounter>();
    counter->stockUp();
    counter->add(Rule{.code = 1, .fixed = false, .automatic = false, .motive = "NEGOCIADO"});
}

void tst_confirmation::openWith(const QStringList &products)
{
    counter->open();
    for (const QString &product : products)
        counter->put(product);
}

void tst_confirmation::refusesInOrder()
{
    counter->add(Rule{.code = 2, .fixed = false, .automatic = false, .motive = ""});
    counter->cafe.execute("Delete from Clientes");
    openWith({});
    const auto refusedWith = [&](const QString &key, const char *focus) {
        counter->expectNotice(key);
        confirm();
        QVERIFY2(focus == nullptr || counter->at(focus).hasFocus(), focus);
        QCOMPARE(counter->window().cursor().shape(), Qt::ArrowCursor);
    };
    // A closed till goes before the empty cart, whatever is wrong besides; no till is a closed one.
    counter->cafe.execute("Update Registro_Caixa Set Caixa_Aberto=False");
    refusedWith("MsgBox7", nullptr);
    counter->cafe.execute("Insert into Registro_Caixa (ID_Caixa,Caixa_Aberto) values (8,True)");
    refusedWith("MsgBox8", "cmbprodutos");
    counter->put("BALA");
    counter->type("txtvalor_desconto", "10,90");
    pickEntry(counter->at<QComboBox>("txtmotivo"), "2");
    // The final total is 0, so that only a text that is no number falls short of it.
    counter->paste("txtvalor_pago", "dez");
    refusedWith("MsgBox9", "txtvalor_pago");
    // The cents of a discount above the total don't count in its test.
    counter->clear("txtvalor_pago");
    refusedWith("MsgBox11", "txtmotivo");
    QCOMPARE(counter->shown("txtvalor_pago"), QString("0"));
    counter->type("txtvalor_desconto", "11");
    refusedWith("MsgBox10", "txtvalor_desconto");
    counter->type("txtvalor_desconto", "1");
    counter->type("txtvalor_pago", "8,99");
    refusedWith("MsgBox9", "txtvalor_pago");
    counter->type("txtvalor_pago", "9");
    pickEntry(counter->at<QComboBox>("txtmotivo"), "1");
    refusedWith("MsgBox12", "txtnome");
    QCOMPARE(counter->cart(), QStringList{"BALA|1|10,00"});
    QCOMPARE(counter->sold("Codigo"), QStringList());
}

void tst_confirmation::asksForRuleBeforeTheAnswerCounts()
{
    counter->add(Rule{.code = 3, .absolute = "1", .threshold = "50"});
    openWith({"BALA"});
    pickEntry(counter->at<QComboBox>("txtmotivo"), "3");
    counter->press("chkdesconto");
    counter->type("txtvalor_pago", "10");
    for (const int answer : {vbNo, vbYes}) {
        counter->expectQuestion("Confirma a venda no valor de R$ 9,00, paga por\nANA LIMA?", answer);
        counter->expectNotice("MsgBox16");
        confirm();
        QVERIFY(counter->at("txtmotivo").hasFocus());
    }
    QCOMPARE(counter->sold("Codigo"), QStringList());
}

void tst_confirmation::keepsEverythingOnNo()
{
    openWith({"BALA", "12"});
    counter->press("optavulsa");
    counter->type("txtvalor_pago", "20");
    counter->expectQuestion("Confirma a venda no valor de R$ 20,00?", vbNo);
    confirm();
    QCOMPARE(counter->cart(), (QStringList{"BALA|1|10,00", "ÁGUA|1|10,00"}));
    QCOMPARE(counter->sold("Codigo"), QStringList());
    QCOMPARE(counter->stock("BALA"), QString("10"));
    counter->sell("20", "Confirma a venda no valor de R$ 20,00?");
    QCOMPARE(counter->sold("Codigo,Descrição"), (QStringList{"1|BALA", "2|ÁGUA"}));
}

void tst_confirmation::sharesDiscount_data()
{
    QTest::addColumn<QStringList>("prices");
    QTest::addColumn<QString>("discount");
    QTest::addColumn<QString>("total");
    QTest::addColumn<QStringList>("shares");
    QTest::newRow("cents left over") << QStringList{"10", "10", "10"} << "10"
                                     << "20,00" << QStringList{"3,33", "3,33", "3,34"};
    // The excess shows at the third line; the sum keeps it, so that the fourth gives it up once more.
    QTest::newRow("cents in excess") << QStringList{"1", "1", "1", "1"} << "0,06"
                                     << "3,94" << QStringList{"0,02", "0,02", "0,02", "0,00"};
    QTest::newRow("by value") << QStringList{"10", "30"} << "4"
                              << "36,00" << QStringList{"1,00", "3,00"};
    QTest::newRow("none") << QStringList{"10", "30"} << ""
                          << "40,00" << QStringList{"0,00", "0,00"};
}

void tst_confirmation::sharesDiscount()
{
    QFETCH(QStringList, prices);
    QFETCH(QString, discount);
    QFETCH(QString, total);
    QFETCH(QStringList, shares);
    for (int i = 0; i < prices.size(); ++i)
        counter->add(Product{.code = 10 + i, .description = QString("P%1").arg(i), .price = prices.at(i)});
    openWith(QStringList{"P0", "P1", "P2", "P3"}.mid(0, prices.size()));
    counter->type("txtvalor_desconto", discount);
    counter->sell(total, "Confirma a venda no valor de R$ " + total + ", paga por\nANA LIMA?");
    QCOMPARE(counter->sold("Desconto"), shares);
    QCOMPARE(counter->sold("Motivo_Desconto").last(), discount.isEmpty() ? QString("-----------") : "NEGOCIADO");
}

void tst_confirmation::storesLines()
{
    counter->cafe.execute("Insert into Venda_Produtos (Codigo) values (41)");
    counter->cafe.execute("Update Produtos Set Categoria='BEBIDAS', Quantidade='10' Where Codigo=2");
    counter->add(Product{.code = 9, .description = "CÓPIA", .price = "0,5", .stock = "0", .service = true});
    counter->open();
    counter->put("12", "2");
    counter->put("CÓPIA", "3");
    counter->expectQuestion("Confirma a venda no valor de R$ 21,50, paga por\nANA LIMA?");
    counter->expectNotice("MsgBox13", [&] {
        QCOMPARE(counter->sold("Codigo,Data,Hora,Descrição,Quantidade,Nome,Nick,Avulsa,Debito").mid(1),
                 (QStringList{"42|15/03/2024|14:30:05|ÁGUA|2|ANA LIMA|ZEBRA|False|False",
                              "43|15/03/2024|14:30:05|CÓPIA|3|ANA LIMA|ZEBRA|False|False"}));
        QCOMPARE(counter
                     ->sold("Valor_Total,Desconto,Motivo_Desconto,Data_Pag,Hora_Pag,Id_Caixa,Id_Caixa_Pago,"
                            "Categoria")
                     .mid(1),
                 (QStringList{"20,00|0,00|-----------|15/03/2024|14:30:05|7|7|BEBIDAS",
                              "1,50|0,00|-----------|15/03/2024|14:30:05|7|7|DIVERSOS"}));
    });
    counter->attendant.expectNotice("Os produtos abaixo atingiram o estoque mínimo:\n\nÁGUA\n", "Atenção");
    counter->type("txtvalor_pago", "30");
    confirm();
    QCOMPARE(counter->stock("ÁGUA"), QString("8"));
    QCOMPARE(counter->stock("CÓPIA"), QString("0"));

    QCOMPARE(counter->cart(), QStringList());
    const QList<std::pair<const char *, const char *>> emptied{
        {"lbltotal", "R$ 0,00"},      {"lbltotal_final", "R$ 0,00"},     {"lbltroco", "R$ 000"},
        {"txtvalor_pago", "0000000"}, {"txtvalor_desconto", ""},         {"txtquantidade", "1"},
        {"cmbprodutos", ""},          {"lblquant_estoque", "Estoque: "}, {"txtnome", "ANA LIMA"}};
    for (const auto &[name, text] : emptied)
        QCOMPARE(counter->shown(name), QString(text));
    QVERIFY(counter->at("cmbprodutos").hasFocus());
}

void tst_confirmation::writesAmountsOfTheRegion()
{
    counter.reset();
    counter = std::make_unique<SaleCounter>(unitedStates);
    counter->add(Product{.code = 2, .description = "TEA", .price = "1.5", .stock = "10.5"});
    counter->addCustomer("ANA LIMA", "ZEBRA");
    openWith({"TEA"});
    // The comma that boxes take separates thousands here: 1,5 is fifteen.
    counter->sell("1,5", "Confirma a venda no valor de R$ 1.50, paga por\nANA LIMA?");
    QCOMPARE(counter->sold("Data,Valor_Total"), QStringList{"3/15/2024|1.50"});
    QCOMPARE(counter->stock("TEA"), QString("9.5"));
    counter->put("TEA");
    counter->type("txtvalor_pago", "1,5");
    QCOMPARE(counter->shown("lbltroco"), QString("R$ 13.50"));
}

void tst_confirmation::storesDebt()
{
    openWith({"BALA"});
    counter->press("optnão_pago");
    counter->put("BALA");
    QCOMPARE(counter->shown("txtvalor_pago"), QString("20"));
    counter->press("chkrecibo");
    counter->expectQuestion("Confirma a venda no valor de R$ 20,00, a pagar depois, para\nANA LIMA?");
    counter->expectNotice("MsgBox13");
    confirm();
    QCOMPARE(counter->sold("Debito,Avulsa,Data_Pag,Id_Caixa_Pago"), QStringList{"True|False|15/03/2024|7"});
    QCOMPARE(counter->stock("BALA"), QString("8"));
    QCOMPARE(counter->machine.sounds.size() + counter->machine.printouts().size(), 0);
    counter->press("optpago");
    QCOMPARE(counter->shown("txtvalor_pago"), QString("0"));
    QVERIFY(counter->at("txtvalor_pago").isEnabled());
}

void tst_confirmation::listsLowStock()
{
    counter->add(Product{.code = 9, .description = "CÓPIA", .stock = "0", .minimum = "5", .service = true});
    counter->cafe.execute("Update Produtos Set Estoque_Min='9,9' Where Codigo=3");
    openWith({"CAFÉ", "CÓPIA", "BALA", "12"});
    counter->expectQuestion("Confirma a venda no valor de R$ 40,00, paga por\nANA LIMA?");
    counter->expectNotice("MsgBox13");
    counter->attendant.expectNotice("Os produtos abaixo atingiram o estoque mínimo:\n\nCAFÉ\nBALA\n", "Atenção");
    counter->type("txtvalor_pago", "40");
    confirm();
}

void tst_confirmation::playsTill_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("sounds");
    QTest::newRow("plays") << "Som"
                           << "Caixa Reg"
                           << "" << 1;
    QTest::newRow("till silenced") << "Som"
                                   << "Caixa Reg"
                                   << "0" << 0;
    QTest::newRow("all silenced") << "Som"
                                  << "Ativo"
                                  << "0" << 0;
}

void tst_confirmation::playsTill()
{
    QFETCH(QString, section);
    QFETCH(QString, key);
    QFETCH(QString, value);
    counter->cafe.setIni(section, key, value);
    openWith({"BALA"});
    counter->sell("10", tenFromAna);
    QTEST(int(counter->machine.sounds.filter("Caixa.wav").size()), "sounds");
}

void tst_confirmation::locksDuringTheQuestion()
{
    openWith({"BALA"});
    counter->addCustomer("BIA", "B");
    counter->type("txtvalor_pago", "10");
    counter->expectQuestion(tenFromAna, vbYes, [&] {
        confirm();
        pressKey(counter->at("txtvalor_pago"), Qt::Key_Return);
        counter->put("12");
        scanBarcode(counter->at("txtcod_barra"), "7891200000074");
        counter->press("cmdadicionar");
        counter->press("cmdexcluir");
        counter->press("optavulsa");
        counter->press("cmdbusca");
        counter->press("cmdcancelar");
        QCOMPARE(counter->cart(), QStringList{"BALA|1|10,00"});
    });
    counter->expectNotice("MsgBox13");
    confirm();
    QCOMPARE(counter->sold("Descrição,Nome,Avulsa"), QStringList{"BALA|ANA LIMA|False"});
    // The lock is gone.
    counter->press("cmdcancelar");
    QCOMPARE(Forms::loaded().size(), 0);
}

void tst_confirmation::goesOnWhenStatementsFail()
{
    counter->addCustomer("ÃNA D'ÁVILA", "DAVI");
    openWith({"BALA", "CAFÉ"});
    counter->type("txtnome", "davi");
    pressKey(counter->at("txtnome"), Qt::Key_Return);
    counter->expectQuestion("Confirma a venda no valor de R$ 20,00, paga por\nÃNA D'ÁVILA?");
    counter->expectNotice("MsgBox13");
    counter->attendant.expectNotice("Os produtos abaixo atingiram o estoque mínimo:\n\nCAFÉ\n", "Atenção");
    counter->type("txtvalor_pago", "20");
    confirm();
    // The name breaks the insert and nothing else.
    QCOMPARE(counter->sold("Codigo"), QStringList());
    QCOMPARE(counter->stock("BALA"), QString("9"));
}

void tst_confirmation::sellsOnceWhileEnterIsHeld_data()
{
    QTest::addColumn<QString>("place");
    QTest::newRow("button") << "cmdfinalizar";
    QTest::newRow("paid value") << "txtvalor_pago";
}

void tst_confirmation::sellsOnceWhileEnterIsHeld()
{
    QFETCH(QString, place);
    openWith({"BALA"});
    counter->type("txtvalor_pago", "10");
    // The desktop's own boxes, which Enter answers too.
    PromptService::use(nullptr);
    QStringList boxes;
    int repeats = 40;
    const std::function<void()> repeatEnter = [&] {
        QWidget *receiver = QApplication::activeModalWidget();
        if (const auto *box = qobject_cast<QMessageBox *>(receiver))
            boxes += box->text();
        else if (--repeats > 0)
            receiver = QApplication::focusWidget();
        else
            return;
        QTimer::singleShot(2, this, repeatEnter);
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
        if (receiver != nullptr)
            QApplication::sendEvent(receiver, &enter);
    };
    counter->at(place).setFocus();
    repeatEnter();
    QTRY_COMPARE(repeats, 0);
    PromptService::use(&counter->attendant);
    QCOMPARE(boxes.mid(0, 2), (QStringList{tenFromAna, textoIdioma("frmvenda", "MsgBox13")}));
    QVERIFY(!boxes.mid(2).contains(tenFromAna));
    QCOMPARE(counter->sold("Descrição"), QStringList{"BALA"});
}

QTEST_MAIN(tst_confirmation)
#include "tst_confirmation.moc"
