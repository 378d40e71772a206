#include "codes/AllCodes.h"

#include <QTest>

namespace {
/// Code 39's bars and a digit of 2 of 5 have two wide elements.
const QStringList wide{"21112", "12112", "22111", "11212", "21211", "12211", "11122", "21121", "12121", "11221"};
const QString digits = "1234567890";

QString interleaved(const QString &bars, const QString &spaces)
{
    QString widths;
    for (qsizetype index = 0; index < bars.size(); ++index)
        widths += bars.mid(index, 1) + spaces.mid(index, 1);
    return widths;
}

/// The elements of a single character of Code 128, and the check character of a text.
QString pattern128(QChar character)
{
    return Codigo_128(character).mid(6, 6);
}
QString check128(const QString &text)
{
    return Codigo_128(text).chopped(7).right(6);
}
} // namespace

/// The four codes against the rules by which they were published.
class tst_barcodes : public QObject
{
    Q_OBJECT

private slots:
    void code39()
    {
        const QStringList rows{digits, "ABCDEFGHIJ", "KLMNOPQRST", "UVWXYZ-. *"};
        for (qsizetype row = 0; row < rows.size(); ++row)
            for (qsizetype place = 0; place < 10; ++place) {
                const QString spaces = QString("1111").replace((row + 1) % 4, 1, '2');
                QCOMPARE(Codigo_39(rows[row][place]), "1211212111" + interleaved(wide[place], spaces) + "1121121211");
            }
    }

    void interleaved2of5()
    {
        for (qsizetype first = 0; first < 10; ++first)
            for (qsizetype second = 0; second < 10; ++second)
                QCOMPARE(Codigo_2de5(QString(digits[first]) + digits[second]),
                         "1111" + interleaved(wide[first], wide[second]).replace('2', '3') + "311");
        QCOMPARE(Codigo_2de5("1A23"), Codigo_2de5("12").chopped(3) + "33111" + "311");
    }

    void code128()
    {
        // The lower-case L gives the check character, which is here that of "!", and uses up its position.
        QCOMPARE(Codigo_128("l"), "211214" + pattern128('!') + "2331112");
        QCOMPARE(check128("lA"), pattern128(QChar((104 + 2 * 33) % 103 + ' ')));
        // A published sample.
        QCOMPARE(check128("Wikipedia"), pattern128(QChar(88 + ' ')));
    }
};

QTEST_APPLESS_MAIN(tst_barcodes)
#include "tst_barcodes.moc"
