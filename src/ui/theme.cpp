#include "ui/theme.h"

#include <QColor>
#include <QPalette>

#include <algorithm>
#include <array>
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
    // Paper and the tint of the row in hand have no role of their own in the toolkit; they lie under Light
    // and Midlight.
    constexpr std::array<Role, 20> roles = {{
        {QPalette::Window, &Theme::ground},
        {QPalette::WindowText, &Theme::ink},
        {QPalette::Base, &Theme::field},
        {QPalette::AlternateBase, &Theme::band},
        {QPalette::Text, &Theme::ink},
        {QPalette::Button, &Theme::chrome},
        {QPalette::ButtonText, &Theme::ink},
        {QPalette::Mid, &Theme::rule},
        {QPalette::Dark, &Theme::edge},
        {QPalette::Highlight, &Theme::focus},
        {QPalette::HighlightedText, &Theme::paper},
        {QPalette::Light, &Theme::paper},
        {QPalette::Midlight, &Theme::select},
        {ink::second, &Theme::ink2},
        {ink::third, &Theme::ink3},
        {ink::form, &Theme::form},
        {ink::link, &Theme::focus},
        {ink::stop, &Theme::stop},
        {ink::warn, &Theme::warn},
        {ink::ok, &Theme::ok},
    }};
    QPalette palette;
    for (const Role& role : roles) {
        palette.setColor(role.role, toColor(theme.*role.colour));
    }
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::ButtonText, ink::second,
             ink::third, ink::form, ink::link, ink::stop, ink::warn, ink::ok}) {
        palette.setColor(QPalette::Disabled, role, toColor(theme.ink3));
    }
    // A closed field still shows its figure, and nothing of it as selected.
    palette.setColor(QPalette::Disabled, QPalette::Base, toColor(theme.disabled));
    palette.setColor(QPalette::Disabled, QPalette::Text, toColor(theme.ink2));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, toColor(theme.disabled));
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, toColor(theme.ink2));
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
