#pragma once

#include "platform/window/FlexGrid.h"
#include "platform/window/Form.h"
#include "tests/support/Story.h"

#include <QComboBox>

// What an attendant does with hand and keyboard, through real events.

/// A loaded window by its name; the test ends when there is none.
Form &loadedWindow(const QString &name, const Place &where = Place::current());

/// A control of a window by its name; the test ends when there is none of this kind.
template <typename Control = QWidget>
Control &control(const QWidget &window, const QString &name, const Place &where = Place::current())
{
    if (auto *found = window.findChild<Control *>(name))
        return *found;
    endStory(window.objectName() + " has no such control: " + name, where);
}

void click(QWidget &control);
inline void click(const QWidget &window, const QString &name, const Place &where = Place::current())
{
    click(control(window, name, where));
}

void pressKey(QWidget &control, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// Types at the caret, key by key.
void typeText(QWidget &control, const QString &text);
/// Selects what stands in the box and types over it; an empty text deletes it.
void replaceText(QWidget &control, const QString &text);
/// Types over what stands in the box, and presses Enter.
void enterText(QWidget &control, const QString &text);

/// Names a product in the sale window, by its description or its code, and how many of it.
void putIntoCart(const QWidget &sale, const QString &product, const QString &quantity);

/// Drops the list down and takes an entry.
void pickEntry(QComboBox &combo, const QString &entry, const Place &where = Place::current());

/// Clicks a cell; rows count from 1.
void clickCell(FlexGrid &grid, int row, int col, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
