#pragma once

#include "platform/window/Forms.h"
#include "platform/window/KeyCodes.h"

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
