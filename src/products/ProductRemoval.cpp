#include "products/ProductRemoval.h"

#include "data/Statements.h"
#include "platform/base/LongWork.h"
#include "platform/text/Numbers.h"
#include "platform/window/FlexGrid.h"
#include "platform/window/Form.h"
#include "platform/window/Prompts.h"
#include "products/ProductColumns.h"
#include "products/ProductState.h"
#include "products/ProductTexts.h"

#include <algorithm>

namespace {
bool isReserved(const QString &codigo)
{
    return Val(codigo) == reservedProduct;
}

/// Ends in " OR " where the last row is the reserved product: such a statement fails, nothing is removed, and success
/// is told. That stays.
QString conditionOf(const FlexGrid &grid, int first, int last)
{
    QString condition;
    for (int row = first; row <= last; ++row) {
        const QString codigo = grid.TextMatrix(row, ProductColumn::Codigo);
        if (!isReserved(codigo))
            condition += "Codigo=" + codigo + (row < last ? " OR " : "");
    }
    return condition;
}
} // namespace

bool removeProducts(Form &form, const FlexGrid &tab_produtos, const ProductState &state)
{
    if (tab_produtos.Rows() == 1) {
        productTexts.notice("MsgBox21");
        return false;
    }
    const int picked = state.LinhaSelecionada;
    const int selected = tab_produtos.RowSel();
    const bool single = picked == selected;
    if (!productTexts.confirms(single ? "MsgBox22" : "MsgBox23", "MsgBox1_2", vbQuestion))
        return false;

    form.setMousePointer(vbHourglass);
    if (single && isReserved(tab_produtos.TextMatrix(picked, ProductColumn::Codigo))) {
        form.setMousePointer(vbDefault);
        productTexts.notice("MsgBox24");
        return false;
    }
    const LongWork work;
    executeIgnoringErrors("DELETE FROM Produtos WHERE " +
                          conditionOf(tab_produtos, std::min(picked, selected), std::max(picked, selected)));
    return true;
}
