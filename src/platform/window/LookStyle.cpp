#include "platform/window/LookStyle.h"

#include "platform/window/Look.h"
#include "platform/window/Pictures.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyleOption>

#include <algorithm>

namespace {

constexpr qreal radius = 5;
constexpr qreal listRadius = 3;
constexpr qreal cardRadius = 8;
constexpr int memoMargin = 5;
constexpr int slimBar = 6;
constexpr int cardMargin = 15;
constexpr int titleDrop = 5;
constexpr int stateStripe = 4;
constexpr QSize statePicture(16, 16);
constexpr qreal totalScale = 1.7;

bool asks(const QWidget *widget, const char *property)
{
    return widget && widget->property(property).toBool();
}

/// The font of a card's title.
QFont boldTitle(QFont font)
{
    font.setBold(true);
    return font;
}

bool isPrimary(const QStyleOption *option, const QWidget *widget)
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
    // In a window of the program every button with the keyboard is the default one, and has its focus to show for it.
    const bool inDialog = widget && qobject_cast<const QDialog *>(widget->window());
    return asks(widget, "primary") || (inDialog && button && button->features & QStyleOptionButton::DefaultButton);
}

QColor mixed(const QColor &one, const QColor &other, qreal share)
{
    const auto mix = [share](int a, int b) { return qRound(a + (b - a) * share); };
    return {mix(one.red(), other.red()), mix(one.green(), other.green()), mix(one.blue(), other.blue())};
}

/// A rounded box whose border lies inside the rectangle.
void drawBox(QPainter *painter, const QRect &rect, qreal rounding, const QColor &fill, const QColor &border,
             qreal width = 1)
{
    const qreal inset = width / 2;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(fill);
    painter->setPen(QPen(border, width));
    painter->drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), rounding, rounding);
    painter->restore();
}

/// A box that takes the focus: a ring in the accent's colour.
void drawField(QPainter *painter, const QStyleOption *option, const QColor &fill, qreal rounding = radius)
{
    const bool focused = option->state & QStyle::State_HasFocus && option->state & QStyle::State_Enabled;
    drawBox(painter, option->rect, rounding, fill, option->palette.color(focused ? QPalette::Link : QPalette::Dark),
            focused ? 2 : 1);
}

/// A card's state shows in its colour, in a stripe at its left, and in a picture for those who don't see colours.
void drawCard(QPainter *painter, const QStyleOption *option, const QWidget *widget)
{
    const CardState state = cardState(widget);
    const CardColours colours = cardColours(state, option->palette);
    drawBox(painter, option->rect, cardRadius, colours.fill, colours.border);
    if (state == CardState::Resting)
        return;
    const QRect stripe(option->rect.topLeft(), QSize(stateStripe, option->rect.height()));
    painter->save();
    painter->setClipRect(stripe);
    drawBox(painter, option->rect, cardRadius, colours.border, colours.border);
    painter->restore();
    const QString picture = state == CardState::Attention ? "estado_atencao"
                            : state == CardState::Editing ? "estado_edicao"
                                                          : "estado_bloqueado";
    painter->drawPixmap(option->rect.topRight() + QPoint(-cardMargin - statePicture.width(), titleDrop),
                        bundledPicture(picture, statePicture));
}

