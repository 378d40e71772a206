#include "configuration/Globais.h"

Globais &Globais::current()
{
    static Globais globais;
    return globais;
}
