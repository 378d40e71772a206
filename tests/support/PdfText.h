#pragma once

#include <QRectF>
#include <QStringList>

/// The texts of each page of a PDF, line by line and set out as on the sheet, as a real reader gives them.
QList<QStringList> pdfPages(const QString &path);

/// The lines of all pages.
QStringList pdfLines(const QString &path);

struct PdfWord
{
    QString text;
    /// In points from the sheet's upper left corner, as high as its font and as wide as its letters advance.
    QRectF box;

    bool operator==(const PdfWord &) const = default;
};
/// The words of a PDF with their places.
QList<PdfWord> pdfWords(const QString &path);
