#include "values/fuc_date.h"

#include "values/text.h"

#include <charconv>
#include <string>

namespace lodge {

namespace {

// A machine whose calendar shows this year or a later one keeps the Buddhist era. The test is on the year
// that the machine shows today, never on the year of the text.
constexpr int firstBuddhistMachineYear = 2501;

// Years of fewer digits are not years but slips, which a calendar would place in a century of its own
// choosing.
constexpr int earliestYear = 100;

// "ddmmyyyy" of a text with or without its separators; a day without its leading zero gets it back.
std::string eightDigits(std::string_view text) {
    constexpr std::size_t dateTextLength = 8;
    std::string digits = removeAll(text, "-/ ");
    if (!allDigits(digits) || digits.empty() || digits.size() > dateTextLength) return {};
    digits.insert(0, dateTextLength - digits.size(), '0');
    return digits;
}

unsigned part(std::string_view digits, std::size_t start, std::size_t length) {
    unsigned number = 0;
    std::from_chars(digits.data() + start, digits.data() + start + length, number);
    return number;
}

// The year of a date text as the machine's calendar writes it.
int yearOnMachine(int buddhistYear, bool buddhistMachine) {
    return buddhistMachine ? buddhistYear : buddhistYear - buddhistEraOffset;
}

// The Christian year of a year that the machine's calendar writes.
int christianYear(int machineYear, bool buddhistMachine) {
    return buddhistMachine ? machineYear - buddhistEraOffset : machineYear;
}

} // namespace

// Both kinds of machine arrive at the same day: the Christian one writes the year less 543, the Buddhist one
// takes it as it stands and means the same year by it.
bool FucDate::parse(std::string_view text, int machineYear) {
    const std::string digits = eightDigits(text);
    if (digits.empty()) return false;
    const bool buddhistMachine = machineYear >= firstBuddhistMachineYear;
    const int written = yearOnMachine(static_cast<int>(part(digits, 4, 4)), buddhistMachine);
    const int year = christianYear(written, buddhistMachine);
    const Date date{std::chrono::year{year}, std::chrono::month{part(digits, 2, 2)},
        std::chrono::day{part(digits, 0, 2)}};
    if (year < earliestYear || !date.ok()) return false;
    ParsedDate = date;
    return true;
}

bool FucDate::Str2StartDate(std::string_view text, int machineYear) {
    if (!parse(text, machineYear)) return false;
    PeriodStartDate = ParsedDate;
    DayBeforePeriodStart = AddDays(*ParsedDate, -1);
    return true;
}

bool FucDate::Str2EndDate(std::string_view text, int machineYear) {
    if (!parse(text, machineYear)) return false;
    PeriodEndDate = ParsedDate;
    return true;
}

void FucDate::SetCarryYears(int years) {
    CarryYearLimit = years;
    EarliestStartDate.reset();
    if (PeriodStartDate) EarliestStartDate = AddYears(*PeriodStartDate, -years);
}

} // namespace lodge
