#include "pages/tax/page2.h"

#include "pages/fields/ticks.h"
#include "pages/tax/bank_code.h"
#include "pages/tax/page2_normalise.h"

#include <algorithm>

namespace lodge {

namespace {

constexpr std::array<std::string_view, 4> investTypeCaptions = {
    "(1) ได้รับการลดหย่อนอัตราภาษีเงินได้ให้ร้อยละ 50 ของอัตราปกติ",
    "(2) ได้รับยกเว้นภาษีเงินได้ทั้งหมด",
    "(3) ได้รับยกเว้นภาษีเงินได้บางส่วน",
    "(4) อื่น ๆ (ระบุ)",
};

constexpr std::array<std::string_view, 3> taxPayCaptions = {
    "(1) กำไรสุทธิที่ต้องเสียภาษี",
    "(2) ขาดทุนสุทธิ",
    "(3) รายรับก่อนหักรายจ่าย (กรณีเสียภาษีจากยอดรายรับ)",
};

constexpr std::array<std::string_view, 3> taxCalCaptions = {
    "(1) กรณีทั่วไป",
    "(2) กรณีลดอัตราภาษี",
    "(3) กรณีได้รับอนุมัติจากกรมภาษีกลางให้เสียภาษีจากยอดรายรับ",
};

std::string text(std::string_view view) { return std::string(view); }

} // namespace

frmLodgePage2::frmLodgePage2(Program& program)
    : PageForm(program.desk, formName, "รายการที่ 1 และรายการที่ 2"), program_(program) {
    captionControls();
    placeControls();
    wireControls();
}

void frmLodgePage2::captionControls() {
    captionItem1();
    captionItem2();
}

void frmLodgePage2::captionItem1() {
    ChkNewInvestment01.setCaption("กิจการที่ได้รับการส่งเสริมการลงทุน");
    ChkNewInvestment01.setEnabled(false); // the start screen asks for it
    txtInvestID.setMaxLength(15);
    txtInvestOther.setMaxLength(50);
    txtOther.setMaxLength(150);
    cmdSISIC2.setCaption("ค้นหา");
    cmdCISIC2.setCaption("ล้าง");
    chkInvestType.each(
        [](CheckBox& box, int i) { box.setCaption(text(investTypeCaptions[static_cast<std::size_t>(i)])); });
    txtYearNo.each([](TextBox& box, int) {
        box.setMaxLength(3);
        box.setTextKind(TextKind::Number);
    });
}

void frmLodgePage2::captionItem2() {
    chkTaxPay.each(
        [](CheckBox& box, int i) { box.setCaption(text(taxPayCaptions[static_cast<std::size_t>(i)])); });
    chkTaxCal.each(
        [](CheckBox& box, int i) { box.setCaption(text(taxCalCaptions[static_cast<std::size_t>(i)])); });
    ChkBox_NewAtt.each([](CheckBox& box, int row) {
        box.setCaption(text(worksheetRows()[static_cast<std::size_t>(row)].caption));
        box.setTag("20|1.1|1"); // the same on every row; the mirrored boxes carry the true one
        box.setVisible(false);
    });
    lblBankRate.setCaption("จากต่างประเทศเพื่อให้กู้ยืมในต่างประเทศ  อัตราภาษี 10%");
    lblBankRate.setVisible(false);
    txtIncome.each([](TextBox& box, int) {
        box.setMaxLength(20);
        box.setTextKind(TextKind::Amount);
        closeBox(box);
    });
    ChkBox_NewRate.each([](CheckBox& box, int i) {
        const RateBox& rate = rateBoxes()[static_cast<std::size_t>(i)];
        box.setCaption(text(rate.caption));
        box.setTag(rate.tag());
        box.setEnabled(false);
        box.setVisible(i < mirroredRateBoxes);
    });
    const std::array<CheckBox*, 3> singles = {&ChkBox_NewRate17, &ChkBox_NewRate18, &ChkBox_NewRate19};
    for (std::size_t i = 0; i < singles.size(); ++i) {
        singles[i]->setCaption(text(singleRateBoxes()[i].caption));
        singles[i]->setTag(singleRateBoxes()[i].tag());
        singles[i]->setEnabled(false);
    }
    Cmd_Deposit.setCaption("คลิกปุ่มนี้ เพื่อบันทึกกำไรสุทธิที่ต้องเสียภาษี");
    cmd_CHKRate1718.setCaption("CHK_Rate 1.7/1.8");
    lblTaxChoose.setCaption("เลือกอัตราภาษี");
    chkTaxChoose[0].setCaption("ข้อ 1.1");
    chkTaxChoose[1].setCaption("ข้อ 1.2");
    chkTaxChoose[2].setCaption("ข้อ 1.3");
    cmdTaxRateOK.setCaption("ตกลง");
    cmdTaxRateExit.setCaption("ออก");
    txtMoney.each([](TextBox& box, int) {
        box.setMaxLength(16);
        box.setTextKind(TextKind::Amount);
    });
    chkTaxAdd4.setCaption("(1) ชำระเพิ่มเติม");
    chkTaxAdvance4.setCaption("(2) ชำระไว้เกิน");
    chkTaxAdd6.setCaption("(1) ชำระเพิ่มเติม");
    chkTaxAdvance6.setCaption("(2) ชำระไว้เกิน");
    for (CheckBox* computed : {&chkTaxAdd4, &chkTaxAdvance4, &chkTaxAdd6, &chkTaxAdvance6}) {
        computed->setEnabled(false);
    }
    txtNTax.setTag("hide");
    for (Control* hidden : {static_cast<Control*>(&txtNTax), static_cast<Control*>(&cmd_CHKRate1718),
             static_cast<Control*>(&lblTaxChoose), static_cast<Control*>(&txtMoney[1])}) {
        hidden->setVisible(false);
    }
}

void frmLodgePage2::placeControls() {
    for (Control* control : controls()) {
        if (control == &picTaxExcept) continue;
        if (control == &txtMoney_Show) break; // item 2 begins here
        control->putIn(picTaxExcept);
    }
    ChkBox_NewRate.each([this](CheckBox& box, int) { box.putIn(Frame1); });
    for (CheckBox* box : {&ChkBox_NewRate17, &ChkBox_NewRate18, &ChkBox_NewRate19})
        box->putIn(Frame1);
    chkTaxChoose.each([this](CheckBox& box, int) { box.putIn(picTaxRate); });
    cmdTaxRateOK.putIn(picTaxRate);
    cmdTaxRateExit.putIn(picTaxRate);
}

void frmLodgePage2::wireControls() {
    wireInvestmentBlock();
    wireWorksheet();
    wireRateBoxes();
    wireRatePanel();
    wireAmountBoxes();
    chkTaxPay.each([this](CheckBox& box, int i) { onTick(box, [this, i] { chkTaxPay_Click(i); }); });
}

void frmLodgePage2::Form_Load() {
    ReturnState& returned = state();
    ChkNewInvestment01.setValue(returned.ChkInvestmentFlag1 != 0);
    InvestBlockEnable(returned.intInvestment == 1);
    picTaxRate.setVisible(false);
    txtMoney[7].setText("");
    returned.strFldPage1[9] == "1" ? openBox(txtMoney[7]) : closeBox(txtMoney[7]); // an additional filing
    txtMoney[6].setText("");
    closeBox(txtMoney[6]);
    returned.intPageCur = pageCode;
    returned.blnNeedPage2 = false;
    Form_Activate();
}

void frmLodgePage2::Form_Activate() {
    Timer1_rate.setEnabled(true);
    greenRequired_ = hasBankCode() || state().DataCtrl_P1.StatusA > 1;
    // With the zone status the green sheet states line 1, until no profit is declared.
    const bool profitOrNothing = chkTaxPay[0].value() || (!chkTaxPay[1].value() && !chkTaxPay[2].value());
    txtMoney[0].setLocked(state().strFldPage1[44] == "1" && profitOrNothing);
    chkTaxCal[1].setEnabled(true);
    Frame1.setVisible(true);
    enableRateBoxes();
    if (freshlyFilled_) finishShow();
}

/// A rate is open when the company status allows it; with more than one status ticked none is.
void frmLodgePage2::enableRateBoxes() {
    const CompanyStatusRecord& status = state().DataCtrl_P1;
    const auto isOpen = [&](const CheckBox& box) {
        return status.StatusA <= 1
               && std::ranges::find(status.RateList, box.caption()) != status.RateList.end();
    };
    ChkBox_NewRate.each([&](CheckBox& box, int) { box.setEnabled(isOpen(box)); });
    for (CheckBox* box : {&ChkBox_NewRate17, &ChkBox_NewRate18, &ChkBox_NewRate19})
        box->setEnabled(isOpen(*box));
}

void frmLodgePage2::Form_Unload() {
    Timer1_rate.setEnabled(false);
    unsigned_.restore();
    tax().Line4Amount = plainAmount(lblMoney2[1].caption());
    tax().Line6Amount = plainAmount(lblMoney2[3].caption());
    tax().TaxValue = plainAmount(lblMoney1.caption());
    state().strFldPage2[27] = chkTaxCal[2].reading();
    // The entry of the tax takes the income: the store of the return puts TaxValue in its place.
    state().strFldPage2[33] = plainAmount(txtMoney[0].text());
    tax().PayStatus = payStatusOnPage();
}

/// "1" profit, "2" loss, "3" receipts, "0" none.
std::string frmLodgePage2::payStatusOnPage() const {
    for (int i = 0; i < chkTaxPay.count(); ++i) {
        if (chkTaxPay[i].value()) return std::to_string(i + 1);
    }
    return std::to_string(0);
}

bool frmLodgePage2::hasBankCode() const { return lodge::hasBankCode(state()); }

std::string_view frmLodgePage2::whatItem3Lacks() const {
    const FieldArray& item3 = state().strFldPage3_3;
    const bool bothColumns = !item3[19].empty() && !item3[39].empty();
    if (item3[59].empty() || item3[60].empty()) return bothColumns ? "M529" : "M523";
    return bothColumns && !state().BoxProfit && !state().BoxLoss ? "M530" : "";
}

void P2_ArrayToControls(Program& program) {
    if (auto* page = program.desk.find<frmLodgePage2>()) {
        normalisePage2(program.state);
        page->P2_ArrayToControls();
    }
}

void P2_CheckFields(Program& program) {
    if (auto* page = program.desk.find<frmLodgePage2>()) page->P2_CheckFields();
}

void P2_ControlsToArray(Program& program) {
    if (auto* page = program.desk.find<frmLodgePage2>()) page->P2_ControlsToArray();
}

} // namespace lodge
