#include "controls/form.h"

#include "controls/desk.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <system_error>
#include <utility>

namespace lodge {

namespace {

/// The name of a control as it is looked up: "txtNid", or "chkStatus(11)" in a control array.
struct SoughtName {
    explicit SoughtName(std::string_view fullName) : name(fullName.substr(0, fullName.find('('))) {
        std::string_view brackets = fullName.substr(name.size());
        if (brackets.empty()) {
            return;
        }
        brackets.remove_prefix(1);
        const auto [read, error] = std::from_chars(brackets.data(), brackets.data() + brackets.size(), index);
        if (error != std::errc() || index < 0 || brackets != std::to_string(index) + ')') {
            index = unknown;
        }
    }

    static constexpr int unknown = -2;
    std::string_view name;
    int index = -1; ///< As Control::index.
};

} // namespace

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
    // Looked up for every field of a page that is filled or stored, so that no names are put together here.
    const SoughtName sought(fullName);
    const auto found = std::find_if(controls_.begin(), controls_.end(), [&](const Control* control) {
        return control->index() == sought.index && control->name() == sought.name;
    });
    return found == controls_.end() ? nullptr : *found;
}

void Form::Form_MouseDown(const MouseGesture& /*gesture*/) {}

void Form::closedByFrame() { desk_.unload(name_); }

} // namespace lodge
