#include "tests/support/PdfBarcodes.h"

#include <QDir>
#include <QImageReader>
#include <QProcess>
#include <QTemporaryDir>

#include <zbar.h>

namespace {
/// The rows of a label are alike, so some of them do.
constexpr int readsPerInch = 50;

using namespace zbar;
using Reader = std::unique_ptr<zbar_image_scanner_t, decltype([](auto *each) { zbar_image_scanner_destroy(each); })>;
using Picture = std::unique_ptr<zbar_image_t, decltype([](auto *each) { zbar_image_destroy(each); })>;

/// A reader of all kinds of bars, across the sheet only.
Reader newReader(int dotsPerInch)
{
    Reader made(zbar_image_scanner_create());
    zbar_image_scanner_set_config(made.get(), ZBAR_QRCODE, ZBAR_CFG_ENABLE, 0);
    zbar_image_scanner_set_config(made.get(), ZBAR_NONE, ZBAR_CFG_X_DENSITY, 0);
    zbar_image_scanner_set_config(made.get(), ZBAR_NONE, ZBAR_CFG_Y_DENSITY, dotsPerInch / readsPerInch);
    return made;
}
} // namespace

Rendering inWholeDots(int dotsPerInch)
{
    return {"pdftoppm -mono", dotsPerInch};
}

Rendering softened(int dotsPerInch)
{
    return {"pdftocairo -png -gray", dotsPerInch};
}

DrawnPages::DrawnPages(const QString &path, const Rendering &rendering) : m_dotsPerInch(rendering.dotsPerInch)
{
    const QTemporaryDir folder;
    QStringList words = rendering.command.split(' ');
    const QString program = words.takeFirst();
    words += {"-r", QString::number(m_dotsPerInch), path, folder.filePath("page")};
    if (QProcess::execute(program, words) != 0)
        qFatal("%s cannot draw %s", qPrintable(program), qPrintable(path));
    // A page at 600 dots to the inch is beyond what the toolkit reads unasked.
    QImageReader::setAllocationLimit(0);
    const QDir pictures(folder.path());
    for (const QString &file : pictures.entryList(QDir::Files, QDir::Name))
        m_pages += QImage(pictures.filePath(file));
}

QStringList DrawnPages::barcodes(int page, const QRectF &part) const
{
    const Reader reader = newReader(m_dotsPerInch);
    const double dots = double(m_dotsPerInch) / twipsPerInch;
    const QImage &whole = m_pages[page - 1];
    const QRect crop = QRectF(part.topLeft() * dots, part.size() * dots).toAlignedRect() & whole.rect();
    const QImage greys = whole.copy(crop).convertToFormat(QImage::Format_Grayscale8);
    QByteArray pixels;
    for (int y = 0; y < greys.height(); ++y)
        pixels.append(reinterpret_cast<const char *>(greys.constScanLine(y)), greys.width());
    const Picture picture(zbar_image_create());
    zbar_image_set_format(picture.get(), zbar_fourcc('Y', '8', '0', '0'));
    zbar_image_set_size(picture.get(), static_cast<unsigned>(crop.width()), static_cast<unsigned>(crop.height()));
    zbar_image_set_data(picture.get(), pixels.constData(), static_cast<unsigned long>(pixels.size()), nullptr);
    zbar_scan_image(reader.get(), picture.get());
    QStringList found;
    for (auto *each = zbar_image_first_symbol(picture.get()); each; each = zbar_symbol_next(each))
        found += QString(zbar_get_symbol_name(zbar_symbol_get_type(each))) + ':' + zbar_symbol_get_data(each);
    return found;
}
