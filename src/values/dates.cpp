#include "values/dates.h"

#include "values/text.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <optional>

namespace lodge {

namespace {

constexpr std::size_t dateTextLength = 8;
constexpr int earliestBuddhistYear = 2500;
constexpr int monthsPerYear = 12;

// February's 29 of a leap year is not in the list.
constexpr std::array<std::string_view, monthsPerYear> monthLengths{
    "31", "28", "31", "30", "31", "30", "31", "31", "30", "31", "30", "31"};
constexpr std::string_view leapFebruary = "29";

constexpr std::array<std::string_view, monthsPerYear> shortMonthNames{
    "ม.ค.", "ก.พ.", "มี.ค.", "เม.ย.", "พ.ค.", "มิ.ย.", "ก.ค.", "ส.ค.", "ก.ย.", "ต.ค.", "พ.ย.", "ธ.ค."};

// July's spelling is the printed form's own.
constexpr std::array<std::string_view, monthsPerYear> fullMonthNames{"มกราคม", "กุมภาพันธ์", "มีนาคม", "เมษายน",
    "พฤษภาคม", "มิถุนายน", "กรกฏาคม", "สิงหาคม", "กันยายน", "ตุลาคม", "พฤศจิกายน", "ธันวาคม"};

int numberOf(std::string_view digits) {
    int number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number;
}

// The parts of a date text as they are written.
struct DateParts {
    std::string_view day, month, year;
};

std::optional<DateParts> partsOf(std::string_view eightDigits) {
    if (eightDigits.size() != dateTextLength || !allDigits(eightDigits)) return {};
    return DateParts{eightDigits.substr(0, 2), eightDigits.substr(2, 2), eightDigits.substr(4)};
}

std::string_view monthLength(int month, int buddhistYear) {
    if (month == 2 && isLeapBuddhistYear(buddhistYear)) return leapFebruary;
    return monthLengths[static_cast<std::size_t>(month - 1)];
}

bool isBuddhistDate(const DateParts& parts) {
    const int month = numberOf(parts.month);
    const int year = numberOf(parts.year);
    if (parts.day == "00" || month < 1 || month > monthsPerYear || year < earliestBuddhistYear) return false;
    return parts.day <= monthLength(month, year);
}

// The day number of a day of the Julian calendar, before the Gregorian reform is taken into account. The year
// counts from March, so that the leap day is its last.
long julianDay(long year, long month, long day) {
    return year * 1461 / 4 + month * 306001 / 10000 + day + 1720995;
}

// The first Gregorian day, 15 October 1582, as days of months of 31 days.
constexpr long gregorianReform = 15 + 31 * (10 + 12 * 1582);

} // namespace

std::string ChkDate(std::string_view text) {
    if (textLength(text) < dateTextLength) return {};
    std::string joined{textLeft(text, 4)};
    joined += textRight(text, 4);
    const auto parts = partsOf(joined);
    return parts && isBuddhistDate(*parts) ? joined : std::string{};
}

std::string DateToYMD(std::string_view text) {
    const std::string digits = dateDigits(text);
    const auto parts = partsOf(digits);
    return parts ? fmt::format("{}{}{}", parts->year, parts->month, parts->day) : std::string{};
}

long DateFromText(std::string_view text) {
    const std::string digits = dateDigits(text);
    const auto parts = partsOf(digits);
    if (!parts) return 0;
    const long day = numberOf(parts->day);
    const long month = numberOf(parts->month);
    long year = numberOf(parts->year) - buddhistEraOffset;
    if (year < 0) ++year;

    const bool fromMarch = month > 2;
    const long marchYear = fromMarch ? year : year - 1;
    const long number = julianDay(marchYear, fromMarch ? month + 1 : month + 13, day);
    if (day + 31 * (month + 12 * year) < gregorianReform) return number;
    const long century = marchYear / 100;
    return number + 2 - century + century / 4;
}

std::string_view MonthName(std::string_view form, int month) {
    if (month < 1 || month > monthsPerYear) return {};
    const auto index = static_cast<std::size_t>(month - 1);
    if (form == "1") return shortMonthNames[index];
    if (form == "2") return fullMonthNames[index];
    return {};
}

std::string dateDigits(std::string_view text) {
    std::string digits;
    std::ranges::copy_if(text, std::back_inserter(digits), isDigit);
    return digits;
}

bool isLeapBuddhistYear(int year) { return year % 4 == 3; }

long periodDays(Date first, Date last) {
    return (std::chrono::sys_days{last} - std::chrono::sys_days{first}).count() + 1;
}

Date AddYears(Date date, int years) {
    const Date moved = date + std::chrono::years{years};
    return moved.ok() ? moved : Date{moved.year() / moved.month() / std::chrono::last};
}

Date AddDays(Date date, int days) { return std::chrono::sys_days{date} + std::chrono::days{days}; }

std::string isoText(Date date) {
    return fmt::format("{:04}-{:02}-{:02}", static_cast<int>(date.year()),
        static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
}

std::string dateText(Date date) {
    return fmt::format("{:02}{:02}{:04}", static_cast<unsigned>(date.day()),
        static_cast<unsigned>(date.month()), static_cast<int>(date.year()) + buddhistEraOffset);
}

std::string maskText(Date date) {
    return fmt::format("{:02}/{:02}/{:04}", static_cast<unsigned>(date.day()),
        static_cast<unsigned>(date.month()), static_cast<int>(date.year()) + buddhistEraOffset);
}

} // namespace lodge
