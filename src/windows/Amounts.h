#pragma once

#include <QString>

class TextBox;

/// An amount as it is shown and stored: "####0.00".
QString amountText(double value);

/// A text that is a number, as "####0.00"; any other text comes back as it is.
QString amountText(const QString &text);

/// The number of an amount as it is shown: rounded to its two places. The text form raises for what is no number.
double shownAmount(double value);
double shownAmount(const QString &text);

/// The currency symbol in force, a blank, and the amount.
QString withSymbol(double value);

/// The same as receipts write it, with thousands apart.
QString receiptAmount(double value);

/// A text with each blank replaced by "0".
QString blanksAsZeros(QString text);

/// Does the same to a box. Its text is left alone when it holds no blank, because setting one fires the box's Change.
void replaceBlanks(TextBox &box);

/// What the change shows when there is none: the symbol and three zeros, without a decimal separator. That stays.
QString noChangeText();
