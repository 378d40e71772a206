#include "data/Esquema.h"
