#pragma once

#include <QString>

/// Returns at once and plays beside the program.
constexpr int SND_ASYNC = 1;

/// Plays a wave file; silent when it cannot be played.
void sndPlaySound(const QString &path, int flags);
