// Ticks whose handlers set other ticks, and by way of those themselves again.
#pragma once

#include "controls/buttons.h"

#include <utility>

namespace lodge {

/// Hangs up the handler of a tick. It runs once for each change of the value; being called with the value
/// that it has handled already, it does nothing.
inline void onTick(CheckBox& box, Handler handler) {
    box.onClick = [&box, handled = box.value(), handler = std::move(handler)]() mutable {
        if (handled == box.value()) return;
        handled = box.value();
        handler();
    };
}

} // namespace lodge
