#include "sale/SaleConfirmation.h"

#include "checkout/DiscountRules.h"
#include "checkout/SaleDiscount.h"
#include "checkout/SaleLock.h"
#include "checkout/SaleSound.h"
#include "configuration/Globais.h"
#include "data/Acesso_BD.h"
#include "data/CashPeriod.h"
#include "data/Lookups.h"
#include "data/Placeholders.h"
#include "data/Queries.h"
#include "data/Statements.h"
#include "platform/base/Err.h"
#include "platform/base/Machine.h"
#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"
#include "platform/window/Form.h"
#include "platform/window/Look.h"
#include "platform/window/Prompts.h"
#include "products/LowStock.h"
#include "sale/ProductReceipt.h"
#include "sale/ProductRules.h"
#include "sale/ProductSearch.h"
#include "sale/SaleCart.h"
#include "sale/SaleState.h"
#include "sale/SaleTexts.h"
#include "ui_frmvenda.h"
#include "windows/Amounts.h"

#include <algorithm>
#include <cmath>

namespace {
const QString attention = "Atenção";

void lowerStock(const CartLine &line)
{
    executeIgnoringErrors(QString("UPDATE Produtos SET") + " Quantidade=(Cdbl(Quantidade)-CDbl('" + line.Quantidade +
                          "'))" + " Where Descrição='" + line.Descrição + "' And Servico=False");
}

/// 255 for a stock product at or below its minimum.
quint8 Estoque_Minimo(const QString &descricao)
{
    bool low = false;
    readFirstRow("Select * from Produtos Where Descrição='" + descricao + "' And Servico=False",
                 [&](const Recordset &rs) { low = isLow(rs); });
    return low ? yesFlag : 0;
}
} // namespace

SaleConfirmation::SaleConfirmation(Form &form, Ui::frmvenda &window, SaleState &state, SaleLock &lock,
                                   SaleDiscount &discount, ProductSearch &products, SaleCart &cart)
    : m_form(form), ui(window), m_state(state), m_lock(lock), m_discount(discount), m_products(products), m_cart(cart)
{
}

void SaleConfirmation::setLocked(bool locked)
{
    m_lock.Bloqueio_Desconto = locked;
    for (QGroupBox *card : {ui.frame_cliente, ui.frame_produto, ui.frame_cesta, ui.frame_desconto})
        setCardState(*card, locked ? CardState::Locked : CardState::Resting);
}

bool SaleConfirmation::refuse(const QString &key, QWidget *focus)
{
    m_form.setMousePointer(vbDefault);
    saleTexts.notice(key);
    if (focus)
        focus->setFocus();
    setLocked(false);
    return false;
}

void SaleConfirmation::cmdfinalizar_Click()
{
    m_form.setMousePointer(vbHourglass);
    if (!prepare())
        return;

    setLocked(true);
    const int answer = ask();
    // The rules are looked at after the question and before its answer, so a refusal comes even after a no.
    if (ui.chkdesconto->isChecked() && m_discount.ruleRefuses())
        refuse("MsgBox16", ui.txtmotivo);
    else if (categoryRefuses())
        refuse("MsgBox17", ui.cmbprodutos);
    else if (answer == vbYes)
        store();
    setLocked(false);
}

bool SaleConfirmation::prepare()
{
    if (!Caixa_Aberto())
        return refuse("MsgBox7");
    if (ui.txtvalor_pago->text().isEmpty())
        ui.txtvalor_pago->setText("0");
    replaceBlanks(*ui.txtvalor_desconto);
    if (m_state.cart.isEmpty())
        return refuse("MsgBox8", ui.cmbprodutos);
    if (m_state.Debito_Venda == 0 && !paysEnough())
        return refuse("MsgBox9", ui.txtvalor_pago);
    if (ui.chkdesconto->isChecked() && discountExceedsTotal())
        return refuse("MsgBox10", ui.txtvalor_desconto);
    if (!m_discount.takeMotive(m_state.Motivo_Venda))
        return refuse("MsgBox11", ui.txtmotivo);
    if (!takeBuyer())
        return refuse("MsgBox12", ui.txtnome);
    return true;
}

bool SaleConfirmation::paysEnough() const
{
    bool enough = false;
    OnErrorResumeNext([&] { enough = shownAmount(m_discount.Total_Final) <= shownAmount(ui.txtvalor_pago->text()); });
    return enough;
}

bool SaleConfirmation::discountExceedsTotal() const
{
    // Val stops at the comma, so the cents of a typed discount don't count here; that stays.
    const double typed = Val(QStringView(ui.txtvalor_desconto->text()));
    return shownAmount(m_discount.Total_Venda) - shownAmount(typed) < 0;
}

