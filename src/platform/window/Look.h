#pragma once

class QApplication;
class QPalette;
class QWidget;

/// Gives the program its look. Designer's dynamic properties ask for its few accents: `primary` on the button that
/// completes a task, `total` on a label that shows an amount from afar, `quiet` on secondary text, `warning` on a text
/// that wants attention.
void applyLook(QApplication &application);

/// The colours of a light or a dark desktop. Mid is a border, Dark a border of something to type in, Light a card.
QPalette lookPalette(bool dark);

/// Sets or clears `warning` on a widget that is on screen already.
void setWarning(QWidget &widget, bool warning);
