#include "tests/customers/CustomerDesk.h"

#include "customers/PhotoBox.h"
#include "platform/base/Err.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTest>

namespace {
/// Tables that point to a customer by name.
const QStringList pointing{"Links",         "Lista_espera",  "Log", "Clientes_Bloqueados", "Monitor_Impressao",
                           "Venda_Codigos", "Venda_Produtos"};
} // namespace

/// An edited customer, what follows from another name or nick, and the end of customers.
class tst_editing : public QObject
{
    Q_OBJECT

private slots:
    void carriesNameAndNickOver()
    {
        CustomerDesk desk;
        int code = 0;
        const auto isPlain = [](const QString &table) { return table != "Links" && !table.startsWith("Venda"); };
        for (const QString &table : pointing)
            for (const QString name : {"ANA LIMA", "Ana Lima"}) {
                const QString key = isPlain(table) ? "Nick" : "Codigo,Nick";
                const QString keys = isPlain(table) ? "'ANINHA'" : QString::number(++code) + ",'ANINHA'";
                desk.cafe.execute(
                    table == "Links"
                        ? QString("Insert into Links (Codigo,Nome) values (%1,'%2')").arg(++code).arg(name)
                        : QString("Insert into %1 (%2,Nome) values (%3,'%4')").arg(table, key, keys, name));
            }
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
        for (const QString &table : pointing)
            for (const QString row : {"ANA LUZ|LUZ", "Ana Lima|ANINHA"}) {
                const QString nick = table == "Links" ? QString() : " AND Nick='" + row.section('|', 1) + "'";
                QCOMPARE(desk.cafe.value("Select Count(*) from " + table + " Where Nome='" + row.section('|', 0, 0) +
                                         "'" + nick),
                         QString("1"));
            }
        QCOMPARE(desk.stored("Nome,Nick,Grupo,Obs,Autorizado,Data_Nasc,UF,Rua").first(),
                 QString("ANA LUZ|LUZ|VIP|Nova|False|01/01/1900|--|------"));
        for (int column = 0; column < 7; ++column)
            QCOMPARE(desk.listed(column).first(),
                     (QStringList{"1", "ANA LUZ", "LUZ", "VIP", "01/01/1900", "Nova", "Não"})[column]);
        QCOMPARE(desk.shown("cmdeditar"), desk.text("String10"));
        QVERIFY(desk.at("cmdok").isEnabled());
        QCOMPARE(desk.shown("txtnome") + desk.shown("txtcidade") + desk.shown("cmbgrupo_clientes"),
                 QString("SerraNORMAL"));
    }

    void refusesWhatOthersHave()
    {
        CustomerDesk desk;
        desk.addCustomer(6, "DAVI", "Documento='9', Nick='DAVI'");
        // The state of an edit is told by the button's text, in any language.
        desk.cafe.setIni("Config_Regional", "Idioma", "Ingles.lng");
        desk.cafe.start();
        desk.open();
        desk.edit(2);
        desk.type("txtdata_nascimento", "");
        const auto refused = [&](const QString &focus, const QString &refusal) {
            desk.expectSave();
            desk.expectNoticeText(refusal);
            desk.press("cmdeditar");
            QVERIFY(desk.at(focus).hasFocus());
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
        QVERIFY(QDir().mkpath(desk.cafe.path("Fotos")));
        QImage image(35, 29, QImage::Format_RGB32);
        image.fill(Qt::blue);
        QVERIFY(image.save(desk.cafe.path("Fotos/1.jpg")));
        desk.cafe.execute("Update Clientes Set CaminhoFoto='" + desk.cafe.path("Fotos/1.jpg").toUpper() +
                          "' Where Codigo=1");
        desk.open();
        desk.edit(1);
        QCOMPARE(desk.at<PictureBox>("imgfoto").Picture().size(), QSize(35, 29));
        desk.expectSave();
        desk.press("cmdeditar");
        QCOMPARE(desk.stored("CaminhoFoto").first(), QString("-----"));
        QVERIFY(QFile::exists(desk.cafe.path("Fotos/1.jpg")));
    }

    void endsWithTheFirstFailure()
    {
        CustomerDesk desk;
        desk.addCustomer(6, "D''ÁVILA");
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
        // What was executed before the failure stays: here the row itself, while the old name breaks what follows.
        desk.edit(4);
        desk.type("txtnome", "DAVI");
        desk.type("txtnick", "DAVI");
        desk.expectSave();
        // The search box shows the old name, and is a box of the window like any other.
        desk.expectNoticeText(desk.text("MsgBox1"));
        QVERIFY_EXCEPTION_THROWN(desk.window().Editar_Cliente(), RunTimeError);
        QCOMPARE(desk.stored("Nome").last(), QString("DAVI"));
        QCOMPARE(desk.listed(1).last(), QString("D'ÁVILA"));
    }

    void removesOneAndMany_data()
    {
        QTest::addColumn<int>("to");
        QTest::addColumn<QStringList>("left");
        QTest::newRow("one") << 2 << QStringList{"1", "5", "6"};
        QTest::newRow("many") << 3 << QStringList{"1", "6"};
    }

    void removesOneAndMany()
    {
        QFETCH(int, to);
        QFETCH(QStringList, left);
        CustomerDesk desk;
        desk.addCustomer(6, "DAVI");
        for (const char *name : {"BIA SÁ", "CAIO REIS"}) {
            desk.cafe.execute(QString("Insert into Links (Codigo,Nome,Codigo_Acesso) values (%1,'%2','%2')")
                                  .arg(int(name[0]))
                                  .arg(name));
            desk.cafe.execute(QString("Insert into Codigo_Acesso (Codigo_Acesso) values ('%1')").arg(name));
        }
        desk.open();
        const bool single = to == 2;
        clickCell(desk.list(), 2, 1);
        if (!single)
            clickCell(desk.list(), to, 1, Qt::ShiftModifier);
        desk.expectQuestion(single ? "MsgBox10" : "MsgBox11", "MsgBox1_2", vbQuestion, vbNo);
        desk.press("cmdexcluir");
        QCOMPARE(desk.stored("Codigo").size(), 4);
        desk.expectQuestion(single ? "MsgBox10" : "MsgBox11", "MsgBox1_2", vbQuestion, vbYes);
        desk.expectNotice(single ? "MsgBox12" : "MsgBox13", single ? "MsgBox1_2" : "MsgBox13_2");
        desk.press("cmdexcluir");
        QCOMPARE(desk.stored("Codigo"), left);
        QCOMPARE(desk.listed(0), left);
        QCOMPARE(desk.cafe.value("Select Count(*) from Links"), QString::number(single ? 1 : 0));
        QCOMPARE(desk.cafe.value("Select Count(*) from Codigo_Acesso"), QString::number(single ? 1 : 0));
    }
};

QTEST_MAIN(tst_editing)
#include "tst_editing.moc"
