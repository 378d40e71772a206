#pragma once

class ProductForm;
class ProductList;
struct ProductState;
namespace Ui {
class frmcadastro_produtos;
}

/// Edits a product: one press of the button begins, the next one saves.
class ProductEditing
{
public:
    ProductEditing(Ui::frmcadastro_produtos &window, ProductState &state, ProductForm &form, ProductList &list);

    void cmdeditar_Click();

private:
    void begin();
    /// False when a refusal leaves the edit open.
    bool save();
    void end();
    void setUnderEdit(bool underEdit);

    Ui::frmcadastro_produtos &ui;
    ProductState &m_state;
    ProductForm &m_form;
    ProductList &m_list;
};
