// The checks of a complete store over the schedules themselves; what ties them to item 3 stands elsewhere.
#pragma once

#include "program/checks.h"

#include <span>

namespace lodge {

/// Item 5: a cost of manufacture is not below zero.
[[nodiscard]] std::span<const CheckRow> item5CheckRows();
/// Item 8 against item 9: lines 15 to 26 are the expenses that item 9 line 5 adds back.
[[nodiscard]] std::span<const CheckRow> item8CheckRows();

/// The full check of item 5; the first refusal sets `intError`.
void Chk_Item5Store(Program& program);
/// The full check of item 8 against item 9; a refusal sets `intError`.
void Chk_Item8Store(Program& program);

} // namespace lodge
