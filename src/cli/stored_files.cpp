#include "cli/stored_files.h"

#include <fmt/format.h>

#include <ostream>

namespace lodge {

void reportFault(CommandContext& context, std::string_view file, std::string_view cause) {
    context.err << file << ": " << cause << '\n';
    context.exitStatus = exitAtFault;
}

void reportDamage(CommandContext& context, std::string_view file, const std::vector<std::size_t>& lines) {
    if (lines.empty()) return;
    std::string numbers;
    for (const std::size_t line : lines)
        numbers += (numbers.empty() ? "" : ", ") + std::to_string(line);
    context.err << file << ": damaged " << (lines.size() == 1 ? "line " : "lines ") << numbers << '\n';
}

void printHeading(CommandContext& context, std::string_view file, bool isFirst) {
    if (!isFirst) context.out << '\n';
    context.out << "==> " << file << " <==\n";
}

} // namespace lodge
