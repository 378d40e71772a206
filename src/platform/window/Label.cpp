#include "platform/window/Label.h"
