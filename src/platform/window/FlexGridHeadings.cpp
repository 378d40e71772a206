#include "platform/window/FlexGridHeadings.h"

#include "platform/window/FlexGridModel.h"

#include <QPainter>
#include <QStyleOptionHeader>

namespace {
constexpr int pictureMargin = 4;
}

FlexGridHeadings::FlexGridHeadings(QWidget *parent) : QHeaderView(Qt::Horizontal, parent)
{
    setSectionsClickable(true);
    setHighlightSections(false);
    setStretchLastSection(true);
}

QPixmap FlexGridHeadings::picture(int col) const
{
    return static_cast<const FlexGridModel *>(model())->picture(0, col);
}

void FlexGridHeadings::initStyleOptionForIndex(QStyleOptionHeader *option, int logicalIndex) const
{
    QHeaderView::initStyleOptionForIndex(option, logicalIndex);
    option->text = option->text.trimmed();
    if (const QPixmap mark = picture(logicalIndex); !mark.isNull()) {
        const int room = option->rect.width() - int(mark.deviceIndependentSize().width()) - 3 * pictureMargin;
        option->text = option->fontMetrics.elidedText(option->text, Qt::ElideRight, room);
    }
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
