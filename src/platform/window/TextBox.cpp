#include "platform/window/TextBox.h"

#include "platform/window/KeyCodes.h"
#include "platform/window/TextLimit.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QValidator>

#include <algorithm>
#include <utility>

/// The one gate through which all edits pass, from keys, menus, the mouse and input methods alike.
class TextBox::Shaper : public QValidator
{
public:
    explicit Shaper(TextBox *box) : QValidator(box), m_box(box) {}

    State validate(QString &text, int &caret) const override
    {
        return m_box->admits({text, caret}) ? Acceptable : Invalid;
    }

private:
    TextBox *m_box;
};

TextBox::TextBox(QWidget *parent) : QLineEdit(parent), m_limit(QLineEdit::maxLength())
{
    setValidator(new Shaper(this));
    connect(this, &QLineEdit::cursorPositionChanged, this, [this](int, int caret) { m_before.caret = caret; });
    connect(this, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_before.text = text;
        emit Change();
    });
}

void TextBox::setText(const QString &text)
{
    m_wanted.reset();
    m_reshaped = false;
    if (text == this->text())
        emit Change();
    else
        QLineEdit::setText(text);
}

void TextBox::focusAtEnd()
{
    setFocus();
    end(false);
}

TextBox::State TextBox::shaped(const State &before, const State &after) const
{
    State result = after;
    // The box has one line: what was pasted with breaks and tabs has blanks instead.
    for (QChar &character : result.text)
        if (character.isSpace())
            character = ' ';
    if (const int excess = codePoints(after.text) - m_limit; excess > 0) {
        // Nothing goes but what came in just now: a longer text of the program's stays, and can be shortened.
        const int added = codePoints(
            QStringView(after.text).sliced(editBegin(before, after)).chopped(after.text.size() - after.caret));
        if (added > 0 && excess >= added)
            return before;
        const qsizetype units = codeUnitsBefore(after.text, after.caret, std::min(excess, added));
        result.caret -= static_cast<int>(units);
        result.text.remove(result.caret, units);
    }
    return result;
}

qsizetype TextBox::editBegin(const State &before, const State &after)
{
    const qsizetype end = before.text.size() - (after.text.size() - after.caret);
    const QStringView head = QStringView(after.text).first(std::min<qsizetype>(end, after.caret));
    return std::mismatch(head.begin(), head.end(), before.text.begin()).first - head.begin();
}

bool TextBox::admits(const State &after)
{
    if (m_settling)
        return true;
    // A text brought back by undo has a future, and one set by the program has no history.
    if (isRedoAvailable()) {
        m_undone = m_reshaped;
        settleSoon();
        return true;
    }
    if (!isUndoAvailable())
        return true;
    const State wanted = shaped(m_before, after);
    if (wanted == after)
        return true;
    // The edit is refused, so that text and selection stand as before, and carried out anew in its right shape: a
    // correction made by a validator would cost the history of undo.
    m_wanted = wanted;
    settleSoon();
    return false;
}

/// A key is settled by the end of its event; what a menu does has no event of ours.
void TextBox::settleSoon()
{
    QMetaObject::invokeMethod(this, &TextBox::settle, Qt::QueuedConnection);
}

void TextBox::settle()
{
    // What undo brings back of an edit carried out anew is selected, and the next key would replace it.
    if (std::exchange(m_undone, false))
        deselect();
    const std::optional<State> wanted = std::exchange(m_wanted, std::nullopt);
    if (!wanted || *wanted == m_before)
        return;
    if (const QString old = text(); wanted->text != old) {
        const QString &now = wanted->text;
        const auto begin = std::mismatch(old.begin(), old.end(), now.begin(), now.end()).first - old.begin();
        const auto common = std::min(old.size(), now.size()) - begin;
        const auto tail =
            std::mismatch(old.rbegin(), old.rbegin() + common, now.rbegin(), now.rbegin() + common).first -
            old.rbegin();
        const QScopedValueRollback settling(m_settling, true);
        m_reshaped = true;
        // A move of the caret begins a new step of undo.
        end(false);
        home(false);
        setSelection(static_cast<int>(begin), static_cast<int>(old.size() - tail - begin));
        insert(now.sliced(begin, now.size() - tail - begin));
    }
    setCursorPosition(wanted->caret);
}

bool TextBox::event(QEvent *event)
{
    const bool handled = QLineEdit::event(event);
    settle();
    return handled;
}

void TextBox::keyPressEvent(QKeyEvent *event)
{
    filterKey(
        event, [this](int &code) { emit KeyPress(code); }, [this](QKeyEvent *key) { QLineEdit::keyPressEvent(key); });
}

void TextBox::inputMethodEvent(QInputMethodEvent *event)
{
    filterCommit(event, [this](int &code) { emit KeyPress(code); });
    QLineEdit::inputMethodEvent(event);
}

void TextBox::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    if (m_entry.focusIn(*event))
        emit GotFocus();
}

void TextBox::focusOutEvent(QFocusEvent *event)
{
    m_entry.focusOut(*event);
    QLineEdit::focusOutEvent(event);
}

void TextBox::mouseReleaseEvent(QMouseEvent *event)
{
    QLineEdit::mouseReleaseEvent(event);
    if (m_entry.mouseRelease())
        emit GotFocus();
}
