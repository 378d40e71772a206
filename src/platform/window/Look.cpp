#include "platform/window/Look.h"

#include "platform/window/Application.h"
#include "platform/window/LookStyle.h"

#include <QPalette>
#include <QWidget>

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
    {QPalette::WindowText, 0x78838f, 0x858f99},    {QPalette::Text, 0x78838f, 0x858f99},
    {QPalette::ButtonText, 0x78838f, 0x858f99},    {QPalette::Base, 0xeef1f4, 0x1e2226},
    {QPalette::AlternateBase, 0xeef1f4, 0x1e2226}, {QPalette::Button, 0xeef1f4, 0x262b30},
    {QPalette::Highlight, 0xb9c3ce, 0x4a525a},     {QPalette::HighlightedText, 0x3f4a56, 0xc5ccd3},
    {QPalette::Dark, 0xc3ccd5, 0x4a525a},
};

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
    const bool dark = isDarkDesktop();
    application.setStyle(new LookStyle);
    application.setPalette(lookPalette(dark));
}

void setWarning(QWidget &widget, bool warning)
{
    widget.setProperty("warning", warning);
    widget.style()->polish(&widget);
}
