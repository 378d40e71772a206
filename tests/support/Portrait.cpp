#include "tests/support/Portrait.h"

#include <QPainter>
#include <QRandomGenerator>

#include <algorithm>

QImage portrait(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size.width() / 100.0, size.height() / 100.0);
    QLinearGradient wall(0, 0, 100, 100);
    wall.setColorAt(0, QColor(226, 220, 205));
    wall.setColorAt(1, QColor(150, 158, 165));
    painter.fillRect(QRectF(0, 0, 100, 100), wall);
    painter.setPen(Qt::NoPen);
    const auto shaded = [](QPointF light, qreal reach, const QColor &colour) {
        QRadialGradient gradient(light, reach);
        gradient.setColorAt(0, colour.lighter(120));
        gradient.setColorAt(1, colour.darker(140));
        return gradient;
    };
    painter.setBrush(shaded({40, 80}, 45, QColor(60, 90, 150)));
    painter.drawEllipse(QPointF(50, 108), 38, 36);
    painter.setBrush(shaded({46, 68}, 14, QColor(205, 155, 125)));
    painter.drawRoundedRect(QRectF(43, 58, 14, 20), 6, 6);
    painter.setBrush(shaded({48, 28}, 26, QColor(60, 42, 34)));
    painter.drawEllipse(QPointF(50, 38), 21, 27);
    painter.setBrush(shaded({45, 40}, 24, QColor(222, 172, 140)));
    painter.drawEllipse(QPointF(50, 46), 17, 22);
    painter.setBrush(QColor(50, 38, 34));
    painter.drawEllipse(QPointF(43, 43), 1.8, 1.5);
    painter.drawEllipse(QPointF(57, 43), 1.8, 1.5);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(150, 80, 72), 1.4, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(QRectF(43, 50, 14, 9), 200 * 16, 140 * 16);
    painter.end();

    constexpr int grain = 4;
    QRandomGenerator chance(1);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            const int change = chance.bounded(-grain, grain + 1);
            const auto grainy = [change](int part) { return std::clamp(part + change, 0, 255); };
            image.setPixel(x, y, qRgb(grainy(qRed(pixel)), grainy(qGreen(pixel)), grainy(qBlue(pixel))));
        }
    }
    return image;
}
