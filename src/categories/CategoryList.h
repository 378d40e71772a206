#pragma once

#include <QObject>

struct CategoryState;
namespace Ui {
class frmcadastro_categoria;
}

namespace CategoryColumn {
constexpr int Codigo = 0;
constexpr int Name = 1;
constexpr int Default = 2;
constexpr int Count = 3;
} // namespace CategoryColumn

/// The list of all categories: loading, counting, and the mark of the default one.
class CategoryList : public QObject
{
    Q_OBJECT

public:
    CategoryList(Ui::frmcadastro_categoria &window, CategoryState &state);

    /// Loads the list anew. No row is picked afterwards.
    void load();
    void addCategory(double codigo, const QString &name, bool isDefault);
    /// Writes a changed category into its row.
    void showCategory(int row, const QString &name);
    bool isMarked(int row) const;
    /// Marks the rows that bear the name of the default category, and no others.
    void markDefault();
    void showTotal();

private:
    void tab_categorias_Click();

    Ui::frmcadastro_categoria &ui;
    CategoryState &m_state;
};
