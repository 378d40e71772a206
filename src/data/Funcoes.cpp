#include "data/Funcoes.h"
