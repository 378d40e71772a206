#pragma once

#include "customers/CustomerSearch.h"

#include <QObject>
#include <QString>

struct SaleLock;
struct SaleState;
namespace Ui {
class frmvenda;
}

/// Who buys: the list of customers, the search in it, the photo, and the choice of a walk-in buyer.
class SaleCustomers : public QObject
{
    Q_OBJECT

public:
    SaleCustomers(Ui::frmvenda &window, SaleState &state, const SaleLock &lock);

    void Listar_Clientes();
    /// Selects the first customer from a row on whose name or nick begins with the term.
    bool Buscar_Cliente(const QString &termo, int inicio);
    void ExibirFoto(const QString &nome);

    /// Takes the customer on whom the list stands, with the photo.
    void takeCurrent();

protected:
    /// The arrow keys of the name box walk the list, as every pick in the list sends the keyboard back to the box.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void tab_clientes_Click();
    void tab_clientes_SelChange();
    void optavulsa_Click();
    void optcliente_Click();
    void fill();
    void cmdbusca_Click();
    void setGridEnabled(bool enabled);

    Ui::frmvenda &ui;
    SaleState &m_state;
    NextMatchButton m_next;
    QString Ultima_Busca;
};
