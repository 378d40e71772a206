#pragma once

#include "platform/print/Printer.h"

/// What a real reader makes of the barcodes on one part of a printed page, as "CODE-128:012345"; the part is given in
/// twips.
QStringList pdfBarcodes(const QString &path, int page = 1, const QRectF &part = {0, 0, a4Width, a4Height});
