#include "photo/cDIBSection.h"

#include <algorithm>
#include <limits>

namespace {

constexpr int bytesPerPixel = 3;
constexpr int bitsPerPixel = 24;
constexpr int headerSize = 40;

qint64 scanLine(qint64 width)
{
    return (width * bytesPerPixel + 3) & ~qint64(3);
}

} // namespace

bool cDIBSection::CreateFromPicture(const QPixmap &picture)
{
    if (!Create(picture.width(), picture.height()))
        return false;
    LoadPictureBlt(picture.toImage());
    return true;
}

bool cDIBSection::Create(int width, int height)
{
    ClearUp();
    const qint64 size = scanLine(width) * height;
    if (width <= 0 || height <= 0 || size > std::numeric_limits<qint32>::max())
        return false;
    m_bits.resize(static_cast<std::size_t>(size));
    m_header = {headerSize, width, height, 1, bitsPerPixel, 0, static_cast<quint32>(size)};
    return true;
}

int cDIBSection::BytesPerScanLine() const
{
    return static_cast<int>(scanLine(Width()));
}

void cDIBSection::LoadPictureBlt(const QImage &source, int left, int top, int width, int height)
{
    QRect part(left, top, width < 0 ? Width() : width, height < 0 ? Height() : height);
    part = part.intersected(source.rect()).intersected({left, top, Width(), Height()});
    if (part.isEmpty())
        return;
    const QImage image = source.copy(part).convertToFormat(QImage::Format_BGR888);
    const QPoint target = part.topLeft() - QPoint(left, top);
    for (int line = 0; line < image.height(); ++line) {
        const qsizetype fromBottom = Height() - 1 - (target.y() + line);
        std::copy_n(image.constScanLine(line), image.width() * bytesPerPixel,
                    m_bits.data() + fromBottom * BytesPerScanLine() + target.x() * bytesPerPixel);
    }
}

void cDIBSection::ClearUp()
{
    m_bits = {};
    m_header = {};
}
