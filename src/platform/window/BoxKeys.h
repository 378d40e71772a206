#pragma once

#include "platform/window/Forms.h"
#include "platform/window/KeyCodes.h"
#include "platform/window/TextBox.h"

#include <QWidget>

/// Enter in a box moves on to the next control.
template <typename Box>
void enterMovesTo(Box *box, QWidget *next)
{
    QObject::connect(box, &Box::KeyPress, next, [next](int &KeyAscii) {
        if (KeyAscii == vbKeyReturn)
            next->setFocus();
    });
}

/// The same through any number of controls.
template <typename Box, typename Next, typename... Rest>
void enterLeadsThrough(Box *box, Next *next, Rest *...rest)
{
    enterMovesTo(box, next);
    if constexpr (sizeof...(rest) > 0)
        enterLeadsThrough(next, rest...);
}

/// The whole text is selected when the attendant enters the box.
template <typename Box>
void selectOnEntry(Box *box)
{
    QObject::connect(box, &Box::GotFocus, box, [box] {
        DoEvents(WaitingInput::Stays);
        box->selectAll();
        DoEvents(WaitingInput::Stays);
    });
}

/// Nothing is typed into a list: keys but Enter are dropped, and the entry can't be deleted.
template <typename Combo>
void takesEntriesOnly(Combo *combo)
{
    QObject::connect(combo, &Combo::KeyPress, combo, [](int &KeyAscii) {
        if (KeyAscii != vbKeyReturn)
            KeyAscii = 0;
    });
    QObject::connect(combo, &Combo::KeyDown, combo, [](int &KeyCode) {
        if (KeyCode == vbKeyBack || KeyCode == vbKeyDelete)
            KeyCode = 0;
    });
}

/// Lets digits and Backspace through.
inline void keepDigits(int &KeyAscii)
{
    if ((KeyAscii < '0' || KeyAscii > '9') && KeyAscii != vbKeyBack)
        KeyAscii = 0;
}

/// After each change the caret stands behind the last character, wherever the keyboard is.
inline void caretToEndOnChange(TextBox *box)
{
    QObject::connect(box, &TextBox::Change, box, [box] {
        DoEvents(WaitingInput::Stays);
        box->end(false);
    });
}
