#include "platform/media/Sound.h"
