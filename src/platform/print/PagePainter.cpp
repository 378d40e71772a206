#include "platform/print/PagePainter.h"
