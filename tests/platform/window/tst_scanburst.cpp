#include "platform/window/ScanBurst.h"

#include <QKeyEvent>
#include <QTest>

namespace {
/// The digits that are told as a scan when such keys are pressed: "+55" is the time to the keys behind it, "\r", "\n"
/// and "\t" are Enter, Ctrl+J and Tab, "*" makes keys repeat.
QString scannedFrom(const QString &keys)
{
    ScanBurst burst;
    QStringList told;
    quint64 now = 1'000'000;
    quint64 gap = 20;
    bool repeats = false;
    for (const QString &part : keys.split(' ', Qt::SkipEmptyParts)) {
        if (part.startsWith('+')) {
            gap = part.toULongLong();
            continue;
        }
        if (part == "*") {
            repeats = true;
            continue;
        }
        for (const QChar character : part) {
            const int key = character == 'r'   ? int(Qt::Key_Return)
                            : character == 'n' ? int(Qt::Key_J)
                            : character == 't' ? int(Qt::Key_Tab)
                                               : character.unicode();
            now = gap == 0 ? 0 : now + gap;
            QKeyEvent press(QEvent::KeyPress, key, character == 'n' ? Qt::ControlModifier : Qt::NoModifier,
                            character.isDigit() ? QString(character) : QString(), repeats);
            press.setTimestamp(now);
            const ScanBurst::Verdict verdict = burst.take(press);
            if (verdict == ScanBurst::Verdict::Scan)
                told += burst.code();
            else if (verdict == ScanBurst::Verdict::Rest)
                told += "rest";
            else if (verdict == ScanBurst::Verdict::Typing)
                told += "typing";
        }
    }
    told.removeDuplicates();
    return told.join(' ');
}
} // namespace

class tst_scanburst : public QObject
{
    Q_OBJECT

private slots:
    void tellsScansFromTyping()
    {
        for (const auto &[keys, told] : {std::pair("12345678r", "12345678"),
                                         {"12345678901234t", "12345678901234"},
                                         {"+5 12345678 +57 r", "12345678"},
                                         {"12345678rn 87654321rr", "12345678 rest 87654321"},
                                         {"12345678r +200 r", "12345678 typing"},
                                         {"12 +300 3 +20 45678901r", "345678901"},
                                         {"1234567r", "typing"},
                                         {"123456789012345r", "typing"},
                                         {"12345678 +58 r", "typing"},
                                         {"+60 1234567890r", "typing"},
                                         {"1234 +58 5 +20 6789r", "typing"},
                                         {"A12345678r", "typing"},
                                         {"1234A56789012r", "typing"},
                                         {"12345678901234567890123r", "typing"},
                                         {"1 * 11111111r", "typing"},
                                         {"+0 12345678r", "typing"}})
            QCOMPARE(keys + (" " + scannedFrom(keys)), QString(keys) + ' ' + told);
    }
};

QTEST_MAIN(tst_scanburst)
#include "tst_scanburst.moc"
