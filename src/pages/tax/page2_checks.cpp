#include "pages/tax/page2_checks.h"

#include "pages/fields/amounts.h"
#include "pages/fields/small_company.h"
#include "pages/tax/page2.h"
#include "pages/tax/rate_table.h"
#include "values/money.h"

#include <array>
#include <cmath>

namespace lodge {

namespace {

using Context = const CheckContext&;

const FieldArray& page2(Context context) { return context.state.strFldPage2; }
const FieldArray& item3(Context context) { return context.state.strFldPage3_3; }

double number(const std::string& entry) { return readNumber(entry); }
bool isNil(const std::string& entry) { return number(entry) == 0; }

/// Item 1 is asked for investment promotion alone; the other exemptions have no certificate.
bool isPromoted(Context context) {
    const std::int16_t investment = context.state.intInvestment;
    return investment < 0 || investment == 1 || investment > 5;
}

/// Item 1: entry `option` is chosen and entry `needed` is missing.
template <std::size_t option, std::size_t needed>
bool optionLacks(Context context) {
    return isPromoted(context) && number(page2(context)[option]) == 1 && page2(context)[needed].empty();
}

template <std::size_t needed>
bool certificateLacks(Context context) {
    return isPromoted(context) && page2(context)[needed].empty();
}

bool usesSmallCompanyRow(Context context) {
    const std::string& row = context.state.DataCtrl_P2.NewAtt1;
    return row == "2.1" || row == "(2.1)";
}

/// Both columns of item 3 reach line 21, so its side box states line 22.
bool hasSideBox(Context context) { return !item3(context)[39].empty() && !item3(context)[19].empty(); }

bool sideBoxDiffers(Context context) {
    const std::string& stated = context.state.BoxAmount;
    return stated.empty() || shownAsLoss(readFigure(stated)) != shownAsLoss(readFigure(item3(context)[60]));
}

bool declaresReceipts(Context context) { return number(page2(context)[24]) == 1; }

template <std::size_t itemTick, std::size_t pageTick>
bool ticksDiffer(Context context) {
    return !declaresReceipts(context) && number(item3(context)[itemTick]) != number(page2(context)[pageTick]);
}

/// Line 1 as receipts, and the receipts that item 3 states.
Sides receipts(Context context) {
    return {number(page2(context)[32]),
        number(item3(context)[40]) + number(item3(context)[43]) + number(item3(context)[49])};
}

/// Line 1 as profit or loss, and line 22 of item 3; the sign is in the ticks.
Sides result(Context context) {
    return {std::abs(number(page2(context)[32])), std::abs(number(item3(context)[60]))};
}

bool differ(const Sides& sides) { return !sameAmount(sides.here, sides.there); }

bool hasPayStatus(Context context) { return !isNil(context.state.DataCtrl_P2.PayStatus); }

template <std::size_t... options>
bool noneOf(const FieldArray& entries) {
    return (isNil(entries[options]) && ...);
}

constexpr std::string_view previousTaxMissing =
    "กรุณากรอก ภาษีที่ชำระแล้วตามแบบ ก.ข.ค. 77 (กรณียื่นเพิ่มเติม) (รายการที่ 2 ข้อ 3)";

// clang-format off
constexpr std::array<CheckRow, 19> rowsBeforeRate = {{
    {previousTaxMissing, "txtMoney(7)", [](Context c) {
        return number(c.state.strFldPage1[9]) == 1 && page2(c)[39].empty(); }},
    {"M025", "txtInvestID",       certificateLacks<0>},
    {"M080", "mskInvestDate",     certificateLacks<1>},
    {"M028", "cmdSISIC2",         certificateLacks<3>},
    {"M029", "chkInvestType(0)",  [](Context c) { return isPromoted(c) && noneOf<4, 5, 6, 7>(page2(c)); }},
    {"M030", "txtYearNo(0)",      optionLacks<4, 9>},
    {"M031", "mskDateFrom(0)",    optionLacks<4, 13>},
    {"M034", "mskDateTo(0)",      optionLacks<4, 17>},
    {"M030", "txtYearNo(1)",      optionLacks<5, 10>},
    {"M031", "mskDateFrom(1)",    optionLacks<5, 14>},
    {"M034", "mskDateTo(1)",      optionLacks<5, 18>},
    {"M030", "txtYearNo(2)",      optionLacks<6, 11>},
    {"M031", "mskDateFrom(2)",    optionLacks<6, 15>},
    {"M034", "mskDateTo(2)",      optionLacks<6, 19>},
    {"M036", "txtInvestOther",    optionLacks<7, 8>},
    {"M030", "txtYearNo(3)",      optionLacks<7, 12>},
    {"M031", "mskDateFrom(3)",    optionLacks<7, 16>},
    {"M034", "mskDateTo(3)",      optionLacks<7, 20>},
    {"M037", "chkTaxPay(0)", [](Context c) {
        return noneOf<22, 23, 24>(page2(c)) && !isNil(page2(c)[32]); }},
}};

// Here the rate code goes into its entry.

constexpr std::array<CheckRow, 2> smallCompanyRows = {{
    {"M156", "ChkBox_NewAtt(1)", [](Context c) {
        return usesSmallCompanyRow(c)
               && MoneyTextToDouble(item3(c)[20]) + MoneyTextToDouble(item3(c)[0]) > smallSales; }},
    {"M155", "ChkBox_NewAtt(1)", [](Context c) {
        return usesSmallCompanyRow(c) && MoneyTextToDouble(c.state.strFldPage7_12[18]) > largestSmallCapital; }},
}};

constexpr std::array<CheckRow, 2> sideBoxRows = {{
    {"M529", "txtBOI", [](Context c) {
        return hasSideBox(c) && (c.state.BoxAmount.empty() || item3(c)[60].empty()); }},
    {"M529", "txtBOI", [](Context c) { return hasSideBox(c) && sideBoxDiffers(c); }},
}};

/// The side box of item 3 states an amount that is neither profit nor loss. It refuses the store, and yet the
/// rows behind it run and may add their message: the filer learns both at once.
constexpr std::array<CheckRow, 1> sideTickRow = {{
    {"M530", "chkProfitX", [](Context c) {
        return hasSideBox(c) && c.state.BoxAmount != "0.00" && !c.state.BoxProfit && !c.state.BoxLoss; }},
}};

constexpr std::array<CheckRow, 7> rowsOfLine1 = {{
    {"M302", "chkTaxPay(0)", [](Context c) { return ticksDiffer<65, 22>(c) && hasPayStatus(c); }},
    {"M531", "chkTaxPay(0)", [](Context c) { return ticksDiffer<65, 22>(c) && !hasPayStatus(c); }},
    {"M039", "chkTaxPay(1)", ticksDiffer<66, 23>},
    {"M041", "txtMoney(0)",  [](Context c) { return page2(c)[32].empty(); }},
    {"M087", "txtMoney(0)",  [](Context c) {
        return !isNil(page2(c)[24]) && differ(receipts(c)); }, receipts},
    {"M042", "txtMoney(0)",  [](Context c) {
        return (number(page2(c)[22]) == 1 || number(page2(c)[23]) == 1) && differ(result(c)); }, result},
    {"M088", "txtMoney(6)",  [](Context c) { return !isNil(page2(c)[4]) && page2(c)[38].empty(); }},
}};

constexpr std::string_view smallCompanyCode = "2.4";

bool usesSmallCompanyCode(Context context) {
    return page2(context)[44].find(smallCompanyCode) != std::string::npos;
}

constexpr std::array<CheckRow, 2> capitalRows = {{
    {"M100", "ChkBox_NewRate(3)", [](Context c) {
        return usesSmallCompanyCode(c) && readFigure(c.state.strFldPage7_12[18]) > largestSmallCapital; }},
    {"M089", "ChkBox_NewRate(3)", [](Context c) {
        return usesSmallCompanyCode(c) && readFigure(c.state.strFldPage7_12[18]) == 0; }},
}};

template <std::string TaxRecord::*key, std::array<std::string, 4> TaxRecord::*column, std::size_t row>
bool ticksWithout(Context context) {
    const TaxRecord& record = context.state.DataCtrl_P2;
    return !(record.*key).empty() && (record.*column)[row].empty();
}

constexpr std::array<CheckRow, 5> worksheetRules = {{
    {"M527", "txtIncome(0)", ticksWithout<&TaxRecord::NewAtt1, &TaxRecord::WorkIncome, 0>},
    {"M527", "txtIncome(1)", ticksWithout<&TaxRecord::NewAtt2, &TaxRecord::WorkIncome, 1>},
    {"M527", "txtIncome(2)", ticksWithout<&TaxRecord::NewAtt3, &TaxRecord::WorkIncome, 2>},
    {"M528", "txtIncome(2)", ticksWithout<&TaxRecord::NewAtt3, &TaxRecord::WorkTax, 2>},
    {"M527", "txtIncome(3)", ticksWithout<&TaxRecord::NewAtt4, &TaxRecord::WorkIncome, 3>},
}};
// clang-format on

/// Where the list of what stands in the way leads to. The store itself moves no focus: only the checks of
/// single fields do.
constexpr std::string_view form = frmLodgePage2::formName;
/// The side box stands on the page of item 3.
constexpr std::string_view formOfSideBox = "frmLodgePage3_3";
constexpr std::string_view noForm;

} // namespace

void ChkPage2(Program& program) {
    program.state.intError = 0;
    if (!runChecks(program, noForm, rowsBeforeRate)) return;
    program.state.strFldPage2[44] = program.state.DataCtrl_P2.nRateCode;
    if (!runChecks(program, noForm, smallCompanyRows)) return;
    if (!runChecks(program, noForm, sideBoxRows)) return;
    runChecks(program, noForm, sideTickRow);
    runChecks(program, noForm, rowsOfLine1);
}

bool ChkRate24Capital(Program& program) { return !runChecks(program, noForm, capitalRows); }

void ChkWorksheetRows(Program& program) { runChecks(program, noForm, worksheetRules); }

// The totals of the green sheet are kept and printed, but they excuse no row: a bank and a business in a
// special-purpose zone fill the worksheet like everyone else.
bool IsGreenCase(const ReturnState& /*state*/) { return false; }

void collectTaxGateRefusals(const CheckContext& context, std::vector<Refusal>& refusals) {
    if (!IsGreenCase(context.state)) collectRefusals(context, form, worksheetRules, refusals);
    collectRefusals(context, form, capitalRows, refusals);
}

void collectPage2Refusals(const CheckContext& context, std::vector<Refusal>& refusals) {
    collectRefusals(context, form, rowsBeforeRate, refusals);
    collectRefusals(context, form, smallCompanyRows, refusals);
    collectRefusals(context, formOfSideBox, sideBoxRows, refusals);
    collectRefusals(context, formOfSideBox, sideTickRow, refusals);
    collectRefusals(context, form, rowsOfLine1, refusals);
}

void P2_AddLine6(ReturnState& state) {
    FieldArray& fields = state.strFldPage2;
    const double earlier = readFigure(fields[39]);
    if (fields[28] == "1") fields[41] = plainNumberText(roundMoney(readFigure(fields[41]) + earlier));
    if (fields[29] == "1") fields[41] = plainNumberText(roundMoney(readFigure(fields[41]) - earlier));
}

} // namespace lodge
