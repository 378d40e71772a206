#include "configuration/Arquivos_INI.h"
