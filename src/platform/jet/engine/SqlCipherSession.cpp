#include "platform/jet/engine/SqlCipherSession.h"

#include "platform/base/Err.h"
#include "platform/jet/engine/SqlCipherBackup.h"
#include "platform/jet/engine/SqlCipherSchema.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace {

/// Above this a double no longer holds every whole number.
constexpr double largestWhole = 9007199254740992.0;

void bind(sqlite3_stmt *statement, int position, const Expression &literal)
{
    if (literal.kind == ExpressionKind::Text) {
        const QByteArray utf8 = literal.text.toUtf8();
        sqlite3_bind_text(statement, position, utf8.constData(), static_cast<int>(utf8.size()), SQLITE_TRANSIENT);
    } else if (literal.kind == ExpressionKind::Null) {
        sqlite3_bind_null(statement, position);
    } else if (std::abs(literal.number) < largestWhole && std::trunc(literal.number) == literal.number) {
        sqlite3_bind_int64(statement, position, static_cast<sqlite3_int64>(literal.number));
    } else {
        sqlite3_bind_double(statement, position, literal.number);
    }
}

/// Turns the columns of the current row into values; numbers are written into room of its own.
class RowReader
{
public:
    explicit RowReader(const SelectStatement &select, std::size_t columns)
        : m_columns(select.columns), m_digits(columns), m_row(columns)
    {
    }

    const std::vector<FieldValue> &read(sqlite3_stmt *statement)
    {
        for (std::size_t i = 0; i < m_row.size(); ++i)
            m_row[i] = value(statement, i);
        return m_row;
    }

private:
    FieldValue value(sqlite3_stmt *statement, std::size_t i)
    {
        const int column = static_cast<int>(i);
        switch (sqlite3_column_type(statement, column)) {
        case SQLITE_NULL:
            return {};
        case SQLITE_INTEGER:
            if (i < m_columns.size() && m_columns[i].type == ValueType::Boolean)
                return {FieldValue::Kind::Boolean, sqlite3_column_int64(statement, column) != 0 ? "-1" : "0"};
            return number(i, sqlite3_column_int64(statement, column));
        case SQLITE_FLOAT:
            return number(i, sqlite3_column_double(statement, column));
        default: {
            const void *text = sqlite3_column_blob(statement, column);
            const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
            return {FieldValue::Kind::Text, {static_cast<const char *>(text), size}};
        }
        }
    }

    template <typename Value>
    FieldValue number(std::size_t i, Value value)
    {
        std::array<char, 32> &digits = m_digits[i];
        const char *end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
        return {FieldValue::Kind::Number, {digits.data(), static_cast<std::size_t>(end - digits.data())}};
    }

    const std::vector<Expression> &m_columns;
    std::vector<std::array<char, 32>> m_digits;
    std::vector<FieldValue> m_row;
};

bool isOrderOfTexts(const std::vector<OrderTerm> &order)
{
    return !order.empty() &&
           std::all_of(order.begin(), order.end(), [](const OrderTerm &term) { return term.value.isText(); });
}

} // namespace

Catalogue SqlCipherSession::readCatalogue()
{
    return readSqlCipherCatalogue(m_connection);
}

RowStore SqlCipherSession::query(const SelectStatement &select)
{
    // The engine would carry whole rows through its sort, which takes longer than to put them in order as they lie
    // here.
    const bool sorted = isOrderOfTexts(select.order);
    const RenderedStatement rendered = sorted ? renderWithKeys(select) : renderSelect(select);
    fillLongLists(rendered);
    const SqlCipherRun run(prepared(rendered));
    const std::size_t columns = select.columns.size() + (sorted ? select.order.size() : 0);
    RowStore rows(columns);
    RowReader reader(select, columns);
    while (m_connection.step(run))
        rows.append(reader.read(run));
    for (std::size_t term = sorted ? select.order.size() : 0; term-- > 0;)
        rows.sortBy(select.columns.size() + term, select.order[term].descending);
    return rows;
}

void SqlCipherSession::execute(const Statement &statement)
{
    const RenderedStatement rendered = renderStatement(statement);
    fillLongLists(rendered);
    const SqlCipherRun run(prepared(rendered));
    while (m_connection.step(run)) {
    }
}

sqlite3_stmt *SqlCipherSession::prepared(const RenderedStatement &rendered)
{
    sqlite3_stmt *statement = m_connection.prepare(rendered.sql);
    int position = 0;
    for (const Expression *literal : rendered.parameters)
        bind(statement, ++position, *literal);
    return statement;
}

void SqlCipherSession::fillLongLists(const RenderedStatement &rendered)
{
    if (rendered.longLists.empty())
        return;
    m_connection.run(LongLists::create);
    m_connection.run(LongLists::clear);
    int number = 0;
    for (const Expression *list : rendered.longLists) {
        for (std::size_t i = 1; i < list->operands.size(); ++i) {
            const SqlCipherRun run(m_connection.prepare(LongLists::insert));
            sqlite3_bind_int(run, 1, number);
            bind(run, 2, list->operands[i]);
            m_connection.step(run);
        }
        ++number;
    }
}

void SqlCipherSession::begin()
{
    m_connection.run("BEGIN IMMEDIATE");
}

void SqlCipherSession::commit()
{
    m_connection.run("COMMIT");
}

void SqlCipherSession::rollback()
{
    m_connection.run("ROLLBACK");
}

int SqlCipherSession::schemaVersion()
{
    const SqlCipherConnection::Prepared statement = m_connection.compile("PRAGMA user_version");
    m_connection.step(statement.get());
    return sqlite3_column_int(statement.get(), 0);
}

void SqlCipherSession::setSchemaVersion(int version)
{
    m_connection.run("PRAGMA user_version = " + std::to_string(version));
}

void SqlCipherSession::createTable(const TableDef &table)
{
    createSqlCipherTable(m_connection, table);
}

void SqlCipherSession::turnIntoNumbers(const FieldsToNumbers &change)
{
    turnSqlCipherFields(m_connection, change);
}

QStringList SqlCipherSession::faults()
{
    QStringList found;
    try {
        const SqlCipherConnection::Prepared check = m_connection.compile("PRAGMA integrity_check");
        while (m_connection.step(check.get()))
            found += textColumn(check.get(), 0).split('\n');
    } catch (const RunTimeError &error) {
        // A page that no longer fits its check sum ends the reading itself.
        found.append(error.Description());
    }
    found.removeIf([](const QString &line) { return line == "ok" || line.startsWith("***"); });
    // A page that failed leaves the connection unable to read the sound ones.
    if (!found.isEmpty())
        m_connection.markLost();
    return found;
}

QStringList SqlCipherSession::foreignParts()
{
    return foreignSqlCipherParts(m_connection);
}

void SqlCipherSession::backupTo(const QString &path)
{
    backupSqlCipherFile(m_connection, path);
}
