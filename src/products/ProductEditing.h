#pragma once

#include "windows/TwoPressEdit.h"

class ProductForm;
class ProductList;
struct ProductState;
namespace Ui {
class frmcadastro_produtos;
}

class ProductEditing : public TwoPressEdit
{
public:
    ProductEditing(Ui::frmcadastro_produtos &window, ProductState &state, ProductForm &form, ProductList &list);

private:
    void begin() override;
    bool save() override;
    void end() override;

    Ui::frmcadastro_produtos &ui;
    ProductState &m_state;
    ProductForm &m_form;
    ProductList &m_list;
};
