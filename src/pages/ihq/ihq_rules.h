// The rules of the attachment of an international headquarters company about single fields: its amounts, the
// dates of its privilege, and the earlier periods whose losses it carries.
#pragma once

#include "state/return_state.h"
#include "values/notifier.h"

#include <string>
#include <string_view>

namespace lodge {

/// An amount of the record as the attachment shows it: "#,##0.00", in brackets when it is below zero. An
/// empty text stays empty.
[[nodiscard]] std::string FormatBox(std::string_view text);

/// Whether a typed text is an amount; an empty one passes. A refusal has shown its message.
[[nodiscard]] bool ChkBoxNum(std::string_view text, Notifier& notifier);

/// Whether the text, eight digits or a mask of ten characters with its slashes and prompts, is a day of the
/// Buddhist calendar. An empty text is none.
[[nodiscard]] bool CheckDate(std::string_view text);

/// Whether a period follows the one that ends on `endAbove` without a day between; eight digits each.
[[nodiscard]] bool ChkContinue(std::string_view start, std::string_view endAbove);

// Dates are handed over as eight digits, day, month, Buddhist year; empty when there is none.

/// The dates of the privilege as they stand on the page, with the period of the return.
struct PrivilegeDates {
    std::string confirmed;
    std::string start;
    std::string end;
    const HeadquartersRecord& record;
};

/// The code of the first rule that a date of the privilege breaks when it is left, empty when it keeps all.
/// An empty date keeps all.
[[nodiscard]] std::string_view refusalOfConfirmed(const PrivilegeDates& dates);
[[nodiscard]] std::string_view refusalOfStart(const PrivilegeDates& dates);
[[nodiscard]] std::string_view refusalOfEnd(const PrivilegeDates& dates);

/// An earlier period of item 2 with the row above it.
struct LossPeriod {
    std::string from;
    std::string to;
    bool isFirstRow = true;
    std::string fromAbove;
    std::string toAbove;
    const ReturnState& state;
};

/// The same for the two dates of an earlier period.
[[nodiscard]] std::string_view refusalOfLossStart(const LossPeriod& period);
[[nodiscard]] std::string_view refusalOfLossEnd(const LossPeriod& period);

/// The last day before a start, eight digits: where the period above has to end.
[[nodiscard]] std::string dayBefore(std::string_view start);

} // namespace lodge
