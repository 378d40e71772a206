#pragma once

#include "platform/print/RecordedPage.h"

#include <QTransform>

/// How the pages of a document come into the area that a printer can reach: moved no further than it takes, and shrunk
/// only where they are larger than that area, unless the scale must stay. All pages are placed alike. What lies beyond
/// the document's own sheet was never meant for paper and counts for nothing.
QTransform placeWithin(const QRectF &area, const QList<RecordedPage> &pages, const QRectF &sheet, bool keepsScale);
