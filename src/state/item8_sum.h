// Lines 15 to 26 of item 8, expenses that the Revenue Code does not allow: item 9 line 5 must state their
// sum.
#pragma once

#include "state/return_state.h"
#include "values/money.h"
#include "values/text.h"

#include <cstddef>

namespace lodge {

/// Recomputes FucChk.TmpSum8_15to25 (baht) from the total column of strFldPage5_8. An empty entry counts
/// nothing.
inline void sumItem8Lines15To26(ReturnState& state) {
    constexpr std::size_t line15 = 62;
    constexpr std::size_t line16 = 63;
    constexpr std::size_t line17 = 75; // lines 17 to 26 hold their three columns in one entry each
    constexpr std::size_t line26 = 84;
    constexpr std::size_t totalColumn = 3;
    const FieldArray& page = state.strFldPage5_8;
    double sum = readFigure(page[line15]) + readFigure(page[line16]);
    for (std::size_t line = line17; line <= line26; ++line) {
        const auto columns = splitBar(page[line]);
        if (columns.size() > totalColumn) sum += readFigure(columns[totalColumn]);
    }
    state.FucChk.TmpSum8_15to25 = sum;
}

} // namespace lodge
