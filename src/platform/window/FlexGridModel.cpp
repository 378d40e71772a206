#include "platform/window/FlexGridModel.h"
