#include "platform/window/TextBox.h"

#include "platform/window/KeyCodes.h"

#include <QFocusEvent>
#include <QKeyEvent>

#include <utility>

namespace {

bool isInterruption(const QFocusEvent &event)
{
    return event.reason() == Qt::ActiveWindowFocusReason || event.reason() == Qt::PopupFocusReason;
}

} // namespace

TextBox::TextBox(QWidget *parent) : QLineEdit(parent)
{
    connect(this, &QLineEdit::textChanged, this, &TextBox::Change);
}

void TextBox::setText(const QString &text)
{
    if (text == this->text())
        emit Change();
    else
        QLineEdit::setText(text);
}

void TextBox::setCaretToEnd()
{
    setFocus();
    end(false);
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
    if (std::exchange(m_interrupted, false) && isInterruption(*event))
        return;
    m_enteredByMouse = event->reason() == Qt::MouseFocusReason;
    if (!m_enteredByMouse)
        emit GotFocus();
}

void TextBox::focusOutEvent(QFocusEvent *event)
{
    m_interrupted = isInterruption(*event);
    m_enteredByMouse = false;
    QLineEdit::focusOutEvent(event);
}

void TextBox::mouseReleaseEvent(QMouseEvent *event)
{
    QLineEdit::mouseReleaseEvent(event);
    if (std::exchange(m_enteredByMouse, false))
        emit GotFocus();
}
