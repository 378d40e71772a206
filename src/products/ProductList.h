#pragma once

#include <QObject>

struct ProductRecord;
struct ProductState;
namespace Ui {
class frmcadastro_produtos;
}

/// The list of all products: loading, searching, counting.
class ProductList : public QObject
{
    Q_OBJECT

public:
    ProductList(Ui::frmcadastro_produtos &window, ProductState &state);

    /// Loads the list anew. No row is picked afterwards.
    void load();
    /// Selects the first product whose description begins with the text.
    bool Buscar_Produto(const QString &termo);

    ProductRecord product(int row) const;
    /// Writes an edited product into its row. Another supplier shows only when the list is loaded anew, and that stays.
    void showProduct(int row, const ProductRecord &product);
    /// Adds a product at the end.
    void addProduct(double codigo, const ProductRecord &product);
    /// Tells of every product that it is in the menu, or that it isn't.
    void showMenuFlag(bool inMenu);

private:
    void fill();
    void showCount();
    void cmdbuscar_Click();
    void tab_produtos_Click();

    Ui::frmcadastro_produtos &ui;
    ProductState &m_state;
};
