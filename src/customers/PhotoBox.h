#pragma once

#include "platform/window/PictureBox.h"

/// Shows a customer's photo, or a picture of nobody.
class PhotoBox : public PictureBox
{
    Q_OBJECT

public:
    explicit PhotoBox(QWidget *parent = nullptr);

    void showNobody();
    /// Raises InvalidPicture for a file that is no image, and goes on showing what it showed.
    void showFile(const QString &path);
    /// The photo of a stored path; nobody when there is none or when its file is gone.
    void showStored(const QString &path);

protected:
    void paintEvent(QPaintEvent *event) override;
};
