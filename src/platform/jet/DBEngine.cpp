#include "platform/jet/DBEngine.h"
