#include "tests/support/PdfText.h"

#include <QProcess>
#include <QRegularExpression>

namespace {
QString read(const QString &path, const QString &form)
{
    QProcess reader;
    reader.start("pdftotext", {form, "-enc", "UTF-8", path, "-"});
    if (!reader.waitForFinished() || reader.exitCode() != 0)
        qFatal("pdftotext cannot read %s: %s", qPrintable(path), reader.readAllStandardError().constData());
    return QString::fromUtf8(reader.readAllStandardOutput());
}
} // namespace

QList<QStringList> pdfPages(const QString &path)
{
    QList<QStringList> pages;
    // A form feed ends each page, the last one too.
    QStringList texts = read(path, "-layout").split('\f');
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

QList<PdfWord> pdfWords(const QString &path)
{
    static const QRegularExpression word(
        R"re(<word xMin="([-\d.]+)" yMin="([-\d.]+)" xMax="([-\d.]+)" yMax="([-\d.]+)">([^<]*)</word>)re");
    QList<PdfWord> words;
    const QString texts = read(path, "-bbox");
    for (auto each = word.globalMatch(texts); each.hasNext();) {
        const auto match = each.next();
        const auto number = [&](int group) { return match.captured(group).toDouble(); };
        words.append({match.captured(5), {QPointF(number(1), number(2)), QPointF(number(3), number(4))}});
    }
    return words;
}
