#pragma once

#include <QStringList>

/// The texts of each page of a PDF, line by line and set out as on the sheet, as a real reader gives them.
QList<QStringList> pdfPages(const QString &path);

/// The lines of all pages.
QStringList pdfLines(const QString &path);
