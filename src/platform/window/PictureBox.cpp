#include "platform/window/PictureBox.h"

#include <QPainter>

PictureBox::PictureBox(QWidget *parent) : QFrame(parent)
{
    setBackgroundRole(QPalette::Midlight);
    setAutoFillBackground(true);
}

void PictureBox::setPicture(const QPixmap &picture)
{
    m_picture = picture;
    update();
}

void PictureBox::paintEvent(QPaintEvent *event)
{
    if (!m_picture.isNull()) {
        const QRect room = contentsRect();
        QRect place(QPoint(), m_picture.size().scaled(room.size(), Qt::KeepAspectRatio));
        place.moveCenter(room.center());
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(place, m_picture);
    }
    QFrame::paintEvent(event);
}
