#include "platform/text/Dates.h"
