#include "sale/SaleCart.h"

#include "checkout/SaleDiscount.h"
#include "data/Queries.h"
#include "platform/base/Err.h"
#include "platform/text/Numbers.h"
#include "platform/window/BoxKeys.h"
#include "sale/SaleProducts.h"
#include "sale/SaleState.h"
#include "sale/SaleTexts.h"
#include "ui_frmvenda.h"
#include "windows/Amounts.h"

#include <QSignalBlocker>

SaleCart::SaleCart(Ui::frmvenda &window, SaleState &state, SaleDiscount &discount, SaleProducts &products,
                   QObject *parent)
    : QObject(parent), ui(window), m_state(state), m_discount(discount), m_products(products)
{
    const auto takeRow = [this] {
        if (!m_discount.Bloqueio_Desconto && ui.tab_consumo->Row() > 0)
            m_state.Linha_Consumo = ui.tab_consumo->Row();
    };
    connect(ui.tab_consumo, &FlexGrid::Click, this, takeRow);
    connect(ui.tab_consumo, &FlexGrid::SelChange, this, takeRow);
    connect(ui.cmdadicionar, &QPushButton::clicked, this, &SaleCart::cmdadicionar_Click);
    connect(ui.cmdexcluir, &QPushButton::clicked, this, &SaleCart::cmdexcluir_Click);
    connect(ui.txtquantidade, &TextBox::KeyPress, this, [this](int &KeyAscii) {
        if (m_discount.Bloqueio_Desconto)
            return;
        if (KeyAscii == vbKeyReturn)
            cmdadicionar_Click();
        else
            keepDigits(KeyAscii);
    });
}

void SaleCart::cmdadicionar_Click()
{
    if (m_discount.Bloqueio_Desconto)
        return;
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
    Adicionar_Produto(productDescription(ui.cmbprodutos->currentText()), quantidade);
    m_discount.txtmotivo_Click();
    ui.txtcod_barra->setFocus();
}

int SaleCart::rowOf(const QString &descricao) const
{
    const QString wanted = descricao.toUpper();
    for (int row = 1; row < ui.tab_consumo->Rows(); ++row)
        if (ui.tab_consumo->TextMatrix(row, CartColumn::Description).toUpper() == wanted)
            return row;
    return 0;
}

void SaleCart::Adicionar_Produto(const QString &descricao, double quantidade)
{
    if (m_discount.Bloqueio_Desconto)
        return;
    FlexGrid &grid = *ui.tab_consumo;
    int row = rowOf(descricao);
    double before = 0;
    if (row > 0)
        OnErrorResumeNext([&] { before = Cdbl(grid.TextMatrix(row, CartColumn::Quantity)); });
    quantidade += before;

    readFirstRow("Select * from Produtos Where Descrição='" + descricao.toUpper() + "'", [&](const Recordset &rs) {
        bool service = false;
        OnErrorResumeNext([&] { service = rs.Fields("Servico").boolean(); });
        // A stock that is no number counts as too small, since the failure goes on inside the test.
        bool enough = false;
        OnErrorResumeNext([&] { enough = rs.Fields("Quantidade").number() - quantidade >= 0; });
        if (!service && !enough) {
            QString stock;
            OnErrorResumeNext([&] { stock = rs.Fields("Quantidade").text(); });
            refuse(descricao, quantidade, stock);
            return;
        }

        if (row == 0) {
            row = grid.Rows();
            addRow();
            grid.setTopRow(row);
        }
        grid.setTextMatrix(row, CartColumn::Description, descricao.toUpper());
        grid.setTextMatrix(row, CartColumn::Quantity, Cstr(quantidade));
        // A price that is no number leaves the line without a value and the total as it was.
        OnErrorResumeNext(
            [&] {
                const double price = rs.Fields("Valor_Unitario").number();
                grid.setTextMatrix(row, CartColumn::Value, amountText(price * quantidade));
            },
            // The total grows by the rounded value of the added part, the line is worked out from the whole quantity:
            // with three decimals in a price the two may differ by a cent, and that stays.
            [&] {
                const double price = rs.Fields("Valor_Unitario").number();
                m_discount.Total_Venda += shownAmount(price * (quantidade - before));
            });
        showTotal();
    });
}

void SaleCart::addRow()
{
    FlexGrid &grid = *ui.tab_consumo;
    // After a sale no line is the one to remove until one is clicked, so the first line isn't highlighted either.
    const bool none = m_state.Linha_Consumo == 0;
    const QSignalBlocker untold(none ? &grid : nullptr);
    grid.setRows(grid.Rows() + 1);
    if (none)
        grid.setRow(0);
}

void SaleCart::refuse(const QString &descricao, double quantidade, const QString &stock)
{
    saleTexts.noticeText(saleTexts.text("MsgBox1") + Cstr(quantidade) + saleTexts.text("MsgBox1_2") + "\n" +
                         saleTexts.text("MsgBox1_3") + descricao.toUpper() + saleTexts.text("MsgBox1_4") + stock +
                         saleTexts.text("MsgBox1_5"));
    ui.txtquantidade->setFocus();
}

void SaleCart::cmdexcluir_Click()
{
    if (m_discount.Bloqueio_Desconto)
        return;
    FlexGrid &grid = *ui.tab_consumo;
    const int row = static_cast<int>(m_state.Linha_Consumo);
    // With row 0, as a sale leaves it, the heading is no number: the cart is emptied and the total stays. So be it.
    OnErrorResumeNext([&] { m_discount.Total_Venda -= Cdbl(grid.TextMatrix(row, CartColumn::Value)); },
                      [&] {
                          if (row >= 1 && grid.Rows() > 2)
                              grid.RemoveItem(row);
                          else
                              grid.setRows(1);
                      });
    m_discount.txtmotivo_Click();
    showTotal();
}

void SaleCart::showTotal()
{
    ui.lbltotal->setCaption(withSymbol(m_discount.Total_Venda));
}
