#include "tests/customers/CustomerDesk.h"

#include "customers/PhotoBox.h"
#include "platform/base/Err.h"
#include "sale/frmvenda.h"
#include "tests/support/Portrait.h"
#include "windows/OpenForms.h"

#include <QFile>
#include <QLineEdit>

/// The list of customers: sorting, searching, editing with what follows from another name or nick, removing, and the
/// road to it from the sale window.
class tst_customer_list : public QObject
{
    Q_OBJECT

private slots:
    void sortsByTheColumnClicked()
    {
        CustomerDesk desk;
        desk.change("Clientes", "Nick='Águia' Where Codigo=5");
        desk.open();
        QCOMPARE(desk.listed(0), (QStringList{"1", "2", "5"}));
        clickCell(desk.list(), 3, 2);
        QCOMPARE(desk.shown("txtnome_busca"), QString("CAIO REIS"));
        desk.press("cmdordenar");
        QCOMPARE(desk.listed(2), (QStringList{"------", "Águia", "ANINHA"}));
        // The headings are the current row now, and no customer.
        QCOMPARE(desk.list().Row(), 0);
        QCOMPARE(desk.list().Col(), 2);
        desk.refuses("cmdeditar", desk.text("MsgBox4"));
        desk.refuses("cmdexcluir", desk.text("MsgBox9"));
        desk.window().Localizar("bia sá");
        desk.window().Localizar("BIA");
        QCOMPARE(desk.list().TextMatrix(desk.list().Row(), 1), QString("BIA SÁ"));
    }

    void findsByTheStartOfNameOrNick()
    {
        CustomerDesk desk;
        desk.add("Clientes", "Codigo=6, Nome='ANABEL', Nick='BIBI'");
        desk.add("Clientes", "Codigo=7, Nome='ANA LIMA NETA'");
        desk.open();
        for (const char *text : {"anab", "bib"}) {
            desk.enter("txtnome_busca", text);
            QCOMPARE(desk.list().Row(), 4);
        }
        QCOMPARE(desk.shown("txtnome_busca"), QString("ANABEL"));
        for (const char *text : {"lima", ""}) {
            desk.expectNotice("MsgBox2");
            desk.enter("txtnome_busca", text);
            QCOMPARE(desk.list().Row(), 4);
        }
        // A second press looks for the whole name that was found, further down.
        desk.type("txtnome_busca", "an");
        for (const int row : {1, 5}) {
            desk.press("cmdbusca");
            QCOMPARE(desk.list().Row(), row);
        }
        desk.refuses("cmdbusca", desk.text("MsgBox2"));
        desk.enter("txtnome_busca", "a");
        desk.edit(desk.list().Row());
        QCOMPARE(desk.shown("txtnome"), QString("ANA LIMA"));
    }

    void countsNoFurtherThanItCan()
    {
        constexpr int most = 32767;
        CustomerDesk desk;
        QStringList customers{"Delete from Clientes"};
        for (int codigo = 1; codigo <= most + 1; ++codigo)
            customers += QString("Insert into Clientes (Codigo,Nome) values (%1,'C%1')").arg(codigo);
        desk.cafe.executeAll(customers);
        desk.open();
        QCOMPARE(desk.list().TextMatrix(most, 0), QString::number(most));
        QCOMPARE(desk.list().TextMatrix(most + 1, 0), QString());
        QCOMPARE(desk.shown("lbltotal_clientes"), QString());
        QVERIFY(desk.list().updatesEnabled());
        desk.cafe.execute("Delete from Clientes Where Codigo=1");
        desk.open();
        QCOMPARE(desk.shown("lbltotal_clientes"), QString("32767 clientes cadastrados"));
        desk.expectQuestion("MsgBox11", "MsgBox1_2", vbQuestion, vbYes);
        desk.expectNotice("MsgBox13", "MsgBox13_2");
        desk.list().setFocus();
        pressKey(desk.list(), Qt::Key_End, Qt::ShiftModifier);
        desk.press("cmdexcluir");
        QCOMPARE(desk.cafe.value("Select Count(*) from Clientes"), QString("0"));
        QCOMPARE(desk.shown("lbltotal_clientes"), desk.text("String7"));
    }

