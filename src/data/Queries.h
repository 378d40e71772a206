#pragma once

#include "data/Acesso_BD.h"
#include "platform/base/Err.h"

#include <utility>

/// Runs a query on the main handle and hands its rows over, with errors ignored: one that can't be read ends with its
/// failure, the next one follows, and a query that fails has none.
template <typename Read>
void forEachRow(const QString &sql, Read read)
{
    RecordsetHandle rs;
    Abrir_Banco_Principal();
    Abrir_Recordset(rs, BancoPrincipal, sql);
    for (; rs && !rs->Eof(); rs->MoveNext())
        OnErrorGoToEnd([&] { read(std::as_const(*rs)); });
    Fechar_Recordset(rs);
}

/// The same with the first row alone. False when there is none, and when the query fails.
template <typename Read>
bool readFirstRow(const QString &sql, Read read)
{
    RecordsetHandle rs;
    Abrir_Banco_Principal();
    Abrir_Recordset(rs, BancoPrincipal, sql);
    const bool found = rs && !rs->Eof();
    if (found)
        OnErrorGoToEnd([&] { read(std::as_const(*rs)); });
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
void forEachRow(const QString &sql, Read read)
{
    const RecordsetHandle rs = mainDatabase().OpenRecordset(sql, dbOpenForwardOnly, dbSeeChanges);
    for (; !rs->Eof(); rs->MoveNext())
        read(std::as_const(*rs));
}

template <typename Read>
bool readFirstRow(const QString &sql, Read read)
{
    const RecordsetHandle rs = mainDatabase().OpenRecordset(sql, dbOpenForwardOnly, dbSeeChanges);
    if (rs->Eof())
        return false;
    read(std::as_const(*rs));
    return true;
}

inline double keyBehind(const QString &sql)
{
    double key = 1;
    OrRaise::readFirstRow(sql,
                          [&](const Recordset &rs) { key = rs.Fields(0).isNull() ? 1 : rs.Fields(0).number() + 1; });
    return key;
}

inline bool hasRow(const QString &sql)
{
    return OrRaise::readFirstRow(sql, [](const Recordset &) {});
}
} // namespace OrRaise
