#include "products/ProductUniqueness.h"

#include "data/Placeholders.h"
#include "data/Queries.h"
#include "products/ProductTexts.h"
#include "ui_frmcadastro_produtos.h"

namespace {
bool isTaken(const QString &field, TextBox *box, const QString &key, const QString &others,
             const QString &selected = "*")
{
    const QString value = box->text().toUpper();
    if (!hasRow("Select " + selected + " From Produtos Where " + field + "='" + value + "'" + others))
        return false;
    productTexts.noticeText(productTexts.text(key) + value + productTexts.text("MsgBox7_2"));
    box->setFocus();
    return true;
}

bool isCodeTaken(const Ui::frmcadastro_produtos &form, const QString &others, const QString &selected)
{
    return !form.txtcod->text().isEmpty() && isTaken("Cod", form.txtcod, "MsgBox8", others, selected);
}

bool isBarcodeTaken(const Ui::frmcadastro_produtos &form, const QString &others)
{
    const QString barcode = form.txtcod_barra->text();
    return !barcode.isEmpty() && barcode != Placeholder::NoBarcode &&
           isTaken("Cod_Barra", form.txtcod_barra, "MsgBox9", others);
}
} // namespace

bool isNewProductTaken(const Ui::frmcadastro_produtos &form)
{
    // A code typed as "---" is looked for, too, and is taken wherever a product has none. That stays.
    return isTaken("Descrição", form.txtdescrição, "MsgBox7", {}) || isCodeTaken(form, {}, "Cod") ||
           isBarcodeTaken(form, {});
}

bool isEditedProductTaken(const Ui::frmcadastro_produtos &form)
{
    const QString others = " And Descrição <> '" + form.txtdescrição->text() + "'";
    const bool coded = form.txtcod->text() != Placeholder::NoProductCode;
    return (coded && isCodeTaken(form, others, "*")) || isBarcodeTaken(form, others);
}
