#pragma once

#include <QChar>
#include <QLocale>
#include <QString>

/// The computer's regional settings, the one place from which texts, numbers and dates take them.
struct RegionalSettings
{
    explicit RegionalSettings(const QLocale &region);

    QLocale locale;
    QChar decimalSeparator;
    QChar thousandsSeparator;
    QString currencySymbol;
    /// Pattern of the short date, always with four digits of the year.
    QString shortDate;

    static const RegionalSettings &current();
    /// Takes other settings for the rest of the run; the program itself stays with the system's.
    static void use(const QLocale &locale);
};
