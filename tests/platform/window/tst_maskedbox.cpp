#include "platform/window/MaskedTextBox.h"
#include "platform/window/MemoBox.h"

#include <QClipboard>
#include <QGuiApplication>
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

class TestMaskedBox : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        auto *layout = new QVBoxLayout(m_window.get());
        layout->addWidget(m_first = new TextBox);
        layout->addWidget(m_box = new MaskedTextBox);
        layout->addWidget(m_memo = new MemoBox);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_first->setFocus();
    }

    void edits()
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
            m_box->setMask(row.mask);
            QCOMPARE(m_box->text(), m_box->emptyText());
            m_box->setText(row.start);
            QCOMPARE(m_box->text(), row.start);
            QGuiApplication::clipboard()->setText(row.pasted);
            m_first->setFocus();
            QTest::keyClick(m_first, Qt::Key_Tab);
            play(m_box, row.keys);
            const QString shown = QString("%1 with %2: %3, caret %4");
            QCOMPARE(shown.arg(row.start, row.keys, m_box->text()).arg(m_box->cursorPosition()),
                     shown.arg(row.start, row.keys, row.text).arg(row.caret));
        }
    }

    void limitBindsTheAttendantAndCountsCharacters()
    {
        m_first->setMaxLength(50);
        m_memo->setMaxLength(50);
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
        typedBehind(m_first);
        typedBehind(m_memo);
    }

private:
    std::unique_ptr<QWidget> m_window;
    TextBox *m_first = nullptr;
    MaskedTextBox *m_box = nullptr;
    MemoBox *m_memo = nullptr;
};

QTEST_MAIN(TestMaskedBox)
#include "tst_maskedbox.moc"
