#include "platform/base/Err.h"
#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"
#include "platform/text/RegionalSettings.h"

#include <QTest>

using Readings = std::initializer_list<std::pair<const char *, double>>;

class tst_texts : public QObject
{
    Q_OBJECT

private slots:
    void readsByRegion()
    {
        const auto check = [](const char *region, Readings readings) {
            RegionalSettings::use(QLocale(region));
            for (const auto &[text, number] : readings) {
                QVERIFY2(readNumber(QString(text)) == number, text);
                QVERIFY2(readNumber(std::string_view(text)) == number, text);
            }
        };
        check("pt_BR", {{"1,5", 1.5}, {"1.5", 15}, {"1.234,56", 1234.56}, {"1.2.3,5.0", 123.5}, {"\t-7,25 ", -7.25}});
        check("pt_BR", {{"5-", -5}, {"( R$ 5 )", -5}, {"R$ -3,10", -3.1}, {"- 3,10 R$", -3.1}, {",5", 0.5}, {"5,", 5}});
        check("pt_BR", {{"0000000", 0}, {"1,5E+3", 1500}, {"1e-400", 0}, {"0,00000000000000000000000000012", 1.2e-28}});
        check("en_US", {{"1,5", 15}, {"$1,234.56", 1234.56}, {"($5)", -5}});
        check("fr_FR", {{"1\u202F234,5 \u20AC", 1234.5}});
    }

    void refusesWhatIsNoNumber()
    {
        RegionalSettings::use(QLocale("pt_BR"));
        for (const char *text :
             {"",   "   ", ",",   ".5",      "R$", "-",   "1 2",   "12a",    "1,5,0", "--5",    "-5-",  "(-5)",
              "(5", "5)",  ")5(", "R$ 5 R$", "1e", "1e+", "1e400", "R$ 1 €", "$5",    "------", "0x10", "١"}) {
            QVERIFY2(!IsNumeric(QString(text)) && !readNumber(std::string_view(text)), text);
            Err::Clear();
            QVERIFY2(!OnErrorGoToEnd([&] { Cdbl(QString(text)); }), text);
            QCOMPARE(Err::Number(), ErrorNumber::TypeMismatch);
        }
    }

    void readsLeadingNumber()
    {
        const auto check = [](Readings readings) {
            RegionalSettings::use(QLocale("pt_BR"));
            for (const auto &[text, number] : readings)
                QVERIFY2(Val(QString(text)) == number && Val(std::string_view(text)) == number, text);
        };
        check(
            {{"", 0}, {"12,5", 12}, {"12.5", 12.5}, {"1.2.3", 1.2}, {" \t -3.5kg", -3.5}, {"12 34", 12}, {"1e999", 0}});
        check({{".5", 0.5}, {"2e3x", 2e3}, {"2ex", 2}, {"------", 0}, {"Maria 7", 0}, {"7ª", 7}});
    }

    void writesNumber()
    {
        const auto check = [](Readings readings) {
            for (const auto &[text, number] : readings) {
                RegionalSettings::use(QLocale("pt_BR"));
                QCOMPARE(Cstr(number), text);
                // What one routine writes, another reads back from the data file.
                QCOMPARE(Cstr(Cdbl(QString(text))), text);
                RegionalSettings::use(QLocale("en_US"));
                QCOMPARE(Cstr(number), QString(text).replace(u',', u'.'));
            }
        };
        check({{"8", 8}, {"7,5", 7.5}, {"0", -0.0}, {"0,3", 0.1 + 0.2}, {"0,0001", 0.0001}, {"1E-07", 1e-7}});
        check({{"-123456789012345", -123456789012345.0}, {"1,23456789012346E+15", 1234567890123456.0}});
    }

    void formats()
    {
        const auto check = [](QStringView pattern, Readings readings) {
            for (const auto &[text, number] : readings) {
                RegionalSettings::use(QLocale("pt_BR"));
                QCOMPARE(Format(number, pattern), text);
                RegionalSettings::use(QLocale("en_US"));
                QCOMPARE(Format(number, pattern),
                         QString(text).replace(u'.', u' ').replace(u',', u'.').replace(u' ', u','));
            }
        };
        check(u"####0.00", {{"0,00", 0}, {"1,01", 1.005}, {"2,68", 2.675}, {"-2,68", -2.675}, {"3,33", 10.0 / 3}});
        check(u"####0.00", {{"0,01", 0.005}, {"0,00", 0.00499999999999999}, {"0,00", -0.001}, {"10,00", 9.995}});
        check(u"###,##0.00", {{"1.234.567,89", 1234567.891}, {"-1.000.000,00", -999999.999}, {"123,40", 123.4}});
        check(u"00000", {{"00007", 7}, {"123456", 123456}, {"00001", 0.5}});
    }

    void knowsDates()
    {
        const auto check = [](const char *region, const char *today, const QStringList &dates,
                              const QStringList &others) {
            RegionalSettings::use(QLocale(region));
            QCOMPARE(FormatDate(QDateTime(QDate(2024, 3, 5), QTime(17, 4))), today);
            for (const QString &text : dates)
                QVERIFY2(IsDate(text), qPrintable(text));
            for (const QString &text : others)
                QVERIFY2(!IsDate(text), qPrintable(text));
        };
        check("pt_BR", "05/03/2024", {"1/2/2020", " 31-12-1999 ", "29.02.00"},
              {"31/02/2020", "29/02/30", "1/2-2020", "1/2", "00/00/0000", "  /  /    ", "", "amanhã", "12/31/1999"});
        check("en_US", "3/5/2024", {"1/2/2020", "12/31/1999"}, {"31/12/1999", "1999-12-31"});
    }
};

QTEST_APPLESS_MAIN(tst_texts)
#include "tst_texts.moc"
