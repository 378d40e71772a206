#pragma once

#include "platform/jet/Statement.h"

#include <QStringView>

/// Reads one statement of the windows' SQL. Raises BadSql for what is none, and Overflow for a number beyond every
/// double.
Statement parseStatement(QStringView sql);
