// Amounts as texts: what a user may type, how an amount is read, how it is shown. All amounts are baht with
// two decimals; in the return they live as texts, on screen as "#,##0.00", negatives in brackets.
// This is the only place that rounds: half away from zero, on the number's decimal text of at most 15
// significant digits, so that 1.005 becomes 1.01 although the nearest double lies below it.
// An empty text is not zero unless a function says so. Nothing here depends on the locale.
#pragma once

#include "values/notifier.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace lodge {

// The largest amount that the form takes, in baht; its negative is the smallest. Both are allowed themselves.
inline constexpr double largestAmount = 9'999'999'999'999.99;

// --- Checking what was typed ---

// "1" when `text` is an amount that may be typed, otherwise "0" after showing M073 (no number), M075 (a
// character or a sign out of place) or M069 (too long or outside ±largestAmount). An empty text shows M073.
[[nodiscard]] std::string ChkMoney(std::string_view text, Notifier& notifier);

// Whether the whole text, separators aside, is a number as readNumber takes it, or such a number without a
// sign in brackets; an empty text is none.
[[nodiscard]] bool isNumericText(std::string_view text);

// --- Reading ---

// The number at the head of the text: leading blanks, a sign, digits with at most one "."; reading stops at
// the first character that does not fit. Nothing readable is 0. No separators, no exponent. Always finite.
[[nodiscard]] double readNumber(std::string_view text);

// A figure as a page shows it: separators dropped, brackets as minus, so "(1,234.50)" is -1234.5. Empty is 0.
[[nodiscard]] double readFigure(std::string_view text);

// A shown amount as a number: brackets mean negative wherever they stand, separators are dropped. Empty is 0.
[[nodiscard]] double MoneyTextToDouble(std::string_view value);

// Strips a shown amount to a plain number text: "(1,234.50)" gives "-1234.50". An empty text gives "0".
// Cannot fail: what is no amount comes back without its separators and blanks.
[[nodiscard]] std::string xx_Val(std::string_view text);

// --- Showing ---

// "#,##0.00", a negative with a leading minus. What rounds to zero carries no sign: -0.004 gives "0.00".
[[nodiscard]] std::string formatMoney(double value);

// "#0.00": as formatMoney without separators.
[[nodiscard]] std::string formatFixed(double value);

// Brackets for what is below zero before rounding: -5 gives "(5.00)", -0.004 gives "(0.00)". Others
// "#,##0.00".
[[nodiscard]] std::string formatBracket(double value);

// formatBracket of an amount that may be missing: nullopt gives an empty text.
[[nodiscard]] std::string DoubleToMoneyText(std::optional<double> value);

// The same formats of the figure that a text holds (read by readFigure); an empty text stays empty.
[[nodiscard]] std::string formatMoneyText(std::string_view text);
[[nodiscard]] std::string formatFixedText(std::string_view text);
[[nodiscard]] std::string formatBracketText(std::string_view text);

// The number as a plain text: at most 15 significant digits, no exponent, no separators, no trailing zeros,
// never "-0": 0.1 + 0.2 gives "0.3".
[[nodiscard]] std::string plainNumberText(double value);

// The number rounded to satang, as formatMoney shows it.
[[nodiscard]] double roundMoney(double value);

// --- Digits ---

// The first `length` characters of the text when all are digits, otherwise empty (a text shorter than
// `length` too). When `wanted` differs from `length`, zeros are put in front up to `wanted` digits.
[[nodiscard]] std::string DigitFilter(std::string_view text, std::size_t length, std::size_t wanted);

// The number text without its fraction: cut at the ".".
[[nodiscard]] std::string TruncValue(std::string_view value);

// What whole-number division of `value` by `base` leaves, with the sign of `value`; fractions of both are
// dropped first. A base of 0 leaves 0.
[[nodiscard]] long long ModOf(std::string_view value, std::string_view base);

} // namespace lodge
