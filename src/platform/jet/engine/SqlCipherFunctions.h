#pragma once

#include <sqlite3.h>

/// Names under which the engine's SQL reaches what the windows' SQL has and this engine lacks.
namespace SqlCipherNames {
constexpr const char *anyCase = "any_case";
constexpr const char *textKey = "text_key";
constexpr const char *Cdbl = "jet_cdbl";
constexpr const char *Val = "jet_val";
constexpr const char *Cstr = "jet_cstr";
/// A number whatever the value is: by the regional settings, else the longest leading one.
constexpr const char *anyNumber = "any_number";
} // namespace SqlCipherNames

/// Registers the functions and orders on a connection; the data file itself names none of them, so that any program
/// with the password can read it.
void registerSqlCipherFunctions(sqlite3 *handle);
