#pragma once

#include <QString>

/// Returns at once and plays beside the program.
constexpr int SND_ASYNC = 1;

/// Plays a wave file; silent when it cannot be played. The flags aren't looked at: SND_ASYNC is all that is asked for.
void sndPlaySound(const QString &path, int flags);
