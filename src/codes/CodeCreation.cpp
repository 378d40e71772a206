#include "codes/CodeCreation.h"

#include "codes/CodeState.h"
#include "codes/CodeTexts.h"
#include "configuration/Globais.h"
#include "data/Acesso_BD.h"
#include "data/Queries.h"
#include "data/Statements.h"
#include "platform/base/Err.h"
#include "platform/base/Machine.h"
#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"
#include "platform/window/Form.h"
#include "platform/window/Prompts.h"
#include "ui_frmcodigo_rapido.h"
#include "windows/Amounts.h"

#include <algorithm>

namespace {
constexpr int codeLength = 12;
constexpr quint8 stored = 255;

/// Letter by letter, so that a link is as long as its code: as a whole "ß" would become two letters.
QString upperCode(QString code)
{
    std::transform(code.cbegin(), code.cend(), code.begin(), [](QChar letter) { return letter.toUpper(); });
    return code;
}
} // namespace

CodeCreation::CodeCreation(Form &form, Ui::frmcodigo_rapido &window, CodeState &state)
    : m_form(form), ui(window), m_state(state)
{
}

QString CodeCreation::randomCode()
{
    // The digit 9 never occurs, and that stays.
    constexpr int digits = 9;
    QString code;
    while (code.size() < codeLength)
        code += QString::number(static_cast<int>(digits * Machine::current().random()));
    return code;
}

void CodeCreation::pad()
{
    ui.txtadi_cartao->setText(ui.txtadi_cartao->text().rightJustified(codeLength, '0'));
}

void CodeCreation::say(const QString &key, QWidget *focus)
{
    m_form.setMousePointer(vbDefault);
    codeTexts.notice(key);
    if (focus)
        focus->setFocus();
}

void CodeCreation::Cadastrar_Codigo(quint8 &ok)
{
    ok = 0;
    if (ui.txtadi_cartao->text().isEmpty()) {
        m_form.setMousePointer(vbDefault);
        codeTexts.notice("MsgBox4", "MsgBox4_2");
        return;
    }
    if (Tem_Apostrofo(ui.txtadi_cartao->text()))
        return say("MsgBox1", ui.txtadi_cartao);
    pad();
    if (ui.txturl->text().isEmpty())
        return say("MsgBox2", ui.txturl);
    replaceBlanks(*ui.txtvalor_disponível);
    const QString code = ui.txtadi_cartao->text();
    if (hasRow("Select Codigo_Acesso From Codigo_Acesso Where Codigo_Acesso='" + code + "'"))
        return say("MsgBox3");
    // A home page with an apostrophe breaks the statement, and nobody is told. That stays.
    executeIgnoringErrors(
        "Insert into Codigo_Acesso (Codigo_Acesso,status,Valor_Disponivel,Tipo_Codigo,URL,Data_Criacao) values ('" +
        code + "','" + "N','" + amountText(ui.txtvalor_disponível->text()) + "','" + m_state.Tipo_Inicial + "','" +
        ui.txturl->text() + "','" + FormatDate(Machine::current().now(), FormatoData) + "')");
    ok = stored;
}

void CodeCreation::Vincular_Codigo(const QString &codigo, const QString &nome)
{
    OnErrorGoToEnd([&] {
        const QString thisCode = "Where Codigo_Acesso='" + upperCode(codigo) + "'";
        QString status;
        OrRaise::readFirstRow("Select * From Codigo_Acesso " + thisCode,
                              [&](const Recordset &rs) { status = rs.Fields("Status").text(); });
        if (status == "S")
            return say("MsgBox5");
        if (OrRaise::hasRow("Select Codigo_Acesso From Codigo_Acesso " + thisCode + " And Vendido=True") &&
            !codeTexts.confirms("MsgBox6", "MsgBox1_2", vbInformation))
            return;
        m_state.Proximo_Codigo = OrRaise::keyBehind(LastLink);
        executeStatement(linkStatement(m_state.Proximo_Codigo, codigo, nome));
        executeStatement("UPDATE Codigo_Acesso Set Vinculado=True, Vendido=True Where Codigo_Acesso='" + codigo + "'");
        say("MsgBox7");
    });
}

QString CodeCreation::linkStatement(double key, const QString &codigo, const QString &nome)
{
    return "Insert into Links (Codigo, Nome, Codigo_Acesso) values (" + Cstr(key) + ",'" + nome.toUpper() + "','" +
           upperCode(codigo) + "')";
}
