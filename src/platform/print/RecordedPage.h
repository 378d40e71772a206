#pragma once

#include <QFont>
#include <QList>
#include <QRectF>
#include <QString>

/// Twips to a point and to an inch.
constexpr int twipsPerPoint = 20;
constexpr int twipsPerInch = 1440;

/// A text at a place, in twips from the sheet's upper left corner; the place is the text's upper left corner. The font
/// is measured in twips too: its pixels are twips.
struct RecordedText
{
    QPointF place;
    QString text;
    QFont font;
};

/// A filled box, in twips.
struct RecordedBox
{
    QRectF box;
};

/// What stands on one sheet, kept until the document ends.
struct RecordedPage
{
    QList<RecordedText> texts;
    QList<RecordedBox> boxes;
    bool started = false;

    bool isEmpty() const { return !started && texts.isEmpty() && boxes.isEmpty(); }
};
