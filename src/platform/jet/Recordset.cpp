#include "platform/jet/Recordset.h"

#include "platform/base/Err.h"

namespace {

constexpr int noCurrentRow = 3021;
constexpr int noSuchItem = 3265;

} // namespace

Recordset::Recordset(QStringList fieldNames, RowStore rows)
    : m_fieldNames(std::move(fieldNames)), m_rows(std::move(rows))
{
    readRow();
}

void Recordset::readRow()
{
    if (!Eof())
        m_rows.read(m_row, m_current);
}

void Recordset::MoveNext()
{
    if (Eof())
        throw RunTimeError(noCurrentRow, "The recordset is at its end.");
    ++m_row;
    readRow();
}

FieldValue Recordset::Fields(const QString &name) const
{
    // The exact spelling is looked for first: it costs next to nothing, and lists ask once for every row.
    qsizetype index = m_fieldNames.indexOf(name);
    for (qsizetype i = 0; index < 0 && i < m_fieldNames.size(); ++i) {
        if (m_fieldNames[i].compare(name, Qt::CaseInsensitive) == 0)
            index = i;
    }
    if (index < 0)
        throw RunTimeError(noSuchItem, QString("The recordset has no field \"%1\".").arg(name));
    return Fields(static_cast<int>(index));
}

FieldValue Recordset::Fields(int index) const
{
    if (index < 0 || index >= FieldCount())
        throw RunTimeError(noSuchItem, QString("The recordset has no field %1.").arg(index));
    if (Eof())
        throw RunTimeError(noCurrentRow, "The recordset is at its end.");
    return m_current[static_cast<std::size_t>(index)];
}

void Recordset::Close()
{
    m_row = 0;
    m_current.clear();
    m_rows = RowStore(0);
}
