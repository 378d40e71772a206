#include "platform/base/Patience.h"

#include "platform/base/LongWork.h"

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <random>
#include <thread>

namespace {
using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds patienceInAll{15};
/// Who waits after so long a pause works on something new, even where no press was seen: a screen reader presses too.
constexpr std::chrono::seconds pauseThatRenews{5};
constexpr int longestStepMilliseconds = 15;

bool pressesAreCounted = false;
Clock::duration spent{};
Clock::time_point lastWait;

/// The steps differ from terminal to terminal, so that two of them do not keep meeting at the same lock.
std::chrono::milliseconds stepBefore(int attempt)
{
    static std::minstd_rand chance(static_cast<unsigned>(::getpid()));
    const int longest = std::min(longestStepMilliseconds, attempt + 2);
    return std::chrono::milliseconds(std::uniform_int_distribution<int>(1, longest)(chance));
}

void spendUntil(Clock::time_point now)
{
    spent += now - lastWait;
    lastWait = now;
}
} // namespace

void Patience::renew()
{
    pressesAreCounted = true;
    spent = {};
}

bool Patience::waitForOthers(int attempt)
{
    const Clock::time_point now = Clock::now();
    if (attempt == 0) {
        if (!pressesAreCounted || now - lastWait > pauseThatRenews)
            spent = {};
        lastWait = now;
    }
    // The tries between the sleeps count too: over a network they take their time.
    spendUntil(now);
    if (spent >= patienceInAll)
        return false;
    std::this_thread::sleep_for(stepBefore(attempt));
    LongWork::goOn(LongWork::Life::Waits);
    spendUntil(Clock::now());
    return true;
}
