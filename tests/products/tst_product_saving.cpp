#include "platform/window/TextBox.h"
#include "tests/products/ProductDesk.h"

/// New products, and the two presses of an edit.
class tst_product_saving : public QObject
{
    Q_OBJECT

private slots:
    void storesWhatIsTyped()
    {
        ProductDesk desk;
        desk.open();
        desk.fill({"suco", "polpa", "4,5", "2x0", "7891200000081", "s1", "5"});
        desk.press("cmdadicionar");
        QCOMPARE(desk.stored("Codigo,Data,Hora,Descrição,Quantidade,Estoque_Min,Valor_Unitario,Fornecedor,Cod").last(),
                 QString("6|15/03/2024|14:30:05|SUCO|20|5|4,50|POLPA|S1"));
        QCOMPARE(desk.stored("Servico,Cardapio,Categoria,Cod_Barra").last(),
                 QString("False|True|DIVERSOS|7891200000081"));
        QCOMPARE(desk.row(5), QString("6|SUCO|DIVERSOS|S1|-|20|5|4,50|POLPA|Sim|7891200000081"));

        // A service without a code and a barcode.
        desk.type("txtdescrição", "Chá");
        desk.type("txtvalor_unitario", "3");
        click(desk.at("chkserviço"));
        desk.press("cmdadicionar");
        QCOMPARE(desk.row(6), QString("7|CHÁ|DIVERSOS|---|X|-|-|3,00|------|Sim|-------------"));
        QCOMPARE(desk.stored("Quantidade,Estoque_Min,Servico,Cardapio").last(), QString("0|0|True|True"));
    }

    void refusesInOrder()
    {
        ProductDesk desk;
        // The two sets of refusals differ, as they may in a language.
        QByteArray texts = desk.cafe.readFile("Languages/Portugues3.lng");
        for (const char *key : {"MsgBox15=\"", "MsgBox16=\"", "MsgBox17=\""})
            texts.replace(key, QByteArray(key) + "Edição: ");
        desk.cafe.writeFile("Languages/Portugues3.lng", texts);
        desk.cafe.start();
        desk.open();
        const QStringList before = desk.stored("*");
        // Description, stock, minimum, price: what comes behind the refusal is wrong, too.
        const QStringList boxes{"txtdescrição", "txtquantidade_atual", "txtestoque_min", "txtvalor_unitario"};
        const std::tuple<QString, int, QString, QString> refusals[] = {
            {"D'ÁGUA|||", 0, "MsgBox1", "MsgBox15"},    {"|||", 0, "MsgBox2", "MsgBox2"},
            {"X|||", 1, "MsgBox3", "MsgBox16"},         {"X|abc||", 1, "MsgBox4", "MsgBox17"},
            {"X|0||", 2, "MsgBox5", "MsgBox5"},         {"X|0|-1|", 2, "MsgBox4", "MsgBox4"},
            {"X|0|0|     ,  ", 3, "MsgBox6", "MsgBox6"}};
        for (const bool editing : {false, true}) {
            if (editing)
                desk.edit(2);
            for (const auto &[entries, wrong, whenAdding, whenEditing] : refusals) {
                for (int box = 0; box < boxes.size(); ++box)
                    desk.at<TextBox>(boxes[box]).setText(entries.section('|', box, box));
                if (editing)
                    desk.expectSave();
                desk.expectNotice(editing ? whenEditing : whenAdding);
                desk.press(editing ? "cmdeditar" : "cmdadicionar");
                QVERIFY(desk.at(boxes[wrong]).hasFocus() || (editing && wrong == 0));
            }
        }
        // The edit goes on.
        QCOMPARE(desk.shown("cmdeditar"), desk.text("String8"));
        QCOMPARE(desk.stored("*"), before);
    }

    void refusesWhatOthersHave()
    {
        ProductDesk desk;
        desk.open();
        desk.fill({"água", "", "4,5", "1", "7891200000074", "a1", "5"});
        const auto refused = [&](const QString &button, const QString &box, const QString &key, const QString &value) {
            desk.refuses(button, desk.text(key) + value + desk.text("MsgBox7_2"), box);
            desk.type(box, box == "txtdescrição" ? "suco" : "");
        };
        refused("cmdadicionar", "txtdescrição", "MsgBox7", "ÁGUA");
        refused("cmdadicionar", "txtcod", "MsgBox8", "A1");
        refused("cmdadicionar", "txtcod_barra", "MsgBox9", "7891200000074");
        desk.press("cmdadicionar");
        QCOMPARE(desk.stored("Descrição,Cod,Cod_Barra").last(), QString("SUCO|---|-------------"));

        desk.edit(2);
        desk.type("txtcod_barra", "7891200000074");
        desk.expectSave();
        refused("cmdeditar", "txtcod_barra", "MsgBox9", "7891200000074");
    }

    void editsInTwoPresses()
    {
        ProductDesk desk;
        for (const QString product : {"1,'ÁGUA'", "2,'BALA'"})
            desk.cafe.execute("Insert into Venda_Produtos (Codigo,Descrição,Categoria) values (" + product +
                              ",'ANTES')");
        desk.open();
        desk.edit(1);
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
                 QString("15/03/2024|14:30:05|ÁGUA|35|2|10,00|OUTRO|A1|False|7891200000074|False|LANCHES"));
        // The list keeps showing the old supplier.
        QCOMPARE(desk.row(1), QString("3|ÁGUA|LANCHES|A1|-|35|2|10,00|SERRA|Não|7891200000074"));
        QCOMPARE(desk.stored("Categoria", "Venda_Produtos"), (QStringList{"LANCHES", "ANTES"}));

        // A no stores nothing.
        desk.edit(2);
        click(desk.at("chkserviço"));
        desk.expectSave(vbNo);
        desk.press("cmdeditar");
        QCOMPARE(desk.stored("Servico,Quantidade")[2], QString("False|10"));
        QVERIFY(desk.at("txtestoque_min").isEnabled() && desk.at("cmdremover").isEnabled());
    }

    void storesTheServiceTickFromBeforeTheEdit()
    {
        ProductDesk desk;
        desk.open();
        const auto edited = [&](int row) {
            desk.edit(row);
            desk.expectSave();
            desk.press("cmdeditar");
            return desk.row(row).section('|', 4, 6);
        };
        QCOMPARE(edited(3), QString("-|0|0"));
        click(desk.at("chkserviço"));
        QCOMPARE(edited(2), QString("X|-|-"));
        QCOMPARE(desk.stored("Servico,Quantidade").mid(2), (QStringList{"True|10", "False|0"}));
    }

    void keepsStockAndSupplierOfTheReservedProduct()
    {
        ProductDesk desk;
        // Longer than anyone can type them.
        desk.change("Produtos", "Quantidade='123456', Cod='ABCDE', Cod_Barra='12345678901234' Where Codigo=1");
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
            desk.expectSave(answer);
            desk.press("cmdeditar");
            QCOMPARE(desk.stored("Quantidade,Estoque_Min,Valor_Unitario,Fornecedor,Cod,Cod_Barra").first(),
                     QString("123456|2|7,00|SERRA|ABCDE|12345678901234"));
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
        QCOMPARE(desk.stored("Codigo").size(), 4);
    }
};

STORY_MAIN(tst_product_saving)
#include "tst_product_saving.moc"
