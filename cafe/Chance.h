#pragma once

#include <QtGlobal>

/// A number from 0 to `count` - 1 that looks drawn and is always the same for one row and purpose.
inline qsizetype drawn(quint64 row, quint64 purpose, qsizetype count)
{
    // The mixing steps of SplitMix64.
    quint64 mix = (row + 1) * 0x9E3779B97F4A7C15U + purpose * 0xD1B54A32D192ED03U;
    mix = (mix ^ (mix >> 30)) * 0xBF58476D1CE4E5B9U;
    mix = (mix ^ (mix >> 27)) * 0x94D049BB133111EBU;
    mix ^= mix >> 31;
    return static_cast<qsizetype>(mix % static_cast<quint64>(count));
}
