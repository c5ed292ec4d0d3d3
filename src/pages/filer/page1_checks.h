// The two checks of page 1 as a whole: of its controls before the page is left, and of its array before a
// complete store.
#pragma once

#include "program/checks.h"
#include "program/program.h"

#include <span>

namespace lodge {

/// The light check: the controls in order, to the first refusal, which sets `intError`. Nothing while the
/// page is not loaded. Asks once a return whether the web site was forgotten.
void P1_CheckForm(Program& program);

/// The full check, over strFldPage1. The first refusal sets `intError` and leaves the focus to the store.
/// Between its rows the store puts blanks into what the State Audit Office leaves open, so that later steps
/// pass without auditor data.
void P1_CheckData(Program& program);

/// The rows of the full check in their order; none of them writes.
[[nodiscard]] std::span<const CheckRow> page1CheckRows();

} // namespace lodge
