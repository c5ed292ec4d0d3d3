// A copy of the return in hand, so that a crash or a power cut costs no more than the field being typed.
//
// Each program that runs has one copy in a folder of its user, never over a file of the user. Beside it lies
// a file that the program keeps locked: the kernel lets go of the lock however the program ends, so a copy
// whose lock is free is what a program left that could not end by itself.
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <utility>

namespace lodge {

/// The folder of the copies: below `stateHome` ($XDG_STATE_HOME) or, where that is empty or no whole path,
/// below ".local/state" of `home`. Empty where neither is known.
[[nodiscard]] std::string recoveryFolder(std::string_view stateHome, std::string_view home);

/// A copy's place in the folder, held by this process alone. Letting go of it leaves the copy where it is.
class RecoverySlot {
  public:
    /// A new place in the folder, which is made. Nothing when that is not possible.
    [[nodiscard]] static std::optional<RecoverySlot> make(const std::string& folder);
    /// The place of that copy; nothing while another program holds it.
    [[nodiscard]] static std::optional<RecoverySlot> claim(const std::string& path);

    RecoverySlot(RecoverySlot&& other) noexcept;
    RecoverySlot& operator=(RecoverySlot&& other) noexcept;
    RecoverySlot(const RecoverySlot&) = delete;
    RecoverySlot& operator=(const RecoverySlot&) = delete;
    ~RecoverySlot();

    /// Where the copy is, or will be: a packed return.
    [[nodiscard]] const std::string& path() const { return path_; }
    /// Removes the copy.
    void clear() const;

  private:
    RecoverySlot(std::string path, int lock) : path_(std::move(path)), lock_(lock) {}
    void letGo();

    std::string path_;
    int lock_ = -1;
};

/// Writes the copy of this process on a thread of its own, because reaching the disk takes longer than a
/// person waits between two keys. The last text counts; texts that are overtaken are never written.
class RecoveryWriter {
  public:
    explicit RecoveryWriter(std::string folder);
    /// Ends what is under way; the copy stays.
    ~RecoveryWriter();
    RecoveryWriter(const RecoveryWriter&) = delete;
    RecoveryWriter& operator=(const RecoveryWriter&) = delete;

    /// Has the copy become this text of encoded lines, and returns at once. A copy that cannot be written is
    /// tried again with the next text.
    void write(std::string text);
    /// Removes the copy. Nothing of it is left when the call returns.
    void remove();
    /// From now on the copy is this one.
    void adopt(RecoverySlot slot);
    /// Returns once everything is written.
    void flush();

  private:
    void work(const std::stop_token& stop);
    void store(const std::string& text);

    std::string folder_;
    std::optional<RecoverySlot> slot_;
    std::mutex mutex_;
    std::condition_variable_any wake_;
    std::condition_variable_any idle_;
    std::optional<std::string> pending_;
    bool writing_ = false;
    std::jthread thread_; // the last member: it works with the others
};

/// What a stored return tells of itself.
struct ReturnNote {
    std::string path;
    std::chrono::sys_seconds storedAt;
    std::string number; ///< The filer's 13-digit number; empty when not given yet.
    std::string start;  ///< The accounting period, eight digits day, month, B.E. year.
    std::string finish;
};

struct RecoveredReturn {
    RecoverySlot slot;
    ReturnNote note;
};

/// The newest copy that a program left, whole and readable to its last line; it is held until the result is
/// given up. Damaged ones are passed over and stay. Nothing when there is none.
[[nodiscard]] std::optional<RecoveredReturn> findRecovered(const std::string& folder);

/// The newest automatic store in that folder that is whole and readable; nothing when there is none.
[[nodiscard]] std::optional<ReturnNote> newestAutomaticStore(const std::string& folder);

} // namespace lodge
