#include "shell/form_copy.h"

#include "controls/buttons.h"
#include "controls/label.h"
#include "controls/lists.h"
#include "controls/text_box.h"
#include "controls/timer.h"

#include <algorithm>
#include <cstddef>

namespace lodge {

namespace {

template <typename T>
const T& as(const Control& control) {
    return static_cast<const T&>(control);
}

template <typename T>
T& as(Control& control) {
    return static_cast<T&>(control);
}

void silence(Control& control) {
    control.onClick = nullptr;
    control.onDoubleClick = nullptr;
    control.onGotFocus = nullptr;
    control.onLostFocus = nullptr;
    switch (control.kind()) {
    case ControlKind::TextBox: as<TextBox>(control).onChange = nullptr; break;
    case ControlKind::MaskedBox: as<MaskedBox>(control).onChange = nullptr; break;
    case ControlKind::Label: as<Label>(control).onChange = nullptr; break;
    case ControlKind::Timer: control.setEnabled(false); break;
    default: break;
    }
}

void copyList(const ItemList& from, ItemList& to) {
    if (from.items() != to.items()) {
        to.setItems(from.items());
    }
    to.select(from.selected());
}

void copyContent(const Control& from, Control& to) {
    switch (from.kind()) {
    case ControlKind::TextBox: as<TextBox>(to).setText(as<TextBox>(from).text()); break;
    case ControlKind::MaskedBox: as<MaskedBox>(to).setDigits(as<MaskedBox>(from).digits()); break;
    case ControlKind::CheckBox: as<CheckBox>(to).setValue(as<CheckBox>(from).value()); break;
    case ControlKind::OptionButton: as<OptionButton>(to).setValue(as<OptionButton>(from).value()); break;
    case ControlKind::Label: as<Label>(to).setCaption(as<Label>(from).caption()); break;
    case ControlKind::ListBox:
    case ControlKind::ComboBox: copyList(as<ItemList>(from), as<ItemList>(to)); break;
    case ControlKind::CommandButton:
    case ControlKind::Frame:
    case ControlKind::Picture:
    case ControlKind::Grid:
    case ControlKind::Timer: break; // no page is stored from these
    }
}

} // namespace

void copyControls(const Form& from, Form& to) {
    std::ranges::for_each(to.controls(), [](Control* control) { silence(*control); });
    for (std::size_t i = 0; i < to.controls().size(); ++i) {
        const Control& source = *from.controls().at(i);
        Control& target = *to.controls()[i];
        copyContent(source, target);
        if (target.kind() != ControlKind::Timer) {
            target.setEnabled(source.enabled());
            target.setVisible(source.visible());
            target.setLocked(source.locked());
        }
    }
}

} // namespace lodge
