// The lines of item 3, profit and loss to net profit, as the paper numbers them: what is typed, what is
// computed from what, and where each stands in strFldPage3_3.
#pragma once

#include "pages/schedules/column.h"

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace lodge {

struct Item3Line {
    int number; ///< As printed on the form, 1 to 21.
    int place;  ///< Index of its boxes: txtMoney31(place), txtMoney32(place), lblMoney33(place).
    std::array<std::size_t, 3> entries; ///< In strFldPage3_3, by Column.
    /// The lines that it is computed from, a minus before those that are taken off; all zero when it is
    /// typed.
    std::array<int, 5> sum;
    /// Names of the computed figures by Column; empty names follow `place` as above.
    std::array<std::string_view, 3> labels;
    std::string_view text; ///< As on the form; "\n" parts its printed lines.
    int fromPage;          ///< Code of the page whose total must agree with it, 0 for none.

    [[nodiscard]] constexpr bool isComputed() const { return sum.front() != 0; }
};

/// One of the items of line 17 that stand below its first one; its three figures share one entry.
struct Item3SubLine {
    std::string_view number; ///< "75.2" to "75.13".
    int place;
    std::size_t entry; ///< In strFldPage3_3: "|" exempt "|" taxable "|" total "|".
    std::string_view text;
};

/// All numbered lines but line 22, in the order of the paper.
[[nodiscard]] std::span<const Item3Line> item3Lines();
[[nodiscard]] std::span<const Item3SubLine> item3SubLines();
/// The line of that printed number, 1 to 21.
[[nodiscard]] const Item3Line& item3Line(int number);
/// One past the highest place that a line or a sub-line has.
inline constexpr int item3Places = 33;

/// Line 22 and the ticks that say profit or loss, in strFldPage3_3.
inline constexpr std::size_t line22Entry = 60;
inline constexpr std::size_t profit3Entry = 61;
inline constexpr std::size_t loss3Entry = 62;
inline constexpr std::size_t profit9Entry = 63;
inline constexpr std::size_t loss9Entry = 64;
inline constexpr std::size_t profit22Entry = 65;
inline constexpr std::size_t loss22Entry = 66;

} // namespace lodge
