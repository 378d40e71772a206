#pragma once

class ProductForm;
class ProductList;
namespace Ui {
class frmcadastro_produtos;
}

/// Stores the product in the form as a new one, and adds it to the list even where the data file refused it.
void registerProduct(const Ui::frmcadastro_produtos &window, ProductForm &form, ProductList &list);