bool SaleConfirmation::takeBuyer()
{
    if (m_state.Avulsa_Venda == yesFlag) {
        m_state.Nome_Cliente = Placeholder::NoName;
        m_state.Nick_Cliente = Placeholder::NoName;
    }
    return !m_state.Nome_Cliente.isEmpty();
}

int SaleConfirmation::ask()
{
    QString question;
    const QString amount = saleTexts.loaded("String5") + withSymbol(m_discount.Total_Final);
    const bool paid = m_state.Debito_Venda == 0;
    if (m_state.Avulsa_Venda == 0)
        question =
            amount + saleTexts.loaded(paid ? "String5_2" : "String6") + "\n" + m_state.Nome_Cliente.toUpper() + "?";
    else if (paid)
        question = amount + "?";
    m_form.setMousePointer(vbDefault);
    return MsgBox(question, vbYesNo + vbInformation, attention);
}

bool SaleConfirmation::categoryRefuses() const
{
    const bool ruled = std::any_of(m_state.cart.cbegin(), m_state.cart.cend(), [](const CartLine &line) {
        bool answer = false;
        TemDescontoAutomatico(Categoria_Do_Produto(line.Descrição), answer);
        return answer;
    });
    return ruled && m_state.cart.size() > 1;
}

void SaleConfirmation::store()
{
    QString lowStock;
    double sum = 0;
    for (const CartLine &line : std::as_const(m_state.cart)) {
        m_state.Proximo_Codigo = keyBehind("Select Max(Codigo) From Venda_Produtos");
        storeLine(line, shareOf(line, sum));
        lowerStock(line);
        if (Estoque_Minimo(line.Descrição) == yesFlag)
            lowStock += line.Descrição + "\n";
    }
    if (ui.optpago->isChecked()) {
        if (ui.chkrecibo->isChecked())
            printProductReceipt(ui, m_state.cart, m_discount);
        Tocar_Caixa();
    }
    setLocked(false);
    m_form.setMousePointer(vbDefault);
    saleTexts.notice("MsgBox13");
    if (!lowStock.isEmpty())
        MsgBox(saleTexts.loaded("String9") + "\n\n" + lowStock, vbInformation, attention);
    reset();
}

double SaleConfirmation::shareOf(const CartLine &line, double &sum) const
{
    const double whole = m_discount.Valor_Desconto;
    // A line without a value has no share.
    const double value = readNumber(QStringView(line.Valor)).value_or(0);
    double share = Valor_Proporcional(whole, m_discount.Total_Venda, value);
    sum += shownAmount(share);
    // The excess comes off the line at which it shows; the sum is not corrected, so a later line takes it off again.
    if (sum > whole)
        share = std::abs(shownAmount(share) - (sum - whole));
    if (&line == &m_state.cart.constLast() && sum < whole)
        share = std::abs(shownAmount(share) + (whole - sum));
    return share;
}

void SaleConfirmation::storeLine(const CartLine &line, double share)
{
    const QString category = Categoria_Do_Produto(line.Descrição);
    const QDateTime moment = Machine::current().now();
    const QString when = quoted(FormatDate(moment)) + "," + quoted(FormatTime(moment));
    const QString period = Cstr(IdCaixa);
    executeIgnoringErrors(
        "Insert into Venda_Produtos (Codigo,Data,Hora,Descrição,Quantidade,Nome,Nick,Avulsa,Debito,Valor_Total,"
        "Desconto,Motivo_Desconto,Data_Pag,Hora_Pag,Id_Caixa,Id_Caixa_Pago,Categoria) values (" +
        QStringList{Cstr(m_state.Proximo_Codigo), when, quoted(line.Descrição), quoted(line.Quantidade),
                    quoted(m_state.Nome_Cliente), quoted(m_state.Nick_Cliente), Cstr(m_state.Avulsa_Venda),
                    Cstr(m_state.Debito_Venda), quoted(line.Valor), quoted(amountText(share)),
                    quoted(m_state.Motivo_Venda), when, period, period, quoted(category)}
            .join(',') +
        ")");
}

void SaleConfirmation::reset()
{
    m_discount.Total_Final = 0;
    m_discount.Total_Venda = 0;
    m_discount.Valor_Desconto = 0;
    m_cart.removeLines();
    m_state.Linha_Consumo = 0;
    ui.txtquantidade->setText("1");
    ui.cmbprodutos->setCurrentIndex(-1);
    m_cart.showTotal();
    ui.txtvalor_pago->setText(QString("00000") + "00");
    ui.txtvalor_desconto->setText({});
    m_products.cmbprodutos_Click();
    // Last, because the change of the paid value has drawn the focus to its box.
    ui.cmbprodutos->setFocus();
}
