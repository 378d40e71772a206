#include "platform/media/Sound.h"

#include "platform/base/Machine.h"
#include "platform/files/Paths.h"

void sndPlaySound(const QString &path, int)
{
    Machine::current().playWave(resolveIgnoringCase(path));
}
