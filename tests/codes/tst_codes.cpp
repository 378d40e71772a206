#include "codes/frmcodigo_rapido.h"
#include "tests/support/PdfText.h"
#include "tests/support/TestDesk.h"

#include <QLineEdit>

namespace {
/// The window of the access codes, opened for ANA LIMA, who is customer 7 here. Codes are paid before, and neither
/// receipt nor label is asked for.
class CodeDesk : public TestDesk
{
public:
    explicit CodeDesk(const QString &kind = "1") : TestDesk({"frmcodigo_rapido", {}, "Venda_Codigos"}, openForAna)
    {
        change("Clientes", "Codigo=7");
        cafe.setIni("Codigo Rapido", "Tipo", kind);
        cafe.setIni("Recibo Codigo", "Imprimir", "0");
    }

    /// Adds a fixed, automatic rule for codes of everybody; `changes` are the fields that differ.
    void addRule(int code, const QString &changes)
    {
        add("Descontos", QString("TipoVenda='1', Motivo_Desconto='REGRA %1', Codigo=%1").arg(code));
        change("Descontos", changes + QString(" Where Codigo=%1").arg(code));
    }
    /// The question whether to sell; `reduced` is empty without a discount.
    void expectQuestion(const QString &total, const QString &reduced = {}, int answer = vbYes,
                        const Place &where = Place::current())
    {
        const QString discount = reduced.isEmpty() ? QString() : text("MsgBox13_3") + "R$ " + reduced;
        attendant.expect(text("MsgBox13") + "R$ " + total + discount + text("MsgBox13_4") + "\nANA LIMA ? ",
                         vbYesNo + vbInformation, text("MsgBox1_2"), answer, {}, where);
    }
    /// Confirms and states that it sells.
    void sell(const QString &total, const QString &reduced = {}, const Place &where = Place::current())
    {
        expectQuestion(total, reduced, vbYes, where);
        expectNotice("MsgBox14", where);
        press("cmdfinalizar");
        require(!isOpen(), "The window stays open", where);
    }
    /// Confirms and states that it is refused with that text, that focus and nothing stored.
    void refused(const QString &key, const QString &focus = {}, const Place &where = Place::current())
    {
        refuses("cmdfinalizar", text(key), focus, where);
        require(sales().isEmpty() && links().isEmpty(), "Something is stored", where);
    }

    QStringList codes()
    {
        return cafe.query("Select Codigo_Acesso,Status,Valor_Disponivel,Tipo_Codigo,URL,Data_Criacao,Vinculado,Vendido "
                          "from Codigo_Acesso Order By Codigo_Acesso");
    }
    QStringList sales()
    {
        return stored("Codigo,Data,Hora,Codigo_Acesso,Nome,Nick,Valor,Recarregamento,Avulsa,Desconto,Motivo_Desconto,"
                      "Id_Caixa");
    }
    QStringList links() { return stored("Codigo,Nome,Codigo_Acesso", "Links"); }

private:
    static Form &openForAna()
    {
        auto &form = Forms::use<frmcodigo_rapido>();
        form.Venda_ao_Cliente("Ana Lima", "aninha");
        return form;
    }
};
} // namespace

/// A customer's access code, from the first proposal to the row.
class tst_codes : public QObject
{
    Q_OBJECT

    const QString page = "http://www.example.com/";

private slots:
    void sellsACodePaidBefore()
    {
        CodeDesk desk;
        desk.open();
        QCOMPARE(desk.shown("txtvalor_disponível") + desk.shown("txturl"), "5" + page);
        desk.type("txtvalor_disponível", "1.5,-0");
        QCOMPARE(desk.shown("lbltotal") + desk.shown("lbltotal_final"), QString("R$ 1,50R$ 1,50"));
        desk.expectQuestion("1,50", {}, vbNo);
        pressKey(desk.at("txtvalor_disponível"), Qt::Key_Return);
        QVERIFY(desk.isOpen() && desk.codes().isEmpty());
        desk.sell("1,50");
        QCOMPARE(desk.codes(), QStringList("000000000007|N|1,50|E|" + page + "|15/03/2024|True|True"));
        QCOMPARE(desk.sales(), QStringList("1|15/03/2024|14:30:05|000000000007|ANA LIMA|ANINHA|1,50|False|False|0,00|"
                                           "-----------|7"));
        QCOMPARE(desk.links(), QStringList("1|ANA LIMA|000000000007"));
        QCOMPARE(desk.machine.sounds.size(), 1);
        QVERIFY(desk.machine.openedDocuments.isEmpty());
    }

