#include "file/archive.h"

#include <zip.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

namespace lodge {

namespace {

struct DiscardArchive {
    void operator()(zip_t* archive) const { zip_discard(archive); }
};
using Archive = std::unique_ptr<zip_t, DiscardArchive>;

struct FreeSource {
    void operator()(zip_source_t* source) const { zip_source_free(source); }
};
using Source = std::unique_ptr<zip_source_t, FreeSource>;

struct CloseMember {
    void operator()(zip_file_t* file) const { zip_fclose(file); }
};
using MemberFile = std::unique_ptr<zip_file_t, CloseMember>;

// What the library says about its last failure.
class Reason {
  public:
    Reason() { zip_error_init(&error); }
    Reason(const Reason&) = delete;
    Reason& operator=(const Reason&) = delete;
    ~Reason() { zip_error_fini(&error); }

    zip_error_t* get() { return &error; }
    std::string text() { return zip_error_strerror(&error); }

  private:
    zip_error_t error{};
};

Archive openArchive(std::string_view bytes) {
    Reason reason;
    Source source(zip_source_buffer_create(bytes.data(), bytes.size(), 0, reason.get()));
    if (!source) return nullptr;
    Archive archive(zip_open_from_source(source.get(), ZIP_RDONLY, reason.get()));
    if (archive)
        static_cast<void>(source.release()); // NOLINT(bugprone-unused-return-value): the archive's now.
    return archive;
}

// Whether libzip sees the member that the walls have judged: an archive may be made to look different to each
// reader.
bool isSeenAlike(zip_t* archive, zip_uint64_t index, const ArchiveEntry& entry) {
    zip_stat_t seen;
    if (zip_stat_index(archive, index, ZIP_FL_ENC_RAW, &seen) != 0) return false;
    return (seen.valid & ZIP_STAT_NAME) != 0 && entry.name == seen.name && seen.size == entry.size
           && seen.comp_size == entry.packedSize && seen.crc == entry.checkSum
           && seen.comp_method == entry.method && seen.encryption_method == ZIP_EM_NONE;
}

// Memory grows with what has been read, a step at a time, however much an archive claims. The claimed size
// must come, and one more read must find the end: only there does libzip compare the check sum.
std::optional<std::string> readContent(zip_t* archive, zip_uint64_t index, const ArchiveEntry& entry) {
    constexpr std::size_t step = 65536;
    const MemberFile file(zip_fopen_index(archive, index, 0));
    if (!file) return std::nullopt;
    std::string content;
    while (content.size() < entry.size) {
        const std::size_t before = content.size();
        content.resize(std::min<std::size_t>(before + step, entry.size));
        const zip_int64_t length = zip_fread(file.get(), content.data() + before, content.size() - before);
        if (length <= 0) return std::nullopt;
        content.resize(before + static_cast<std::size_t>(length));
    }
    char beyond = 0;
    if (zip_fread(file.get(), &beyond, 1) != 0) return std::nullopt;
    return content;
}

struct DosTime {
    zip_uint16_t time;
    zip_uint16_t date;
};

// The date and time words of a directory entry: they count from 1980 in steps of two seconds and know no time
// zone.
DosTime dosTime(std::chrono::local_seconds moment) {
    const auto day = std::chrono::floor<std::chrono::days>(moment);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss clock(moment - day);
    const int year = std::clamp(static_cast<int>(date.year()), 1980, 2107) - 1980;
    const unsigned dateWord = static_cast<unsigned>(year) << 9U | static_cast<unsigned>(date.month()) << 5U
                              | static_cast<unsigned>(date.day());
    const auto timeWord = static_cast<unsigned long>(clock.hours().count()) << 11U
                          | static_cast<unsigned long>(clock.minutes().count()) << 5U
                          | static_cast<unsigned long>(clock.seconds().count()) / 2U;
    return {static_cast<zip_uint16_t>(timeWord), static_cast<zip_uint16_t>(dateWord)};
}

struct MemberView {
    const std::string& name;
    std::string_view content;
};

// Its bytes are read on close.
bool addMember(zip_t* archive, const MemberView& member, DosTime time) {
    // Level 9, the library's own choice, takes eight times as long for a fifteenth less.
    constexpr zip_uint32_t level = 6;
    Source source(zip_source_buffer(archive, member.content.data(), member.content.size(), 0));
    if (!source) return false;
    const zip_int64_t added = zip_file_add(archive, member.name.c_str(), source.get(), ZIP_FL_ENC_UTF_8);
    if (added < 0) return false;
    static_cast<void>(source.release()); // NOLINT(bugprone-unused-return-value): the archive's now.
    const auto index = static_cast<zip_uint64_t>(added);
    return zip_set_file_compression(archive, index, ZIP_CM_DEFLATE, level) == 0
           && zip_file_set_dostime(archive, index, time.time, time.date, 0) == 0
           && zip_file_set_external_attributes(archive, index, 0, ZIP_OPSYS_DOS, 0) == 0;
}

bool addMembers(zip_t* archive, std::span<const MemberView> members, DosTime time) {
    return std::ranges::all_of(
        members, [&](const MemberView& member) { return addMember(archive, member, time); });
}

Packed readBack(zip_source_t* source) {
    Packed packed;
    zip_stat_t stat;
    bool done = zip_source_stat(source, &stat) == 0 && zip_source_open(source) == 0;
    if (done) {
        packed.bytes.resize(stat.size);
        done = zip_source_read(source, packed.bytes.data(), stat.size) == static_cast<zip_int64_t>(stat.size);
        zip_source_close(source);
    }
    if (!done) packed = {{}, zip_error_strerror(zip_source_error(source))};
    return packed;
}

Packed pack(std::span<const MemberView> members, std::chrono::local_seconds time) {
    Reason reason;
    const Source target(zip_source_buffer_create(nullptr, 0, 0, reason.get()));
    if (!target) return {{}, reason.text()};
    zip_source_keep(target.get()); // For the archive, which lets go of it when it is closed.
    Archive archive(zip_open_from_source(target.get(), ZIP_CREATE | ZIP_TRUNCATE, reason.get()));
    if (!archive) {
        zip_source_free(target.get());
        return {{}, reason.text()};
    }
    if (!addMembers(archive.get(), members, dosTime(time)) || zip_close(archive.get()) != 0)
        return {{}, zip_strerror(archive.get())};
    // A closed archive has freed itself.
    static_cast<void>(archive.release()); // NOLINT(bugprone-unused-return-value)
    return readBack(target.get());
}

} // namespace

Unpacked unpackArchive(std::string_view bytes, std::size_t memberCount, const ReadingLimits& limits) {
    const auto [entries, fault] = readHeaders(bytes, memberCount, limits);
    if (fault != ArchiveFault::None) return {{}, fault};
    const Archive archive = openArchive(bytes);
    if (!archive) return {{}, ArchiveFault::Damaged};
    if (zip_get_num_entries(archive.get(), 0) != static_cast<zip_int64_t>(memberCount))
        return {{}, ArchiveFault::Contradiction};

    Unpacked unpacked;
    for (std::size_t index = 0; index < entries.size(); ++index) {
        const ArchiveEntry& entry = entries[index];
        if (!isSeenAlike(archive.get(), index, entry)) return {{}, ArchiveFault::Contradiction};
        auto content = readContent(archive.get(), index, entry);
        if (!content) return {{}, ArchiveFault::Damaged};
        unpacked.members.push_back({std::string(entry.name), std::move(*content)});
    }
    return unpacked;
}

Packed packArchive(std::span<const Member> members, std::chrono::local_seconds time) {
    std::vector<MemberView> views;
    for (const Member& member : members)
        views.push_back({member.name, member.content});
    return pack(views, time);
}

Packed packArchive(std::string_view name, std::string_view content, std::chrono::local_seconds time) {
    const std::string ownName(name);
    const MemberView member{ownName, content};
    return pack({&member, 1}, time);
}

} // namespace lodge
