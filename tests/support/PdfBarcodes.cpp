#include "tests/support/PdfBarcodes.h"

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

/// Draws one part of a page, given in twips, in greys, so that an edge between two dots keeps its place, and answers
/// the picture's file.
QString draw(const QString &path, int page, const QRectF &part, const QTemporaryDir &folder)
{
    const QString picture = folder.filePath("part");
    const QString number = QString::number(page);
    const QStringList arguments{"-png",
                                "-gray",
                                "-singlefile",
                                "-r",
                                dots(twipsPerInch),
                                "-f",
                                number,
                                "-l",
                                number,
                                "-x",
                                dots(part.x()),
                                "-y",
                                dots(part.y()),
                                "-W",
                                dots(part.width()),
                                "-H",
                                dots(part.height()),
                                path,
                                picture};
    if (QProcess::execute("pdftocairo", arguments) != 0)
        qFatal("pdftocairo cannot draw page %d of %s", page, qPrintable(path));
    return picture + ".png";
}
} // namespace

QStringList pdfBarcodes(const QString &path, int page, const QRectF &part)
{
    const QTemporaryDir folder;
    QProcess reader;
    reader.start("zbarimg", {"--quiet", draw(path, page, part, folder)});
    if (!reader.waitForFinished() || (reader.exitCode() != 0 && reader.exitCode() != nothingFound))
        qFatal("zbarimg failed: %s", reader.readAllStandardError().constData());
    return QString::fromUtf8(reader.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
}
