#include "platform/window/Form.h"
