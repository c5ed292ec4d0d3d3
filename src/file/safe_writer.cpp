#include "file/safe_writer.h"

#include <fmt/format.h>

#include <array>
#include <cerrno>
#include <optional>
#include <utility>

namespace lodge {

namespace {

constexpr int maxLinks = 40; // As many as the kernel follows.
constexpr int maxInterruptions =
    100; // Of one call: a signal now and then passes, a storm of them is a failure.
constexpr int maxNameCollisions = 16; // Of a random name: more than one means that something else is wrong.
constexpr std::string_view ownMark = ".lodge77-";
constexpr std::string_view ownEnding = ".part";

struct Target {
    std::string folder; // With its closing "/", "./" for the current one.
    std::string name;

    [[nodiscard]] std::string path() const { return folder + name; }
};

Target targetAt(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos) return {"./", path};
    return {path.substr(0, slash + 1), path.substr(slash + 1)};
}

SafeStoreResult failure(StoreStep step, int error, std::string path) {
    return {step, error, std::move(path)};
}

// A call that a signal interrupted has done nothing yet. Only calls for which that holds are repeated.
template <typename Call>
auto repeatInterrupted(Call call) {
    auto outcome = call();
    for (int again = 0; outcome.error == EINTR && again < maxInterruptions; ++again)
        outcome = call();
    return outcome;
}

// --- Where the bytes go ---

// The kind of what has the target's name, none when nothing has; an errno of any other failure.
Outcome<std::optional<EntryKind>> kindIfAny(FileOperations& files, const std::string& path) {
    const auto kind = repeatInterrupted([&] { return files.kindOf(path); });
    if (kind.error == ENOENT) return {};
    if (!kind.ok()) return {{}, kind.error};
    return {kind.value, 0};
}

Outcome<std::string> behindLink(FileOperations& files, const std::string& path) {
    auto link = repeatInterrupted([&] { return files.linkTarget(path); });
    if (link.ok() && !link.value.starts_with('/')) link.value.insert(0, targetAt(path).folder);
    return link;
}

// Follows links to the path that is to be replaced. Only a file may stand there, or nothing: a rename would
// put a file in the place of a pipe or a device just as quietly.
Outcome<std::string> pathToReplace(FileOperations& files, std::string path) {
    for (int links = 0; links < maxLinks; ++links) {
        if (targetAt(path).name.empty()) return {path, EISDIR};
        const auto kind = kindIfAny(files, path);
        if (!kind.ok()) return {path, kind.error};
        if (!kind.value || *kind.value == EntryKind::File) return {path, 0};
        if (*kind.value == EntryKind::Folder) return {path, EISDIR};
        if (*kind.value == EntryKind::Other) return {path, EINVAL};
        auto next = behindLink(files, path);
        if (!next.ok()) return {path, next.error};
        path = std::move(next.value);
    }
    return {path, ELOOP};
}

// --- The temporary file ---

std::string ownPrefix(const std::string& name) { return fmt::format(".{}{}", name, ownMark); }

std::string ownName(const std::string& name, std::uint64_t number) {
    return fmt::format("{}{:016x}{}", ownPrefix(name), number, ownEnding);
}

// Whether an earlier store of the file `name` gave `entry` its name: no other file of the folder looks
// exactly like that.
bool isLeftOver(std::string_view entry, const std::string& name) {
    const std::string prefix = ownPrefix(name);
    if (entry.size() != ownName(name, 0).size()) return false;
    if (!entry.starts_with(prefix) || !entry.ends_with(ownEnding)) return false;
    const std::string_view number =
        entry.substr(prefix.size(), entry.size() - prefix.size() - ownEnding.size());
    return number.find_first_not_of("0123456789abcdef") == std::string_view::npos;
}

// A left-over hinders nobody, so that nothing here is a reason to refuse the store; but on a full disk its
// room may be just what the store needs. The sweep can hit the temporary file of another program that is
// storing the same return in this moment: its own name is random, so that its rename then finds nothing and
// it says that it failed.
void sweepLeftOvers(FileOperations& files, const Target& target) {
    for (const std::string& entry : files.namesIn(target.folder).value)
        if (isLeftOver(entry, target.name)) sweepFile(files, target.folder + entry);
}

// Closes a handle at the latest when it goes out of scope.
class Handle {
  public:
    Handle(FileOperations& files, int number) : files(files), number(number) {}
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle() { close(); }

    [[nodiscard]] int get() const { return number; }
    int close() { return number < 0 ? 0 : files.close(std::exchange(number, -1)); }

