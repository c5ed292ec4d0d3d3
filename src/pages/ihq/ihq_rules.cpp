#include "pages/ihq/ihq_rules.h"

#include "pages/fields/amounts.h"
#include "pages/fields/days.h"
#include "values/dates.h"
#include "values/money.h"
#include "values/text.h"

#include <algorithm>
#include <charconv>
#include <span>

namespace lodge {

namespace {

constexpr std::string_view monthLengths = "312831303130313130313031"; // two digits a month
constexpr int monthsOfYear = 12;

int numberOf(std::string_view digits) {
    int number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number;
}

int lengthOfMonth(int month, int buddhistYear) {
    if (month == 2 && isLeapBuddhistYear(buddhistYear)) return 29;
    return numberOf(monthLengths.substr(2 * (static_cast<std::size_t>(month) - 1), 2));
}

} // namespace

std::string FormatBox(std::string_view text) { return formatBracketText(text); }

bool ChkBoxNum(std::string_view text, Notifier& notifier) { return passesMoneyCheck(text, notifier); }

bool CheckDate(std::string_view text) {
    constexpr std::size_t digitsOfDate = 8;
    std::string digits = removeAll(text, "_");
    if (digits.size() > digitsOfDate) digits = removeAll(digits, "/");
    if (digits.size() != digitsOfDate || !allDigits(digits)) return false;
    const std::string_view date = digits;
    const int day = numberOf(date.substr(0, 2));
    const int month = numberOf(date.substr(2, 2));
    const int year = numberOf(date.substr(4));
    if (day == 0 || month == 0 || year == 0 || month > monthsOfYear) return false;
    return day <= lengthOfMonth(month, year);
}

bool ChkContinue(std::string_view start, std::string_view endAbove) { return isDayAfter(start, endAbove); }

std::string dayBefore(std::string_view start) {
    const auto day = dayOf(start);
    return day ? dateText(AddDays(*day, -1)) : std::string();
}

namespace {

template <typename Dates>
struct DateRule {
    std::string_view code;
    bool (*refuses)(const Dates& dates);
};

template <typename Dates>
std::string_view firstBroken(std::span<const DateRule<Dates>> rules, const Dates& dates) {
    const auto rule =
        std::ranges::find_if(rules, [&](const DateRule<Dates>& other) { return other.refuses(dates); });
    return rule == rules.end() ? std::string_view() : rule->code;
}

bool isBefore(std::string_view date, std::string_view other) {
    return DateFromText(date) < DateFromText(other);
}

// --- The privilege ---

bool startsBeforeApproval(const PrivilegeDates& d) {
    return !d.start.empty() && !d.confirmed.empty() && isBefore(d.start, d.confirmed);
}

using PrivilegeRule = DateRule<PrivilegeDates>;

// clang-format off
constexpr std::array<PrivilegeRule, 3> confirmedRules = {{
    {"M026", [](const PrivilegeDates& d) { return !CheckDate(d.confirmed); }},
    {"M201", [](const PrivilegeDates& d) { return isBefore(d.record.PeriodEnd, d.confirmed); }},
    {"M203", startsBeforeApproval},
}};

constexpr std::array<PrivilegeRule, 3> startRules = {{
    {"M026", [](const PrivilegeDates& d) { return !CheckDate(d.start); }},
    {"M202", [](const PrivilegeDates& d) { return isBefore(d.record.PeriodEnd, d.start); }},
    {"M203", startsBeforeApproval},
}};

constexpr std::array<PrivilegeRule, 2> endRules = {{
    {"M026", [](const PrivilegeDates& d) { return !CheckDate(d.end); }},
    {"M204", [](const PrivilegeDates& d) { return isBefore(d.end, d.record.PeriodStart); }},
}};
// clang-format on

// --- The earlier periods ---

constexpr std::int16_t investmentPromotion = 1;

long lastDayBeforePeriod(const LossPeriod& p) { return dayNumber(p.state.FucDate.DayBeforePeriodStart); }

bool startsTooEarly(const LossPeriod& p) {
    return DateFromText(p.from) < dayNumber(p.state.FucDate.EarliestStartDate);
}

bool startsBeforeRowAbove(const LossPeriod& p) {
    return !p.isFirstRow && !p.fromAbove.empty() && isBefore(p.from, p.fromAbove);
}

bool endsInReturnsPeriod(const LossPeriod& p) { return DateFromText(p.to) > lastDayBeforePeriod(p); }

/// A period has at most a year, and a row that is typed with its start as it was loaded may have no start.
bool isLongerThanAYear(const LossPeriod& p) {
    const auto start = dayOf(p.from);
    if (!start) return false;
    const long yearLater = dayNumber(AddDays(AddYears(*start, 1), -1));
    return DateFromText(p.to) > std::min(yearLater, lastDayBeforePeriod(p));
}

using LossRule = DateRule<LossPeriod>;

// clang-format off
// M516 names five periods whatever the filer's limit is: its text has no place for another number.
constexpr std::array<LossRule, 6> lossStartRules = {{
    {"M026", [](const LossPeriod& p) { return !CheckDate(p.from); }},
    {"M517", [](const LossPeriod& p) { return DateFromText(p.from) > lastDayBeforePeriod(p); }},
    {"M516", startsTooEarly},
    {"M515", startsBeforeRowAbove},
    {"M207", [](const LossPeriod& p) { return !p.isFirstRow && p.toAbove.empty(); }},
    {"M136", [](const LossPeriod& p) { return !p.isFirstRow && !ChkContinue(p.from, p.toAbove); }},
}};

constexpr std::array<LossRule, 6> lossEndRules = {{
    {"M026", [](const LossPeriod& p) { return !CheckDate(p.to); }},
    {"M200", [](const LossPeriod& p) { return p.from.empty(); }},
    {"M152", [](const LossPeriod& p) { return p.state.intInvestment == investmentPromotion && endsInReturnsPeriod(p); }},
    {"M206", endsInReturnsPeriod},
    {"M514", isLongerThanAYear},
    {"M148", [](const LossPeriod& p) { return DateFromText(p.to) < DateFromText(p.from) + 1; }},
}};
// clang-format on

} // namespace

std::string_view refusalOfConfirmed(const PrivilegeDates& dates) {
    return dates.confirmed.empty() ? std::string_view() : firstBroken<PrivilegeDates>(confirmedRules, dates);
}

std::string_view refusalOfStart(const PrivilegeDates& dates) {
    return dates.start.empty() ? std::string_view() : firstBroken<PrivilegeDates>(startRules, dates);
}

std::string_view refusalOfEnd(const PrivilegeDates& dates) {
    return dates.end.empty() ? std::string_view() : firstBroken<PrivilegeDates>(endRules, dates);
}

std::string_view refusalOfLossStart(const LossPeriod& period) {
    return period.from.empty() ? std::string_view() : firstBroken<LossPeriod>(lossStartRules, period);
}

std::string_view refusalOfLossEnd(const LossPeriod& period) {
    return period.to.empty() ? std::string_view() : firstBroken<LossPeriod>(lossEndRules, period);
}

} // namespace lodge
