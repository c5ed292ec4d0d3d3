// The side box of item 3: with figures in both columns the law leaves it to the filer to state line 22, as
// profit or as loss.
#include "pages/schedules/item3_page.h"
#include "values/money.h"

#include <cmath>

namespace lodge {

namespace {

constexpr const char* sideBoxAdvice = "กรุณาบันทึก กำไรสุทธิที่ต้องเสียภาษี หรือ ขาดทุนสุทธิ ตามหลักเกณฑ์ วิธีการ "
                                      "และเงื่อนไขที่อธิบดีประกาศกำหนด";

} // namespace

bool frmLodgePage3_3::hasBothColumns() const {
    return !columns.cell(Column::Exempt, item3Line(21)).text().empty()
           && !columns.cell(Column::Taxable, item3Line(21)).text().empty();
}

std::array<Control*, 3> frmLodgePage3_3::sideBox() { return {&chkProfitX, &chkLoseX, &txtBOI}; }

void frmLodgePage3_3::offerSideBox() {
    for (Control* control : sideBox()) {
        control->setVisible(true);
        control->setEnabled(true);
    }
}

void frmLodgePage3_3::withdrawSideBox() {
    chkProfitX.setValue(false);
    chkLoseX.setValue(false);
    txtBOI.setText("");
    for (Control* control : sideBox()) {
        control->setVisible(false);
        control->setEnabled(false);
    }
    program_.state.modNew3.Clear();
}

void frmLodgePage3_3::copySideTicks() {
    chkProfit20.setValue(chkProfitX.value());
    chkLose20.setValue(chkLoseX.value());
}

void frmLodgePage3_3::sideTickClicked(CheckBox& clicked, CheckBox& other) {
    const double amount = readFigure(txtBOI.text());
    if (clicked.value()) other.setValue(false);
    if (amount == 0 || (!chkProfitX.value() && !chkLoseX.value())) {
        txtBOI.setText("");
    } else {
        txtBOI.setText(&clicked == &chkLoseX ? shownAsLoss(amount) : formatMoney(std::abs(amount)));
    }
    lblTotMoney33.setCaption(txtBOI.text());
    copySideTicks();
}

void frmLodgePage3_3::txtBOI_LostFocus() {
    if (!passesMoneyCheck(txtBOI.text(), program_)) {
        txtBOI.setText("");
        program_.state.intError = 1;
        txtBOI.setFocus();
    } else if (txtBOI.text().empty()) {
        chkProfitX.setValue(false);
        chkLoseX.setValue(false);
        copySideTicks();
    } else {
        takeStatedAmount(readFigure(txtBOI.text()));
    }
    lblTotMoney33.setCaption(txtBOI.text());
}

void frmLodgePage3_3::takeStatedAmount(double amount) {
    if (amount == 0) {
        chkProfitX.setValue(false); // the clicks of the two empty the box
        chkLoseX.setValue(false);
        copySideTicks();
        txtBOI.setText(formatMoney(0));
        return;
    }
    // The tick gives the sign: a minus typed without the tick of a loss is taken as a slip.
    txtBOI.setText(chkLoseX.value() ? shownAsLoss(amount) : formatMoney(std::abs(amount)));
    if (!program_.state.BoxWarned) {
        program_.state.BoxWarned = true;
        program_.notify(sideBoxAdvice);
    }
}

} // namespace lodge
