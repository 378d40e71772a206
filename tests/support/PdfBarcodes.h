#pragma once

#include "platform/print/Printer.h"

#include <QImage>

/// How a PDF comes into dots.
struct Rendering
{
    QString command; ///< the program and its options
    int dotsPerInch = 0;
};

/// What a printer that has no greys makes of a page: each dot is black or white.
Rendering inWholeDots(int dotsPerInch);
/// In greys, so that an edge between two dots keeps its place.
Rendering softened(int dotsPerInch);

/// The pages of a PDF as dots.
class DrawnPages
{
public:
    DrawnPages(const QString &path, const Rendering &rendering);

    /// What a reader makes of the barcodes on a part of a page, as "CODE-128:012345"; pages count from 1, and the part
    /// is given in twips.
    QStringList barcodes(int page, const QRectF &part = {0, 0, a4Width, a4Height}) const;

private:
    QList<QImage> m_pages;
    int m_dotsPerInch;
};
