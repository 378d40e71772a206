#pragma once

#include "windows/TwoPressEdit.h"

#include <QString>

struct CategoryState;
class CategoryList;
namespace Ui {
class frmcadastro_categoria;
}

/// Stores what is in the form: as a new category, or as the one under edit.
class CategoryEditing : public TwoPressEdit
{
public:
    CategoryEditing(Ui::frmcadastro_categoria &window, CategoryState &state, CategoryList &list);

    void cmdadicionar_Click();

private:
    QString typedName() const;
    /// Whether the name can't stand in a statement or is missing, which is told.
    bool isRefused(const QString &emptyKey);
    void tellTaken();
    void store();
    void begin() override;
    bool save() override;
    void end() override;
    void carryOver(const QString &name);
    void settleDefault(const QString &name);
    void takeDefault(const QString &name);

    Ui::frmcadastro_categoria &ui;
    CategoryState &m_state;
    CategoryList &m_list;
};
