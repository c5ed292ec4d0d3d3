#include "file/isic_tables.h"

#include "file/archive.h"
#include "file/file_io.h"
#include "values/code_page.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>

namespace lodge {

namespace {

constexpr std::size_t archiveMembers = 2;

// A line, from 0: a quote, the code, quote, comma, quote, the name, a quote.
constexpr std::size_t codeStart = 1;
constexpr std::size_t codeLength = 6;
constexpr std::size_t nameStart = 10;
constexpr std::size_t closing = 1;

/// Longer lists could not be counted by intIsicCount.
constexpr std::size_t longestList = std::numeric_limits<std::int16_t>::max();

/// Takes the first line off the bytes, without its line break.
std::string_view takeLine(std::string_view& bytes) {
    const std::size_t end = bytes.find('\n');
    std::string_view line = bytes.substr(0, end);
    bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return line;
}

std::string_view part(std::string_view line, std::size_t start, std::size_t length) {
    return start < line.size() ? line.substr(start, length) : std::string_view();
}

std::string_view nameOf(std::string_view line) {
    return line.size() > nameStart + closing ? part(line, nameStart, line.size() - nameStart - closing)
                                             : std::string_view();
}

} // namespace

void readIsicList(std::string_view bytes, ReturnState& state) {
    state.strIsicCode.clear();
    state.strIsicName.clear();
    while (state.strIsicCode.size() < longestList) {
        const std::string_view line = takeLine(bytes);
        if (line.empty()) {
            break;
        }
        state.strIsicCode.push_back(fromCodePage(part(line, codeStart, codeLength)));
        state.strIsicName.push_back(fromCodePage(nameOf(line)));
    }
    state.intIsicCount = static_cast<std::int16_t>(state.strIsicCode.size());
}

void IsicArchive::LoadIsicTables() {
    readIsicList({}, program_.state);
    const std::string path = (program_.host().programFolder() / isicArchiveName).string();
    const FileContent file = readWholeFile(path, readingLimits.fileBytes);
    if (!file.error.empty()) {
        tell(file.text);
        return;
    }
    const Unpacked archive = unpackArchive(file.bytes, archiveMembers);
    if (archive.fault != ArchiveFault::None) {
        tell(faultText(archive.fault));
        return;
    }
    const auto list = std::ranges::find(archive.members, isicListName, &Member::name);
    if (list == archive.members.end()) {
        tell(std::string("ไม่พบไฟล์ ") + isicListName);
        return;
    }
    readIsicList(list->content, program_.state);
}

void IsicArchive::tell(const std::string& cause) {
    program_.notify(std::string(isicArchiveName) + "\r" + cause);
}

} // namespace lodge
