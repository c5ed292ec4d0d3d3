#include "pages/tax/page2_fields.h"

#include "pages/tax/page2.h"
#include "pages/tax/page2_normalise.h"
#include "values/money.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace lodge {

namespace {

using Kind = Page2Kind;

// clang-format off
constexpr std::array<Page2Field, 43> fields = {{
    { 0, "txtInvestID", Kind::Text},
    { 1, "mskInvestDate", Kind::Date},
    { 2, "lblISICName2", Kind::Text},
    { 3, "lblISICCode2", Kind::Text},
    { 4, "chkInvestType(0)", Kind::Flag}, { 5, "chkInvestType(1)", Kind::Flag},
    { 6, "chkInvestType(2)", Kind::Flag}, { 7, "chkInvestType(3)", Kind::Flag},
    { 8, "txtInvestOther", Kind::Text},
    { 9, "txtYearNo(0)", Kind::Text}, {10, "txtYearNo(1)", Kind::Text},
    {11, "txtYearNo(2)", Kind::Text}, {12, "txtYearNo(3)", Kind::Text},
    {13, "mskDateFrom(0)", Kind::Date}, {14, "mskDateFrom(1)", Kind::Date},
    {15, "mskDateFrom(2)", Kind::Date}, {16, "mskDateFrom(3)", Kind::Date},
    {17, "mskDateTo(0)", Kind::Date}, {18, "mskDateTo(1)", Kind::Date},
    {19, "mskDateTo(2)", Kind::Date}, {20, "mskDateTo(3)", Kind::Date},
    {21, "txtOther", Kind::Text},
    {22, "chkTaxPay(0)", Kind::Flag}, {23, "chkTaxPay(1)", Kind::Flag}, {24, "chkTaxPay(2)", Kind::Flag},
    {25, "chkTaxCal(0)", Kind::Flag}, {26, "chkTaxCal(1)", Kind::Flag}, {27, "chkTaxCal(2)", Kind::Flag},
    {28, "chkTaxAdd4", Kind::Flag}, {29, "chkTaxAdvance4", Kind::Flag},
    {30, "chkTaxAdd6", Kind::Flag}, {31, "chkTaxAdvance6", Kind::Flag},
    {32, "txtMoney(0)", Kind::Money},
    {34, "txtMoney(2)", Kind::Money}, {35, "txtMoney(3)", Kind::Money}, {36, "txtMoney(4)", Kind::Money},
    {37, "txtMoney(5)", Kind::Money}, {38, "txtMoney(6)", Kind::Money}, {39, "txtMoney(7)", Kind::Money},
    {40, "lblMoney2(0)", Kind::Money}, {41, "lblMoney2(1)", Kind::Money},
    {42, "lblMoney2(2)", Kind::Money}, {43, "lblMoney2(3)", Kind::Money},
}};
// clang-format on

/// Statuses whose nil result of item 3 is no loss.
constexpr std::array<std::string_view, 6> statusesWithoutNilLoss = {"14", "9", "16", "17", "18", "19"};

Control& controlOf(const Form& page, const Page2Field& field) { return *page.find(field.control); }

std::string maskOrNothing(const MaskedBox& box) { return box.digits().empty() ? std::string() : box.text(); }

std::string readControl(const Control& control, Kind kind) {
    if (kind == Kind::Date) return maskOrNothing(static_cast<const MaskedBox&>(control));
    return kind == Kind::Money ? plainAmount(control.reading()) : control.reading();
}

void showText(Control& control, std::string text) {
    if (control.kind() == ControlKind::Label) {
        static_cast<Label&>(control).setCaption(std::move(text));
    } else {
        static_cast<TextBox&>(control).setText(std::move(text));
    }
}

/// What the rate boxes have said, carried from one record to another.
void copyRate(const TaxRecord& from, TaxRecord& to) {
    to.index_nRate = from.index_nRate;
    to.nRateCode = from.nRateCode;
    to.nRateLabel = from.nRateLabel;
    to.nRateNo = from.nRateNo;
    to.RateTag = from.RateTag;
    to.RateIndex1 = from.RateIndex1;
    to.RateCodePrint = from.RateCodePrint;
}

/// Whether the filled page has the tick of the stored case of line 2. A business with a row of the general
/// rate beside one of a reduced rate has both cases ticked: the one that it chose last stands, not the one
/// that the filling has ticked last.
bool bearsOutCase(
    const frmLodgePage2& page, const FieldArray& stored, const std::optional<std::int16_t>& taxCase) {
    if (!taxCase) return stored[generalCaseEntry] == "1" && page.chkTaxCal[0].value();
    if (*taxCase == reducedTaxCase) return page.chkTaxCal[1].value();
    return *taxCase == receiptsTaxCase && page.chkTaxCal[2].value();
}

/// While an array is on its way into the page, a tick is no person's.
class Filling {
  public:
    explicit Filling(bool& flag) : flag_(flag) { flag_ = true; }
    ~Filling() { flag_ = false; }
    Filling(const Filling&) = delete;
    Filling& operator=(const Filling&) = delete;

