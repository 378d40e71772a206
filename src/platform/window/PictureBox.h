#pragma once

#include <QFrame>
#include <QPixmap>

/// Shows a picture as large as the box allows; the picture itself keeps its own size. Or a text in its place.
class PictureBox : public QFrame
{
    Q_OBJECT

public:
    explicit PictureBox(QWidget *parent = nullptr);

    const QPixmap &Picture() const { return m_picture; }
    void setPicture(const QPixmap &picture);
    const QString &text() const { return m_text; }
    /// Stands until the next picture.
    void setText(const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void put(const QPixmap &picture, const QString &text);

    QPixmap m_picture;
    QString m_text;
};
