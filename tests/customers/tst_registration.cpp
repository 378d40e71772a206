#include "tests/customers/CustomerDesk.h"

#include "data/Funcoes.h"
#include "platform/base/Machine.h"
#include "platform/window/Forms.h"
#include "platform/window/PictureBox.h"
#include "sale/frmvenda.h"
#include "tests/support/FakeCamera.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QImage>
#include <QTest>

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
        const QStringList chain{"Davi Luz", "20051999", "Eva Luz", "rg 9",   "davi",    "",
                                "Rua Um",   "10",       "fundos",  "Centro", "Vitória", "29000000",
                                "Rj",       "1",        "2",       "3",      "D@x.com", "Paga\nbem"};
        for (const QString &text : chain) {
            if (&text != &chain.first())
                pressKey(*QApplication::focusWidget(), Qt::Key_Return);
            for (const QString &line : text.split('\n')) {
                if (!text.startsWith(line))
                    pressKey(*QApplication::focusWidget(), Qt::Key_Return);
                typeText(*QApplication::focusWidget(), line);
            }
        }
        pressKey(desk.at("txtobs"), Qt::Key_Tab);
        pressKey(desk.at("chkautorização"), Qt::Key_Space);
        desk.expectOffer();
        pressKey(desk.window(), Qt::Key_D, Qt::AltModifier);
        QTRY_COMPARE(desk.stored("Codigo").size(), 4);
        QCOMPARE(desk.cafe.query("Select " + allFields + " from Clientes Where Codigo=6").value(0).join('|'),
                 QString("6|DAVI LUZ|20/05/1999|RUA UM|10|FUNDOS|CENTRO|VITÓRIA|RJ|29.000-000|1|2|3|D@x.com|Paga\nbem|"
                         "NORMAL|DAVI|EVA LUZ|RG 9|True|-----|False"));
        const QStringList row{"6", "DAVI LUZ", "DAVI", "NORMAL", "20/05/1999", "Paga\nbem", "Sim"};
        for (int column = 0; column < row.size(); ++column)
            QCOMPARE(desk.list().TextMatrix(4, column), row[column]);
        QCOMPARE(desk.shown("lbltotal_clientes"), QString("4 clientes cadastrados"));
        QVERIFY(desk.at("txtnome").hasFocus());
        QCOMPARE(desk.shown("txtnome") + desk.shown("txtobs") + desk.shown("txtcidade"), QString("Serra"));
    }

    void fillsWhatIsEmptyWithPlaceholders()
    {
        CustomerDesk desk;
        desk.cafe.execute("Delete from Clientes");
        desk.cafe.execute("Delete from Grupo_Clientes");
        desk.cafe.execute("Delete from Empresa");
        desk.open();
        QCOMPARE(desk.shown("lbltotal_clientes"), QString("Nenhum cliente cadastrado"));
        QVERIFY(!desk.at("cmdexcluir").isEnabled());
        desk.type("txtnome", "x");
        desk.at<QComboBox>("cmbUF").setEditText({});
        desk.expectOffer();
        desk.press("cmdok");
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
        const auto refused = [&](const QString &focus) {
            desk.press("cmdok");
            QVERIFY(desk.at(focus).hasFocus());
            QCOMPARE(desk.stored("Codigo").size(), 3);
        };
        desk.expectNotice("MsgBox18");
        refused("txtnome");
        desk.type("txtnome", "Ana lima");
        desk.type("txtnick", "aninha");
        desk.type("txtdocumento", "123");
        desk.type("txtdata_nascimento", "31022020");
        desk.expectNoticeText(desk.takenText("MsgBox6", "ANA LIMA"));
        refused("txtnome");
        desk.type("txtnome", "eva");
        desk.expectNoticeText(desk.takenText("MsgBox7", "ANINHA"));
        refused("txtnick");
        desk.type("txtnick", "eva");
        desk.expectNoticeText(desk.text("MsgBox8") + "123" + desk.text("MsgBox8_2") + "ANA LIMA");
        refused("txtdocumento");
        desk.type("txtdocumento", "");
        desk.expectNotice("MsgBox19");
        refused("txtdata_nascimento");
        // The boxes up to the date have their placeholders by now, those behind it don't.
        QCOMPARE(desk.shown("txtmail"), nothing);
        QCOMPARE(desk.shown("txtrua"), QString());
        desk.type("txtdata_nascimento", "16032024");
        desk.expectNoticeText(desk.text("MsgBox20") + "15/03/2024");
        refused("txtdata_nascimento");
        desk.type("txtdata_nascimento", "15032024");
        // What the last attempt filled in is looked for like any document. It stays.
        desk.expectNoticeText(desk.text("MsgBox8") + nothing + desk.text("MsgBox8_2") + "BIA SÁ");
        refused("txtdocumento");
        desk.type("txtdocumento", "");
        desk.expectOffer();
        desk.press("cmdok");
        QCOMPARE(desk.stored("Nome,Data_Nasc").last(), QString("EVA|15/03/2024"));
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
        QCOMPARE(desk.shown("txtbairro"), nothing);
    }

    void losesToAnotherTerminal()
    {
        CustomerDesk desk;
        desk.open();
        desk.type("txtnome", "EVA");
        desk.type("txtdata_nascimento", "01012000");
        // Between the search for the next code and the insert the clock is asked for today.
        const auto now = Machine::current().now;
        Machine::current().now = [&, now] {
            if (desk.stored("Codigo").size() == 3)
                desk.addCustomer(6, "ELSEWHERE");
            return now();
        };
        desk.press("cmdok");
        QCOMPARE(desk.stored("Codigo,Nome").last(), QString("6|ELSEWHERE"));
        QCOMPARE(desk.shown("txtnome"), QString("EVA"));
        for (const char *box : {"txtnick", "txtdocumento"})
            desk.type(box, "");
        desk.expectOffer();
        desk.press("cmdok");
        QCOMPARE(desk.stored("Codigo,Nome").last(), QString("7|EVA"));
    }

    void keepsPastedTextAsItCame()
    {
        CustomerDesk desk;
        desk.open();
        const QString pasted = "Zoé\tda\nSilva 😀";
        QGuiApplication::clipboard()->setText(pasted);
        for (const char *box : {"txtnome", "txtfiliação", "txtdocumento", "txtnick", "txtrua", "txtmail", "txtobs",
                                "txtdata_nascimento", "txtCep"}) {
            desk.at(box).setFocus();
            pressKey(desk.at(box), Qt::Key_A, Qt::ControlModifier);
            pressKey(desk.at(box), Qt::Key_V, Qt::ControlModifier);
        }
        desk.expectOffer();
        desk.press("cmdok");
        QCOMPARE(desk.cafe.query("Select Nome,E_mail,Obs,Data_Nasc,CEP from Clientes Where Codigo=6").value(0),
                 (QStringList{"ZOÉ DA SILVA 😀", "Zoé da Silva 😀", pasted, "01/01/1900", "29.160-000"}));
    }

    void takesAPhotoThatTheSaleWindowShows()
    {
        CustomerDesk desk;
        desk.machine.installCamera().see(portrait({640, 480}));
        const auto webcam = [](const QString &button) { click(loadedWindow("frmwebcam"), button); };
        const auto add = [&] {
            desk.type("txtnome", "EVA");
            for (const char *box : {"txtnick", "txtdocumento"})
                desk.type(box, "");
            desk.press("cmdok");
        };
        QDir(desk.cafe.path("Fotos")).removeRecursively();
        desk.open();
        desk.press("cmdwebcam");
        webcam("cmdcapturar_tela");
        webcam("cmdconfirmar");
        QCOMPARE(desk.at<PictureBox>("imgfoto").Picture().size(), QSize(640, 480));
        // Without the folder there is no photo, no customer and no word.
        add();
        QCOMPARE(desk.stored("Codigo").size(), 3);
        QVERIFY(QDir().mkpath(desk.cafe.path("fotos")));
        desk.expectOffer();
        add();
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
        desk.cafe.execute("Update Clientes Set Nick='41' Where Codigo=1");
        desk.open();
        const QString file = desk.cafe.path("Foto Ana.png");
        QImage image(30, 20, QImage::Format_RGB32);
        image.fill(Qt::red);
        QVERIFY(image.save(file));
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

QTEST_MAIN(tst_registration)
#include "tst_registration.moc"
