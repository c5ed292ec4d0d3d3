// A place on a report template where the value of one field is set. All measures are millimetres from the
// upper left corner of the A4 page.
#pragma once

#include <string>
#include <vector>

namespace lodge {

struct SlotBox {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
};

enum class SlotKind {
    Text,
    Money, ///< An amount: at the right, its decimal point below those of its column, never cut.
    Tick,  ///< A check mark, set by one value of the field.
    Comb   ///< One character a cell.
};

enum class SlotAlign { Start, Middle, End };

struct Slot {
    std::string field; ///< The field whose value stands here.
    std::string tickedBy = "1";
    SlotBox box;
    SlotKind kind = SlotKind::Text;
    SlotAlign align = SlotAlign::Start;
    double size = 3.7;         ///< Of the letters; a text too long for its slot gets smaller ones.
    int lines = 1;             ///< On which a text may wrap.
    std::vector<double> cells; ///< The left edge of each cell of a comb.
    double cellWidth = 0;
};

} // namespace lodge
