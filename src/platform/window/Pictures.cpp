#include "platform/window/Pictures.h"
