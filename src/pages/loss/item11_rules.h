// The rules of item 11 about dates and about the stored table, as rows.
#pragma once

#include "program/checks.h"

#include <span>
#include <string>
#include <string_view>

namespace lodge {

// Dates are handed over as eight digits, day, month, Buddhist year; empty when there is none.

/// A row of the table as the page finds it when it is left.
struct TablePeriod {
    std::string from;
    std::string to;
    std::string today;
};

struct TablePeriodRule {
    std::string_view code;
    bool (*refuses)(const TablePeriod& period);
    bool clearsEnd = false;
};

/// For a row with an end, in their order.
[[nodiscard]] std::span<const TablePeriodRule> tablePeriodRules();

/// A start date of the table with the row above it, for a table whose dates can be typed.
struct TypedStart {
    std::string from;
    std::string fromAbove; ///< Empty where no row of the block stands above.
    std::string toAbove;
    const FucDate& period;
};

/// The text to show for a start that does not fit, empty for one that does.
[[nodiscard]] std::string typedStartRefusal(const TypedStart& start);

/// A period as the popup takes it.
struct NewPeriod {
    std::string start;
    std::string end;
    const ReturnState& state;
};

struct NewPeriodRule {
    std::string_view code;
    bool (*refuses)(const NewPeriod& period);
    /// Clears the end date instead of the date that was left.
    bool clearsEnd = false;
};

/// The first rule that a typed start breaks, nullptr when it keeps all.
[[nodiscard]] const NewPeriodRule* brokenByStart(const NewPeriod& period);
/// The first rule that a typed end breaks, nullptr when it keeps all.
[[nodiscard]] const NewPeriodRule* brokenByEnd(const NewPeriod& period);

/// The last day of the next period to be entered, eight digits: the day before the period entered last, or
/// before the return's own. Empty when that is not known.
[[nodiscard]] std::string nextPeriodEnd(const ReturnState& state);

/// The full check of a complete store, over strFldPage6_11 and the entry log.
[[nodiscard]] std::span<const CheckRow> item11CheckRows();
/// Runs the full check; the first refusal sets `intError`.
void Chk_Item11Store(Program& program);

} // namespace lodge
