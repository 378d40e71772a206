#pragma once

#include <QObject>
#include <QString>

class FlexGrid;
class ProductSearch;
class Recordset;
class SaleDiscount;
struct CartLine;
struct SaleLock;
struct SaleState;
namespace Ui {
class frmvenda;
}

/// The cart in the window: adding with the stock check and the merge of lines, removing, the total, and the grid that
/// shows the lines.
class SaleCart : public QObject
{
    Q_OBJECT

public:
    SaleCart(Ui::frmvenda &window, SaleState &state, const SaleLock &lock, SaleDiscount &discount,
             ProductSearch &products);

    void setUpGrid();
    /// Takes the product that was found and the quantity shown to `Adicionar_Produto`.
    void cmdadicionar_Click();
    /// Asks for the product, holds its stock against the whole quantity, and takes it to the cart, the grid and the
    /// total.
    void Adicionar_Produto(const QString &descricao, double quantidade);
    void removeLines();
    void showTotal();

private:
    void addRow();
    void refuse(const CartLine &line, const Recordset &product);
    void cmdexcluir_Click();

    Ui::frmvenda &ui;
    FlexGrid &m_grid;
    SaleState &m_state;
    SaleDiscount &m_discount;
    ProductSearch &m_products;
};
