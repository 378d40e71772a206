#pragma once

#include <QRectF>
#include <QStringList>

/// What a real reader makes of the barcodes on one part of a printed page, as "CODE-128:012345"; pages count from 1,
/// the part is given in twips. The page is drawn as a printer of 300 dots an inch draws it.
QStringList pdfBarcodes(const QString &path, int page, const QRectF &part);

/// All of the page.
QStringList pdfBarcodes(const QString &path, int page = 1);
