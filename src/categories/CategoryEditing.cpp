#include "categories/CategoryEditing.h"

#include "categories/CategoryList.h"
#include "categories/CategoryOfSales.h"
#include "categories/CategoryState.h"
#include "categories/CategoryTexts.h"
#include "categories/DefaultCategory.h"
#include "data/Queries.h"
#include "data/Statements.h"
#include "platform/base/Err.h"
#include "platform/text/Numbers.h"
#include "ui_frmcadastro_categoria.h"

CategoryEditing::CategoryEditing(Ui::frmcadastro_categoria &window, CategoryState &state, CategoryList &list)
    : TwoPressEdit(categoryTexts,
                   {.resting = "String5", .editing = "String6", .question = "MsgBox5", .title = "MsgBox5_2"},
                   *window.cmdeditar, *window.frame_cadastro, {window.cmdremover, window.cmdadicionar})
    , ui(window)
    , m_state(state)
    , m_list(list)
{
}

void CategoryEditing::cmdadicionar_Click()
{
    OnErrorGoToEnd([this] {
        if (!isRefused("MsgBox2"))
            store();
    });
}

void CategoryEditing::end()
{
    ui.txtnome->setText({});
    ui.chkpadrao->setChecked(false);
    setUnderEdit(false);
}

QString CategoryEditing::typedName() const
{
    return ui.txtnome->text().toUpper();
}

bool CategoryEditing::isRefused(const QString &emptyKey)
{
    const bool apostrophe = Tem_Apostrofo(ui.txtnome->text());
    if (!apostrophe && !ui.txtnome->text().isEmpty())
        return false;
    categoryTexts.notice(apostrophe ? "MsgBox1" : emptyKey);
    ui.txtnome->setFocus();
    return true;
}

void CategoryEditing::tellTaken()
{
    categoryTexts.noticeText(categoryTexts.text("MsgBox3") + typedName() + categoryTexts.text("MsgBox3_2"));
}

void CategoryEditing::store()
{
    const double codigo = OrRaise::keyBehind("Select Max(Codigo) From Categoria");
    const QString name = typedName();
    if (OrRaise::hasRow("Select * from Categoria Where nome='" + name + "'")) {
        tellTaken();
        ui.txtnome->setFocus();
        return;
    }
    executeStatement("Insert into Categoria (Codigo,nome) values (" + Cstr(codigo) + ",'" + name + "')");
    m_list.addCategory(codigo, name, ui.chkpadrao->isChecked());
    if (ui.chkpadrao->isChecked()) {
        takeDefault(name);
        m_list.markDefault();
    }
    ui.txtnome->setText({});
    ui.chkpadrao->setChecked(false);
    m_list.showTotal();
    ui.txtnome->setFocus();
}

void CategoryEditing::begin()
{
    const FlexGrid &grid = *ui.tab_categorias;
    if (m_state.LinhaSelecionada < 1 || grid.Rows() < 2)
        return categoryTexts.notice("MsgBox4");
    m_state.LinhaEditada = m_state.LinhaSelecionada;
    m_state.CodigoCategoria = Val(grid.TextMatrix(m_state.LinhaEditada, CategoryColumn::Codigo));
    m_state.NomeAntigo = grid.TextMatrix(m_state.LinhaEditada, CategoryColumn::Name);
    ui.txtnome->setText(m_state.NomeAntigo);
    ui.chkpadrao->setChecked(m_list.isMarked(m_state.LinhaEditada));
    setUnderEdit(true);
}

bool CategoryEditing::save()
{
    const QString name = typedName();
    if (isRefused("MsgBox6"))
        return false;
    if (hasRow("Select * from Categoria Where Nome='" + name + "' AND Codigo <> " + Cstr(m_state.CodigoCategoria))) {
        tellTaken();
        return false;
    }
    if (m_state.NomeAntigo == categoryTexts.loaded("String7") && name != m_state.NomeAntigo) {
        categoryTexts.notice("MsgBox7");
        return false;
    }
    carryOver(name);
    settleDefault(name);
    m_list.showCategory(m_state.LinhaEditada, name);
    return true;
}

void CategoryEditing::carryOver(const QString &name)
{
    // No statement waits for the success of another: a change that is broken off halfway stays as it is.
    executeIgnoringErrors("Update Categoria Set Nome = '" + name + "' Where Codigo = " + Cstr(m_state.CodigoCategoria));
    const QString renamed = "Categoria = '" + name + "'";
    const QString formerly = "Where Categoria = '" + m_state.NomeAntigo + "'";
    executeIgnoringErrors("Update Produtos Set " + renamed + " " + formerly);
    updateCategoryOfSales(renamed + formerly, executeIgnoringErrors);
}

void CategoryEditing::settleDefault(const QString &name)
{
    if (ui.chkpadrao->isChecked()) {
        takeDefault(name);
        m_list.markDefault();
        return;
    }
    if (storedDefaultCategory() == name)
        takeDefault(categoryTexts.loaded("String7"));
    // Whatever the language calls the category that can't be removed; the next opening mends it. That stays.
    if (m_list.isMarked(m_state.LinhaEditada))
        storeDefaultCategory("DIVERSOS");
}

void CategoryEditing::takeDefault(const QString &name)
{
    m_state.CategoriaPadrao = name;
    storeDefaultCategory(name);
}
