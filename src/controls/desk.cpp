#include "controls/desk.h"

#include "controls/timer.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace lodge {

Desk::Desk() = default;

Desk::~Desk() = default;

template <typename Tell>
void Desk::tell(Tell tell) {
    // By position: an observer may take itself off, which leaves a gap, or bring another while it is told.
    for (std::size_t i = 0; i < observers_.size(); ++i) { // NOLINT(modernize-loop-convert): it may grow
        if (observers_[i] != nullptr) {
            tell(*observers_[i]);
        }
    }
}

void Desk::add(const std::string& name, Factory factory) { factories_.emplace(name, std::move(factory)); }

bool Desk::knows(std::string_view name) const { return factories_.contains(name); }

std::vector<std::string> Desk::formNames() const {
    std::vector<std::string> names;
    names.reserve(factories_.size());
    for (const auto& [name, factory] : factories_) {
        names.push_back(name);
    }
    return names;
}

Form& Desk::load(std::string_view name) {
    if (Form* loaded = find(name)) {
        return *loaded;
    }
    const auto factory = factories_.find(name);
    if (factory == factories_.end()) {
        throw std::logic_error("no form of the name " + std::string(name));
    }
    loaded_.push_back(factory->second());
    Form& form = *loaded_.back();
    form.live_ = true;
    tell([&](DeskObserver& observer) { observer.formLoaded(form); });
    const EventScope scope(*this);
    form.Form_Load();
    return form;
}

Form* Desk::find(std::string_view name) const {
    const auto found = std::find_if(loaded_.begin(), loaded_.end(),
        [&](const std::unique_ptr<Form>& form) { return form->name() == name; });
    return found == loaded_.end() ? nullptr : found->get();
}

const Form& Desk::loadedOrDesign(std::string_view name) {
    if (const Form* loaded = find(name)) {
        return *loaded;
    }
    const auto known = designs_.find(name);
    if (known != designs_.end()) {
        return *known->second;
    }
    const auto factory = factories_.find(name);
    if (factory == factories_.end()) {
        throw std::logic_error("no form of the name " + std::string(name));
    }
    return *designs_.emplace(std::string(name), factory->second()).first->second;
}

Form& Desk::show(std::string_view name, Modality modality) {
    const EventScope scope(*this);
    Form& form = load(name);
    std::erase(screen_, &form);
    screen_.push_back(&form);
    form.shown_ = true;
    form.modal_ = modality == Modality::Modal;
    tell([&](DeskObserver& observer) { observer.formShown(form); });
    form.Form_Activate();
    return form;
}

void Desk::takeOffScreen(Form& form) {
    if (!form.shown_) {
        return;
    }
    const bool wasTop = top() == &form;
    std::erase(screen_, &form);
    form.shown_ = false;
    if (focus_ != nullptr && &focus_->form() == &form) {
        focus_ = nullptr;
        tell([](DeskObserver& observer) { observer.focusMoved(nullptr); });
    }
    tell([&](DeskObserver& observer) { observer.formHidden(form); });
    if (wasTop) {
        activateTop();
    }
}

void Desk::activateTop() {
    if (Form* next = top()) {
        next->Form_Activate();
    }
}

void Desk::hide(std::string_view name) {
    if (Form* form = find(name)) {
        const EventScope scope(*this);
        takeOffScreen(*form);
    }
}

void Desk::unload(std::string_view name) {
    Form* form = find(name);
    if (form == nullptr) {
        return;
    }
    const EventScope scope(*this);
    form->Form_Unload();
    const auto place = std::find_if(loaded_.begin(), loaded_.end(),
        [&](const std::unique_ptr<Form>& loaded) { return loaded.get() == form; });
    if (place == loaded_.end()) {
        return; // its own unload handler unloaded it already
    }
    leaving_.push_back(std::move(*place));
    loaded_.erase(place);
    std::erase_if(timers_, [&](const RunningTimer& running) { return &running.timer->form() == form; });
    form->live_ = false;
    takeOffScreen(*form);
    tell([&](DeskObserver& observer) { observer.formUnloaded(*form); });
}

