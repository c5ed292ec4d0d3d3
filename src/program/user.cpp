#include "program/user.h"

#include "values/text.h"

#include <algorithm>
#include <array>
#include <vector>

namespace lodge {

namespace {

constexpr char32_t enterKey = 13;

InputKind inputKind(TextKind kind) {
    switch (kind) {
    case TextKind::Text: return InputKind::Text;
    case TextKind::MultiLine: return InputKind::MultiLine;
    case TextKind::Amount: return InputKind::Amount;
    case TextKind::Number: return InputKind::Number;
    }
    return InputKind::Text;
}

std::string fullName(const Control& control) { return control.form().name() + "." + control.fullName(); }

/// Where Tab stops: a locked box only shows, so it is passed over.
bool isTabStop(const Control& control) {
    return control.takesFocus() && control.isShown() && control.isOpen() && !control.locked();
}

} // namespace

std::string acceptedText(const TextBox& box, std::string_view typed) {
    std::string regular = regularInput(typed, inputKind(box.textKind()));
    const auto room = static_cast<std::size_t>(std::max(box.maxLength(), 0));
    if (room == 0 || textLength(regular) <= room) return regular;
    // Cut with its separators, a large amount would become a small one without a word.
    if (box.textKind() == TextKind::Amount) regular = removeAll(regular, ",");
    regular.resize(textLeft(regular, room).size());
    return regular;
}

std::string acceptedDigits(std::string_view typed) {
    const std::string regular = regularInput(typed, InputKind::Date);
    // A date written with its separators may leave out leading zeros: 1/5/2561.
    std::array<std::string, 3> parts;
    std::size_t part = 0;
    for (const char c : regular) {
        if (c >= '0' && c <= '9') {
            parts[part] += c;
        } else if ((c == '/' || c == '-' || c == '.') && part < 2 && !parts[part].empty()) {
            ++part;
        }
    }
    if (part == 2 && parts[2].size() == 4) {
        for (std::size_t i = 0; i < 2; ++i) {
            parts[i].insert(0, parts[i].size() < 2 ? 1 : 0, '0');
        }
    }
    const std::string digits = parts[0] + parts[1] + parts[2];
    return digits.substr(0, MaskedBox::places);
}

Refused User::whyNot(const Form& form) const {
    if (!form.isShown()) {
        return form.name() + " is not on screen";
    }
    if (desk_.liesUnderModal(form)) {
        return form.name() + " lies under a modal form";
    }
    if (!form.enabled()) {
        return form.name() + " is switched off";
    }
    return std::nullopt;
}

Refused User::whyNot(const Control& control) const {
    if (Refused refused = whyNot(control.form())) {
        return refused;
    }
    if (!control.isShown()) {
        return fullName(control) + " is hidden";
    }
    if (!control.isOpen()) {
        return fullName(control) + " is disabled";
    }
    if (control.locked()) {
        return fullName(control) + " is locked";
    }
    return std::nullopt;
}

bool User::comeTo(Control& next) {
    if (next.hasFocus()) {
        return true;
    }
    if (!next.takesFocus()) {
        return desk_.leaveFocus();
    }
    desk_.setFocus(next);
    return next.hasFocus();
}

Refused User::focus(Control& control) {
    if (Refused refused = whyNot(control)) {
        return refused;
    }
    if (!control.takesFocus()) {
        return fullName(control) + " cannot have the focus";
    }
    comeTo(control);
    return std::nullopt;
}

void User::leave() { desk_.leaveFocus(); }

std::optional<char32_t> User::key(Control& control, char32_t character) {
    KeyPress press{.key = character};
    control.raiseKey(press);
    return press.swallowed ? std::nullopt : std::optional(press.key);
}

Refused User::edit(TextBox& box, std::string_view text) {
    if (Refused refused = whyNot(box)) {
        return refused;
    }
    box.setText(acceptedText(box, text));
    return std::nullopt;
}

Refused User::edit(MaskedBox& box, std::string_view text) {
    if (Refused refused = whyNot(box)) {
        return refused;
    }
    box.setDigits(acceptedDigits(text));
    return std::nullopt;
}

Refused User::type(Control& box, std::string_view text) {
    if (box.kind() != ControlKind::TextBox && box.kind() != ControlKind::MaskedBox) {
        return fullName(box) + " is not a box to type into";
    }
    const Desk::EventScope scope(desk_);
    if (Refused refused = focus(box)) {
        return refused;
    }
    if (!box.hasFocus()) {
        return std::nullopt; // the control that was left took the focus back
    }
    std::string typed;
    for (std::size_t at = 0; at < text.size();) {
        if (const auto character = key(box, nextCharacter(text, at))) {
            appendCharacter(typed, *character);
        }
    }
    Refused refused = box.kind() == ControlKind::TextBox ? edit(static_cast<TextBox&>(box), typed)
                                                         : edit(static_cast<MaskedBox&>(box), typed);
    if (box.hasFocus()) {
        leave();
    }
    return refused;
}

Refused User::enter(Control& control) {
    const Desk::EventScope scope(desk_);
    if (Refused refused = focus(control)) {
        return refused;
    }
    if (control.hasFocus() && key(control, enterKey)) {
        moveOn(control);
    }
    return std::nullopt;
}

void User::moveOn(Control& from, bool backwards) {
    std::vector<Control*> order = from.form().controls();
    if (backwards) {
        std::reverse(order.begin(), order.end());
    }
    const auto here = std::find(order.begin(), order.end(), &from);
    if (here == order.end()) {
        return;
    }
    std::rotate(order.begin(), here, order.end());
    const auto next = std::find_if(
        order.begin() + 1, order.end(), [](const Control* control) { return isTabStop(*control); });
    if (next != order.end()) {
        comeTo(**next);
    }
}

Refused User::click(Control& control) {
    if (Refused refused = whyNot(control)) {
        return refused;
    }
    const Desk::EventScope scope(desk_);
    if (!comeTo(control) || whyNot(control)) {
        return std::nullopt; // leaving the other control took the focus, or this control, away
    }
    MousePress press;
    control.raiseMouseDown(press);
    if (press.follow == MousePress::Follow::Click) {
        switch (control.kind()) {
        case ControlKind::CheckBox: {
            auto& box = static_cast<CheckBox&>(control);
            box.setValue(!box.value());
            break;
        }
        case ControlKind::OptionButton: static_cast<OptionButton&>(control).setValue(true); break;
        default: control.raise(control.onClick); break;
        }
    }
    if (press.follow != MousePress::Follow::Nothing) {
        control.raiseMouseUp(press.gesture);
    }
    return std::nullopt;
}

Refused User::mouse(Control& control, const MouseGesture& gesture) {
    if (Refused refused = whyNot(control)) {
        return refused;
    }
    const Desk::EventScope scope(desk_);
    MousePress press{.gesture = gesture};
    control.raiseMouseDown(press);
    if (press.follow != MousePress::Follow::Nothing) {
        control.raiseMouseUp(gesture);
    }
    return std::nullopt;
}

Refused User::mouse(Form& form, const MouseGesture& gesture) {
    if (Refused refused = whyNot(form)) {
        return refused;
    }
    const Desk::EventScope scope(desk_);
    form.Form_MouseDown(gesture);
    return std::nullopt;
}

Refused User::doubleClick(Control& control) {
    if (Refused refused = whyNot(control)) {
        return refused;
    }
    const Desk::EventScope scope(desk_);
    if (comeTo(control)) {
        control.raise(control.onDoubleClick);
    }
    return std::nullopt;
}

Refused User::choose(ItemList& list, int entry) {
    if (Refused refused = whyNot(list)) {
        return refused;
    }
    if (entry < 0 || entry >= list.count()) {
        return fullName(list) + " has no such entry";
    }
    const Desk::EventScope scope(desk_);
    if (comeTo(list)) {
        list.select(entry);
    }
    return std::nullopt;
}

Refused User::pick(Grid& grid, int row) {
    if (Refused refused = whyNot(grid)) {
        return refused;
    }
    if (row < 0 || static_cast<std::size_t>(row) >= grid.rows().size()) {
        return fullName(grid) + " has no row " + std::to_string(row);
    }
    const Desk::EventScope scope(desk_);
    if (comeTo(grid)) {
        grid.pick(row);
    }
    return std::nullopt;
}

Refused User::close(Form& form) {
    if (!form.isShown()) {
        return form.name() + " is not on screen";
    }
    if (desk_.liesUnderModal(form)) {
        return form.name() + " lies under a modal form";
    }
    if (!form.isClosable()) {
        return form.name() + " has no way to close it by its frame";
    }
    const Desk::EventScope scope(desk_);
    form.closedByFrame();
    return std::nullopt;
}

} // namespace lodge
