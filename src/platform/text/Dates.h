#pragma once

#include <QDateTime>
#include <QString>
#include <QStringView>

/// A date through a pattern; an empty pattern gives the region's short date.
QString FormatDate(const QDateTime &moment, QStringView pattern = {});

/// "hh:mm:ss", 24 hours.
QString FormatTime(const QDateTime &moment);

/// Whether a text is a date by the regional settings.
bool IsDate(QStringView text);