  private:
    FileOperations& files;
    int number;
};

// Removes the temporary file unless it has become the target.
class Temporary {
  public:
    Temporary(FileOperations& files, std::string path) : files(files), path(std::move(path)) {}
    Temporary(const Temporary&) = delete;
    Temporary& operator=(const Temporary&) = delete;
    ~Temporary() {
        if (!path.empty()) files.removeFile(path);
    }

    void keep() { path.clear(); }

  private:
    FileOperations& files;
    std::string path;
};

struct Created {
    std::string path;
    Outcome<int> handle;
};

Created createTemporary(FileOperations& files, const Target& target) {
    Created created;
    for (int attempt = 0; attempt < maxNameCollisions; ++attempt) {
        created.path = target.folder + ownName(target.name, files.randomNumber());
        created.handle = repeatInterrupted([&] { return files.createFile(created.path); });
        if (created.handle.error != EEXIST) break;
    }
    return created;
}

int writeAll(FileOperations& files, int handle, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto taken = repeatInterrupted([&] { return files.write(handle, bytes); });
        if (!taken.ok()) return taken.error;
        if (taken.value == 0) return EIO; // No progress and no cause: not worth an endless loop.
        bytes.remove_prefix(taken.value);
    }
    return 0;
}

// A close that a signal interrupts has closed all the same, and the bytes were on the disk before.
int closeSynced(Handle& handle) {
    const int error = handle.close();
    return error == EINTR ? 0 : error;
}

SafeStoreResult fill(FileOperations& files, const Created& created, std::string_view bytes) {
    Handle handle(files, created.handle.value);
    if (const int error = writeAll(files, handle.get(), bytes))
        return failure(StoreStep::Write, error, created.path);
    // Not repeated, whatever the cause: after a failed sync the kernel may have dropped the bytes.
    if (const int error = files.sync(handle.get())) return failure(StoreStep::Sync, error, created.path);
    if (const int error = closeSynced(handle)) return failure(StoreStep::Close, error, created.path);
    return {};
}

SafeStoreResult replace(FileOperations& files, const Target& target, std::string_view bytes) {
    const Created created = createTemporary(files, target);
    if (!created.handle.ok()) return failure(StoreStep::Create, created.handle.error, target.path());
    Temporary temporary(files, created.path);
    SafeStoreResult filled = fill(files, created, bytes);
    if (!filled.ok()) {
        filled.path = target.path(); // The name that the user knows.
        return filled;
    }
    if (const int error = files.rename(created.path, target.path()))
        return failure(StoreStep::Replace, error, target.path());
    temporary.keep();
    return {};
}

Outcome<int> openFolder(FileOperations& files, const std::string& folder) {
    return repeatInterrupted([&] { return files.openFolder(folder); });
}

// --- What the user is told ---

struct CauseRow {
    int error;
    std::string_view text;
};

constexpr std::array causes{
    CauseRow{ENOSPC, "พื้นที่ว่างในดิสก์ไม่พอ"},
    CauseRow{EDQUOT, "ใช้พื้นที่ดิสก์ครบตามโควตาแล้ว"},
    CauseRow{EFBIG, "ไฟล์ใหญ่เกินกว่าที่ดิสก์รับได้"},
    CauseRow{EACCES, "ไม่มีสิทธิ์เขียนลงในโฟลเดอร์นี้"},
    CauseRow{EPERM, "ไม่มีสิทธิ์เขียนลงในโฟลเดอร์นี้"},
    CauseRow{EROFS, "ดิสก์นี้อ่านได้อย่างเดียว"},
    CauseRow{ENOENT, "ไม่พบโฟลเดอร์"},
    CauseRow{ENOTDIR, "ไม่พบโฟลเดอร์"},
    CauseRow{ESTALE, "การเชื่อมต่อกับดิสก์ขาดหาย"},
    CauseRow{ENODEV, "การเชื่อมต่อกับดิสก์ขาดหาย"},
    CauseRow{ENXIO, "การเชื่อมต่อกับดิสก์ขาดหาย"},
    CauseRow{EIO, "อุปกรณ์จัดเก็บข้อมูลขัดข้อง"},
    CauseRow{ENAMETOOLONG, "ชื่อไฟล์หรือชื่อโฟลเดอร์ยาวเกินไป"},
    CauseRow{EISDIR, "มีโฟลเดอร์ใช้ชื่อนี้อยู่แล้ว"},
    CauseRow{EINVAL, "ชื่อนี้ไม่ใช่ไฟล์ธรรมดา หรือดิสก์ไม่รองรับการจัดเก็บอย่างปลอดภัย"},
    CauseRow{ELOOP, "ลิงก์ของไฟล์ชี้วนกลับมาที่เดิม"},
    CauseRow{EBUSY, "ไฟล์กำลังถูกใช้งานอยู่"},
    CauseRow{EMFILE, "เปิดไฟล์พร้อมกันมากเกินไป"},
    CauseRow{ENFILE, "เปิดไฟล์พร้อมกันมากเกินไป"},
    CauseRow{ENOMEM, "หน่วยความจำไม่พอ"},
    CauseRow{EINTR, "การจัดเก็บถูกขัดจังหวะ"},
};

