#include "session/properties.h"

#include "controls/buttons.h"
#include "controls/label.h"
#include "controls/lists.h"
#include "controls/text_box.h"
#include "session/nearest_name.h"
#include "session/numbers.h"
#include "values/text.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace lodge {

namespace {

using Reading = std::optional<std::string>;

std::string yesOrNo(bool yes) { return yes ? "yes" : "no"; }

/// What `read` makes of the control when it is a T.
template <typename T, typename Read>
Reading ifIs(const Control& control, Read read) {
    const auto* const typed = dynamic_cast<const T*>(&control);
    return typed == nullptr ? Reading() : Reading(read(*typed));
}

template <typename T>
Reading captionIf(const Control& control) {
    return ifIs<T>(control, [](const T& captioned) { return captioned.caption(); });
}

Reading textOf(const Control& control) {
    switch (control.kind()) {
    case ControlKind::TextBox: return ifIs<TextBox>(control, [](const auto& box) { return box.text(); });
    case ControlKind::MaskedBox: return ifIs<MaskedBox>(control, [](const auto& box) { return box.text(); });
    default: return ifIs<ItemList>(control, [](const auto& list) { return list.selectedText(); });
    }
}

Reading captionOf(const Control& control) {
    switch (control.kind()) {
    case ControlKind::CommandButton: return captionIf<CommandButton>(control);
    case ControlKind::CheckBox: return captionIf<CheckBox>(control);
    case ControlKind::OptionButton: return captionIf<OptionButton>(control);
    case ControlKind::Label: return captionIf<Label>(control);
    case ControlKind::Frame: return captionIf<Frame>(control);
    default: return std::nullopt;
    }
}

Reading valueOf(const Control& control) {
    const bool hasValue = control.kind() != ControlKind::Timer && control.kind() != ControlKind::Picture;
    return hasValue ? Reading(control.reading()) : std::nullopt;
}

Reading indexOf(const Control& control) {
    if (control.kind() == ControlKind::Grid) {
        return ifIs<Grid>(control, [](const auto& grid) { return std::to_string(grid.picked()); });
    }
    return ifIs<ItemList>(control, [](const auto& list) { return std::to_string(list.selected()); });
}

Reading countOf(const Control& control) {
    if (control.kind() == ControlKind::Grid) {
        return control.reading();
    }
    return ifIs<ItemList>(control, [](const auto& list) { return std::to_string(list.count()); });
}

Reading maxLengthOf(const Control& control) {
    if (control.kind() == ControlKind::MaskedBox) {
        return std::to_string(MaskedBox::mask.size());
    }
    return ifIs<TextBox>(control, [](const auto& box) { return std::to_string(box.maxLength()); });
}

struct PropertyRow {
    std::string_view name;
    Reading (*read)(const Control&);
};

// clang-format off
constexpr std::array properties = {
    PropertyRow{"text", textOf},
    PropertyRow{"caption", captionOf},
    PropertyRow{"value", valueOf},
    PropertyRow{"enabled", [](const Control& control) -> Reading { return yesOrNo(control.enabled()); }},
    PropertyRow{"visible", [](const Control& control) -> Reading { return yesOrNo(control.visible()); }},
    PropertyRow{"locked", [](const Control& control) -> Reading { return yesOrNo(control.locked()); }},
    PropertyRow{"back", [](const Control& control) -> Reading {
        return control.back() == BackColour::Window ? "window" : "button"; }},
    PropertyRow{"tag", [](const Control& control) -> Reading { return control.tag(); }},
    PropertyRow{"index", indexOf},
    PropertyRow{"count", countOf},
    PropertyRow{"maxlength", maxLengthOf},
};
// clang-format on

constexpr std::string_view cellStart = "cell(";

/// "cell(2,0)" of a grid.
Reading cellOf(const Control& control, std::string_view name) {
    const std::size_t comma = name.find(',');
    if (comma == std::string_view::npos || name.back() != ')') {
        return std::nullopt;
    }
    const auto row = wholeNumber<int>(trimBlanks(name.substr(cellStart.size(), comma - cellStart.size())));
    const auto column = wholeNumber<int>(trimBlanks(name.substr(comma + 1, name.size() - comma - 2)));
    if (!row || !column) {
        return std::nullopt;
    }
    return ifIs<Grid>(control, [&](const Grid& grid) { return grid.cell(*row, *column); });
}

} // namespace

std::optional<std::string> readProperty(const Control& control, std::string_view name) {
    if (name.starts_with(cellStart)) {
        return cellOf(control, name);
    }
    const auto* const property = std::ranges::find(properties, name, &PropertyRow::name);
    return property == properties.end() ? std::nullopt : property->read(control);
}

std::vector<std::string> propertyNames() {
    std::vector<std::string> names = namesOf(properties);
    names.emplace_back("cell(R,C)");
    return names;
}

} // namespace lodge
