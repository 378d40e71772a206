#pragma once

#include <QString>

/// What the customers' window remembers as long as it is open.
struct CustomerState
{
    /// The customer under edit, as it was when the edit began.
    double CodigoCliente = 0;
    QString NomeAntigo;
    QString NickAntigo;
    qint16 TotalClientes = 0;
    /// Columns of the list: the last one clicked, and the one that it was last sorted by, which nothing asks for.
    quint8 ColunaClicada = 0;
    quint8 ColunaOrdenada = 0;
    /// Rows of the list: the one picked last and the one under edit; 0 for none.
    int LinhaSelecionada = 0;
    int LinhaEditada = 0;
};
