#include "sale/SaleCart.h"

#include "checkout/SaleDiscount.h"
#include "checkout/SaleLock.h"
#include "configuration/Globais.h"
#include "data/Queries.h"
#include "platform/base/Err.h"
#include "platform/text/Numbers.h"
#include "platform/window/BoxKeys.h"
#include "sale/ProductSearch.h"
#include "sale/SaleState.h"
#include "sale/SaleTexts.h"
#include "ui_frmvenda.h"
#include "windows/Amounts.h"

#include <QSignalBlocker>

#include <algorithm>

namespace {
/// Whether a product, if it is no service, is there in that quantity. A stock that is no number counts as too small,
/// since the failure goes on inside the test.
bool suffices(const Recordset &product, double quantidade)
{
    bool enough = false;
    OnErrorResumeNext([&] { enough = product.Fields("Servico").boolean(); },
                      [&] { enough = enough || product.Fields("Quantidade").number() - quantidade >= 0; });
    return enough;
}
} // namespace

SaleCart::SaleCart(Ui::frmvenda &window, SaleState &state, const SaleLock &lock, SaleDiscount &discount,
                   ProductSearch &products)
    : ui(window), m_grid(*window.tab_consumo), m_state(state), m_discount(discount), m_products(products)
{
    const auto takeRow = [this] {
        if (m_grid.Row() > 0)
            m_state.Linha_Consumo = m_grid.Row();
    };
    lock.connect(&m_grid, &FlexGrid::Click, this, takeRow);
    lock.connect(&m_grid, &FlexGrid::SelChange, this, takeRow);
    lock.connect(ui.cmdadicionar, &QPushButton::clicked, this, [this] { cmdadicionar_Click(); });
    lock.connect(ui.cmdexcluir, &QPushButton::clicked, this, [this] { cmdexcluir_Click(); });
    lock.connect(ui.txtquantidade, &TextBox::KeyPress, this, [this](int &KeyAscii) {
        if (KeyAscii == vbKeyReturn)
            cmdadicionar_Click();
        else
            keepDigits(KeyAscii);
    });
}

void SaleCart::setUpGrid()
{
    m_grid.setCols(4);
    m_grid.setRows(1);
    m_grid.setFormatString("<    |<" + saleTexts.text("tab_consumo1") + "|<" + saleTexts.text("tab_consumo2") + "|<" +
                           saleTexts.text("tab_consumo3") + SimboloMoeda + QString(15, ' '));
}

void SaleCart::cmdadicionar_Click()
{
    if (!m_products.Buscar_Produtos(ui.cmbprodutos->currentText())) {
        saleTexts.notice("MsgBox5");
        return;
    }
    const double quantidade = Val(QStringView(ui.txtquantidade->text()));
    if (quantidade <= 0) {
        saleTexts.notice("MsgBox3");
        ui.txtquantidade->setFocus();
        return;
    }
    if (ui.cmbprodutos->currentText().isEmpty()) {
        saleTexts.notice("MsgBox4");
        ui.cmbprodutos->setFocus();
        return;
    }
    Adicionar_Produto(m_products.foundDescription(), quantidade);
    m_discount.txtmotivo_Click();
    ui.txtcod_barra->setFocus();
}

void SaleCart::Adicionar_Produto(const QString &descricao, double quantidade)
{
    Cart &cart = m_state.cart;
    const QString description = descricao.toUpper();
    const auto same = [&](const CartLine &each) { return each.Descrição == description; };
    const auto index = std::find_if(cart.cbegin(), cart.cend(), same) - cart.cbegin();
    CartLine line = cart.value(index, {.Descrição = description});
    const double whole = Cdbl(line.Quantidade) + quantidade;
    line.Quantidade = Cstr(whole);

    bool taken = false;
    readFirstRow("Select * from Produtos Where Descrição='" + description + "'", [&](const Recordset &product) {
        taken = suffices(product, whole);
        // A price that is no number leaves the line's value and the total as they were.
        double price = 0;
        if (taken && OnErrorGoToEnd([&] { price = product.Fields("Valor_Unitario").number(); })) {
            // The line is worked out from the whole quantity, and the total grows by the rounded value of the added
            // part: with three decimals in a price the two may differ by a cent, and that stays.
            line.Valor = amountText(price * whole);
            m_discount.Total_Venda += shownAmount(price * quantidade);
        }
        if (!taken)
            refuse(line, product);
    });
    if (!taken)
        return;
    const int row = static_cast<int>(index) + 1;
    cart.resize(std::max(cart.size(), index + 1));
    cart[index] = line;
    if (row == m_grid.Rows())
        addRow();
    m_grid.setTextMatrix(row, 1, line.Descrição);
    m_grid.setTextMatrix(row, 2, line.Quantidade);
    m_grid.setTextMatrix(row, 3, line.Valor);
    showTotal();
}

void SaleCart::addRow()
{
    // After a sale no line is the one to remove until one is clicked, so the first line isn't highlighted either.
    const bool none = m_state.Linha_Consumo == 0;
    const QSignalBlocker untold(none ? &m_grid : nullptr);
    const int row = m_grid.Rows();
    m_grid.setRows(row + 1);
    if (none)
        m_grid.setRow(0);
    m_grid.setTopRow(row);
}

void SaleCart::refuse(const CartLine &line, const Recordset &product)
{
    QString stock;
    OnErrorResumeNext([&] { stock = product.Fields("Quantidade").text(); });
    saleTexts.noticeText(saleTexts.text("MsgBox1") + line.Quantidade + saleTexts.text("MsgBox1_2") + "\n" +
                         saleTexts.text("MsgBox1_3") + line.Descrição + saleTexts.text("MsgBox1_4") + stock +
                         saleTexts.text("MsgBox1_5"));
    ui.txtquantidade->setFocus();
}

void SaleCart::cmdexcluir_Click()
{
    Cart &cart = m_state.cart;
    const auto index = static_cast<qsizetype>(m_state.Linha_Consumo) - 1;
    const bool there = index >= 0 && index < cart.size();
    // Row 0, as a sale leaves it, is the heading, which is no number: the cart is emptied and the total stays. So be
    // it.
    if (there)
        m_discount.Total_Venda -= readNumber(cart[index].Valor).value_or(0);
    if (index < 0 || cart.size() <= 1) {
        removeLines();
    } else if (there) {
        cart.removeAt(index);
        m_grid.RemoveItem(static_cast<int>(index) + 1);
    }
    m_discount.txtmotivo_Click();
    showTotal();
}

void SaleCart::removeLines()
{
    m_state.cart.clear();
    m_grid.setRows(1);
}

void SaleCart::showTotal()
{
    ui.lbltotal->setCaption(withSymbol(m_discount.Total_Venda));
}
