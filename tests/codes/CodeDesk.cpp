#include "tests/codes/CodeDesk.h"

#include "codes/frmcodigo_rapido.h"
#include "configuration/Idiomas.h"
#include "data/Funcoes.h"
#include "platform/window/Forms.h"

#include <QTest>

namespace {
QStringList rows(TestCafe &cafe, const QString &sql)
{
    QStringList lines;
    for (const QStringList &row : cafe.query(sql))
        lines += row.join('|');
    return lines;
}
} // namespace

CodeDesk::CodeDesk(const QString &kind)
{
    cafe.execute("Insert into Registro_Caixa (ID_Caixa,Caixa_Aberto) values (7,True)");
    cafe.execute("Insert into Clientes (Codigo,Nome,Nick,Grupo) values (7,'ANA LIMA','ANINHA','VIP')");
    cafe.setIni("Codigo Rapido", "Tipo", kind);
    cafe.setIni("Recibo Codigo", "Imprimir", "0");
    cafe.start();
    Salvar_Escala_Impressora();
}

void CodeDesk::addRule(int code, const QString &changes)
{
    cafe.execute(QString("Insert into Descontos (Codigo,Motivo_Desconto,Fixo,Relativo,Absoluto,Grupo,Categoria,"
                         "AtoCadastro,Valor,TipoVenda,Condicao,LiberarAuto) values (%1,'REGRA %1',True,'0','0','---',"
                         "'-----',False,'0','1','1',True)")
                     .arg(code));
    cafe.execute("Update Descontos Set " + changes + " Where Codigo=" + QString::number(code));
}

void CodeDesk::open()
{
    auto &form = Forms::use<frmcodigo_rapido>();
    form.Venda_ao_Cliente("ANA LIMA", "aninha");
    form.Show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
}

bool CodeDesk::isOpen() const
{
    return Form_Aberto("frmcodigo_rapido");
}

QString CodeDesk::text(const QString &key) const
{
    return textoIdioma("frmcodigo_rapido", key);
}

void CodeDesk::expectQuestion(const QString &total, const QString &reduced, int answer)
{
    const QString discount = reduced.isEmpty() ? QString() : text("MsgBox13_3") + "R$ " + reduced;
    attendant.expect(text("MsgBox13") + "R$ " + total + discount + text("MsgBox13_4") + "\nANA LIMA ? ",
                     vbYesNo + vbInformation, text("MsgBox1_2"), answer);
}

void CodeDesk::expectLinkQuestion(int answer)
{
    attendant.expect(text("MsgBox10") + "ANA LIMA?", vbYesNo + vbInformation, text("MsgBox1_2"), answer);
}

void CodeDesk::sell(const QString &total, const QString &reduced)
{
    expectQuestion(total, reduced);
    expectNotice("MsgBox14");
    press("cmdfinalizar");
    QVERIFY(!isOpen());
}

QStringList CodeDesk::codes()
{
    return rows(cafe,
                "Select Codigo_Acesso,Status,Valor_Disponivel,Tipo_Codigo,URL,Data_Criacao,Vinculado,Vendido from "
                "Codigo_Acesso Order By Codigo_Acesso");
}

QStringList CodeDesk::sales()
{
    return rows(cafe, "Select Codigo,Data,Hora,Codigo_Acesso,Nome,Nick,Valor,Recarregamento,Avulsa,Desconto,"
                      "Motivo_Desconto,Id_Caixa from Venda_Codigos Order By Codigo");
}

QStringList CodeDesk::links()
{
    return rows(cafe, "Select Codigo,Nome,Codigo_Acesso from Links Order By Codigo");
}

void CodeDesk::refused(const QString &key, const QString &focus)
{
    expectNotice(key);
    press("cmdfinalizar");
    QVERIFY(focus.isEmpty() || at(focus).hasFocus());
    QVERIFY(sales().isEmpty() && links().isEmpty());
}
