#include "pages/loss/item11_page.h"

#include "pages/loss/item11_popup.h"
#include "pages/loss/item11_rules.h"
#include "values/dates.h"
#include "values/messages.h"
#include "values/money.h"

#include <algorithm>
#include <utility>

namespace lodge {

namespace {

/// The codes of keys that count as typing, searched as text: a code that is a piece of it counts, too, and
/// two codes have grown together. Sums shown so far depend on it.
constexpr std::string_view countingKeys =
    "20 13 8 4648 49 50 51 52 53 54 55 56 57 96 97 98 99 100 101 102 103 104 105 ";

bool counts(char32_t key) {
    return countingKeys.find(std::to_string(static_cast<unsigned long>(key))) != std::string_view::npos;
}

std::string maskEntry(const MaskedBox& box) { return box.digits().empty() ? std::string() : box.text(); }

} // namespace

frmLodgePage6_11::frmLodgePage6_11(Program& program) : PageForm(program.desk, formName), program_(program) {
    wireCells();
    wireDates();
    DelButton.each([this](CommandButton& button, int row) {
        button.setCaption("ลบ");
        button.setVisible(false);
        button.onClick = [this, row] { DelButton_Click(row); };
    });
    txtSum.setTextKind(TextKind::Amount);
    txtSum.setLocked(true);
    txtSum.setBack(BackColour::Button);
    Command1.setCaption("เพิ่มรายการ");
    Command1.onClick = [this] { Command1_Click(); };
}

void frmLodgePage6_11::wireCells() {
    txtMoney1.each([this](TextBox& box, int cell) {
        box.setTextKind(TextKind::Amount);
        box.onGotFocus = [&box] { showPlainDigits(box); };
        box.onKey = [this](const KeyPress& press) { keyPressed_ = keyPressed_ || counts(press.key); };
        box.onChange = [this] {
            if (keyPressed_) showSum();
        };
        box.onLostFocus = [this, cell] { cellLeft(cell); };
    });
    TextBox& carried = txtMoney1[item11CarriedCell];
    lblMoney1_42.setVisible(false); // it stands on paper alone
    carried.onChange = [this, &carried] { lblMoney1_42.setCaption(carried.text()); };
}

void frmLodgePage6_11::wireDates() {
    mskDateFrom.each([this](MaskedBox& box, int row) { box.onLostFocus = [this, row] { startLeft(row); }; });
}

// --- Life of the page ---

void frmLodgePage6_11::Form_Load() {
    program_.state.intPageCur = pageCode;
    for (int row = 0; row < item11Rows; ++row) {
        closeBox(mskDateFrom[row]);
        closeBox(mskDateTo[row]);
    }
    for (int cell = 0; cell < item11ResultCells; ++cell)
        closeBox(txtMoney1[cell]);
    switchCarriedCell();
}

void frmLodgePage6_11::Form_Activate() {
    switchCarriedCell();
    showSum();
    ShowButton();
    if (program_.state.blnIHQPage) closeForHeadquarters();
}

void frmLodgePage6_11::closeForHeadquarters() {
    Command1.setVisible(false);
    for (Control* control : controls())
        control->setEnabled(false);
}

void frmLodgePage6_11::Form_Unload() { unsigned_.restore(); }

void frmLodgePage6_11::switchCarriedCell() {
    const ReturnState& state = program_.state;
    TextBox& carried = txtMoney1[item11CarriedCell];
    state.intItem11Count > 0 && !state.blnIHQPage ? openBox(carried) : closeBox(carried);
}

// --- Array and controls ---

void frmLodgePage6_11::ArrayToVar() {
    ReturnState& state = program_.state;
    if (state.blnIHQPage) return;
    unsigned_.restore(); // a page that is filled again begins from the signed amounts
    FieldArray& fields = state.strFldPage6_11;
    for (int row = 0; row < item11Rows; ++row) {
        mskDateFrom[row].setDigits(fields[fromEntry(row)]);
        mskDateTo[row].setDigits(fields[toEntry(row)]);
    }
    txtMoney1.each([&](TextBox& box, int cell) { box.setText(unsigned_.show(fields[cellEntry(cell)])); });
}

void frmLodgePage6_11::DataToArray() {
    unsigned_.forget();
    FieldArray& fields = program_.state.strFldPage6_11;
    for (std::string& field : fields)
        field.clear();
    for (int row = 0; row < item11Rows; ++row) {
        fields[fromEntry(row)] = maskEntry(mskDateFrom[row]);
        fields[toEntry(row)] = maskEntry(mskDateTo[row]);
    }
    txtMoney1.each([&](const TextBox& box, int cell) { fields[cellEntry(cell)] = plainAmount(box.text()); });
}

// --- Sums ---

/// What may be carried: losses less the taxable profits that use them up, never below zero.
void frmLodgePage6_11::showSum() {
    double sum = 0;
    for (int cell = 0; cell < item11ResultCells; ++cell)
        sum += signInCarriedLoss(cell) * txt2CDbl(txtMoney1[cell].text());
    txtSum.setText(formatMoney(std::max(sum, 0.0)));
}

bool frmLodgePage6_11::ChkTotal() const {
    return txt2CDbl(txtSum.text()) == txt2CDbl(txtMoney1[item11CarriedCell].text());
}

double frmLodgePage6_11::columnSum(int cell, int cells, int step) const {
    double sum = 0;
    for (int i = 0; i < cells; ++i)
        sum += readFigure(txtMoney1[cell + i * step].text());
    return sum;
}

void frmLodgePage6_11::Sum_Item11() {
    constexpr int block2 = firstCell(item11ExemptRows);
    ReturnState& state = program_.state;
    state.Item11ExemptProfit = columnSum(0, item11ExemptRows, 4);
    state.Item11ExemptLoss = columnSum(1, item11ExemptRows, 4);
    const double profit = columnSum(2, item11ExemptRows, 4) + columnSum(block2, item11TaxableRows, 2);
    const double loss = columnSum(3, item11ExemptRows, 4) + columnSum(block2 + 1, item11TaxableRows, 2);
    // No check reads the net: a carried loss that differs from the sum offered is taken as it was typed.
    state.Item11Net = loss - profit;
    if (state.Item11Net <= 0) state.Item11Net += state.Item11ExemptLoss;
}

// --- A cell that is left ---

void frmLodgePage6_11::cellLeft(int cell) {
    keyPressed_ = false;
    TextBox& box = txtMoney1[cell];
    const auto isBlank = [this](int row) { return mskDateFrom[row].digits().empty(); };
    int blankRows = 0;
    for (int row = 0; row < item11Rows; ++row)
        blankRows += isBlank(row) ? 1 : 0;
    if (cell == item11CarriedCell && blankRows == item11Rows && !box.text().empty()) {
        box.setText("");
        program_.refuse("M125", box);
        return;
    }
    program_.state.PageChk.CurrentLine = static_cast<std::int16_t>(cell);
    program_.state.PageChk.SilentCheck = 0;
    Chk_Item11Money();
}

void frmLodgePage6_11::Chk_Item11Money() {
    const CheckScratchRecord& scratch = program_.state.PageChk;
    const int cell = scratch.CurrentLine;
    const bool walks = scratch.SilentCheck == 1;
    TextBox& box = txtMoney1[cell];
    if (!showAsAmount(box) && !walks) {
        box.setFocus();
        return;
    }
    // A business has either a profit or a loss in a period.
    if (cell < item11ResultCells && !box.text().empty()) txtMoney1[cell ^ 1].setText("");
    if (ChkTotal()) {
        Sum_Item11();
        if (cell == item11CarriedCell && !box.text().empty() && !periodsBearCarriedLoss()) return;
    }
    if (!walks) Chk_Item11Deduct();
}

/// False, with the box emptied and `intError` set, when its text is no amount.
bool frmLodgePage6_11::showAsAmount(TextBox& box) {
    const bool accepted = box.text().empty() || ChkMoney(box.text(), program_) == "1";
    if (!accepted) {
        box.setText("");
        program_.state.intError = 1;
    }
    box.setText(formatBracketText(box.text()));
    return accepted;
}

bool frmLodgePage6_11::periodsBearCarriedLoss() {
    int periods = 0;
    for (int row = 0; row < item11Rows; ++row)
        periods += hasBothDates(row) ? 1 : 0;
    if (periods == 0) {
        txtMoney1[item11CarriedCell].setText("");
        refuse("M117");
        return false;
    }
    // The taxable block alone is looked at, whatever the span of years.
    for (int row = item11ExemptRows; row < item11Rows; ++row) {
        if (!mskDateFrom[row].digits().empty() && isEmptyRow(row)) {
            refuse("M118");
            return false;
        }
    }
    return true;
}

int frmLodgePage6_11::Chk_Item11Deduct() {
    const ReturnState& state = program_.state;
    TextBox& carried = txtMoney1[item11CarriedCell];
    const bool hasExemptResult = state.Item11ExemptProfit > 0 || state.Item11ExemptLoss > 0;
    const bool isNeeded = filledCells() > 0 || (ChkTotal() && hasExemptResult);
    if (!isNeeded || !carried.text().empty()) return 1;
    program_.refuse("M127", carried);
    return -1;
}

// --- The page that is left ---

void frmLodgePage6_11::Chk_Item11Page() {
    if (program_.state.blnIHQPage) return;
    for (int row = 0; row < item11Rows; ++row) {
        if (!mskDateTo[row].digits().empty() && !Chk_Item11Date(row)) return;
    }
    if (!walkResults()) return;
    for (int row = item11ExemptRows; row < item11Rows; ++row) {
        if (hasBothDates(row) && isEmptyRow(row)) {
            refuse("M103");
            return;
        }
    }
}

bool frmLodgePage6_11::Chk_Item11Date(int row) {
    const TablePeriod period{.from = mskDateFrom[row].digits(),
        .to = mskDateTo[row].digits(),
        .today = dateText(program_.host().today())};
    for (const TablePeriodRule& rule : tablePeriodRules()) {
        if (!rule.refuses(period)) continue;
        if (rule.clearsEnd) mskDateTo[row].setDigits("");
        refuse(rule.code);
        return false;
    }
    return true;
}

bool frmLodgePage6_11::walkResults() {
    CheckScratchRecord& scratch = program_.state.PageChk;
    for (int cell = 0; cell < item11ResultCells; ++cell) {
        if (txtMoney1[cell].text().empty()) continue;
        showPlainDigits(txtMoney1[cell]);
        scratch.CurrentLine = static_cast<std::int16_t>(cell);
        scratch.SilentCheck = 1;
        Chk_Item11Money();
        if (program_.state.intError == 1) return false;
    }
    return true;
}

// --- Rows ---

bool frmLodgePage6_11::hasBothDates(int row) const {
    return !mskDateFrom[row].digits().empty() && !mskDateTo[row].digits().empty();
}

bool frmLodgePage6_11::isEmptyRow(int row) const {
    for (int i = 0; i < cellCount(row); ++i) {
        if (!txtMoney1[firstCell(row) + i].text().empty()) return false;
    }
    return true;
}

int frmLodgePage6_11::filledCells() const {
    int filled = 0;
    for (int cell = 0; cell < item11ResultCells; ++cell)
        filled += txtMoney1[cell].text().empty() ? 0 : 1;
    return filled;
}

void frmLodgePage6_11::clearRow(int row) {
    mskDateFrom[row].setDigits("");
    mskDateTo[row].setDigits("");
    for (int i = 0; i < cellCount(row); ++i)
        txtMoney1[firstCell(row) + i].setText("");
}

/// The dates are closed, so that no user leaves one; the rules hold for a table that is opened.
void frmLodgePage6_11::startLeft(int row) {
    const std::string& from = mskDateFrom[row].digits();
    if (from.empty()) {
        for (int below = std::max(row + 1, item11ExemptRows); below < item11Rows; ++below)
            clearRow(below);
        Sum_Item11();
        return;
    }
    const bool isFirstOfBlock = row == 0 || row == item11ExemptRows;
    const std::string text = typedStartRefusal({.from = from,
        .fromAbove = isFirstOfBlock ? std::string() : mskDateFrom[row - 1].digits(),
        .toAbove = isFirstOfBlock ? std::string() : mskDateTo[row - 1].digits(),
        .period = program_.state.FucDate});
    if (text.empty()) return;
    program_.notify(text);
    program_.state.intError = 1;
    mskDateFrom[row].setFocus();
}

void frmLodgePage6_11::ShowButton() {
    const ReturnState& state = program_.state;
    const auto newest = state.blnIHQPage ? std::nullopt : lastEntryRow(state);
    DelButton.each([&](CommandButton& button, int row) {
        button.setVisible(newest == row);
        button.setEnabled(newest == row);
    });
}

void frmLodgePage6_11::DelButton_Click(int row) {
    clearRow(row);
    Sum_Item11(); // so that no sum of a row that is gone asks for the carried loss
    unlogLastEntry(program_.state);
    ShowButton();
    if (program_.state.intItem11Count == 0) txtMoney1[item11CarriedCell].setText("");
    switchCarriedCell();
}

void frmLodgePage6_11::takePeriod(
    int row, const MaskedBox& from, const MaskedBox& to, std::span<const std::string> results) {
    mskDateFrom[row].setDigits(from.digits());
    mskDateTo[row].setDigits(to.digits());
    int cell = firstCell(row);
    for (const std::string& result : results)
        txtMoney1[cell++].setText(result);
}

void frmLodgePage6_11::Command1_Click() {
    program_.shell().EnableTools(false);
    setEnabled(false);
    program_.desk.show(frmLodgePage6_11Popup::formName);
}

void frmLodgePage6_11::refuse(std::string_view code) {
    program_.message(code);
    program_.state.intError = 1;
}

// --- For the shell ---

void P6_11_ArrayToVar(Program& program) {
    if (auto* page = program.desk.find<frmLodgePage6_11>()) page->ArrayToVar();
}

void P6_11_DataToArray(Program& program) {
    if (auto* page = program.desk.find<frmLodgePage6_11>()) page->DataToArray();
}

void Chk_Item11Deduct(Program& program) {
    auto* page = program.desk.find<frmLodgePage6_11>();
    if (page != nullptr && !program.state.blnIHQPage) page->Chk_Item11Deduct();
}

void Chk_Item11Leave(Program& program) {
    if (auto* page = program.desk.find<frmLodgePage6_11>()) page->Chk_Item11Page();
    if (program.state.intError == 0) Chk_Item11Deduct(program);
}

} // namespace lodge
