// The amount boxes of item 2 and the labels that other pages live on.
#include "pages/tax/page2.h"
#include "pages/tax/page2_fields.h"
#include "values/money.h"
#include "values/text.h"

#include <algorithm>
#include <cmath>

namespace lodge {

namespace {

constexpr const char* nil = "0.00";
constexpr const char* lossStatus = "2";

/// Longest amounts without separators: a loss has its brackets.
constexpr std::size_t longestLoss = 18;
constexpr std::size_t longestReceipts = 16;

} // namespace

void frmLodgePage2::wireAmountBoxes() {
    txtMoney.each([this](TextBox& box, int i) {
        box.onClick = [this] { txtMoney_Click(); };
        box.onGotFocus = [&box] { showPlainDigits(box); };
        box.onChange = [this, i] { txtMoney_Change(i); };
        box.onLostFocus = [this, i] { txtMoney_LostFocus(i); };
    });
    lblMoney1.onChange = [this] { lblMoney1_Change(); };
    lblMoney1.onMouseDown = [this](MousePress& press) { lblMoney1_MouseDown(press.gesture); };
    lblMoney2[3].onChange = [this] { lblMoney2_Change(); };
}

/// Item 3 comes first: a click into an amount before it is complete says so.
void frmLodgePage2::txtMoney_Click() {
    const std::string_view message = whatItem3Lacks();
    if (message.empty()) return;
    txtMoney[2].setFocus();
    program_.message(message);
}

void frmLodgePage2::txtMoney_Change(int i) {
    if (i == 0) {
        const std::string& amount = txtMoney[0].text();
        if (amount == "0" || amount == nil) {
            lblMoney1.setCaption(nil);
            txtMoney[1].setText(nil);
        } else if (trimBlanks(amount).empty()) {
            lblMoney1.setCaption("");
            txtMoney[1].setText("");
        }
        lblMoney.setCaption(amount);
    }
    txtMoney_Show.setCaption(txtMoney[1].text());
}

void frmLodgePage2::txtMoney_LostFocus(int i) {
    if (i == 1 && readFigure(txtMoney[1].text()) != 0) program_.message("M081"); // the value stands
    state().PageChk.SilentCheck = 0;
    state().PageChk.CurrentLine = static_cast<std::int16_t>(i);
    if (!TaxCalculate()) return;
    if (i != 0) return;
    // The green sheet gives the tax of a profit alone: a bank, too, types its loss or its receipts.
    const bool sheetGivesTax = greenRequired_ && Cmd_Deposit.enabled() && chkTaxPay[0].value();
    if (!sheetGivesTax) {
        taxOfLine1();
        computeBalance(); // the balance follows the tax that line 1 has just given
    }
    const std::string& amount = txtMoney[0].text();
    const std::size_t length = textLength(amount) - static_cast<std::size_t>(std::ranges::count(amount, ','));
    if ((chkTaxPay[1].value() && length > longestLoss)
        || (chkTaxPay[2].value() && length > longestReceipts)) {
        program_.message("M069");
        txtMoney[0].setText("");
    }
}

/// A typed line 1 gives its tax at once: by the rate chosen, or as receipts.
void frmLodgePage2::taxOfLine1() {
    if (chkTaxPay[1].value()) tax().Select_2_1.reset();
    TextBox& box = txtMoney[0];
    const double typed = readFigure(box.text());
    if (tax().PayStatus == lossStatus) {
        if (!box.text().empty()) box.setText(shownAsLoss(typed));
    } else if (isExemptStatus(state().DataCtrl_P1.IndcBusType)) {
        box.setText(nil);
    } else if (!box.text().empty()) {
        box.setText(formatMoney(std::abs(typed)));
    }
    if (box.text().empty()) return; // nothing stated, nothing owed: not even nil
    const double amount = MoneyTextToDouble(box.text());
    if (tax().Select_2_1 == receiptsTaxCase) {
        txtNTax.setText(DoubleToMoneyText(CalcTaxByRate(receiptsCode, amount)));
    } else {
        txtNTax.setText(formatMoney(std::max(CalcTaxByRate(tax().nRateCode, amount), 0.0)));
    }
    showComputedTax(txtNTax.text());
}

void frmLodgePage2::lblMoney1_Change() {
    if (state().intPageCur == pageCode) tax().TaxValue = plainAmount(lblMoney1.caption());
}

/// A tool of the program's makers, behind all three keys: the tax by hand.
void frmLodgePage2::lblMoney1_MouseDown(const MouseGesture& gesture) {
    if (gesture.button != MouseButton::Right || !gesture.shift || !gesture.ctrl || !gesture.alt) return;
    const auto answer = program_.ask({.prompt = "Edit Tax", .title = "แก้ไขภาษี"});
    if (answer) lblMoney1.setCaption(plainNumberText(readFigure(*answer)));
}

/// Page 1 shows what is left to pay or overpaid.
void frmLodgePage2::lblMoney2_Change() {
    if (lblMoney2[3].caption().empty()) return;
    state().strFldPage2[43] = lblMoney2[3].caption();
    handToPage1();
}

void frmLodgePage2::handToPage1() {
    if (chkTaxAdd6.value()) state().strFldPage1[29] = state().strFldPage2[43];
    if (chkTaxAdvance6.value()) state().strFldPage1[30] = state().strFldPage2[43];
}

} // namespace lodge
