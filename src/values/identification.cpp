#include "values/identification.h"

#include "values/messages.h"
#include "values/money.h"
#include "values/text.h"

#include <array>

namespace lodge {

namespace {

// The weights of the first twelve digits of a 13-digit number.
constexpr std::array<int, 12> weights13{13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2};
constexpr std::size_t length13 = weights13.size() + 1;
constexpr int modulus13 = 11;

// The weights of an old tax number, its check digit among them.
constexpr std::array<int, 10> weights10{3, 1, 3, 1, 3, 1, 3, 1, 3, 1};
constexpr int modulus10 = 10;
constexpr std::string_view firstDigits10 = "1234";

constexpr std::size_t prefixLength = 4;

int digitAt(std::string_view text, std::size_t index) { return text[index] - '0'; }

template <std::size_t N>
int weightedSum(std::string_view digits, const std::array<int, N>& weights) {
    int sum = 0;
    for (std::size_t i = 0; i < N; ++i)
        sum += weights[i] * digitAt(digits, i);
    return sum;
}

bool checkDigitFits13(std::string_view text) {
    if (text.size() != length13 || !allDigits(text)) return false;
    const int remainder = weightedSum(text, weights13) % modulus13;
    return digitAt(text, length13 - 1) == (modulus13 - remainder) % 10;
}

bool passesMoneyCheck(std::string_view text, Notifier& notifier) { return ChkMoney(text, notifier) == "1"; }

std::string checked13(std::string_view text, std::string_view message, Notifier& notifier) {
    if (!passesMoneyCheck(text, notifier)) return {};
    if (checkDigitFits13(text)) return std::string{text};
    notifier.notify(std::string{GetMessage(message)});
    return {};
}

} // namespace

std::string ChkPerson13(std::string_view text, Notifier& notifier) {
    return checked13(text, "M114", notifier);
}

std::string ChkTax13(std::string_view text, Notifier& notifier) { return checked13(text, "M129", notifier); }

std::string ChkTax10(std::string_view text, Notifier& notifier) {
    const bool tenDigits = text.size() == weights10.size() && allDigits(text);
    if (tenDigits && firstDigits10.find(text.front()) == std::string_view::npos) return {};
    if (tenDigits && weightedSum(text, weights10) % modulus10 == 0) return std::string{text};
    notifier.notify(std::string{GetMessage("M003")});
    return {};
}

bool ChkNid13(std::string_view text, std::string& remembered, Notifier& notifier) {
    remembered = text;
    if (textLength(text) != length13) return false;
    const bool passed = passesMoneyCheck(text, notifier) && checkDigitFits13(text);
    if (!passed) remembered.clear();
    return passed;
}

bool HasPrefix(std::string_view text, std::string_view list) {
    const std::string_view prefix = textLeft(text, prefixLength);
    return textLength(prefix) == prefixLength && list.find(prefix) != std::string_view::npos;
}

} // namespace lodge
