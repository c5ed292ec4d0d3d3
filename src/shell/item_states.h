// How far each page of the return has come, for the chooser and the list of pages: its state, and the one
// figure that an accountant looks for first.
#pragma once

#include "shell/problem_list.h"
#include "state/return_state.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace lodge {

enum class ItemProgress {
    Empty,    ///< Nothing is filled in, and nothing asks for it.
    Clear,    ///< Begun, and nothing on it is in the way.
    Named,    ///< Another page's problem compares a figure of this one.
    InTheWay, ///< Something on it is in the way.
    Closed,   ///< Not for this filer.
};

struct ItemState {
    std::int16_t page = 0;
    ItemProgress progress = ItemProgress::Empty;
    std::size_t problems = 0;  ///< What is in the way on this page.
    std::int16_t namedBy = 0;  ///< The page whose problem names this one.
    std::string figureCaption; ///< "ข้อ 9 รวม"; empty for a page without a main figure.
    std::string figure;        ///< As shown; empty while the page has none.
};

/// The state of every page in the order of the form. `stored` is the return as a store would write it, which
/// is what a listing leaves (ProblemLister::stored).
[[nodiscard]] std::vector<ItemState> itemStates(const ReturnState& stored, std::span<const Problem> problems);

/// The page that the other side of a problem stands on; 0 for a problem of one page alone.
[[nodiscard]] std::int16_t otherPageOf(const Problem& problem);

} // namespace lodge
