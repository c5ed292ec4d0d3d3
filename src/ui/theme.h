// The colours of the program, light and dark: one meaning, one colour, and never colour alone.
//
// The palette of the toolkit and what the style draws are both filled from here and from nowhere else.
#pragma once

#include <QPalette>

#include <cstdint>

class QColor;

namespace lodge {

/// 0xRRGGBB.
using Rgb = std::uint32_t;

struct Theme {
    Rgb ground;     // behind the sheet
    Rgb chrome;     // toolbar, status bar
    Rgb paper;      // sheets, cards, dialogs
    Rgb band;       // computed rows
    Rgb field;      // a field to type into
    Rgb computed;   // a field that the program fills
    Rgb disabled;   // a closed field
    Rgb rule;       // hairlines
    Rgb edge;       // the border of a field or button
    Rgb ink;        // texts and amounts
    Rgb ink2;       // labels
    Rgb ink3;       // closed captions, key hints
    Rgb form;       // headings, ticks, the main button
    Rgb onForm;     // what stands on `form`
    Rgb focus;      // the focus ring, selected text
    Rgb select;     // the row in hand
    Rgb green;      // the worksheets
    Rgb greenInk;   // what stands on `green`
    Rgb stop;       // refused, in the way of filing
    Rgb stopGround; // behind `stop`
    Rgb warn;       // a warning
    Rgb warnGround; // behind `warn`
    Rgb ok;         // agrees, nothing in the way
    Rgb okGround;   // behind `ok`
};

// clang-format off
inline constexpr Theme lightTheme{
    .ground = 0xE6E9ED, .chrome = 0xF4F6F8, .paper = 0xFFFFFF, .band = 0xEEF2F6,
    .field = 0xFFFFFF, .computed = 0xF1F4F7, .disabled = 0xE9ECEF,
    .rule = 0xD3DAE1, .edge = 0x74818F,
    .ink = 0x17202B, .ink2 = 0x4A5767, .ink3 = 0x5E6A78,
    .form = 0x1B4B7A, .onForm = 0xFFFFFF, .focus = 0x0A5FC4, .select = 0xDCE9F8,
    .green = 0xEEF6EE, .greenInk = 0x1E6238,
    .stop = 0xB3251C, .stopGround = 0xFDEEEC, .warn = 0x855200, .warnGround = 0xFFF5E0,
    .ok = 0x1E6238, .okGround = 0xEAF5EC};

inline constexpr Theme darkTheme{
    .ground = 0x14181D, .chrome = 0x1B2026, .paper = 0x20262D, .band = 0x272E37,
    .field = 0x171C22, .computed = 0x262D35, .disabled = 0x2B323A,
    .rule = 0x3A444F, .edge = 0x7D8A98,
    .ink = 0xE8ECF0, .ink2 = 0xB4BECA, .ink3 = 0xA3AEBB,
    .form = 0x8FC0F2, .onForm = 0x14181D, .focus = 0x6CB0FF, .select = 0x26405E,
    .green = 0x1C2A22, .greenInk = 0x86CFA0,
    .stop = 0xFF9A8F, .stopGround = 0x3A2220, .warn = 0xF0BE6A, .warnGround = 0x352B18,
    .ok = 0x86CFA0, .okGround = 0x1C2A22};

// clang-format on

/// Under which roles of the palette a widget finds the inks that the toolkit has no role for: all are roles
/// that nothing of the toolkit draws with here.
namespace ink {
inline constexpr QPalette::ColorRole second = QPalette::LinkVisited;
inline constexpr QPalette::ColorRole third = QPalette::PlaceholderText;
inline constexpr QPalette::ColorRole form = QPalette::Link;
inline constexpr QPalette::ColorRole link = QPalette::ToolTipText;
inline constexpr QPalette::ColorRole stop = QPalette::BrightText;
inline constexpr QPalette::ColorRole warn = QPalette::ToolTipBase;
inline constexpr QPalette::ColorRole ok = QPalette::Shadow;
} // namespace ink

[[nodiscard]] QColor toColor(Rgb colour);
[[nodiscard]] QPalette paletteOf(const Theme& theme);
/// Dark where the desktop's own palette writes light on dark.
[[nodiscard]] const Theme& themeOfDesktop(const QPalette& desktop);

/// How much two colours differ for the eye, 1 (equal) to 21: at least 4.5 for text, 3 for borders and rings.
[[nodiscard]] double contrast(Rgb one, Rgb other);

} // namespace lodge
