#pragma once

#include "customers/CustomerSearch.h"

#include <QObject>
#include <QString>

class SaleDiscount;
struct SaleState;
namespace Ui {
class frmvenda;
}

/// Who buys: the list of customers, the search in it, the photo, and the choice of a walk-in buyer.
class SaleCustomers : public QObject
{
    Q_OBJECT

public:
    SaleCustomers(Ui::frmvenda &window, SaleState &state, const SaleDiscount &discount, QObject *parent);

    void Listar_Clientes();
    /// Selects the first customer from a row on whose name or nick begins with the term.
    bool Buscar_Cliente(const QString &termo, int inicio);
    void ExibirFoto(const QString &nome);

    void tab_clientes_Click();
    void tab_clientes_SelChange();
    void optavulsa_Click();
    void optcliente_Click();

protected:
    /// The arrow keys of the name box walk the list, as every pick in the list sends the keyboard back to the box.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fill();
    void cmdbusca_Click();
    void takeSelectedCustomer();
    void setGridEnabled(bool enabled);

    Ui::frmvenda &ui;
    SaleState &m_state;
    const SaleDiscount &m_discount;
    NextMatchButton m_next;
    QString Ultima_Busca;
};
