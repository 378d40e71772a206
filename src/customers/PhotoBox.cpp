#include "customers/PhotoBox.h"

#include "configuration/Arquivos.h"
#include "data/Placeholders.h"
#include "platform/base/Err.h"
#include "platform/window/Pictures.h"

#include <QPainter>

#include <algorithm>

PhotoBox::PhotoBox(QWidget *parent) : PictureBox(parent)
{
    setFrameShape(StyledPanel);
    setBackgroundRole(QPalette::Light);
}

void PhotoBox::showNobody()
{
    setPicture({});
}

void PhotoBox::showFile(const QString &path)
{
    setPicture(LoadPicture(path));
}

void PhotoBox::showStored(const QString &path)
{
    if (path.isEmpty() || path == Placeholder::NoPhoto || !Existe_Arquivo(path))
        showNobody();
    else
        OnErrorResumeNext<ErrorNumber::InvalidPicture>([&] { showFile(path); });
}

void PhotoBox::paintEvent(QPaintEvent *event)
{
    PictureBox::paintEvent(event);
    if (!Picture().isNull())
        return;
    // Drawn for its place each time, so that it stays sharp and in the desktop's colours.
    const int side = std::min(contentsRect().width(), contentsRect().height());
    QRect place(0, 0, side, side);
    place.moveCenter(contentsRect().center());
    QPainter(this).drawPixmap(place.topLeft(), bundledPicture("imgninguem", place.size()));
}
