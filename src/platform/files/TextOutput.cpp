#include "platform/files/TextOutput.h"
