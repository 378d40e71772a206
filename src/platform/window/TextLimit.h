#pragma once

#include <QString>

/// Characters of a text as people count them for a limit: one for each code point, whether it takes two code units or
/// one.
int codePoints(QStringView text);

/// The first characters of a text, never half of one.
QString firstCodePoints(const QString &text, int count);

/// Code units that the last `count` characters before `position` take.
qsizetype codeUnitsBefore(QStringView text, qsizetype position, int count);
