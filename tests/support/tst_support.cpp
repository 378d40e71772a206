#include "tests/support/Attendant.h"

#include <QApplication>
#include <QTest>

/// A test of windows is worth what its attendant notices.
class tst_support : public QObject
{
    Q_OBJECT

private slots:
    void init() { failures.clear(); }

    void noticesWhatIsNotAsExpected()
    {
        {
            Attendant attendant(sink());
            QCOMPARE(MsgBox("delete?", vbYesNo), int(vbNo));
            QCOMPARE(failures.size(), 1);
            const auto expectThenShow = [&](const QString &text, int style, const QString &title) {
                attendant.expectNotice("saved", "title");
                MsgBox(text, style, title);
            };
            expectThenShow("deleted", vbInformation, "title");
            expectThenShow("saved", vbInformation + vbYesNo, "title");
            expectThenShow("saved", vbInformation, "another");
            QCOMPARE(failures.size(), 4);
            attendant.expect("sell?", vbYesNo, {}, vbOK);
            QCOMPARE(failures.size(), 5);
        }
        // The last one never came.
        QCOMPARE(failures.size(), 6);
    }

private:
    Attendant::FailureSink sink()
    {
        return [this](const QString &what) { failures.append(what); };
    }

    QStringList failures;
};

QTEST_MAIN(tst_support)
#include "tst_support.moc"
