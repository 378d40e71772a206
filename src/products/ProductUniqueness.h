#pragma once

namespace Ui {
class frmcadastro_produtos;
}

// What no two products may share. Each asks the data file for a product with what stands in the box, tells so, and
// moves the focus to the box.

/// Whether a new product has anything that another one has.
bool isNewProductTaken(const Ui::frmcadastro_produtos &form);
/// The same of the product under edit, which is not its own duplicate.
bool isEditedProductTaken(const Ui::frmcadastro_produtos &form);
