// Runs a session script over the whole program, as `lodge77-cli run` does.
#pragma once

#include "session/fault.h"
#include "session/words.h"

#include <filesystem>
#include <istream>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace lodge {

struct ScriptRun {
    /// The script's path, or "-" for standard input.
    std::string script;
    /// The folder in which the program and everything that it reads stand.
    std::filesystem::path programFolder;
    /// What the person who runs the script defines for ${NAME}.
    Substitutes defines;
    bool keepGoing = false;
};

/// The values of NAME=VALUE texts by their names; the last of a name wins, and VALUE may be empty or hold
/// "=". Nothing when a text has no "=" or no name before it.
[[nodiscard]] std::optional<Substitutes> parseDefines(const std::vector<std::string>& texts);

/// The transcript goes to `out`, what did not go through to `errors`. A script that cannot be read, or
/// a transcript that cannot be written, counts as a fault of the script. Throws nothing but what the streams
/// throw.
SessionEnd runScript(const ScriptRun& run, std::istream& input, std::ostream& out, std::ostream& errors);

} // namespace lodge
