#pragma once

#include "customers/CustomerState.h"
#include "platform/window/Form.h"

#include <memory>

class CustomerEditing;
class CustomerForm;
class CustomerList;
class CustomerPhoto;
class CustomerRegistration;
namespace Ui {
class frmcadastro_clientes;
}

/// Registers, edits, deletes, finds and prints customers.
class frmcadastro_clientes : public Form
{
    Q_OBJECT

public:
    frmcadastro_clientes();
    ~frmcadastro_clientes() override;

    /// The same as a press on its button.
    void Editar_Cliente();
    /// Loads a customer into the form.
    void EditarCliente(double codigo);
    /// Goes to the customer of exactly that name, in any case.
    void Localizar(const QString &texto);

protected:
    /// Runs again after a deletion.
    void Form_Load() override;

private:
    void cmdexcluir_Click();

    // What works on the controls goes before them.
    std::unique_ptr<Ui::frmcadastro_clientes> ui;
    CustomerState m_state;
    std::unique_ptr<CustomerForm> m_form;
    std::unique_ptr<CustomerPhoto> m_photo;
    std::unique_ptr<CustomerList> m_list;
    std::unique_ptr<CustomerRegistration> m_registration;
    std::unique_ptr<CustomerEditing> m_editing;
};
