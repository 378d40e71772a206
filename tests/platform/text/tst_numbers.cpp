#include "platform/base/Err.h"
#include "platform/text/Numbers.h"
#include "platform/text/RegionalSettings.h"
#include "platform/text/Windows1252.h"

#include <QTest>

class tst_numbers : public QObject
{
    Q_OBJECT

private slots:
    void readsByRegion_data();
    void readsByRegion();
    void readsLeadingNumber_data();
    void readsLeadingNumber();
    void writesNumber_data();
    void writesNumber();
    void formats_data();
    void formats();
    void formatsCurrency_data();
    void formatsCurrency();
    void refusesInfinite();
    void writesWindows1252();
};

void tst_numbers::readsByRegion_data()
{
    QTest::addColumn<QString>("region");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isNumber");
    QTest::addColumn<double>("number");

    const auto reads = [](const char *region, const QString &text, double number) {
        QTest::addRow("%s reads '%s'", region, qPrintable(text)) << region << text << true << number;
    };
    const auto refuses = [](const char *region, const QString &text) {
        QTest::addRow("%s refuses '%s'", region, qPrintable(text)) << region << text << false << 0.0;
    };

    reads("pt_BR", "1,5", 1.5);
    reads("pt_BR", "1.5", 15);
    reads("pt_BR", "1.234,56", 1234.56);
    reads("pt_BR", "1.2.3,5.0", 123.5);
    reads("pt_BR", " \t-7,25 ", -7.25);
    reads("pt_BR", "5-", -5);
    reads("pt_BR", "( R$ 5 )", -5);
    reads("pt_BR", "R$ -3,10", -3.1);
    reads("pt_BR", "- 3,10 R$", -3.1);
    reads("pt_BR", ",5", 0.5);
    reads("pt_BR", "5,", 5);
    reads("pt_BR", "0000000", 0);
    reads("pt_BR", "1,5E+3", 1500);
    reads("pt_BR", "0,00000000000000000000000000000000000000000000012", 1.2e-46);
    reads("pt_BR", "1" + QString(60, u'0'), 1e60);
    reads("pt_BR", "1e-400", 0);
    reads("en_US", "1,5", 15);
    reads("en_US", "$1,234.56", 1234.56);
    reads("fr_FR", "1\u202F234,5 \u20AC", 1234.5);
    reads("C", "2.5", 2.5);
    // "de_CH" groups by an apostrophe that takes three bytes.
    reads("de_CH", "1\u2019234.5", 1234.5);

    for (const char *text :
         {"",   "   ", ",",   ".5",      "R$", "-",   "1 2",   "12a",    "1,5,0", "--5",    "-5-",  "(-5)",
          "(5", "5)",  ")5(", "R$ 5 R$", "1e", "1e+", "1e400", "R$ 1 €", "$5",    "------", "0x10", "١"})
        refuses("pt_BR", text);
    refuses("en_US", ",5");
    refuses("en_US", "R$ 5");
}

void tst_numbers::readsByRegion()
{
    QFETCH(QString, region);
    QFETCH(QString, text);
    QFETCH(bool, isNumber);
    QFETCH(double, number);
    RegionalSettings::use(QLocale(region));

    const std::optional<double> wanted = isNumber ? std::optional(number) : std::nullopt;
    QCOMPARE(readNumber(text), wanted);
    QCOMPARE(readNumber(text.toStdString()), wanted);
    QCOMPARE(IsNumeric(text), isNumber);
    if (isNumber) {
        QCOMPARE(Cdbl(text), number);
    } else {
        QVERIFY(!OnErrorResumeNext([&] { Cdbl(text); }));
        QCOMPARE(Err::Number(), ErrorNumber::TypeMismatch);
    }
}

void tst_numbers::readsLeadingNumber_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("number");

    QTest::newRow("empty") << "" << 0.0;
    QTest::newRow("comma stops") << "12,5" << 12.0;
    QTest::newRow("point") << "12.5" << 12.5;
    QTest::newRow("second point stops") << "1.2.3" << 1.2;
    QTest::newRow("leading blanks and sign") << " \t -3.5kg" << -3.5;
    QTest::newRow("blank stops") << "12 34" << 12.0;
    QTest::newRow("point first") << ".5" << 0.5;
    QTest::newRow("exponent") << "2e3x" << 2000.0;
    QTest::newRow("no exponent") << "2ex" << 2.0;
    QTest::newRow("placeholder") << "------" << 0.0;
    QTest::newRow("letters first") << "Maria 7" << 0.0;
    QTest::newRow("accent stops") << "7ª" << 7.0;
    QTest::newRow("beyond every double") << "1e999" << 0.0;
}

void tst_numbers::readsLeadingNumber()
{
    QFETCH(QString, text);
    QFETCH(double, number);
    // Whatever the region, the point separates.
    for (const char *region : {"pt_BR", "en_US"}) {
        RegionalSettings::use(QLocale(region));
        QCOMPARE(Val(text), number);
        QCOMPARE(Val(text.toStdString()), number);
    }
}

