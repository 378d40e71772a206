#include "platform/window/Clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

bool Clipboard::hasPicture()
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    return data && data->hasImage();
}

QPixmap Clipboard::GetData()
{
    return QGuiApplication::clipboard()->pixmap();
}

void Clipboard::SetData(const QPixmap &picture)
{
    QGuiApplication::clipboard()->setPixmap(picture);
}
