// A timer of a form. It runs on the desk's clock, between events, while its form is loaded.
#pragma once

#include "controls/control.h"

#include <chrono>

namespace lodge {

class Timer : public Control {
  public:
    /// A timer is switched off until `setEnabled(true)`; its interval is at least a millisecond.
    Timer(Form& form, std::string name, std::chrono::milliseconds interval);

    [[nodiscard]] std::chrono::milliseconds interval() const { return interval_; }
    [[nodiscard]] std::string reading() const override { return {}; }

    Handler onTimer;

  private:
    std::chrono::milliseconds interval_;
};

} // namespace lodge
