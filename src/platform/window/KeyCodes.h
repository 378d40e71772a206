#pragma once

#include <functional>

class QInputMethodEvent;
class QKeyEvent;

/// Codes of the keys that the windows look at.
enum KeyCode
{
    vbKeyBack = 8,
    vbKeyReturn = 13,
    vbKeyUp = 38,
    vbKeyDown = 40,
    vbKeyDelete = 46,
};

/// The character code that a key press stands for: 13 for Enter, 8 for Backspace, the character of a printable key; 0
/// for every other key.
int keyAscii(const QKeyEvent &event);

/// The code of a key itself, printable or not: 38 up, 40 down, 46 Delete.
int keyCode(const QKeyEvent &event);

/// A key on its way into a box, as the program may change it. `tell` gets the code and may replace it; `deliver` gets
/// what is left of the key, if anything.
void filterKey(QKeyEvent *event, const std::function<void(int &)> &tell,
               const std::function<void(QKeyEvent *)> &deliver);

/// The same for a character that an input method or a dead key has put together. Longer texts pass as they are.
void filterCommit(QInputMethodEvent *event, const std::function<void(int &)> &tell);
