#include "codes/CodeSale.h"

#include "checkout/SaleDiscount.h"
#include "checkout/SaleSound.h"
#include "codes/CodeCreation.h"
#include "codes/CodeLabel.h"
#include "codes/CodeReceipt.h"
#include "codes/CodeState.h"
#include "codes/CodeTexts.h"
#include "configuration/Globais.h"
#include "data/Acesso_BD.h"
#include "data/CashPeriod.h"
#include "data/Lookups.h"
#include "data/Queries.h"
#include "data/Statements.h"
#include "platform/base/Machine.h"
#include "platform/files/IniProfile.h"
#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"
#include "platform/window/Form.h"
#include "platform/window/Prompts.h"
#include "ui_frmcodigo_rapido.h"
#include "windows/Amounts.h"

CodeSale::CodeSale(Form &form, Ui::frmcodigo_rapido &window, CodeState &state, SaleDiscount &discount,
                   CodeCreation &creation)
    : m_form(form), ui(window), m_state(state), m_discount(discount), m_creation(creation)
{
}

void CodeSale::cmdfinalizar_Click()
{
    if (!Caixa_Aberto())
        return m_creation.say("MsgBox8");
    m_form.setMousePointer(vbHourglass);
    if (prepare()) {
        if (ui.opttempo_indeterminado->isChecked())
            linkCode();
        else
            sellCode();
    }
    m_form.setMousePointer(vbDefault);
}

bool CodeSale::prepare()
{
    m_state.Avulsa_Venda = 0;
    m_state.Recarga_Venda = 0;
    m_creation.pad();
    TextBox *value = ui.txtvalor_disponível;
    if (value->isEnabled() && !IsNumeric(value->text()))
        value->setText("0");
    if (ui.txturl->text().isEmpty()) {
        m_creation.say("MsgBox2", ui.txturl);
        return false;
    }
    // The customer got a code elsewhere while this window was open.
    if (Tem_Link(m_state.Nome_Cliente.toUpper())) {
        m_creation.say("MsgBox9");
        m_form.Unload();
        return false;
    }
    return true;
}

void CodeSale::linkCode()
{
    m_form.setMousePointer(vbDefault);
    if (MsgBox(codeTexts.text("MsgBox10") + m_state.Nome_Cliente + "?", vbYesNo + vbInformation,
               codeTexts.text("MsgBox1_2")) != vbYes)
        return;
    quint8 created = 0;
    m_creation.Cadastrar_Codigo(created);
    if (created == 0)
        return;
    m_creation.Vincular_Codigo(ui.txtadi_cartao->text(), m_state.Nome_Cliente);
    printLabel();
    m_form.Unload();
}

void CodeSale::sellCode()
{
    if (!discountIsFair() || !confirmsSale())
        return;
    quint8 created = 0;
    m_creation.Cadastrar_Codigo(created);
    if (created == 0)
        return;
    storeSale();
    if (ui.chkrecibo->isChecked())
        printCodeReceipt(m_state, m_discount);
    Tocar_Caixa();
    codeTexts.notice("MsgBox14");
    printLabel();
    m_form.Unload();
}

bool CodeSale::discountIsFair()
{
    const auto refused = [this](const QString &key, QWidget *focus) {
        m_creation.say(key, focus);
        return false;
    };
    if (shownAmount(m_discount.Total_Venda) - shownAmount(m_discount.Valor_Desconto) < 0)
        return refused("MsgBox11", ui.txtvalor_desconto);
    if (!m_discount.takeMotive(m_state.Motivo_Venda))
        return refused("MsgBox12", ui.txtmotivo);
    if (m_discount.ruleRefuses() && ui.chkdesconto->isChecked())
        return refused("MsgBox17", ui.txtmotivo);
    return true;
}

bool CodeSale::confirmsSale() const
{
    QString question;
    QString title;
    {
        // The texts mostly stand in the same files; the question itself waits for an answer.
        const IniBurst burst;
        question = codeTexts.text("MsgBox13") + withSymbol(m_discount.Total_Venda);
        if (m_discount.Total_Final != m_discount.Total_Venda)
            question += codeTexts.text("MsgBox13_3") + withSymbol(m_discount.Total_Final);
        question += codeTexts.text("MsgBox13_4") + "\n" + m_state.Nome_Cliente.toUpper() + " ? ";
        title = codeTexts.text("MsgBox1_2");
    }
    m_form.setMousePointer(vbDefault);
    return MsgBox(question, vbYesNo + vbInformation, title) == vbYes;
}

void CodeSale::storeSale()
{
    const QString code = ui.txtadi_cartao->text();
    const QDateTime moment = Machine::current().now();
    // Each failure goes unseen, and what follows is still tried.
    m_state.Proximo_Codigo = keyBehind("Select Max(Codigo) From Venda_Codigos");
    executeIgnoringErrors(
        "Insert into Venda_Codigos (Codigo,Data,Hora,Codigo_Acesso,Nome,Nick,Valor,"
        "Recarregamento,Avulsa,Desconto,Motivo_Desconto, Id_Caixa) values (" +
        QStringList{Cstr(m_state.Proximo_Codigo), quoted(FormatDate(moment, FormatoData)), quoted(FormatTime(moment)),
                    quoted(code), quoted(m_state.Nome_Cliente.toUpper()), quoted(m_state.Nick_Cliente.toUpper()),
                    quoted(amountText(m_discount.Total_Venda)) + "," + QString::number(m_state.Recarga_Venda) + " , " +
                        QString::number(m_state.Avulsa_Venda) + " , " + quoted(amountText(m_discount.Valor_Desconto)),
                    quoted(m_state.Motivo_Venda), Cstr(IdCaixa)}
            .join(',') +
        ")");
    executeIgnoringErrors("UPDATE Codigo_Acesso SET Vendido=True Where Codigo_Acesso='" + code + "'");
    m_state.Proximo_Codigo = keyBehind(CodeCreation::LastLink);
    executeIgnoringErrors(CodeCreation::linkStatement(m_state.Proximo_Codigo, code, m_state.Nome_Cliente));
    executeIgnoringErrors("UPDATE Codigo_Acesso Set Vinculado=True Where Codigo_Acesso='" + code + "'");
}

void CodeSale::printLabel()
{
    if (ui.chkimprimir_etiqueta->isChecked())
        printCodeLabel(m_form, ui.txtadi_cartao->text());
}
