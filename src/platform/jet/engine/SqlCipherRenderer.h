#pragma once

#include "platform/jet/Statement.h"

#include <string>
#include <vector>

/// A statement in the engine's own SQL. It points into the tree it was made from.
struct RenderedStatement
{
    std::string sql;
    /// Literals behind the "?", in their order.
    std::vector<const Expression *> parameters;
    /// List tests that are too long for parameters: list number i must hold the operands of the i-th but the first.
    std::vector<const Expression *> longLists;
};

/// Table of the connection's own that holds the values of long lists.
namespace LongLists {
constexpr const char *create = "CREATE TEMP TABLE IF NOT EXISTS listed (list INTEGER, value)";
constexpr const char *insert = "INSERT INTO temp.listed VALUES (?, ?)";
constexpr const char *clear = "DELETE FROM temp.listed";
} // namespace LongLists

/// A name of the file as the engine's SQL takes it.
std::string quotedName(const QString &name);

RenderedStatement renderSelect(const SelectStatement &select);
/// In no order; the values that decide on the order stand behind the columns.
RenderedStatement renderWithKeys(const SelectStatement &select);
RenderedStatement renderStatement(const Statement &statement);
