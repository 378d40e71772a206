#include "cafe/RowWriter.h"

#include "data/Esquema.h"
#include "platform/base/Err.h"

#include <algorithm>

namespace {

FieldType typeOf(const QString &tableName, const QString &fieldName)
{
    static const QList<TableDef> tables = tabelasDoBanco(OtiTable::With);
    const auto table =
        std::find_if(tables.begin(), tables.end(), [&](const TableDef &t) { return t.Name == tableName; });
    if (table != tables.end()) {
        for (const FieldDef &field : table->Fields) {
            if (field.Name == fieldName)
                return field.Type;
        }
    }
    throw RunTimeError(ErrorNumber::UnknownField, tableName + " has no field " + fieldName);
}

} // namespace

RowWriter::RowWriter(Database &db, const QString &table, const QStringList &fields)
    : m_db(db), m_head("Insert into " + table + " (" + fields.join(',') + ") values (")
{
    for (const QString &field : fields) {
        const FieldType type = typeOf(table, field);
        m_quoted.append(type != FieldType::Number && type != FieldType::Boolean);
    }
}

void RowWriter::write(const QStringList &values)
{
    QString sql = m_head;
    for (qsizetype i = 0; i < values.size(); ++i) {
        if (i > 0)
            sql += ',';
        if (m_quoted[i])
            sql += '\'' + values[i] + '\'';
        else
            sql += values[i];
    }
    m_db.Execute(sql + ')');
}
