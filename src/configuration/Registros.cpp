#include "configuration/Registros.h"
