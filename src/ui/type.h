// The fonts of the program: Loma on the screen, Laksaman for what imitates paper.
#pragma once

#include <QFont>
#include <QString>
#include <QStringList>

#include <array>

namespace lodge {

/// A use of type. A layout asks for it by name in the property "type" of a widget.
struct Type {
    const char* name;
    const char* family;
    int pixels;
    bool bold;
    /// The room that a line needs so that no mark above or below is cut.
    int height;
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
[[nodiscard]] QFont fontOf(const Type& type);

/// What the machine lacks of the fonts, as the Debian packages to install; empty when all are there.
[[nodiscard]] QStringList missingFontPackages();

} // namespace lodge
