#pragma once

#include "platform/window/Form.h"
#include "products/ProductState.h"

#include <memory>

class ProductEditing;
class ProductForm;
class ProductList;
namespace Ui {
class frmcadastro_produtos;
}

/// The catalogue: the products and services that can be sold.
class frmcadastro_produtos : public Form
{
    Q_OBJECT

public:
    frmcadastro_produtos();
    ~frmcadastro_produtos() override;

protected:
    /// Runs again after a removal and after a visit to the categories.
    void Form_Load() override;
    void Form_Activate() override;

private:
    void cmdremover_Click();
    void cmdcategoria_Click();

    std::unique_ptr<Ui::frmcadastro_produtos> ui;
    ProductState m_state;
    std::unique_ptr<ProductForm> m_form;
    std::unique_ptr<ProductList> m_list;
    std::unique_ptr<ProductEditing> m_editing;
};