constexpr std::array<std::string_view, 8> stepTexts{
    "ไม่สามารถเข้าถึงไฟล์ที่จะจัดเก็บ",        // FindTarget
    "ไม่สามารถเปิดโฟลเดอร์",              // OpenFolder
    "ไม่สามารถสร้างไฟล์ใหม่",              // Create
    "ไม่สามารถเขียนข้อมูลลงไฟล์",           // Write
    "ไม่สามารถบันทึกข้อมูลลงดิสก์",           // Sync
    "ไม่สามารถปิดไฟล์",                   // Close
    "ไม่สามารถนำไฟล์ใหม่ไปแทนที่ไฟล์เดิม",    // Replace
    "ไม่สามารถยืนยันการบันทึกโฟลเดอร์ลงดิสก์", // SyncFolder
};
static_assert(stepTexts.size() == static_cast<std::size_t>(StoreStep::SyncFolder) + 1);

constexpr std::string_view earlierFileIsThere = "ไฟล์เดิม (ถ้ามี) ยังอยู่ครบถ้วน";
constexpr std::string_view eitherFileIsThere = "ไฟล์ที่เห็นอาจเป็นไฟล์เดิมหรือไฟล์ใหม่";
constexpr std::string_view whatNow = "ข้อมูลในโปรแกรมยังอยู่ เลือกโฟลเดอร์อื่นแล้วจัดเก็บอีกครั้งได้";

} // namespace

SafeStoreResult storeSafely(FileOperations& files, const std::string& path, std::string_view bytes) {
    const auto found = pathToReplace(files, path);
    if (!found.ok()) return failure(StoreStep::FindTarget, found.error, found.value);
    const Target target = targetAt(found.value);

    // Opened before anything is changed: in a folder that cannot reach the disk afterwards nothing is stored
    // at all.
    const auto opened = openFolder(files, target.folder);
    if (!opened.ok()) return failure(StoreStep::OpenFolder, opened.error, target.folder);
    const Handle folder(files, opened.value);

    sweepLeftOvers(files, target);
    SafeStoreResult result = replace(files, target, bytes);
    if (!result.ok()) return result;
    if (const int error = files.sync(folder.get()))
        return failure(StoreStep::SyncFolder, error, target.path());
    return {};
}

SafeStoreResult makeFolderSafely(FileOperations& files, const std::string& path) {
    std::string folder = path;
    while (folder.size() > 1 && folder.ends_with('/'))
        folder.pop_back();
    const int made = files.makeFolder(folder);
    if (made != 0 && made != EEXIST) return failure(StoreStep::Create, made, folder);

    // One that is there already may have been made by a program that was killed before the next lines.
    const std::string parent = targetAt(folder).folder;
    const auto opened = openFolder(files, parent);
    if (!opened.ok()) return failure(StoreStep::OpenFolder, opened.error, parent);
    const Handle handle(files, opened.value);
    if (const int error = files.sync(handle.get())) return failure(StoreStep::SyncFolder, error, folder);
    return {};
}

void sweepFile(FileOperations& files, const std::string& path) {
    const auto kind = files.kindOf(path);
    if (kind.ok() && kind.value == EntryKind::File) files.removeFile(path);
}

std::string failureCause(int error) {
    for (const CauseRow& row : causes)
        if (row.error == error) return std::string(row.text);
    return fmt::format("ข้อผิดพลาดของระบบหมายเลข {}", error);
}

std::string storeFailureText(const SafeStoreResult& result) {
    if (result.ok()) return {};
    return fmt::format("{} : {}\r{}\r{}\r{}", stepTexts.at(static_cast<std::size_t>(result.step)),
        failureCause(result.error), result.path,
        result.leftEarlierFile() ? earlierFileIsThere : eitherFileIsThere, whatNow);
}

} // namespace lodge
