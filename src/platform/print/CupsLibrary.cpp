#include "platform/print/CupsLibrary.h"

const CupsLibrary &CupsLibrary::current()
{
    static const CupsLibrary library;
    return library;
}
