#pragma once

#include "platform/print/Printer.h"

#include <QImage>

/// A printed page at 300 dots an inch, in greys, so that an edge between two dots keeps its place; pages count from 1.
QImage pdfPicture(const QString &path, int page = 1);

/// What a real reader makes of the barcodes on one part of a printed page, as "CODE-128:012345"; the part is given in
/// twips.
QStringList pdfBarcodes(const QString &path, int page = 1, const QRectF &part = {0, 0, a4Width, a4Height});
