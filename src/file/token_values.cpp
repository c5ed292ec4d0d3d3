#include "file/token_values.h"

#include "values/dates.h"
#include "values/money.h"
#include "values/text.h"

#include <limits>

namespace lodge {

namespace {

constexpr std::size_t dayLength = 2;
constexpr std::size_t yearLength = 4;

struct DateParts {
    std::string_view day;
    std::string_view month;
    std::string_view year;
};

DateParts readParts(TokenReader& tokens) {
    const std::string_view day = tokens.next();
    const std::string_view month = tokens.next();
    return {day, month, tokens.next()};
}

} // namespace

void writeDate(std::string_view date, TokenWriter& tokens) {
    const std::string digits = dateDigits(date);
    tokens.add(textLeft(digits, dayLength));
    tokens.add(textMid(digits, dayLength + 1, dayLength));
    tokens.add(textRight(digits, yearLength));
}

std::string readPlainDate(TokenReader& tokens) {
    const DateParts parts = readParts(tokens);
    return std::string(parts.day).append(parts.month).append(parts.year);
}

std::string readMaskDate(TokenReader& tokens) {
    const DateParts parts = readParts(tokens);
    if (parts.day.empty() && parts.month.empty() && parts.year.empty()) return {};
    return std::string(parts.day).append("/").append(parts.month).append("/").append(parts.year);
}

std::string amountForTheEye(const std::string& amount) {
    if (amount.empty()) return {};
    if (readFigure(amount) >= 0.0) return formatMoneyText(amount);
    // The sign is dropped and brackets stand for it.
    return "(" + formatMoneyText(textMid(amount, 2)) + ")";
}

std::string plainAmount(const std::string& amount) {
    const double value = readFigure(amount);
    return xx_Val(value < 0.0 ? formatBracket(value) : amount);
}

std::int16_t readWholeNumber(std::string_view token) {
    const double number = readNumber(token);
    using Limits = std::numeric_limits<std::int16_t>;
    if (number < Limits::min() || number > Limits::max()) return 0;
    return static_cast<std::int16_t>(number);
}

} // namespace lodge
