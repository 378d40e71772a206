#pragma once

#include <QString>

class Form;
class ProductSearch;
class QWidget;
class SaleCart;
class SaleDiscount;
struct CartLine;
struct SaleLock;
struct SaleState;
namespace Ui {
class frmvenda;
}

/// Turns the cart into stored sales: the checks in their fixed order, the question, one row for each line with its
/// share of the discount, the stock, the receipt, the sound, the low-stock list, and an empty window for the next sale.
class SaleConfirmation
{
public:
    SaleConfirmation(Form &form, Ui::frmvenda &window, SaleState &state, SaleLock &lock, SaleDiscount &discount,
                     ProductSearch &products, SaleCart &cart);

    void cmdfinalizar_Click();

private:
    bool prepare();
    bool paysEnough() const;
    bool discountExceedsTotal() const;
    bool takeBuyer();
    int ask();
    bool categoryRefuses() const;
    void store();
    double shareOf(const CartLine &line, double &sum) const;
    void storeLine(const CartLine &line, double share);
    void reset();
    /// Tells why, unlocks the window, and answers false.
    bool refuse(const QString &key, QWidget *focus = nullptr);
    /// While a sale is being confirmed, the window takes no entries.
    void setLocked(bool locked);

    Form &m_form;
    Ui::frmvenda &ui;
    SaleState &m_state;
    SaleLock &m_lock;
    SaleDiscount &m_discount;
    ProductSearch &m_products;
    SaleCart &m_cart;
};
