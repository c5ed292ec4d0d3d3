#include "pages/filer/fields.h"

#include "controls/buttons.h"
#include "controls/label.h"
#include "controls/lists.h"
#include "controls/text_box.h"
#include "values/money.h"
#include "values/text.h"

#include <stdexcept>

namespace lodge {

namespace {

/// What is more than digits and point in an amount without sign.
constexpr std::string_view amountMarks = ",()-";

template <typename T>
T& as(Control& control) {
    return static_cast<T&>(control);
}

bool isTicked(std::string_view entry) { return entry == "1"; }

std::string titleEntry(const ComboBox& titles) {
    return titles.selected() < 0 ? std::string() : std::to_string(titles.selected());
}

int titleRow(std::string_view entry) {
    constexpr int none = -1;
    return entry.empty() ? none : static_cast<int>(readNumber(entry));
}

} // namespace

Control& fieldControl(const Form& form, const Field& field) {
    Control* control = form.find(field.control);
    if (control == nullptr) {
        throw std::logic_error(form.name() + " has no " + std::string(field.control));
    }
    return *control;
}

std::string readField(const Form& form, const Field& field) {
    Control& control = fieldControl(form, field);
    switch (field.kind) {
    case FieldKind::Label:
    case FieldKind::Text:
    case FieldKind::Flag:
    case FieldKind::FlagIfTicked:
    case FieldKind::Date: return control.reading();
    case FieldKind::FilingNumber: return readFigure(control.reading()) == 0.0 ? "" : control.reading();
    case FieldKind::Money: return removeAll(control.reading(), amountMarks);
    case FieldKind::Title: return titleEntry(as<ComboBox>(control));
    }
    return {};
}

void showField(const Form& form, const Field& field, std::string_view entry) {
    Control& control = fieldControl(form, field);
    switch (field.kind) {
    case FieldKind::Label: as<Label>(control).setCaption(std::string(entry)); break;
    case FieldKind::Text: as<TextBox>(control).setText(std::string(entry)); break;
    case FieldKind::Flag: as<CheckBox>(control).setValue(isTicked(entry)); break;
    case FieldKind::FlagIfTicked:
        if (isTicked(entry)) {
            as<CheckBox>(control).setValue(true);
        }
        break;
    case FieldKind::FilingNumber:
        // A stored "01" is the first additional filing and shows as 1.
        as<TextBox>(control).setText(entry.empty() ? "" : plainNumberText(readFigure(entry)));
        break;
    case FieldKind::Money:
        // Page 2 hands over an overpaid amount with its sign, for which the label has its own place.
        as<Label>(control).setCaption(formatMoneyText(removeAll(entry, amountMarks)));
        break;
    case FieldKind::Title: as<ComboBox>(control).select(titleRow(entry)); break;
    case FieldKind::Date: as<MaskedBox>(control).setDigits(entry); break;
    }
}

} // namespace lodge
