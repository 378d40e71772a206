#include "codes/AllCodes.h"

#include <QSet>
#include <QTest>

#include <array>
#include <utility>

namespace {
/// Code 39's bars and a digit of 2 of 5 have two wide elements, whose weights 1, 2, 4, 7, 0 add up to the digit; 4 and
/// 7 stand for 0.
constexpr std::array<std::pair<int, int>, 10> widePairs{
    {{0, 4}, {1, 4}, {0, 1}, {2, 4}, {0, 2}, {1, 2}, {3, 4}, {0, 3}, {1, 3}, {2, 3}}};
const QString digits = "1234567890";

QString twoOfFive(qsizetype digit, QChar wide)
{
    QString widths(5, '1');
    widths[widePairs[size_t(digit)].first] = widths[widePairs[size_t(digit)].second] = wide;
    return widths;
}

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
                QCOMPARE(Codigo_39(rows[row][place]),
                         "1211212111" + interleaved(twoOfFive(place, '2'), spaces) + "1121121211");
            }
        for (qsizetype place = 0; place < 4; ++place)
            QCOMPARE(Codigo_39(QString("%+/$")[place]).mid(10, 9),
                     interleaved("11111", QString("2222").replace(place, 1, '1')));
    }

    void interleaved2of5()
    {
        for (qsizetype first = 0; first < 10; ++first)
            for (qsizetype second = 0; second < 10; ++second)
                QCOMPARE(Codigo_2de5(QString(digits[first]) + digits[second]),
                         "1111" + interleaved(twoOfFive(first, '3'), twoOfFive(second, '3')) + "311");
        QCOMPARE(Codigo_2de5("1A23"), Codigo_2de5("12").chopped(3) + "33111" + "311");
        QCOMPARE(Codigo_2de5(""), "1111311");
        const QString many = "123456789012345678901234";
        QCOMPARE(Codigo_2de5(many), Codigo_2de5(many.left(21)));
    }

    void codabarLetters()
    {
        QSet<QString> seen;
        for (const QChar letter : QString("ABCD")) {
            const QString widths = Codigo_Codabar(letter).mid(8, 7);
            const qsizetype wideSpaces = QString("%1%2%3").arg(widths[1], widths[3], widths[5]).count('2');
            QVERIFY(wideSpaces == 2 && widths.count('2') == 3);
            seen += widths;
        }
        QCOMPARE(seen.size(), 4);
    }

    void code128()
    {
        QSet<QString> seen;
        for (char16_t character = ' '; character <= '~'; ++character) {
            const QString widths = pattern128(character);
            int bars = 0;
            int all = 0;
            for (qsizetype element = 0; element < 6; ++element) {
                all += widths[element].digitValue();
                bars += element % 2 == 0 ? widths[element].digitValue() : 0;
            }
            QVERIFY(all == 11 && bars % 2 == 0);
            seen += widths;
        }
        // The lower-case L gives the check character, which is here that of "!".
        QCOMPARE(seen.size(), 94);
        QCOMPARE(Codigo_128("l"), "211214" + pattern128('!') + "2331112");
        // It uses up its position.
        QCOMPARE(check128("lA"), pattern128(QChar((104 + 2 * 33) % 103 + ' ')));
        // Published samples; the second one's 54 is that of set A, whose start counts one less.
        QCOMPARE(check128("Wikipedia"), pattern128(QChar(88 + ' ')));
        QCOMPARE(check128("PJJ123C"), pattern128(QChar(55 + ' ')));
    }
};

QTEST_APPLESS_MAIN(tst_barcodes)
#include "tst_barcodes.moc"
