#include "bench/BareFile.h"

#include <sqlcipher/sqlite3.h>

#include <cstdlib>
#include <stdexcept>

namespace {
constexpr char password[] = "qzt3172";

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
    for (char &character : number)
        if (character == ',')
            character = '.';
    sqlite3_result_double(context, std::strtod(number.c_str(), nullptr));
}
} // namespace

BareFile::BareFile(const QString &path)
{
    check(sqlite3_open_v2(path.toUtf8().constData(), &m_file, SQLITE_OPEN_READWRITE, nullptr), m_file);
    check(sqlite3_key(m_file, password, sizeof password - 1), m_file);
    write("PRAGMA synchronous = EXTRA");
    for (const char *name : {"Cdbl", "Val"})
        check(sqlite3_create_function(m_file, name, 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, readNumber, nullptr,
                                      nullptr),
              m_file);
}

BareFile::~BareFile()
{
    sqlite3_close(m_file);
}

std::vector<std::string> BareFile::read(const std::string &sql)
{
    sqlite3_stmt *statement = nullptr;
    check(sqlite3_prepare_v2(m_file, sql.c_str(), -1, &statement, nullptr), m_file);
    std::vector<std::string> values;
    const int columns = sqlite3_column_count(statement);
    while (sqlite3_step(statement) == SQLITE_ROW)
        for (int column = 0; column < columns; ++column) {
            const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(statement, column));
            values.emplace_back(text ? text : "");
        }
    check(sqlite3_finalize(statement), m_file);
    return values;
}

void BareFile::write(const std::string &sql)
{
    check(sqlite3_exec(m_file, sql.c_str(), nullptr, nullptr, nullptr), m_file);
}
