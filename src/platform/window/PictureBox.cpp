#include "platform/window/PictureBox.h"

#include <QPainter>

PictureBox::PictureBox(QWidget *parent) : QFrame(parent)
{
    setBackgroundRole(QPalette::Midlight);
    setAutoFillBackground(true);
}

void PictureBox::setPicture(const QPixmap &picture)
{
    put(picture, {});
}

void PictureBox::setText(const QString &text)
{
    put({}, text);
}

void PictureBox::put(const QPixmap &picture, const QString &text)
{
    m_picture = picture;
    if (m_text != text)
        setAccessibleDescription(text);
    m_text = text;
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
    } else if (!m_text.isEmpty()) {
        const int margin = 2 * fontMetrics().height();
        QPainter(this).drawText(contentsRect().adjusted(margin, 0, -margin, 0), Qt::AlignCenter | Qt::TextWordWrap,
                                m_text);
    }
    QFrame::paintEvent(event);
}