    void carriesNameAndNickOver()
    {
        CustomerDesk desk;
        const QStringList nicked{"Lista_espera",      "Log",           "Clientes_Bloqueados",
                                 "Monitor_Impressao", "Venda_Codigos", "Venda_Produtos"};
        for (const QString &table : nicked + QStringList("Links"))
            for (const QString name : {"ANA LIMA", "Ana Lima"})
                desk.cafe.execute("Insert into " + table + " (Nome) values ('" + name + "')");
        desk.open();
        desk.edit(1);
        QCOMPARE(desk.shown("cmdeditar"), desk.text("String11"));
        QVERIFY(!desk.at("cmdok").isEnabled());
        // A click on another row during the edit changes nothing of what is saved.
        clickCell(desk.list(), 2, 1);
        desk.type("txtnome", "Ana Luz");
        desk.type("txtnick", "luz");
        desk.type("txtobs", "Nova");
        click(desk.at("chkautorização"));
        desk.expectSave();
        desk.press("cmdeditar");
        // A row with the name in other letters is nobody's.
        QCOMPARE(desk.cafe.query("Select Nome from Links Order By Nome"), (QStringList{"Ana Lima", "ANA LUZ"}));
        for (const QString &table : nicked)
            QCOMPARE(desk.cafe.query("Select Nome,Nick from " + table + " Order By Nome"),
                     (QStringList{"Ana Lima|", "ANA LUZ|LUZ"}));
        QCOMPARE(desk.stored("Nome,Nick,Grupo,Obs,Autorizado,Data_Nasc,UF,Rua").first(),
                 QString("ANA LUZ|LUZ|VIP|Nova|False|01/01/1900|--|------"));
        QCOMPARE(desk.row(1).section('|', 0, 6), QString("1|ANA LUZ|LUZ|VIP|01/01/1900|Nova|Não"));
        QCOMPARE(desk.shown("cmdeditar"), desk.text("String10"));
        QVERIFY(desk.at("cmdok").isEnabled());
        QCOMPARE(desk.shown("txtnome") + desk.shown("txtcidade") + desk.shown("cmbgrupo_clientes"),
                 QString("SerraNORMAL"));
    }

    void refusesWhatOthersHave()
    {
        CustomerDesk desk;
        desk.add("Clientes", "Codigo=6, Nome='DAVI', Documento='9', Nick='DAVI'");
        // The state of an edit is told by the button's text, in any language.
        desk.cafe.setIni("Config_Regional", "Idioma", "Ingles.lng");
        desk.cafe.start();
        desk.open();
        desk.edit(2);
        desk.type("txtdata_nascimento", "");
        const auto refused = [&](const QString &focus, const QString &refusal) {
            desk.expectSave();
            desk.refuses("cmdeditar", refusal, focus);
            QCOMPARE(desk.shown("cmdeditar"), desk.text("String11"));
            QCOMPARE(desk.stored("Nome")[1], QString("BIA SÁ"));
        };
        desk.type("txtnome", "davi");
        refused("txtnome", desk.takenText("MsgBox6", "DAVI"));
        desk.type("txtnome", "bia luz");
        desk.type("txtnick", "davi");
        refused("txtnick", desk.takenText("MsgBox7", "DAVI"));
        // Nobody collides with a nick of dashes or with a document of dashes.
        desk.type("txtnick", "");
        desk.type("txtdocumento", "9");
        refused("txtdocumento", desk.text("MsgBox8") + "9" + desk.text("MsgBox8_2") + "DAVI");
        desk.type("txtdocumento", "");
        desk.expectSave();
        desk.press("cmdeditar");
        QCOMPARE(desk.stored("Nome,Nick,Documento,Data_Nasc")[1], QString("BIA LUZ|------|------|00/00/0000"));
    }

    void losesThePathOfThePhoto()
    {
        CustomerDesk desk;
        const QString photo = desk.cafe.path("Fotos/1.jpg");
        QVERIFY(portrait({35, 29}).save(photo));
        desk.change("Clientes", "Data_Nasc='', CaminhoFoto='" + photo.toUpper() + "' Where Codigo=1");
        desk.open();
        desk.edit(1);
        QCOMPARE(desk.at<PictureBox>("imgfoto").Picture().size(), QSize(35, 29));
        desk.expectSave();
        desk.press("cmdeditar");
        // A date without any text isn't an empty box, and gets no placeholder.
        QCOMPARE(desk.stored("CaminhoFoto,Data_Nasc").first(), QString("-----|"));
        QVERIFY(QFile::exists(photo));
    }

    void endsWithTheFirstFailure()
    {
        CustomerDesk desk;
        desk.add("Clientes", "Codigo=6, Nome='D''ÁVILA'");
        desk.open();
        desk.edit(1);
        desk.type("txtrua", "Rua d'Água");
        desk.expectSave();
        desk.expectNoticeText("Rua" + desk.text("MsgBox1"));
        QVERIFY_EXCEPTION_THROWN(desk.window().Editar_Cliente(), RunTimeError);
        QCOMPARE(desk.shown("cmdeditar"), desk.text("String11"));
        desk.type("txtrua", "");
        desk.expectSave(vbNo);
        desk.press("cmdeditar");
        // A question that the old name breaks comes before all that would change: no photo is replaced.
        desk.machine.installCamera();
        desk.press("cmdwebcam");
        desk.cafe.writeFile("Fototemp.jpg", "new");
        desk.cafe.writeFile("Fotos/6.jpg", "old");
        desk.edit(4);
        desk.type("txtnome", "DAVI");
        desk.expectSave();
        // The search box shows the old name, and is a box of the window like any other.
        desk.expectNoticeText(desk.text("MsgBox1"));
        QVERIFY_EXCEPTION_THROWN(desk.window().Editar_Cliente(), RunTimeError);
        QCOMPARE(desk.cafe.readFile("Fotos/6.jpg") + desk.stored("Nome").last().toUtf8(), "oldD'ÁVILA");
    }

