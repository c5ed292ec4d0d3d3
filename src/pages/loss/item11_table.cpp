#include "pages/loss/item11_table.h"

#include "values/money.h"
#include "values/text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace lodge {

namespace {

constexpr std::array exemptRowSigns = {0, 1, -1, 1};
constexpr std::array taxableRowSigns = {-1, 1};

std::int16_t& rowCounter(ReturnState& state, int row) {
    return row < item11ExemptRows ? state.intItem11CountA : state.intItem11CountB;
}

/// A stored return may state any count; a block has no fewer than none of its rows in use.
std::optional<int> nextRow(int used, int available, int lowest) {
    if (used >= available) return std::nullopt;
    return lowest - std::max(used, 0);
}

} // namespace

int signInCarriedLoss(int cell) {
    const int block2 = firstCell(item11ExemptRows);
    return cell < block2 ? exemptRowSigns.at(static_cast<std::size_t>(cell % 4))
                         : taxableRowSigns.at(static_cast<std::size_t>((cell - block2) % 2));
}

double txt2CDbl(std::string_view text) {
    const std::string number = "0" + removeAll(trimBlanks(text), ",");
    return isNumericText(number) ? readNumber(number) : 0.0;
}

std::optional<std::size_t> lastEntry(const ReturnState& state) {
    const int count = std::min<int>(state.intItem11Count, static_cast<int>(state.strItem11Start.size()));
    if (count <= 0) return std::nullopt;
    return static_cast<std::size_t>(count - 1);
}

std::optional<int> lastEntryRow(const ReturnState& state) {
    const auto entry = lastEntry(state);
    if (!entry) return std::nullopt;
    const int row = state.intItem11Type[*entry];
    return row >= 0 && row < item11Rows ? std::optional(row) : std::nullopt;
}

std::optional<int> nextExemptRow(const ReturnState& state) {
    return nextRow(state.intItem11CountA, item11ExemptRows, item11ExemptRows - 1);
}

std::optional<int> nextTaxableRow(const ReturnState& state) {
    return nextRow(state.intItem11CountB, item11TaxableRows, item11Rows - 1);
}

void logEntry(ReturnState& state, int row, std::string start, std::string end) {
    const auto last = lastEntry(state);
    const std::size_t entry = last ? std::min(*last + 1, state.strItem11Start.size() - 1) : 0;
    state.intItem11Type[entry] = static_cast<std::int16_t>(row);
    state.strItem11Start[entry] = std::move(start);
    state.strItem11End[entry] = std::move(end);
    ++rowCounter(state, row);
    state.intItem11Count = static_cast<std::int16_t>(entry + 1);
}

void unlogLastEntry(ReturnState& state) {
    const auto entry = lastEntry(state);
    if (!entry) return;
    if (const auto row = lastEntryRow(state)) {
        std::int16_t& counter = rowCounter(state, *row);
        counter = static_cast<std::int16_t>(std::max(counter - 1, 0));
    }
    state.strItem11Start[*entry].clear();
    state.strItem11End[*entry].clear();
    state.intItem11Type[*entry] = 0;
    state.intItem11Count = static_cast<std::int16_t>(*entry);
}

} // namespace lodge
