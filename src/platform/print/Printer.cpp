#include "platform/print/Printer.h"
