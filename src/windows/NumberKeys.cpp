#include "windows/NumberKeys.h"

#include "platform/window/KeyCodes.h"

int Filtrar_Numero(int key, const QString &text, bool negative)
{
    if (key == '.' && !text.contains(','))
        key = ',';

    const bool accepted = (key >= '0' && key <= '9') || key == vbKeyBack || (key == ',' && !text.contains(',')) ||
                          (key == '-' && negative && !text.contains('-'));
    return accepted ? key : 0;
}
