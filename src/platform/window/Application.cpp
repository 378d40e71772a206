#include "platform/window/Application.h"
