#include "platform/window/TextBox.h"
