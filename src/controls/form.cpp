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

void Form::orderOnPaper(const std::vector<Control*>& run) {
    const auto isInRun = [&](const Control* control) {
        return std::find(run.begin(), run.end(), control) != run.end();
    };
    const auto first = std::find_if(controls_.begin(), controls_.end(), isInRun);
    const auto place = std::count_if(controls_.begin(), first, [&](const Control* c) { return !isInRun(c); });
    std::erase_if(controls_, isInRun);
    controls_.insert(controls_.begin() + place, run.begin(), run.end());
}

Control* Form::find(std::string_view fullName) const {
    const auto found = std::find_if(controls_.begin(), controls_.end(),
        [&](const Control* control) { return control->fullName() == fullName; });
    return found == controls_.end() ? nullptr : *found;
}

void Form::Form_MouseDown(const MouseGesture& /*gesture*/) {}

void Form::closedByFrame() { desk_.unload(name_); }

} // namespace lodge
