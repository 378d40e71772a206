#include "platform/text/RegionalSettings.h"

namespace {
/// The C locale writes dates in words and has no currency; a computer that names no region gets the usual defaults.
QLocale withRegion(const QLocale &locale)
{
    return locale.language() == QLocale::C ? QLocale(QLocale::English, QLocale::UnitedStates) : locale;
}

QChar firstSign(const QString &text)
{
    return text.isEmpty() ? QChar() : text.front();
}

RegionalSettings &settings()
{
    static RegionalSettings instance(QLocale::system());
    return instance;
}
} // namespace

RegionalSettings::RegionalSettings(const QLocale &region)
    : locale(withRegion(region))
    , decimalSeparator(firstSign(locale.decimalPoint()))
    , thousandsSeparator(firstSign(locale.groupSeparator()))
    , currencySymbol(locale.currencySymbol())
    , shortDate(locale.dateFormat(QLocale::ShortFormat))
{
    if (!shortDate.contains("yyyy"))
        shortDate.replace("yy", "yyyy");
}

const RegionalSettings &RegionalSettings::current()
{
    return settings();
}

void RegionalSettings::use(const QLocale &locale)
{
    settings() = RegionalSettings(locale);
}