  private:
    bool& flag_;
};

} // namespace

std::span<const Page2Field> page2Fields() { return fields; }

void frmLodgePage2::P2_ArrayToControls() {
    const Filling filling(filling_);
    unsigned_.restore(); // a page that is filled again begins from the signed amounts
    const FieldArray stored = state().strFldPage2;
    const WorksheetArray sheet = state().strFldPage1_2;
    const TaxRecord record = tax();
    const std::string rateShown = state().modGreen.RateCodeShown;

    showTicks(stored, record);
    showWorksheet(record);

    // The clicks have written into the return on their way; what was stored stands again, but for the
    // choices that the ticks themselves are.
    TaxRecord kept = record;
    kept.PayStatus = tax().PayStatus;
    if (!bearsOutCase(*this, stored, record.Select_2_1)) kept.Select_2_1 = tax().Select_2_1;
    kept.RateCaseText = tax().RateCaseText;
    const bool rateFromPage = chosenRow() >= 0 || tickedRateBoxes() > 0;
    if (rateFromPage) copyRate(tax(), kept);
    tax() = std::move(kept);
    if (!rateFromPage) state().modGreen.RateCodeShown = rateShown;
    state().strFldPage2 = stored;
    // Page 1 has put the caption of the status's rate there; the rate box's own code replaces it.
    if (rateFromPage) state().strFldPage2[rateCodeEntry] = tax().nRateCode;
    state().strFldPage1_2 = sheet;

    showAmounts(record);
    applyStoredExceptions();
    freshlyFilled_ = true;
}

void frmLodgePage2::showTicks(const FieldArray& stored, const TaxRecord& record) {
    for (const Page2Field& field : fields) {
        if (field.kind == Kind::Flag) {
            static_cast<CheckBox&>(controlOf(*this, field)).setValue(readNumber(stored[field.entry]) == 1);
        }
    }
    for (int row = 0; row < worksheetRowCount; ++row) {
        const bool ticked = row < choiceRowCount
                                ? record.NewAtt1 == worksheetRows()[static_cast<std::size_t>(row)].key
                            : row == zoneRow   ? !record.NewAtt2.empty()
                            : row == futureRow ? !record.NewAtt3.empty()
                                               : !record.NewAtt4.empty();
        if (ticked) showRow(row);
        ChkBox_NewAtt[row].setValue(ticked);
    }
    if (state().intInvestment != 1) InvestBlockEnable(false); // the ticks have opened their rows
    for (const Page2Field& field : fields) { // behind the ticks, which empty the rows that they open
        Control& control = controlOf(*this, field);
        if (field.kind == Kind::Text) showText(control, stored[field.entry]);
        if (field.kind == Kind::Date) static_cast<MaskedBox&>(control).setDigits(stored[field.entry]);
    }
}

void frmLodgePage2::showWorksheet(const TaxRecord& record) {
    for (std::size_t row = 0; row < incomeCount; ++row)
        txtIncome[static_cast<int>(row)].setText(record.WorkIncome[row]);
    for (std::size_t row = 0; row < incomeCount; ++row)
        lbSumR[static_cast<int>(row)].setCaption(record.WorkTax[row]);
    lbIncomeSum.setCaption(record.WorkIncomeSum);
    lbSumTotal.setCaption(record.WorkTaxSum);
}

