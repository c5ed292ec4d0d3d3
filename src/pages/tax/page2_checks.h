// The checks of page 2 that a complete store runs over the stored arrays, as rows: the figures of items 1
// and 2 against each other, against item 3 and against item 12.
#pragma once

#include "program/checks.h"

#include <span>
#include <vector>

namespace lodge {

/// The check of page 2. Shows one message, sets `intError` and ends at the first refusal; the one exception
/// is M530, after which the rest still runs. On its way the rate code goes into its entry of strFldPage2.
void ChkPage2(Program& program);

/// A reduced rate for small companies is refused above its limit of paid-up capital (M100), or while the
/// capital is missing (M089). Holds for the rate code of strFldPage2[44] as it stands. True when it refused.
bool ChkRate24Capital(Program& program);

/// Each row of the worksheet that is ticked has its figures (M527, M528). Sets `intError` when one refuses.
/// Runs before ChkRate24Capital while IsGreenCase is false.
void ChkWorksheetRows(Program& program);

/// Whether the green sheet excuses the worksheet's rows. It never does.
[[nodiscard]] bool IsGreenCase(const ReturnState& state);

/// Everything that ChkWorksheetRows, while it is due, and ChkRate24Capital refuse.
void collectTaxGateRefusals(const CheckContext& context, std::vector<Refusal>& refusals);
/// Everything that ChkPage2 refuses. The rate code is to stand in its entry already.
void collectPage2Refusals(const CheckContext& context, std::vector<Refusal>& refusals);

/// Puts the tax of an earlier form back into the balance of line 4.
void P2_AddLine6(ReturnState& state);

} // namespace lodge
