#include "session/session_host.h"

#include "program/machine_clock.h"
#include "session/nearest_name.h"
#include "session/words.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace lodge {

namespace {

struct AnswerRow {
    std::string_view name;
    Answer answer;
    /// The box that has a button for it, beside a box with OK alone.
    Buttons offeredBy;
};

constexpr std::array answerRows = {
    AnswerRow{"OK", Answer::Ok, Buttons::OkCancel},
    AnswerRow{"Cancel", Answer::Cancel, Buttons::OkCancel},
    AnswerRow{"Yes", Answer::Yes, Buttons::YesNo},
    AnswerRow{"No", Answer::No, Buttons::YesNo},
};

bool offers(Buttons buttons, Answer answer) {
    return std::ranges::any_of(
        answerRows, [&](const AnswerRow& row) { return row.answer == answer && row.offeredBy == buttons; });
}

template <typename T>
T takeFirst(std::deque<T>& queue) {
    T first = std::move(queue.front());
    queue.pop_front();
    return first;
}

} // namespace

std::string answerName(Answer answer) {
    return std::string(std::ranges::find(answerRows, answer, &AnswerRow::answer)->name);
}

std::optional<Answer> answerOfName(std::string_view name) {
    const auto* const row = std::ranges::find(answerRows, name, &AnswerRow::name);
    return row == answerRows.end() ? std::nullopt : std::optional(row->answer);
}

std::vector<std::string> answerNames() { return namesOf(answerRows); }

SessionHost::SessionHost(std::filesystem::path programFolder, std::ostream& transcript)
    : programFolder_(std::move(programFolder)), transcript_(transcript) {}

void SessionHost::setEnvironment(const std::string& name, std::string value) {
    environment_.insert_or_assign(name, std::move(value));
}

const Box* SessionHost::takeBox() { return expected_ == boxes_.size() ? nullptr : &boxes_[expected_++]; }

std::vector<Box> SessionHost::unexpectedBoxes() const {
    return {boxes_.begin() + static_cast<std::ptrdiff_t>(expected_), boxes_.end()};
}

void SessionHost::stop(std::string cause) {
    if (!fault_) {
        fault_ = std::move(cause);
    }
    throw Stopped();
}

Answer SessionHost::show(const Box& box) {
    boxes_.push_back(box);
    if (box.buttons == Buttons::Ok) {
        transcript_ << "message " << inQuotes(box.text) << std::endl;
        return Answer::Ok;
    }
    if (answers_.empty()) {
        stop("a question without an answer: " + inQuotes(box.text));
    }
    const Answer answer = takeFirst(answers_);
    if (!offers(box.buttons, answer)) {
        stop(
            "the answer " + answerName(answer) + " is none that this question offers: " + inQuotes(box.text));
    }
    transcript_ << "question " << inQuotes(box.text) << " -> " << answerName(answer) << std::endl;
    return answer;
}

std::optional<std::string> SessionHost::ask(const InputBox& box) {
    if (inputs_.empty()) {
        stop("an input box without a text queued for it: " + inQuotes(box.prompt));
    }
    std::string text = takeFirst(inputs_);
    transcript_ << "input " << inQuotes(box.prompt) << " -> " << escaped(text) << std::endl;
    return text;
}

std::optional<std::filesystem::path> SessionHost::nextFile(const std::string& dialog) {
    if (files_.empty()) {
        stop(dialog + " without a path queued for it");
    }
    std::filesystem::path path = takeFirst(files_);
    return path.empty() ? std::nullopt : std::optional(std::move(path));
}

std::optional<std::filesystem::path> SessionHost::chooseFile(const FileDialog& dialog) {
    return nextFile("a file dialog " + inQuotes(dialog.title));
}

std::optional<std::filesystem::path> SessionHost::chooseFolder(const std::filesystem::path& /*start*/) {
    return nextFile("a folder dialog");
}

std::optional<PageRange> SessionHost::choosePages() {
    if (pages_.empty()) {
        return PageRange{.from = 0, .to = 0}; // nobody chose: everything
    }
    return takeFirst(pages_);
}

std::chrono::year_month_day SessionHost::today() const { return today_ ? *today_ : machineToday(); }

std::string SessionHost::environment(const std::string& name) const {
    const auto set = environment_.find(name);
    if (set != environment_.end()) {
        return set->second;
    }
    const char* const value = std::getenv(name.c_str());
    return value == nullptr ? std::string() : std::string(value);
}

bool SessionHost::folderExists(const std::filesystem::path& folder) const {
    std::error_code ignored;
    return std::filesystem::is_directory(folder, ignored);
}

bool SessionHost::canWriteInto(const std::filesystem::path& folder) const {
    return folderExists(folder) && ::access(folder.c_str(), W_OK | X_OK) == 0;
}

} // namespace lodge
