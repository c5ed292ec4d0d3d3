// What the controls of a page show, copied into the same page of another program.
#pragma once

#include "controls/form.h"

namespace lodge {

/// Gives every control of `to` what the control of the same place on `from` shows and whether it can be
/// reached. Both are forms of one kind. The handlers of `to` are taken off first and stay off, so nothing
/// runs; the form is good for its store procedure and its unloading alone.
void copyControls(const Form& from, Form& to);

} // namespace lodge
