// What a printed document carries beside its pages: a title, and the data of the return as a file inside it.
#pragma once

#include "program/pdf_press.h"
#include "state/return_state.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lodge {

/// What a reader of the document shows in its frame: the form and the filer's number, as far as it is known.
[[nodiscard]] std::string documentTitle(const ReturnState& state);

/// The data of a return that was read from `file`, as `lodge77-cli show --json` prints them.
[[nodiscard]] Attachment attachedData(
    ReturnState& state, std::string_view file, const std::vector<std::size_t>& damagedLines);

/// The data of a return in hand: what they would be of the file that a store of it writes. `file` is the name
/// of that file. The return itself stays as it is.
[[nodiscard]] Attachment attachedData(const ReturnState& state, std::string_view file);

} // namespace lodge
