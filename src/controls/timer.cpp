#include "controls/timer.h"

#include <utility>

namespace lodge {

Timer::Timer(Form& form, std::string name, std::chrono::milliseconds interval)
    : Control(form, ControlKind::Timer, std::move(name), -1), interval_(interval) {
    setEnabled(false);
}

} // namespace lodge
