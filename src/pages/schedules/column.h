// The three columns in which items 3 to 10 state their figures.
#pragma once

#include <array>

namespace lodge {

/// Business exempt from income tax, taxable business, both together.
enum class Column { Exempt, Taxable, Total };

inline constexpr std::array inputColumns = {Column::Exempt, Column::Taxable};
inline constexpr std::array allColumns = {Column::Exempt, Column::Taxable, Column::Total};

} // namespace lodge
