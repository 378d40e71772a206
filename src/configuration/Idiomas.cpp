#include "configuration/Idiomas.h"
