#pragma once

#include "platform/window/FlexGrid.h"
#include "platform/window/Form.h"

#include <QComboBox>

// What an attendant does with hand and keyboard, through real events.

/// A loaded window by its name; the program ends when there is none.
Form &loadedWindow(const QString &name);

[[noreturn]] void failForMissingControl(const QWidget &window, const QString &name);

/// A control of a window by its name; the program ends when there is none of this kind.
template <typename Control = QWidget>
Control &control(const QWidget &window, const QString &name)
{
    if (auto *found = window.findChild<Control *>(name))
        return *found;
    failForMissingControl(window, name);
}

void click(QWidget &control);
inline void click(const QWidget &window, const QString &name)
{
    click(control(window, name));
}

void pressKey(QWidget &control, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// Types at the caret, key by key.
void typeText(QWidget &control, const QString &text);
/// Selects what stands in the box and types over it; an empty text deletes it.
void replaceText(QWidget &control, const QString &text);
/// Types over what stands in the box, and presses Enter.
void enterText(QWidget &control, const QString &text);

/// Drops the list down and takes an entry.
void pickEntry(QComboBox &combo, const QString &entry);

/// Clicks a cell; rows count from 1.
void clickCell(FlexGrid &grid, int row, int col, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
