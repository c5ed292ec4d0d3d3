#include "pages/loss/item11_popup.h"

#include "pages/fields/amounts.h"
#include "pages/loss/item11_table.h"
#include "values/money.h"
#include "values/text.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace lodge {

namespace {

// The cells of the exempt business come first.
constexpr int taxableCells = 2;

bool isBlank(const TextBox& box) { return trimBlanks(box.text()).empty(); }

bool exemptIsBlank(const frmLodgePage6_11Popup& popup) {
    return isBlank(popup.txtMoney1[0]) && isBlank(popup.txtMoney1[1]);
}

bool allAreBlank(const frmLodgePage6_11Popup& popup) {
    return exemptIsBlank(popup) && isBlank(popup.txtMoney1[2]) && isBlank(popup.txtMoney1[3]);
}

bool noBusinessIsChosen(const frmLodgePage6_11Popup& popup) {
    return !popup.Check1.value() && !popup.Check2.value();
}

bool aDateIsMissing(const frmLodgePage6_11Popup& popup) {
    return popup.mskDateFrom[0].digits().empty() || popup.mskDateTo[0].digits().empty();
}

bool datesAreEqual(const frmLodgePage6_11Popup& popup) {
    return popup.mskDateFrom[0].digits() == popup.mskDateTo[0].digits();
}

bool blockIsFull(const frmLodgePage6_11Popup& popup) {
    return popup.Check1.value() ? !nextExemptRow(popup.state()) : !nextTaxableRow(popup.state());
}

bool exemptPeriodWithoutExemptResult(const frmLodgePage6_11Popup& popup) {
    return popup.Check1.value() && exemptIsBlank(popup);
}

struct EntryRule {
    std::string_view code;
    bool (*refuses)(const frmLodgePage6_11Popup& popup);
};

// The last row says again what the first says, for an entry of neither business that came so far.
constexpr std::array<EntryRule, 7> entryRules = {{
    {"M534.1", noBusinessIsChosen},
    {"M534.2", aDateIsMissing},
    {"M534.3", allAreBlank},
    {"M542", datesAreEqual},
    {"M533", blockIsFull},
    {"M534", exemptPeriodWithoutExemptResult},
    {"M535", noBusinessIsChosen},
}};

/// A day, month and year of page 1 as a sentence has them; the day is a number there.
std::string dayInWords(const FieldArray& page1, std::size_t day) {
    return plainNumberText(readNumber(page1[day])) + " " + page1[day + 1] + " พ.ศ. " + page1[day + 2];
}

} // namespace

frmLodgePage6_11Popup::frmLodgePage6_11Popup(Program& program)
    : Form(program.desk, formName), program_(program) {
    Check1.setCaption("ได้รับยกเว้นภาษีเงินได้");
    Check2.setCaption("ต้องเสียภาษีเงินได้");
    cmdOK01.setCaption("เพิ่มรายการ");
    cmdCan01.setCaption("ยกเลิก");
    wireControls();
}

void frmLodgePage6_11Popup::wireControls() {
    Check1.onClick = [this] { Check1_Click(); };
    Check2.onClick = [this] { Check2_Click(); };
    mskDateFrom[0].onLostFocus = [this] { startLeft(); };
    mskDateTo[0].onGotFocus = [this] { endEntered(); };
    mskDateTo[0].onLostFocus = [this] { endLeft(); };
    txtMoney1.each([this](TextBox& box, int cell) {
        box.setTextKind(TextKind::Amount);
        box.onGotFocus = [&box] { showPlainDigits(box); };
        box.onLostFocus = [this, cell] { amountLeft(cell); };
    });
    cmdOK01.onClick = [this] { cmdOK01_Click(); };
    cmdCan01.onClick = [this] { desk().unload(formName); };
}

void frmLodgePage6_11Popup::Form_Load() {
    closeBox(mskDateFrom[0]);
    closeBox(mskDateTo[0]);
    txtMoney1.each([](TextBox& box, int /*cell*/) { closeBox(box); });
    askForNextPeriod();
}

void frmLodgePage6_11Popup::Form_Unload() {
    program_.shell().EnableTools(true);
    if (auto* page = desk().find<frmLodgePage6_11>()) page->setEnabled(true);
}

void frmLodgePage6_11Popup::askForNextPeriod() {
    const FieldArray& page1 = program_.state.strFldPage1;
    const int year = program_.state.intItem11Count + 1;
    Label2.setCaption(
        "กรุณาบันทึกข้อมูลรอบระยะเวลาบัญชี ปีที่ " + std::to_string(year) + " ก่อนปีปัจจุบันที่ท่านกำลังทำข้อมูลยื่นแบบ ");
    setCaption(Label2.caption());
    Label3.setCaption("รอบระยะเวลาบัญชีตั้งแต่วันที่ " + dayInWords(page1, 1) + " ถึงวันที่ " + dayInWords(page1, 4));
    mskDateTo[0].setDigits(nextPeriodEnd(program_.state));
}

