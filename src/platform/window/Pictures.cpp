#include "platform/window/Pictures.h"

#include "platform/base/Err.h"
#include "platform/files/Paths.h"

#include <QFile>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

namespace {
/// A photo of 64 megapixels; a damaged file must not ask for more.
constexpr int largestPictureMegabytes = 256;
} // namespace

QPixmap LoadPicture(const QString &path)
{
    QImageReader::setAllocationLimit(largestPictureMegabytes);
    QImageReader reader(resolveIgnoringCase(path));
    reader.setAutoTransform(true);
    // A file may bear another format's ending.
    reader.setDecideFormatFromContent(true);
    const QImage image = reader.read();
    if (image.isNull())
        throw RunTimeError(ErrorNumber::InvalidPicture, "Invalid picture: " + path);
    return QPixmap::fromImage(image);
}

QPixmap bundledPicture(const QString &name, QSize size)
{
    QFile file(":/pictures/" + name + ".svg");
    if (!file.open(QIODevice::ReadOnly))
        throw RunTimeError(ErrorNumber::InvalidPicture, "No such picture: " + name);
    const QColor ink = QGuiApplication::palette().color(QPalette::WindowText);
    QSvgRenderer renderer(file.readAll().replace("currentColor", ink.name().toLatin1()));

    const qreal scale = qGuiApp->devicePixelRatio();
    QPixmap picture((QSizeF(size) * scale).toSize());
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    renderer.render(&painter, QRectF(QPointF(), QSizeF(size)));
    return picture;
}
