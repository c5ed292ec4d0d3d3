#include "file/zip.h"

#include "file/archive.h"
#include "file/file_io.h"
#include "file/safe_writer.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

namespace lodge {

namespace {

// Each new list begins with this entry, in its own spelling. It names no file and packs nothing, but it takes
// a place in the list, and the name is refused as listed already.
constexpr std::string_view placeholder = "querty";
constexpr std::size_t longestList = 100;
constexpr int failed = 1;

// The listed files as members, named without their folders. The cause when one of them cannot be read.
std::optional<std::string> readListed(const std::vector<std::string>& names, std::vector<Member>& members) {
    for (const std::string& name : names) {
        if (name == placeholder) continue;
        const std::string path = nativePath(name);
        FileContent file = readWholeFile(path, readingLimits.memberBytes);
        if (!file.error.empty()) return fmt::format("{}: {}", name, file.error);
        members.push_back({splitPath(path).name, std::move(file.bytes)});
    }
    if (members.empty()) return "CGZipFiles::MakeZipFile: nothing to pack";
    return std::nullopt;
}

} // namespace

CGZipFiles::CGZipFiles() : names{std::string(placeholder)} {}

std::optional<ZipRefusal> CGZipFiles::AddFile(const std::string& name) {
    if (std::ranges::find(names, name) != names.end()) return alreadyListed;
    names.push_back(name);
    return std::nullopt;
}

std::optional<ZipRefusal> CGZipFiles::RemoveFile(const std::string& name) {
    const auto found = std::ranges::find(names, name);
    if (found == names.end()) return notListed;
    names.erase(found);
    return std::nullopt;
}

int CGZipFiles::MakeZipFile() {
    const auto fail = [this](std::string message) {
        lastMessage = std::move(message);
        return failed;
    };
    lastMessage.clear();
    if (names.size() > longestList)
        return fail(fmt::format("CGZipFiles::MakeZipFile: more than {} files", longestList));
    std::vector<Member> members;
    if (auto cause = readListed(names, members)) return fail(std::move(*cause));
    Packed packed = packArchive(members, MemberTime);
    if (!packed.error.empty()) return fail(std::move(packed.error));
    SystemFiles files;
    const SafeStoreResult stored = storeSafely(files, nativePath(ZipFileName), packed.bytes);
    return stored.ok() ? 0 : fail(storeFailureText(stored));
}

int CGUnzipFiles::Unzip(const std::string& zipName, const std::string& extractDir) {
    lastMessage.clear();
    written.clear();
    if (!zipName.empty()) ZipFileName = zipName;
    if (!extractDir.empty()) ExtractDir = extractDir;

    const auto fail = [this](std::string message) {
        lastMessage = std::move(message);
        return failed;
    };
    FileContent file = readWholeFile(nativePath(ZipFileName), readingLimits.fileBytes);
    if (!file.error.empty()) return fail(std::move(file.text));
    // Every member is read before the first is written: a damaged archive leaves nothing behind.
    const Unpacked archive = unpackArchive(file.bytes, MemberCount);
    if (archive.fault != ArchiveFault::None) return fail(faultText(archive.fault));
    if (TestZip) return 0;

    SystemFiles files;
    for (const Member& member : archive.members) {
        std::string name = splitPath(member.name).name;
        if (SpaceToUnderScore) std::ranges::replace(name, ' ', '_');
        const std::string path = asFolder(ExtractDir) + name;
        if (!OverWriteFiles && fileExists(path)) return fail(fmt::format("{}: มีไฟล์นี้อยู่แล้ว", path));
        const SafeStoreResult stored = storeSafely(files, path, member.content);
        if (!stored.ok()) return fail(storeFailureText(stored));
        written.push_back(path);
    }
    return 0;
}

} // namespace lodge
