// The fonts of the program: Loma on the screen, Laksaman for what imitates paper.
#pragma once

#include <QFont>
#include <QSize>
#include <QString>
#include <QStringList>

#include <array>

namespace lodge {

/// A use of type. A layout asks for it by name in the property "type" of a widget.
struct Type {
    const char* name = "";
    const char* family = "";
    int pixels = 0;
    bool bold = false;
    /// The room that a line needs so that no mark above or below is cut.
    int height = 0;
    /// What stands between the characters beyond their own widths.
    int spacing = 0;
};

// clang-format off
inline constexpr std::array<Type, 10> types = {{
    {"field",     "Loma",     14, false, 22},
    {"comb",      "Loma",     14, false, 22, 3}, // 13 digits, apart as in the cells of the paper form
    {"label",     "Loma",     13, false, 21},
    {"advice",    "Loma",     13, true,  21},
    {"tag",       "Loma",     12, false, 19},
    {"heading",   "Loma",     14, true,  26},
    {"sheetHead", "Laksaman", 22, true,  39},
    {"sheetName", "Laksaman", 19, false, 34},
    {"cardTitle", "Laksaman", 19, true,  34},
    {"formCode",  "Laksaman", 19, true,  32},
}};
// clang-format on

/// The use of that name; "field" for a name that is none.
[[nodiscard]] const Type& typeOf(const QString& name);
/// Its font at a zoom of 1, or of that much: never wider than the zoom, so that it fits what fitted at 1.
[[nodiscard]] QFont fontOf(const Type& type, double zoom = 1);

/// The steps of the zoom; each gives the font of the application a size of its own.
inline constexpr std::array zoomLevels = {0.75, 0.9, 1.0, 1.1, 1.25, 1.5, 1.75, 2.0};

/// How much larger than designed the application is drawn, as the font of the application tells.
[[nodiscard]] double zoomNow();
/// Pixels of the design as they are drawn at that zoom.
[[nodiscard]] int zoomed(int pixels);
[[nodiscard]] QSize zoomed(const QSize& size);

/// What the machine lacks of the fonts, as the Debian packages to install; empty when all are there.
[[nodiscard]] QStringList missingFontPackages();

} // namespace lodge
