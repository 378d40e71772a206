#pragma once

#include "checkout/SaleLock.h"
#include "codes/CodeState.h"
#include "platform/window/Form.h"

#include <memory>

class CodeCreation;
class CodeSale;
class SaleDiscount;
namespace Ui {
class frmcodigo_rapido;
}

/// Creates and sells the access code of a customer who has just been registered.
class frmcodigo_rapido : public Form
{
    Q_OBJECT

public:
    frmcodigo_rapido();
    ~frmcodigo_rapido() override;

    /// Whose code it is, the name as it was typed; the customer's number is the first proposal for it.
    void Venda_ao_Cliente(const QString &Nome, const QString &Nick);

protected:
    void Form_Load() override;

private:
    void connectCode();
    void optexpira_Click();
    void opttempo_indeterminado_Click();
    void showShape(bool prepaid);
    /// A long name takes a second line, and one shape is lower than the other.
    void fitToContents();
    void txtvalor_disponível_Change();
    void lbltotal_Change();

    // The controls outlive what works on them, as members go in the opposite order.
    std::unique_ptr<Ui::frmcodigo_rapido> ui;
    CodeState m_state;
    /// Never on in this window.
    const SaleLock m_lock;
    std::unique_ptr<SaleDiscount> m_discount;
    std::unique_ptr<CodeCreation> m_creation;
    std::unique_ptr<CodeSale> m_sale;
};
