#pragma once

#include "platform/jet/Statement.h"

/// Turns the terms of a bound OR chain that compare one field with a literal into one list test, so that a range of
/// tens of thousands of rows costs one look-up a row.
void foldEqualities(Expression &chain);
