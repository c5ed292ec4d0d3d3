// Buddhist-era date texts and Christian-era days. A date text is eight digits, day, month, Buddhist year
// ("31122561"), as the return stores it; Date is the same day in the Christian era, year less 543.
#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace lodge {

// A day of the Christian era (the Gregorian calendar that std::chrono keeps).
using Date = std::chrono::year_month_day;

// Years by which the Buddhist era is ahead of the Christian era.
inline constexpr int buddhistEraOffset = 543;

// The date text itself when it is a day of the Buddhist year 2500 or later, otherwise empty. A text of fewer
// than eight characters, an empty one among them, is no date, nor is one with slashes: a mask text goes
// through dateDigits first. Shows nothing: the caller tells its user (M026).
[[nodiscard]] std::string ChkDate(std::string_view text);

// Year, month, day ("25611231") of a date text with or without its slashes, so that dates compare as numbers.
// Empty for a text that does not have exactly eight digits.
[[nodiscard]] std::string DateToYMD(std::string_view text);

// The Julian day number of a date text with or without its slashes; differences of days are taken on it. The
// day need not exist (31 April counts on into May). 0 for a text that does not have exactly eight digits.
[[nodiscard]] long DateFromText(std::string_view text);

// The Thai name of a month, 1 to 12: form "1" short ("ม.ค."), form "2" in full ("มกราคม"). Otherwise empty.
[[nodiscard]] std::string_view MonthName(std::string_view form, int month);

// The digits of a date, without the slashes and prompts of the mask "##/##/####"; empty when there is none.
[[nodiscard]] std::string dateDigits(std::string_view text);

// The leap rule that date texts are checked by: a Buddhist year that leaves 3 when divided by 4.
[[nodiscard]] bool isLeapBuddhistYear(int year);

// The days from one day to the other, both counted: an accounting period's length. Negative or 0 when `last`
// comes before `first`.
[[nodiscard]] long periodDays(Date first, Date last);

// The day `years` later (earlier when negative); 29 February falls on the 28th where the year has none.
[[nodiscard]] Date AddYears(Date date, int years);

// The day `days` later (earlier when negative).
[[nodiscard]] Date AddDays(Date date, int days);

// "YYYY-MM-DD" of the Christian era.
[[nodiscard]] std::string isoText(Date date);

// The day as a date text of eight digits, day, month, Buddhist year.
[[nodiscard]] std::string dateText(Date date);

// The day as the mask shows it, "dd/mm/yyyy" with the Buddhist year.
[[nodiscard]] std::string maskText(Date date);

} // namespace lodge
