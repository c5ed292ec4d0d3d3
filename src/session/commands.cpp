#include "session/commands.h"

#include "session/fault.h"
#include "session/nearest_name.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace lodge {

const CommandRow& findCommand(std::string_view name) {
    std::vector<std::string> known;
    for (const auto& rows : {userCommands(), settingCommands(), expectationCommands()}) {
        const auto row = std::ranges::find(rows, name, &CommandRow::name);
        if (row != rows.end()) {
            return *row;
        }
        for (const CommandRow& other : rows) {
            known.emplace_back(other.name);
        }
    }
    throw ScriptFault("unknown command " + inQuotes(name) + nearestNameHint(name, known));
}

} // namespace lodge
