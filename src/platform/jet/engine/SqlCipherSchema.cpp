#include "platform/jet/engine/SqlCipherSchema.h"

#include "platform/base/Err.h"
#include "platform/jet/engine/SqlCipherFunctions.h"
#include "platform/jet/engine/SqlCipherRenderer.h"

#include <QRegularExpression>
#include <QScopeGuard>
#include <QStringList>

namespace {

/// A boolean field is never Null: one that an insert leaves out is false.
const char *declaration(FieldType type)
{
    switch (type) {
    case FieldType::Number:
        return "NUMERIC";
    case FieldType::Boolean:
        return "BOOLEAN NOT NULL DEFAULT 0";
    case FieldType::TextAnyCase:
        return "TEXT_ANY_CASE";
    case FieldType::Text:
        break;
    }
    return "TEXT";
}

/// Files of other makers declare their numbers in many ways.
FieldType declaredType(const QString &declaration)
{
    const QString upper = declaration.toUpper();
    if (upper.contains("BOOL"))
        return FieldType::Boolean;
    if (upper.contains("ANY_CASE"))
        return FieldType::TextAnyCase;
    for (const char *number : {"INT", "NUM", "REAL", "FLOA", "DOUB", "DEC"}) {
        if (upper.contains(number))
            return FieldType::Number;
    }
    return FieldType::Text;
}

QString keyIndexName(const QString &table)
{
    return table + " key";
}

template <typename Row>
void forEachRow(SqlCipherConnection &connection, const std::string &sql, Row row)
{
    const SqlCipherConnection::Prepared statement = connection.compile(sql);
    while (connection.step(statement.get()))
        row(statement.get());
}

void readFields(SqlCipherConnection &connection, TableDef &table)
{
    forEachRow(connection, "PRAGMA table_info(" + quotedName(table.Name) + ")", [&table](sqlite3_stmt *row) {
        table.Fields.append({textColumn(row, 1), declaredType(textColumn(row, 2))});
    });
}

void readIndexes(SqlCipherConnection &connection, TableDef &table)
{
    struct Index
    {
        QString name;
        bool unique;
    };
    QList<Index> indexes;
    forEachRow(connection, "PRAGMA index_list(" + quotedName(table.Name) + ")", [&indexes](sqlite3_stmt *row) {
        indexes.prepend({textColumn(row, 1), sqlite3_column_int(row, 2) != 0});
    });
    for (const Index &index : indexes) {
        QStringList fields;
        forEachRow(connection, "PRAGMA index_info(" + quotedName(index.name) + ")",
                   [&fields](sqlite3_stmt *row) { fields.append(textColumn(row, 2)); });
        if (index.name == keyIndexName(table.Name)) {
            table.Key = index.unique ? KeyKind::Refuse : KeyKind::Renumber;
            table.KeyField = fields.value(0);
        } else if (fields.size() == 1) {
            table.IndexedFields.append(fields.first());
        }
    }
}

void createIndex(SqlCipherConnection &connection, const TableDef &table, const QString &field, const QString &name,
                 const char *kind)
{
    connection.run(std::string("CREATE ") + kind + " " + quotedName(name) + " ON " + quotedName(table.Name) + " (" +
                   quotedName(field) + ")");
}

// Two terminals that read the same maximum both store their row. The trigger lies in the file, so it serves every
// program that writes there, and the number is found under the lock of the insert itself.
std::string renumbering(const TableDef &table)
{
    const std::string name = quotedName(table.Name);
    const std::string key = quotedName(table.KeyField);
    return "CREATE TRIGGER " + quotedName(table.Name + " renumber") + " AFTER INSERT ON " + name +
           " WHEN EXISTS (SELECT 1 FROM " + name + " WHERE " + key + " = NEW." + key +
           " AND rowid <> NEW.rowid) BEGIN UPDATE " + name + " SET " + key + " = (SELECT max(" + key + ") FROM " +
           name + ") + 1 WHERE rowid = NEW.rowid; END";
}

/// The text that made a table, with a field declared as a number instead.
QString withNumber(const QString &design, const QString &field)
{
    const QRegularExpression declared(
        QString(
            R"(([(,]\s*["\[`]?%1(?!\w)["\]`]?))"
            R"((\s+(?!(not|null|default|check|unique|primary|collate|constraint|references)\b)\w+(\s*\([\d\s,]*\))?)?)")
            .arg(QRegularExpression::escape(field)),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    const QRegularExpressionMatch match = declared.match(design);
    if (!match.hasMatch())
        throw RunTimeError(ErrorNumber::UnknownField, QString("No field \"%1\" can be made a number.").arg(field));
    return QString(design).replace(match.capturedStart(), match.capturedLength(),
                                   match.captured(1) + ' ' + declaration(FieldType::Number));
}

} // namespace

