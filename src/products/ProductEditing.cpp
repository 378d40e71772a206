#include "products/ProductEditing.h"

#include "categories/CategoryOfSales.h"
#include "data/Statements.h"
#include "platform/base/Err.h"
#include "platform/text/Numbers.h"
#include "products/ProductColumns.h"
#include "products/ProductForm.h"
#include "products/ProductList.h"
#include "products/ProductRecord.h"
#include "products/ProductState.h"
#include "products/ProductStatements.h"
#include "products/ProductTexts.h"
#include "products/ProductUniqueness.h"
#include "ui_frmcadastro_produtos.h"

ProductEditing::ProductEditing(Ui::frmcadastro_produtos &window, ProductState &state, ProductForm &form,
                               ProductList &list)
    : TwoPressEdit(productTexts,
                   {.resting = "String7", .editing = "String8", .question = "MsgBox14", .title = "MsgBox11_2"},
                   *window.cmdeditar, *window.frame_cadastro,
                   // The sales refer to the description, so that it never changes.
                   {window.cmdcategoria, window.cmdadicionar, window.cmdremover, window.txtdescrição})
    , ui(window)
    , m_state(state)
    , m_form(form)
    , m_list(list)
{
}

void ProductEditing::begin()
{
    // Before the box shows the product itself, and that stays: an edited service is stored as a product, unless the box
    // was ticked by hand before.
    m_state.Servico_Produto = ui.chkserviço->isChecked();
    if (m_state.LinhaSelecionada < 1 || ui.tab_produtos->RowSel() < 1) {
        productTexts.notice("MsgBox13");
        return;
    }
    setUnderEdit(true);
    m_state.CodigoEditado = Val(ui.tab_produtos->TextMatrix(m_state.LinhaSelecionada, ProductColumn::Codigo));
    m_state.LinhaEditada = m_state.LinhaSelecionada;
    m_form.show(m_list.product(m_state.LinhaEditada));
    if (m_state.CodigoEditado == reservedProduct)
        m_form.setReservedEnabled(false);
}

bool ProductEditing::save()
{
    if (!m_form.testar_valores({.apostrophe = "MsgBox15", .noStock = "MsgBox16", .negativeStock = "MsgBox17"}))
        return false;
    if (isEditedProductTaken(ui))
        return false;
    ProductRecord product = m_form.record();
    product.Servico = m_state.Servico_Produto;
    executeIgnoringErrors(updateStatement(product, m_state.CodigoEditado));
    updateCategoryOfSales("Categoria = '" + product.Categoria + "' Where Descrição = '" + product.Descrição + "'",
                          executeIgnoringErrors);
    OnErrorResumeNext<ErrorNumber::SubscriptOutOfRange>([&] { m_list.showProduct(m_state.LinhaEditada, product); });
    // Not after a no: then the supplier stays locked until the reserved product is saved. It stays.
    if (m_state.CodigoEditado == reservedProduct)
        m_form.setReservedEnabled(true);
    return true;
}

void ProductEditing::end()
{
    setUnderEdit(false);
    m_form.clear();
}
