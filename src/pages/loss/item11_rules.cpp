#include "pages/loss/item11_rules.h"

#include "pages/fields/days.h"
#include "pages/loss/item11_page.h"
#include "pages/loss/item11_table.h"
#include "values/dates.h"
#include "values/messages.h"

#include <algorithm>
#include <array>
#include <optional>

namespace lodge {

namespace {

bool isReadable(std::string_view digits) { return !ChkDate(digits).empty(); }

// --- The table when its page is left ---

// clang-format off
// The last row says of the start what the third says of the end, and so never comes to word.
constexpr std::array<TablePeriodRule, 5> leavingRules = {{
    {"M026", [](const TablePeriod& p) { return !isReadable(p.to); }},
    {"M055", [](const TablePeriod& p) { return DateToYMD(p.to) >= DateToYMD(p.today); }, true},
    {"M148", [](const TablePeriod& p) { return DateToYMD(p.to) <= DateToYMD(p.from); }},
    {"M102", [](const TablePeriod& p) { return p.from.empty(); }},
    {"M056", [](const TablePeriod& p) { return DateToYMD(p.from) >= DateToYMD(p.to); }},
}};

// --- A start typed into the table ---

struct TypedStartRule {
    std::string_view code;
    bool (*refuses)(const TypedStart& start);
};

constexpr std::array<TypedStartRule, 4> typedStartRules = {{
    {"M101", [](const TypedStart& s) { return DateFromText(s.from) > dayNumber(s.period.DayBeforePeriodStart); }},
    {"M150", [](const TypedStart& s) { return DateFromText(s.from) < dayNumber(s.period.EarliestStartDate); }},
    {"M149", [](const TypedStart& s) { return !s.fromAbove.empty() && DateFromText(s.from) <= DateFromText(s.fromAbove); }},
    {"M136", [](const TypedStart& s) { return !s.toAbove.empty() && !isDayAfter(s.from, s.toAbove); }},
}};
// clang-format on

// --- A period typed into the popup ---

/// The start of the period entered last, as a day number; 0 when there is none.
long lastStart(const ReturnState& state) {
    const auto entry = lastEntry(state);
    return entry ? DateFromText(state.strItem11Start[*entry]) : 0;
}

bool hasEntry(const NewPeriod& period) { return lastEntry(period.state).has_value(); }

bool startComesLate(const NewPeriod& period) {
    const long start = DateFromText(period.start);
    return start > DateFromText(period.end) || (hasEntry(period) && start > lastStart(period.state));
}

bool startMeetsAnother(const NewPeriod& period) {
    const long start = DateFromText(period.start);
    return start == DateFromText(period.end) || (hasEntry(period) && start == lastStart(period.state));
}

bool bothAreReadable(const NewPeriod& period) { return isReadable(period.start) && isReadable(period.end); }

bool endsInReturnsPeriod(const NewPeriod& period) {
    return bothAreReadable(period)
           && DateFromText(period.end) > dayNumber(period.state.FucDate.DayBeforePeriodStart);
}

constexpr std::int16_t investmentPromotion = 1;

bool promotedEndsInReturnsPeriod(const NewPeriod& period) {
    return period.state.intInvestment == investmentPromotion && endsInReturnsPeriod(period);
}

bool isLongerThanAYear(const NewPeriod& period) {
    if (!bothAreReadable(period)) return false;
    const long yearLater = dayNumber(AddDays(AddYears(*dayOf(period.start), 1), -1));
    const long latest = std::min(yearLater, dayNumber(period.state.FucDate.DayBeforePeriodStart));
    return DateFromText(period.end) > latest;
}

/// Whether the end lies before the day that stands so many days behind the start. A typed start lets an end
/// pass that lies one day before it, a typed end must lie behind its start: the two bounds differ, and are
/// meant to.
template <int DaysFromStart>
bool endsBeforeItStarts(const NewPeriod& period) {
    return bothAreReadable(period) && DateFromText(period.end) < DateFromText(period.start) + DaysFromStart;
}

bool isOneDay(const NewPeriod& period) { return bothAreReadable(period) && period.start == period.end; }

bool reachesLastEntry(const NewPeriod& period) {
    return hasEntry(period) && DateFromText(period.end) >= lastStart(period.state);
}

// clang-format off
constexpr std::array<NewPeriodRule, 8> startRules = {{
    {"M026", [](const NewPeriod& p) { return !isReadable(p.start); }},
    {"M537", startComesLate},
    {"M542", startMeetsAnother},
    {"M152", promotedEndsInReturnsPeriod, true},
    {"M120", endsInReturnsPeriod, true},
    {"M147", isLongerThanAYear},
    {"M148", endsBeforeItStarts<-1>},
    {"M542", isOneDay},
}};

// A period of one day breaks the row on its end already, so that M542 never comes to word here.
constexpr std::array<NewPeriodRule, 8> endRules = {{
    {"M102", [](const NewPeriod& p) { return p.start.empty(); }},
    {"M026", [](const NewPeriod& p) { return !isReadable(p.end); }},
    {"M152", promotedEndsInReturnsPeriod, true},
    {"M120", endsInReturnsPeriod, true},
    {"M147", isLongerThanAYear},
    {"M148", endsBeforeItStarts<1>},
    {"M542", isOneDay},
    {"M537", reachesLastEntry},
}};
// clang-format on

const NewPeriodRule* firstBroken(std::span<const NewPeriodRule> rules, const NewPeriod& period) {
    const auto rule =
        std::ranges::find_if(rules, [&](const NewPeriodRule& other) { return other.refuses(period); });
    return rule == rules.end() ? nullptr : &*rule;
}

// --- The stored table ---

bool hasFrom(const FieldArray& fields, int row) { return !fields[fromEntry(row)].empty(); }
bool hasTo(const FieldArray& fields, int row) { return !fields[toEntry(row)].empty(); }

bool hasNoResult(const FieldArray& fields, int row) {
    const auto first = fields.begin() + static_cast<std::ptrdiff_t>(cellEntry(firstCell(row)));
    return std::all_of(first, first + cellCount(row), [](const std::string& cell) { return cell.empty(); });
}

bool hasHalfAPeriod(const CheckContext& context) {
    const FieldArray& fields = context.state.strFldPage6_11;
    for (int row = 0; row < item11Rows; ++row) {
        if (hasFrom(fields, row) != hasTo(fields, row)) return true;
    }
    return false;
}

template <int First, int Last>
bool hasPeriodWithoutResult(const CheckContext& context) {
    const FieldArray& fields = context.state.strFldPage6_11;
    for (int row = First; row <= Last; ++row) {
        if (hasFrom(fields, row) && hasTo(fields, row) && hasNoResult(fields, row)) return true;
    }
    return false;
}

/// The log runs back in time, across both blocks: each period begins the day after the next entry ends.
bool hasGap(const CheckContext& context) {
    const ReturnState& state = context.state;
    const std::size_t entries = lastEntry(state).value_or(0);
    for (std::size_t entry = 0; entry < entries; ++entry) {
        if (!isDayAfter(state.strItem11Start[entry], state.strItem11End[entry + 1])) return true;
    }
    return false;
}

constexpr std::array<CheckRow, 4> storeRows = {{
    {"M102", "Command1", hasHalfAPeriod},
    {"M118", "Command1", hasPeriodWithoutResult<0, item11ExemptRows - 1>},
    {"M118", "Command1", hasPeriodWithoutResult<item11ExemptRows, item11Rows - 1>},
    {"M541", "Command1", hasGap},
}};

} // namespace

std::span<const TablePeriodRule> tablePeriodRules() { return leavingRules; }

std::string typedStartRefusal(const TypedStart& start) {
    const auto rule = std::ranges::find_if(
        typedStartRules, [&](const TypedStartRule& other) { return other.refuses(start); });
    if (rule == typedStartRules.end()) return {};
    std::string text(GetMessage(rule->code));
    if (rule->code == "M150") { // its "x" stands for the number of years
        if (const auto place = text.find('x'); place != std::string::npos)
            text.replace(place, 1, std::to_string(start.period.CarryYearLimit));
    }
    return text;
}

const NewPeriodRule* brokenByStart(const NewPeriod& period) { return firstBroken(startRules, period); }
const NewPeriodRule* brokenByEnd(const NewPeriod& period) { return firstBroken(endRules, period); }

std::string nextPeriodEnd(const ReturnState& state) {
    const auto entry = lastEntry(state);
    std::optional<Date> end = state.FucDate.DayBeforePeriodStart;
    if (entry) {
        end = dayOf(state.strItem11Start[*entry]);
        if (end) end = AddDays(*end, -1);
    }
    return end ? dateText(*end) : std::string();
}

std::span<const CheckRow> item11CheckRows() { return storeRows; }

void Chk_Item11Store(Program& program) { runChecks(program, frmLodgePage6_11::formName, storeRows); }

} // namespace lodge
