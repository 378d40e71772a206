#include "platform/print/PagePainter.h"

#include "platform/base/LongWork.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>

namespace {

void paintPage(const RecordedPage &page, QPainter &painter)
{
    QFont font;
    qreal ascent = 0;
    bool fontSet = false;
    for (const RecordedText &each : page.texts) {
        if (!fontSet || each.font != font) {
            font = each.font;
            ascent = QFontMetricsF(font).ascent();
            painter.setFont(font);
            fontSet = true;
        }
        painter.drawText(each.place + QPointF(0, ascent), each.text);
    }
    // In one stroke: filled one by one, each box would set pen and brush anew.
    QList<QRectF> boxes;
    boxes.reserve(page.boxes.size());
    for (const RecordedBox &each : page.boxes)
        boxes.append(each.box);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawRects(boxes);
}

} // namespace

bool paintPages(const QList<RecordedPage> &pages, QPdfWriter &sheets, const QTransform &placing)
{
    QPainter painter;
    if (!painter.begin(&sheets))
        return false;
    bool first = true;
    for (const RecordedPage &page : pages) {
        LongWork::goOn();
        if (!first && !sheets.newPage())
            return false;
        first = false;
        painter.save();
        const qreal scale = qreal(sheets.resolution()) / twipsPerInch;
        painter.scale(scale, scale);
        painter.setTransform(placing, true);
        paintPage(page, painter);
        painter.restore();
    }
    return painter.end();
}
