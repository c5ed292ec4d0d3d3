#include "file/recovery.h"

#include "file/archive.h"
#include "file/file_io.h"
#include "file/file_operations.h"
#include "file/safe_writer.h"
#include "file/store_load.h"

#include <fmt/format.h>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace lodge {

namespace {

constexpr std::string_view copyEnding = ".txt";
constexpr std::string_view lockEnding = ".lock";
constexpr std::string_view automaticEnding = "T.txt";
constexpr std::string_view innerName = "recoveryM.txt";

std::string lockPathOf(std::string_view copyPath) {
    return fmt::format("{}{}", copyPath.substr(0, copyPath.size() - copyEnding.size()), lockEnding);
}

/// A program that removed its lock between our opening and our locking it has left us one without a name.
bool isStillThere(int lock, const std::string& path) {
    struct stat held {};
    struct stat named {};
    return ::fstat(lock, &held) == 0 && ::stat(path.c_str(), &named) == 0 && held.st_ino == named.st_ino
           && held.st_dev == named.st_dev;
}

/// The handle of the lock, held; -1 when another program holds it, or it cannot be made.
int holdLock(const std::string& path) {
    const int lock = ::open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (lock < 0) return -1;
    if (::flock(lock, LOCK_EX | LOCK_NB) == 0 && isStillThere(lock, path)) return lock;
    ::close(lock);
    return -1;
}

/// The folder and those above it that are missing.
bool makeFolders(FileOperations& files, const std::string& folder) {
    for (std::size_t end = folder.find('/', 1); end != std::string::npos; end = folder.find('/', end + 1)) {
        const std::string part = folder.substr(0, end);
        if (files.kindOf(part).error == ENOENT && !makeFolderSafely(files, part).ok()) return false;
    }
    return true;
}

struct Candidate {
    std::string path;
    std::chrono::sys_seconds storedAt;
};

/// The files of a folder whose names end so, the newest first.
std::vector<Candidate> newestFirst(const std::string& folder, std::string_view ending) {
    SystemFiles files;
    std::vector<Candidate> found;
    for (const std::string& name : files.namesIn(folder).value) {
        const std::string path = asFolder(folder) + name;
        struct stat entry {};
        if (!name.starts_with('.') && name.ends_with(ending) && ::stat(path.c_str(), &entry) == 0
            && S_ISREG(entry.st_mode))
            found.push_back({path, std::chrono::sys_seconds(std::chrono::seconds(entry.st_mtime))});
    }
    std::ranges::sort(found, std::ranges::greater(), &Candidate::storedAt);
    return found;
}

/// What the program would load; nothing unless it loads whole.
std::optional<ReturnNote> noteOf(const Candidate& candidate) {
    constexpr std::size_t numberField = 45;
    constexpr int anyYear = 2561; // the period's texts do not depend on it
    ReturnState state;
    const ReadResult read = loadReturn(candidate.path, state, anyYear);
    if (read.status != ReadStatus::Loaded || !read.damagedLines.empty()) return std::nullopt;
    return ReturnNote{.path = candidate.path,
        .storedAt = candidate.storedAt,
        .number = state.strFldPage1[numberField],
        .start = state.strStartDDMMYY,
        .finish = state.strFinishDDMMYY};
}

/// Locks whose copies are gone: a program died behind a store.
void sweepLocks(const std::string& folder) {
    SystemFiles files;
    for (const Candidate& lock : newestFirst(folder, lockEnding)) {
        const std::string copy = lock.path.substr(0, lock.path.size() - lockEnding.size()).append(copyEnding);
        if (files.kindOf(copy).error == ENOENT)
            (void)RecoverySlot::claim(copy); // letting go of a place without a copy removes it
    }
}

} // namespace

std::string recoveryFolder(std::string_view stateHome, std::string_view home) {
    constexpr std::string_view place = "lodge77/recovery/";
    if (stateHome.starts_with('/')) return fmt::format("{}/{}", stateHome, place);
    return home.starts_with('/') ? fmt::format("{}/.local/state/{}", home, place) : std::string();
}

