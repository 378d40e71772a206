#include "platform/files/Paths.h"
