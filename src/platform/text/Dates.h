#pragma once

#include <QDateTime>
#include <QString>
#include <QStringView>

#include <optional>

/// A date through a pattern in Qt's letters; an empty pattern gives the region's short date.
QString FormatDate(const QDateTime &moment, QStringView pattern = {});

/// "hh:mm:ss", 24 hours.
QString FormatTime(const QDateTime &moment);

/// A date in the order of the region's short date, with "/", "-" or "." between its numbers and blanks around
/// them; empty for what is none.
std::optional<QDate> readDate(QStringView text);
bool IsDate(QStringView text);
