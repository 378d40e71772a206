#pragma once

class CodeCreation;
class Form;
class SaleDiscount;
struct CodeState;
namespace Ui {
class frmcodigo_rapido;
}

/// Confirms the code in the window: one paid after is linked to the customer, one paid before is sold.
class CodeSale
{
public:
    CodeSale(Form &form, Ui::frmcodigo_rapido &window, CodeState &state, SaleDiscount &discount,
             CodeCreation &creation);

    void cmdfinalizar_Click();

private:
    bool prepare();
    void linkCode();
    void sellCode();
    bool discountIsFair();
    bool confirmsSale() const;
    void storeSale();
    void printLabel();

    Form &m_form;
    Ui::frmcodigo_rapido &ui;
    CodeState &m_state;
    SaleDiscount &m_discount;
    CodeCreation &m_creation;
};
