#include "platform/window/MaskedTextBox.h"
#include "platform/window/MemoBox.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

namespace {

/// "b" Backspace, "d" Delete, "h" Home, "e" End, "l" Left, "a" select all, "s" Shift+Left, "v" paste, "c" cut, "u"
/// undo, "r" redo; everything else is typed.
void play(QWidget *box, const QString &keys)
{
    static const QHash<QChar, QKeySequence> commands{{'b', Qt::Key_Backspace},
                                                     {'d', Qt::Key_Delete},
                                                     {'h', Qt::Key_Home},
                                                     {'e', Qt::Key_End},
                                                     {'l', Qt::Key_Left},
                                                     {'a', QKeySequence::SelectAll},
                                                     {'s', QKeySequence("Shift+Left")},
                                                     {'v', QKeySequence::Paste},
                                                     {'c', QKeySequence::Cut},
                                                     {'u', QKeySequence::Undo},
                                                     {'r', QKeySequence::Redo}};
    for (const QChar key : keys) {
        if (const auto command = commands.find(key); command != commands.end())
            QTest::keySequence(box, *command);
        else
            QTest::sendKeyEvent(QTest::Click, box, Qt::Key_unknown, key, Qt::NoModifier);
    }
}

void compose(QWidget *box, const QString &text)
{
    QInputMethodEvent composed;
    composed.setCommitString(text);
    QCoreApplication::sendEvent(box, &composed);
}

QString emoji(int count)
{
    return QString("😀").repeated(count);
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
            {date, none, "310", "", "31/0 /    ", 4},
            {date, none, "311219998", "", full, 10},
            {date, none, "1/2/99", "", "1 /2 /99  ", 8},
            {date, none, "3x1 -.12", "", "31/12/    ", 5},
            {date, full, "ebbbbb", "", "31/1 /    ", 4},
            {date, full, "ellllbb", "", "31/  /1999", 3},
            {date, full, "hddd", "", " 1/12/1999", 0},
            {date, full, "ellllld", "", "31/12/ 999", 6},
            {date, full, "h2", "", "21/12/1999", 1},
            {date, full, "ess7", "", "31/12/197 ", 9},
            {date, full, "ax", "", full, 10},
            {date, full, "esssssd", "", "31/12/    ", 5},
            {date, full, "acbv", "", full, 10},
            {date, none, "v", full, full, 10},
            {date, full, "av", "01022003", "01/02/2003", 10},
            {date, full, "av", " 1\n2\tde 2003;", "1 /2 /2003", 10},
            {date, full, "av", "  /12/1999", "  /12/1999", 10},
            {date, full, "av", "\n😀 ñ", full, 10},
            {date, none, "v", "31/12/199912345", full, 10},
            {date, none, "31bu12", "", "31/12/    ", 5},
            {date, full, "avuur", "01022003", "01/02/2003", 10},
            {code, "  .   -   ", "v", "88000-500", "88.000-500", 10},
            {code, "", "8", "", "8 .   -   ", 1},
            {code, "88000500", "ebu", "", "88000500", 8},
            {code, "88000500", "eb", "", "88.000-50 ", 9},
            {"", "", "1x/", "", "1x/", 3},
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

    void entryGoesToTheFirstPlace()
    {
        m_box->setMask("##/##/####");
        QTest::mouseClick(m_box, Qt::LeftButton, {}, {m_box->width() - 5, m_box->height() / 2});
        QCOMPARE(m_box->cursorPosition(), 0);
        m_first->setFocus();
        connect(m_box, &TextBox::GotFocus, m_box, &QLineEdit::selectAll);
        m_box->setFocus();
        QCOMPARE(m_box->selectedText(), "  /  /    ");
    }

    void signalsAndInputMethods()
    {
        m_box->setMask("##/##/####");
        m_box->setFocus();
        QSignalSpy changes(m_box, &TextBox::Change);
        connect(m_box, &TextBox::KeyPress, m_box, [](int &code) { code = code == '4' ? 0 : code; });
        play(m_box, "34x");
        compose(m_box, "1");
        compose(m_box, "12");
        QCOMPARE(m_box->text(), "31/12/    ");
        QCOMPARE(changes.size(), 3);
    }

    void limitCountsCharacters()
    {
        m_first->setMaxLength(50);
        m_memo->setMaxLength(50);
        m_memo->setLineWrapMode(QPlainTextEdit::NoWrap);
        const auto states = [this](const QString &text) {
            QCOMPARE(m_first->text(), text);
            QCOMPARE(m_memo->text(), text);
        };
        const auto both = [this](const auto &action) {
            for (QWidget *box : std::initializer_list<QWidget *>{m_first, m_memo}) {
                box->setFocus();
                action(box);
            }
        };
        m_first->setText(emoji(60));
        m_memo->setText(emoji(60));
        states(emoji(50));
        both([](QWidget *box) { play(box, "ebx"); });
        both([](QWidget *box) { play(box, "y"); });
        states(emoji(49) + 'x');
        both([](QWidget *box) { compose(box, "😀"); });
        states(emoji(49) + 'x');
        // What stands there already is worth more than what comes too much.
        QGuiApplication::clipboard()->setText("ab" + emoji(9));
        both([](QWidget *box) { play(box, "ebbbhv"); });
        states("ab" + emoji(1) + emoji(47));
        both([](QWidget *box) { play(box, "u"); });
        states(emoji(47));
        QGuiApplication::clipboard()->setText(emoji(60));
        both([](QWidget *box) { play(box, "av"); });
        states(emoji(50));
    }

    void memoSpeaksLikeATextBox()
    {
        QSignalSpy changes(m_memo, &MemoBox::Change);
        m_memo->setText("a");
        m_memo->setText("a");
        QCOMPARE(changes.size(), 2);
        QSignalSpy entries(m_memo, &MemoBox::GotFocus);
        QList<int> told;
        connect(m_memo, &MemoBox::KeyPress, this, [&](int &code) {
            told << code;
            if (code == 'x')
                code = 0;
        });
        m_memo->setFocus();
        play(m_memo, "ex\rz");
        QCOMPARE(told, QList<int>({'x', 'z'}));
        QTest::keyClick(m_memo, Qt::Key_Return);
        QCOMPARE(told.last(), 13);
        QCOMPARE(m_memo->text(), "az\n");
        QTest::keyClick(m_memo, Qt::Key_Tab);
        QVERIFY(!m_memo->hasFocus());
        QCOMPARE(entries.size(), 1);
    }

private:
    std::unique_ptr<QWidget> m_window;
    TextBox *m_first = nullptr;
    MaskedTextBox *m_box = nullptr;
    MemoBox *m_memo = nullptr;
};

QTEST_MAIN(TestMaskedBox)
#include "tst_maskedbox.moc"
