#include "controls/timer.h"

#include <algorithm>
#include <utility>

namespace lodge {

Timer::Timer(Form& form, std::string name, std::chrono::milliseconds interval)
    : Control(form, ControlKind::Timer, std::move(name), -1),
      interval_(std::max(interval, std::chrono::milliseconds(1))) {
    setEnabled(false);
}

} // namespace lodge
