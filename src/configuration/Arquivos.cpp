#include "configuration/Arquivos.h"
