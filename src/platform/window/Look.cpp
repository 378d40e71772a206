#include "platform/window/Look.h"

#include "platform/window/LookStyle.h"

#include <QApplication>
#include <QGroupBox>
#include <QPalette>

namespace {

struct Colour
{
    QPalette::ColorRole role;
    QRgb light;
    QRgb dark;
};

constexpr Colour colours[] = {
    {QPalette::Window, 0xf3f5f8, 0x1e2226},      {QPalette::WindowText, 0x1d2733, 0xe6eaee},
    {QPalette::Base, 0xffffff, 0x15181b},        {QPalette::AlternateBase, 0xf1f5f9, 0x1b1f23},
    {QPalette::Text, 0x1d2733, 0xe6eaee},        {QPalette::PlaceholderText, 0x566270, 0xa3aeb9},
    {QPalette::Button, 0xffffff, 0x33393f},      {QPalette::ButtonText, 0x1d2733, 0xe6eaee},
    {QPalette::Highlight, 0x1f66ad, 0x2b6cb0},   {QPalette::HighlightedText, 0xffffff, 0xffffff},
    {QPalette::Light, 0xffffff, 0x262b30},       {QPalette::Midlight, 0xe4e9ef, 0x31373d},
    {QPalette::Mid, 0xccd4dd, 0x434a52},         {QPalette::Dark, 0x808c9a, 0x7a8591},
    {QPalette::Shadow, 0x3c4650, 0x000000},      {QPalette::Link, 0x1f66ad, 0x7db6ef},
    {QPalette::LinkVisited, 0x5b4b9a, 0xb7a6f2}, {QPalette::BrightText, 0x9c3300, 0xffb27d},
    {QPalette::ToolTipBase, 0xffffff, 0x33393f}, {QPalette::ToolTipText, 0x1d2733, 0xe6eaee},
};

constexpr Colour disabledColours[] = {
    {QPalette::WindowText, 0x5c6874, 0x9aa4ae},    {QPalette::Text, 0x5c6874, 0x9aa4ae},
    {QPalette::ButtonText, 0x5c6874, 0x9aa4ae},    {QPalette::Base, 0xeef1f4, 0x1e2226},
    {QPalette::AlternateBase, 0xeef1f4, 0x1e2226}, {QPalette::Button, 0xeef1f4, 0x262b30},
    {QPalette::Highlight, 0xb9c3ce, 0x4a525a},     {QPalette::HighlightedText, 0x3f4a56, 0xc5ccd3},
    {QPalette::Dark, 0xc3ccd5, 0x4a525a},
};

struct StateColour
{
    CardState state;
    QRgb lightFill;
    QRgb lightBorder;
    QRgb darkFill;
    QRgb darkBorder;
};

constexpr StateColour stateColours[] = {
    {CardState::Attention, 0xfff4e0, 0xb86e00, 0x3a2d17, 0xe0a04a},
    {CardState::Editing, 0xeaf3fc, 0x1f66ad, 0x1c2d3f, 0x6fb0ee},
    {CardState::Locked, 0xe6eaee, 0x6b7783, 0x33393f, 0x8d97a1},
};

const char *const stateProperty = "cardState";

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

} // namespace

QPalette lookPalette(bool dark)
{
    QPalette palette;
    for (const Colour &each : colours)
        palette.setColor(each.role, QColor::fromRgb(dark ? each.dark : each.light));
    for (const Colour &each : disabledColours)
        palette.setColor(QPalette::Disabled, each.role, QColor::fromRgb(dark ? each.dark : each.light));
    return palette;
}

void applyLook(QApplication &application)
{
    const bool dark = isDark(QGuiApplication::palette());
    application.setStyle(new LookStyle);
    application.setPalette(lookPalette(dark));
}

void setCardState(QGroupBox &card, CardState state)
{
    card.setProperty(stateProperty, static_cast<int>(state));
    card.update();
}

CardState cardState(const QWidget *card)
{
    return card ? static_cast<CardState>(card->property(stateProperty).toInt()) : CardState::Resting;
}

CardColours cardColours(CardState state, const QPalette &palette)
{
    const bool dark = isDark(palette);
    for (const StateColour &each : stateColours)
        if (each.state == state)
            return {QColor::fromRgb(dark ? each.darkFill : each.lightFill),
                    QColor::fromRgb(dark ? each.darkBorder : each.lightBorder)};
    return {palette.color(QPalette::Light), palette.color(QPalette::Mid)};
}

void setWarning(QWidget &widget, bool warning)
{
    if (widget.property("warning").toBool() == warning)
        return;
    widget.setProperty("warning", warning);
    widget.style()->polish(&widget);
}
