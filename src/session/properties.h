// The properties of a control by which a session script reads it.
#pragma once

#include "controls/control.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodge {

/// What the property reads, nothing when controls of this kind do not have it. `enabled`, `visible` and
/// `locked` are the control's own switches: a control in a closed frame still reads its own.
/// `name` is one of propertyNames or "cell(ROW,COLUMN)" of a grid, empty outside of it.
[[nodiscard]] std::optional<std::string> readProperty(const Control& control, std::string_view name);

/// The names of all properties, "cell(R,C)" for cells.
[[nodiscard]] std::vector<std::string> propertyNames();

} // namespace lodge