    void showsWhatAFileWithoutSomeFieldsKnows()
    {
        CustomerDesk desk;
        desk.change("Clientes", "Rua='RUA UM', CaminhoFoto=Null Where Codigo=1");
        desk.cafe.loseField("Clientes", "Documento");
        desk.open();
        desk.window().EditarCliente(1);
        QCOMPARE(desk.shown("txtnome") + desk.shown("txtrua") + desk.shown("cmbgrupo_clientes"), "ANA LIMARUA UMVIP");
    }

    void removesOneAndMany()
    {
        for (const auto &[last, left] : {std::pair(2, QStringList{"1", "5", "6"}), {3, {"1", "6"}}}) {
            CustomerDesk desk;
            desk.add("Clientes", "Codigo=6, Nome='DAVI'");
            for (const QString name : {"BIA SÁ", "CAIO REIS"})
                desk.cafe.executeAll({"Insert into Links (Nome,Codigo_Acesso) values ('" + name + "','" + name + "')",
                                      "Insert into Codigo_Acesso (Codigo_Acesso) values ('" + name + "')"});
            desk.open();
            desk.select(2, last);
            const bool single = last == 2;
            const QString question = single ? "MsgBox10" : "MsgBox11";
            desk.expectQuestion(question, "MsgBox1_2", vbQuestion, vbNo);
            desk.press("cmdexcluir");
            QCOMPARE(desk.stored("Codigo").size(), 4);
            desk.expectQuestion(question, "MsgBox1_2", vbQuestion, vbYes);
            desk.expectNotice(single ? "MsgBox12" : "MsgBox13", single ? "MsgBox1_2" : "MsgBox13_2");
            desk.press("cmdexcluir");
            QCOMPARE(desk.stored("Codigo"), left);
            QCOMPARE(desk.listed(0), left);
            for (const QString table : {"Links", "Codigo_Acesso"})
                QCOMPARE(desk.cafe.query("Select Codigo_Acesso from " + table),
                         left.filter("5").replaceInStrings("5", "CAIO REIS"));
        }
    }

    void beginsAtItsTopAgain()
    {
        CustomerDesk desk;
        for (int codigo = 10; codigo < 70; ++codigo)
            desk.add("Clientes", QString("Codigo=%1, Nome='C%1'").arg(codigo));
        desk.open();
        desk.enter("txtnome_busca", "c60");
        QVERIFY(!desk.list().RowIsVisible(1));
        // Keys alone pick nobody.
        pressKey(desk.list(), Qt::Key_Down);
        QCOMPARE(desk.highlighted(), QString("54-55"));
        pressKey(desk.list(), Qt::Key_Space);
        desk.expectQuestion("MsgBox10", "MsgBox1_2", vbQuestion, vbYes);
        desk.expectNotice("MsgBox12");
        desk.press("cmdexcluir");
        QVERIFY(!desk.listed(1).contains("C61") && desk.list().RowIsVisible(1));
        QCOMPARE(desk.highlighted(), QString("1-1"));
    }

    void picksNobodyInAnEmptyList()
    {
        CustomerDesk desk;
        desk.open();
        desk.select(1, 3);
        desk.expectQuestion("MsgBox11", "MsgBox1_2", vbQuestion, vbYes);
        desk.expectNotice("MsgBox13", "MsgBox13_2");
        desk.press("cmdexcluir");
        desk.expectOffer();
        desk.enterCustomer("Zoé");
        QCOMPARE(desk.highlighted(), QString());
        desk.refuses("cmdeditar", desk.text("MsgBox4"));
        desk.refuses("cmdexcluir", desk.text("MsgBox9"));
        desk.edit(1);
        QCOMPARE(desk.highlighted() + desk.shown("txtnome"), QString("1-1ZOÉ"));
    }

    void servesTheSaleWindow()
    {
        CustomerDesk desk;
        auto &sale = Forms::use<frmvenda>();
        sale.Show();
        QVERIFY(QTest::qWaitForWindowActive(&sale));
        auto &buyers = control<FlexGrid>(sale, "tab_clientes");
        clickCell(buyers, 2, 1);
        desk.machine.whileAsleep = [&] {
            for (const char *name : {"Alma", "Zoé"}) {
                desk.expectOffer();
                desk.enterCustomer(name);
            }
            desk.press("cmdsair");
        };
        click(sale, "cmdcadastro_clientes");
        QCOMPARE(buyers.TextMatrix(5, 1), QString("ZOÉ"));
        // The buyer is the same person, and the highlighted one.
        QCOMPARE(buyers.TextMatrix(buyers.Row(), 1) + control<QLineEdit>(sale, "txtnome").text(),
                 QString("BIA SÁBIA SÁ"));
        QVERIFY(buyers.selectionModel()->isRowSelected(2));
        // The program ends while the sale window waits.
        desk.machine.whileAsleep = [] { Descarregar_Forms(); };
        click(sale, "cmdcadastro_clientes");
        QVERIFY(Forms::loaded().isEmpty());
    }
};

STORY_MAIN(tst_customer_list)
#include "tst_customer_list.moc"
