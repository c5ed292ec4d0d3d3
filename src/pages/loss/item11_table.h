// Item 11 as a table: thirteen rows of earlier accounting periods with their results, and the log of their
// entries. Block 1 (rows 0 to 7) holds the periods of an exempt business, block 2 (rows 8 to 12) those of a
// taxable one. Each block fills from below, so that the newest period stands lowest in it.
#pragma once

#include "state/return_state.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace lodge {

inline constexpr int item11Rows = 13;
inline constexpr int item11ExemptRows = 8;
inline constexpr int item11TaxableRows = item11Rows - item11ExemptRows;
/// The boxes txtMoney1 of results; behind them stands the loss carried to item 3 line 15.
inline constexpr int item11ResultCells = 42;
inline constexpr int item11CarriedCell = 42;

/// The boxes of a row: four in block 1 (exempt profit and loss, taxable profit and loss), two in block 2.
[[nodiscard]] constexpr int firstCell(int row) {
    return row < item11ExemptRows ? 4 * row : 4 * item11ExemptRows + 2 * (row - item11ExemptRows);
}
[[nodiscard]] constexpr int cellCount(int row) { return row < item11ExemptRows ? 4 : 2; }

/// How a result enters the loss that may be carried: losses add to it, taxable profits use it up, and the
/// profits of an exempt business stay outside.
[[nodiscard]] int signInCarriedLoss(int cell);

/// An amount of the page as this item reads it: separators dropped; what is then not a whole number text is
/// 0, negatives and brackets among it.
[[nodiscard]] double txt2CDbl(std::string_view text);

/// Where the figures of strFldPage6_11 stand; dates are ten characters, dd/mm/yyyy.
[[nodiscard]] constexpr std::size_t fromEntry(int row) { return static_cast<std::size_t>(row); }
[[nodiscard]] constexpr std::size_t toEntry(int row) { return static_cast<std::size_t>(row) + item11Rows; }
[[nodiscard]] constexpr std::size_t cellEntry(int cell) {
    return static_cast<std::size_t>(cell) + std::size_t{2} * item11Rows;
}

/// The place of the newest-numbered entry in the log, nothing in an empty log.
[[nodiscard]] std::optional<std::size_t> lastEntry(const ReturnState& state);
/// The table row of that entry.
[[nodiscard]] std::optional<int> lastEntryRow(const ReturnState& state);
/// The next free row of a block, from below; nothing when the block is full.
[[nodiscard]] std::optional<int> nextExemptRow(const ReturnState& state);
[[nodiscard]] std::optional<int> nextTaxableRow(const ReturnState& state);

/// Notes a period, ten characters each, in the log and in the counter of its row's block.
void logEntry(ReturnState& state, int row, std::string start, std::string end);
/// Takes the newest-numbered entry out of the log.
void unlogLastEntry(ReturnState& state);

} // namespace lodge
