#include "ui/theme.h"

#include <QColor>
#include <QPalette>

#include <algorithm>
#include <cmath>

namespace lodge {

namespace {

double channelLight(Rgb colour, unsigned shift) {
    const double part = static_cast<double>((colour >> shift) & 0xFFU) / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double light(Rgb colour) {
    return 0.2126 * channelLight(colour, 16) + 0.7152 * channelLight(colour, 8)
           + 0.0722 * channelLight(colour, 0);
}

} // namespace

QColor toColor(Rgb colour) { return QColor::fromRgb(colour | 0xFF000000U); }

QPalette paletteOf(const Theme& theme) {
    struct Role {
        QPalette::ColorRole role;
        Rgb Theme::*colour;
    };
    // Paper, the tint of the row in hand, second ink and the colour of refusals have no role of their own in
    // the toolkit; own widgets find them under the four last ones.
    constexpr std::array<Role, 19> roles = {{
        {QPalette::Window, &Theme::ground},
        {QPalette::WindowText, &Theme::ink},
        {QPalette::Base, &Theme::field},
        {QPalette::AlternateBase, &Theme::band},
        {QPalette::Text, &Theme::ink},
        {QPalette::Button, &Theme::chrome},
        {QPalette::ButtonText, &Theme::ink},
        {QPalette::PlaceholderText, &Theme::ink3},
        {QPalette::Mid, &Theme::rule},
        {QPalette::Dark, &Theme::edge},
        {QPalette::Shadow, &Theme::edge},
        {QPalette::Link, &Theme::form},
        {QPalette::Highlight, &Theme::focus},
        {QPalette::HighlightedText, &Theme::paper},
        {QPalette::ToolTipBase, &Theme::paper},
        {QPalette::Light, &Theme::paper},
        {QPalette::Midlight, &Theme::select},
        {QPalette::LinkVisited, &Theme::ink2},
        {QPalette::BrightText, &Theme::stop},
    }};
    QPalette palette;
    for (const Role& role : roles) {
        palette.setColor(role.role, toColor(theme.*role.colour));
    }
    palette.setColor(QPalette::ToolTipText, toColor(theme.ink));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, toColor(theme.ink3));
    }
    palette.setColor(QPalette::Disabled, QPalette::Base, toColor(theme.disabled));
    return palette;
}

const Theme& themeOfDesktop(const QPalette& desktop) {
    const bool lightOnDark =
        desktop.color(QPalette::Window).lightness() < desktop.color(QPalette::WindowText).lightness();
    return lightOnDark ? darkTheme : lightTheme;
}

double contrast(Rgb one, Rgb other) {
    const double a = light(one);
    const double b = light(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

} // namespace lodge
