#include "tests/customers/CustomerDesk.h"

#include "platform/window/PictureBox.h"
#include "sale/frmvenda.h"
#include "tests/support/Portrait.h"
#include "windows/OpenForms.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>

namespace {
const QString allFields = "Codigo,Nome,Data_Nasc,Rua,Numero,Complemento,Bairro,Cidade,UF,CEP,Tel_Residencial,"
                          "Tel_Comercial,Tel_Celular,E_mail,Obs,Grupo,Nick,Filiacao,Documento,Autorizado,CaminhoFoto,"
                          "MsgObs";
const QString nothing = "------";
} // namespace

/// A new customer, from the empty form to the row.
class tst_registration : public QObject
{
    Q_OBJECT

private slots:
    void takesACustomerByKeyboardAlone()
    {
        CustomerDesk desk;
        desk.open();
        for (const char *text : {"Davi Luz", "20051999", "Eva Luz", "rg 9", "davi", "", "Rua Um", "10", "fundos",
                                 "Centro", "Vitória", "29000000", "Rj", "1", "2", "3", "D@x.com", "Paga"}) {
            typeText(*QApplication::focusWidget(), text);
            pressKey(*QApplication::focusWidget(), Qt::Key_Return);
        }
        // Within the remark Enter begins a line.
        typeText(*QApplication::focusWidget(), "bem");
        pressKey(desk.at("txtobs"), Qt::Key_Tab);
        pressKey(desk.at("chkautorização"), Qt::Key_Space);
        desk.expectOffer();
        pressKey(desk.window(), Qt::Key_D, Qt::AltModifier);
        QTRY_COMPARE(desk.stored("Codigo").size(), 4);
        QCOMPARE(desk.stored(allFields).last(),
                 QString("6|DAVI LUZ|20/05/1999|RUA UM|10|FUNDOS|CENTRO|VITÓRIA|RJ|29.000-000|1|2|3|D@x.com|Paga\nbem|"
                         "NORMAL|DAVI|EVA LUZ|RG 9|True|-----|False"));
        QCOMPARE(desk.row(4).section('|', 0, 6), QString("6|DAVI LUZ|DAVI|NORMAL|20/05/1999|Paga\nbem|Sim"));
        QCOMPARE(desk.shown("lbltotal_clientes"), QString("4 clientes cadastrados"));
        QVERIFY(desk.at("txtnome").hasFocus());
        QCOMPARE(desk.shown("txtnome") + desk.shown("txtobs") + desk.shown("txtcidade"), QString("Serra"));
    }

    void fillsWhatIsEmptyWithPlaceholders()
    {
        CustomerDesk desk;
        desk.cafe.executeAll({"Delete from Clientes", "Delete from Grupo_Clientes", "Delete from Empresa"});
        desk.open();
        QCOMPARE(desk.shown("lbltotal_clientes"), QString("Nenhum cliente cadastrado"));
        QCOMPARE(desk.shown("lbldesconto"), QString("Desconto: 0 %"));
        QVERIFY(!desk.at("cmdexcluir").isEnabled());
        desk.at<QComboBox>("cmbUF").setEditText({});
        desk.expectOffer();
        desk.enterCustomer("x");
        QCOMPARE(desk.stored(allFields),
                 QStringList(QString("1|X|01/01/1900|%1|%1|%1|%1|%1|--|00.000-000|%1|%1|%1|%1|%1|%1|%1|%1|%1|False|"
                                     "-----|False")
                                 .arg(nothing)));
        QCOMPARE(desk.shown("lbltotal_clientes"), QString("1 cliente cadastrado"));
        QCOMPARE(desk.cafe.ini("Grupo Clientes", "Padrao"), QString("NORMAL"));
    }

    void refusesInItsOrder()
    {
        CustomerDesk desk;
        desk.open();
        desk.refuses("cmdok", desk.text("MsgBox18"), "txtnome");
        desk.type("txtnome", "Ana lima");
        desk.type("txtnick", "aninha");
        desk.type("txtdocumento", "123");
        desk.type("txtdata_nascimento", "31022020");
        desk.refuses("cmdok", desk.takenText("MsgBox6", "ANA LIMA"), "txtnome");
        desk.type("txtnome", "eva");
        desk.refuses("cmdok", desk.takenText("MsgBox7", "ANINHA"), "txtnick");
        desk.type("txtnick", "eva");
        desk.refuses("cmdok", desk.text("MsgBox8") + "123" + desk.text("MsgBox8_2") + "ANA LIMA", "txtdocumento");
        desk.type("txtdocumento", "");
        desk.refuses("cmdok", desk.text("MsgBox19"), "txtdata_nascimento");
        // The boxes up to the date have their placeholders by now, those behind it don't.
        QCOMPARE(desk.shown("txtmail") + desk.shown("txtrua"), nothing);
        desk.type("txtdata_nascimento", "16032024");
        desk.refuses("cmdok", desk.text("MsgBox20") + "15/03/2024", "txtdata_nascimento");
        desk.type("txtdata_nascimento", "15032024");
        // What the last attempt filled in is looked for like any document. It stays.
        desk.refuses("cmdok", desk.text("MsgBox8") + nothing + desk.text("MsgBox8_2") + "BIA SÁ", "txtdocumento");
        QCOMPARE(desk.stored("Codigo").size(), 3);
        desk.type("txtdocumento", "");
        desk.type("txtdata_nascimento", "1/2/1990");
        desk.expectOffer();
        desk.press("cmdok");
        QCOMPARE(desk.stored("Nome,Data_Nasc").last(), QString("EVA|1 /2 /1990"));
    }

