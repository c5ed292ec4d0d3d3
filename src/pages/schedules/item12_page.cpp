#include "pages/schedules/item12_page.h"

#include "pages/schedules/figures.h"
#include "pages/schedules/item12_checks.h"
#include "values/money.h"

#include <array>
#include <stdexcept>

namespace lodge {

namespace {

struct AmountField {
    std::size_t entry;
    std::string_view control;
};

constexpr std::array<AmountField, 23> amountFields = {{
    {0, "txtMoney2(0)"},
    {1, "txtMoney2(1)"},
    {2, "txtMoney2(2)"},
    {3, "txtMoney2(3)"},
    {4, "txtMoney2(4)"},
    {5, "txtMoney2(5)"},
    {6, "txtMoney2(6)"},
    {7, "txtMoney2(7)"},
    {8, "txtMoney2(8)"},
    {9, "lblSumMoney2"},
    {10, "txtMoney3(0)"},
    {11, "txtMoney3(1)"},
    {12, "txtMoney3(2)"},
    {13, "txtMoney3(3)"},
    {14, "txtMoney3(4)"},
    {15, "txtMoney3(5)"},
    {16, "lblSumMoney3"},
    {17, "txtMoney4(0)"},
    {18, "txtMoney4(1)"},
    {19, "txtMoney4(2)"},
    {20, "txtMoney4(3)"},
    {21, "lblSumMoney4"},
    {22, "lblSumMoney34"},
}};
constexpr std::size_t profitEntry = 23;
constexpr std::size_t lossEntry = 24;

Control& figure(const Form& form, const AmountField& field) {
    Control* control = form.find(field.control);
    if (control == nullptr) throw std::logic_error(form.name() + " has no " + std::string(field.control));
    return *control;
}

std::string sumOf(ControlArray<TextBox>& boxes) {
    FigureSum sum;
    boxes.each([&](const TextBox& box, int /*index*/) { sum.add(box.text()); });
    return sum.text();
}

} // namespace

frmLodgePage7_12::frmLodgePage7_12(Program& program) : PageForm(program.desk, formName), program_(program) {
    for (ControlArray<TextBox>* group : {&txtMoney2, &txtMoney3, &txtMoney4})
        group->each([this](TextBox& box, int /*index*/) { wire(box); });
    chkProfit.setCaption("กำไร");
    chkLose.setCaption("ขาดทุน");
    chkProfit.onClick = [this] { resultKindClicked(chkProfit, chkLose); };
    chkLose.onClick = [this] { resultKindClicked(chkLose, chkProfit); };
}

void frmLodgePage7_12::wire(TextBox& box) {
    box.setTextKind(TextKind::Amount);
    box.onGotFocus = [&box] { showPlainDigits(box); };
    box.onLostFocus = [this, &box] {
        if (!MoneyChk(box)) {
            box.setFocus();
        } else if (&box == &txtMoney4[0] || &box == &txtMoney4[1]) {
            chkRegisFund(box);
        }
    };
}

void frmLodgePage7_12::Form_Load() {
    program_.state.intPageCur = pageCode;
    if (!chkProfit.value() && !chkLose.value()) closeBox(result());
}

void frmLodgePage7_12::Form_Unload() { unsigned_.restore(); }

void frmLodgePage7_12::ArrayToVar() {
    unsigned_.restore(); // a page that is filled again begins from the signed amounts
    FieldArray& fields = program_.state.strFldPage7_12;
    // The ticks come first: taking one away empties the result and recomputes the sums.
    chkProfit.setValue(readNumber(fields[profitEntry]) == 1);
    chkLose.setValue(readNumber(fields[lossEntry]) == 1);
    for (const AmountField& field : amountFields)
        showFigure(figure(*this, field), unsigned_.show(fields[field.entry]));
}

void frmLodgePage7_12::DataToArray() {
    unsigned_.forget();
    FieldArray& fields = program_.state.strFldPage7_12;
    for (const AmountField& field : amountFields)
        fields[field.entry] = plainAmount(figure(*this, field).reading());
    fields[profitEntry] = chkProfit.reading();
    fields[lossEntry] = chkLose.reading();
}

void frmLodgePage7_12::PageChk() {
    for (ControlArray<TextBox>* group : {&txtMoney2, &txtMoney3, &txtMoney4}) {
        for (int i = 0; i < group->count(); ++i) {
            showPlainDigits((*group)[i]);
            if (!MoneyChk((*group)[i])) return;
        }
    }
}

/// Shows the cell as an amount and recomputes the sums. False, with the cell emptied, when it is none.
bool frmLodgePage7_12::MoneyChk(TextBox& box) {
    const bool accepted = passesMoneyCheck(box.text(), program_);
    if (!accepted) {
        box.setText("");
        program_.state.intError = 1;
    }
    box.setText(formatBracketText(box.text()));
    showSums();
    return accepted;
}

void frmLodgePage7_12::chkRegisFund(TextBox& left) {
    const CapitalEdit edit{.leavesRegistered = &left == &txtMoney4[0],
        .registered = txtMoney4[0].text(),
        .paidUp = txtMoney4[1].text()};
    if (const char* message = capitalRefusal(edit)) {
        program_.notify(message);
        program_.state.intError = 1;
        left.setFocus();
    }
}

/// Only a result that is told to be a profit or a loss can be typed; the other kind begins with an empty
/// line.
void frmLodgePage7_12::resultKindClicked(CheckBox& clicked, CheckBox& other) {
    if (clicked.value()) {
        other.setValue(false);
        openBox(result());
        result().setFocus();
    } else {
        result().setText("");
        closeBox(result());
        showSums();
    }
}

void frmLodgePage7_12::showSums() {
    lblSumMoney2.setCaption(sumOf(txtMoney2));
    lblSumMoney3.setCaption(sumOf(txtMoney3));
    FigureSum equity;
    for (int line = 0; line < resultLine; ++line)
        equity.add(txtMoney4[line].text());
    if (chkProfit.value()) equity.add(result().text());
    if (chkLose.value()) equity.add(result().text(), -1);
    lblSumMoney4.setCaption(equity.text());
    FigureSum both;
    both.add(lblSumMoney3.caption());
    both.add(lblSumMoney4.caption());
    lblSumMoney34.setCaption(both.text());
}

void P7_12_ArrayToVar(Program& program) {
    if (auto* page = program.desk.find<frmLodgePage7_12>()) page->ArrayToVar();
}

void P7_12_DataToArray(Program& program) {
    if (auto* page = program.desk.find<frmLodgePage7_12>()) page->DataToArray();
}

void P7_12_PageChk(Program& program) {
    if (auto* page = program.desk.find<frmLodgePage7_12>()) page->PageChk();
}

} // namespace lodge
