#include "platform/window/Forms.h"
