// What the chooser, the list of pages and the list of problems call a page and the state it is in.
#pragma once

#include "shell/item_states.h"

#include <QString>

#include <cstdint>

namespace lodge {

/// The name of a page as short as a list wants it.
[[nodiscard]] QString shortPageName(std::int16_t page);
/// "ติดขัด 2"
[[nodiscard]] QString stateWords(const ItemState& state);
/// The icon that goes with it.
[[nodiscard]] QString stateDrawing(ItemProgress progress);

} // namespace lodge
