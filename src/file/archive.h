// Zip archives in memory: what a return is stored as, packed and unpacked by libzip.
//
// An archive is checked twice, by the walls of archive_walls.h and by libzip, and a member counts only when
// both see the same and its bytes have the size and the check sum that were claimed.
#pragma once

#include "file/archive_walls.h"
#include "file/reading_limits.h"

#include <chrono>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lodge {

struct Member {
    std::string name; ///< As the archive has it. Nothing makes a path of it.
    std::string content;
};

struct Unpacked {
    std::vector<Member> members; ///< Empty after a fault.
    ArchiveFault fault = ArchiveFault::None;
};

/// The members of an archive that must hold exactly `memberCount` files.
[[nodiscard]] Unpacked unpackArchive(
    std::string_view bytes, std::size_t memberCount, const ReadingLimits& limits = readingLimits);

struct Packed {
    std::string bytes;
    std::string error; ///< Empty when packed; otherwise the library's cause.
};

/// An archive of these members: plain entries as a DOS machine writes them, deflated, without extra fields or
/// attributes. The same names, contents and time (of a clock on the wall, in no time zone) give the same
/// bytes on every machine.
[[nodiscard]] Packed packArchive(std::span<const Member> members, std::chrono::local_seconds time);

/// The same of one member.
[[nodiscard]] Packed packArchive(
    std::string_view name, std::string_view content, std::chrono::local_seconds time);

} // namespace lodge
