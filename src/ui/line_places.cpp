#include "ui/line_places.h"

#include "pages/schedules/item12_page.h"
#include "pages/schedules/item3_page.h"
#include "pages/schedules/schedule.h"
#include "ui/amount_captions.h"
#include "values/text.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace lodge {

namespace {

constexpr std::string_view page2 = "frmLodgePage2";

/// An item and the page that it stands on.
struct ItemPage {
    int item;
    std::string_view button;
    std::string_view form;
};

// clang-format off
constexpr std::array<ItemPage, 13> itemPages = {{
    { 1, "cmdItem01", page2},              { 2, "cmdItem01", page2},
    { 3, "cmdItem03", "frmLodgePage3_3"},  { 4, "cmdItem04", "frmLodgePage3_4"},
    { 5, "cmdItem05", "frmLodgePage4_5"},  { 6, "cmdItem06", "frmLodgePage4_6"},
    { 7, "cmdItem07", "frmLodgePage4_7"},  { 8, "cmdItem08", "frmLodgePage5_8"},
    { 9, "cmdItem09", "frmLodgePage5_9"},  {10, "cmdItem10", "frmLodgePage6_10"},
    {11, "cmdItem11", "frmLodgePage6_11"}, {12, "cmdItem12", "frmLodgePage7_12"},
    {13, "cmdItem13", "frmLodgePage8"},
}};

/// The lines of the pages that are no tables of amounts.
struct DrawnLine {
    int item;
    std::string_view line;
    std::array<std::string_view, 2> controls;
};

constexpr auto drawnLines = std::to_array<DrawnLine>({
    { 1, "",  {"txtInvestID", ""}},
    { 1, "1", {"txtInvestID", ""}},
    { 1, "2", {"cmdSISIC2", ""}},
    { 1, "3", {"chkInvestType(0)", ""}},
    { 1, "4", {"txtOther", ""}},
    { 2, "",  {"chkTaxPay(0)", ""}},
    { 2, "1", {"chkTaxPay(0)", ""}},
    { 2, "2", {"chkTaxCal(0)", "lblMoney1"}},
    { 2, "3", {"txtMoney(2)", ""}},
    { 2, "4", {"chkTaxAdd4", "lblMoney2(1)"}},
    { 2, "5", {"lblMoney2(2)", ""}},
    { 2, "6", {"chkTaxAdd6", "lblMoney2(3)"}},
    {13, "1", {"chkBussiness1(0)", ""}},
    {13, "2", {"chkBussiness2(0)", ""}},
    {13, "3", {"chkBussiness3(0)", ""}},
    {13, "4", {"chkBussiness4(0)", ""}},
    {13, "5", {"chkBussiness5(0)", ""}},
});
// clang-format on

constexpr int line17 = 17;
constexpr int line22 = 22;

std::optional<int> numberOf(std::string_view text) {
    int number = 0;
    const auto [end, failed] = std::from_chars(text.data(), text.data() + text.size(), number);
    return failed == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

std::string member(std::string_view name, int index) {
    return index < 0 ? std::string(name) : std::string(name) + "(" + std::to_string(index) + ")";
}

std::vector<std::string> item3Controls(std::string_view line) {
    const std::optional<int> number = numberOf(line);
    if (number == line22) {
        return {"txtBOI", "lblTotMoney33"};
    }
    // The further items of line 17 bear numbers of their own, 75.2 to 75.13, and 75.1 is the line itself.
    const auto subLine = std::ranges::find(item3SubLines(), line, &Item3SubLine::number);
    const auto numbered =
        std::ranges::find(item3Lines(), line == "75.1" ? line17 : number.value_or(0), &Item3Line::number);
    if (subLine == item3SubLines().end() && numbered == item3Lines().end()) {
        return {};
    }
    if (subLine == item3SubLines().end() && numbered->isComputed()) {
        const std::string_view total = numbered->labels.back();
        return {total.empty() ? member("lblMoney33", numbered->place) : std::string(total)};
    }
    const int place = subLine != item3SubLines().end() ? subLine->place : numbered->place;
    return {member("txtMoney31", place), member("txtMoney32", place)};
}

std::vector<std::string> scheduleControls(const Schedule& schedule, std::string_view line) {
    const std::optional<int> number = numberOf(line);
    const auto found = std::ranges::find(scheduleLines(schedule), number.value_or(0), &ScheduleLine::number);
    std::vector<std::string> controls;
    if (number.value_or(0) > 0 && found != scheduleLines(schedule).end()) {
        for (const Column column : allColumns) {
            controls.push_back(member(controlName(schedule, *found, column), controlIndex(*found, column)));
        }
    }
    return controls;
}

std::vector<std::string> balanceControls(std::string_view line) {
    for (const std::span<const BalanceLine> side : {assetLines(), fundingLines()}) {
        const auto heading = std::ranges::find_if(side, [&](const BalanceLine& row) {
            return row.number == line || row.number == std::string(line) + ".";
        });
        // A heading stands for the first line under it.
        const auto found =
            std::find_if(heading, side.end(), [](const BalanceLine& row) { return !row.control.empty(); });
        if (found != side.end()) {
            return {member(found->control, found->index)};
        }
    }
    return {};
}

std::vector<std::string> drawnControls(int item, std::string_view line) {
    const auto found = std::ranges::find_if(
        drawnLines, [&](const DrawnLine& row) { return row.item == item && row.line == line; });
    std::vector<std::string> controls;
    if (found != drawnLines.end()) {
        for (const std::string_view name : found->controls) {
            if (!name.empty()) {
                controls.emplace_back(name);
            }
        }
    }
    return controls;
}

std::vector<std::string> controlsOf(int item, std::string_view line) {
    if (item == 3) {
        return item3Controls(line);
    }
    if (item == 12) {
        return balanceControls(line);
    }
    const auto schedule = std::ranges::find(schedules, item, &Schedule::item);
    return schedule != schedules.end() ? scheduleControls(*schedule, line) : drawnControls(item, line);
}

} // namespace

std::optional<LinePlace> placeOfLine(std::string_view typed) {
    const std::string regular = regularInput(typed, InputKind::Amount);
    const std::string_view text = trimBlanks(regular);
    const std::size_t dot = text.find('.');
    const std::optional<int> item = numberOf(text.substr(0, dot));
    const auto page = std::ranges::find(itemPages, item.value_or(0), &ItemPage::item);
    if (page == itemPages.end()) {
        return std::nullopt;
    }
    std::string_view line = dot == std::string_view::npos ? std::string_view() : text.substr(dot + 1);
    if (line.ends_with('.')) {
        line.remove_suffix(1); // as the paper writes it
    }
    LinePlace place{
        .chooserButton = std::string(page->button), .form = std::string(page->form), .controls = {}};
    if (!line.empty() || page->form == page2) {
        place.controls = controlsOf(page->item, line);
    }
    if (!line.empty() && place.controls.empty()) {
        return std::nullopt;
    }
    return place;
}

} // namespace lodge
