// The family of items 4 to 10: seven schedules of one shape. Each is a table of its lines in the order of the
// paper; the page, its sums, its checks and its moves between array and controls all follow from the table.
#pragma once

#include "pages/schedules/column.h"
#include "state/item8_sum.h"
#include "state/return_state.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace lodge {

/// Cells of one column that enter a sum, both ends included; a sign of -1 takes them off.
struct Term {
    int first = 0;
    int last = 0;
    int sign = 1;
};

/// How the three figures of a line lie in the array of their page.
enum class EntryShape {
    Columns, ///< One entry a column, a whole column of entries apart.
    Row,     ///< Three entries in a row.
    Packed,  ///< One entry for all three: "|" exempt "|" taxable "|" total "|".
};

struct ScheduleLine {
    int number;        ///< As printed on the form; 0 where it bears none of its own.
    int cell;          ///< Index of its boxes, as in `txtMoney51(cell)`; `totalCell` for the total.
    std::size_t entry; ///< In the page's array: of the exempt column, of the row, or of the packed text.
    EntryShape shape;
    /// What the line is computed from in its column; empty for a line that is typed.
    std::span<const Term> terms = {};
    /// Ends the names of a computed line's labels: "_04" for `lblMoney51_04`.
    std::string_view label = {};

    [[nodiscard]] constexpr bool isComputed() const { return !terms.empty(); }
};

/// The cell of a schedule's last line, `lblSumMoney51` to `lblSumMoney53`.
inline constexpr int totalCell = -1;

struct Schedule {
    int item = 0;
    const char* form = nullptr;
    std::int16_t pageCode = 0;
    FieldArray ReturnState::*fields = nullptr;
    std::size_t columnLength = 0; ///< Entries of one column, the total included.
    /// A headquarters company has no figures here: its cells stay closed.
    bool closedForHeadquarters = false;
    /// What hangs on the array and is made anew with it; nullptr for nothing.
    void (*afterChange)(ReturnState&) = nullptr;
};

// clang-format off
inline constexpr std::array<Schedule, 7> schedules = {{
    { 4, "frmLodgePage3_4",   34, &ReturnState::strFldPage3_4,   9},
    { 5, "frmLodgePage4_5",   45, &ReturnState::strFldPage4_5,  17},
    { 6, "frmLodgePage4_6",   46, &ReturnState::strFldPage4_6,   7, true},
    { 7, "frmLodgePage4_7",   47, &ReturnState::strFldPage4_7,   5},
    { 8, "frmLodgePage5_8",   58, &ReturnState::strFldPage5_8,  24, false, sumItem8Lines15To26},
    { 9, "frmLodgePage5_9",   59, &ReturnState::strFldPage5_9,   6},
    {10, "frmLodgePage6_10", 610, &ReturnState::strFldPage6_10, 12},
}};
// clang-format on

/// The schedule of an item, 4 to 10.
[[nodiscard]] constexpr const Schedule& scheduleOf(int item) {
    return schedules.at(static_cast<std::size_t>(item - schedules.front().item));
}

/// The lines of a schedule in the order of the paper, its total last.
[[nodiscard]] std::span<const ScheduleLine> scheduleLines(const Schedule& schedule);

/// Whether the line is computed from that cell, directly or through another computed line.
[[nodiscard]] bool dependsOn(const Schedule& schedule, const ScheduleLine& line, int cell);

/// The name of a figure's control without its index: "txtMoney51", "lblMoney51_04", "lblSumMoney53".
[[nodiscard]] std::string controlName(const Schedule& schedule, const ScheduleLine& line, Column column);

/// The index that follows the name, -1 for a control that stands alone.
[[nodiscard]] int controlIndex(const ScheduleLine& line, Column column);

/// Where a figure of a line stands in the page's array; of a packed line, the entry that holds all three.
[[nodiscard]] std::size_t entryOf(const Schedule& schedule, const ScheduleLine& line, Column column);

} // namespace lodge
