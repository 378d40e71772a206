#include "tests/support/Attendant.h"

#include <QApplication>

/// A test of windows is worth what its attendant notices.
class tst_support : public QObject
{
    Q_OBJECT

private slots:
    void noticesWhatIsNotAsExpected()
    {
        QList<unsigned> failures;
        unsigned expected = 0;
        {
            Attendant attendant([&](const QString &, const Place &where) { failures += where.line(); });
            QCOMPARE(MsgBox("delete?", vbYesNo), int(vbNo));
            QCOMPARE(failures.size(), 1);
            for (const auto &[text, style, title] :
                 {std::tuple("deleted", 64, "title"), {"saved", 64 + 4, "title"}, {"saved", 64, "another"}}) {
                expected = Place::current().line() + 1;
                attendant.expectNotice("saved", "title");
                MsgBox(text, style, title);
            }
            QCOMPARE(failures.size(), 4);
            attendant.expect("sell?", vbYesNo, {}, vbOK);
            QCOMPARE(failures.size(), 5);
        }
        // The last one never came.
        QCOMPARE(failures.size(), 6);
        // A box that isn't the one expected is told at the line that expected it.
        QCOMPARE(failures[3], expected);
    }
};

STORY_MAIN(tst_support)
#include "tst_support.moc"
