#include "values/money.h"

#include "values/messages.h"
#include "values/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace lodge {

namespace {

constexpr std::string_view accepted = "1";
constexpr std::string_view refused = "0";

// The longest text of an amount without separators: thirteen digits, a point, two decimals; one more for a
// sign.
constexpr std::size_t longestAmountText = 16;

constexpr int significantDigits = 15;
constexpr int moneyDecimals = 2;

// A number as decimal digits: 0.d1d2d3… × 10^point, without zeros at either end; no digits for zero.
struct Decimal {
    std::array<char, significantDigits> storage{};
    int count = 0;
    int point = 0;
    bool negative = false;

    // Drops all but the first `kept` digits, rounding half away from zero.
    void round(int kept) {
        if (kept >= count) return;
        if (kept < 0) {
            count = 0;
            return;
        }
        const bool up = storage[static_cast<std::size_t>(kept)] >= '5';
        count = kept;
        if (up) increment();
        trimZeros();
    }

    // Adds one at the last digit kept; a run of nines carries into the digit before it, or into a new first
    // digit.
    void increment() {
        while (count > 0 && storage[static_cast<std::size_t>(count - 1)] == '9')
            --count;
        if (count > 0) {
            ++storage[static_cast<std::size_t>(count - 1)];
            return;
        }
        storage[0] = '1';
        count = 1;
        ++point;
    }

    void trimZeros() {
        while (count > 0 && storage[static_cast<std::size_t>(count - 1)] == '0')
            --count;
    }
};

// The digits of a number, 15 at most. A sum that ran out of the range of double counts as the largest double,
// and what is no number at all as zero, so that a hostile file cannot make a format fail.
Decimal decimalOf(double value) {
    constexpr double largest = std::numeric_limits<double>::max();
    if (std::isnan(value)) return {};
    value = std::clamp(value, -largest, largest);

    // "d.ddd…e±xx" with far more digits than are kept: the digit behind the last one kept is then a true
    // digit, never one that was rounded up already, and a half shows as a half.
    constexpr int exactDigits = 40;
    std::array<char, exactDigits + 16> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value),
        std::chars_format::scientific, exactDigits - 1);
    if (error != std::errc{}) return {};

    Decimal decimal;
    decimal.storage[0] = buffer[0];
    std::copy_n(buffer.data() + 2, significantDigits - 1, decimal.storage.data() + 1);
    decimal.count = significantDigits;
    const char* exponent = buffer.data() + exactDigits + 2;
    std::from_chars(*exponent == '+' ? exponent + 1 : exponent, end, decimal.point);
    ++decimal.point;
    decimal.negative = std::signbit(value);
    if (buffer[significantDigits + 1] >= '5') decimal.increment();
    decimal.trimZeros();
    if (decimal.count == 0) return {};
    return decimal;
}

// The digits before the point, at least one.
void appendWhole(std::string& text, const Decimal& number, bool separated) {
    if (number.point <= 0) {
        text += '0';
        return;
    }
    for (int i = 0; i < number.point; ++i) {
        if (separated && i > 0 && (number.point - i) % 3 == 0) text += ',';
        text += i < number.count ? number.storage[static_cast<std::size_t>(i)] : '0';
    }
}

// A digit behind the point, the first at position 0.
char fractionDigit(const Decimal& number, int position) {
    const int index = number.point + position;
    return index >= 0 && index < number.count ? number.storage[static_cast<std::size_t>(index)] : '0';
}

std::string formatTwoDecimals(double value, bool separated) {
    Decimal number = decimalOf(value);
    number.round(number.point + moneyDecimals);
    std::string text;
    if (number.count == 0) {
        number = {};
    } else if (number.negative) {
        text += '-';
    }
    appendWhole(text, number, separated);
    text += '.';
    for (int i = 0; i < moneyDecimals; ++i)
        text += fractionDigit(number, i);
    return text;
}

// What readNumber reads: the length of sign and digits behind leading blanks, and whether there was a digit.
struct NumberHead {
    std::string_view number; // digits with at most one "."
    std::string_view rest;
    bool negative = false;
    bool readable = false;
};

NumberHead numberHead(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    NumberHead head;
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        head.negative = text.front() == '-';
        text.remove_prefix(1);
    }
    std::size_t length = 0;
    bool pointSeen = false;
    for (const char c : text) {
        if (c == '.' && !pointSeen) {
            pointSeen = true;
        } else if (isDigit(c)) {
            head.readable = true;
        } else {
            break;
        }
        ++length;
    }
    head.number = text.substr(0, length);
    head.rest = text.substr(length);
    return head;
}

// A whole number of a text that TruncValue has cut; beyond the range of long long the nearest that it holds.
long long wholeNumber(std::string_view text) {
    const NumberHead head = numberHead(text);
    long long value = 0;
    const auto [end, error] =
        std::from_chars(head.number.data(), head.number.data() + head.number.size(), value);
    if (error == std::errc::result_out_of_range) value = std::numeric_limits<long long>::max();
    return head.negative ? -value : value;
}

