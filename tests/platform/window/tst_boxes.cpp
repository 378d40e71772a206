#include "platform/window/ComboBox.h"
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
        m_combo->addItems({"AGUA", "BALA", "CAFE"});
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_box->setFocus();
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

    void comboShowsNotesInItsListAlone()
    {
        m_combo->setNote(1, "DOCE");
        m_combo->setCurrentIndex(1);
        const int width = m_combo->view()->sizeHintForColumn(0);
        m_combo->setNote(1, "DOCE DE FRUTAS CRISTALIZADAS");
        QVERIFY(m_combo->view()->sizeHintForColumn(0) > width);
        QCOMPARE(m_combo->currentText() + m_combo->Text(), QString("BALABALA"));
        m_combo->showPopup();
        QVERIFY(m_combo->view()->viewport()->width() >= m_combo->view()->sizeHintForColumn(0));
    }

private:
    std::unique_ptr<QWidget> m_window;
    TextBox *m_box = nullptr;
    ComboBox *m_combo = nullptr;
};

QTEST_MAIN(TestBoxes)
#include "tst_boxes.moc"
