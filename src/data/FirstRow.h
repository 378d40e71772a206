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

/// Puts a field's text into a control, with errors ignored: a field that is not there leaves this control alone and
/// keeps none behind it from being filled.
template <typename Control>
void fillFrom(const Recordset &rs, const QString &field, Control *control)
{
    OnErrorResumeNext([&] { control->setText(rs.Fields(field).text()); });
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

/// The same for routines whose failures are trapped or end the program: these raise what fails.
namespace OrRaise {
template <typename Read>
bool readFirstRow(const QString &sql, Read read)
{
    const RecordsetHandle rs = openQuery(sql);
    if (rs->Eof())
        return false;
    read(*rs);
    return true;
}

inline double keyBehind(const QString &sql)
{
    const RecordsetHandle rs = openQuery(sql);
    return rs->Eof() || rs->Fields(0).isNull() ? 1 : rs->Fields(0).number() + 1;
}

inline bool hasRow(const QString &sql)
{
    return !openQuery(sql)->Eof();
}
} // namespace OrRaise
