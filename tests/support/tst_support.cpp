#include "platform/window/ComboBox.h"
#include "platform/window/TextBox.h"
#include "tests/support/Attendant.h"
#include "tests/support/Controls.h"

#include <QApplication>
#include <QCheckBox>
#include <QTest>
#include <QVBoxLayout>

/// A test of windows is worth what its attendant notices and what her hands reach.
class tst_support : public QObject
{
    Q_OBJECT

private slots:
    void init() { failures.clear(); }

    void answersWhatWasExpected()
    {
        {
            int turns = 0;
            Attendant attendant(sink());
            attendant.expectNotice("saved", "title", [&] { ++turns; });
            attendant.expect("sell?", vbYesNo + vbQuestion, "title", vbYes);
            attendant.expectOpenFile("Photos|*.jpg", "/photo.jpg");
            attendant.expectSaveFile("Texts|*.txt", {});
            QCOMPARE(MsgBox("saved", vbInformation, "title"), int(vbOK));
            QCOMPARE(turns, 1);
            QCOMPARE(MsgBox("sell?", vbYesNo + vbQuestion, "title"), int(vbYes));
            FileDialog dialog{{}, "Photos|*.jpg", {}, {}};
            dialog.ShowOpen();
            QCOMPARE(dialog.FileName, QString("/photo.jpg"));
            dialog.Filter = "Texts|*.txt";
            dialog.ShowSave();
            QCOMPARE(dialog.FileName, QString());
            QCOMPARE(attendant.boxes().size(), 4);
        }
        QCOMPARE(failures, QStringList());
    }

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

    void handsReachTheControls()
    {
        QWidget window;
        QVBoxLayout layout(&window);
        TextBox box;
        ComboBox combo;
        FlexGrid grid;
        QCheckBox tick("Imprimir Recibo");
        for (QWidget *widget : std::initializer_list<QWidget *>{&box, &combo, &grid, &tick})
            layout.addWidget(widget);
        tick.setObjectName("chkrecibo");
        combo.addItems({"CAFÉ", "PÃO"});
        grid.setRows(3);
        window.resize(600, 400);
        window.show();
        QList<int> keys;
        int picks = 0;
        connect(&box, &TextBox::KeyPress, this, [&](int &key) { keys.append(key); });
        connect(&combo, &ComboBox::Click, this, [&] { ++picks; });

        scanBarcode(box, "78");
        QCOMPARE(keys, QList<int>({'7', '8', 13}));
        replaceText(box, "Água 1");
        QCOMPARE(box.text(), QString("Água 1"));
        replaceText(box, {});
        QCOMPARE(box.text(), QString());
        pickEntry(combo, "PÃO");
        QCOMPARE(combo.currentText(), QString("PÃO"));
        QCOMPARE(picks, 1);
        click(window, "chkrecibo");
        QVERIFY(tick.isChecked());
        clickCell(grid, 2, 1);
        QCOMPARE(grid.Row(), 2);
        QCOMPARE(grid.MouseCol(), 1);
        clickCell(grid, 0, 1);
        QCOMPARE(grid.MouseRow(), 0);
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
