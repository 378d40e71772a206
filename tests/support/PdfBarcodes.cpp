#include "tests/support/PdfBarcodes.h"

#include "platform/print/Printer.h"
#include "platform/print/RecordedPage.h"

#include <QProcess>
#include <QTemporaryDir>

namespace {
constexpr int dotsPerInch = 300;
/// The reader's answer where it finds nothing.
constexpr int nothingFound = 4;

QString dots(double twips)
{
    return QString::number(qRound(twips * dotsPerInch / twipsPerInch));
}
} // namespace

QStringList pdfBarcodes(const QString &path, int page, const QRectF &part)
{
    const QTemporaryDir folder;
    const QString picture = folder.filePath("part");
    const QString number = QString::number(page);
    const QStringList place{"-x", dots(part.x()),     "-y", dots(part.y()),
                            "-W", dots(part.width()), "-H", dots(part.height())};
    if (QProcess::execute("pdftoppm", QStringList{"-r", QString::number(dotsPerInch), "-f", number, "-l", number,
                                                  "-singlefile", "-gray", "-png"} +
                                          place + QStringList{path, picture}) != 0)
        qFatal("pdftoppm cannot draw page %d of %s", page, qPrintable(path));

    QProcess reader;
    reader.start("zbarimg", {"--quiet", picture + ".png"});
    if (!reader.waitForFinished() || (reader.exitCode() != 0 && reader.exitCode() != nothingFound))
        qFatal("zbarimg failed: %s", reader.readAllStandardError().constData());
    return QString::fromUtf8(reader.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
}

QStringList pdfBarcodes(const QString &path, int page)
{
    return pdfBarcodes(path, page, {0, 0, a4Width, a4Height});
}
