#pragma once

#include "platform/jet/Statement.h"

/// A statement that was read, written down again in the windows' SQL with every parenthesis.
QString jetText(const Statement &statement);