    void linksACodePaidAfter()
    {
        CodeDesk desk("0");
        desk.cafe.setIni("Codigo_Acesso", "Ocultar", "1");
        desk.open();
        QVERIFY(!desk.at("frame_conjunto_valor").isVisible() && !desk.at("chkrecibo").isVisible());
        QCOMPARE(desk.at<QLineEdit>("txtadi_cartao").echoMode(), QLineEdit::Password);
        desk.press("optexpira");
        QVERIFY(desk.at("frame_conjunto_valor").isVisible());
        desk.press("opttempo_indeterminado");
        desk.enter("txtadi_cartao", "straße");
        QVERIFY(desk.at("txturl").hasFocus());
        const auto confirm = [&](int answer) {
            desk.attendant.expect(desk.text("MsgBox10") + "Ana Lima?", vbYesNo + vbInformation, "Aviso", answer);
            if (answer == vbYes)
                desk.expectNotice("MsgBox7");
            pressKey(desk.at("txturl"), Qt::Key_Return);
        };
        confirm(vbNo);
        QVERIFY(desk.isOpen() && desk.codes().isEmpty());
        confirm(vbYes);
        QVERIFY(!desk.isOpen());
        // The code is stored as it was typed; its link is in capitals, as long as the code.
        QCOMPARE(desk.codes(), QStringList("000000straße|N|0,00|I|" + page + "|15/03/2024|True|True"));
        QCOMPARE(desk.links(), QStringList("1|ANA LIMA|000000STRAßE"));
        QVERIFY(desk.sales().isEmpty() && desk.machine.sounds.isEmpty());
    }

    void refusesInItsOrder()
    {
        CodeDesk desk;
        desk.cafe.execute("Insert into Codigo_Acesso (Codigo_Acesso) values ('000000000007')");
        desk.addRule(1, "Condicao='2', Valor='30', Fixo=False, Motivo_Desconto=''");
        desk.open();
        desk.change("Registro_Caixa", "Caixa_Aberto=False");
        desk.type("txturl", "");
        desk.refused("MsgBox8");
        desk.change("Registro_Caixa", "Caixa_Aberto=True");
        desk.refused("MsgBox2", "txturl");
        desk.type("txturl", "x");
        desk.type("txtvalor_disponível", "5");
        desk.type("txtvalor_desconto", "6");
        desk.refused("MsgBox11", "txtvalor_desconto");
        desk.type("txtvalor_desconto", "1");
        desk.refused("MsgBox12", "txtmotivo");
        desk.change("Descontos", "Motivo_Desconto='ANIVERSÁRIO'");
        desk.refused("MsgBox17", "txtmotivo");
        desk.change("Descontos", "Valor='5'");
        // A code with or without its zeros is one code.
        desk.expectQuestion("5,00", "4,00");
        desk.refused("MsgBox3");
        desk.type("txtadi_cartao", "a'b");
        desk.expectQuestion("5,00", "4,00");
        desk.refused("MsgBox1", "txtadi_cartao");
        // A drawn code never has a nine.
        Machine::current().random = [] { return 0.9999; };
        desk.press("cmdaleatorio");
        QCOMPARE(desk.shown("txtadi_cartao"), QString(12, '8'));
        desk.cafe.execute("Insert into Links (Codigo,Nome) values (3,'ANA LIMA')");
        desk.expectNotice("MsgBox9");
        desk.press("cmdfinalizar");
        QVERIFY(!desk.isOpen() && desk.sales().isEmpty());
    }

