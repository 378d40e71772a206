#include "platform/text/Dates.h"
#include "platform/text/RegionalSettings.h"

#include <QTest>

class tst_dates : public QObject
{
    Q_OBJECT

private slots:
    void writesShortDate_data();
    void writesShortDate();
    void knowsDates_data();
    void knowsDates();
};

void tst_dates::writesShortDate_data()
{
    QTest::addColumn<QString>("region");
    QTest::addColumn<QString>("text");

    QTest::newRow("Brazil") << "pt_BR"
                            << "05/03/2024";
    QTest::newRow("two digits in the system's form") << "en_US"
                                                     << "3/5/2024";
    QTest::newRow("year first") << "sv_SE"
                                << "2024-03-05";
    QTest::newRow("no region") << "C"
                               << "3/5/2024";
}

void tst_dates::writesShortDate()
{
    QFETCH(QString, region);
    QFETCH(QString, text);
    RegionalSettings::use(QLocale(region));
    const QDateTime moment(QDate(2024, 3, 5), QTime(17, 4, 9));
    QCOMPARE(FormatDate(moment), text);
    QCOMPARE(FormatDate(moment, u"yyyyMMdd"), "20240305");
    QCOMPARE(FormatTime(moment), "17:04:09");
    QVERIFY(IsDate(text));
}

void tst_dates::knowsDates_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("brazilian");
    QTest::addColumn<bool>("american");
    QTest::addColumn<bool>("swedish");

    QTest::newRow("short") << "1/2/2020" << true << true << false;
    QTest::newRow("day first") << " 31-12-1999 " << true << false << false;
    QTest::newRow("month first") << "12.31.1999" << false << true << false;
    QTest::newRow("year first") << "1999-12-31" << false << false << true;
    QTest::newRow("no such day") << "31/02/2020" << false << false << false;
    QTest::newRow("two digits of 2000") << "29/02/00" << true << false << false;
    QTest::newRow("two digits of 1930") << "29/02/30" << false << false << false;
    QTest::newRow("mixed separators") << "1/2-2020" << false << false << false;
    QTest::newRow("no year") << "1/2" << false << false << false;
    QTest::newRow("placeholder") << "00/00/0000" << false << false << false;
    QTest::newRow("empty mask") << "  /  /    " << false << false << false;
    QTest::newRow("empty") << "" << false << false << false;
    QTest::newRow("words") << "amanhã" << false << false << false;
}

void tst_dates::knowsDates()
{
    QFETCH(QString, text);
    const auto isDateIn = [&](const char *region) {
        RegionalSettings::use(QLocale(region));
        return IsDate(text);
    };
    QTEST(isDateIn("pt_BR"), "brazilian");
    QTEST(isDateIn("en_US"), "american");
    QTEST(isDateIn("sv_SE"), "swedish");
}

QTEST_APPLESS_MAIN(tst_dates)
#include "tst_dates.moc"
