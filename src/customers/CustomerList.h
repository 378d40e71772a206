#pragma once

#include "customers/CustomerSearch.h"

#include <QObject>

struct Customer;
struct CustomerState;
class Recordset;
namespace Ui {
class frmcadastro_clientes;
}

/// The list of all customers: loading, sorting, searching, counting.
class CustomerList : public QObject
{
    Q_OBJECT

public:
    CustomerList(Ui::frmcadastro_clientes &window, CustomerState &state);

    /// Loads the list anew in the order of a field; events run meanwhile.
    void Ordenar_Tabela(const QString &campo);
    /// Selects the first customer from a row on whose name or nick begins with the text.
    bool Buscar_Cliente(const QString &texto, int inicio);
    /// Goes to the customer of exactly that name, in any case; stays where there is none.
    void Localizar(const QString &texto);

    /// Makes a row the one that the buttons act on; 0 for none.
    void pick(int row);

    /// Writes a customer into a row, but for its code.
    void showCustomer(int row, const Customer &customer);
    void addCustomer(double codigo, const Customer &customer);
    /// Raises Overflow where there are more customers than a 16-bit number counts.
    void countAdded();
    /// What the buttons can do depends on whether anyone is listed.
    void enableButtons();

private:
    void load(const QString &campo);
    void countOne();
    void showRow(const Recordset &rs);
    void showCount(bool single);
    void cmdordenar_Click();
    void cmdbusca_Click();
    void tab_clientes_Click();
    void tab_clientes_SelChange();

    Ui::frmcadastro_clientes &ui;
    CustomerState &m_state;
    NextMatchButton m_next;
};
