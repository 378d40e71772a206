#include "platform/jet/engine/SqlCipherFunctions.h"

#include "platform/jet/TextOrder.h"
#include "platform/text/Numbers.h"

#include <cmath>
#include <string_view>

namespace {

std::string_view textOf(sqlite3_value *value)
{
    const void *text = sqlite3_value_text(value);
    return {static_cast<const char *>(text), static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

bool isNumber(sqlite3_value *value)
{
    const int type = sqlite3_value_type(value);
    return type == SQLITE_INTEGER || type == SQLITE_FLOAT;
}

void refuse(sqlite3_context *context)
{
    sqlite3_result_error(context, "a value is no number", -1);
    sqlite3_result_error_code(context, SQLITE_MISMATCH);
}

void cdbl(sqlite3_context *context, int, sqlite3_value **arguments)
{
    if (isNumber(*arguments)) {
        sqlite3_result_double(context, sqlite3_value_double(*arguments));
        return;
    }
    if (sqlite3_value_type(*arguments) == SQLITE_NULL) {
        refuse(context);
        return;
    }
    if (const std::optional<double> number = readNumber(textOf(*arguments)))
        sqlite3_result_double(context, *number);
    else
        refuse(context);
}

void anyNumber(sqlite3_context *context, int, sqlite3_value **arguments)
{
    const int type = sqlite3_value_type(*arguments);
    if (type == SQLITE_NULL || isNumber(*arguments)) {
        sqlite3_result_value(context, *arguments);
        return;
    }
    const std::optional<double> number = readNumber(textOf(*arguments));
    sqlite3_result_double(context, number ? *number : Val(textOf(*arguments)));
}

void val(sqlite3_context *context, int, sqlite3_value **arguments)
{
    if (sqlite3_value_type(*arguments) == SQLITE_NULL)
        return;
    sqlite3_result_double(context, isNumber(*arguments) ? sqlite3_value_double(*arguments) : Val(textOf(*arguments)));
}

void cstr(sqlite3_context *context, int, sqlite3_value **arguments)
{
    if (sqlite3_value_type(*arguments) == SQLITE_NULL)
        return;
    const double number = sqlite3_value_double(*arguments);
    // The engine reckons beyond every double, and no exception may cross it.
    if (!std::isfinite(number)) {
        refuse(context);
        return;
    }
    const QByteArray text = Cstr(number).toUtf8();
    sqlite3_result_text(context, text.constData(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

void textKey(sqlite3_context *context, int, sqlite3_value **arguments)
{
    if (sqlite3_value_type(*arguments) == SQLITE_NULL)
        return;
    const std::string key = languageKey(textOf(*arguments));
    sqlite3_result_text(context, key.data(), static_cast<int>(key.size()), SQLITE_TRANSIENT);
}

int collateAnyCase(void *, int leftSize, const void *left, int rightSize, const void *right)
{
    return compareAnyCase({static_cast<const char *>(left), static_cast<std::size_t>(leftSize)},
                          {static_cast<const char *>(right), static_cast<std::size_t>(rightSize)});
}

using ScalarFunction = void (*)(sqlite3_context *, int, sqlite3_value **);

void addFunction(sqlite3 *handle, const char *name, ScalarFunction function)
{
    sqlite3_create_function_v2(handle, name, 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, function, nullptr, nullptr,
                               nullptr);
}

} // namespace

void registerSqlCipherFunctions(sqlite3 *handle)
{
    addFunction(handle, SqlCipherNames::Cdbl, cdbl);
    addFunction(handle, SqlCipherNames::Val, val);
    addFunction(handle, SqlCipherNames::Cstr, cstr);
    addFunction(handle, SqlCipherNames::anyNumber, anyNumber);
    addFunction(handle, SqlCipherNames::textKey, textKey);
    sqlite3_create_collation_v2(handle, SqlCipherNames::anyCase, SQLITE_UTF8, nullptr, collateAnyCase, nullptr);
}
