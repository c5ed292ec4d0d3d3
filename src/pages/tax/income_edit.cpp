#include "pages/tax/income_edit.h"

#include "pages/fields/amounts.h"

#include <array>

namespace lodge {

namespace {

/// In the order of PayStatus, "1" to "3".
constexpr std::array<const char*, 3> choices = {"กำไร", "ขาดทุน", "ก่อนหัก"};

} // namespace

frm_incomeEdit::frm_incomeEdit(Program& program) : Form(program.desk, formName), program_(program) {
    lblIncome.setCaption("จำนวนเงิน");
    lblTax.setCaption("ภาษีที่คำนวณได้");
    txtIncome.setTextKind(TextKind::Amount);
    txtTax.setTextKind(TextKind::Amount);
}

void frm_incomeEdit::Form_Load() {
    txtIncome.setText(program_.state.strFldPage2[32]);
    txtTax.setText(program_.state.DataCtrl_P2.TaxValue);
    Combo1.setItems({choices.begin(), choices.end()});
}

void frm_incomeEdit::Form_MouseDown(const MouseGesture& gesture) {
    if (gesture.button != MouseButton::Left || !gesture.shift || !gesture.ctrl || gesture.alt) return;
    program_.state.modEdit = {.EditActive = true,
        .EditStatus = std::to_string(Combo1.selected() + 1), // "0" without a choice
        .EditIncome = plainAmount(txtIncome.text()),
        .EditTax = plainAmount(txtTax.text())};
    program_.notify("value hacked >__< !!");
}

} // namespace lodge
