#pragma once

#include "platform/jet/FieldValue.h"
#include "platform/jet/RowStore.h"

#include <QString>
#include <QStringList>

#include <vector>

/// The answer of a query, read forward only.
///
/// The whole answer is read when it is opened, so that a list that stays open keeps no other terminal waiting.
/// Values stay valid as long as the recordset.
class Recordset
{
public:
    Recordset(QStringList fieldNames, RowStore rows);

    /// Not `EOF`: that word is a macro of the C library.
    bool Eof() const { return m_row >= m_rows.count(); }
    /// Raises when there is no current row.
    void MoveNext();
    /// A field of the current row, by its name without regard to case. Raises for an unknown name or at the end.
    FieldValue Fields(const QString &name) const;
    /// A field of the current row by its position from 0.
    FieldValue Fields(int index) const;
    int FieldCount() const { return static_cast<int>(m_fieldNames.size()); }
    QString FieldName(int index) const { return m_fieldNames.value(index); }
    void Close();

private:
    void readRow();

    QStringList m_fieldNames;
    RowStore m_rows;
    std::size_t m_row = 0;
    std::vector<FieldValue> m_current;
};
