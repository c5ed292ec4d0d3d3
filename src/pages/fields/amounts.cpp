#include "pages/fields/amounts.h"

#include "values/money.h"

#include <cmath>

namespace lodge {

std::string plainAmount(std::string_view shown) { return shown.empty() ? std::string() : xx_Val(shown); }

std::string shownFigure(double figure) { return formatBracket(roundMoney(figure)); }

std::string shownAsLoss(double amount) { return "(" + formatMoney(std::abs(amount)) + ")"; }

bool sameAmount(double one, double other) { return roundMoney(one - other) == 0.0; }

bool passesMoneyCheck(std::string_view typed, Notifier& notifier) {
    return typed.empty() || ChkMoney(typed, notifier) == "1";
}

void showPlainDigits(TextBox& box) { box.setText(plainAmount(box.text())); }

void openBox(Control& box) {
    box.setEnabled(true);
    box.setBack(BackColour::Window);
}

void closeBox(Control& box) {
    box.setEnabled(false);
    box.setBack(BackColour::Button);
}

std::string UnsignedEntries::show(std::string& entry) {
    std::string shown = formatBracketText(entry);
    if (readFigure(entry) < 0) {
        taken_.push_back({&entry, entry});
        std::string digits = xx_Val(entry); // always begins with the minus sign of the negative figure
        digits.erase(0, 1);
        entry = std::move(digits);
    }
    return shown;
}

void UnsignedEntries::restore() {
    for (const Taken& taken : taken_) {
        if ("-" + *taken.entry == xx_Val(taken.withSign)) *taken.entry = taken.withSign;
    }
    taken_.clear();
}

} // namespace lodge
