#pragma once

#include <QString>

/// What the window of the access codes knows of the sale under way beside its discount.
struct CodeState
{
    /// As they were typed; the tables hold them in capitals.
    QString Nome_Cliente;
    QString Nick_Cliente;
    /// "E" for a code that is paid before, "I" for one that is paid after.
    QString Tipo_Inicial;
    QString Motivo_Venda;
    double Proximo_Codigo = 0;
    /// Always 0 here; the administration program knows reloads and walk-in sales of codes.
    quint8 Recarga_Venda = 0;
    quint8 Avulsa_Venda = 0;
};
