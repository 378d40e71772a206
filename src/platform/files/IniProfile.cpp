#include "platform/files/IniProfile.h"
