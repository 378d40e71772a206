#include "platform/print/PagePlacing.h"

#include <QFontMetricsF>

#include <algorithm>

namespace {
/// By the lines' boxes and not by their ink, so that two printouts don't differ for the letters that they begin with.
QRectF drawnArea(const QList<RecordedPage> &pages)
{
    QRectF area;
    for (const RecordedPage &page : pages) {
        for (const RecordedText &each : page.texts) {
            const QFontMetricsF metrics(each.font);
            area |= QRectF(each.place, QSizeF(metrics.horizontalAdvance(each.text), metrics.height()));
        }
        for (const RecordedBox &each : page.boxes)
            area |= each.box;
    }
    return area;
}

/// The smallest step that brings what lies from `begin` to `end` between `low` and `high`; the beginning comes first.
double stepInto(double begin, double end, double low, double high)
{
    return std::max(low - begin, std::min(0.0, high - end));
}
} // namespace

QTransform placeWithin(const QRectF &area, const QList<RecordedPage> &pages, const QRectF &sheet, bool keepsScale)
{
    const QRectF drawn = drawnArea(pages) & sheet;
    if (drawn.isEmpty())
        return {};
    const double scale = keepsScale ? 1 : std::min({1.0, area.width() / drawn.width(), area.height() / drawn.height()});
    const QRectF scaled(drawn.topLeft() * scale, drawn.size() * scale);
    const QTransform placed =
        QTransform::fromTranslate(stepInto(scaled.left(), scaled.right(), area.left(), area.right()),
                                  stepInto(scaled.top(), scaled.bottom(), area.top(), area.bottom()));
    return QTransform::fromScale(scale, scale) * placed;
}
