#pragma once

#include "platform/window/Form.h"
#include "sale/SaleState.h"

#include <memory>

class SaleCart;
class SaleConfirmation;
class SaleCustomers;
class SaleDiscount;
class SaleProducts;
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
    /// Puts a quantity of a product into the cart.
    void Adicionar_Produto(const QString &descricao, double quantidade);
    /// Forces a walk-in sale from outside the window. The misspelt name is the known one. Nothing calls it.
    void Clicar_Alvuso();

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

private:
    void connectPayment();
    void lbltotal_Change();
    void lbltotal_final_Change();
    void txtvalor_pago_Change();
    void showChange();
    void selectFilledAmount();
    /// Waits until a window of the registrations is closed and takes over what is new there.
    template <typename Window>
    void visit(void (frmvenda::*refill)());

    std::unique_ptr<Ui::frmvenda> ui;
    SaleState m_state;
    /// The amount that a press of "Pago" put into its box.
    QString m_filledAmount;
    SaleDiscount *m_discount;
    SaleCustomers *m_customers;
    SaleProducts *m_products;
    SaleCart *m_cart;
    std::unique_ptr<SaleConfirmation> m_confirmation;
};
