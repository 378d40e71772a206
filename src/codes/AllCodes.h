#pragma once

#include <QString>

// The barcodes as texts of digits: each digit is the width of one element in modules, bars and spaces in turn, a bar
// first. A character that a code doesn't know is skipped.

/// Code 39: capitals, digits and a few signs, with a gap of one module behind each character; no check digit.
QString Codigo_39(const QString &texto);

/// Code 128 in its set B throughout.
QString Codigo_128(const QString &texto);
/// Whether it knows every character of the text. Where it doesn't, a reader takes the bars for another text or, as the
/// check character counts what was skipped, for none.
bool code128Has(const QString &texto);

/// Interleaved 2 of 5: two digits share their elements, the bars being the first one's. It takes 21 digits at most.
QString Codigo_2de5(const QString &texto);

/// Codabar between the start and the stop character A; no check digit.
QString Codigo_Codabar(const QString &texto);
