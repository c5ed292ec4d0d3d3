// The walls that an archive must pass before a byte of it is believed. An archive comes from a mail, a memory
// stick, another program; it may be damaged, or made to do harm.
//
// A right archive is what ordinary zip programs make of one file: local header and packed bytes from the
// first byte on, then the directory, then its end, and nothing else.
#pragma once

#include "file/reading_limits.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lodge {

/// Why an archive is refused.
enum class ArchiveFault : std::uint8_t {
    None,
    TooLarge,
    NotAnArchive,
    MemberCount,
    StrayBytes,
    BadName,
    NotAFile,
    Encrypted,
    Method,
    UnpackedTooLarge,
    Contradiction,
    Damaged,
};

/// The fault in one line of English, for a log or a command line.
std::string_view faultCause(ArchiveFault fault);

/// What the filer is told in Thai.
std::string faultText(ArchiveFault fault);

/// One member as its directory entry and its local header tell.
struct ArchiveEntry {
    std::string_view name;
    std::uint32_t flags = 0;
    std::uint32_t method = 0;
    std::uint32_t checkSum = 0;
    std::uint32_t packedSize = 0;
    std::uint32_t size = 0;
    std::uint32_t madeBy = 0;
    std::uint32_t attributes = 0;
    std::size_t begin = 0; // Of the local header.
    std::size_t end = 0;   // Of the packed bytes.
};

struct Headers {
    std::vector<ArchiveEntry> entries; ///< In the order of the directory; empty after a fault.
    ArchiveFault fault = ArchiveFault::None;
};

/// Whether the bytes begin as a zip archive does.
[[nodiscard]] bool beginsAsArchive(std::string_view bytes);

/// Reads all headers of an archive that must hold exactly `memberCount` files, and no packed byte. The names
/// look into `bytes`.
[[nodiscard]] Headers readHeaders(
    std::string_view bytes, std::size_t memberCount, const ReadingLimits& limits);

} // namespace lodge
