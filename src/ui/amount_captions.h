// What the lines of the amount pages are called on screen, in the wording of the paper form: the one place to
// correct a caption. The numbers of the lines are not here; they stand in the tables of the pages.
#pragma once

#include <span>
#include <string_view>

namespace lodge {

/// A line of items 4 to 10, by its cell in the table of the schedule.
struct ScheduleCaption {
    int cell;
    /// "\n" parts its lines on screen; a computed line states its formula.
    std::string_view text;
};

/// What an item is about, 3 to 10 and 12: "ต้นทุนผลิต".
[[nodiscard]] std::string_view itemName(int item);
/// The caption of a cell of items 4 to 10; empty for one without a caption.
[[nodiscard]] std::string_view scheduleCaption(int item, int cell);

/// A line of item 12. A line without a control is a heading.
struct BalanceLine {
    std::string_view number; ///< As printed, empty for a line without one.
    std::string_view control;
    int index; ///< Of the control in its array, -1 for one that stands alone.
    std::string_view text;
};

/// Assets, and what pays for them: liabilities, then equity.
[[nodiscard]] std::span<const BalanceLine> assetLines();
[[nodiscard]] std::span<const BalanceLine> fundingLines();

} // namespace lodge
