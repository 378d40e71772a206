#include "platform/window/Pictures.h"

#include "platform/base/Err.h"
#include "platform/files/Paths.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace {
/// What a damaged file may ask for at most.
constexpr int largestPictureMegabytes = 256;
/// Sides of the largest picture that a screen has use for; anything larger is loaded smaller.
constexpr QSize largestSize(2560, 2560);
/// Beyond this even reading a picture smaller takes too much memory and time; the largest cameras have 100 megapixels.
constexpr qint64 mostPixels = 120'000'000;

void loadSmaller(QImageReader &reader)
{
    const QSize size = reader.size();
    if (size.width() > largestSize.width() || size.height() > largestSize.height())
        reader.setScaledSize(size.scaled(largestSize, Qt::KeepAspectRatio).expandedTo({1, 1}));
}

QPixmap drawPicture(const QString &name, QSize size, const QColor &ink, qreal scale)
{
    QFile file(":/pictures/" + name + ".svg");
    if (!file.open(QIODevice::ReadOnly))
        throw RunTimeError(ErrorNumber::InvalidPicture, "No such picture: " + name);
    QSvgRenderer renderer(file.readAll().replace("currentColor", ink.name().toLatin1()));
    QPixmap picture((QSizeF(size) * scale).toSize());
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    renderer.render(&painter, QRectF(QPointF(), QSizeF(size)));
    return picture;
}
} // namespace

QPixmap LoadPicture(const QString &path)
{
    QImageReader::setAllocationLimit(largestPictureMegabytes);
    const QFileInfo file(resolveIgnoringCase(path));
    QImageReader reader(file.filePath());
    reader.setAutoTransform(true);
    // A file may bear another format's ending.
    reader.setDecideFormatFromContent(true);
    // A pipe or a device would never end.
    if (file.isFile())
        loadSmaller(reader);
    const bool sensible = file.isFile() && qint64(reader.size().width()) * reader.size().height() <= mostPixels;
    const QImage image = sensible ? reader.read() : QImage();
    if (image.isNull())
        throw RunTimeError(ErrorNumber::InvalidPicture, "Invalid picture: " + path);
    return QPixmap::fromImage(image);
}

QPixmap bundledPicture(const QString &name, QSize size)
{
    const QColor ink = QGuiApplication::palette().color(QPalette::WindowText);
    const qreal scale = qGuiApp->devicePixelRatio();
    const QString key = QString("%1 %2 %3x%4 %5").arg(name, ink.name()).arg(size.width()).arg(size.height()).arg(scale);
    QPixmap picture;
    // A search changes the picture of its button; drawing it took a good part of the search's time.
    if (!QPixmapCache::find(key, &picture)) {
        picture = drawPicture(name, size, ink, scale);
        QPixmapCache::insert(key, picture);
    }
    return picture;
}
