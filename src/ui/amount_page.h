// The pages of amounts, items 3 to 10 and 12: sheets made from the tables of their lines instead of drawn one
// by one, so that a line stands on screen where its table has it and under the name of its control.
#pragma once

#include <QStringList>
#include <QWidget>

#include <memory>
#include <string_view>

namespace lodge {

/// Builds the widgets of a page of amounts; nothing for any other form.
[[nodiscard]] std::unique_ptr<QWidget> makeAmountPage(std::string_view form);
/// The names of the forms of these pages.
[[nodiscard]] QStringList amountPageNames();

/// The width of a column that takes the longest amount, (9,999,999,999,999.99).
[[nodiscard]] int amountColumnWidth();

} // namespace lodge
