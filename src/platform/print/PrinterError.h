#pragma once

#include "platform/base/Err.h"

[[noreturn]] inline void raisePrinterError(const QString &what)
{
    throw RunTimeError(ErrorNumber::PrinterError, "Printer error: " + what);
}
