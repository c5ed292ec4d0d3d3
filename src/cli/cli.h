// lodge77-cli, the program without a screen: one executable, several commands, one source file a command.
//
// Exit status: 0 all went through, 1 a check or an expectation failed, 2 the call or a file is at fault.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace lodge {

inline constexpr int exitDone = 0;
inline constexpr int exitFailed = 1;
inline constexpr int exitAtFault = 2;

/// What a command works with. It writes results to `out` and causes of failure to `err`.
struct CommandContext {
    std::ostream& out;
    std::ostream& err;
    int exitStatus = exitDone; ///< Set by the command that ran.
};

/// Adds a command to the command line: its name, options and help, and a callback that runs it. `context`
/// outlives the callback.
using AddCommand = void (*)(CLI::App& app, CommandContext& context);

void addCheckCommand(CLI::App& app, CommandContext& context);
void addLinesCommand(CLI::App& app, CommandContext& context);
void addPrintCommand(CLI::App& app, CommandContext& context);
void addRunCommand(CLI::App& app, CommandContext& context);
void addShowCommand(CLI::App& app, CommandContext& context);

/// The commands that the program knows, in the order of its help.
const std::vector<AddCommand>& commands();

/// Runs the program. `arguments` begins with the program's own name.
int runCli(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

} // namespace lodge
