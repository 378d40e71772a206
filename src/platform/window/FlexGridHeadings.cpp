#include "platform/window/FlexGridHeadings.h"

#include "platform/window/FlexGridModel.h"

#include <QPainter>
#include <QStyleOptionHeader>

namespace {
constexpr int pictureMargin = 4;
constexpr int leastWidth = 16;
} // namespace

FlexGridHeadings::FlexGridHeadings(QWidget *parent) : QHeaderView(Qt::Horizontal, parent)
{
    setSectionsClickable(true);
    setHighlightSections(false);
    // A column of two digits is narrower than the style would have it.
    setMinimumSectionSize(leastWidth);
}

QPixmap FlexGridHeadings::picture(int col) const
{
    return static_cast<const FlexGridModel *>(model())->picture(0, col);
}

int FlexGridHeadings::pictureRoom(int col) const
{
    const QPixmap mark = picture(col);
    return mark.isNull() ? 0 : int(mark.deviceIndependentSize().width()) + 3 * pictureMargin;
}

void FlexGridHeadings::initStyleOptionForIndex(QStyleOptionHeader *option, int logicalIndex) const
{
    QHeaderView::initStyleOptionForIndex(option, logicalIndex);
    option->text = option->text.trimmed();
    if (const int taken = pictureRoom(logicalIndex); taken > 0)
        option->text = option->fontMetrics.elidedText(option->text, Qt::ElideRight, option->rect.width() - taken);
}

void FlexGridHeadings::paintSection(QPainter *painter, const QRect &rect, int logicalIndex) const
{
    // The style leaves an empty clip behind.
    painter->save();
    QHeaderView::paintSection(painter, rect, logicalIndex);
    painter->restore();
    const QPixmap mark = picture(logicalIndex);
    if (mark.isNull())
        return;
    const QSizeF size = mark.deviceIndependentSize();
    painter->drawPixmap(
        QPointF(rect.right() - pictureMargin - size.width(), rect.center().y() + 0.5 - size.height() / 2), mark);
}
