#include "controls/form.h"

#include "controls/desk.h"

#include <algorithm>
#include <utility>

namespace lodge {

Form::Form(Desk& desk, std::string name, std::string caption)
    : desk_(desk), name_(std::move(name)), caption_(std::move(caption)) {}

Form::~Form() = default;

void Form::setCaption(std::string caption) {
    if (caption_ != caption) {
        caption_ = std::move(caption);
        if (live_) {
            desk_.formChanged(*this);
        }
    }
}

void Form::setEnabled(bool enabled) {
    if (enabled_ != enabled) {
        enabled_ = enabled;
        if (live_) {
            desk_.formChanged(*this);
        }
    }
}

Control* Form::find(std::string_view fullName) const {
    const auto found = std::find_if(controls_.begin(), controls_.end(),
        [&](const Control* control) { return control->fullName() == fullName; });
    return found == controls_.end() ? nullptr : *found;
}

void Form::Form_MouseDown(const MouseGesture& /*gesture*/) {}

void Form::closedByFrame() { desk_.unload(name_); }

} // namespace lodge
