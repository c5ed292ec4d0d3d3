// The return as a store would find it, with what the page on screen shows, while the return itself stays as
// it is.
#pragma once

#include "program/program.h"
#include "shell/shell.h"
#include "shell/silent_host.h"

namespace lodge {

/// Gives the state of `copy` what `state` holds and what the controls of a page on screen would store into
/// it: the page is left as a store leaves it, but for its light check. `copy` is a program of its own that
/// nobody sees.
void takeFromScreen(Program& copy, const ReturnState& state, const Form& pageOnScreen);

/// Takes one snapshot after the other; making the taker is what costs.
class ReturnSnapshots {
  public:
    explicit ReturnSnapshots(Today today) : host_(today) {}

    void setToday(Today today) { host_.setToday(today); }

    /// The return of a program as it stands, the page on screen included. Good until the next one is taken.
    [[nodiscard]] ReturnState& take(const Program& program);

  private:
    SilentHost host_;
    Program copy_{host_};
    Shell shell_{copy_};
};

} // namespace lodge
