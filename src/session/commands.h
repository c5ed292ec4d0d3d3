// The commands of a session script, one row each.
#pragma once

#include "session/words.h"

#include <cstddef>
#include <span>
#include <string_view>

namespace lodge {

class Session;

/// What must be there before a command can run.
enum class Needs {
    Nothing, // it sets up the session or queues an answer
    Program, // the program has been started
    Person,  // the program is running: a person who has left it can do nothing any more
};

inline constexpr std::size_t anyNumber = static_cast<std::size_t>(-1);

struct CommandRow {
    std::string_view name;
    std::string_view words;
    /// The words that must and may follow the name.
    std::size_t least;
    std::size_t most;
    Needs needs;
    void (*run)(Session& session, const Words& words);
};

/// What a person does.
[[nodiscard]] std::span<const CommandRow> userCommands();
/// What the session sets and queues.
[[nodiscard]] std::span<const CommandRow> settingCommands();
/// What it expects and prints.
[[nodiscard]] std::span<const CommandRow> expectationCommands();

/// The command of that name; ScriptFault with the nearest name for an unknown one.
[[nodiscard]] const CommandRow& findCommand(std::string_view name);

} // namespace lodge