/// The box of a check box or the circle of an option.
void drawIndicator(QPainter *painter, const QStyleOption *option, bool round)
{
    const QPalette &palette = option->palette;
    const QRect box = option->rect;
    const bool on = option->state & QStyle::State_On;
    const bool hot = option->state & (QStyle::State_MouseOver | QStyle::State_Sunken);
    const QColor accent = palette.color(QPalette::Highlight);
    drawBox(painter, box, round ? box.width() / 2.0 : 3, on ? accent : palette.color(QPalette::Base),
            on || hot ? accent : palette.color(QPalette::Dark));
    if (!on)
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QColor mark = palette.color(QPalette::HighlightedText);
    const QPointF centre = QRectF(box).center();
    if (round) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(mark);
        painter->drawEllipse(centre, 3, 3);
    } else {
        painter->setPen(QPen(mark, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->drawPolyline(
            QPolygonF({centre + QPointF(-3.5, 0.3), centre + QPointF(-1, 2.8), centre + QPointF(3.8, -2.8)}));
    }
    painter->restore();
}

/// A bar without a text is a slim line.
QRect barRect(const QStyleOptionProgressBar &bar)
{
    QRect rect = bar.rect;
    if (!bar.textVisible)
        rect.setHeight(slimBar);
    rect.moveCenter(bar.rect.center());
    return rect;
}

void drawProgress(QPainter *painter, const QStyleOptionProgressBar &bar)
{
    const qreal share = qreal(bar.progress - bar.minimum) / std::max(bar.maximum - bar.minimum, 1);
    const QRect whole = barRect(bar);
    QRect filled = whole;
    filled.setWidth(qRound(whole.width() * std::clamp(share, 0.0, 1.0)));
    if (bar.invertedAppearance)
        filled.moveRight(whole.right());
    const QColor accent = bar.palette.color(QPalette::Highlight);
    if (!filled.isEmpty())
        drawBox(painter, filled, std::min(radius, filled.height() / 2.0), accent, accent);
}

/// A sign of a message box: a filled disc with a letter.
QIcon signIcon(QChar letter, const QColor &colour)
{
    constexpr int side = 40;
    QPixmap pixmap(QSize(side, side) * qApp->devicePixelRatio());
    pixmap.setDevicePixelRatio(qApp->devicePixelRatio());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    drawBox(&painter, {0, 0, side, side}, side / 2.0, colour, colour);
    QFont font = QApplication::font();
    font.setPixelSize(side * 3 / 5);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRect(0, 0, side, side), Qt::AlignCenter, letter);
    return pixmap;
}

QColor buttonColour(const QStyleOption *option, bool primary)
{
    const QPalette &palette = option->palette;
    const QColor resting = palette.color(primary ? QPalette::Highlight : QPalette::Button);
    const QColor ink = palette.color(primary ? QPalette::HighlightedText : QPalette::ButtonText);
    if (!(option->state & QStyle::State_Enabled))
        return palette.color(QPalette::Button);
    if (option->state & (QStyle::State_Sunken | QStyle::State_On))
        return mixed(resting, primary ? QColor(Qt::black) : ink, 0.16);
    if (option->state & QStyle::State_MouseOver)
        return mixed(resting, primary ? QColor(Qt::black) : ink, 0.07);
    return resting;
}

void drawButton(QPainter *painter, const QStyleOption *option, const QWidget *widget)
{
    const bool enabled = option->state & QStyle::State_Enabled;
    const bool primary = isPrimary(option, widget);
    const QColor fill = buttonColour(option, primary);
    const bool focused = enabled && option->state & QStyle::State_HasFocus;
    drawBox(painter, option->rect, radius, fill,
            focused              ? option->palette.color(QPalette::Link)
            : primary && enabled ? fill
                                 : option->palette.color(QPalette::Dark),
            focused ? 2 : 1);
    if (focused && primary)
        drawBox(painter, option->rect.adjusted(2, 2, -2, -2), radius - 2, fill,
                option->palette.color(QPalette::HighlightedText));
}

/// Flat, as the base style's handle can hardly be told from its groove.
void drawScrollBar(QPainter *painter, const QStyleOption *option, const QRect &handle)
{
    const QColor colour = option->palette.color(QPalette::Dark);
    painter->fillRect(option->rect, option->palette.color(QPalette::Window));
    drawBox(painter, handle.adjusted(3, 3, -3, -3), radius, colour, colour);
}

void drawChevron(QPainter *painter, const QRect &rect, const QColor &colour)
{
    const QPointF centre = QRectF(rect).center();
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(colour, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPolyline(QPolygonF({centre + QPointF(-4, -2), centre + QPointF(0, 2), centre + QPointF(4, -2)}));
    painter->restore();
}

} // namespace

LookStyle::LookStyle() : QProxyStyle("fusion") {}

