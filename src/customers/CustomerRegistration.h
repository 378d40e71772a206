#pragma once

struct CustomerState;
class CustomerForm;
class CustomerList;
class CustomerPhoto;
class Form;
class QString;
namespace Ui {
class frmcadastro_clientes;
}

/// Registers the customer in the form.
class CustomerRegistration
{
public:
    CustomerRegistration(Form &window, Ui::frmcadastro_clientes &controls, CustomerState &state, CustomerForm &form,
                         CustomerList &list, CustomerPhoto &photo);

    void cmdok_Click();

private:
    /// False when what stands in the box is no date, which is told.
    bool fillPlaceholders();
    /// Whether the birth date is still to come, which is told.
    bool isBornLater();
    void store(double codigo);
    /// Opens the window that sells an access code, unless the customer has one.
    void sellCode(const QString &name, const QString &nick);

    Form &m_window;
    Ui::frmcadastro_clientes &ui;
    CustomerState &m_state;
    CustomerForm &m_form;
    CustomerList &m_list;
    CustomerPhoto &m_photo;
};
