#pragma once

#include <QString>

/// What the categories' window remembers as long as it is open.
struct CategoryState
{
    /// The category under edit, as it was when the edit began.
    double CodigoCategoria = 0;
    QString NomeAntigo;
    /// The default category, upper-cased.
    QString CategoriaPadrao;
    /// Rows of the list: the one picked last and the one under edit; 0 for none.
    int LinhaSelecionada = 0;
    int LinhaEditada = 0;
};