    void putsRegistrationRulesFirst()
    {
        const std::pair<QString, QString> cases[] = {
            {"1 Relativo='10'|2 Relativo='20', Grupo='VIP'", "16,00"},
            {"1 Absoluto='3', AtoCadastro=True|2 Relativo='20', Grupo='VIP'", "17,00"},
            {"1 Absoluto='3', AtoCadastro=True|2 Absoluto='4', AtoCadastro=True, Grupo='VIP'", "16,00"},
            {"1 Relativo='10', TipoVenda='2'|2 Relativo='10', Valor='X'", "20,00"},
        };
        for (const auto &[rules, final] : cases) {
            CodeDesk desk;
            for (const QString &rule : rules.split('|'))
                desk.addRule(rule.section(' ', 0, 0).toInt(), rule.section(' ', 1));
            desk.open();
            desk.type("txtvalor_disponível", "20");
            QCOMPARE(desk.shown("lbltotal_final"), "R$ " + final);
            const bool found = final != "20,00";
            desk.sell("20,00", found ? final : QString());
            QCOMPARE(desk.codes().value(0).section('|', 2, 2), QString("20,00"));
            QCOMPARE(desk.sales().value(0).section('|', 10, 10) == "-----------", !found);
        }
    }

    void givesNobodyTheDiscountOfAnother()
    {
        CodeDesk desk;
        desk.addRule(2, "Absoluto='3', Grupo='VIP'");
        desk.add("Clientes", "Codigo=8, Nome='BIA SÁ'");
        desk.open();
        desk.type("txtvalor_disponível", "20");
        QCOMPARE(desk.shown("lbltotal_final"), QString("R$ 17,00"));
        // The window is still open when the next customer wants a code, and a rule is made that no list has.
        desk.addRule(4, "Absoluto='5', Grupo='NORMAL', Valor='30'");
        static_cast<frmcodigo_rapido &>(desk.window()).Venda_ao_Cliente("Bia Sá", "bia");
        QCOMPARE(desk.shown("txtadi_cartao") + desk.shown("lbltotal_final"), QString("8R$ 20,00"));
        QVERIFY(desk.at("chkdesconto").isEnabled());
        desk.type("txtvalor_disponível", "30");
        QCOMPARE(desk.shown("lbltotal_final"), QString("R$ 25,00"));
    }

    void storesTheDiscountThatWasConfirmed()
    {
        CodeDesk desk;
        desk.addRule(1, "Absoluto='5', LiberarAuto=False");
        desk.open();
        desk.type("txtvalor_disponível", "20");
        desk.press("chkdesconto");
        desk.sell("20,00", "15,00");
        QCOMPARE(desk.sales().value(0).section('|', 9, 10), QString("5,00|REGRA 1"));
    }

    void leavesWhatFailsUnseen()
    {
        CodeDesk desk;
        desk.open();
        desk.type("txturl", "http://d'agua");
        desk.type("txtvalor_disponível", "");
        desk.sell("0,00");
        QVERIFY(desk.codes().isEmpty());
        QCOMPARE(desk.links(), QStringList("1|ANA LIMA|000000000007"));
    }

    void printsTheReceipt()
    {
        CodeDesk desk;
        const QString device = desk.machine.installPort(2);
        desk.cafe.setIni("Recibo Codigo", "Imprimir", "1");
        desk.cafe.setIni("Recibo", "Via", "2");
        desk.addRule(1, "Relativo='10', Motivo_Desconto='BOAS-VINDAS'");
        desk.open();
        desk.type("txtvalor_disponível", "1200");
        desk.sell("1200,00", "1080,00");
        const QStringList lines = pdfLines(desk.machine.openedDocuments.value(0));
        for (const QString text : {"Recibo nº 00001 / 00001", "Cliente: ANA LIMA", "Recebemos de Ana Lima",
                                   "Referente ao código de acesso de Ana Lima", "Total:       R$ 1.200,00",
                                   "Desconto:    R$ 120,00 (BOAS-VINDAS)", "Total final: R$ 1.080,00"})
            QVERIFY2(lines.filter(text).size() == 2, qPrintable(text));
        desk.cafe.execute("Delete from Links");
        desk.cafe.setIni("Recibo", "Via", "1");
        desk.cafe.setIni("Matricial", "Ativo", "1");
        desk.cafe.setIni("Matricial", "Porta", "LPT2");
        desk.open();
        desk.press("cmdaleatorio");
        desk.sell("5,00", "4,50");
        QCOMPARE(desk.cafe.readFile(device), desk.cafe.readGolden(GOLDEN_FOLDER "port_code.txt"));
        QCOMPARE(desk.cafe.ini("Recibo", "ID_Total", "inf.rcb"), QString("2"));
    }
};

STORY_MAIN(tst_codes)
#include "tst_codes.moc"
