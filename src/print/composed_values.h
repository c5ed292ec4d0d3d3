// The printed values that are put together from several elements of the return, or read a choice. Each gives
// nothing where its field stays blank.
#pragma once

#include "state/return_state.h"

#include <optional>
#include <string>

namespace lodge::composed {

using Value = std::optional<std::string>;

// Page 1
/// Title, first name, two blanks, surname; nothing when all three are missing.
[[nodiscard]] Value auditorName(const ReturnState& state);
[[nodiscard]] Value accountantName(const ReturnState& state);
/// The path of the packed file of the last store; nothing before a store.
[[nodiscard]] Value packedFile(const ReturnState& state);

// Items 1 and 2
/// The tax of line 2. Where the page keeps one beside its fields, that one holds: closing the page writes the
/// income into the field of the tax.
[[nodiscard]] Value computedTax(const ReturnState& state);
/// "1" or "0": whether the worksheet has the general rate, or a reduced one.
[[nodiscard]] Value generalRate(const ReturnState& state);
[[nodiscard]] Value reducedRate(const ReturnState& state);
/// The number of the rate row, "1" to "6"; "0" for any other rate.
[[nodiscard]] Value rateRow(const ReturnState& state);

// Notification form
/// A remark fills one line of the form and goes on in the next: the line ends at the last blank within its
/// first 100 characters, at the hundredth where it has no blank.
[[nodiscard]] Value remarkLine(const ReturnState& state);
[[nodiscard]] Value remarkContinued(const ReturnState& state);
[[nodiscard]] Value secondRemarkLine(const ReturnState& state);
[[nodiscard]] Value secondRemarkContinued(const ReturnState& state);

// Attachment
/// "1" or "0": what the filer with both kinds of business states line 22 of item 3 to be.
[[nodiscard]] Value statedProfit(const ReturnState& state);
[[nodiscard]] Value statedLoss(const ReturnState& state);
/// That figure; an empty text where line 21 of both columns is empty or "0.00".
[[nodiscard]] Value statedResult(const ReturnState& state);

} // namespace lodge::composed
