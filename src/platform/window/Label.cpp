#include "platform/window/Label.h"

#include <QMouseEvent>

Label::Label(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

void Label::setCaption(const QString &caption)
{
    setText(caption);
    emit Change();
}

void Label::mouseReleaseEvent(QMouseEvent *event)
{
    QLabel::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit Click();
}
