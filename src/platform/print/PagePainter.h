#pragma once

#include "platform/print/RecordedPage.h"

#include <QTransform>

class QPdfWriter;

/// Paints recorded pages, each on a sheet of its own, placed as given. False when the PDF can't be written.
bool paintPages(const QList<RecordedPage> &pages, QPdfWriter &sheets, const QTransform &placing = {});
