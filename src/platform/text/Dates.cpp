#include "platform/text/Dates.h"

#include "platform/text/RegionalSettings.h"

#include <QRegularExpression>

#include <array>

namespace {
/// Two digits of a year mean the years from 1930 to 2029.
int fullYear(int year)
{
    constexpr int firstYearOfLastCentury = 30;
    if (year >= 100)
        return year;
    return year + (year < firstYearOfLastCentury ? 2000 : 1900);
}
} // namespace

QString FormatDate(const QDateTime &moment, QStringView pattern)
{
    const RegionalSettings &region = RegionalSettings::current();
    return region.locale.toString(moment, pattern.isEmpty() ? QStringView(region.shortDate) : pattern);
}

QString FormatTime(const QDateTime &moment)
{
    return moment.toString(u"hh:mm:ss");
}

bool IsDate(QStringView text)
{
    return readDate(text).has_value();
}

std::optional<QDate> readDate(QStringView text)
{
    static const QRegularExpression threeNumbers(R"(^\s*(\d{1,4})\s*([-/.])\s*(\d{1,2})\s*\2\s*(\d{1,4})\s*$)");
    const QRegularExpressionMatch match = threeNumbers.match(text.toString());
    if (!match.hasMatch())
        return {};
    const std::array numbers{match.captured(1).toInt(), match.captured(3).toInt(), match.captured(4).toInt()};

    QString order;
    for (const QChar letter : RegionalSettings::current().shortDate) {
        if (QStringView(u"dMy").contains(letter) && !order.contains(letter))
            order.append(letter);
    }
    if (order.size() != 3)
        return {};
    const auto part = [&](QChar letter) { return numbers.at(static_cast<std::size_t>(order.indexOf(letter))); };
    const QDate date(fullYear(part(u'y')), part(u'M'), part(u'd'));
    return date.isValid() ? std::optional(date) : std::nullopt;
}
