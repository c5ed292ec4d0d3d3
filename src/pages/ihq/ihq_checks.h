// The attachment of an international headquarters company against the return, when a complete store is made.
#pragma once

#include "program/checks.h"

#include <span>
#include <vector>

namespace lodge {

/// The full check, over modIHQ, item 3, item 6 and item 11. The focus of M503 and M505 to M508 stands on
/// the page of that item. It is for a filer whose return has the attachment; item 3 line 15 stands in the
/// reconciliation, too.
[[nodiscard]] std::span<const CheckRow> ihqCheckRows();

/// Adds every row that refuses to the list, each with the page to mend it on. Shows nothing.
void collectIhqRefusals(const CheckContext& context, std::vector<Refusal>& refusals);

/// Whether the return is one that the check is for: status "15", with the attachment.
[[nodiscard]] bool needsIhqCheck(const ReturnState& state);

/// Runs the full check; the first refusal sets `intError`.
void ChkIHQ(Program& program);

} // namespace lodge
