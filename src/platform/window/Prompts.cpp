#include "platform/window/Prompts.h"
