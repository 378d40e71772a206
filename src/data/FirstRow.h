#pragma once

#include "data/Acesso_BD.h"
#include "platform/base/Err.h"

/// Runs a query on the main handle and hands its first row over, with errors ignored. False when there is no row, and
/// when the query fails.
template <typename Read>
bool readFirstRow(const QString &sql, Read read)
{
    RecordsetHandle rs;
    Abrir_Banco_Principal();
    Abrir_Recordset(rs, BancoPrincipal, sql);
    const bool found = rs && !rs->Eof();
    if (found)
        OnErrorResumeNext([&] { read(*rs); });
    Fechar_Recordset(rs);
    return found;
}

/// The key that follows the highest one, which the query asks for; 1 in an empty table.
inline double keyBehind(const QString &sql)
{
    double key = 1;
    readFirstRow(sql, [&](const Recordset &rs) { key = rs.Fields(0).number() + 1; });
    return key;
}

inline bool hasRow(const QString &sql)
{
    return readFirstRow(sql, [](const Recordset &) {});
}
