#pragma once

#include "platform/jet/Statement.h"

#include <QStringView>

/// Reads one statement of the windows' SQL. Raises BadSql for what is none.
Statement parseStatement(QStringView sql);
