#include "platform/jet/Recordset.h"
