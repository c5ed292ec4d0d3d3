// The value services that a script may call by their names, with texts for arguments and result.
#pragma once

#include "program/program.h"
#include "session/words.h"

#include <string>
#include <string_view>

namespace lodge {

/// The result as a text: whole numbers and reals in plain decimal, booleans as "True" or "False". Messages
/// that the service shows come up as boxes of the program. ScriptFault for an unknown name, a wrong number of
/// arguments, or a text where the service takes a number.
[[nodiscard]] std::string callValueService(Program& program, std::string_view name, const Words& arguments);

} // namespace lodge