std::optional<RecoverySlot> RecoverySlot::make(const std::string& folder) {
    SystemFiles files;
    if (folder.empty() || !makeFolders(files, folder)) return std::nullopt;
    return claim(fmt::format("{}{:016x}{}", folder, files.randomNumber(), copyEnding));
}

std::optional<RecoverySlot> RecoverySlot::claim(const std::string& path) {
    const int lock = holdLock(lockPathOf(path));
    if (lock < 0) return std::nullopt;
    return RecoverySlot(path, lock);
}

RecoverySlot::RecoverySlot(RecoverySlot&& other) noexcept
    : path_(std::move(other.path_)), lock_(std::exchange(other.lock_, -1)) {}

RecoverySlot& RecoverySlot::operator=(RecoverySlot&& other) noexcept {
    if (this != &other) {
        letGo();
        path_ = std::move(other.path_);
        lock_ = std::exchange(other.lock_, -1);
    }
    return *this;
}

RecoverySlot::~RecoverySlot() { letGo(); }

void RecoverySlot::clear() const {
    SystemFiles files;
    sweepFile(files, path_);
}

void RecoverySlot::letGo() {
    if (lock_ < 0) return;
    SystemFiles files;
    // While the lock is still held: whoever opened the same file finds it gone and does not count on it.
    if (files.kindOf(path_).error == ENOENT) sweepFile(files, lockPathOf(path_));
    ::close(std::exchange(lock_, -1));
}

RecoveryWriter::RecoveryWriter(std::string folder)
    : folder_(std::move(folder)), thread_([this](const std::stop_token& stop) { work(stop); }) {}

RecoveryWriter::~RecoveryWriter() {
    thread_.request_stop();
    thread_.join();
}

void RecoveryWriter::write(std::string text) {
    {
        const std::lock_guard held(mutex_);
        pending_ = std::move(text);
    }
    wake_.notify_one();
}

void RecoveryWriter::remove() {
    std::unique_lock held(mutex_);
    pending_.reset();
    idle_.wait(held, [this] { return !writing_; });
    if (slot_) {
        slot_->clear();
        slot_.reset();
    }
}

void RecoveryWriter::adopt(RecoverySlot slot) {
    std::unique_lock held(mutex_);
    idle_.wait(held, [this] { return !writing_; });
    if (slot_) slot_->clear();
    slot_ = std::move(slot);
}

void RecoveryWriter::flush() {
    std::unique_lock held(mutex_);
    idle_.wait(held, [this] { return !writing_ && !pending_; });
}

void RecoveryWriter::work(const std::stop_token& stop) {
    std::unique_lock held(mutex_);
    while (wake_.wait(held, stop, [this] { return pending_.has_value(); })) {
        const std::string text = std::move(*pending_);
        pending_.reset();
        writing_ = true;
        held.unlock();
        store(text);
        held.lock();
        writing_ = false;
        idle_.notify_all();
    }
}

/// Nobody else touches the slot meanwhile: they wait until nothing is being written.
void RecoveryWriter::store(const std::string& text) {
    if (!slot_) slot_ = RecoverySlot::make(folder_);
    if (!slot_) return;
    const Packed packed =
        packArchive(innerName, text, std::chrono::local_days{std::chrono::year{1980} / 1 / 1});
    SystemFiles files;
    if (packed.error.empty()) (void)storeSafely(files, slot_->path(), packed.bytes);
}

std::optional<RecoveredReturn> findRecovered(const std::string& folder) {
    sweepLocks(folder);
    for (const Candidate& candidate : newestFirst(folder, copyEnding)) {
        auto slot = RecoverySlot::claim(candidate.path);
        if (!slot) continue;
        if (auto note = noteOf(candidate)) return RecoveredReturn{std::move(*slot), std::move(*note)};
    }
    return std::nullopt;
}

std::optional<ReturnNote> newestAutomaticStore(const std::string& folder) {
    for (const Candidate& candidate : newestFirst(folder, automaticEnding))
        if (auto note = noteOf(candidate)) return note;
    return std::nullopt;
}

} // namespace lodge