Catalogue readSqlCipherCatalogue(SqlCipherConnection &connection)
{
    // One lock for all of it: over a network folder each costs several round trips.
    connection.run("SAVEPOINT catalogue");
    const auto release =
        qScopeGuard([&] { sqlite3_exec(connection.handle(), "RELEASE catalogue", nullptr, nullptr, nullptr); });
    QList<TableDef> tables;
    forEachRow(connection,
               "SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite~_%' ESCAPE '~'",
               [&tables](sqlite3_stmt *row) {
                   TableDef table;
                   table.Name = textColumn(row, 0);
                   tables.append(table);
               });
    for (TableDef &table : tables) {
        readFields(connection, table);
        readIndexes(connection, table);
    }
    return Catalogue(tables);
}

QStringList foreignSqlCipherParts(SqlCipherConnection &connection)
{
    QStringList own;
    const Catalogue catalogue = readSqlCipherCatalogue(connection);
    for (const TableDef &table : catalogue.tables()) {
        if (table.Key == KeyKind::Renumber)
            own.append(QString::fromStdString(renumbering(table)));
    }
    QStringList foreign;
    forEachRow(connection, "SELECT type, name, sql FROM sqlite_master WHERE type IN ('trigger', 'view')",
               [&](sqlite3_stmt *row) {
                   if (!own.contains(textColumn(row, 2)))
                       foreign.append(textColumn(row, 0) + " " + textColumn(row, 1));
               });
    return foreign;
}

void createSqlCipherTable(SqlCipherConnection &connection, const TableDef &table)
{
    std::string sql = "CREATE TABLE " + quotedName(table.Name);
    const char *separator = " (";
    for (const FieldDef &field : table.Fields) {
        sql += separator + quotedName(field.Name) + " " + declaration(field.Type);
        separator = ", ";
    }
    connection.run(sql + ")");

    if (table.Key != KeyKind::None)
        createIndex(connection, table, table.KeyField, keyIndexName(table.Name),
                    table.Key == KeyKind::Refuse ? "UNIQUE INDEX" : "INDEX");
    if (table.Key == KeyKind::Renumber)
        connection.run(renumbering(table));
    for (const QString &field : table.IndexedFields)
        createIndex(connection, table, field, table.Name + " " + field, "INDEX");
}

// The engine can't change a field's type, so the rows wait aside while the table is made anew, in the words that made
// it before: other programs may have given it fields, defaults, indexes and triggers of their own.
void turnSqlCipherFields(SqlCipherConnection &connection, const FieldsToNumbers &change)
{
    const Catalogue catalogue = readSqlCipherCatalogue(connection);
    const TableDef &table = catalogue.table(change.Table);
    QString design;
    QStringList belongings;
    forEachRow(connection,
               "SELECT name, type, sql, tbl_name FROM sqlite_master WHERE sql IS NOT NULL AND type <> 'view'",
               [&](sqlite3_stmt *row) {
                   if (textColumn(row, 3).compare(table.Name, Qt::CaseInsensitive) != 0)
                       return;
                   if (textColumn(row, 1) == "table")
                       design = textColumn(row, 2);
                   else
                       belongings.append(textColumn(row, 2));
               });

    std::string names;
    std::string values;
    for (const FieldDef &field : table.Fields) {
        const bool turns = field.Type != FieldType::Number && change.Fields.contains(field.Name, Qt::CaseInsensitive);
        if (turns)
            design = withNumber(design, field.Name);
        const std::string name = quotedName(field.Name);
        names += (names.empty() ? "" : ", ") + name;
        values += (values.empty() ? "" : ", ") + (turns ? SqlCipherNames::anyNumber + ("(" + name + ")") : name);
    }
    const std::string name = "main." + quotedName(table.Name);
    connection.run("CREATE TEMP TABLE kept AS SELECT * FROM " + name);
    connection.run("DROP TABLE " + name);
    connection.run(design.toStdString());
    connection.run("INSERT INTO " + name + " (" + names + ") SELECT " + values + " FROM temp.kept");
    connection.run("DROP TABLE temp.kept");
    for (const QString &belonging : std::as_const(belongings))
        connection.run(belonging.toStdString());
}
