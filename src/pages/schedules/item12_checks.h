// What item 12 must satisfy: its two capital cells while they are typed, its totals in a complete store.
#pragma once

#include "program/checks.h"

#include <span>
#include <string>

namespace lodge {

/// The capital of the company as typed, when one of its two cells is left.
struct CapitalEdit {
    bool leavesRegistered; ///< The cell of the registered capital, otherwise that of the paid-up.
    std::string registered;
    std::string paidUp;
};

/// The text to show when the registered capital does not cover the paid-up; nullptr when it does.
[[nodiscard]] const char* capitalRefusal(const CapitalEdit& edit);

/// The full check, over strFldPage7_12.
[[nodiscard]] std::span<const CheckRow> item12CheckRows();
/// Runs the full check; the first refusal sets `intError`.
void Chk_Item12Store(Program& program);

} // namespace lodge
