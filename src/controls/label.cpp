#include "controls/label.h"

#include <utility>

namespace lodge {

Label::Label(Form& form, std::string name, int index)
    : Control(form, ControlKind::Label, std::move(name), index) {}

void Label::setCaption(std::string caption) {
    if (caption_ != caption) {
        caption_ = std::move(caption);
        changed(Aspect::Caption);
        raise(onChange);
    }
}

Frame::Frame(Form& form, std::string name, int index)
    : Control(form, ControlKind::Frame, std::move(name), index) {}

void Frame::setCaption(std::string caption) {
    if (caption_ != caption) {
        caption_ = std::move(caption);
        changed(Aspect::Caption);
    }
}

Picture::Picture(Form& form, std::string name, int index)
    : Control(form, ControlKind::Picture, std::move(name), index) {}

} // namespace lodge
