#pragma once

#include "platform/base/LongWork.h"

/// A quiet strip that moves at the foot of the window in front, drawn at once as no events run. While the program waits
/// for others, all of its windows are brought to the screen again and again.
void showBusySign(LongWork::Life life);
