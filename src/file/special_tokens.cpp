#include "file/special_tokens.h"

#include "file/sources.h"
#include "file/token_values.h"
#include "state/filing.h"
#include "state/lookup_tables.h"
#include "state/status_numbers.h"
#include "values/dates.h"
#include "values/money.h"
#include "values/text.h"

#include <array>
#include <initializer_list>

namespace lodge::special {

namespace {

using namespace source;

// Counts from one, as the paper counts its options; 0 for anything else.
std::size_t position(std::string_view token, std::size_t last) {
    if (token.size() != 1 || token[0] < '1') return 0;
    const auto number = static_cast<std::size_t>(token[0] - '0');
    return number <= last ? number : 0;
}

std::string sumOf(std::initializer_list<std::string_view> amounts) {
    double sum = 0.0;
    for (const std::string_view amount : amounts)
        sum += readFigure(amount);
    return plainNumberText(sum);
}

} // namespace

// --- Line 1: the header ---

namespace {

void writeStatusWord(ReturnState& state, TokenWriter& tokens) {
    tokens.add(state.strStoreType == "C" ? "COMPLETE" : "NONCOMPLETE");
}

void writeVersion(ReturnState& state, TokenWriter& tokens) { tokens.add(state.strVersion); }

// The status word serves the tax office's gate; the version is judged by readReturn.
void readNothing(ReturnState& /*state*/, TokenReader& tokens) { tokens.skip(); }

} // namespace

constexpr SpecialToken statusWord{
    "`COMPLETE` for a complete store, else `NONCOMPLETE`", writeStatusWord, readNothing, {}};
constexpr SpecialToken version{"`strVersion`", writeVersion, readNothing, {}};

void takeTaxYear(ReturnState& state) { setTaxYear(state); }

void noteInvestment(ReturnState& state) {
    // A box that was ticked for a new return says nothing about this one.
    state.ChkInvestmentFlag1 = state.intInvestment == 1 ? 1 : 0;
}

// --- Line 3: filing and period ---

namespace {

// Day, month name and year in three labels of page 1.
void labelDate(FieldArray& page, std::size_t first, std::string_view date) {
    const auto month = static_cast<int>(readNumber(textMid(date, 3, 2)));
    page[first] = textLeft(date, 2);
    page[first + 1] = MonthName("2", month);
    page[first + 2] = textMid(date, 5, 4);
}

} // namespace

void restoreFilingAndPeriod(ReturnState& state) {
    restoreFilingBoxes(state);
    labelDate(state.strFldPage1, 1, state.strStartDDMMYY);
    labelDate(state.strFldPage1, 4, state.strFinishDDMMYY);
    state.modIHQ.PeriodStart = state.strStartDDMMYY;
    state.modIHQ.PeriodEnd = state.strFinishDDMMYY;
}

// --- Line 4: company status ---

void restoreStatusBoxes(ReturnState& state) {
    CompanyStatusRecord& status = state.DataCtrl_P1;
    const bool inZone = state.strFldPage1[44] == "1";
    status.IndcBusCode = status.IndcBusType;
    status.ChkStatus11 = inZone ? 1 : 0;
    status.BusIndex.clear();
    if (const auto box = boxOfStatus(status.IndcBusType)) status.BusIndex.push_back(*box);
    if (inZone) status.BusIndex.push_back(developmentZoneBox);
}

// --- Line 9: the privilege that item 1 claims ---

namespace {

constexpr std::size_t privilegeOptions = 4;
constexpr std::size_t privilegeTicks = 4; // strFldPage2: one entry an option from here on
constexpr std::size_t privilegeYears = 9; // number of years
constexpr std::size_t privilegeStarts = 13;
constexpr std::size_t privilegeEnds = 17;
constexpr std::array privilegeEntries{Entries{P2, privilegeTicks, 4}, Entries{P2, privilegeYears, 12}};

void writePrivilege(ReturnState& state, TokenWriter& tokens) {
    const FieldArray& page = state.strFldPage2;
    std::size_t option = 0;
    while (option < privilegeOptions && page[privilegeTicks + option] != "1")
        ++option;
    if (option == privilegeOptions) {
        tokens.add("0");
        for (std::size_t k = 0; k < 1 + 2 * dateTokens; ++k)
            tokens.add("");
        return;
    }
    tokens.add(std::to_string(option + 1));
    tokens.add(page[privilegeYears + option]);
    writeDate(page[privilegeStarts + option], tokens);
    writeDate(page[privilegeEnds + option], tokens);
}

void readPrivilege(ReturnState& state, TokenReader& tokens) {
    FieldArray& page = state.strFldPage2;
    const std::size_t chosen = position(tokens.next(), privilegeOptions);
    if (chosen == 0) {
        for (std::size_t k = 0; k < 1 + 2 * dateTokens; ++k)
            tokens.skip();
        return;
    }
    const std::size_t option = chosen - 1;
    page[privilegeTicks + option] = "1";
    page[privilegeYears + option] = tokens.next();
    page[privilegeStarts + option] = readMaskDate(tokens);
    page[privilegeEnds + option] = readMaskDate(tokens);
}

} // namespace

constexpr SpecialToken privilege{
    "choice `P2[4..7]`, and of the option chosen: `P2[9..12]`, date `P2[13..16]`, date "
    "`P2[17..20]` (all empty for choice 0)",
    writePrivilege, readPrivilege, privilegeEntries};

// --- Lines 10 and 11: result, rate and tax of item 2 ---

namespace {

constexpr std::size_t payTicks = 22; // strFldPage2: profit, loss, receipts
constexpr std::size_t payKinds = 3;
constexpr std::size_t netResult = 32;
constexpr std::size_t taxComputed = 33;
constexpr std::size_t caseTicks = 25; // strFldPage2: general, reduced, receipts
constexpr std::size_t caseKinds = 3;
constexpr std::size_t rateText = 44;
constexpr std::size_t rateNumber = 45;
constexpr std::array payEntries{
    Entries{textSource<&ReturnState::DataCtrl_P2, &TaxRecord::PayStatus>("DataCtrl_P2.PayStatus")}};
constexpr std::array rateEntries{
    Entries{numberSource<&ReturnState::DataCtrl_P2, &TaxRecord::RateIndex1>("DataCtrl_P2.RateIndex1")},
    Entries{textSource<&ReturnState::DataCtrl_P2, &TaxRecord::TaxValue>("DataCtrl_P2.TaxValue")},
};

void writePayStatus(ReturnState& state, TokenWriter& tokens) { tokens.add(state.DataCtrl_P2.PayStatus); }

void readPayStatus(ReturnState& state, TokenReader& tokens) {
    std::string& pay = state.DataCtrl_P2.PayStatus;
    pay = tokens.next();
    if (const std::size_t kind = position(pay, payKinds)) state.strFldPage2[payTicks + kind - 1] = "1";
}

// The case of line 2 stands over the ticks that an earlier store left behind.
void tickTaxCase(ReturnState& state) {
    const auto taxCase = state.DataCtrl_P2.Select_2_1;
    if (!taxCase || *taxCase < 1 || *taxCase > static_cast<int>(caseKinds)) return;
    for (std::size_t kind = 1; kind <= caseKinds; ++kind) {
        state.strFldPage2[caseTicks + kind - 1] = static_cast<int>(kind) == *taxCase ? "1" : "0";
    }
}

void writeRate(ReturnState& state, TokenWriter& tokens) {
    TaxRecord& tax = state.DataCtrl_P2;
    tax.TaxValue = formatFixed(readFigure(tax.TaxValue));
    tokens.add(std::to_string(tax.RateIndex1));
    tokens.add(tax.TaxValue);
}

struct RateLabel {
    std::string_view label;
    std::string_view number;
};

// Numbers of the rate panel, whose order is not that of the labels.
// clang-format off
constexpr std::array<RateLabel, 5> panelNumbers{{
    {"(1.1)", "1"}, {"(1.2)", "2"}, {"(1.3)", "4"}, {"(1.4)", "5"}, {"(1.5)", "3"},
}};
// clang-format on
constexpr int ratesWithLabel = 6;

void readRate(ReturnState& state, TokenReader& tokens) {
    TaxRecord& tax = state.DataCtrl_P2;
    FieldArray& page = state.strFldPage2;
    page[rateText] = tokens.next();
    page[taxComputed] = tokens.next();
    tax.TaxValue = page[taxComputed];
    tax.RateIndex1 = readWholeNumber(page[rateText]);
    if (tax.RateIndex1 >= 1 && tax.RateIndex1 <= ratesWithLabel) {
        tax.index_nRate = static_cast<std::int16_t>(tax.RateIndex1 - 1);
        tax.nRateNo = std::to_string(tax.RateIndex1);
        tax.nRateCode = "1." + tax.nRateNo;
        tax.nRateLabel = "(" + tax.nRateCode + ")";
    }
    page[rateNumber].clear();
    for (const RateLabel& row : panelNumbers) {
        if (page[rateText] == row.label) page[rateNumber] = row.number;
    }
}

} // namespace

constexpr SpecialToken payStatus{"`DataCtrl_P2.PayStatus`", writePayStatus, readPayStatus, payEntries};
constexpr SpecialToken rate{
    "`DataCtrl_P2.RateIndex1`, `DataCtrl_P2.TaxValue` with two decimals", writeRate, readRate, rateEntries};

void applyIncomeEdit(ReturnState& state) {
    tickTaxCase(state);
    if (!state.modEdit.EditActive) return;
    state.DataCtrl_P2.PayStatus = state.modEdit.EditStatus;
    state.strFldPage2[netResult] = state.modEdit.EditIncome;
    state.DataCtrl_P2.TaxValue = state.modEdit.EditTax;
}

void restoreTaxCase(ReturnState& state) {
    auto& taxCase = state.DataCtrl_P2.Select_2_1;
    taxCase.reset();
    if (state.strFldPage2[caseTicks + 1] == "1") taxCase = std::int16_t{2};
    if (state.strFldPage2[caseTicks + 2] == "1") taxCase = std::int16_t{3};
}

// --- Lines 13 and 14: tax left to pay or overpaid, before and after the surcharge ---

namespace {

// Where page 2 keeps the balance, beside the holders that the file carries.
struct BalancePlaces {
    std::size_t ticks; // strFldPage2: pay more, overpaid
    std::size_t amount;
};
constexpr BalancePlaces line4Places{28, 41};
constexpr BalancePlaces line6Places{30, 43};
constexpr std::size_t balanceKinds = 2;

void writeBalance(std::string_view status, std::string& amount, TokenWriter& tokens) {
    amount = xx_Val(amount);
    tokens.add(position(status, balanceKinds) > 0 ? status : "0");
    tokens.add(amount);
}

void readBalance(
    FieldArray& page, BalancePlaces places, std::string& status, std::string& amount, TokenReader& tokens) {
    const std::size_t kind = position(tokens.next(), balanceKinds);
    if (kind > 0) page[places.ticks + kind - 1] = "1";
    amount = tokens.next();
    page[places.amount] = amount;
    // An overpayment of nothing stays one; any other choice follows from the amount.
    status = kind == 2 ? "2" : (readFigure(amount) != 0.0 ? "1" : "0");
}

void writeLine4(ReturnState& state, TokenWriter& tokens) {
    writeBalance(state.DataCtrl_P2.Line4Status, state.DataCtrl_P2.Line4Amount, tokens);
}
void readLine4(ReturnState& state, TokenReader& tokens) {
    TaxRecord& tax = state.DataCtrl_P2;
    readBalance(state.strFldPage2, line4Places, tax.Line4Status, tax.Line4Amount, tokens);
}
void writeLine6(ReturnState& state, TokenWriter& tokens) {
    writeBalance(state.DataCtrl_P2.Line6Status, state.DataCtrl_P2.Line6Amount, tokens);
}
void readLine6(ReturnState& state, TokenReader& tokens) {
    TaxRecord& tax = state.DataCtrl_P2;
    readBalance(state.strFldPage2, line6Places, tax.Line6Status, tax.Line6Amount, tokens);
}

constexpr std::array line4Entries{
    Entries{textSource<&ReturnState::DataCtrl_P2, &TaxRecord::Line4Status>("DataCtrl_P2.Line4Status")},
    Entries{textSource<&ReturnState::DataCtrl_P2, &TaxRecord::Line4Amount>("DataCtrl_P2.Line4Amount")},
};
constexpr std::array line6Entries{
    Entries{textSource<&ReturnState::DataCtrl_P2, &TaxRecord::Line6Status>("DataCtrl_P2.Line6Status")},
    Entries{textSource<&ReturnState::DataCtrl_P2, &TaxRecord::Line6Amount>("DataCtrl_P2.Line6Amount")},
};

} // namespace

constexpr SpecialToken balanceLine4{"1 pay more, 2 overpaid, 0 none (`DataCtrl_P2.Line4Status`), "
                                    "`DataCtrl_P2.Line4Amount` as a plain number",
    writeLine4, readLine4, line4Entries};
constexpr SpecialToken balanceLine6{"1 pay more, 2 overpaid, 0 none (`DataCtrl_P2.Line6Status`), "
                                    "`DataCtrl_P2.Line6Amount` as a plain number",
    writeLine6, readLine6, line6Entries};

// --- Lines 15 and 221: the rate worksheet ---

namespace {

// Entries of strFldPage1_2: three incomes and their sum, three taxes and theirs. The third ones came with a
// later form.
constexpr std::array<std::size_t, 3> worksheetIncomes{0, 1, 6};
constexpr std::size_t worksheetIncomeSum = 2;
constexpr std::array<std::size_t, 3> worksheetTaxes{3, 4, 7};
constexpr std::size_t worksheetTaxSum = 5;
constexpr std::size_t greenRowsInUse = 4;
constexpr std::size_t worksheetTokensUnread = 4;

void writeWorksheet(ReturnState& state, TokenWriter& tokens) {
    const GreenRecord& green = state.modGreen;
    tokens.add(state.strFldPage1_2[worksheetIncomeSum].empty() ? "0" : "1");
    for (std::size_t row = 0; row < greenRowsInUse; ++row)
        tokens.add(green.GreenIncome[row]);
    tokens.add(green.GreenIncome[greenRowsInUse]);
    for (std::size_t row = 0; row < greenRowsInUse; ++row)
        tokens.add(plainAmount(green.GreenTax[row]));
    tokens.add(green.GreenTax[greenRowsInUse]);
}

void readTriple(
    WorksheetArray& sheet, const std::array<std::size_t, 3>& entries, std::size_t sum, TokenReader& tokens) {
    for (const std::size_t entry : entries)
        sheet[entry] = tokens.next();
    if (sheet[entries[0]].empty()) return;
    sheet[sum] = sumOf({sheet[entries[0]], sheet[entries[1]], sheet[entries[2]]});
}

void readWorksheet(ReturnState& state, TokenReader& tokens) {
    tokens.skip();
    readTriple(state.strFldPage1_2, worksheetIncomes, worksheetIncomeSum, tokens);
    readTriple(state.strFldPage1_2, worksheetTaxes, worksheetTaxSum, tokens);
    for (std::size_t k = 0; k < worksheetTokensUnread; ++k)
        tokens.skip();
}

} // namespace

constexpr SpecialToken worksheet{"1 when `P1_2[2]` is filled, else 0; `modGreen.GreenIncome(0..4)`, plain "
                                 "`modGreen.GreenTax(0..3)`, `modGreen.GreenTax(4)`",
    writeWorksheet, readWorksheet, {}};

void restoreWorksheetTax(ReturnState& state) {
    state.strFldPage1_2[worksheetTaxSum] = formatMoneyText(state.modGreen.GreenTaxSum);
}

// --- Line 223: the result that the filer states ---

namespace {

constexpr std::array statedEntries{
    Entries{textSource<&ReturnState::modNew3, &StatedResultRecord::NewBoxAmount>("modNew3.NewBoxAmount")},
};

void writeStated(ReturnState& state, TokenWriter& tokens) {
    const StatedResultRecord& stated = state.modNew3;
    tokens.add(stated.NewBox2 ? "2" : (stated.NewBox1 ? "1" : "0"));
    tokens.add(xx_Val(stated.NewBoxAmount));
}

void readStated(ReturnState& state, TokenReader& tokens) {
    const std::string_view choice = tokens.next();
    const std::string_view amount = tokens.next();
    StatedResultRecord& stated = state.modNew3;
    stated.NewBox1 = choice == "1";
    stated.NewBox2 = choice == "2";
    stated.NewBoxAmount = amount.empty() ? std::string() : xx_Val(amount);
    // Item 3 keeps its own copy while its page is open.
    state.BoxProfit = stated.NewBox1;
    state.BoxLoss = stated.NewBox2;
    state.BoxAmount = stated.NewBoxAmount;
}

} // namespace

constexpr SpecialToken statedResult{"1 profit (`modNew3.NewBox1`), 2 loss (`modNew3.NewBox2`), 0 none, "
                                    "`modNew3.NewBoxAmount` as a plain number",
    writeStated, readStated, statedEntries};

} // namespace lodge::special
