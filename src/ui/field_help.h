// What a field means and where its figure comes from, for the key F1: written out for the fields that stand
// alone, and made from the tables of lines for the pages of amounts, so that it agrees with what the program
// computes.
#pragma once

#include "controls/control.h"

#include <span>
#include <string>
#include <string_view>

namespace lodge {

struct FieldHelp {
    std::string_view form;
    /// "txtMoney(3)", or "txtYearNo" for every control of that array.
    std::string_view control;
    /// "\n" parts paragraphs.
    std::string_view text;
};

/// The fields whose help is written out, page by page.
[[nodiscard]] std::span<const FieldHelp> fieldHelp();

/// What there is to say about a control beyond its name; empty for one that needs no word, such as a hidden
/// tool. "\n" parts paragraphs.
[[nodiscard]] std::string helpOn(const Control& control);

/// The keys of the program, one a line, for whoever asks for help where there is no field.
[[nodiscard]] std::string helpOnKeys();

} // namespace lodge
