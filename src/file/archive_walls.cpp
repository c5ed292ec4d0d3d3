#include "file/archive_walls.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <optional>

namespace lodge {

namespace {

using namespace std::string_view_literals;

// --- What the filer and the log are told ---

struct FaultRow {
    ArchiveFault fault;
    std::string_view cause;
    std::string_view text;
};

// clang-format off
constexpr std::array faults{
    FaultRow{ArchiveFault::None, "", ""},
    FaultRow{ArchiveFault::TooLarge, "larger than a stored file can be", "ไฟล์ใหญ่เกินกำหนด"},
    FaultRow{ArchiveFault::NotAnArchive, "not a whole zip archive", "ไม่ใช่ไฟล์ที่โปรแกรมจัดเก็บ หรือไฟล์ไม่ครบ"},
    FaultRow{ArchiveFault::MemberCount, "another number of members than a stored file has", "จำนวนไฟล์ภายในไม่ถูกต้อง"},
    FaultRow{ArchiveFault::StrayBytes, "bytes that belong to no member", "มีข้อมูลแปลกปลอมอยู่ในไฟล์"},
    FaultRow{ArchiveFault::BadName, "a member's name leads out of its folder", "ชื่อไฟล์ภายในไม่ถูกต้อง"},
    FaultRow{ArchiveFault::NotAFile, "a member is no ordinary file", "ข้อมูลภายในไม่ใช่ไฟล์ธรรมดา"},
    FaultRow{ArchiveFault::Encrypted, "a member is encrypted", "ไฟล์มีรหัสผ่าน"},
    FaultRow{ArchiveFault::Method, "a member is neither stored nor deflated", "วิธีบีบอัดไฟล์ไม่รองรับ"},
    FaultRow{ArchiveFault::UnpackedTooLarge, "a member is larger than a stored file can be", "ข้อมูลภายในใหญ่เกินกำหนด"},
    FaultRow{ArchiveFault::Contradiction, "the headers contradict each other", "ไฟล์เสียหาย"},
    FaultRow{ArchiveFault::Damaged, "a member is damaged", "ไฟล์เสียหาย"},
};
// clang-format on
static_assert(std::ranges::is_sorted(faults, {}, &FaultRow::fault));
static_assert(faults.size() == static_cast<std::size_t>(ArchiveFault::Damaged) + 1);

// --- The headers of an archive ---

constexpr std::string_view localMark = "PK\x03\x04"sv;
constexpr std::string_view directoryMark = "PK\x01\x02"sv;
constexpr std::string_view endMark = "PK\x05\x06"sv;
constexpr std::string_view largeEndLocatorMark = "PK\x06\x07"sv;

constexpr std::size_t localSize = 30;
constexpr std::size_t directorySize = 46;
constexpr std::size_t endSize = 22;
constexpr std::size_t largeEndLocatorSize = 20;
constexpr std::size_t longestComment = 0xFFFF;

constexpr std::uint32_t storedMethod = 0;
constexpr std::uint32_t deflatedMethod = 8;

// A data descriptor stands behind the packed bytes of a member whose header was written before its sizes were
// known: check sum and two sizes of four or eight bytes, with a mark of four or without.
constexpr std::size_t longestDescriptor = 24;

constexpr unsigned encryptedFlags = 0x0001U | 0x0040U | 0x2000U;
constexpr unsigned sizesFollowFlag = 0x0008U;
constexpr std::uint32_t sizeElsewhere = 0xFFFFFFFFU; // In an extra field of the 64-bit form.

std::uint64_t numberAt(std::string_view bytes, std::size_t at, std::size_t width) {
    std::uint64_t number = 0;
    for (std::size_t place = width; place-- > 0;)
        number = number << 8U | static_cast<std::uint8_t>(bytes[at + place]);
    return number;
}

std::uint32_t shortAt(std::string_view bytes, std::size_t at) {
    return static_cast<std::uint32_t>(numberAt(bytes, at, 2));
}

std::uint32_t longAt(std::string_view bytes, std::size_t at) {
    return static_cast<std::uint32_t>(numberAt(bytes, at, 4));
}

// Whether a header of `size` bytes with this mark stands there, whole.
bool headerAt(std::string_view bytes, std::size_t at, std::string_view mark, std::size_t size) {
    return at <= bytes.size() && bytes.size() - at >= size && bytes.substr(at).starts_with(mark);
}

// The end of the directory closes the file, with a comment at most between.
std::optional<std::size_t> findEnd(std::string_view bytes) {
    if (bytes.size() < endSize) return std::nullopt;
    for (std::size_t comment = 0; comment <= std::min(longestComment, bytes.size() - endSize); ++comment) {
        const std::size_t at = bytes.size() - endSize - comment;
        if (headerAt(bytes, at, endMark, endSize) && shortAt(bytes, at + 20) == comment) return at;
    }
    return std::nullopt;
}

struct Directory {
    std::size_t begin = 0;
    std::size_t end = 0;
};

ArchiveFault findDirectory(std::string_view bytes, std::size_t memberCount, Directory& directory) {
    const auto end = findEnd(bytes);
    if (!end) return ArchiveFault::NotAnArchive;
    // The 64-bit form is for archives of other sizes than these; its counts would be believed before they are
    // checked.
    if (*end >= largeEndLocatorSize
        && headerAt(bytes, *end - largeEndLocatorSize, largeEndLocatorMark, largeEndLocatorSize))
        return ArchiveFault::Contradiction;
    const bool isOneDisk = shortAt(bytes, *end + 4) == 0 && shortAt(bytes, *end + 6) == 0;
    const std::uint32_t count = shortAt(bytes, *end + 8);
    if (!isOneDisk || count != shortAt(bytes, *end + 10)) return ArchiveFault::Contradiction;
    if (count != memberCount) return ArchiveFault::MemberCount;
    const std::uint64_t size = longAt(bytes, *end + 12);
    const std::uint64_t begin = longAt(bytes, *end + 16);
    if (begin + size > *end) return ArchiveFault::Contradiction;
    if (begin + size < *end) return ArchiveFault::StrayBytes;
    directory = {static_cast<std::size_t>(begin), *end};
    return ArchiveFault::None;
}

// Reads the directory entry at `at`, which moves behind it.
ArchiveFault readDirectoryEntry(
    std::string_view bytes, const Directory& directory, std::size_t& at, ArchiveEntry& entry) {
    if (!headerAt(bytes.substr(0, directory.end), at, directoryMark, directorySize))
        return ArchiveFault::Contradiction;
    const std::size_t nameSize = shortAt(bytes, at + 28);
    const std::size_t size = directorySize + nameSize + shortAt(bytes, at + 30) + shortAt(bytes, at + 32);
    if (size > directory.end - at) return ArchiveFault::Contradiction;
    entry.madeBy = shortAt(bytes, at + 4) >> 8U;
    entry.flags = shortAt(bytes, at + 8);
    entry.method = shortAt(bytes, at + 10);
    entry.checkSum = longAt(bytes, at + 16);
    entry.packedSize = longAt(bytes, at + 20);
    entry.size = longAt(bytes, at + 24);
    entry.attributes = longAt(bytes, at + 38);
    entry.begin = longAt(bytes, at + 42);
    entry.name = bytes.substr(at + directorySize, nameSize);
    if (shortAt(bytes, at + 34) != 0) return ArchiveFault::Contradiction; // On another disk.
    at += size;
    return ArchiveFault::None;
}

// A local header repeats its directory entry, unless the sizes were not known yet.
bool agrees(std::string_view bytes, const ArchiveEntry& entry) {
    const std::size_t at = entry.begin;
    if (shortAt(bytes, at + 6) != entry.flags || shortAt(bytes, at + 8) != entry.method) return false;
    if (bytes.substr(at + localSize, shortAt(bytes, at + 26)) != entry.name) return false;
    if ((entry.flags & sizesFollowFlag) != 0) return true;
    const auto sameSize = [](std::uint32_t local, std::uint32_t stated) {
        return local == stated || local == sizeElsewhere;
    };
    return longAt(bytes, at + 14) == entry.checkSum && sameSize(longAt(bytes, at + 18), entry.packedSize)
           && sameSize(longAt(bytes, at + 22), entry.size);
}

ArchiveFault readLocalHeader(std::string_view bytes, const Directory& directory, ArchiveEntry& entry) {
    const std::string_view before = bytes.substr(0, directory.begin);
    if (!headerAt(before, entry.begin, localMark, localSize)) return ArchiveFault::Contradiction;
    const std::uint64_t end = std::uint64_t{entry.begin} + localSize + shortAt(bytes, entry.begin + 26)
                              + shortAt(bytes, entry.begin + 28) + entry.packedSize;
    if (end > before.size() || !agrees(bytes, entry)) return ArchiveFault::Contradiction;
    entry.end = static_cast<std::size_t>(end);
    return ArchiveFault::None;
}

// --- The walls ---

// No name is ever used as a path, so that a folder in front of it does no harm; but a name that leads
// somewhere was written by somebody who hoped that it would be.
bool isHarmlessName(std::string_view name) {
    if (name.empty() || name.starts_with('/') || name.starts_with('\\')) return false;
    if (std::ranges::any_of(name, [](char c) { return static_cast<unsigned char>(c) < ' ' || c == ':'; }))
        return false;
    for (std::size_t begin = 0; begin < name.size();) {
        const std::size_t end = std::min(name.find_first_of("/\\", begin), name.size());
        if (name.substr(begin, end - begin) == "..") return false;
        begin = end + 1;
    }
    return true;
}

bool isOrdinaryFile(const ArchiveEntry& entry) {
    constexpr std::uint32_t madeByUnix = 3;
    constexpr std::uint32_t madeByDarwin = 19;
    constexpr std::uint32_t dosFolderOrLabel = 0x10U | 0x08U;
    constexpr std::uint32_t unixKind = 0170000U;
    constexpr std::uint32_t unixFile = 0100000U;
    if (entry.name.ends_with('/') || entry.name.ends_with('\\')) return false;
    if ((entry.attributes & dosFolderOrLabel) != 0) return false;
    if (entry.madeBy != madeByUnix && entry.madeBy != madeByDarwin) return true;
    const std::uint32_t kind = entry.attributes >> 16U & unixKind;
    return kind == 0 || kind == unixFile;
}

ArchiveFault judge(const ArchiveEntry& entry, const ReadingLimits& limits) {
    if (!isHarmlessName(entry.name)) return ArchiveFault::BadName;
    if (!isOrdinaryFile(entry)) return ArchiveFault::NotAFile;
    if ((entry.flags & encryptedFlags) != 0) return ArchiveFault::Encrypted;
    if (entry.method != storedMethod && entry.method != deflatedMethod) return ArchiveFault::Method;
    if (entry.size > limits.memberBytes) return ArchiveFault::UnpackedTooLarge;
    if (entry.method == storedMethod && entry.size != entry.packedSize) return ArchiveFault::Contradiction;
    return ArchiveFault::None;
}

// Members stand one behind the other from the first byte up to the directory, two of them not under one name.
ArchiveFault judgeTogether(std::vector<ArchiveEntry> entries, const Directory& directory) {
    std::ranges::sort(entries, {}, &ArchiveEntry::begin);
    std::size_t end = 0;
    std::size_t room = 0; // For the data descriptor of the member before.
    for (const ArchiveEntry& entry : entries) {
        if (entry.begin < end) return ArchiveFault::Contradiction;
        if (entry.begin > end + room) return ArchiveFault::StrayBytes;
        end = entry.end;
        room = (entry.flags & sizesFollowFlag) != 0 ? longestDescriptor : 0;
    }
    if (directory.begin > end + room) return ArchiveFault::StrayBytes;
    std::ranges::sort(entries, {}, &ArchiveEntry::name);
    const bool twice = std::ranges::adjacent_find(entries, {}, &ArchiveEntry::name) != entries.end();
    return twice ? ArchiveFault::Contradiction : ArchiveFault::None;
}

ArchiveFault readInto(std::vector<ArchiveEntry>& entries, std::string_view bytes, std::size_t memberCount,
    const ReadingLimits& limits) {
    if (bytes.size() > limits.fileBytes) return ArchiveFault::TooLarge;
    Directory directory;
    if (const auto fault = findDirectory(bytes, memberCount, directory); fault != ArchiveFault::None)
        return fault;
    std::size_t at = directory.begin;
    for (std::size_t number = 0; number < memberCount; ++number) {
        ArchiveEntry& entry = entries.emplace_back();
        ArchiveFault fault = readDirectoryEntry(bytes, directory, at, entry);
        if (fault == ArchiveFault::None) fault = judge(entry, limits);
        if (fault == ArchiveFault::None) fault = readLocalHeader(bytes, directory, entry);
        if (fault != ArchiveFault::None) return fault;
    }
    if (at != directory.end) return ArchiveFault::StrayBytes;
    return judgeTogether(entries, directory);
}

} // namespace

std::string_view faultCause(ArchiveFault fault) { return faults.at(static_cast<std::size_t>(fault)).cause; }

std::string faultText(ArchiveFault fault) {
    if (fault == ArchiveFault::None) return {};
    return fmt::format("ไม่สามารถอ่านไฟล์ข้อมูลได้ ({})", faults.at(static_cast<std::size_t>(fault)).text);
}

bool beginsAsArchive(std::string_view bytes) {
    return bytes.starts_with(localMark) || bytes.starts_with(endMark);
}

Headers readHeaders(std::string_view bytes, std::size_t memberCount, const ReadingLimits& limits) {
    Headers headers;
    headers.fault = readInto(headers.entries, bytes, memberCount, limits);
    if (headers.fault != ArchiveFault::None) headers.entries.clear();
    return headers;
}

} // namespace lodge
