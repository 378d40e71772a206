#include "tests/products/ProductDesk.h"

#include <QTest>

/// New products, and the two presses of an edit.
class tst_product_saving : public QObject
{
    Q_OBJECT

private slots:
    void storesWhatIsTyped()
    {
        const QString fields = "Codigo,Data,Hora,Descrição,Quantidade,Estoque_Min,Valor_Unitario,Fornecedor,Cod,"
                               "Servico,Cardapio,Categoria,Cod_Barra";
        ProductDesk desk;
        desk.open();
        QCOMPARE(desk.shown("txtvalor_unitario"), QString("00000,00"));
        desk.fill({"suco", "polpa", "4,5", "2x0", "7891200000081", "s1", "5"});
        QVERIFY(desk.at("cmdadicionar").hasFocus());
        desk.press("cmdadicionar");
        QCOMPARE(desk.stored(fields).last(),
                 QString("6|15/03/2024|14:30:05|SUCO|20|5|4,50|POLPA|S1|False|True|DIVERSOS|7891200000081"));
        QCOMPARE(desk.row(5), QString("6|SUCO|DIVERSOS|S1|-|20|5|4,50|POLPA|Sim|7891200000081"));
        QCOMPARE(desk.shown("lbltotal_produtos"), QString("5 produtos cadastrados"));
        QCOMPARE(desk.shown("txtdescrição") + desk.shown("txtvalor_unitario"), QString("0000000"));
        QVERIFY(desk.at("txtdescrição").hasFocus());

        // Two without a code and a barcode; the first is a service.
        pickEntry(desk.at<QComboBox>("cmbcardapio"), "Não");
        pickEntry(desk.at<QComboBox>("cmbcategoria"), "BEBIDAS");
        for (const QString name : {"Chá", "Mate"}) {
            desk.type("txtdescrição", name);
            desk.type("txtvalor_unitario", "3");
            if (name == "Chá") {
                click(desk.at("chkserviço"));
                for (const char *box : {"lblqte", "lblest_min", "txtquantidade_atual", "txtestoque_min"})
                    QVERIFY(!desk.at(box).isEnabled());
            } else {
                desk.type("txtquantidade_atual", "99999");
                desk.type("txtestoque_min", "0");
            }
            desk.press("cmdadicionar");
            QVERIFY(desk.at("txtquantidade_atual").isEnabled());
        }
        QCOMPARE(desk.row(6), QString("7|CHÁ|BEBIDAS|---|X|-|-|3,00|------|Não|-------------"));
        QCOMPARE(desk.row(7), QString("8|MATE|BEBIDAS|---|-|99999|0|3,00|------|Não|-------------"));
        QCOMPARE(desk.stored("Quantidade,Estoque_Min,Servico,Cardapio").mid(5),
                 (QStringList{"0|0|True|False", "99999|0|False|False"}));
    }

