#include "data/Acesso_BD.h"
