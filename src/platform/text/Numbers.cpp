#include "platform/text/Numbers.h"