// --- The kind of business ---

void frmLodgePage6_11Popup::Check1_Click() {
    if (!Check1.value()) {
        closeWithoutChoice();
        return;
    }
    openBox(mskDateFrom[0]);
    txtMoney1.each([](TextBox& box, int /*cell*/) { openBox(box); });
    Check2.setValue(false);
}

void frmLodgePage6_11Popup::Check2_Click() {
    if (!Check2.value()) {
        closeWithoutChoice();
        return;
    }
    openBox(mskDateFrom[0]);
    txtMoney1.each([](TextBox& box, int cell) {
        if (cell >= taxableCells) {
            openBox(box);
        } else {
            box.setText("");
            closeBox(box);
        }
    });
    Check1.setValue(false);
}

void frmLodgePage6_11Popup::closeWithoutChoice() {
    if (Check1.value() || Check2.value()) return;
    mskDateFrom[0].setDigits("");
    closeBox(mskDateFrom[0]);
    txtMoney1.each([](TextBox& box, int /*cell*/) {
        box.setText("");
        closeBox(box);
    });
}

// --- Dates and amounts ---

NewPeriod frmLodgePage6_11Popup::typedPeriod() const {
    return {.start = mskDateFrom[0].digits(), .end = mskDateTo[0].digits(), .state = program_.state};
}

void frmLodgePage6_11Popup::refuse(const NewPeriodRule& rule, MaskedBox& left) {
    MaskedBox& wrong = rule.clearsEnd ? mskDateTo[0] : left;
    wrong.setDigits("");
    program_.refuse(rule.code, left);
}

void frmLodgePage6_11Popup::startLeft() {
    if (mskDateFrom[0].digits().empty()) return;
    if (const NewPeriodRule* rule = brokenByStart(typedPeriod())) refuse(*rule, mskDateFrom[0]);
}

/// The end follows from the chain and is closed for typing; what follows holds for one that is opened.
void frmLodgePage6_11Popup::endEntered() {
    if (mskDateFrom[0].digits().empty()) {
        program_.refuse("M536", mskDateFrom[0]);
    } else {
        mskDateTo[0].setDigits(nextPeriodEnd(program_.state));
    }
}

void frmLodgePage6_11Popup::endLeft() {
    if (mskDateFrom[0].hasFocus()) return; // sent there for the start that is missing
    if (const NewPeriodRule* rule = brokenByEnd(typedPeriod())) refuse(*rule, mskDateTo[0]);
}

void frmLodgePage6_11Popup::amountLeft(int cell) {
    TextBox& box = txtMoney1[cell];
    if (box.text().empty()) return;
    if (ChkMoney(box.text(), program_) != "1") {
        box.setText("");
        program_.state.intError = 1;
        box.setFocus();
        return;
    }
    txtMoney1[cell ^ 1].setText(""); // either a profit or a loss
    box.setText(formatMoneyText(box.text()));
}

// --- Adding ---

void frmLodgePage6_11Popup::cmdOK01_Click() {
    const auto rule =
        std::ranges::find_if(entryRules, [&](const EntryRule& other) { return other.refuses(*this); });
    if (rule != entryRules.end()) {
        program_.message(rule->code);
        program_.state.intError = 1;
        return;
    }
    if (auto* page = desk().find<frmLodgePage6_11>()) addEntry(*page);
}

void frmLodgePage6_11Popup::addEntry(frmLodgePage6_11& page) {
    ReturnState& state = program_.state;
    const bool isExempt = Check1.value();
    const auto row = isExempt ? nextExemptRow(state) : nextTaxableRow(state);
    if (!row) return;
    std::vector<std::string> results;
    for (int cell = isExempt ? 0 : taxableCells; cell < txtMoney1.count(); ++cell)
        results.push_back(txtMoney1[cell].text());
    page.takePeriod(*row, mskDateFrom[0], mskDateTo[0], results);
    logEntry(state, *row, mskDateFrom[0].text(), mskDateTo[0].text());
    ClearEntry();
    page.ShowButton();
    askForNextPeriod();
}

void frmLodgePage6_11Popup::ClearEntry() {
    mskDateFrom[0].setDigits("");
    mskDateTo[0].setDigits("");
    txtMoney1.each([](TextBox& box, int /*cell*/) { box.setText(""); });
}

} // namespace lodge