void frmLodgePage2::showAmounts(const TaxRecord& record) {
    FieldArray& entries = state().strFldPage2;
    // Unloading the page wrote the income into the entry of the tax; TaxValue is the tax.
    if (!record.TaxValue.empty()) entries[taxEntry] = record.TaxValue;
    std::string tax = unsigned_.show(entries[taxEntry]);
    std::vector<std::pair<Control*, std::string>> amounts;
    for (const Page2Field& field : fields) {
        if (field.kind == Kind::Money)
            amounts.emplace_back(&controlOf(*this, field), unsigned_.show(entries[field.entry]));
    }
    const FieldArray unsignedEntries = entries;
    for (auto& [control, amount] : amounts)
        showText(*control, std::move(amount));
    if (state().strFldPage1[20] == "1" || state().strFldPage1[48] == "1") {
        txtMoney[1].setText(std::move(tax));
    } else {
        const std::string& sheetTax = state().strFldPage1_2[5];
        lblMoney1.setCaption(tax.empty() || sheetTax.empty() ? std::move(tax) : formatMoneyText(sheetTax));
    }
    entries = unsignedEntries; // showing line 6 has written its caption there
    state().strFldPage1[29].clear();
    state().strFldPage1[30].clear();
    handToPage1();
}

void frmLodgePage2::applyStoredExceptions() {
    const FieldArray& item3 = state().strFldPage3_3;
    const bool withoutNilLoss = std::ranges::find(statusesWithoutNilLoss, state().DataCtrl_P1.IndcBusCode)
                                != statusesWithoutNilLoss.end();
    if (withoutNilLoss && item3[60] == "0.00") {
        chkTaxPay[1].setValue(false);
        txtMoney[0].setText("0.00");
    }
    if (item3[59].empty() && item3[60].empty()) txtMoney[0].setText("");
}

void frmLodgePage2::P2_ControlsToArray() {
    FieldArray& entries = state().strFldPage2;
    TaxRecord& record = tax();
    unsigned_.forget();
    for (std::string& entry : entries)
        entry.clear();
    for (const Page2Field& field : fields)
        entries[field.entry] = readControl(controlOf(*this, field), field.kind);
    const bool taxIsTyped = state().strFldPage1[20] == "1" || state().strFldPage1[48] == "1";
    record.TaxValue = plainAmount(taxIsTyped ? txtMoney[1].text() : lblMoney1.caption());
    entries[taxEntry] = record.TaxValue;
    entries[rateCodeEntry] = record.nRateCode;
    entries[rateNumberEntry] = record.nRateNo;

    state().strFldPage1[29].clear();
    state().strFldPage1[30].clear();
    handToPage1();
    const auto status = [](const CheckBox& add, const CheckBox& over) {
        return add.value() ? "1" : over.value() ? "2" : "0";
    };
    record.Line4Status = status(chkTaxAdd4, chkTaxAdvance4);
    record.Line6Status = status(chkTaxAdd6, chkTaxAdvance6);
    record.Line4Amount = plainAmount(lblMoney2[1].caption());
    record.Line6Amount = plainAmount(lblMoney2[3].caption());
    keepWorksheetTexts();
}

/// Once the filled page is on screen: the tax of a loss, the label of the reduced rate, the focus.
void frmLodgePage2::finishShow() {
    freshlyFilled_ = false;
    if (chkTaxPay[1].value()) {
        lblMoney1.setCaption("0.00");
        if (!lblMoney2[0].caption().empty()) {
            // A loss owes no tax: all that was paid is overpaid, and is shown without a sign.
            const std::string paid = formatMoney(std::abs(readFigure(lblMoney2[0].caption())));
            lblMoney2[1].setCaption(paid);
            lblMoney2[3].setCaption(paid);
        }
    }
    lblTaxValue.setCaption(std::string(storedRateLabel(state())));
    for (const int i : {0, 3, 2}) {
        if (txtMoney[i].isOpen() && txtMoney[i].isShown()) {
            txtMoney[i].setFocus();
            break;
        }
    }
    if (!hasBankCode() && state().strFldPage1_2[5].empty()) state().SheetRate.clear();
}

} // namespace lodge
