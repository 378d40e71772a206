#pragma once

#include <QString>
#include <QStringList>

class Form;
class SaleCart;
class SaleDiscount;
class SaleProducts;
struct SaleState;
namespace Ui {
class frmvenda;
}

/// Turns the cart into stored sales: the checks in their fixed order, the question, one row for each line with its
/// share of the discount, the stock, the receipt, the sound, the low-stock list, and an empty window for the next sale.
class SaleConfirmation
{
public:
    SaleConfirmation(Form &form, Ui::frmvenda &window, SaleState &state, SaleDiscount &discount, SaleProducts &products,
                     SaleCart &cart);

    void cmdfinalizar_Click();

private:
    bool prepare();
    bool paysEnough() const;
    bool discountExceedsTotal() const;
    bool takeBuyer();
    int ask();
    bool categoryRefuses() const;
    void store();
    double shareOf(int row, double &sum) const;
    void storeLine(int row, double share);
    void lowerStock(int row);
    /// 255 for a stock product at or below its minimum.
    quint8 Estoque_Minimo(const QString &descricao) const;
    void reset();
    void refuse(const QString &key, class QWidget *focus);
    /// While a sale is being confirmed, the window takes no entries.
    void lock(bool locked);
    QString cartText(int row, int column) const;

    Form &m_form;
    Ui::frmvenda &ui;
    SaleState &m_state;
    SaleDiscount &m_discount;
    SaleProducts &m_products;
    SaleCart &m_cart;
    QStringList m_lowStock;
};
