#pragma once

#include "windows/TwoPressEdit.h"

struct CustomerState;
class CustomerForm;
class CustomerList;
class CustomerPhoto;
namespace Ui {
class frmcadastro_clientes;
}

/// Edits a registered customer. Has no trap: a statement that fails ends the program, and what was executed stays.
class CustomerEditing : public TwoPressEdit
{
public:
    CustomerEditing(Ui::frmcadastro_clientes &window, CustomerState &state, CustomerForm &form, CustomerList &list,
                    CustomerPhoto &photo);

    /// Shows a customer in the form.
    void EditarCliente(double codigo);

private:
    void begin() override;
    bool save() override;
    void end() override;

    Ui::frmcadastro_clientes &ui;
    CustomerState &m_state;
    CustomerForm &m_form;
    CustomerList &m_list;
    CustomerPhoto &m_photo;
};
