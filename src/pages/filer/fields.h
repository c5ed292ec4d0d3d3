// One row a field: which entry of a page's array belongs to which control, and how the control's content is
// written as an entry. A page's table of such rows drives both directions, so they cannot drift apart.
#pragma once

#include "controls/form.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace lodge {

enum class FieldKind {
    Label,        ///< The caption of a label, as it stands.
    Text,         ///< The content of a text box, as it stands.
    Flag,         ///< A tick: "1" or "0".
    FlagIfTicked, ///< A tick that the array sets but never takes away.
    FilingNumber, ///< A number from 1 to 99 in a text box; zero is stored as nothing.
    Money,        ///< An amount that a label shows: stored without separators and sign.
    Title,        ///< A person title: the row of the title list, empty when none is chosen.
    Date,         ///< A date box: its eight digits.
};

struct Field {
    std::size_t index; ///< The entry of the array.
    std::string_view control;
    FieldKind kind;
};

/// The control of a row. A table that names a control its form does not have is a fault of the program and
/// throws std::logic_error.
Control& fieldControl(const Form& form, const Field& field);

/// The entry that the control's content is stored as.
std::string readField(const Form& form, const Field& field);

/// Shows an entry in its control, through the same events that a change by code always raises.
void showField(const Form& form, const Field& field, std::string_view entry);

} // namespace lodge
