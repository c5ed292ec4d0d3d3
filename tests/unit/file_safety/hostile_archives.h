// Archives made to do harm, or damaged, each named for its fault. All must be refused.
#pragma once

#include "file/archive_walls.h"

#include <string>
#include <vector>

namespace lodge::testing {

struct HostileArchive {
    std::string story;
    ArchiveFault fault; ///< The wall that must stop it.
    std::string bytes;
    std::size_t memberCount = 1; ///< That its reader asks for.
};

/// `inner` is the text of a sound return, as the archives pretend to hold it.
std::vector<HostileArchive> hostileArchives(const std::string& inner);

} // namespace lodge::testing
