#pragma once

#include <QHeaderView>

/// The headings of a FlexGrid, with the picture of a heading at its right end.
class FlexGridHeadings : public QHeaderView
{
    Q_OBJECT

public:
    explicit FlexGridHeadings(QWidget *parent);

    /// What the picture of a heading takes of its width.
    int pictureRoom(int col) const;

protected:
    void initStyleOptionForIndex(QStyleOptionHeader *option, int logicalIndex) const override;
    void paintSection(QPainter *painter, const QRect &rect, int logicalIndex) const override;

private:
    QPixmap picture(int col) const;
};