// The code of the first reason why `text` is no amount to be typed; empty when it is one.
std::string_view amountFault(std::string_view text) {
    if (text == "-") return "M075"; // a sign out of place, unlike other texts without a digit
    if (text.find_first_not_of(".,-") == std::string_view::npos) return "M073";
    bool pointSeen = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '.') {
            if (pointSeen) return "M073";
            pointSeen = true;
        } else if (c == '-' ? i > 0 : c != ',' && !isDigit(c)) {
            return "M075";
        }
    }
    const std::string plain = removeAll(text, ",");
    const bool negative = plain.starts_with('-');
    if (plain.size() > longestAmountText + (negative ? 1 : 0)) return "M069";
    return std::abs(readNumber(plain)) > largestAmount ? "M069" : std::string_view{};
}

} // namespace

std::string ChkMoney(std::string_view text, Notifier& notifier) {
    const std::string_view fault = amountFault(text);
    if (fault.empty()) return std::string{accepted};
    notifier.notify(std::string{GetMessage(fault)});
    return std::string{refused};
}

bool isNumericText(std::string_view text) {
    std::string plain = removeAll(text, ",");
    if (plain.size() > 2 && plain.front() == '(' && plain.back() == ')') {
        plain = plain.substr(1, plain.size() - 2);
        if (!isDigit(plain.front()) && plain.front() != '.') return false; // brackets are the sign
    }
    const NumberHead head = numberHead(plain);
    return head.readable && head.rest.empty();
}

double readNumber(std::string_view text) {
    const NumberHead head = numberHead(text);
    if (!head.readable) return 0;
    double value = 0;
    const auto [end, error] = std::from_chars(
        head.number.data(), head.number.data() + head.number.size(), value, std::chars_format::fixed);
    if (error == std::errc::result_out_of_range) {
        // Either hundreds of digits, or hundreds of zeros behind the point.
        const std::string_view whole = head.number.substr(0, head.number.find('.'));
        const bool tooLarge = whole.find_first_not_of('0') != std::string_view::npos;
        value = tooLarge ? std::numeric_limits<double>::max() : 0;
    }
    return head.negative && value != 0 ? -value : value;
}

double readFigure(std::string_view text) { return MoneyTextToDouble(text); }

double MoneyTextToDouble(std::string_view value) {
    const bool bracketed =
        value.find('(') != std::string_view::npos && value.find(')') != std::string_view::npos;
    const double number = readNumber(removeAll(value, ",()"));
    return bracketed && number != 0 ? -number : number;
}

std::string xx_Val(std::string_view text) {
    if (text.empty()) return "0";
    std::string plain = removeAll(text, ", ");
    if (!plain.starts_with('(')) return plain;
    const std::size_t length = textLength(plain);
    if (length < 2) return plain;
    std::string negative{"-"};
    negative += textMid(plain, 2, length - 2);
    return negative;
}

std::string formatMoney(double value) { return formatTwoDecimals(value, true); }

std::string formatFixed(double value) { return formatTwoDecimals(value, false); }

std::string formatBracket(double value) {
    if (!(value < 0)) return formatMoney(value);
    return "(" + formatMoney(-value) + ")";
}

std::string DoubleToMoneyText(std::optional<double> value) {
    return value ? formatBracket(*value) : std::string{};
}

std::string formatMoneyText(std::string_view text) {
    return text.empty() ? std::string{} : formatMoney(readFigure(text));
}

std::string formatFixedText(std::string_view text) {
    return text.empty() ? std::string{} : formatFixed(readFigure(text));
}

std::string formatBracketText(std::string_view text) {
    return text.empty() ? std::string{} : formatBracket(readFigure(text));
}

std::string plainNumberText(double value) {
    const Decimal number = decimalOf(value);
    std::string text;
    if (number.negative) text += '-';
    appendWhole(text, number, false);
    if (number.count > number.point) text += '.';
    for (int i = 0; number.point + i < number.count; ++i)
        text += fractionDigit(number, i);
    return text;
}

double roundMoney(double value) { return readNumber(formatFixed(value)); }

std::string DigitFilter(std::string_view text, std::size_t length, std::size_t wanted) {
    const std::string_view head = text.substr(0, length);
    if (head.size() < length || !allDigits(head)) return {};
    std::string padded(wanted > length ? wanted - length : 0, '0');
    padded += head;
    return padded;
}

std::string TruncValue(std::string_view value) { return std::string{value.substr(0, value.find('.'))}; }

long long ModOf(std::string_view value, std::string_view base) {
    const long long dividend = wholeNumber(TruncValue(removeAll(value, ",")));
    const long long divisor = wholeNumber(TruncValue(removeAll(base, ",")));
    return divisor == 0 ? 0 : dividend % divisor;
}

} // namespace lodge
