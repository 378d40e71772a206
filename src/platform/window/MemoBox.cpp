#include "platform/window/MemoBox.h"

#include "platform/window/KeyCodes.h"
#include "platform/window/TextLimit.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QSignalBlocker>

#include <limits>

namespace {

/// Whether a key would put a character in.
bool inserts(const QKeyEvent &event)
{
    const bool lineBreak = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    const bool command = event.modifiers() & Qt::ControlModifier && !(event.modifiers() & Qt::AltModifier);
    const QString text = event.text();
    return lineBreak || (!command && !text.isEmpty() && (text.size() > 1 || text.at(0).isPrint()));
}

} // namespace

MemoBox::MemoBox(QWidget *parent) : QPlainTextEdit(parent), m_limit(std::numeric_limits<int>::max())
{
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, &MemoBox::Change);
}

void MemoBox::setText(const QString &text)
{
    {
        const QSignalBlocker once(this);
        setPlainText(text);
    }
    emit Change();
}

void MemoBox::keyPressEvent(QKeyEvent *event)
{
    filterKey(
        event, [this](int &code) { emit KeyPress(code); },
        [this](QKeyEvent *key) {
            if (inserts(*key) && room() < codePoints(key->text()))
                key->accept();
            else
                QPlainTextEdit::keyPressEvent(key);
        });
}

void MemoBox::inputMethodEvent(QInputMethodEvent *event)
{
    filterCommit(event, [this](int &code) { emit KeyPress(code); });
    if (!event->commitString().isEmpty())
        event->setCommitString(firstCodePoints(event->commitString(), room()), event->replacementStart(),
                               event->replacementLength());
    QPlainTextEdit::inputMethodEvent(event);
}

void MemoBox::insertFromMimeData(const QMimeData *source)
{
    if (room() <= 0)
        return;
    QMimeData fitting;
    fitting.setText(firstCodePoints(source->text(), room()));
    QPlainTextEdit::insertFromMimeData(&fitting);
}

void MemoBox::focusInEvent(QFocusEvent *event)
{
    QPlainTextEdit::focusInEvent(event);
    if (m_entry.focusIn(*event))
        emit GotFocus();
}

void MemoBox::focusOutEvent(QFocusEvent *event)
{
    m_entry.focusOut(*event);
    QPlainTextEdit::focusOutEvent(event);
}

void MemoBox::mouseReleaseEvent(QMouseEvent *event)
{
    QPlainTextEdit::mouseReleaseEvent(event);
    if (m_entry.mouseRelease())
        emit GotFocus();
}

int MemoBox::room() const
{
    return m_limit - codePoints(text()) + codePoints(textCursor().selectedText());
}
