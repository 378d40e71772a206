#pragma once

#include <QFrame>
#include <QPixmap>

/// Shows a picture as large as the box allows; the picture itself keeps its own size.
class PictureBox : public QFrame
{
    Q_OBJECT

public:
    explicit PictureBox(QWidget *parent = nullptr);

    const QPixmap &Picture() const { return m_picture; }
    void setPicture(const QPixmap &picture);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap m_picture;
};
