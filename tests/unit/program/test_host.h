// A door to the outside for tests: it answers what it is told to and remembers what was shown.
#pragma once

#include "program/host.h"

#include <deque>
#include <vector>

namespace lodge {

class TestHost : public Host {
  public:
    std::vector<Box> shown;
    std::deque<Answer> answers;
    std::deque<std::filesystem::path> files;
    std::vector<std::filesystem::path> opened;
    std::chrono::year_month_day todayIs{std::chrono::year{2019}, std::chrono::month{5}, std::chrono::day{20}};
    Calendar calendarIs = Calendar::Christian;
    std::filesystem::path folder = "/opt/lodge77";
    bool folderIsThere = true;
    bool quitAsked = false;

    Answer show(const Box& box) override {
        shown.push_back(box);
        if (box.buttons == Buttons::Ok || answers.empty()) {
            return box.defaultAnswer;
        }
        const Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }
    std::optional<std::string> ask(const InputBox& /*box*/) override { return std::nullopt; }
    std::optional<std::filesystem::path> chooseFile(const FileDialog& /*dialog*/) override {
        if (files.empty()) {
            return std::nullopt;
        }
        const std::filesystem::path file = files.front();
        files.pop_front();
        return file;
    }
    std::optional<std::filesystem::path> chooseFolder(const std::filesystem::path& /*start*/) override {
        return std::nullopt;
    }
    std::optional<PageRange> choosePages() override { return std::nullopt; }
    bool openFolder(const std::filesystem::path& where) override {
        opened.push_back(where);
        return true;
    }
    void setBusy(bool /*busy*/) override {}
    [[nodiscard]] std::chrono::year_month_day today() const override { return todayIs; }
    [[nodiscard]] Calendar calendar() const override { return calendarIs; }
    [[nodiscard]] std::string environment(const std::string& /*name*/) const override { return {}; }
    [[nodiscard]] std::filesystem::path programFolder() const override { return folder; }
    [[nodiscard]] bool folderExists(const std::filesystem::path& /*folder*/) const override {
        return folderIsThere;
    }
    [[nodiscard]] bool canWriteInto(const std::filesystem::path& /*folder*/) const override { return true; }
    void quit() override { quitAsked = true; }
};

} // namespace lodge
