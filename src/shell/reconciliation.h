// The ties between the schedules and item 3: a complete store wants the total of every schedule to be the
// figure of the line that it feeds.
#pragma once

#include "program/checks.h"

#include <span>
#include <string_view>
#include <vector>

namespace lodge {

/// A figure of the return and the page that it stands on.
struct TieSide {
    const std::string& (*figure)(const ReturnState& state);
    std::string_view form;
    /// The control to mend it at; empty for a total that the page computes.
    std::string_view control;
};

/// Whom a tie is for: an international headquarters carries its losses in the attachment, all others in
/// item 11.
enum class TieFilers { All, WithAttachment, WithoutAttachment };

/// Two figures that must be the same amount, an empty one being 0.
struct Tie {
    TieSide schedule;
    TieSide line;
    std::string_view message;
    TieFilers filers = TieFilers::All;
};

/// Every tie, in the order in which a store walks them.
[[nodiscard]] std::span<const Tie> reconciliationTies();
/// Whether the tie is for the filer of this return.
[[nodiscard]] bool appliesTo(const Tie& tie, const ReturnState& state);
/// The amount of a side, baht; the figures of the arrays are plain digits.
[[nodiscard]] double amountOf(const TieSide& side, const ReturnState& state);
/// Whether the two sides differ, to the last bit: both are read from texts of two decimals.
[[nodiscard]] bool differs(const Tie& tie, const ReturnState& state);

/// Walks the ties; the first that differs shows its message and sets `intError`. The focus stays.
void ReconcileItems(Program& program);
/// Walks the ties of item 4 with item 5 once more, for a filer with an exemption from income tax.
void ReconcileItem45(Program& program);
/// Adds every tie of this filer that differs to the list, once, with its line as the place to mend it.
void collectReconciliation(const CheckContext& context, std::vector<Refusal>& refusals);

} // namespace lodge