void Desk::unloadAllExcept(std::string_view kept) {
    const EventScope scope(*this);
    for (const Form* form : loadedForms()) {
        if (form->name() != kept) {
            unload(form->name());
        }
    }
}

std::vector<Form*> Desk::loadedForms() const {
    std::vector<Form*> forms;
    forms.reserve(loaded_.size());
    for (const std::unique_ptr<Form>& form : loaded_) {
        forms.push_back(form.get());
    }
    return forms;
}

Form* Desk::top() const { return screen_.empty() ? nullptr : screen_.back(); }

bool Desk::liesUnderModal(const Form& form) const {
    const auto place = std::find(screen_.begin(), screen_.end(), &form);
    return std::any_of(
        place, screen_.end(), [&](const Form* above) { return above != &form && above->isModal(); });
}

void Desk::setFocus(Control& control) {
    if (focus_ == &control || !canHaveFocus(control)) {
        return;
    }
    const EventScope scope(*this);
    // The control that is left may take the focus back, or close the one that was to get it.
    if (!takeFocusAway()) {
        return;
    }
    focus_ = canHaveFocus(control) ? &control : nullptr;
    tell([&](DeskObserver& observer) { observer.focusMoved(focus_); });
    if (focus_ == &control) {
        Control* const around = std::exchange(entering_, &control);
        control.raise(control.onGotFocus);
        entering_ = around;
    }
}

bool Desk::canHaveFocus(const Control& control) {
    return control.form().isShown() && control.takesFocus() && control.isShown() && control.isOpen();
}

bool Desk::takeFocusAway() {
    Control* const left = std::exchange(focus_, nullptr);
    // A control that sends the focus on while it gets it was never entered, so it is not left either: two
    // fields that send the focus to each other would not come to an end.
    if (left != nullptr && left != entering_) {
        left->raise(left->onLostFocus);
    }
    return focus_ == nullptr;
}

bool Desk::leaveFocus() {
    if (focus_ == nullptr) {
        return true;
    }
    const EventScope scope(*this);
    if (takeFocusAway()) {
        tell([](DeskObserver& observer) { observer.focusMoved(nullptr); });
        return true;
    }
    return false;
}

void Desk::timerSwitched(Timer& timer) {
    std::erase_if(timers_, [&](const RunningTimer& running) { return running.timer == &timer; });
    if (timer.enabled()) {
        timers_.push_back({&timer, now_ + timer.interval()});
    }
    tell([](DeskObserver& observer) { observer.timersChanged(); });
}

void Desk::pass(Milliseconds time) {
    if (heldBy_ > 0) {
        return;
    }
    const Milliseconds end = now_ + time;
    while (true) {
        const auto next = std::min_element(timers_.begin(), timers_.end(),
            [](const RunningTimer& a, const RunningTimer& b) { return a.due < b.due; });
        if (next == timers_.end() || next->due > end) {
            break;
        }
        now_ = next->due;
        next->due += next->timer->interval();
        Timer& timer = *next->timer;
        timer.raise(timer.onTimer);
    }
    now_ = end;
}

Desk::Milliseconds Desk::untilNextTimer() const {
    const auto next = std::min_element(timers_.begin(), timers_.end(),
        [](const RunningTimer& a, const RunningTimer& b) { return a.due < b.due; });
    return next == timers_.end() ? Milliseconds(-1) : std::max(next->due - now_, Milliseconds(0));
}

void Desk::observe(DeskObserver& observer) { observers_.push_back(&observer); }

void Desk::forget(DeskObserver& observer) {
    std::replace(observers_.begin(), observers_.end(), &observer, static_cast<DeskObserver*>(nullptr));
}

void Desk::formChanged(Form& form) {
    tell([&](DeskObserver& observer) { observer.formChanged(form); });
}

void Desk::controlChanged(Control& control, Aspect aspect) {
    tell([&](DeskObserver& observer) { observer.controlChanged(control, aspect); });
}

Desk::EventScope::EventScope(Desk& desk) : desk_(desk) { ++desk_.eventDepth_; }

Desk::EventScope::~EventScope() {
    if (--desk_.eventDepth_ == 0) {
        desk_.leaving_.clear();
    }
}

} // namespace lodge
