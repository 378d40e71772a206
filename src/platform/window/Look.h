#pragma once

#include <QColor>

class QApplication;
class QGroupBox;
class QPalette;
class QWidget;

/// Gives the program its look. Designer's dynamic properties ask for its few accents: `primary` on the button that
/// completes a task, `total` on a label that shows an amount from afar, `quiet` on secondary text, `link` on a text
/// that can be clicked, `warning` on one that wants attention.
void applyLook(QApplication &application);

/// The colours of a light or a dark desktop. Mid is a border, Dark a border of something to type in, Light a card.
QPalette lookPalette(bool dark);

/// What a card tells at a glance.
enum class CardState
{
    Resting,
    Attention, ///< what stands here is out of the ordinary
    Editing,   ///< a stored record is being changed
    Locked,    ///< nothing can be changed now
};

void setCardState(QGroupBox &card, CardState state);
CardState cardState(const QWidget *card);

struct CardColours
{
    QColor fill;
    QColor border;
};
CardColours cardColours(CardState state, const QPalette &palette);

/// Sets or clears `warning` on a widget that is on screen already.
void setWarning(QWidget &widget, bool warning);
