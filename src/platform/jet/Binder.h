#pragma once

#include "platform/jet/Catalogue.h"
#include "platform/jet/Statement.h"

/// Ties a statement to the tables of a file: names get the spelling of the file, expressions their types, assigned
/// values the type of their field, and `*` its fields. Raises UnknownTable, UnknownField, TypeMismatch or BadSql.
void bindStatement(Statement &statement, const Catalogue &catalogue);
