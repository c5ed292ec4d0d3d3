// The pages of the return, in their order, with the procedures that each supplies to the shell.
#pragma once

#include "program/checks.h"
#include "program/program.h"

#include <cstdint>
#include <span>
#include <vector>

namespace lodge {

/// The page codes that `intPageCur` holds. They are the page of the paper form and the item on it.
namespace page {
inline constexpr std::int16_t chooser = 0;
inline constexpr std::int16_t first = 1;
inline constexpr std::int16_t tax = 2;
inline constexpr std::int16_t item3 = 33;
inline constexpr std::int16_t item4 = 34;
inline constexpr std::int16_t item5 = 45;
inline constexpr std::int16_t item6 = 46;
inline constexpr std::int16_t item7 = 47;
inline constexpr std::int16_t item8 = 58;
inline constexpr std::int16_t item9 = 59;
inline constexpr std::int16_t item10 = 610;
inline constexpr std::int16_t item11 = 611;
inline constexpr std::int16_t item12 = 712;
inline constexpr std::int16_t notification = 8;
inline constexpr std::int16_t headquarters = 100;
} // namespace page

/// A procedure of a page; it reports by `intError`.
using PageProcedure = void (*)(Program&);

struct PageRow {
    std::int16_t code;
    const char* form;
    /// The title of the page.
    const char* title;
    /// The button of the chooser that leads here, nullptr for page 1.
    const char* chooserButton;
    const char* chooserCaption;
    /// Fills the controls from the array when the page is shown.
    PageProcedure arrayToControls;
    /// Runs when the page is left.
    PageProcedure lightCheck;
    /// Rebuilds the array from the controls; nullptr for a page whose fields are kept as they are left.
    PageProcedure store;
    /// The field that gets the focus after a refused store.
    const char* (*firstField)(std::int16_t investment);
};

/// A check of a complete store. They run in their order; the first that sets `intError` ends the store.
struct FullCheck {
    PageProcedure run;
    /// Adds everything that the check refuses to the list, in the order of its rows; shows and writes
    /// nothing.
    void (*collect)(const CheckContext& context, std::vector<Refusal>& refusals);
    /// Whether the return is one that the check is for, nullptr for every return.
    bool (*applies)(const ReturnState& state);
};

[[nodiscard]] std::span<const PageRow> pageTable();
[[nodiscard]] std::span<const FullCheck> fullChecks();
/// The page of that code, nullptr for the chooser and for a code that is no page.
[[nodiscard]] const PageRow* findPage(std::int16_t code);

} // namespace lodge
