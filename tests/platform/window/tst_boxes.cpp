#include "platform/window/ComboBox.h"
#include "platform/window/Label.h"
#include "platform/window/TextBox.h"

#include <QInputMethodEvent>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

class TestBoxes : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        auto *layout = new QVBoxLayout(m_window.get());
        layout->addWidget(m_first = new TextBox);
        layout->addWidget(m_box = new TextBox);
        layout->addWidget(m_combo = new ComboBox);
        layout->addWidget(m_label = new Label);
        m_combo->addItems({"AGUA", "BALA", "CAFE"});
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_first->setFocus();
    }

    void textBoxTellsEachKey()
    {
        QList<int> told;
        connect(m_box, &TextBox::KeyPress, this, [&](int &ascii) { told << ascii; });
        QTest::keyClick(m_box, Qt::Key_A);
        QTest::sendKeyEvent(QTest::Click, m_box, Qt::Key_Ccedilla, "ç", Qt::NoModifier);
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Backspace, Qt::Key_Left, Qt::Key_Delete})
            QTest::keyClick(m_box, key);
        QCOMPARE(told, QList<int>({97, 231, 13, 13, 8}));
    }

    void textBoxKeyMayBeChangedOrCancelled()
    {
        connect(m_box, &TextBox::KeyPress, this, [](int &ascii) {
            if (ascii == '.')
                ascii = ',';
            else if (ascii == 'x' || ascii == 8)
                ascii = 0;
        });
        QTest::keyClicks(m_box, "1.x5");
        QTest::keyClick(m_box, Qt::Key_Backspace);
        QInputMethodEvent composed;
        composed.setCommitString("x");
        QCoreApplication::sendEvent(m_box, &composed);
        composed.setCommitString(".");
        QCoreApplication::sendEvent(m_box, &composed);
        QCOMPARE(m_box->text(), "1,5,");
        m_box->insert("x.x");
        QCOMPARE(m_box->text(), "1,5,x.x");
    }

    void textBoxTellsChangesOfBothKinds()
    {
        QSignalSpy changes(m_box, &TextBox::Change);
        m_box->setText("12");
        m_box->setText("12");
        QCOMPARE(changes.size(), 2);
        QTest::keyClicks(m_box, "3");
        QCOMPARE(changes.size(), 3);
        m_box->home(false);
        m_box->setCaretToEnd();
        QVERIFY(m_box->hasFocus());
        QCOMPARE(m_box->cursorPosition(), 3);
    }

    void textBoxIsEnteredOnceAndAWholeSelectionStays()
    {
        m_box->setText("MARIA");
        QSignalSpy entries(m_box, &TextBox::GotFocus);
        connect(m_box, &TextBox::GotFocus, m_box, &QLineEdit::selectAll);
        QTest::mouseClick(m_box, Qt::LeftButton);
        QCOMPARE(m_box->selectedText(), "MARIA");
        QTest::mouseClick(m_box, Qt::LeftButton);
        QCOMPARE(m_box->selectedText(), "");

        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        QVERIFY(m_box->hasFocus());
        QCOMPARE(entries.size(), 1);

        m_first->setFocus();
        m_box->setFocus();
        QCOMPARE(entries.size(), 2);
    }

    void comboTellsPicksAlone()
    {
        QSignalSpy clicks(m_combo, &ComboBox::Click);
        m_combo->setCurrentIndex(2);
        m_combo->setFocus();
        QCOMPARE(clicks.size(), 0);
        QTest::keyClick(m_combo, Qt::Key_Up);
        QCOMPARE(m_combo->currentText(), "BALA");
        QCOMPARE(clicks.size(), 1);

        m_combo->setEditable(true);
        m_combo->setEditText("");
        QTest::keyClicks(m_combo, "CAFE");
        QTest::keyClick(m_combo, Qt::Key_Return);
        m_first->setFocus();
        QCOMPARE(m_combo->currentText(), "CAFE");
        QCOMPARE(clicks.size(), 1);
        QTest::keyClicks(m_combo, "INA");
        QTest::keyClick(m_combo, Qt::Key_Return);
        QCOMPARE(m_combo->count(), 3);
    }

    void comboTellsKeys()
    {
        QStringList told;
        const auto note = [&](const char *what, int code) {
            told << QString("%1 %2 at %3").arg(what).arg(code).arg(m_combo->currentText());
        };
        connect(m_combo, &ComboBox::KeyUp, this, [&](int code) { note("up", code); });
        connect(m_combo, &ComboBox::KeyDown, this, [&](int &code) {
            note("down", code);
            code = code == 8 ? 0 : code;
        });
        connect(m_combo, &ComboBox::KeyPress, this, [&](int &code) {
            note("press", code);
            code = code == 'c' ? 0 : code;
        });
        for (const bool editable : {false, true}) {
            m_combo->setEditable(editable);
            m_combo->setCurrentIndex(0);
            told.clear();
            for (const int key : {int(Qt::Key_Down), int(Qt::Key_C), int(Qt::Key_Backspace), int(Qt::Key_Return)})
                QTest::keyClick(m_combo, Qt::Key(key));
            QCOMPARE(told, QStringList({"down 40 at AGUA", "up 40 at BALA", "down 67 at BALA", "press 99 at BALA",
                                        "up 67 at BALA", "down 8 at BALA", "up 8 at BALA", "down 13 at BALA",
                                        "press 13 at BALA", "up 13 at BALA"}));
        }
        QTest::keyClick(m_combo->lineEdit(), 's');
        QCOMPARE(m_combo->currentText(), "BALAs");
    }

    void comboIgnoresAWheelThatPasses()
    {
        const auto turn = [this] {
            QWheelEvent wheel(QPointF(5, 5), m_combo->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(m_combo, &wheel);
        };
        turn();
        QCOMPARE(m_combo->currentIndex(), 0);
        m_combo->setFocus();
        turn();
        QCOMPARE(m_combo->currentIndex(), 1);
    }

    void labelTellsOfEveryCaption()
    {
        QSignalSpy changes(m_label, &Label::Change);
        QSignalSpy clicks(m_label, &Label::Click);
        m_label->setCaption("R$ 1,00");
        m_label->setCaption("R$ 1,00");
        QCOMPARE(changes.size(), 2);
        m_label->setCaption("<b>&A</b>");
        QCOMPARE(m_label->Caption(), "<b>&A</b>");
        QTest::mouseClick(m_label, Qt::LeftButton);
        QTest::mouseClick(m_label, Qt::RightButton);
        QCOMPARE(clicks.size(), 1);
    }

private:
    std::unique_ptr<QWidget> m_window;
    TextBox *m_first = nullptr;
    TextBox *m_box = nullptr;
    ComboBox *m_combo = nullptr;
    Label *m_label = nullptr;
};

QTEST_MAIN(TestBoxes)
#include "tst_boxes.moc"
