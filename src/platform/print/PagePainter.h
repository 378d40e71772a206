#pragma once

#include "platform/print/RecordedPage.h"

class QPrinter;

/// Paints recorded pages, each on a sheet of its own. False when the device refuses.
bool paintPages(const QList<RecordedPage> &pages, QPrinter &printer);
