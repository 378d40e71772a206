#include "tests/support/PdfText.h"

#include <QProcess>

QList<QStringList> pdfPages(const QString &path)
{
    QProcess reader;
    reader.start("pdftotext", {"-layout", "-enc", "UTF-8", path, "-"});
    if (!reader.waitForFinished() || reader.exitCode() != 0)
        qFatal("pdftotext cannot read %s: %s", qPrintable(path), reader.readAllStandardError().constData());
    QList<QStringList> pages;
    // A form feed ends each page, the last one too.
    QStringList texts = QString::fromUtf8(reader.readAllStandardOutput()).split('\f');
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
