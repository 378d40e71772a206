#pragma once

#include <QString>
#include <QStringView>

#include <optional>
#include <string_view>

/// Longest leading number of a text, with a point as its separator whatever the region; 0 for none.
double Val(QStringView text);
double Val(std::string_view utf8);

/// A text read by the regional settings; raises TypeMismatch for what is no number, the empty text too.
double Cdbl(QStringView text);
/// The same without raising; empty for what is no number.
std::optional<double> readNumber(QStringView text);
std::optional<double> readNumber(std::string_view utf8);

bool IsNumeric(QStringView text);

/// The plain text of a number: at most 15 significant digits, no trailing zeros, the regional separator.
QString Cstr(double value);

/// A number through a pattern such as "####0.00", "###,##0.00" or "00000"; rounds half away from zero on the
/// decimal digits.
QString Format(double value, QStringView pattern);

/// The value in the region's currency form with the given number of decimals.
QString FormatCurrency(double value, int decimals);

/// Currency symbol of the region.
QString Simbolo_Moeda_Regional();
