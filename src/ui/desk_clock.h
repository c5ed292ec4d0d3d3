// Lets time pass on the desk as it passes on the wall, but for the time in which a box waits.
#pragma once

#include "controls/desk.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

namespace lodge {

class DeskClock : public QObject {
    Q_OBJECT

  public:
    explicit DeskClock(Desk& desk);

    /// Brings the desk up to now. Called before each thing that a person does, so that a timer which that
    /// starts counts from the moment in which it was started.
    void catchUp();
    /// A timer was switched: wakes up in time for the next one.
    void timersChanged();
    /// A box waits, or waits no longer.
    void hold();
    void release();

  private:
    [[nodiscard]] Desk::Milliseconds unpassed() const;
    void wakeInTime();

    Desk& desk_;
    QTimer alarm_;
    QElapsedTimer sincePassed_;
    Desk::Milliseconds beforeHold_{0};
    int holds_ = 0;
    bool passing_ = false;
};

} // namespace lodge
