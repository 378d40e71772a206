#include "tests/customers/CustomerDesk.h"

#include "data/Funcoes.h"
#include "platform/window/Forms.h"
#include "sale/frmvenda.h"

#include <QTest>

/// The list of customers, and the road to it from the sale window.
class tst_customer_list : public QObject
{
    Q_OBJECT

private slots:
    void sortsByTheColumnClicked()
    {
        CustomerDesk desk;
        desk.cafe.execute("Update Clientes Set Nick='Águia' Where Codigo=5");
        desk.open();
        QCOMPARE(desk.listed(0), (QStringList{"1", "2", "5"}));
        clickCell(desk.list(), 3, 2);
        QCOMPARE(desk.shown("txtnome_busca"), QString("CAIO REIS"));
        desk.press("cmdordenar");
        QCOMPARE(desk.listed(2), (QStringList{"------", "Águia", "ANINHA"}));
        QVERIFY(!desk.list().CellPicture().isNull());
        QCOMPARE(desk.list().Row() * 10 + desk.list().Col(), 2);
        // The headings are the current row now, and no customer.
        desk.expectNotice("MsgBox4");
        desk.press("cmdeditar");
        desk.expectNotice("MsgBox9");
        desk.press("cmdexcluir");
    }

    void findsByTheStartOfNameOrNick()
    {
        CustomerDesk desk;
        desk.addCustomer(6, "ANABEL", "Nick='BIBI'");
        desk.open();
        const auto found = [&](const QString &text) {
            desk.type("txtnome_busca", text);
            pressKey(desk.at("txtnome_busca"), Qt::Key_Return);
            return desk.list().Row();
        };
        QCOMPARE(found("an"), 1);
        QCOMPARE(found("anab"), 4);
        QCOMPARE(found("bib"), 4);
        QCOMPARE(desk.shown("txtnome_busca"), QString("ANABEL"));
        for (const char *text : {"lima", ""}) {
            desk.expectNotice("MsgBox2");
            QCOMPARE(found(text), 4);
        }
        // A second press looks for the whole name that was found, further down.
        desk.addCustomer(7, "ANA LIMA NETA");
        desk.open();
        desk.type("txtnome_busca", "an");
        for (const int row : {1, 5}) {
            desk.press("cmdbusca");
            QCOMPARE(desk.list().Row(), row);
        }
        desk.expectNotice("MsgBox2");
        desk.press("cmdbusca");
        desk.type("txtnome_busca", "a");
        desk.press("cmdbusca");
        QCOMPARE(desk.list().Row(), 1);
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

    void servesTheSaleWindow()
    {
        CustomerDesk desk;
        auto &sale = Forms::use<frmvenda>();
        sale.Show();
        QVERIFY(QTest::qWaitForWindowActive(&sale));
        desk.machine.whileAsleep = [&] {
            desk.type("txtnome", "Zoé");
            desk.expectOffer();
            desk.press("cmdok");
            desk.press("cmdsair");
        };
        click(sale, "cmdcadastro_clientes");
        QCOMPARE(control<FlexGrid>(sale, "tab_clientes").TextMatrix(4, 1), QString("ZOÉ"));
        // The program ends while the sale window waits.
        desk.machine.whileAsleep = [] { Descarregar_Forms(); };
        click(sale, "cmdcadastro_clientes");
        QVERIFY(Forms::loaded().isEmpty());
    }
};

QTEST_MAIN(tst_customer_list)
#include "tst_customer_list.moc"
