#include "categories/CategoryRemoval.h"

#include "categories/CategoryList.h"
#include "categories/CategoryOfSales.h"
#include "categories/CategoryState.h"
#include "categories/CategoryTexts.h"
#include "data/Statements.h"
#include "platform/base/Err.h"
#include "platform/window/FlexGrid.h"
#include "platform/window/Prompts.h"

namespace {
void removeRows(const QStringList &codes, const QStringList &names, const QString &heir)
{
    executeStatement("DELETE from Categoria WHERE " + codes.join(" OR "));
    const QString moved = "Categoria = '" + heir + "'Where " + names.join(" OR ");
    executeStatement("Update Produtos Set " + moved);
    updateCategoryOfSales(moved, executeStatement);
}
} // namespace

bool removeCategories(const FlexGrid &tab_categorias, const CategoryState &state)
{
    const int first = tab_categorias.Row();
    const int last = tab_categorias.RowSel();
    if (state.LinhaSelecionada < 1 || tab_categorias.Rows() < 2) {
        categoryTexts.notice("MsgBox11");
        return false;
    }
    if (!categoryTexts.confirms(first == last ? "MsgBox12" : "MsgBox13", "MsgBox1_2", vbQuestion))
        return false;

    const QString untouchable = categoryTexts.loaded("String7");
    QStringList codes;
    QStringList names;
    const int step = first <= last ? 1 : -1;
    for (int row = first; row != last + step; row += step) {
        const QString name = tab_categorias.TextMatrix(row, CategoryColumn::Name);
        if (name == untouchable) {
            categoryTexts.notice("MsgBox14");
            return false;
        }
        codes += "Codigo=" + tab_categorias.TextMatrix(row, CategoryColumn::Codigo);
        names += (first == last ? "Categoria = '" : "categoria='") + name + "'";
    }
    return OnErrorGoToEnd([&] { removeRows(codes, names, untouchable); });
}
