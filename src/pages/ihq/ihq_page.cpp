#include "pages/ihq/ihq_page.h"

#include "pages/fields/amounts.h"
#include "pages/ihq/ihq_rules.h"
#include "values/money.h"

#include <algorithm>
#include <initializer_list>
#include <string>
#include <vector>

namespace lodge {

namespace {

constexpr std::size_t filerNid = 45; // in strFldPage1

constexpr std::size_t at(int index) { return static_cast<std::size_t>(index); }

/// Date boxes in the record: ten characters with slashes, nothing for a box without a date.
std::string maskEntry(const MaskedBox& box) { return box.digits().empty() ? std::string() : box.text(); }

/// The sum of the figures that are there; empty when none is.
std::string shownSum(std::initializer_list<std::string_view> figures) {
    const bool any = std::ranges::any_of(figures, [](std::string_view figure) { return !figure.empty(); });
    if (!any) return {};
    double sum = 0;
    for (const std::string_view figure : figures)
        sum += readFigure(figure);
    return shownFigure(sum);
}

/// A cell of the exempt business is the first or the second of its row.
constexpr bool isExempt(int cell) { return cell % ihqCellsOfRow < 2; }

void openIf(bool open, Control& box) { open ? openBox(box) : closeBox(box); }

/// A computed figure is looked at and never typed.
void makeComputed(TextBox& box) {
    box.setTextKind(TextKind::Amount);
    box.setLocked(true);
    box.setBack(BackColour::Button);
}

void makeAmount(TextBox& box) {
    box.setTextKind(TextKind::Amount);
    box.onGotFocus = [&box] { showPlainDigits(box); };
}

} // namespace

frmIHQ::frmIHQ(Program& program)
    : PageForm(program.desk, formName, "ใบแนบ ก.ข.ค. 77 - สำหรับกิจการสำนักงานใหญ่ข้ามประเทศ (IHQ)"),
      program_(program) {
    orderControls();
    txtNid.setLocked(true);
    txtNid.setBack(BackColour::Button);
    wireDates();
    wireIncome();
    wireLosses();
    Command1.setVisible(false);
    cmdChkN2Input.setVisible(false);
}

/// Line by line, as the paper reads.
void frmIHQ::orderControls() {
    std::vector<Control*> income;
    for (int line = 0; line < ihqIncomeLines; ++line)
        income.insert(income.end(), {&txtA[line], &txtB[line], &txtC[line]});
    orderOnPaper(income);
    std::vector<Control*> losses;
    for (int row = 0; row < ihqLossRows; ++row) {
        losses.insert(losses.end(), {&mskDateFrom[row], &mskDateTo[row]});
        for (int cell = 0; cell < ihqCellsOfRow; ++cell)
            losses.push_back(&txtMoney1[row * ihqCellsOfRow + cell]);
    }
    orderOnPaper(losses);
}

// --- Wiring: whatever a rule makes of a field that is left, the record has it ---

void frmIHQ::wireDates() {
    for (MaskedBox* box : {&mskDateConfm, &mskDateStart, &mskDateEnd}) {
        box->onLostFocus = [this, box] {
            privilegeDateLeft(*box);
            BoxToForm();
        };
    }
    mskDateFrom.each([this](MaskedBox& box, int row) {
        box.onLostFocus = [this, row] {
            lossStartLeft(row);
            BoxToForm();
        };
    });
    mskDateTo.each([this](MaskedBox& box, int row) {
        box.onLostFocus = [this, row] {
            lossEndLeft(row);
            BoxToForm();
        };
    });
}

void frmIHQ::wireIncome() {
    for (ControlArray<TextBox>* column : {&txtA, &txtB}) {
        column->each([this](TextBox& box, int line) {
            makeAmount(box);
            box.onLostFocus = [this, &box, line] {
                incomeLeft(box, line);
                BoxToForm();
            };
        });
    }
    txtC.each([](TextBox& box, int /*line*/) { makeComputed(box); });
    for (TextBox* sum : {&txtSumA, &txtSumB, &txtSumC})
        makeComputed(*sum);
    txtSumA.onChange = [this] { showTotal(); };
    txtSumB.onChange = [this] { showTotal(); };
}

void frmIHQ::wireLosses() {
    txtMoney1.each([this](TextBox& box, int cell) {
        makeAmount(box);
        box.onLostFocus = [this, cell] {
            resultLeft(cell);
            BoxToForm();
        };
    });
    for (TextBox* box : {&txtG1, &txtG2}) {
        makeAmount(*box);
        box->onLostFocus = [this, box] {
            carriedLossLeft(*box);
            BoxToForm();
        };
    }
}

// --- Life of the page ---

void frmIHQ::Form_Load() { program_.state.intPageCur = openingCode; }

void frmIHQ::Form_Activate() {
    const bool exempt = program_.state.intP1Box1 > 0;
    const bool taxable = program_.state.intP1Box2 > 0;
    txtA.each([&](TextBox& box, int /*line*/) { openIf(exempt, box); });
    txtB.each([&](TextBox& box, int /*line*/) { openIf(taxable, box); });
    txtMoney1.each([&](TextBox& box, int cell) { openIf(isExempt(cell) ? exempt : taxable, box); });
    openIf(exempt, txtG1);
    openIf(taxable, txtG2);
}

// --- Record and controls ---

void frmIHQ::FormToBox() {
    const HeadquartersRecord stored = record(); // the sums that are filled in write themselves to the record
    txtNid.setText(program_.state.strFldPage1[filerNid]);
    mskDateConfm.setDigits(stored.LicenceConfm);
    mskDateStart.setDigits(stored.LicenceStart);
    mskDateEnd.setDigits(stored.LicenceEnd);
    for (int line = 0; line < ihqIncomeLines; ++line) {
        txtA[line].setText(FormatBox(stored.BoxA[at(line)]));
        txtB[line].setText(FormatBox(stored.BoxB[at(line)]));
        txtC[line].setText(FormatBox(stored.BoxC[at(line)]));
    }
    txtSumA.setText(FormatBox(stored.BoxASum));
    txtSumB.setText(FormatBox(stored.BoxBSum));
    txtSumC.setText(FormatBox(stored.BoxCSum));
    for (int row = 0; row < ihqLossRows; ++row) {
        mskDateFrom[row].setDigits(stored.BoxDateFrom[at(row)]);
        mskDateTo[row].setDigits(stored.BoxDateTo[at(row)]);
    }
    txtMoney1.each([&](TextBox& box, int cell) { box.setText(FormatBox(stored.BoxMoney[at(cell)])); });
    txtG1.setText(FormatBox(stored.BoxG1));
    txtG2.setText(FormatBox(stored.BoxG2));
    record() = stored;
}

void frmIHQ::BoxToForm() {
    HeadquartersRecord& taken = record();
    taken.LicenceConfm = maskEntry(mskDateConfm);
    taken.LicenceStart = maskEntry(mskDateStart);
    taken.LicenceEnd = maskEntry(mskDateEnd);
    for (int line = 0; line < ihqIncomeLines; ++line) {
        taken.BoxA[at(line)] = plainAmount(txtA[line].text());
        taken.BoxB[at(line)] = plainAmount(txtB[line].text());
        taken.BoxC[at(line)] = plainAmount(txtC[line].text());
    }
    taken.BoxASum = plainAmount(txtSumA.text());
    taken.BoxBSum = plainAmount(txtSumB.text());
    taken.BoxCSum = plainAmount(txtSumC.text());
    for (int row = 0; row < ihqLossRows; ++row) {
        taken.BoxDateFrom[at(row)] = maskEntry(mskDateFrom[row]);
        taken.BoxDateTo[at(row)] = maskEntry(mskDateTo[row]);
    }
    txtMoney1.each([&](const TextBox& box, int cell) { taken.BoxMoney[at(cell)] = plainAmount(box.text()); });
    taken.BoxG1 = plainAmount(txtG1.text());
    taken.BoxG2 = plainAmount(txtG2.text());
}

// --- The privilege ---

void frmIHQ::privilegeDateLeft(MaskedBox& box) {
    const PrivilegeDates dates{.confirmed = mskDateConfm.digits(),
        .start = mskDateStart.digits(),
        .end = mskDateEnd.digits(),
        .record = record()};
    const std::string_view refusal = &box == &mskDateConfm   ? refusalOfConfirmed(dates)
                                     : &box == &mskDateStart ? refusalOfStart(dates)
                                                             : refusalOfEnd(dates);
    if (refusal.empty()) return;
    box.setDigits("");
    program_.refuse(refusal, box);
}

// --- Item 1 ---

void frmIHQ::incomeLeft(TextBox& box, int line) {
    const bool accepted = ChkBoxNum(box.text(), program_);
    box.setText(accepted ? FormatBox(box.text()) : std::string());
    txtC[line].setText(shownSum({txtA[line].text(), txtB[line].text()}));
    showColumnSum(txtA, txtSumA);
    showColumnSum(txtB, txtSumB);
    if (accepted) return;
    program_.state.intError = 1;
    box.setFocus();
}

void frmIHQ::showColumnSum(ControlArray<TextBox>& column, TextBox& sum) {
    const auto figure = [&](int line) { return std::string_view(column[line].text()); };
    sum.setText(
        shownSum({figure(0), figure(1), figure(2), figure(3), figure(4), figure(5), figure(6), figure(7)}));
}

void frmIHQ::showTotal() {
    txtSumC.setText(shownSum({txtSumA.text(), txtSumB.text()}));
    record().BoxASum = plainAmount(txtSumA.text());
    record().BoxBSum = plainAmount(txtSumB.text());
    record().BoxCSum = plainAmount(txtSumC.text());
}

// --- Item 2 ---

LossPeriod frmIHQ::periodOf(int row) const {
    const bool isFirstRow = row == 0;
    return {.from = mskDateFrom[row].digits(),
        .to = mskDateTo[row].digits(),
        .isFirstRow = isFirstRow,
        .fromAbove = isFirstRow ? std::string() : mskDateFrom[row - 1].digits(),
        .toAbove = isFirstRow ? std::string() : mskDateTo[row - 1].digits(),
        .state = program_.state};
}

void frmIHQ::lossStartLeft(int row) {
    MaskedBox& box = mskDateFrom[row];
    const std::string_view refusal = refusalOfLossStart(periodOf(row));
    if (refusal.empty()) return;
    if (refusal == "M207") { // the row above comes first, and the whole of this row waits for it
        box.setDigits("");
        mskDateTo[row].setDigits("");
        clearResults(row);
        program_.refuse(refusal, mskDateTo[row - 1]);
        return;
    }
    // The periods follow one another: the start that was typed tells where the period above ends.
    if (refusal == "M136") mskDateTo[row - 1].setDigits(dayBefore(box.digits()));
    box.setDigits("");
    program_.refuse(refusal, box);
}

void frmIHQ::lossEndLeft(int row) {
    MaskedBox& box = mskDateTo[row];
    const std::string_view refusal = refusalOfLossEnd(periodOf(row));
    if (refusal.empty()) return;
    box.setDigits("");
    program_.refuse(refusal, box);
}

void frmIHQ::resultLeft(int cell) {
    TextBox& box = txtMoney1[cell];
    if (box.text().empty()) return;
    SilentNotifier silent; // whatever is wrong with the amount, one message tells it here
    if (!ChkBoxNum(box.text(), silent)) {
        box.setText("");
        program_.refuse("M073", box);
        return;
    }
    const int row = cell / ihqCellsOfRow;
    if (mskDateFrom[row].digits().empty()) {
        clearResults(row);
        program_.refuse("M117", mskDateFrom[row]);
        return;
    }
    txtMoney1[cell ^ 1].setText(""); // a business has either a profit or a loss in a period
    box.setText(FormatBox(box.text()));
}

void frmIHQ::carriedLossLeft(TextBox& box) {
    if (box.text().empty()) return; // whether it may be empty is asked when the return is stored
    SilentNotifier silent;
    if (!ChkBoxNum(box.text(), silent) || readFigure(box.text()) < 0) {
        box.setText("");
        program_.refuse("M073", box);
        return;
    }
    if (hasNoPeriod()) {
        box.setText("");
        program_.refuse("M117", box);
        return;
    }
    box.setText(FormatBox(box.text()));
    const int row = rowWithoutResult();
    if (row < 0) return;
    // The amount stays: what is missing is in the table, and that is where the focus goes.
    program_.message("M145");
    program_.state.intError = 1;
    focusFirstOpenCell(row);
}

bool frmIHQ::hasNoPeriod() const {
    for (int row = 0; row < ihqLossRows; ++row) {
        if (!mskDateFrom[row].digits().empty()) return false;
    }
    return true;
}

int frmIHQ::rowWithoutResult() const {
    for (int row = 0; row < ihqLossRows; ++row) {
        bool hasResult = mskDateFrom[row].digits().empty();
        for (int cell = 0; cell < ihqCellsOfRow; ++cell)
            hasResult = hasResult || !txtMoney1[row * ihqCellsOfRow + cell].text().empty();
        if (!hasResult) return row;
    }
    return -1;
}

void frmIHQ::focusFirstOpenCell(int row) {
    for (int cell = 0; cell < ihqCellsOfRow; ++cell) {
        TextBox& box = txtMoney1[row * ihqCellsOfRow + cell];
        if (box.enabled()) {
            box.setFocus();
            return;
        }
    }
}

void frmIHQ::clearResults(int row) {
    for (int cell = 0; cell < ihqCellsOfRow; ++cell)
        txtMoney1[row * ihqCellsOfRow + cell].setText("");
}

// --- For the shell ---

void IHQ_FormToBox(Program& program) {
    if (auto* page = program.desk.find<frmIHQ>()) page->FormToBox();
}

} // namespace lodge
