#include "platform/window/Label.h"

#include "platform/window/LabelAccess.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

Label::Label(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    LabelAccess::install();
}

void Label::setCaption(const QString &caption)
{
    const bool changed = caption != text();
    setText(caption);
    if (changed && isVisible())
        LabelAccess::announce(*this);
    emit Change();
}

void Label::mouseReleaseEvent(QMouseEvent *event)
{
    QLabel::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit Click();
}

void Label::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter)
        emit Click();
    else
        event->ignore();
}

void Label::focusInEvent(QFocusEvent *event)
{
    // QLabel would turn its text into one to select from.
    QFrame::focusInEvent(event);
}

void Label::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(this);
    QStyleOptionFocusRect ring;
    ring.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &ring, &painter, this);
}
