#include "platform/window/ComboBox.h"
#include "platform/window/MaskedTextBox.h"
#include "platform/window/MemoBox.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QTest>
#include <QVBoxLayout>

namespace {

/// "b" Backspace, "d" Delete, "h" Home, "e" End, "l" Left, "a" select all, "s" Shift+Left, "v" paste;
/// everything else is typed.
void play(QWidget *box, const QString &keys)
{
    static const QHash<QChar, QKeySequence> commands{{'b', Qt::Key_Backspace},
                                                     {'d', Qt::Key_Delete},
                                                     {'h', Qt::Key_Home},
                                                     {'e', Qt::Key_End},
                                                     {'l', Qt::Key_Left},
                                                     {'a', QKeySequence::SelectAll},
                                                     {'s', QKeySequence("Shift+Left")},
                                                     {'v', QKeySequence::Paste}};
    for (const QChar key : keys) {
        if (const auto command = commands.find(key); command != commands.end())
            QTest::keySequence(box, *command);
        else
            QTest::sendKeyEvent(QTest::Click, box, Qt::Key_unknown, key, Qt::NoModifier);
    }
}

} // namespace

class TestBoxes : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        auto *layout = new QVBoxLayout(m_window.get());
        layout->addWidget(m_box = new TextBox);
        layout->addWidget(m_masked = new MaskedTextBox);
        layout->addWidget(m_memo = new MemoBox);
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

    void maskedBoxEdits()
    {
        const QString date = "##/##/####";
        const QString code = "##.###-###";
        const QString none = "  /  /    ";
        const QString full = "31/12/1999";
        const struct
        {
            QString mask, start, keys, pasted, text;
            int caret;
        } rows[] = {
            {date, none, "3x1 -.12", "", "31/12/    ", 5},
            {date, none, "1/2/1990", "", "1 /2 /1990", 10},
            {date, none, "1-22.", "", "1 /22/    ", 5},
            {date, full, "ellllbb", "", "31/  /1999", 3},
            {date, full, "ellllld", "", "31/12/ 999", 6},
            {date, full, "ess7", "", "31/12/197 ", 9},
            {date, full, "av", " 1\n2\tde 2003;", "1 /2 /2003", 10},
            {date, full, "av", "\n😀 ñ", full, 10},
            {date, none, "v", "31/12/199912345", full, 10},
            {code, "  .   -   ", "v", "88000-500", "88.000-500", 10},
        };
        for (const auto &row : rows) {
            m_masked->setMask(row.mask);
            QCOMPARE(m_masked->text(), m_masked->emptyText());
            m_masked->setText(row.start);
            QCOMPARE(m_masked->text(), row.start);
            QGuiApplication::clipboard()->setText(row.pasted);
            m_box->setFocus();
            QTest::keyClick(m_box, Qt::Key_Tab);
            play(m_masked, row.keys);
            const QString shown = QString("%1 with %2: %3, caret %4");
            QCOMPARE(shown.arg(row.start, row.keys, m_masked->text()).arg(m_masked->cursorPosition()),
                     shown.arg(row.start, row.keys, row.text).arg(row.caret));
        }
    }

    void limitBindsTheAttendantAndCountsCharacters()
    {
        m_box->setCharacterLimit(50);
        m_memo->setCharacterLimit(50);
        const auto typedBehind = [](auto *box) {
            box->setText(QString("😀").repeated(60));
            box->setFocus();
            QGuiApplication::clipboard()->setText("abc");
            // Shortened, but not lengthened, nor replaced in part by what would still be too long.
            play(box, "eybhydevyssyv");
            QCOMPARE(box->text(), QString("😀").repeated(58));
            play(box, "ebbbbbbbbbb");
            // What stands there already is worth more than what comes too much.
            play(box, "hv");
            QCOMPARE(box->text(), "ab" + QString("😀").repeated(48));
        };
        typedBehind(m_box);
        typedBehind(m_memo);
    }

private:
    std::unique_ptr<QWidget> m_window;
    TextBox *m_box = nullptr;
    MaskedTextBox *m_masked = nullptr;
    MemoBox *m_memo = nullptr;
    ComboBox *m_combo = nullptr;
};

QTEST_MAIN(TestBoxes)
#include "tst_boxes.moc"
