#include "platform/base/LongWork.h"

#include <QElapsedTimer>

namespace {
constexpr qint64 firstAfterMilliseconds = 500;
constexpr qint64 nextAfterMilliseconds = 100;

LongWork::Sign shownBy;
QElapsedTimer elapsed;
qint64 due = 0;
int depth = 0;
} // namespace

LongWork::LongWork()
{
    if (depth++ > 0)
        return;
    elapsed.start();
    due = firstAfterMilliseconds;
}

LongWork::~LongWork()
{
    if (--depth == 0 && due > firstAfterMilliseconds && shownBy)
        shownBy(Life::Ended);
}

void LongWork::goOn(Life life)
{
    if (depth == 0 || elapsed.elapsed() < due)
        return;
    if (shownBy)
        shownBy(life);
    due = elapsed.elapsed() + nextAfterMilliseconds;
}

void LongWork::setSign(const Sign &sign)
{
    shownBy = sign;
}
