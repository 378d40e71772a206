#pragma once

#include <QtGlobal>

#include <functional>

/// A routine that may take long. Whatever works inside it says with `goOn` that it does, however often: the sign of
/// life follows the clock, not the calls. It lets no events run, so that nobody can change what the routine works on.
class LongWork
{
public:
    LongWork();
    ~LongWork();
    Q_DISABLE_COPY_MOVE(LongWork)

    enum class Life
    {
        Works,
        Waits, ///< for others, see `Patience`: time enough to draw what is behind the sign, too
        Ended
    };
    static void goOn(Life life = Life::Works);

    /// What draws the sign's next picture, or takes it away when the work has ended.
    using Sign = std::function<void(Life life)>;
    static void setSign(const Sign &sign);
};
