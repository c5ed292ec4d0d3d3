#include "program/program.h"

#include "values/dates.h"
#include "values/messages.h"

namespace lodge {

namespace {

/// Timers stand still while a person answers.
class TimersHeld {
  public:
    explicit TimersHeld(Desk& desk) : desk_(desk) { desk_.holdTimers(); }
    ~TimersHeld() { desk_.releaseTimers(); }
    TimersHeld(const TimersHeld&) = delete;
    TimersHeld& operator=(const TimersHeld&) = delete;

  private:
    Desk& desk_;
};

} // namespace

Program::Program(Host& host) : host_(host) {}

Answer Program::show(const Box& box) {
    const TimersHeld held(desk);
    return host_.show(box);
}

void Program::notify(const std::string& text) { show(Box{.text = text}); }

void Program::message(std::string_view code) { notify(std::string(GetMessage(code))); }

void Program::refuse(std::string_view code, Control& focus) {
    message(code);
    state.intError = 1;
    focus.setFocus();
    state.intError = 1; // again: the field that loses the focus runs a check of its own, which begins at 0
}

std::optional<std::string> Program::ask(const InputBox& box) {
    const TimersHeld held(desk);
    return host_.ask(box);
}

std::optional<std::filesystem::path> Program::chooseFile(const FileDialog& dialog) {
    const TimersHeld held(desk);
    return host_.chooseFile(dialog);
}

std::optional<std::filesystem::path> Program::chooseFolder(const std::filesystem::path& start) {
    const TimersHeld held(desk);
    return host_.chooseFolder(start);
}

std::optional<PageRange> Program::choosePages() {
    const TimersHeld held(desk);
    return host_.choosePages();
}

int machineYear(const Host& host) {
    const int year = static_cast<int>(host.today().year());
    return host.calendar() == Calendar::Buddhist ? year + buddhistEraOffset : year;
}

} // namespace lodge
