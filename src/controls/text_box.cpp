#include "controls/text_box.h"

#include <utility>

namespace lodge {

TextBox::TextBox(Form& form, std::string name, int index)
    : Control(form, ControlKind::TextBox, std::move(name), index) {}

void TextBox::setText(std::string text) {
    if (text_ != text) {
        text_ = std::move(text);
        changed(Aspect::Text);
        raise(onChange);
    }
}

MaskedBox::MaskedBox(Form& form, std::string name, int index)
    : Control(form, ControlKind::MaskedBox, std::move(name), index) {}

void MaskedBox::setDigits(std::string_view text) {
    std::string digits;
    for (const char c : text) {
        if (c >= '0' && c <= '9' && digits.size() < places) {
            digits += c;
        }
    }
    if (digits_ != digits) {
        digits_ = std::move(digits);
        changed(Aspect::Text);
        raise(onChange);
    }
}

std::string MaskedBox::text() const {
    std::string shown(mask);
    std::size_t next = 0;
    for (char& c : shown) {
        if (c == '#') {
            c = next < digits_.size() ? digits_[next] : '_';
            ++next;
        }
    }
    return shown;
}

} // namespace lodge
