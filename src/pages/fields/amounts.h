// Amounts on their way between a page's controls and its array, the same on every page: plain digits in the
// array ("-1234.50"), "#,##0.00" or brackets on screen. An empty text stays empty both ways.
#pragma once

#include "controls/text_box.h"
#include "program/program.h"

#include <string>
#include <string_view>
#include <vector>

namespace lodge {

/// The plain digits of a shown amount, "(1,234.50)" as "-1234.50".
[[nodiscard]] std::string plainAmount(std::string_view shown);

/// A computed figure as a page shows it: rounded to satang, brackets when it is then below zero, so that the
/// noise of binary sums is never shown as a negative nothing.
[[nodiscard]] std::string shownFigure(double figure);

/// "(#,##0.00)" of the amount without its sign, as a loss is written.
[[nodiscard]] std::string shownAsLoss(double amount);

/// Whether two sums are the same amount: figures of two decimals, baht.
[[nodiscard]] bool sameAmount(double one, double other);

/// Whether what was typed is an amount; an empty text is not looked at. A refusal has shown its message.
/// Brackets and blanks are none: a box shows plain digits while it is typed into.
[[nodiscard]] bool passesMoneyCheck(std::string_view typed, Notifier& notifier);

/// Shows plain digits while the box has the focus.
void showPlainDigits(TextBox& box);

void openBox(Control& box);
/// Disabled and grey; the text stays.
void closeBox(Control& box);

/// Entries whose page is on screen hold their amounts without a sign, because the brackets carry it there and
/// the store of the page brings it back. A page that goes without a store gives the signs back itself.
class UnsignedEntries {
  public:
    /// What the page shows of the entry. A negative entry loses its sign until `restore`.
    [[nodiscard]] std::string show(std::string& entry);
    /// The page was stored: the array has its signs.
    void forget() { taken_.clear(); }
    /// Gives the signs back to the entries that nobody has written to since.
    void restore();

  private:
    struct Taken {
        std::string* entry;
        std::string withSign;
    };
    std::vector<Taken> taken_;
};

} // namespace lodge
