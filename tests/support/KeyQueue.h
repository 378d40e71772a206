#pragma once

#include <QString>

/// Keys as the window system queues them for the window that has the keyboard, each with a time stamp of its own.
/// Nothing runs before they arrive, all together, as keys do that waited behind a busy window.
class KeyQueue
{
public:
    /// `gap` is the time since the key before, in milliseconds.
    KeyQueue &press(Qt::Key key, int gap, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString &text = {},
                    bool repeats = false);
    /// Characters, and Enter for a line end.
    KeyQueue &type(const QString &characters, int gap);
    void arrive();
};

/// A scanner reads a code, ended by Enter.
void scan(const QString &code, int gap = 20);
