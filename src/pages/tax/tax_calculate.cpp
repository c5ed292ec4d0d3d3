// Lines 3 to 6 of item 2: what is credited against the tax, and what is left to pay or overpaid.
#include "pages/tax/page2.h"
#include "values/money.h"

#include <algorithm>

namespace lodge {

namespace {

constexpr int firstCredit = 2; // txtMoney(2) to txtMoney(7) are line 3
constexpr int paidHalfYear = 5;
constexpr int halfRateTax = 6;

constexpr const char* nil = "0.00";

/// Statuses of earlier forms that keep the label of their rate beside a loss.
constexpr std::array<std::size_t, 3> statusesWithRateLabel = {12, 13, 44};

bool isNil(const std::string& figure) { return !figure.empty() && readFigure(figure) == 0; }

} // namespace

bool frmLodgePage2::TaxCalculate() {
    const CheckScratchRecord& scratch = state().PageChk;
    const bool good = checkEditedAmount();
    if (!good && scratch.SilentCheck != 1) return false;
    const bool isLine1 = scratch.CurrentLine == 0;
    if (isLine1 && isNil(txtMoney[0].text())) {
        clearForNilAmount();
    } else {
        openLine3ForAmount();
    }
    if (isLine1) {
        const bool loss = chkTaxPay[1].value();
        const bool hasCase = chkTaxCal[0].value() || chkTaxCal[1].value() || chkTaxCal[2].value();
        const bool keepsLabel = std::ranges::any_of(
            statusesWithRateLabel, [&](std::size_t box) { return state().strFldPage1[box] == "1"; });
        if (loss && !keepsLabel) lblTaxValue.setCaption("");
        if (!loss && !hasCase) showComputedTax(""); // the worksheet has its case a moment before line 2
    }
    computeBalance();
    computeEntry41();
    return good;
}

bool frmLodgePage2::checkEditedAmount() {
    TextBox& box = txtMoney[state().PageChk.CurrentLine];
    if (passesMoneyCheck(box.text(), program_)) {
        box.setText(formatBracketText(box.text()));
        return true;
    }
    box.setText("");
    box.setFocus();
    state().intError = 1;
    return false;
}

/// Nothing on line 1: no rate to choose. What line 3 holds stays, but for the tax at half the rate, which
/// needs its privilege.
void frmLodgePage2::clearForNilAmount() {
    for (const int i : {1, 2}) {
        chkTaxPay[i].setValue(false);
        chkTaxCal[i].setValue(false);
        chkTaxCal[i].setVisible(false);
    }
    txtMoney[0].setText(nil);
    lblMoney1.setCaption("");
    lblTaxChoose.setVisible(false);
    lblTaxValue.setCaption("");
    lblTaxValue.setVisible(false);
    if (txtMoney[paidHalfYear].text().empty()) txtMoney[paidHalfYear].setEnabled(true);
    if (!chkInvestType[0].value()) {
        txtMoney[halfRateTax].setText("");
        closeBox(txtMoney[halfRateTax]);
    }
}

void frmLodgePage2::openLine3ForAmount() {
    if (chkInvestType[0].value()) {
        openBox(txtMoney[paidHalfYear]);
        openBox(txtMoney[halfRateTax]);
    }
    lblTaxValue.setVisible(true);
}

/// The tax as a person sees it: of the typed box, or of the label; 0 when neither is shown.
double frmLodgePage2::taxOnPage() const {
    if (lblMoney1.visible()) return readFigure(lblMoney1.caption());
    if (txtMoney[1].visible() && txtMoney[1].enabled()) return readFigure(txtMoney[1].text());
    return 0;
}

void frmLodgePage2::computeBalance() {
    if (isNil(lblMoney1.caption())) {
        for (Label* label : {&lblMoney1, &lblMoney2[1], &lblMoney2[3]})
            label->setCaption(nil);
    }
    double credits = 0;
    bool anyCredit = false;
    for (int i = firstCredit; i < txtMoney.count(); ++i) {
        credits += readFigure(txtMoney[i].text());
        anyCredit = anyCredit || !txtMoney[i].text().empty();
    }
    lblMoney2[0].setCaption(anyCredit ? shownFigure(credits) : std::string());

    const double due = taxOnPage();
    const double balance = roundMoney(due - credits); // noise below a satang is no balance
    if (due == 0 && !anyCredit) {
        lblMoney2[1].setCaption("");
    } else {
        lblMoney2[1].setCaption(formatBracket(balance));
        if (!lblMoney1.visible() || !lblMoney1.caption().empty()) lblMoney1.setCaption(formatBracket(due));
    }
    chkTaxAdd4.setValue(balance > 0);
    chkTaxAdvance4.setValue(balance < 0);
    // Line 5, the surcharge, takes no part.
    chkTaxAdd6.setValue(chkTaxAdd4.value());
    chkTaxAdvance6.setValue(chkTaxAdvance4.value());
    lblMoney2[3].setCaption(lblMoney2[1].caption());
}

void frmLodgePage2::computeEntry41() {
    FieldArray& fields = state().strFldPage2;
    if (fields[33].empty()) {
        fields[41] = fields[40];
    } else if (!fields[40].empty()) {
        fields[41] = plainNumberText(roundMoney(readFigure(fields[33]) - readFigure(fields[40])));
    } else {
        fields[41] = fields[33];
    }
}

void frmLodgePage2::RateCaseShow() {
    tax().RateCaseText = lblTaxValue.caption().empty() ? "กรณีทั่วไป" : tax().nRateCode + "กรณีลดอัตราภาษี ";
}

} // namespace lodge
