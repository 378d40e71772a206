#include "platform/base/Machine.h"
