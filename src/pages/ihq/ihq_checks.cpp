#include "pages/ihq/ihq_checks.h"

#include "pages/fields/amounts.h"
#include "pages/ihq/ihq_page.h"
#include "values/money.h"

#include <algorithm>
#include <array>

namespace lodge {

namespace {

constexpr std::string_view headquartersStatus = "15";

const HeadquartersRecord& attachment(const CheckContext& context) { return context.state.modIHQ; }

bool hasStatus(const ReturnState& state) { return state.DataCtrl_P1.IndcBusType == headquartersStatus; }

/// A figure of item 3: column 1 of a line stands at its number, column 2 twenty entries on.
template <std::size_t Entry>
const std::string& item3(const CheckContext& context) {
    return context.state.strFldPage3_3[Entry];
}

bool areSame(const Sides& sides) { return sameAmount(sides.here, sides.there); }

// --- Income ---

/// Lines 1 to 4 of the exempt business, baht: the income that the privilege is about, and the most that the
/// return may state as taxable.
double exemptServices(const CheckContext& context) {
    const auto& boxes = attachment(context).BoxA;
    double sum = 0;
    for (std::size_t line = 0; line < 4; ++line)
        sum += readFigure(boxes[line]);
    return roundMoney(sum);
}

Sides exemptIncome(const CheckContext& context) {
    return {readFigure(attachment(context).BoxASum), readFigure(item3<0>(context))};
}

bool exemptIncomeDiffers(const CheckContext& context) {
    const bool nothingExempt = attachment(context).BoxASum.empty() && item3<0>(context).empty();
    const bool hasTaxable = !attachment(context).BoxBSum.empty() || !item3<20>(context).empty();
    if (nothingExempt && hasTaxable) return true;
    return hasStatus(context.state) && !areSame(exemptIncome(context));
}

bool taxableIsCapped(const CheckContext& context) {
    return readFigure(attachment(context).BoxBSum) > exemptServices(context);
}

Sides cappedIncome(const CheckContext& context) {
    return {readFigure(item3<20>(context)), exemptServices(context)};
}

Sides taxableIncome(const CheckContext& context) {
    return {readFigure(attachment(context).BoxBSum), readFigure(item3<20>(context))};
}

// --- Losses ---

/// Whether one of the two columns of item 2 has a result: Profit 0 for the exempt business, 2 for the
/// taxable.
template <std::size_t Profit>
bool hasResults(const CheckContext& context) {
    const auto& cells = attachment(context).BoxMoney;
    for (std::size_t cell = Profit; cell < ihqResultCells; cell += ihqCellsOfRow) {
        if (!cells[cell].empty() || !cells[cell + 1].empty()) return true;
    }
    return false;
}

Sides exemptLoss(const CheckContext& context) {
    return {readFigure(item3<14>(context)), readFigure(attachment(context).BoxG1)};
}

Sides taxableLoss(const CheckContext& context) {
    return {readFigure(item3<34>(context)), readFigure(attachment(context).BoxG2)};
}

template <std::size_t Row>
bool lacksEnd(const CheckContext& context) {
    return !attachment(context).BoxDateFrom[Row].empty() && attachment(context).BoxDateTo[Row].empty();
}

template <std::size_t Row>
bool lacksResult(const CheckContext& context) {
    const auto first =
        attachment(context).BoxMoney.begin() + static_cast<std::ptrdiff_t>(Row * ihqCellsOfRow);
    return !attachment(context).BoxDateFrom[Row].empty()
           && std::all_of(first, first + ihqCellsOfRow, [](const std::string& cell) { return cell.empty(); });
}

/// The catalogue's M534.2 and M534.3 with the part of the return that they are about.
constexpr std::string_view periodMissing = "M534 : กรุณาบันทึกรอบระยะเวลาบัญชี (รายการที่ 2 ใบแนบฯ กิจการ IHQ)";
constexpr std::string_view resultMissing =
    "M534 : กรุณาบันทึกจำนวนเงินกำไรสุทธิหรือขาดทุนสุทธิ (รายการที่ 2 ใบแนบฯ กิจการ IHQ)";

// --- The rows ---

/// M501 sends the person to the first date that is missing.
bool lacksConfirmed(const CheckContext& c) { return attachment(c).LicenceConfm.empty(); }
bool lacksStartAlone(const CheckContext& c) {
    return !lacksConfirmed(c) && attachment(c).LicenceStart.empty();
}
bool lacksEndAlone(const CheckContext& c) {
    return !lacksConfirmed(c) && !attachment(c).LicenceStart.empty() && attachment(c).LicenceEnd.empty();
}

// clang-format off
constexpr std::array<CheckRow, 22> rows = {{
    {"M501", "mskDateConfm",   lacksConfirmed},
    {"M501", "mskDateStart",   lacksStartAlone},
    {"M501", "mskDateEnd",     lacksEndAlone},
    {"M502", "txtA(0)",        exemptIncomeDiffers, exemptIncome},
    {"M503", "txtMoney32(0)",  [](const CheckContext& c) { return taxableIsCapped(c) && !areSame(cappedIncome(c)); }, cappedIncome},
    {"M504", "txtB(0)",        [](const CheckContext& c) { return !taxableIsCapped(c) && !areSame(taxableIncome(c)); }, taxableIncome},
    {"M511", "txtG1",          [](const CheckContext& c) { return attachment(c).BoxG1.empty() && hasResults<0>(c); }},
    {"M512", "txtG2",          [](const CheckContext& c) { return attachment(c).BoxG2.empty() && hasResults<2>(c); }},
    {"M505", "txtMoney31(14)", [](const CheckContext& c) { return !areSame(exemptLoss(c)); }, exemptLoss},
    {"M506", "txtMoney32(14)", [](const CheckContext& c) { return !areSame(taxableLoss(c)); }, taxableLoss},
    {"M507", "txtMoney61(0)",  [](const CheckContext& c) { return !c.state.strFldPage4_6[20].empty(); }},
    {"M508", "txtMoney1(42)",  [](const CheckContext& c) { return !c.state.strFldPage6_11[68].empty(); }},
    {periodMissing, "mskDateTo(0)",  lacksEnd<0>}, {resultMissing, "mskDateFrom(0)", lacksResult<0>},
    {periodMissing, "mskDateTo(1)",  lacksEnd<1>}, {resultMissing, "mskDateFrom(1)", lacksResult<1>},
    {periodMissing, "mskDateTo(2)",  lacksEnd<2>}, {resultMissing, "mskDateFrom(2)", lacksResult<2>},
    {periodMissing, "mskDateTo(3)",  lacksEnd<3>}, {resultMissing, "mskDateFrom(3)", lacksResult<3>},
    {periodMissing, "mskDateTo(4)",  lacksEnd<4>}, {resultMissing, "mskDateFrom(4)", lacksResult<4>},
}};

/// Refusals that are mended on a page of the return, not on the attachment: their fields stand there.
struct OtherPage {
    std::string_view code;
    std::string_view form;
};

constexpr std::array<OtherPage, 5> otherPages = {{
    {"M503", "frmLodgePage3_3"},
    {"M505", "frmLodgePage3_3"},
    {"M506", "frmLodgePage3_3"},
    {"M507", "frmLodgePage4_6"},
    {"M508", "frmLodgePage6_11"},
}};
// clang-format on

} // namespace

std::span<const CheckRow> ihqCheckRows() { return rows; }

void collectIhqRefusals(const CheckContext& context, std::vector<Refusal>& refusals) {
    std::vector<Refusal> found;
    collectRefusals(context, frmIHQ::formName, rows, found);
    for (Refusal& refusal : found) {
        const auto* const other = std::ranges::find(otherPages, refusal.code, &OtherPage::code);
        if (other != otherPages.end()) refusal.form = other->form;
        refusals.push_back(std::move(refusal));
    }
}

bool needsIhqCheck(const ReturnState& state) { return state.blnIHQPage && hasStatus(state); }

void ChkIHQ(Program& program) { runChecks(program, frmIHQ::formName, rows); }

} // namespace lodge
