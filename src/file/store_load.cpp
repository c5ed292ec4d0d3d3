#include "file/store_load.h"

#include "file/archive.h"
#include "file/file_io.h"
#include "file/safe_writer.h"
#include "state/filing.h"
#include "state/item8_sum.h"
#include "values/money.h"
#include "values/text.h"

#include <fmt/format.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace lodge {

namespace {

constexpr std::string_view extension = ".txt";
constexpr std::string_view innerMark = "M";

ReadResult unreadable(std::string message, std::string cause) {
    return {ReadStatus::Unreadable, std::move(message), std::move(cause), {}};
}

// Id and year stand in the name as the return has them, and the return may have come from a stranger: nothing
// in it may lead into another folder or end the path early.
bool isNameAlone(std::string_view name) {
    return std::ranges::none_of(
        name, [](char c) { return c == '/' || c == '\\' || static_cast<std::uint8_t>(c) < ' '; });
}

void setPeriod(ReturnState& state, int machineYear) {
    state.FucDate = {};
    state.FucDate.Str2StartDate(state.strStartDDMMYY, machineYear);
    state.FucDate.Str2EndDate(state.strFinishDDMMYY, machineYear);
    state.FucDate.SetCarryYears(carryYears(state));
}

} // namespace

ReturnFileNames returnFileNames(const ReturnState& state, std::string_view userId) {
    const std::string stem = fmt::format(
        "{}{}{}{}{}", userId, state.strTaxYear, state.strFilingType, state.strAddNo, state.strStoreType);
    return {fmt::format("{}{}{}", stem, innerMark, extension), fmt::format("{}{}", stem, extension)};
}

std::string packedPathOf(std::string_view innerPath) {
    constexpr std::size_t tail = innerMark.size() + extension.size();
    const std::size_t stem = innerPath.size() < tail ? 0 : innerPath.size() - tail;
    return fmt::format("{}{}", innerPath.substr(0, stem), extension);
}

ReadResult loadReturnText(std::string_view text, ReturnState& state, int machineYear) {
    state.beginReturn(IhqRecord::Keep);
    ReadResult result = readReturn(text, state);
    if (result.status == ReadStatus::Loaded) {
        sumItem8Lines15To26(state);
        setPeriod(state, machineYear);
    } else {
        // What was read before the text turned out to be unreadable must not stay.
        state.putAway();
        setFilingType(state);
    }
    state.DataCtrl_P1.StatusChanged = true;
    return result;
}

ReadResult loadReturn(const std::string& path, ReturnState& state, int machineYear) {
    FileContent file = readWholeFile(nativePath(path), readingLimits.fileBytes);
    if (!file.error.empty()) return unreadable(std::move(file.text), std::move(file.error));
    const Unpacked archive = unpackArchive(file.bytes, 1);
    if (archive.fault != ArchiveFault::None)
        return unreadable(faultText(archive.fault), std::string(faultCause(archive.fault)));
    return loadReturnText(archive.members.front().content, state, machineYear);
}

StoreResult storeReturn(FileOperations& files, ReturnState& state, std::string_view folder,
    std::string_view userId, std::chrono::local_seconds now) {
    setTaxYear(state);
    const ReturnFileNames names = returnFileNames(state, userId);
    const std::string place = asFolder(trimBlanks(folder));
    StoreResult result{place + names.packed, {}};
    if (!isNameAlone(names.packed)) {
        result.error = storeFailureText({StoreStep::FindTarget, EINVAL, result.packedPath});
        return result;
    }
    state.strFileName = place + names.inner;

    Packed packed = packArchive(names.inner, encodeReturn(state), now);
    if (!packed.error.empty()) {
        result.error = std::move(packed.error);
        return result;
    }
    const SafeStoreResult stored = storeSafely(files, result.packedPath, packed.bytes);
    result.error = storeFailureText(stored);
    if (stored.ok()) sweepFile(files, state.strFileName);
    return result;
}

StoreResult storeReturn(
    ReturnState& state, std::string_view folder, std::string_view userId, std::chrono::local_seconds now) {
    SystemFiles files;
    return storeReturn(files, state, folder, userId, now);
}

InnerFile readInnerFile(const std::string& path) {
    FileContent file = readWholeFile(nativePath(path), readingLimits.fileBytes);
    if (!file.error.empty()) return {{}, std::move(file.error)};
    InnerFile inner{std::move(file.bytes), {}};
    if (beginsAsArchive(inner.bytes)) {
        Unpacked archive = unpackArchive(inner.bytes, 1);
        if (archive.fault != ArchiveFault::None) return {{}, std::string(faultCause(archive.fault))};
        inner.bytes = std::move(archive.members.front().content);
    }
    if (const auto line = lineBeyondLimits(inner.bytes)) return {{}, beyondLimitsCause(*line)};
    return inner;
}

} // namespace lodge
