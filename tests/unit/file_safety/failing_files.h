// File operations that fail on demand: the n-th call from now, once or from then on, with a given errno;
// writes that take fewer bytes than they are given; and the program killed before the n-th call. What is left
// is done by other file operations. A call is counted whether or not it is a write; drawing a random number
// is none.
#pragma once

#include "file/file_operations.h"

#include <cerrno>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

namespace lodge::testing {

/// Thrown instead of a call: nothing after it happens any more, not even what destructors ask for. The two
/// calls that destructors make do not throw themselves; they fail, and what the store then returns reaches
/// nobody.
struct Killed : std::runtime_error {
    Killed() : std::runtime_error("killed") {}
};

struct Fault {
    static constexpr std::size_t never = std::numeric_limits<std::size_t>::max();

    std::size_t killBefore = never; ///< Calls are counted from 0.
    std::size_t failAt = never;
    int error = 0;
    bool fromThenOn = false;
    bool thoughDone = false; ///< The failing call has its effect and reports the failure all the same.
    std::size_t mostBytesAWrite = never;
};

class FailingFiles final : public FileOperations {
  public:
    FailingFiles(FileOperations& inner, Fault fault) : inner(inner), fault(fault) {}

    [[nodiscard]] std::size_t calls() const { return log.size(); }
    /// The names of the calls, in their order.
    [[nodiscard]] const std::vector<std::string>& names() const { return log; }
    /// Whether the fault has come up.
    [[nodiscard]] bool struck() const { return hasStruck; }

    Outcome<int> createFile(const std::string& path) override {
        return run("createFile", [&] { return inner.createFile(path); });
    }
    Outcome<int> openFolder(const std::string& path) override {
        return run("openFolder", [&] { return inner.openFolder(path); });
    }
    Outcome<std::size_t> write(int handle, std::string_view bytes) override {
        return run("write", [&] { return inner.write(handle, bytes.substr(0, fault.mostBytesAWrite)); });
    }
    int sync(int handle) override {
        return runPlain("sync", [&] { return inner.sync(handle); });
    }
    // A close frees its handle even when it fails, or the process is gone.
    int close(int handle) override {
        const int closed = inner.close(handle);
        return runPlain(
            "close", [&] { return closed; }, CallFrom::Destructor);
    }
    int rename(const std::string& from, const std::string& to) override {
        return runPlain("rename", [&] { return inner.rename(from, to); });
    }
    int removeFile(const std::string& path) override {
        return runPlain(
            "removeFile", [&] { return inner.removeFile(path); }, CallFrom::Destructor);
    }
    int makeFolder(const std::string& path) override {
        return runPlain("makeFolder", [&] { return inner.makeFolder(path); });
    }
    Outcome<EntryKind> kindOf(const std::string& path) override {
        return run("kindOf", [&] { return inner.kindOf(path); });
    }
    Outcome<std::string> linkTarget(const std::string& path) override {
        return run("linkTarget", [&] { return inner.linkTarget(path); });
    }
    Outcome<std::vector<std::string>> namesIn(const std::string& folder) override {
        return run("namesIn", [&] { return inner.namesIn(folder); });
    }
    std::uint64_t randomNumber() override { return inner.randomNumber(); }

  private:
    enum class CallFrom { Anywhere, Destructor };

    template <typename Call>
    auto run(const char* name, Call call, CallFrom from = CallFrom::Anywhere) -> decltype(call()) {
        const std::size_t number = log.size();
        log.emplace_back(name);
        if (number == fault.killBefore) dead = hasStruck = true;
        if (dead) {
            if (from == CallFrom::Anywhere) throw Killed();
            return {{}, EIO};
        }
        if (number == fault.failAt || (fault.fromThenOn && number > fault.failAt)) {
            hasStruck = true;
            if (fault.thoughDone) call();
            return {{}, fault.error};
        }
        return call();
    }

    template <typename Call>
    int runPlain(const char* name, Call call, CallFrom from = CallFrom::Anywhere) {
        return run(
            name,
            [&] {
                return Outcome<int>{0, call()};
            },
            from)
            .error;
    }

    FileOperations& inner;
    Fault fault;
    std::vector<std::string> log;
    bool dead = false;
    bool hasStruck = false;
};

} // namespace lodge::testing