void LookStyle::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    if (auto *label = qobject_cast<QLabel *>(widget)) {
        if (asks(label, "total")) {
            QFont font = QApplication::font();
            font.setPointSizeF(font.pointSizeF() * totalScale);
            font.setBold(true);
            label->setFont(font);
        }
        const bool warning = asks(label, "warning");
        if (warning != (label->foregroundRole() == QPalette::BrightText)) {
            QFont font = label->font();
            font.setBold(warning);
            label->setFont(font);
        }
        label->setForegroundRole(warning                ? QPalette::BrightText
                                 : asks(label, "quiet") ? QPalette::PlaceholderText
                                 : asks(label, "link")  ? QPalette::Link
                                                        : QPalette::WindowText);
    }
    // Its frame shows the focus, which repaints the viewport alone.
    if (qobject_cast<QAbstractScrollArea *>(widget))
        widget->installEventFilter(this);
    if (auto *memo = qobject_cast<QPlainTextEdit *>(widget)) {
        // As round as a line of text, and its words begin where a line's do.
        memo->viewport()->setAutoFillBackground(false);
        memo->document()->setDocumentMargin(memoMargin);
    }
    if (qobject_cast<QComboBox *>(widget))
        widget->setAttribute(Qt::WA_Hover);
}

bool LookStyle::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        static_cast<QWidget *>(watched)->update();
    return QProxyStyle::eventFilter(watched, event);
}

int LookStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    switch (metric) {
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
        return 8;
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
        return 12;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return 16;
    case PM_FocusFrameHMargin:
        return 5;
    case PM_HeaderMargin:
        // Above the texts of the column, which leave a pixel more.
        return 6;
    case PM_DefaultFrameWidth:
        // Room for the ring inside the frame of lists and multi-line boxes.
        return qobject_cast<const QAbstractScrollArea *>(widget) ? 2 : QProxyStyle::pixelMetric(metric, option, widget);
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int LookStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                         QStyleHintReturn *returnData) const
{
    switch (hint) {
    case SH_EtchDisabledText:
    // A wheel that scrolls a window must not change what passes under it.
    case SH_ComboBox_AllowWheelScrolling:
    case SH_DialogButtonBox_ButtonsHaveIcons:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

QSize LookStyle::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                                  const QWidget *widget) const
{
    QSize wanted = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (type == CT_PushButton || type == CT_LineEdit || type == CT_ComboBox)
        wanted.setHeight(std::max(wanted.height(), option->fontMetrics.height() + 12));
    if (type == CT_PushButton)
        wanted.rwidth() += 12;
    if (type == CT_GroupBox) {
        // The bold title, whose width the box itself doesn't know, must not be cut.
        const QString &title = static_cast<const QStyleOptionGroupBox *>(option)->text;
        const int width = QFontMetrics(boldTitle(widget->font())).horizontalAdvance(title) + 2 * cardMargin;
        wanted.setWidth(std::max(wanted.width(), width));
    }
    return wanted;
}

QRect LookStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl subControl,
                                const QWidget *widget) const
{
    const QRect rect = QProxyStyle::subControlRect(control, option, subControl, widget);
    // The text of an editable combo box must leave the ring to the box.
    if (control == CC_ComboBox && subControl == SC_ComboBoxEditField)
        return rect.adjusted(2, 0, -2, 0);
    if (control == CC_GroupBox) {
        switch (subControl) {
        case SC_GroupBoxLabel:
            // Half as wide again, as the title is bold.
            return QRect(rect.topLeft() + QPoint(cardMargin, titleDrop), QSize(rect.width() * 3 / 2, rect.height()));
        case SC_GroupBoxCheckBox:
            return rect.translated(cardMargin, titleDrop);
        case SC_GroupBoxContents:
            return static_cast<const QStyleOptionGroupBox *>(option)->text.isEmpty()
                       ? rect
                       : rect.adjusted(0, titleDrop, 0, 0);
        default:
            break;
        }
    }
    return rect;
}

QRect LookStyle::subElementRect(SubElement element, const QStyleOption *option, const QWidget *widget) const
{
    const QRect rect = QProxyStyle::subElementRect(element, option, widget);
    const bool inCombo = widget && qobject_cast<QComboBox *>(widget->parentWidget());
    return element == SE_LineEditContents && !inCombo ? rect.adjusted(4, 0, -4, 0) : rect;
}

