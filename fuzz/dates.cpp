#include "platform/text/Dates.h"
#include "fuzz/Target.h"
#include "platform/text/RegionalSettings.h"

#include <QRegularExpression>

// Input: a text; its first eight bytes are a moment, too.

namespace {
void checkReading(const QString &text, const QString &order)
{
    const std::optional<QDate> date = readDate(text);
    require(IsDate(text) == date.has_value(), "IsDate tells what can be read");
    if (!date)
        return;
    require(date->isValid() && date->year() >= 100 && date->year() <= 9999, "a date is one of the calendar");
    static const QRegularExpression number("[0-9]+");
    QRegularExpressionMatchIterator numbers = number.globalMatch(text);
    for (const QChar part : order) {
        require(numbers.hasNext(), "a date has three numbers");
        const int written = numbers.next().captured().toInt();
        const bool same = part == u'd'   ? written == date->day()
                          : part == u'M' ? written == date->month()
                                         : written == date->year() || (written < 100 && date->year() % 100 == written);
        require(same, "the numbers mean what the region says");
    }
    const QString written = FormatDate(date->startOfDay());
    require(readDate(written) == date, "a written date is read back");
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = QString::fromUtf8(Input(data, size).rest());
    std::uint32_t raw = 0;
    for (std::size_t i = 0; i < size && i < sizeof raw; ++i)
        raw = raw << 8 | data[i];
    constexpr std::uint32_t days = 3'610'000;
    const QDateTime moment = QDate(100, 1, 1).addDays(raw % days).startOfDay().addSecs(raw % 86400);
    for (const char *region : regions) {
        RegionalSettings::use(QLocale(region));
        checkReading(text, QString(region) == "pt_BR" ? "dMy" : "Mdy");
        require(readDate(FormatDate(moment)) == moment.date(), "every date is read back");
        require(FormatTime(moment).size() == 8, "a time has eight characters");
    }
    return 0;
}
