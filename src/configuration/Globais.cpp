#include "configuration/Globais.h"
