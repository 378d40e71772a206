#include "sale/SaleConfirmation.h"

#include "checkout/DiscountRules.h"
#include "checkout/SaleDiscount.h"
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
#include "sale/ProductReceipt.h"
#include "sale/ProductRules.h"
#include "sale/SaleCart.h"
#include "sale/SaleProducts.h"
#include "sale/SaleState.h"
#include "sale/SaleTexts.h"
#include "ui_frmvenda.h"
#include "windows/Amounts.h"

#include <cmath>

namespace {
const QString attention = "Atenção";
} // namespace

SaleConfirmation::SaleConfirmation(Form &form, Ui::frmvenda &window, SaleState &state, SaleDiscount &discount,
                                   SaleProducts &products, SaleCart &cart)
    : m_form(form), ui(window), m_state(state), m_discount(discount), m_products(products), m_cart(cart)
{
}

QString SaleConfirmation::cartText(int row, int column) const
{
    return ui.tab_consumo->TextMatrix(row, column);
}

void SaleConfirmation::lock(bool locked)
{
    m_discount.Bloqueio_Desconto = locked;
    for (QGroupBox *card : {ui.frame_cliente, ui.frame_produto, ui.frame_cesta, ui.frame_desconto})
        setCardState(*card, locked ? CardState::Locked : CardState::Resting);
}

void SaleConfirmation::refuse(const QString &key, QWidget *focus)
{
    m_form.setMousePointer(vbDefault);
    saleTexts.notice(key);
    if (focus)
        focus->setFocus();
    lock(false);
}

void SaleConfirmation::cmdfinalizar_Click()
{
    if (m_discount.Bloqueio_Desconto)
        return;
    m_form.setMousePointer(vbHourglass);
    if (!prepare())
        return;

    lock(true);
    const int answer = ask();
    // The rules are looked at after the question and before its answer, so a refusal comes even after a no.
    if (ui.chkdesconto->isChecked() && m_discount.ruleRefuses())
        return refuse("MsgBox16", ui.txtmotivo);
    if (categoryRefuses())
        return refuse("MsgBox17", ui.cmbprodutos);
    if (answer == vbYes)
        store();
    lock(false);
}

bool SaleConfirmation::prepare()
{
    const auto refused = [this](const QString &key, QWidget *focus) {
        refuse(key, focus);
        return false;
    };
    if (!Caixa_Aberto())
        return refused("MsgBox7", nullptr);
    if (ui.txtvalor_pago->text().isEmpty())
        ui.txtvalor_pago->setText("0");
    replaceBlanks(*ui.txtvalor_desconto);
    if (ui.tab_consumo->Rows() < 2)
        return refused("MsgBox8", ui.cmbprodutos);
    if (m_state.Debito_Venda == 0 && !paysEnough())
        return refused("MsgBox9", ui.txtvalor_pago);
    if (ui.chkdesconto->isChecked() && discountExceedsTotal())
        return refused("MsgBox10", ui.txtvalor_desconto);
    if (!m_discount.takeMotive(m_state.Motivo_Venda))
        return refused("MsgBox11", ui.txtmotivo);
    if (!takeBuyer())
        return refused("MsgBox12", ui.txtnome);
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
    bool ruled = false;
    for (int row = 1; row < ui.tab_consumo->Rows() && !ruled; ++row)
        TemDescontoAutomatico(Categoria_Do_Produto(cartText(row, CartColumn::Description).toUpper()), ruled);
    return ruled && ui.tab_consumo->Rows() > 2;
}

void SaleConfirmation::store()
{
    m_lowStock.clear();
    double sum = 0;
    for (int row = 1; row < ui.tab_consumo->Rows(); ++row) {
        m_state.Proximo_Codigo = keyBehind("Select Max(Codigo) From Venda_Produtos");
        storeLine(row, shareOf(row, sum));
        lowerStock(row);
        const QString description = cartText(row, CartColumn::Description).toUpper();
        if (Estoque_Minimo(description) == yesFlag)
            m_lowStock += description;
    }
    if (ui.optpago->isChecked()) {
        if (ui.chkrecibo->isChecked())
            printProductReceipt(ui, m_discount);
        Tocar_Caixa();
    }
    lock(false);
    m_form.setMousePointer(vbDefault);
    saleTexts.notice("MsgBox13");
    if (!m_lowStock.isEmpty())
        MsgBox(saleTexts.loaded("String9") + "\n\n" + m_lowStock.join('\n') + "\n", vbInformation, attention);
    reset();
}

double SaleConfirmation::shareOf(int row, double &sum) const
{
    const double whole = m_discount.Valor_Desconto;
    double share = 0;
    OnErrorResumeNext([&] {
        const double value = shownAmount(cartText(row, CartColumn::Value));
        share = Valor_Proporcional(whole, m_discount.Total_Venda, value);
    });
    sum += shownAmount(share);
    // The excess comes off the line at which it shows; the sum is not corrected, so a later line takes it off again.
    if (sum > whole)
        share = std::abs(shownAmount(share) - (sum - whole));
    if (row == ui.tab_consumo->Rows() - 1 && sum < whole)
        share = std::abs(shownAmount(share) + (whole - sum));
    return share;
}

void SaleConfirmation::storeLine(int row, double share)
{
    const QString category = Categoria_Do_Produto(cartText(row, CartColumn::Description).toUpper());
    const QDateTime moment = Machine::current().now();
    const QString date = quoted(FormatDate(moment));
    const QString time = quoted(FormatTime(moment));
    const QString period = QString::number(IdCaixa, 'g', 15);
    const QStringList values{QString::number(m_state.Proximo_Codigo, 'g', 15),
                             date,
                             time,
                             quoted(cartText(row, CartColumn::Description).toUpper()),
                             quoted(cartText(row, CartColumn::Quantity)),
                             quoted(m_state.Nome_Cliente),
                             quoted(m_state.Nick_Cliente),
                             QString::number(m_state.Avulsa_Venda),
                             QString::number(m_state.Debito_Venda),
                             quoted(amountText(cartText(row, CartColumn::Value))),
                             quoted(amountText(share)),
                             quoted(m_state.Motivo_Venda),
                             date,
                             time,
                             period,
                             period,
                             quoted(category)};
    OnErrorResumeNext([&] {
        executeStatement("Insert into Venda_Produtos (Codigo,Data,Hora,Descrição,Quantidade,Nome,Nick,Avulsa,"
                         "Debito,Valor_Total,Desconto,Motivo_Desconto,Data_Pag,Hora_Pag,Id_Caixa,Id_Caixa_Pago,"
                         "Categoria) values (" +
                         values.join(',') + ")");
    });
}

void SaleConfirmation::lowerStock(int row)
{
    OnErrorResumeNext([&] {
        executeStatement(QString("UPDATE Produtos SET") + " Quantidade=(Cdbl(Quantidade)-CDbl('" +
                         cartText(row, CartColumn::Quantity) + "'))" + " Where Descrição='" +
                         cartText(row, CartColumn::Description).toUpper() + "' And Servico=False");
    });
}

quint8 SaleConfirmation::Estoque_Minimo(const QString &descricao) const
{
    bool low = false;
    readFirstRow("Select * from Produtos Where Descrição='" + descricao + "' And Servico=False",
                 [&](const Recordset &rs) { low = isLow(rs); });
    return low ? yesFlag : 0;
}

void SaleConfirmation::reset()
{
    m_discount.Total_Final = 0;
    m_discount.Total_Venda = 0;
    m_discount.Valor_Desconto = 0;
    ui.tab_consumo->setRows(1);
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