QIcon LookStyle::standardIcon(StandardPixmap icon, const QStyleOption *option, const QWidget *widget) const
{
    const QColor accent = QApplication::palette().color(QPalette::Highlight);
    switch (icon) {
    case SP_MessageBoxQuestion:
        return signIcon('?', accent);
    case SP_MessageBoxInformation:
        return signIcon('i', accent);
    case SP_MessageBoxWarning:
        return signIcon('!', QColor::fromRgb(0x9c5b00));
    case SP_MessageBoxCritical:
        return signIcon('!', QColor::fromRgb(0xb3261e));
    default:
        return QProxyStyle::standardIcon(icon, option, widget);
    }
}

void LookStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                              const QWidget *widget) const
{
    switch (element) {
    case PE_PanelButtonCommand:
        drawButton(painter, option, widget);
        return;
    case PE_PanelLineEdit:
        if (const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option); frame && frame->lineWidth > 0)
            drawField(painter, option, option->palette.color(QPalette::Base));
        return;
    case PE_FrameGroupBox:
        drawCard(painter, option, widget);
        return;
    case PE_Frame:
        if (qobject_cast<const QAbstractScrollArea *>(widget)) {
            drawField(painter, option, option->palette.color(QPalette::Base),
                      qobject_cast<const QPlainTextEdit *>(widget) ? radius : listRadius);
            return;
        }
        drawBox(painter, option->rect, 0, Qt::transparent, option->palette.color(QPalette::Mid));
        return;
    case PE_IndicatorCheckBox:
    case PE_IndicatorRadioButton:
        drawIndicator(painter, option, element == PE_IndicatorRadioButton);
        return;
    case PE_FrameFocusRect:
        // These draw a ring of their own.
        if (qobject_cast<const QPushButton *>(widget) || qobject_cast<const QComboBox *>(widget) ||
            qobject_cast<const QAbstractScrollArea *>(widget))
            return;
        break;
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void LookStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                            const QWidget *widget) const
{
    if (element == CE_PushButtonLabel && isPrimary(option, widget) && option->state & State_Enabled) {
        QStyleOptionButton primary(*qstyleoption_cast<const QStyleOptionButton *>(option));
        primary.palette.setColor(QPalette::ButtonText, option->palette.color(QPalette::HighlightedText));
        QProxyStyle::drawControl(element, &primary, painter, widget);
        return;
    }
    if (element == CE_HeaderSection) {
        painter->fillRect(option->rect, buttonColour(option, false));
        painter->setPen(option->palette.color(QPalette::Mid));
        painter->drawLine(option->rect.bottomLeft(), option->rect.bottomRight());
        painter->drawLine(option->rect.topRight() + QPoint(0, 5), option->rect.bottomRight() - QPoint(0, 5));
        return;
    }
    const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
    if (element == CE_ShapedFrame && frame && frame->frameShape == QFrame::HLine) {
        painter->fillRect(QRect(option->rect.left(), option->rect.center().y(), option->rect.width(), 1),
                          option->palette.color(QPalette::Mid));
        return;
    }
    const auto *bar = qstyleoption_cast<const QStyleOptionProgressBar *>(option);
    if (bar && element == CE_ProgressBarGroove) {
        drawBox(painter, barRect(*bar), bar->textVisible ? radius : slimBar / 2.0,
                option->palette.color(QPalette::Base), option->palette.color(QPalette::Mid));
        return;
    }
    if (bar && element == CE_ProgressBarContents) {
        drawProgress(painter, *bar);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void LookStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                                   const QWidget *widget) const
{
    if (const auto *combo = qstyleoption_cast<const QStyleOptionComboBox *>(option); combo && control == CC_ComboBox) {
        drawField(painter, option,
                  combo->editable ? option->palette.color(QPalette::Base) : buttonColour(option, false));
        drawChevron(painter, proxy()->subControlRect(control, option, SC_ComboBoxArrow, widget),
                    option->palette.color(QPalette::ButtonText));
        return;
    }
    if (control == CC_ScrollBar) {
        drawScrollBar(painter, option, proxy()->subControlRect(control, option, SC_ScrollBarSlider, widget));
        return;
    }
    painter->save();
    if (control == CC_GroupBox)
        painter->setFont(boldTitle(painter->font()));
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    painter->restore();
}
