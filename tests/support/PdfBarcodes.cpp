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
    const QString options = QString("-png -gray -singlefile -f %1 -l %1 -r %2 -x %3 -y %4 -W %5 -H %6")
                                .arg(QString::number(page), dots(twipsPerInch), dots(part.x()), dots(part.y()),
                                     dots(part.width()), dots(part.height()));
    if (QProcess::execute("pdftocairo", options.split(' ') + QStringList{path, picture}) != 0)
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
