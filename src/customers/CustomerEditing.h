#pragma once

struct CustomerState;
class CustomerForm;
class CustomerList;
class CustomerPhoto;
namespace Ui {
class frmcadastro_clientes;
}

/// Edits a registered customer: one press of the button begins, the next one saves.
class CustomerEditing
{
public:
    CustomerEditing(Ui::frmcadastro_clientes &window, CustomerState &state, CustomerForm &form, CustomerList &list,
                    CustomerPhoto &photo);

    /// Has no trap: a statement that fails ends the program, and what was executed stays.
    void cmdeditar_Click();
    /// Shows a customer in the form.
    void EditarCliente(double codigo);

private:
    void begin();
    /// False when a refusal leaves the edit open.
    bool save();
    void end();
    void setUnderEdit(bool underEdit);

    Ui::frmcadastro_clientes &ui;
    CustomerState &m_state;
    CustomerForm &m_form;
    CustomerList &m_list;
    CustomerPhoto &m_photo;
};
