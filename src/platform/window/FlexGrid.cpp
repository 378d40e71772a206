#include "platform/window/FlexGrid.h"
