#include "shell/item_states.h"

#include "pages/schedules/schedule.h"
#include "shell/page_table.h"
#include "shell/reconciliation.h"
#include "values/money.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace lodge {

namespace {

// --- Whether a page is begun ---

/// What a page keeps, and from which entry on a person fills it in.
struct PageArray {
    std::int16_t page = 0;
    const FieldArray ReturnState::*fields = nullptr;
    std::size_t first = 0;
};

// clang-format off
constexpr std::array<PageArray, 13> pageArrays = {{
    {page::first,        &ReturnState::strFldPage1,    7}, // behind the period
    {page::tax,          &ReturnState::strFldPage2},
    {page::item3,        &ReturnState::strFldPage3_3},
    {page::item4,        &ReturnState::strFldPage3_4},
    {page::item5,        &ReturnState::strFldPage4_5},
    {page::item6,        &ReturnState::strFldPage4_6},
    {page::item7,        &ReturnState::strFldPage4_7},
    {page::item8,        &ReturnState::strFldPage5_8},
    {page::item9,        &ReturnState::strFldPage5_9},
    {page::item10,       &ReturnState::strFldPage6_10},
    {page::item11,       &ReturnState::strFldPage6_11},
    {page::item12,       &ReturnState::strFldPage7_12},
    {page::notification, &ReturnState::strFldPage8,    6}, // behind the period
}};
// clang-format on

/// A text that nobody typed: nothing, an untouched tick, a line of bars.
bool isBlank(const std::string& entry) {
    return std::ranges::all_of(entry, [](char c) { return c == '0' || c == '|'; });
}

bool isBegun(const HeadquartersRecord& record) {
    const auto isFilled = [](const std::string& text) { return !text.empty(); };
    return isFilled(record.LicenceConfm) || isFilled(record.LicenceStart) || isFilled(record.LicenceEnd)
           || isFilled(record.BoxASum) || isFilled(record.BoxBSum)
           || std::ranges::any_of(record.BoxDateFrom, isFilled) || isFilled(record.BoxG1)
           || isFilled(record.BoxG2);
}

bool isBegun(const ReturnState& state, std::int16_t code) {
    if (code == page::headquarters) {
        return isBegun(state.modIHQ);
    }
    const auto* const row = std::ranges::find(pageArrays, code, &PageArray::page);
    const FieldArray& fields = state.*row->fields;
    return !std::all_of(fields.begin() + static_cast<std::ptrdiff_t>(row->first), fields.end(), isBlank);
}

// --- The main figure ---

struct Figure {
    std::string caption;
    std::string text;
};

Figure balanceOfTax(const ReturnState& state) {
    constexpr std::size_t overpaid = 31;
    constexpr std::size_t balance = 43;
    const FieldArray& fields = state.strFldPage2;
    return {fields[overpaid] == "1" ? "ชำระไว้เกิน" : "ชำระเพิ่มเติม", formatMoneyText(fields[balance])};
}

Figure totalOf(const Schedule& schedule, const ReturnState& state) {
    const ScheduleLine& total = scheduleLines(schedule).back();
    const std::string line = total.number == 0 ? "" : "ข้อ " + std::to_string(total.number) + ' ';
    return {
        line + "รวม", formatBracketText((state.*schedule.fields)[entryOf(schedule, total, Column::Total)])};
}

Figure figureOf(const ReturnState& state, std::int16_t code) {
    const auto* const schedule = std::ranges::find(schedules, code, &Schedule::pageCode);
    if (schedule != schedules.end()) {
        return totalOf(*schedule, state);
    }
    switch (code) {
    case page::tax: return balanceOfTax(state);
    case page::item3: return {"ข้อ 22", formatBracketText(state.strFldPage3_3[60])};
    case page::item11: return {"ยกไปรายการที่ 3", formatMoneyText(state.strFldPage6_11[68])};
    case page::item12: return {"รวมสินทรัพย์", formatBracketText(state.strFldPage7_12[9])};
    case page::headquarters: return {"ข้อ 9 รวม", formatBracketText(state.modIHQ.BoxCSum)};
    default: return {};
    }
}

// --- Whom a problem names ---

/// Comparisons beside the ties of item 3, and where their other side stands.
struct OtherSide {
    std::string_view code;
    std::int16_t page;
};

constexpr std::array<OtherSide, 5> otherSides = {{
    {"M042", page::item3},
    {"M087", page::item3},
    {"M122", page::item8},
    {"M502", page::item3},
    {"M504", page::item3},
}};

std::int16_t pageOf(std::string_view form) {
    const auto row = std::ranges::find(pageTable(), form, &PageRow::form);
    return row == pageTable().end() ? page::chooser : row->code;
}

} // namespace

std::int16_t otherPageOf(const Problem& problem) {
    const std::string& code = problem.refusal.code;
    const auto tie = std::ranges::find(reconciliationTies(), code, &Tie::message);
    if (tie != reconciliationTies().end()) {
        return pageOf(tie->schedule.form);
    }
    const auto* const other = std::ranges::find(otherSides, code, &OtherSide::code);
    return other == otherSides.end() ? page::chooser : other->page;
}

std::vector<ItemState> itemStates(const ReturnState& stored, std::span<const Problem> problems) {
    std::vector<ItemState> states;
    for (const PageRow& row : pageTable()) {
        const auto own = std::ranges::count(problems, row.code, &Problem::page);
        const auto naming = std::ranges::find(problems, row.code, otherPageOf);
        Figure figure = figureOf(stored, row.code);
        ItemState state{.page = row.code,
            .progress = isBegun(stored, row.code) ? ItemProgress::Clear : ItemProgress::Empty,
            .problems = static_cast<std::size_t>(own),
            .figureCaption = std::move(figure.caption),
            .figure = std::move(figure.text)};
        if (naming != problems.end()) {
            state.progress = ItemProgress::Named;
            state.namedBy = naming->page;
        }
        if (own > 0) {
            state.progress = ItemProgress::InTheWay;
        } else if (row.code == page::headquarters && !stored.blnIHQPage) {
            state.progress = ItemProgress::Closed;
        }
        states.push_back(std::move(state));
    }
    return states;
}

} // namespace lodge