void tst_numbers::writesNumber_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<QString>("text");

    QTest::newRow("whole") << 8.0 << "8";
    QTest::newRow("half") << 7.5 << "7,5";
    QTest::newRow("minus nothing") << -0.0 << "0";
    QTest::newRow("sum of tenths") << 0.1 + 0.2 << "0,3";
    QTest::newRow("fifteen digits") << -123456789012345.0 << "-123456789012345";
    QTest::newRow("sixteenth digit") << 1234567890123456.0 << "1,23456789012346E+15";
    QTest::newRow("small") << 0.0001 << "0,0001";
    QTest::newRow("tiny") << 1e-7 << "1E-07";
    QTest::newRow("huge") << 1e20 << "1E+20";
}

void tst_numbers::writesNumber()
{
    QFETCH(double, number);
    QFETCH(QString, text);
    RegionalSettings::use(QLocale("pt_BR"));
    QCOMPARE(Cstr(number), text);
    // What one routine writes, another reads back from the data file.
    QCOMPARE(Cstr(Cdbl(text)), text);
    RegionalSettings::use(QLocale("en_US"));
    QCOMPARE(Cstr(number), text.replace(u',', u'.'));
}

void tst_numbers::formats_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("brazilian");
    QTest::addColumn<QString>("american");

    const auto row = [](double number, const char *pattern, const char *brazilian, const char *american) {
        QTest::addRow("%.17g %s", number, pattern) << number << pattern << brazilian << american;
    };
    row(0, "####0.00", "0,00", "0.00");
    row(1.005, "####0.00", "1,01", "1.01");
    row(2.675, "#0.00", "2,68", "2.68");
    row(-2.675, "##0.00", "-2,68", "-2.68");
    row(10.0 / 3, "##0.00", "3,33", "3.33");
    row(0.005, "####0.00", "0,01", "0.01");
    row(0.00499999999999999, "####0.00", "0,00", "0.00");
    row(-0.001, "####0.00", "0,00", "0.00");
    row(9.995, "####0.00", "10,00", "10.00");
    row(1e-300, "####0.00", "0,00", "0.00");
    row(1234567.891, "####0.00", "1234567,89", "1234567.89");
    row(1234567.891, "###,##0.00", "1.234.567,89", "1,234,567.89");
    row(-999999.999, "###,##0.00", "-1.000.000,00", "-1,000,000.00");
    row(123.4, "###,##0.00", "123,40", "123.40");
    row(1e20, "####0.00", "100000000000000000000,00", "100000000000000000000.00");
    row(7, "00000", "00007", "00007");
    row(123456, "00000", "123456", "123456");
    row(7, "00000.00", "00007,00", "00007.00");
    row(0.5, "0", "1", "1");
    row(0.49, "0", "0", "0");
    row(1.5, "0.0##", "1,5", "1.5");
    row(0.25, "#.##", ",25", ".25");
}

void tst_numbers::formats()
{
    QFETCH(double, number);
    QFETCH(QString, pattern);
    QFETCH(QString, brazilian);
    QFETCH(QString, american);
    RegionalSettings::use(QLocale("pt_BR"));
    QCOMPARE(Format(number, pattern), brazilian);
    RegionalSettings::use(QLocale("en_US"));
    QCOMPARE(Format(number, pattern), american);
}

void tst_numbers::formatsCurrency_data()
{
    QTest::addColumn<QString>("region");
    QTest::addColumn<QString>("nothing");
    QTest::addColumn<QString>("debt");

    QTest::newRow("pt_BR") << "pt_BR"
                           << "R$\u00A00"
                           << "R$\u00A0-1.234,57";
    QTest::newRow("en_US") << "en_US"
                           << "$0"
                           << "($1,234.57)";
    QTest::newRow("fr_FR") << "fr_FR"
                           << "0\u00A0€"
                           << "(1\u202F234,57\u00A0€)";
}

void tst_numbers::formatsCurrency()
{
    QFETCH(QString, region);
    QFETCH(QString, nothing);
    QFETCH(QString, debt);
    RegionalSettings::use(QLocale(region));
    QCOMPARE(FormatCurrency(0, 0), nothing);
    QCOMPARE(FormatCurrency(-1234.565, 2), debt);
}

void tst_numbers::refusesInfinite()
{
    const double infinite = std::numeric_limits<double>::infinity();
    QVERIFY(!OnErrorResumeNext([&] { Format(infinite, u"0.00"); }));
    QCOMPARE(Err::Number(), ErrorNumber::InvalidProcedureCall);
    QVERIFY(!OnErrorResumeNext([&] { Cstr(infinite - infinite); }));
}

void tst_numbers::writesWindows1252()
{
    QCOMPARE(toWindows1252(u"São € “x” Ω\u0160"), QByteArray("S\xE3o \x80 \x93x\x94 ?\x8A"));
    QCOMPARE(fromWindows1252("S\xE3o \x80 \x93x\x94 \x8A"), QString("São € “x” Š"));
}

QTEST_APPLESS_MAIN(tst_numbers)
#include "tst_numbers.moc"
