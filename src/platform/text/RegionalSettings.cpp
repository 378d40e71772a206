#include "platform/text/RegionalSettings.h"
