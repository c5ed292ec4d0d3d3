// Which entry of strFldPage2 belongs to which control of page 2. The table drives both directions.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace lodge {

enum class Page2Kind {
    Text,  ///< A text box or a label, as it stands.
    Date,  ///< Ten characters of the mask; empty when nothing is typed.
    Flag,  ///< "1" or "0".
    Money, ///< Plain digits; on screen "#,##0.00" or brackets.
};

struct Page2Field {
    std::size_t entry;
    std::string_view control;
    Page2Kind kind;
};

/// All entries with a control of their own. Entry 33, the tax, has two; 44 and 45 are the rate's code and
/// number and have none.
[[nodiscard]] std::span<const Page2Field> page2Fields();

/// The cases of line 2 as `Select_2_1` carries them; the general one is carried by none.
inline constexpr std::int16_t reducedTaxCase = 2;
inline constexpr std::int16_t receiptsTaxCase = 3;

inline constexpr std::size_t generalCaseEntry = 25;
inline constexpr std::size_t reducedCaseEntry = 26;
inline constexpr std::size_t receiptsCaseEntry = 27;
inline constexpr std::size_t taxEntry = 33;
inline constexpr std::size_t rateCodeEntry = 44;
inline constexpr std::size_t rateNumberEntry = 45;

} // namespace lodge
