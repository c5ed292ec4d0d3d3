// A door to the outside behind which nobody sits: boxes come up unseen and get the answer that changes
// nothing. The checks of a copy of the return run behind it.
#pragma once

#include "program/host.h"

namespace lodge {

/// The day and the calendar that a machine shows; some rules go by them.
struct Today {
    std::chrono::year_month_day date;
    Calendar calendar = Calendar::Christian;
};

class SilentHost : public Host {
  public:
    explicit SilentHost(Today today) : today_(today) {}

    void setToday(Today today) { today_ = today; }

    Answer show(const Box& box) override {
        switch (box.buttons) {
        case Buttons::Ok: return Answer::Ok;
        case Buttons::OkCancel: return Answer::Cancel;
        case Buttons::YesNo: return Answer::No;
        }
        return Answer::Ok;
    }
    std::optional<std::string> ask(const InputBox& /*box*/) override { return std::nullopt; }
    std::optional<std::filesystem::path> chooseFile(const FileDialog& /*dialog*/) override {
        return std::nullopt;
    }
    std::optional<std::filesystem::path> chooseFolder(const std::filesystem::path& /*start*/) override {
        return std::nullopt;
    }
    std::optional<PageRange> choosePages() override { return std::nullopt; }
    bool openFolder(const std::filesystem::path& /*folder*/) override { return true; }
    void setBusy(bool /*busy*/) override {}

    [[nodiscard]] std::chrono::year_month_day today() const override { return today_.date; }
    [[nodiscard]] Calendar calendar() const override { return today_.calendar; }
    [[nodiscard]] std::string environment(const std::string& /*name*/) const override { return {}; }
    [[nodiscard]] std::filesystem::path programFolder() const override { return {}; }
    [[nodiscard]] bool folderExists(const std::filesystem::path& /*folder*/) const override { return true; }
    [[nodiscard]] bool canWriteInto(const std::filesystem::path& /*folder*/) const override { return true; }
    void quit() override {}

  private:
    Today today_;
};

} // namespace lodge
