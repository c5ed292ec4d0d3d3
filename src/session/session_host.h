// The outside of a session: answers, texts and files that the script has queued instead of a person, its
// clock and calendar, and the transcript of every box that came up.
//
// A box for which the script has queued no answer stops the command in hand at once: the host keeps the cause
// and throws. Answering something by default would let the command run on, write files and ask again on the
// strength of an answer that nobody gave.
#pragma once

#include "program/host.h"

#include <cstddef>
#include <deque>
#include <map>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace lodge {

class SessionHost : public Host {
  public:
    /// Thrown through the program when a box cannot be answered; `fault()` has the cause. It is no
    /// std::exception, so that no error trap of the program takes it for a failure of its own.
    class Stopped {};

    SessionHost(std::filesystem::path programFolder, std::ostream& transcript);

    // What the script sets.
    void queueAnswer(Answer answer) { answers_.push_back(answer); }
    void queueInput(std::string text) { inputs_.push_back(std::move(text)); }
    /// For the next file or folder dialog; an empty path cancels it.
    void queueFile(std::filesystem::path path) { files_.push_back(std::move(path)); }
    /// For the next print dialog; nothing cancels it. A dialog without a range leaves both ends 0.
    void queuePages(std::optional<PageRange> pages) { pages_.push_back(pages); }
    void setToday(std::chrono::year_month_day today) { today_ = today; }
    void setCalendar(Calendar calendar) { calendar_ = calendar; }
    void setEnvironment(const std::string& name, std::string value);
    /// Where print jobs go; empty until the script says so.
    void setReportFolder(std::filesystem::path folder) { reportFolder_ = std::move(folder); }
    [[nodiscard]] const std::filesystem::path& reportFolder() const { return reportFolder_; }

    // What the script expects.
    /// The next box, message or question, that has not been expected yet, which thereby is; nullptr for none.
    const Box* takeBox();
    /// The boxes that have not been expected yet, in their order.
    [[nodiscard]] std::vector<Box> unexpectedBoxes() const;
    void forgetBoxes() { expected_ = boxes_.size(); }
    /// Why the program was stopped in the middle of a command; nothing while all went well.
    [[nodiscard]] const std::optional<std::string>& fault() const { return fault_; }
    /// Whether the person has left the program.
    [[nodiscard]] bool hasQuit() const { return quit_; }
    [[nodiscard]] std::ostream& transcript() const { return transcript_; }

    Answer show(const Box& box) override;
    std::optional<std::string> ask(const InputBox& box) override;
    std::optional<std::filesystem::path> chooseFile(const FileDialog& dialog) override;
    std::optional<std::filesystem::path> chooseFolder(const std::filesystem::path& start) override;
    std::optional<PageRange> choosePages() override;
    /// There is nobody to look into it: an existing folder counts as opened.
    bool openFolder(const std::filesystem::path& folder) override { return folderExists(folder); }
    void setBusy(bool /*busy*/) override {}
    [[nodiscard]] std::chrono::year_month_day today() const override;
    [[nodiscard]] Calendar calendar() const override { return calendar_; }
    [[nodiscard]] std::string environment(const std::string& name) const override;
    [[nodiscard]] std::filesystem::path programFolder() const override { return programFolder_; }
    [[nodiscard]] bool folderExists(const std::filesystem::path& folder) const override;
    [[nodiscard]] bool canWriteInto(const std::filesystem::path& folder) const override;
    void quit() override { quit_ = true; }

  private:
    [[noreturn]] void stop(std::string cause);
    /// The next queued path, or a stop that names what waited for it.
    std::optional<std::filesystem::path> nextFile(const std::string& dialog);

    std::filesystem::path programFolder_;
    std::ostream& transcript_;
    std::deque<Answer> answers_;
    std::deque<std::string> inputs_;
    std::deque<std::filesystem::path> files_;
    std::deque<std::optional<PageRange>> pages_;
    std::optional<std::chrono::year_month_day> today_;
    Calendar calendar_ = Calendar::Christian;
    std::map<std::string, std::string, std::less<>> environment_;
    std::filesystem::path reportFolder_;
    std::vector<Box> boxes_;
    std::size_t expected_ = 0;
    std::optional<std::string> fault_;
    bool quit_ = false;
};

/// "OK", "Cancel", "Yes", "No", as a script writes an answer.
[[nodiscard]] std::string answerName(Answer answer);
/// The answer of that name, nothing for any other word.
[[nodiscard]] std::optional<Answer> answerOfName(std::string_view name);
/// All four names.
[[nodiscard]] std::vector<std::string> answerNames();

} // namespace lodge
