// An ordered check is a table of rows: when a row refuses, with which message, and where the focus goes.
//
// A complete store runs the rows in order and stops at the first that refuses. The same rows, run to their
// end over a copy of the return, list everything that stands in the way of filing. So a row's condition
// reads the return and the clock, and neither writes nor shows anything.
#pragma once

#include "program/program.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lodge {

/// What a condition may look at.
struct CheckContext {
    const ReturnState& state;
    const Host& host;
};

/// Two amounts that a row wants equal, baht: the one at the control that the row names, and its counterpart.
struct Sides {
    double here = 0.0;
    double there = 0.0;
};

struct CheckRow {
    /// A code of the message catalogue; where the catalogue has no text, the text itself.
    std::string_view message;
    /// The control of the page that the focus goes to; empty when a rule names none.
    std::string_view focus;
    bool (*refuses)(const CheckContext& context);
    /// What a row that compares two amounts compares; nullptr for every other row.
    Sides (*sides)(const CheckContext& context) = nullptr;
};

/// One thing that stands in the way of filing.
struct Refusal {
    /// The code of the catalogue, empty for a text that has none.
    std::string code;
    std::string text;
    /// The form and the control to mend it at.
    std::string form;
    std::string control;
    /// Both amounts of a row that compares two.
    std::optional<Sides> sides = std::nullopt;
};

/// The text that a row shows: the catalogue's for a code, otherwise the row's own.
[[nodiscard]] std::string messageText(std::string_view message);

/// Runs the rows in order. At the first that refuses it shows the message, sets `intError` to 1, puts the
/// focus on the control when that page is on screen, and returns false. True when all pass.
bool runChecks(Program& program, std::string_view form, std::span<const CheckRow> rows);

/// Adds every row that refuses to the list. Shows nothing.
void collectRefusals(const CheckContext& context, std::string_view form, std::span<const CheckRow> rows,
    std::vector<Refusal>& refusals);

} // namespace lodge
