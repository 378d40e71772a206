#pragma once

#include "checkout/SaleLock.h"
#include "platform/window/Form.h"
#include "sale/SaleState.h"

#include <memory>

class ProductSearch;
class SaleCart;
class SaleConfirmation;
class SaleCustomers;
class SaleDiscount;
class SaleScans;
namespace Ui {
class frmvenda;
}

/// The sale of products over the counter.
class frmvenda : public Form
{
    Q_OBJECT

public:
    frmvenda();
    ~frmvenda() override;

    /// Refill the lists, as after a registration.
    void Listar_Clientes();
    void Listar_Produtos();
    /// Puts a quantity of a product into the cart, unless the window is locked.
    void Adicionar_Produto(const QString &descricao, double quantidade);
    /// Forces a walk-in sale from outside the window. The misspelt name is the known one. Nothing calls it.
    void Clicar_Alvuso();

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

private:
    void connectPayment();
    void optpago_Click();
    void lbltotal_Change();
    void lbltotal_final_Change();
    void showChange();
    void selectFilledAmount();
    /// Waits until a window of the registrations is closed and takes over what is new there.
    template <typename Window>
    void visit(void (frmvenda::*refill)());

    // The controls outlive what works on them: members go in the opposite order, and none of these is a child.
    std::unique_ptr<Ui::frmvenda> ui;
    SaleState m_state;
    SaleLock m_lock;
    /// The amount that a press of "Pago" put into its box.
    QString m_filledAmount;
    std::unique_ptr<SaleDiscount> m_discount;
    std::unique_ptr<SaleCustomers> m_customers;
    std::unique_ptr<ProductSearch> m_products;
    std::unique_ptr<SaleCart> m_cart;
    std::unique_ptr<SaleConfirmation> m_confirmation;
    std::unique_ptr<SaleScans> m_scans;
};
