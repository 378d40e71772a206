#include "categories/CategoryList.h"

#include "categories/CategoryState.h"
#include "categories/CategoryTexts.h"
#include "data/Queries.h"
#include "platform/base/Err.h"
#include "platform/text/Numbers.h"
#include "ui_frmcadastro_categoria.h"
#include "windows/ListTotal.h"

namespace {
QString markOf(bool isDefault)
{
    return isDefault ? "x" : "---";
}
} // namespace

CategoryList::CategoryList(Ui::frmcadastro_categoria &window, CategoryState &state) : ui(window), m_state(state)
{
    connect(ui.tab_categorias, &FlexGrid::Click, this, &CategoryList::tab_categorias_Click);
    connect(ui.tab_categorias, &FlexGrid::SelChange, this, &CategoryList::tab_categorias_Click);
}

void CategoryList::load()
{
    FlexGrid &grid = *ui.tab_categorias;
    grid.inOneStep([&] {
        grid.Clear();
        grid.setFormatString("<       |<" + categoryTexts.text("tab_categorias1") + "|<" +
                             categoryTexts.text("tab_categorias2"));
        grid.setCols(CategoryColumn::Count);
        grid.setRows(1);

        // A row without a number is left out: nothing could be done with it here.
        forEachRow("Select * from Categoria Order By Nome", [&](const Recordset &rs) {
            const QString name = rs.Fields("Nome").text();
            addCategory(rs.Fields("Codigo").number(), name, name.toUpper() == m_state.CategoriaPadrao);
        });
        grid.setRow(0);
    });
    showTotal();
}

void CategoryList::addCategory(double codigo, const QString &name, bool isDefault)
{
    FlexGrid &grid = *ui.tab_categorias;
    const int row = grid.Rows();
    grid.inOneStep([&] {
        grid.setRows(row + 1);
        grid.setTextMatrix(row, CategoryColumn::Codigo, Cstr(codigo));
        grid.setTextMatrix(row, CategoryColumn::Name, name);
        grid.setTextMatrix(row, CategoryColumn::Default, markOf(isDefault));
    });
}

void CategoryList::showCategory(int row, const QString &name)
{
    FlexGrid &grid = *ui.tab_categorias;
    grid.setTextMatrix(row, CategoryColumn::Name, name);
    grid.setTextMatrix(row, CategoryColumn::Default, markOf(name == m_state.CategoriaPadrao));
}

bool CategoryList::isMarked(int row) const
{
    return ui.tab_categorias->TextMatrix(row, CategoryColumn::Default) == markOf(true);
}

void CategoryList::markDefault()
{
    FlexGrid &grid = *ui.tab_categorias;
    for (int row = 1; row < grid.Rows(); ++row)
        grid.setTextMatrix(row, CategoryColumn::Default,
                           markOf(grid.TextMatrix(row, CategoryColumn::Name) == m_state.CategoriaPadrao));
}

void CategoryList::showTotal()
{
    ::showTotal(categoryTexts, ui.tab_categorias->Rows() - 1, {ui.lbltotal_categorias, ui.Lblsombracategorias});
}

void CategoryList::tab_categorias_Click()
{
    m_state.LinhaSelecionada = ui.tab_categorias->Row();
}
