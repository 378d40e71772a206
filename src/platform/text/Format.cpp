#include "platform/base/Err.h"
#include "platform/text/Numbers.h"
#include "platform/text/RegionalSettings.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace {
/// What a number means to its reader; the binary digits behind these must not decide a rounding.
constexpr int significantDigits = 15;

void refuseInfinite(double value)
{
    if (!std::isfinite(value))
        throw RunTimeError(ErrorNumber::Overflow, "Overflow");
}

/// Digits of a number without its sign, rounded half away from zero; the last `places` of them stand behind the point.
QString roundedDigits(double value, int places)
{
    // One digit, a point, the other digits, and an exponent such as "e+03".
    constexpr std::size_t longest = 32;
    std::array<char, longest> text{};
    std::to_chars(text.begin(), text.end(), std::abs(value), std::chars_format::scientific, significantDigits - 1);
    qint64 digits = text.front() - '0';
    const char *next = &text.at(2);
    for (; *next != 'e'; ++next)
        digits = digits * 10 + (*next - '0');
    const int shift = std::atoi(next + 1) - (significantDigits - 1) + places;
    if (shift < 0) {
        qint64 unit = 1;
        for (int i = 0; i < std::min(-shift, significantDigits + 1); ++i)
            unit *= 10;
        digits = (digits + unit / 2) / unit;
    }
    const QString zeros(std::max(shift, 0), u'0');
    return (QString::number(digits) + zeros).rightJustified(places + 1, u'0');
}

QString grouped(QString integer)
{
    for (qsizetype i = integer.size() - 3; i > 0; i -= 3)
        integer.insert(i, RegionalSettings::current().thousandsSeparator);
    return integer;
}
} // namespace

QString Cstr(double value)
{
    refuseInfinite(value);
    return QString::number(value, 'G', significantDigits).replace(u'.', RegionalSettings::current().decimalSeparator);
}

QString Format(double value, QStringView pattern)
{
    refuseInfinite(value);
    const qsizetype point = pattern.indexOf(u'.');
    const QStringView before = point < 0 ? pattern : pattern.first(point);
    const QStringView after = point < 0 ? QStringView() : pattern.sliced(point + 1);

    const QString digits = roundedDigits(value, static_cast<int>(after.size()));
    QString fraction = digits.right(after.size());
    while (fraction.size() > after.count(u'0') && fraction.endsWith(u'0'))
        fraction.chop(1);
    QString integer = digits.chopped(after.size());
    if (integer == u"0")
        integer.clear();
    integer = integer.rightJustified(before.count(u'0'), u'0');
    if (before.contains(u','))
        integer = grouped(integer);
    if (point >= 0)
        fraction.prepend(RegionalSettings::current().decimalSeparator);

    // An amount that rounds to nothing shows no sign.
    const bool negative = value < 0 && digits.count(u'0') < digits.size();
    return (negative ? "-" : "") + integer + fraction;
}

QString FormatCurrency(double value, int decimals)
{
    // The region says where sign and symbol stand around a digit; our own rounding says which digits.
    QString form = RegionalSettings::current().locale.toCurrencyString(value < 0 ? -1.0 : 1.0, QString(), 0);
    const QString pattern = decimals > 0 ? "#,##0." + QString(decimals, u'0') : QString("#,##0");
    return form.replace("1", Format(std::abs(value), pattern));
}

QString Simbolo_Moeda_Regional()
{
    return FormatCurrency(0, 0).remove('0').trimmed();
}