    void warnsOfApostrophesAndThenBreaks()
    {
        CustomerDesk desk;
        desk.open();
        desk.type("txtnome", "D'Ávila");
        desk.type("txtrua", "Rua d'Água");
        desk.expectNoticeText("Nome" + desk.text("MsgBox1"));
        desk.expectNoticeText("Rua" + desk.text("MsgBox1"));
        desk.press("cmdok");
        QVERIFY(desk.at("txtrua").hasFocus());
        QCOMPARE(desk.stored("Codigo").size(), 3);
        QCOMPARE(desk.shown("txtnome"), QString("D'Ávila"));
        // The first question to the data file broke, before anything was filled in.
        QCOMPARE(desk.shown("txtbairro"), QString());
    }

    void offersACodeInTheNameAsTyped()
    {
        CustomerDesk desk;
        desk.open();
        desk.expectOffer(vbYes);
        desk.enterCustomer("<b>Eva</b>");
        const Form &sale = loadedWindow("frmcodigo_rapido");
        QCOMPARE(control<QLineEdit>(sale, "txtadi_cartao").text(), QString("6"));
        click(sale, "opttempo_indeterminado");
        desk.attendant.expect(textoIdioma(sale.Name(), "MsgBox10") + "<b>Eva</b>?", vbYesNo + vbInformation, "Aviso",
                              vbNo);
        click(sale, "cmdfinalizar");
    }

    void losesToAnotherTerminal()
    {
        CustomerDesk desk;
        desk.open();
        desk.type("txtdata_nascimento", "01012000");
        // Between the search for the next code and the insert the clock is asked for today.
        const auto now = Machine::current().now;
        Machine::current().now = [&, now] {
            if (desk.stored("Codigo").size() == 3)
                desk.add("Clientes", "Codigo=6, Nome='ELSEWHERE'");
            return now();
        };
        desk.enterCustomer("EVA");
        QCOMPARE(desk.stored("Codigo,Nome").last(), QString("6|ELSEWHERE"));
        QCOMPARE(desk.shown("txtnome"), QString("EVA"));
        desk.expectOffer();
        desk.enterCustomer("EVA");
        QCOMPARE(desk.stored("Codigo,Nome").last(), QString("7|EVA"));
    }

    void takesAPhotoThatTheSaleWindowShows()
    {
        CustomerDesk desk;
        desk.machine.installCamera().see(portrait({640, 480}));
        const auto webcam = [](const QString &button) { click(loadedWindow("frmwebcam"), button); };
        QDir(desk.cafe.path("Fotos")).removeRecursively();
        desk.open();
        desk.press("cmdwebcam");
        webcam("cmdcapturar_tela");
        webcam("cmdconfirmar");
        QCOMPARE(desk.at<PictureBox>("imgfoto").Picture().size(), QSize(640, 480));
        // Without the folder there is no photo, no customer and no word.
        desk.enterCustomer("EVA");
        QCOMPARE(desk.stored("Codigo").size(), 3);
        QVERIFY(QDir().mkpath(desk.cafe.path("fotos")));
        desk.expectOffer();
        desk.enterCustomer("EVA");
        QCOMPARE(desk.stored("CaminhoFoto").last(), (desk.cafe.folder() + "/\\Fotos\\6.jpg").toUpper());
        QVERIFY(QFile::exists(desk.cafe.path("fotos/6.jpg")));

        Descarregar_Forms();
        auto &sale = Forms::use<frmvenda>();
        sale.Show();
        QVERIFY(QTest::qWaitForWindowActive(&sale));
        clickCell(control<FlexGrid>(sale, "tab_clientes"), 4, 1);
        QCOMPARE(control<PictureBox>(sale, "imgfoto").Picture().size(), QSize(640, 480));
    }

    void keepsThePhotoForTheNextCustomerToo()
    {
        CustomerDesk desk;
        desk.cafe.setIni("Nick", "Sequencia", "1");
        desk.change("Clientes", "Nick='41' Where Codigo=1");
        desk.open();
        const QString file = desk.cafe.path("Foto Ana.png");
        QVERIFY(portrait({30, 20}).save(file));
        desk.attendant.expectOpenFile("Todas as imagens(*.*) |*.bmp;*.jpg;*.gif| Arquivos JPG (*.jpg) |*.jpg|"
                                      "Arquivos GIF (*.gif) |*.gif|Bitmap (*.bmp) |*.bmp|",
                                      file);
        desk.press("cmdadd");
        for (const char *name : {"EVA", "FÉLIX"}) {
            desk.type("txtnome", name);
            desk.expectOffer();
            desk.press("cmdok");
        }
        // A nick is proposed as the window opens.
        QCOMPARE(desk.stored("Nick,CaminhoFoto").mid(3),
                 (QStringList{"42|" + file.toUpper(), "------|" + file.toUpper()}));
    }
};

STORY_MAIN(tst_registration)
#include "tst_registration.moc"
