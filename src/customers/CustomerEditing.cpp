#include "customers/CustomerEditing.h"

#include "customers/CustomerColumns.h"
#include "customers/CustomerForm.h"
#include "customers/CustomerList.h"
#include "customers/CustomerPhoto.h"
#include "customers/CustomerState.h"
#include "customers/CustomerStatements.h"
#include "customers/CustomerTexts.h"
#include "customers/CustomerUniqueness.h"
#include "data/Queries.h"
#include "data/Statements.h"
#include "platform/text/Numbers.h"
#include "ui_frmcadastro_clientes.h"

CustomerEditing::CustomerEditing(Ui::frmcadastro_clientes &window, CustomerState &state, CustomerForm &form,
                                 CustomerList &list, CustomerPhoto &photo)
    : TwoPressEdit(customerTexts,
                   {.resting = "String10", .editing = "String11", .question = "MsgBox5", .title = "MsgBox5_2"},
                   *window.cmdeditar, *window.frame_cadastro, {window.cmdexcluir, window.cmdok, window.cmdordenar})
    , ui(window)
    , m_state(state)
    , m_form(form)
    , m_list(list)
    , m_photo(photo)
{
}

void CustomerEditing::begin()
{
    if (m_state.LinhaSelecionada < 1 || ui.tab_clientes->RowSel() < 1)
        return customerTexts.notice("MsgBox4");
    m_state.CodigoCliente = Val(ui.tab_clientes->TextMatrix(m_state.LinhaSelecionada, CustomerColumn::Codigo));
    m_state.LinhaEditada = m_state.LinhaSelecionada;
    EditarCliente(m_state.CodigoCliente);
    setUnderEdit(true);
}

void CustomerEditing::EditarCliente(double codigo)
{
    readFirstRow("Select * from Clientes Where Codigo=" + Cstr(codigo), [&](const Recordset &rs) {
        m_form.show(rs);
        const Customer shown = m_form.customer();
        m_state.NomeAntigo = shown.Nome;
        m_state.NickAntigo = shown.Nick;
        m_photo.showStored(rs);
    });
    m_form.showDiscount();
}

bool CustomerEditing::save()
{
    m_form.testar_valores();
    m_form.fillBeforeBirthDate();
    // No test of the date here, unlike at the registration. That stays.
    m_form.fillFromBirthDate(Placeholder::NoBirthDateEdited);
    Customer customer = m_form.customer();
    if (const CustomerText taken = takenTextOfEdited(customer, m_state.NomeAntigo)) {
        m_form.focusOn(taken);
        return false;
    }
    customer.CaminhoFoto = m_photo.pathToStore(m_state.CodigoCliente);
    executeStatement(updateStatement(customer, m_state.CodigoCliente));
    for (const QString &statement : carryOverStatements(customer, m_state.NomeAntigo, m_state.NickAntigo))
        executeStatement(statement);
    m_list.showCustomer(m_state.LinhaEditada, customer);
    return true;
}

void CustomerEditing::end()
{
    m_form.clear();
    // The first group, not the default one. That stays.
    m_form.selectFirstGroup();
    m_form.takeTownOfCafe();
    setUnderEdit(false);
    m_state.LinhaEditada = 0;
}
