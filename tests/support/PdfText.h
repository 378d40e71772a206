#pragma once

#include <QPoint>
#include <QStringList>

/// The texts of each page of a PDF, line by line and set out as on the sheet, as a real reader gives them.
QList<QStringList> pdfPages(const QString &path);

/// The lines of all pages.
QStringList pdfLines(const QString &path);

/// Where a word stands, page by page and from the top: its column and its line, counted in characters of 120 by 240
/// twips. Texts that lie one over the other are told apart.
QList<QList<QPoint>> pdfPlaces(const QString &path, const QString &word);
