#include "bench/BareFile.h"

#include "data/Connection.h"

#include <sqlcipher/sqlite3.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <stdexcept>

namespace {
void check(int code, sqlite3 *file)
{
    if (code != SQLITE_OK && code != SQLITE_ROW && code != SQLITE_DONE)
        throw std::runtime_error(sqlite3_errmsg(file));
}

/// Reads a number with a decimal comma, as cheaply as the C library can.
void readNumber(sqlite3_context *context, int, sqlite3_value **values)
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_value_text(values[0]));
    if (!text)
        return sqlite3_result_null(context);
    std::string number(text);
    std::replace(number.begin(), number.end(), ',', '.');
    sqlite3_result_double(context, std::strtod(number.c_str(), nullptr));
}
} // namespace

BareFile::BareFile(const QString &path)
{
    check(sqlite3_open_v2(path.toUtf8().constData(), &m_file, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr),
          m_file);
    check(sqlite3_key(m_file, dataFilePassword, static_cast<int>(std::strlen(dataFilePassword))), m_file);
    write("PRAGMA synchronous = EXTRA; PRAGMA temp_store = MEMORY; PRAGMA cache_size = -16384");
    for (const char *name : {"Cdbl", "Val"})
        check(sqlite3_create_function(m_file, name, 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, readNumber, nullptr,
                                      nullptr),
              m_file);
}

BareFile::~BareFile()
{
    sqlite3_close_v2(m_file);
}

std::vector<std::string> BareFile::read(const std::string &sql)
{
    BareStatement statement(*this, sql);
    std::vector<std::string> values;
    while (statement.next())
        for (int column = 0; column < statement.columns(); ++column)
            values.emplace_back(statement.text(column));
    return values;
}

void BareFile::write(const std::string &sql)
{
    check(sqlite3_exec(m_file, sql.c_str(), nullptr, nullptr, nullptr), m_file);
}

void BareStatement::Finalize::operator()(sqlite3_stmt *statement) const
{
    sqlite3_finalize(statement);
}

BareStatement::BareStatement(BareFile &file, const std::string &sql) : m_file(file.m_file)
{
    sqlite3_stmt *statement = nullptr;
    check(sqlite3_prepare_v2(m_file, sql.c_str(), -1, &statement, nullptr), m_file);
    m_statement.reset(statement);
}

bool BareStatement::next()
{
    const int code = sqlite3_step(m_statement.get());
    check(code, m_file);
    if (code != SQLITE_ROW) {
        rewind();
        return false;
    }
    for (int column = 0; column < columns(); ++column)
        switch (sqlite3_column_type(m_statement.get(), column)) {
        case SQLITE_INTEGER:
            sqlite3_column_int64(m_statement.get(), column);
            break;
        case SQLITE_FLOAT:
            sqlite3_column_double(m_statement.get(), column);
            break;
        default:
            sqlite3_column_blob(m_statement.get(), column);
        }
    return true;
}

void BareStatement::run()
{
    while (next()) {
    }
}

long long BareStatement::number()
{
    const long long number = next() ? sqlite3_column_int64(m_statement.get(), 0) : 0;
    rewind();
    return number;
}

int BareStatement::columns() const
{
    return sqlite3_column_count(m_statement.get());
}

std::string_view BareStatement::text(int column) const
{
    const bool isText = sqlite3_column_type(m_statement.get(), column) == SQLITE_TEXT;
    // A text is taken as it lies there: asked for as a text it would be copied to end in a zero.
    const void *text = isText ? sqlite3_column_blob(m_statement.get(), column)
                              : static_cast<const void *>(sqlite3_column_text(m_statement.get(), column));
    return {static_cast<const char *>(text), static_cast<std::size_t>(sqlite3_column_bytes(m_statement.get(), column))};
}

void BareStatement::rewind()
{
    sqlite3_reset(m_statement.get());
}

void BareStatement::bind(int place, std::string_view text)
{
    sqlite3_bind_text(m_statement.get(), place, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
}

void BareStatement::bind(int place, long long number)
{
    sqlite3_bind_int64(m_statement.get(), place, number);
}
