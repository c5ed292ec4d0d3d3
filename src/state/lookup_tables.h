// Person titles and kinds of organisation that page 1 offers, with the codes that the return file carries.
#pragma once

#include "state/return_state.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

namespace lodge {

struct LookupRow {
    std::string_view code; ///< Four digits.
    std::string_view name; ///< Thai or English title.
};

/// All rows in list order; row 0 is empty.
std::span<const LookupRow> titleRows();
std::span<const LookupRow> organisationRows();

/// Fills strTitleCode, strTitleName, strOrgCode and strOrgName.
void fillLookupTables(ReturnState& state);

/// The row of a title. Where a code stands twice the name decides, and the first row holds when the name fits
/// neither. Nothing for an empty or unknown code.
std::optional<std::size_t> findTitle(std::string_view code, std::string_view name);

} // namespace lodge
