#include "controls/control.h"

#include "controls/desk.h"
#include "controls/form.h"
#include "controls/timer.h"

#include <utility>

namespace lodge {

Control::Control(Form& form, ControlKind kind, std::string name, int index)
    : form_(form), kind_(kind), name_(std::move(name)), index_(index) {
    form.controls_.push_back(this);
}

Control::~Control() = default;

std::string Control::fullName() const {
    return index_ < 0 ? name_ : name_ + "(" + std::to_string(index_) + ")";
}

void Control::setEnabled(bool enabled) {
    if (enabled_ == enabled) {
        return;
    }
    enabled_ = enabled;
    if (kind_ == ControlKind::Timer && form_.isLive()) {
        form_.desk().timerSwitched(static_cast<Timer&>(*this));
    }
    changed(Aspect::Enabled);
}

void Control::setVisible(bool visible) {
    if (visible_ != visible) {
        visible_ = visible;
        changed(Aspect::Visible);
    }
}

void Control::setLocked(bool locked) {
    if (locked_ != locked) {
        locked_ = locked;
        changed(Aspect::Locked);
    }
}

void Control::setBack(BackColour back) {
    if (back_ != back) {
        back_ = back;
        changed(Aspect::Back);
    }
}

bool Control::isShown() const { return visible_ && (container_ == nullptr || container_->isShown()); }

bool Control::isOpen() const {
    if (!enabled_) {
        return false;
    }
    return container_ == nullptr ? form_.enabled() : container_->isOpen();
}

bool Control::takesFocus() const {
    switch (kind_) {
    case ControlKind::TextBox:
    case ControlKind::MaskedBox:
    case ControlKind::CheckBox:
    case ControlKind::OptionButton:
    case ControlKind::CommandButton:
    case ControlKind::ListBox:
    case ControlKind::ComboBox:
    case ControlKind::Grid: return true;
    case ControlKind::Label:
    case ControlKind::Frame:
    case ControlKind::Picture:
    case ControlKind::Timer: return false;
    }
    return false;
}

bool Control::hasFocus() const { return form_.desk().focus() == this; }

void Control::setFocus() { form_.desk().setFocus(*this); }

template <typename Event>
void Control::raiseWith(Event&& event) {
    if (!form_.isLive()) {
        return;
    }
    const Desk::EventScope scope(form_.desk());
    std::forward<Event>(event)();
}

void Control::raise(const Handler& handler) {
    if (handler) {
        raiseWith(handler);
    }
}

void Control::raiseKey(KeyPress& key) {
    if (onKey) {
        raiseWith([&] { onKey(key); });
    }
}

void Control::raiseMouseDown(MousePress& press) {
    if (onMouseDown) {
        raiseWith([&] { onMouseDown(press); });
    }
}

void Control::raiseMouseUp(const MouseGesture& gesture) {
    if (onMouseUp) {
        raiseWith([&] { onMouseUp(gesture); });
    }
}

void Control::changed(Aspect aspect) {
    if (form_.isLive()) {
        form_.desk().controlChanged(*this, aspect);
    }
}

} // namespace lodge
