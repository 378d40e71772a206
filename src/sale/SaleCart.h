#pragma once

#include <QObject>
#include <QString>

class SaleDiscount;
class SaleProducts;
struct SaleState;
namespace Ui {
class frmvenda;
}

/// Columns of the cart grid; row 0 is the heading, so that a grid of one row is an empty cart.
namespace CartColumn {
constexpr int Description = 1;
constexpr int Quantity = 2;
constexpr int Value = 3;
} // namespace CartColumn

/// The cart: adding with the stock check and the merge of lines, removing, and the total.
class SaleCart : public QObject
{
    Q_OBJECT

public:
    SaleCart(Ui::frmvenda &window, SaleState &state, SaleDiscount &discount, SaleProducts &products, QObject *parent);

    /// Puts the chosen product into the cart, with the quantity shown.
    void cmdadicionar_Click();
    void Adicionar_Produto(const QString &descricao, double quantidade);
    void showTotal();

private:
    void cmdexcluir_Click();
    int rowOf(const QString &descricao) const;
    void addRow();
    void refuse(const QString &descricao, double quantidade, const QString &stock);

    Ui::frmvenda &ui;
    SaleState &m_state;
    SaleDiscount &m_discount;
    SaleProducts &m_products;
};
