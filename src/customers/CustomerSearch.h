#pragma once

#include <QString>

#include <functional>

class FlexGrid;
class QAbstractButton;

/// The search in a list of customers, as the customers' window and the sale window do it: the first customer from a row
/// on whose name or nick begins with the term becomes the current one. `picked` runs while events do, as a click would.
bool selectCustomer(FlexGrid &list, const QString &term, int row, int column, const std::function<void()> &picked);

/// A search button that goes on to the next match after it found one, and shows which of the two it would do.
class NextMatchButton
{
public:
    explicit NextMatchButton(QAbstractButton &button);

    bool goesOn() const { return m_goesOn; }
    void setGoesOn(bool goesOn);

private:
    QAbstractButton &m_button;
    bool m_goesOn = false;
};
