#include "platform/window/ComboBox.h"
#include "platform/window/Label.h"
#include "platform/window/TextBox.h"

#include <QAbstractItemView>
#include <QInputMethodEvent>
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
        layout->addWidget(m_box = new TextBox);
        layout->addWidget(m_combo = new ComboBox);
        layout->addWidget(m_label = new Label);
        m_combo->addItems({"AGUA", "BALA", "CAFE"});
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_box->setFocus();
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
    }

    void changesAreToldEvenOfTheSameText()
    {
        QSignalSpy changes(m_box, &TextBox::Change);
        m_box->setText("12");
        m_box->setText("12");
        QCOMPARE(changes.size(), 2);
        QTest::keyClicks(m_box, "3");
        QCOMPARE(changes.size(), 3);
        QSignalSpy captions(m_label, &Label::Change);
        m_label->setCaption("R$ 1,00");
        m_label->setCaption("R$ 1,00");
        QCOMPARE(captions.size(), 2);
    }

    void comboTellsKeysAndPicksAlone()
    {
        QStringList told;
        QSignalSpy clicks(m_combo, &ComboBox::Click);
        connect(m_combo, &ComboBox::KeyUp, this, [&](int code) { told << QString("up %1").arg(code); });
        connect(m_combo, &ComboBox::KeyDown, this, [&](int code) { told << QString("down %1").arg(code); });
        connect(m_combo, &ComboBox::KeyPress, this, [&](int code) { told << QString("press %1").arg(code); });
        for (const bool editable : {false, true}) {
            m_combo->setEditable(editable);
            m_combo->setCurrentIndex(1);
            told.clear();
            clicks.clear();
            for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return})
                QTest::keyClick(m_combo, key);
            QCOMPARE(told, QStringList({"down 40", "up 40", "down 13", "press 13", "up 13"}));
            QCOMPARE(m_combo->currentText(), "CAFE");
            QCOMPARE(clicks.size(), 1);
        }
    }

    void comboMayDiscardWhatIsTyped()
    {
        connect(m_combo, &ComboBox::KeyPress, this, [](int &code) { code = code == 13 ? 13 : 0; });
        connect(m_combo, &ComboBox::KeyDown, this, [](int &code) { code = code == 8 || code == 46 ? 0 : code; });
        m_combo->setFocus();
        QTest::keyClicks(m_combo, "c b");
        for (const Qt::Key key : {Qt::Key_Backspace, Qt::Key_Delete})
            QTest::keyClick(m_combo, key);
        QCOMPARE(m_combo->currentText(), "AGUA");
        m_combo->showPopup();
        QTest::keyClicks(m_combo->view(), "c");
        QTest::keyClick(m_combo->view(), Qt::Key_Return);
        QCOMPARE(m_combo->currentText(), "AGUA");
    }

private:
    std::unique_ptr<QWidget> m_window;
    TextBox *m_box = nullptr;
    ComboBox *m_combo = nullptr;
    Label *m_label = nullptr;
};

QTEST_MAIN(TestBoxes)
#include "tst_boxes.moc"
