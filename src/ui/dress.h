// What panels, texts and fields wear: their grounds, lines, corners and inks, by the properties that a layout
// gives them.
//
// "role" tells what a panel is, "type" how a text is set, "tone" what it says, "state" how a field stands. A
// panel that says nothing wears nothing.
#pragma once

#include "ui/theme.h"

#include <QPalette>
#include <QStyle>

class QWidget;

namespace lodge {

/// Pixels at each side.
struct Edges {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

/// Lines are drawn as they are at every zoom, padding grows with it.
struct Dress {
    const char* property = "";    // the widgets that wear it have this property ...
    const char* value = "";       // ... of this value
    Rgb Theme::*ground = nullptr; // nullptr: what lies behind shows through
    Rgb Theme::*line = nullptr;
    Edges lines = {};
    int radius = 0; // a rounded dress has a line of 1 all around, or none
    Edges padding = {};
};

/// nullptr for a widget that wears nothing.
[[nodiscard]] const Dress* dressOf(const QWidget& widget);
/// The ground of a dress at its place: the row in hand is tinted, a figure has the ground of its worksheet.
[[nodiscard]] Rgb Theme::*groundOf(const Dress& dress, const QWidget& widget);
/// The role of the palette that a text is written in.
[[nodiscard]] QPalette::ColorRole inkOf(const QWidget& text);

/// What a field wears whose text a person could change.
struct FieldDress {
    Rgb Theme::*ground;
    Rgb Theme::*line;
    int width; // of the line, within a padding that gives way to it
};
[[nodiscard]] FieldDress fieldDressOf(const QWidget& field, QStyle::State state);
/// Whether the widget lies in a panel of that role.
[[nodiscard]] bool liesIn(const QWidget& widget, const char* role);

/// Gives a property that tells what the widget wears, and has it put that on.
void setWorn(QWidget& widget, const char* property, const char* value);

} // namespace lodge
