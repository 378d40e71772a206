#pragma once

#include <QString>

/// So many blanks; raises InvalidProcedureCall for a negative length.
QString Space(qsizetype length);
