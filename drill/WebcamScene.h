#pragma once

#include "drill/Scenes.h"

/// The webcam window opens and closes again and again beside sales, is watched before large cameras, and loses its
/// terminal.
void playWebcam(Drill &drill);
