#pragma once

#include <QDateTime>
#include <QString>
#include <QStringView>

/// A date through a pattern in Qt's letters; an empty pattern gives the region's short date.
QString FormatDate(const QDateTime &moment, QStringView pattern = {});

/// "hh:mm:ss", 24 hours.
QString FormatTime(const QDateTime &moment);

/// Whether a text is a date in the order of the region's short date, with "/", "-" or "." between its numbers.
bool IsDate(QStringView text);
