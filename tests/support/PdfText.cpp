#include "tests/support/PdfText.h"

#include <QProcess>
#include <QRegularExpression>

namespace {
QString readPdf(const QStringList &options, const QString &path)
{
    QProcess reader;
    reader.start("pdftotext", options + QStringList{"-enc", "UTF-8", path, "-"});
    if (!reader.waitForFinished() || reader.exitCode() != 0)
        qFatal("pdftotext cannot read %s: %s", qPrintable(path), reader.readAllStandardError().constData());
    return QString::fromUtf8(reader.readAllStandardOutput());
}
} // namespace

QList<QStringList> pdfPages(const QString &path)
{
    QList<QStringList> pages;
    // A form feed ends each page, the last one too.
    QStringList texts = readPdf({"-layout"}, path).split('\f');
    texts.removeLast();
    for (const QString &text : texts)
        pages.append(text.split('\n'));
    return pages;
}

QStringList pdfLines(const QString &path)
{
    QStringList lines;
    for (const QStringList &page : pdfPages(path))
        lines += page;
    return lines;
}

QList<QList<QPoint>> pdfPlaces(const QString &path, const QString &word)
{
    constexpr double columnPoints = 6;
    constexpr double linePoints = 12;
    const QRegularExpression box("<word xMin=\"([^\"]*)\" yMin=\"([^\"]*)\"[^>]*>" + QRegularExpression::escape(word) +
                                 "</word>");
    QList<QList<QPoint>> pages;
    for (const QString &page : readPdf({"-bbox"}, path).split("<page ").mid(1)) {
        pages.append(QList<QPoint>());
        for (auto found = box.globalMatch(page); found.hasNext();) {
            const QRegularExpressionMatch match = found.next();
            pages.last() += QPoint(qRound(match.captured(1).toDouble() / columnPoints),
                                   qRound(match.captured(2).toDouble() / linePoints));
        }
    }
    return pages;
}
