#include "controls/buttons.h"

#include "controls/form.h"

#include <utility>

namespace lodge {

CommandButton::CommandButton(Form& form, std::string name, int index)
    : Control(form, ControlKind::CommandButton, std::move(name), index) {}

void CommandButton::setCaption(std::string caption) {
    if (caption_ != caption) {
        caption_ = std::move(caption);
        changed(Aspect::Caption);
    }
}

CheckBox::CheckBox(Form& form, std::string name, int index)
    : Control(form, ControlKind::CheckBox, std::move(name), index) {}

void CheckBox::setValue(bool ticked) {
    if (value_ != ticked) {
        value_ = ticked;
        changed(Aspect::Value);
        raise(onClick);
    }
}

void CheckBox::setCaption(std::string caption) {
    if (caption_ != caption) {
        caption_ = std::move(caption);
        changed(Aspect::Caption);
    }
}

OptionButton::OptionButton(Form& form, std::string name, int index)
    : Control(form, ControlKind::OptionButton, std::move(name), index) {}

void OptionButton::setValue(bool chosen) {
    if (value_ == chosen) {
        return;
    }
    value_ = chosen;
    changed(Aspect::Value);
    if (!chosen) {
        return;
    }
    for (Control* other : form().controls()) {
        if (other != this && other->kind() == ControlKind::OptionButton
            && other->container() == container()) {
            static_cast<OptionButton*>(other)->setValue(false);
        }
    }
    raise(onClick);
}

void OptionButton::setCaption(std::string caption) {
    if (caption_ != caption) {
        caption_ = std::move(caption);
        changed(Aspect::Caption);
    }
}

} // namespace lodge
