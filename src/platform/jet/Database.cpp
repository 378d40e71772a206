#include "platform/jet/Database.h"
