#pragma once

#include "categories/CategoryState.h"
#include "platform/window/Form.h"

#include <memory>

class CategoryEditing;
class CategoryList;
namespace Ui {
class frmcadastro_categoria;
}

/// Keeps the categories of the products, and the one that new products get.
class frmcadastro_categoria : public Form
{
    Q_OBJECT

public:
    frmcadastro_categoria();
    ~frmcadastro_categoria() override;

protected:
    /// Runs again after a removal.
    void Form_Load() override;

private:
    void cmdremover_Click();

    std::unique_ptr<Ui::frmcadastro_categoria> ui;
    CategoryState m_state;
    std::unique_ptr<CategoryList> m_list;
    std::unique_ptr<CategoryEditing> m_editing;
};
