// The door to the outside on a desktop: boxes and dialogs in Thai, the machine's clock, folders, calendar.
#pragma once

#include "program/host.h"
#include "program/program_folder.h"

#include <utility>

namespace lodge {

/// Learns when a box or dialog waits for its answer: timers and the clock stand still meanwhile.
class WaitWatcher {
  public:
    virtual ~WaitWatcher() = default;
    virtual void waitBegins() = 0;
    virtual void waitEnds() = 0;
};

class QtHost : public Host {
  public:
    explicit QtHost(std::filesystem::path programFolder = folderOfExecutable())
        : programFolder_(std::move(programFolder)) {}

    void watch(WaitWatcher* watcher) { watcher_ = watcher; }

    Answer show(const Box& box) override;
    std::optional<std::string> ask(const InputBox& box) override;
    std::optional<std::filesystem::path> chooseFile(const FileDialog& dialog) override;
    std::optional<std::filesystem::path> chooseFolder(const std::filesystem::path& start) override;
    std::optional<PageRange> choosePages() override;
    /// False also where no desktop is there to open it.
    bool openFolder(const std::filesystem::path& folder) override;
    void setBusy(bool busy) override;

    [[nodiscard]] std::chrono::year_month_day today() const override;
    /// Buddhist where the dates of the environment (LC_TIME) have an era whose year is 2500 or more, as those
    /// of th_TH have; Christian otherwise.
    [[nodiscard]] Calendar calendar() const override;
    [[nodiscard]] std::string environment(const std::string& name) const override;
    [[nodiscard]] std::filesystem::path programFolder() const override { return programFolder_; }
    [[nodiscard]] bool folderExists(const std::filesystem::path& folder) const override;
    [[nodiscard]] bool canWriteInto(const std::filesystem::path& folder) const override;

    void quit() override;

  private:
    template <typename Ask>
    auto waitFor(Ask ask);

    std::filesystem::path programFolder_;
    WaitWatcher* watcher_ = nullptr;
    bool busy_ = false;
};

} // namespace lodge
