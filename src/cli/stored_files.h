// What the commands on stored returns share: the list of files to read, and how a file at fault is told.
#pragma once

#include "cli/cli.h"
#include "file/return_file.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lodge {

/// Describes the FILE... argument that every such command takes.
inline constexpr std::string_view filesHelp =
    "Stored returns, packed or unpacked; told apart by their content, not by their name";

/// The part of a command's help that tells what becomes of a file at fault.
inline constexpr std::string_view faultsHelp =
    "A file that cannot be read is told on standard error as \"FILE: cause\", the others are still\n"
    "done, and the exit status is 2. Lines whose check value is wrong are told there as well; they\n"
    "do not change the exit status.";

/// Tells a file at fault and marks the call as failed.
void reportFault(CommandContext& context, std::string_view file, std::string_view cause);

/// Tells the damaged lines of a file, if it has any.
void reportDamage(CommandContext& context, std::string_view file, const std::vector<std::size_t>& lines);

/// Heads the output of a file among several: "==> FILE <==", after an empty line but for the first.
void printHeading(CommandContext& context, std::string_view file, bool isFirst);

} // namespace lodge
