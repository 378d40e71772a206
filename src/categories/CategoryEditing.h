#pragma once

#include <QString>

struct CategoryState;
class CategoryList;
namespace Ui {
class frmcadastro_categoria;
}

/// Stores what is in the form: as a new category, or as the one under edit, which one press of the button begins and
/// the next one saves.
class CategoryEditing
{
public:
    CategoryEditing(Ui::frmcadastro_categoria &window, CategoryState &state, CategoryList &list);

    void cmdadicionar_Click();
    void cmdeditar_Click();
    /// Nothing under edit.
    void rest();

private:
    QString typedName() const;
    /// Whether the name can't stand in a statement or is missing, which is told.
    bool isRefused(const QString &emptyKey);
    /// Whether another category has the name, which is told.
    bool isTaken(const QString &condition);
    void store();
    void begin();
    /// False when a refusal leaves the edit open.
    bool save();
    void carryOver(const QString &name);
    void settleDefault(const QString &name);
    void takeDefault(const QString &name);
    void setUnderEdit(bool underEdit);

    Ui::frmcadastro_categoria &ui;
    CategoryState &m_state;
    CategoryList &m_list;
};