    void readsPrices_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<bool>("pasted");
        QTest::addColumn<QString>("price");
        QTest::newRow("thousands typed") << "1.234,56" << false << "1,23";
        QTest::newRow("thousands pasted") << "1.234,56" << true << "1234,56";
        QTest::newRow("blanks") << "  1 ,5 " << true << "10,50";
        QTest::newRow("letters between") << "a1b,2" << false << "1,20";
    }

    void readsPrices()
    {
        QFETCH(QString, entry);
        QFETCH(QString, price);
        QFETCH(bool, pasted);
        ProductDesk desk;
        desk.open();
        desk.edit(2);
        QCOMPARE(desk.shown("txtvalor_unitario"), QString("00002,50"));
        if (pasted)
            desk.at<TextBox>("txtvalor_unitario").setText(entry);
        else
            desk.type("txtvalor_unitario", entry);
        desk.expectSave();
        desk.press("cmdeditar");
        QCOMPARE(desk.stored("Valor_Unitario")[2], price);
    }

    void refusesInOrder_data()
    {
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("whenAdding");
        QTest::addColumn<QString>("whenEditing");
        const auto refusal = [](const QStringList &entries, const QString &box, const QString &adding,
                                const QString &editing) {
            QTest::addRow("%s: %s", qPrintable(adding), qPrintable(entries.join('|')))
                << entries << box << adding << editing;
        };
        // Description, stock, minimum, price: what comes behind the refusal is wrong, too.
        refusal({"D'ÁGUA", "", "", ""}, "txtdescrição", "MsgBox1", "MsgBox15");
        refusal({"", "", "", ""}, "txtdescrição", "MsgBox2", "MsgBox2");
        refusal({"X", "", "", ""}, "txtquantidade_atual", "MsgBox3", "MsgBox16");
        for (const char *stock : {"-1", "abc"})
            refusal({"X", stock, "", ""}, "txtquantidade_atual", "MsgBox4", "MsgBox17");
        refusal({"X", "0", "", ""}, "txtestoque_min", "MsgBox5", "MsgBox5");
        refusal({"X", "0", "-1", ""}, "txtestoque_min", "MsgBox4", "MsgBox4");
        for (const char *price : {"", "abc", "0", "-5", "     ,  "})
            refusal({"X", "0", "0", price}, "txtvalor_unitario", "MsgBox6", "MsgBox6");
    }

    void refusesInOrder()
    {
        QFETCH(QStringList, entries);
        QFETCH(QString, box);
        QFETCH(QString, whenAdding);
        QFETCH(QString, whenEditing);
        ProductDesk desk;
        desk.open();
        const QStringList before = desk.stored("*");
        const auto enter = [&] {
            const char *names[] = {"txtdescrição", "txtquantidade_atual", "txtestoque_min", "txtvalor_unitario"};
            for (int index = 0; index < entries.size(); ++index)
                desk.at<TextBox>(names[index]).setText(entries[index]);
        };
        enter();
        desk.expectNotice(whenAdding);
        desk.press("cmdadicionar");
        QVERIFY(desk.at(box).hasFocus());
        desk.edit(2);
        enter();
        desk.expectSave();
        desk.expectNotice(whenEditing);
        desk.press("cmdeditar");
        QVERIFY(desk.at(box).hasFocus() || box == "txtdescrição");
        // The edit goes on.
        QCOMPARE(desk.shown("cmdeditar"), desk.text("String8"));
        QCOMPARE(desk.stored("*"), before);
    }

    void refusesWhatOthersHave()
    {
        ProductDesk desk;
        desk.open();
        desk.fill({"água", "", "4,5", "1", "7891200000074", "a1", "5"});
        const auto refused = [&](const QString &button, const QString &box, const QString &key, const QString &value,
                                 const QString &then) {
            desk.expectTaken(key, value);
            desk.press(button);
            QVERIFY(desk.at(box).hasFocus());
            desk.type(box, then);
        };
        refused("cmdadicionar", "txtdescrição", "MsgBox7", "ÁGUA", "suco");
        refused("cmdadicionar", "txtcod", "MsgBox8", "A1", "---");
        // Dashes typed into a new product are looked for, unlike those that an edit finds there.
        refused("cmdadicionar", "txtcod", "MsgBox8", "---", "");
        refused("cmdadicionar", "txtcod_barra", "MsgBox9", "7891200000074", "-------------");
        desk.press("cmdadicionar");
        QCOMPARE(desk.stored("Descrição,Cod,Cod_Barra").last(), QString("SUCO|---|-------------"));

        desk.edit(2);
        desk.type("txtcod", "a1");
        desk.type("txtcod_barra", "7891200000074");
        desk.expectSave();
        refused("cmdeditar", "txtcod", "MsgBox8", "A1", "---");
        desk.expectSave();
        refused("cmdeditar", "txtcod_barra", "MsgBox9", "7891200000074", "");
        desk.expectSave();
        desk.press("cmdeditar");
        QCOMPARE(desk.stored("Cod,Cod_Barra")[2], QString("---|-------------"));
    }

    void editsInTwoPresses()
    {
        ProductDesk desk;
        for (const char *description : {"ÁGUA", "BALA"})
            desk.cafe.execute(QString("Insert into Venda_Produtos (Codigo,Descrição,Categoria,Quantidade) values "
                                      "(%1,'%2','ANTES','1')")
                                  .arg(int(description[0]))
                                  .arg(description));
        desk.open();
        desk.expectNotice("MsgBox13");
        desk.press("cmdeditar");
        desk.edit(1);
        QCOMPARE(desk.shown("cmdeditar"), desk.text("String8"));
        for (const char *name : {"cmdadicionar", "cmdremover", "cmdcategoria", "txtdescrição"})
            QVERIFY(!desk.at(name).isEnabled());
        // Another row picked meanwhile is not the one that is saved; its own code and barcode are no duplicates.
        clickCell(desk.list(), 2, 1);
        desk.type("txtfornecedor", "outro");
        desk.type("txtquantidade_atual", "35");
        pickEntry(desk.at<QComboBox>("cmbcategoria"), "LANCHES");
        pickEntry(desk.at<QComboBox>("cmbcardapio"), "Não");
        desk.expectSave();
        desk.press("cmdeditar");
        QCOMPARE(desk.stored("Data,Hora,Descrição,Quantidade,Estoque_Min,Valor_Unitario,Fornecedor,Cod,Cardapio,"
                             "Cod_Barra,Servico,Categoria")[1],
                 QString("15/03/2024|14:30:05|ÁGUA|35|2|2,50|OUTRO|A1|False|7891200000074|False|LANCHES"));
        // The list keeps showing the old supplier.
        QCOMPARE(desk.row(1), QString("3|ÁGUA|LANCHES|A1|-|35|2|2,50|SERRA|Não|7891200000074"));
        QCOMPARE(desk.cafe.query("Select Categoria from Venda_Produtos Order By Descrição"),
                 (QList<QStringList>{{"LANCHES"}, {"ANTES"}}));
        for (const char *name : {"cmdadicionar", "cmdremover", "cmdcategoria", "txtdescrição"})
            QVERIFY(desk.at(name).isEnabled());
        QCOMPARE(desk.shown("cmdeditar") + desk.shown("txtdescrição"), desk.text("String7"));

        // A product becomes a service and a service a product; a no stores nothing.
        desk.edit(3);
        QVERIFY(!desk.at("txtestoque_min").isEnabled());
        click(desk.at("chkserviço"));
        desk.expectSave();
        desk.press("cmdeditar");
        QCOMPARE(desk.row(3), QString("5|CAFÉ|DIVERSOS|C1|-|0|0|2,50|SERRA|Não|-------------"));
        desk.edit(2);
        click(desk.at("chkserviço"));
        desk.expectSave(vbNo);
        desk.press("cmdeditar");
        QCOMPARE(desk.stored("Servico,Quantidade").mid(1), (QStringList{"False|35", "False|10", "False|0"}));
        QVERIFY(desk.at("txtestoque_min").isEnabled() && desk.at("cmdremover").isEnabled());
    }

    void keepsStockAndSupplierOfTheReservedProduct()
    {
        ProductDesk desk;
        desk.open();
        const auto enabled = [&] {
            QString answer;
            for (const char *name : {"txtquantidade_atual", "txtestoque_min", "txtfornecedor"})
                answer += desk.at(name).isEnabled() ? '1' : '0';
            return answer;
        };
        for (const int answer : {vbYes, vbNo}) {
            desk.edit(4);
            QCOMPARE(enabled(), QString("000"));
            desk.type("txtvalor_unitario", "7");
            desk.type("txtcod", "r");
            desk.expectSave(answer);
            desk.press("cmdeditar");
            QCOMPARE(desk.stored("Quantidade,Estoque_Min,Valor_Unitario,Fornecedor,Cod").first(),
                     QString("10|2|7,00|SERRA|R"));
            QCOMPARE(enabled(), QString(answer == vbYes ? "111" : "110"));
        }
    }

    void listsWhatTheFileRefused()
    {
        ProductDesk desk;
        desk.open();
        desk.fill({"suco", "d'ávila", "4,5", "1", "", "", "5"});
        desk.press("cmdadicionar");
        QCOMPARE(desk.row(5), QString("6|SUCO|DIVERSOS|---|-|1|5|4,50|D'ÁVILA|Sim|-------------"));
        QCOMPARE(desk.shown("lbltotal_produtos"), QString("5 produtos cadastrados"));
        QCOMPARE(desk.stored("Codigo").size(), 4);
        desk.open();
        QCOMPARE(desk.listed(0), (QStringList{"3", "4", "5", "1"}));
    }
};

QTEST_MAIN(tst_product_saving)
#include "tst_product_saving.moc"
