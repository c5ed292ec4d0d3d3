#include "pages/tax/green_sheet.h"

#include "pages/fields/amounts.h"
#include "pages/tax/bank_code.h"
#include "pages/tax/page2.h"
#include "pages/tax/rate_table.h"
#include "values/money.h"

#include <array>

namespace lodge {

namespace {

constexpr const char* reducedCase = "กรณีลดอัตราภาษี ";

/// The rate of a row stands in the tag of its tax; row 0 has none, its rate goes by its code.
constexpr std::array<std::string_view, frmLodgePage1_2::rowCount> rowTags = {"", "0.03", "0.1", "0.10"};

constexpr std::array<std::string_view, frmLodgePage1_2::rowCount> rowCaptions = {
    "กรณีลดอัตราภาษี",
    "กรณีลดอัตราภาษี (1.7)",
    "กรณีลดอัตราภาษี (1.8)",
    "กรณีเป็นธนาคารลดอัตราภาษีตามพรฎ (ฉบับที่ 454)",
};

constexpr int zoneRowOfSheet = 1;
constexpr int economicZoneRow = 2;
constexpr int bankRowOfSheet = 3;

/// Entries of strFldPage1_2 by box of the line form.
struct SheetLine {
    std::size_t income;
    std::size_t tax;
};

constexpr std::array<SheetLine, 3> sheetLines = {{{0, 3}, {1, 4}, {6, 7}}};
constexpr std::size_t incomeTotal = 2;
constexpr std::size_t taxTotal = 5;

} // namespace

std::string FormatMoney(std::string_view text) { return formatBracketText(text); }

bool IsAmountText(std::string_view text) {
    SilentNotifier silent; // the sheet has one message for every text that is no amount
    return text.empty() || ChkMoney(text, silent) == "1";
}

void clearGreenArray(ReturnState& state) {
    for (std::string& entry : state.strFldPage1_2)
        entry.clear();
    state.SheetTax = 0.0;
}

frmLodgePage1_2::frmLodgePage1_2(Program& program) : Form(program.desk, formName), program_(program) {
    captionControls();
    wireControls();
}

void frmLodgePage1_2::captionControls() {
    for (int row = 0; row < rowCount; ++row) {
        const auto at = static_cast<std::size_t>(row);
        lblRow[row].setCaption(std::string(rowCaptions[at]));
        txtSum[row].setTag(std::string(rowTags[at]));
        txtSum[row].setTextKind(TextKind::Amount);
        txtSum[row].setLocked(true);
        txtIncome[row].setTextKind(TextKind::Amount);
    }
    txtMoney71.each([](TextBox& box, int) { box.setTextKind(TextKind::Amount); });
    for (TextBox* sum : {&txtIncomeSum, &txtSumTax}) {
        sum->setTextKind(TextKind::Amount);
        sum->setLocked(true);
    }
    Cmd_Ok.setCaption("ตกลง");
}

void frmLodgePage1_2::wireControls() {
    for (int row = 0; row < rowCount; ++row) {
        txtIncome[row].onGotFocus = [this, row] {
            txtIncome[row].setBack(txtIncome[row].enabled() ? BackColour::Window : BackColour::Button);
            showPlainDigits(txtIncome[row]);
        };
        txtIncome[row].onLostFocus = [this, row] { txtIncome_LostFocus(row); };
        txtSum[row].onChange = [this, row] { txtSum_Change(row); };
    }
    txtIncomeSum.onChange = [this] {
        lbIncomeSum.setCaption(txtIncomeSum.text());
        program_.state.modGreen.GreenIncomeSum = plainAmount(txtIncomeSum.text());
    };
    txtSumTax.onChange = [this] {
        lbSumTotal.setCaption(txtSumTax.text());
        program_.state.modGreen.GreenTaxSum = plainAmount(txtSumTax.text());
    };
    txtMoney71.each([this](TextBox& box, int i) {
        box.onGotFocus = [&box] { showPlainDigits(box); };
        box.onLostFocus = [this, &box, i] {
            program_.state.PageChk.SilentCheck = 0;
            Sum_txtMoney71(i);
            if (i == 0) program_.state.Sheet71a = box.text();
            if (i == 2) program_.state.Sheet71c = box.text();
        };
    });
    lbShowRate.onClick = [this] {
        for (const int row : {0, 1, 0}) {
            if (txtIncome[row].isOpen() && txtIncome[row].isShown()) txtIncome[row].setFocus();
        }
    };
    Cmd_Ok.onClick = [this] { Cmd_Ok_Click(); };
}

bool frmLodgePage1_2::hasBankCode() const { return lodge::hasBankCode(program_.state); }

void frmLodgePage1_2::Form_Load() {
    if (hasBankCode()) {
        txtMoney71[1].setLocked(false);
        txtMoney71[1].setBack(BackColour::Window);
    } else {
        txtMoney71[1].setText("");
        lblMoney73[1].setCaption("");
        txtMoney71[1].setLocked(true);
        txtMoney71[1].setBack(BackColour::Button);
    }
    P1_2_ArrayToVar();
    if (program_.state.strFldPage1[44] != "1") {
        txtMoney71[2].setText("");
        lblMoney2_9.setCaption("");
    }
}

void frmLodgePage1_2::Form_Activate() {
    ReturnState& state = program_.state;
    if (!txtMoney71[0].text().empty()) state.Sheet71a = txtMoney71[0].text();
    if (!txtMoney71[2].text().empty()) state.Sheet71c = txtMoney71[2].text();
    if (state.strFldPage1[44] == "0" && hasBankCode()) {
        txtMoney71[2].setLocked(true);
        txtMoney71[2].setBack(BackColour::Button);
    }
    lblRow[0].setCaption(state.DataCtrl_P2.nRateCode + reducedCase);
    if (!state.SheetIncome.empty()) txtMoney71[0].setText(formatMoneyText(state.SheetIncome));
    showRows();
    desk().hide(frmLodgePage2::formName);
}

void frmLodgePage1_2::showRows() {
    ReturnState& state = program_.state;
    const GreenRecord green = state.modGreen; // the boxes write into the record while they are filled
    for (int row = 0; row < rowCount; ++row) {
        txtIncome[row].setText(FormatMoney(green.GreenIncome[static_cast<std::size_t>(row)]));
        txtSum[row].setText(green.GreenTax[static_cast<std::size_t>(row)]);
    }
    txtIncomeSum.setText(FormatMoney(green.GreenIncomeSum));
    lbShowRate.setCaption("(" + green.RateCodeShown + ")");
    txtIncome[0].setTag(green.RateCodeShown);
    state.DataCtrl_P2.nRateCode.empty() ? closeBox(txtIncome[0]) : openBox(txtIncome[0]);
    state.IsRate17 = state.DataCtrl_P1.ChkStatus11 == 1;
    state.IsRate18 = state.DataCtrl_P1.ChkStatus14 == 1;
    openRow(zoneRowOfSheet, state.IsRate17);
    openRow(economicZoneRow, state.IsRate18);
    openRow(bankRowOfSheet, hasBankCode());
}

/// A row that the business may not use is closed and emptied.
void frmLodgePage1_2::openRow(int row, bool open) {
    if (open) {
        openBox(txtIncome[row]);
        return;
    }
    closeBox(txtIncome[row]);
    txtIncome[row].setText("");
    txtSum[row].setText("");
    program_.state.modGreen.GreenIncome[static_cast<std::size_t>(row)].clear();
    program_.state.modGreen.GreenTax[static_cast<std::size_t>(row)].clear();
}

void frmLodgePage1_2::Form_Unload() {
    program_.state.SheetIncome = plainAmount(txtMoney71[0].text());
    if (auto* page2 = desk().find<frmLodgePage2>()) {
        desk().show(frmLodgePage2::formName);
        page2->Cmd_Deposit.setEnabled(true);
    }
}

void frmLodgePage1_2::P1_2_ArrayToVar() {
    const WorksheetArray& entries = program_.state.strFldPage1_2;
    for (int i = 0; i < txtMoney71.count(); ++i)
        txtMoney71[i].setText(formatMoneyText(entries[sheetLines[static_cast<std::size_t>(i)].income]));
    lblMoney73[0].setCaption(formatMoneyText(entries[sheetLines[0].tax]));
    lblMoney73[1].setCaption(formatMoneyText(entries[sheetLines[1].tax]));
    lblMoney2_9.setCaption(formatMoneyText(entries[sheetLines[2].tax]));
    lblSumMoney71.setCaption(formatMoneyText(entries[incomeTotal]));
    lblMoney73[2].setCaption(formatMoneyText(entries[taxTotal]));
}

void frmLodgePage1_2::storeLineForm() {
    ReturnState& state = program_.state;
    state.SheetRate.clear();
    clearGreenArray(state);
    WorksheetArray& entries = state.strFldPage1_2;
    for (int i = 0; i < txtMoney71.count(); ++i)
        entries[sheetLines[static_cast<std::size_t>(i)].income] = plainAmount(txtMoney71[i].text());
    entries[sheetLines[0].tax] = plainAmount(lblMoney73[0].caption());
    entries[sheetLines[1].tax] = plainAmount(lblMoney73[1].caption());
    entries[sheetLines[2].tax] = plainAmount(lblMoney2_9.caption());
    entries[incomeTotal] = plainAmount(lblSumMoney71.caption());
    entries[taxTotal] = plainAmount(lblMoney73[2].caption());
    state.SheetTax = readFigure(entries[taxTotal]);
}

void frmLodgePage1_2::P1_2_DataToArray() {
    storeLineForm();
    auto* page2 = desk().find<frmLodgePage2>();
    if (page2 == nullptr) return;
    page2->txtMoney[0].setText(formatMoneyText(program_.state.strFldPage1_2[incomeTotal]));
    page2->txtMoney[0].setLocked(true);
    page2->lblMoney1.setCaption(formatMoneyText(program_.state.strFldPage1_2[taxTotal]));
    page2->lblMoney1.setVisible(true);
}

void frmLodgePage1_2::Sum_txtMoney71(int i) {
    if (!passesMoneyCheck(txtMoney71[i].text(), program_)) {
        txtMoney71[i].setText("");
        txtMoney71[i].setFocus();
        program_.state.intError = 1;
        if (program_.state.PageChk.SilentCheck != 1) return;
    }
    txtMoney71[i].setText(formatMoneyText(txtMoney71[i].text()));

    double incomes = 0;
    bool anyIncome = false;
    for (int line = 0; line < txtMoney71.count(); ++line) {
        incomes += readFigure(txtMoney71[line].text());
        anyIncome = anyIncome || !txtMoney71[line].text().empty();
    }
    lblSumMoney71.setCaption(anyIncome ? formatMoney(incomes) : std::string());

    const std::array<Label*, 3> taxes = {&lblMoney73[0], &lblMoney73[1], &lblMoney2_9};
    const auto income = [this](int line) { return readFigure(txtMoney71[line].text()); };
    const std::array<double, 3> amounts = {CalcTaxByRate(program_.state.DataCtrl_P2.nRateCode, income(0)),
        taxAtRate(income(1), privilegedRate), taxAtRate(income(2), zoneRate)};
    double total = 0;
    for (std::size_t line = 0; line < taxes.size(); ++line) {
        const bool blank = txtMoney71[static_cast<int>(line)].text().empty();
        taxes[line]->setCaption(blank ? std::string() : formatMoney(amounts[line]));
        total += blank ? 0 : amounts[line];
    }
    lblMoney73[2].setCaption(anyIncome ? formatMoney(total) : std::string());
}

void frmLodgePage1_2::txtIncome_LostFocus(int i) {
    TextBox& box = txtIncome[i];
    if (!IsAmountText(box.text())) {
        program_.message("M075");
        box.setText("");
    } else if (readFigure(box.text()) < 0) {
        program_.message("M073");
        box.setText("");
    }
    program_.state.modGreen.GreenIncome[static_cast<std::size_t>(i)] = box.text();
    const double income = readFigure(box.text());
    std::string tax;
    if (!box.text().empty() && !txtSum[i].tag().empty()) {
        tax = shownFigure(taxAtRate(income, readNumber(txtSum[i].tag())));
    }
    if (i == 0 && !box.text().empty()) tax = shownFigure(CalcTaxByRate(lbShowRate.caption(), income));
    txtSum[i].setText(std::move(tax));
    sumIncomes();
    box.setText(FormatMoney(box.text()));
}

void frmLodgePage1_2::sumIncomes() {
    double total = 0;
    bool any = false;
    for (int row = 0; row < rowCount; ++row) {
        total += readFigure(txtIncome[row].text());
        any = any || !txtIncome[row].text().empty();
    }
    txtIncomeSum.setText(any ? shownFigure(total) : std::string());
}

void frmLodgePage1_2::txtSum_Change(int i) {
    program_.state.modGreen.GreenTax[static_cast<std::size_t>(i)] = txtSum[i].text();
    lbSumR[i].setCaption(FormatMoney(txtSum[i].text()));
    double total = 0;
    bool any = false;
    for (int row = 0; row < rowCount; ++row) {
        total += readFigure(txtSum[row].text());
        any = any || !txtSum[row].text().empty();
    }
    txtSumTax.setText(any ? shownFigure(total) : std::string());
}

void frmLodgePage1_2::Cmd_Ok_Click() {
    ReturnState& state = program_.state;
    storeLineForm();
    desk().show(frmLodgePage2::formName);
    auto* page2 = desk().find<frmLodgePage2>();
    page2->takeGreenSheet(
        FormatMoney(state.modGreen.GreenTaxSum), FormatMoney(state.modGreen.GreenIncomeSum));
    state.DataCtrl_P2.TaxValue = plainAmount(state.modGreen.GreenTaxSum);
    state.strFldPage1_2[taxTotal] = state.DataCtrl_P2.TaxValue;
    page2->Cmd_Deposit.setEnabled(true);
    desk().unload(formName);
}

} // namespace lodge
