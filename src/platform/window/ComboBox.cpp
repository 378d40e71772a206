#include "platform/window/ComboBox.h"
