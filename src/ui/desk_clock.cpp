#include "ui/desk_clock.h"

#include <algorithm>

namespace lodge {

DeskClock::DeskClock(Desk& desk) : desk_(desk) {
    alarm_.setSingleShot(true);
    alarm_.setTimerType(Qt::PreciseTimer);
    connect(&alarm_, &QTimer::timeout, this, &DeskClock::catchUp);
    sincePassed_.start();
}

Desk::Milliseconds DeskClock::unpassed() const {
    const Desk::Milliseconds running(holds_ > 0 ? 0 : sincePassed_.elapsed());
    return beforeHold_ + running;
}

void DeskClock::catchUp() {
    if (holds_ > 0 || passing_) {
        return;
    }
    const Desk::Milliseconds time = unpassed();
    beforeHold_ = Desk::Milliseconds(0);
    sincePassed_.restart();
    passing_ = true;
    desk_.pass(time);
    passing_ = false;
    wakeInTime();
}

void DeskClock::timersChanged() {
    if (!passing_) {
        wakeInTime();
    }
}

void DeskClock::hold() {
    if (holds_ == 0) {
        beforeHold_ = unpassed();
        alarm_.stop();
    }
    ++holds_;
}

void DeskClock::release() {
    if (--holds_ == 0) {
        sincePassed_.restart();
        wakeInTime();
    }
}

void DeskClock::wakeInTime() {
    const Desk::Milliseconds next = desk_.untilNextTimer();
    if (next < Desk::Milliseconds(0)) {
        alarm_.stop();
    } else if (holds_ == 0) {
        alarm_.start(std::max(next - unpassed(), Desk::Milliseconds(1)));
    }
}

} // namespace lodge
