#include "invariants.h"

#include "file/archive.h"
#include "file/line_codec.h"
#include "file/return_file.h"
#include "state/return_state.h"

#include <cstdio>
#include <cstdlib>
#include <vector>

namespace lodge::fuzz {

namespace {

constexpr std::string_view lineEnd = "\r\n";

void demand(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

template <typename Change>
std::string changeLines(std::string_view text, Change change) {
    std::string changed;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of(lineEnd), text.size());
        changed.append(change(text.substr(0, end))).append(lineEnd);
        text.remove_prefix(end);
        text.remove_prefix(text.starts_with(lineEnd) ? lineEnd.size() : std::size_t{!text.empty()});
    }
    return changed;
}

} // namespace

std::string encodeLines(std::string_view text) { return changeLines(text, encodeLine); }

std::string decodeLines(std::string_view text) {
    return changeLines(text, [](std::string_view line) {
        const DecodedLine decoded = decodeLine(line);
        return line.starts_with('0') && !decoded.damaged ? decoded.text : std::string(line);
    });
}

void checkCodec(std::string_view bytes) {
    const DecodedLine again = decodeLine(encodeLine(bytes));
    demand(!again.damaged && again.text == bytes, "a line survives the codec");
    const DecodedLine decoded = decodeLine(bytes);
    demand(
        decoded.damaged || encodeLine(decoded.text) == bytes, "a sound line is the one encoding of its text");
}

void checkReturnText(std::string_view bytes) {
    ReturnState state;
    const ReadResult read = readReturn(bytes, state);
    demand((read.status == ReadStatus::Loaded) == read.message.empty(),
        "a refusal, and only a refusal, has a message");
    const std::vector<std::string> lines = returnLines(state);
    demand(lines.size() == 261, "a return has 261 lines");
    demand(returnLines(state) == lines, "a store changes nothing that a second one would change");
    if (read.status != ReadStatus::Loaded) return;
    // The same lines come back only when the values are such as a page makes: a date without a month is not,
    // and loses its shape. Those are the property tests' matter.
    ReturnState again;
    demand(readReturn(encodeReturn(state), again).status == ReadStatus::Loaded,
        "what was loaded can be stored and loaded");
}

void checkArchive(std::string_view bytes, std::size_t memberCount) {
    const Unpacked unpacked = unpackArchive(bytes, memberCount);
    if (unpacked.fault != ArchiveFault::None) {
        demand(unpacked.members.empty(), "a refused archive gives nothing");
        return;
    }
    demand(unpacked.members.size() == memberCount, "the members asked for");
    const std::chrono::local_seconds moment{};
    for (const Member& member : unpacked.members) {
        demand(member.content.size() <= readingLimits.memberBytes, "a member within the limit");
        const Packed packed = packArchive("return.txt", member.content, moment);
        demand(packed.error.empty(), "what was unpacked can be packed");
        const Unpacked again = unpackArchive(packed.bytes, 1);
        demand(again.fault == ArchiveFault::None && again.members.front().content == member.content,
            "a member survives its archive");
    }
}

} // namespace lodge::fuzz
