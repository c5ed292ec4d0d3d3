// Line 1 of item 2: profit, loss or receipts. The choice decides which rows of the worksheet are offered and
// whether the amount is typed or comes from the worksheet.
#include "pages/tax/green_sheet.h"
#include "pages/tax/page2.h"
#include "values/money.h"

#include <algorithm>
#include <cmath>

namespace lodge {

namespace {

constexpr int profit = 0;
constexpr int loss = 1;
constexpr int receipts = 2;

constexpr const char* nil = "0.00";

/// Statuses that get no computed case at all.
constexpr std::array<std::string_view, 3> statusesWithoutCase = {"14", "9", "12"};
/// Statuses for which the green sheet leaves line 1 open at nil.
constexpr std::array<std::string_view, 5> statusesWithNilTax = {"14", "9", "16", "17", "19"};
/// Foreign companies and joint ventures: their general rate stands even beside the zone's.
constexpr std::array<std::string_view, 4> statusesOfGeneralRate = {"4", "5", "6", "7"};

template <typename Set>
bool isOneOf(const Set& set, std::string_view status) {
    return std::ranges::find(set, status) != set.end();
}

} // namespace

void frmLodgePage2::chkTaxPay_Click(int i) {
    if (takingBack_) return;
    const bool ticked = chkTaxPay[i].value();
    if (incomesAreEmpty()) lbIncomeSum.setCaption("");
    if (taxesAreEmpty()) lbSumTotal.setCaption("");
    if (ticked && !filling_ && refuseTick(i)) return;

    openLine1Amount(i, ticked);
    if (i == profit) ticked ? offerRows() : hideWorksheetRows();
    if (i == receipts && !ticked) {
        chkTaxCal[2].setVisible(false);
        chkTaxCal[2].setValue(false);
    }
    keepPayStatus(i, ticked);
    keepProfitTick(i);
    if (firstTick_) firstTickAfterUntick(i);
    if (!chkTaxPay[profit].value()) {
        txtMoney[0].setLocked(false);
        Cmd_Deposit.setVisible(false);
    }
    if (ticked) makeSingleChoice(i);
    placeTaxBox();
    if (chkTaxPay[loss].value()) showLossLine();
    if (chkTaxPay[profit].value()) showProfitLine();
    if (ticked && i != receipts) {
        for (std::string* line :
            {&tax().Line4Status, &tax().Line4Amount, &tax().Line6Status, &tax().Line6Amount}) {
            line->clear();
        }
    }
    if (chkTaxPay[receipts].value()) showReceiptsLine();
    if (i == profit && !ticked && !inSingleChoice_) untickedProfit();
    if (i == profit && ticked) wipeRateWhenStatusHasNone();
}

/// Line 1 needs a complete item 3, and an exempt business declares neither profit nor receipts.
bool frmLodgePage2::refuseTick(int i) {
    if (const std::string_view message = whatItem3Lacks(); !message.empty()) {
        clearWorksheetTexts();
        takeBackTick(i, message);
        return true;
    }
    if (i == loss || !isExemptStatus(state().DataCtrl_P1.IndcBusType)) return false;
    openBox(txtMoney[0]);
    lblMoney1.setCaption(nil);
    takeBackTick(i, i == profit ? "M524" : "M525");
    return true;
}

void frmLodgePage2::takeBackTick(int i, std::string_view message) {
    takingBack_ = true;
    chkTaxPay[i].setValue(false);
    takingBack_ = false;
    program_.message(message);
}

/// A profit comes from the worksheet, a loss and receipts are typed.
void frmLodgePage2::openLine1Amount(int i, bool ticked) {
    if (!ticked) {
        if (!chkTaxPay[profit].value()) openBox(txtMoney[0]);
        return;
    }
    if (i != receipts) {
        chkTaxCal[2].setVisible(false);
        chkTaxCal[2].setValue(false);
    }
    if (i == profit) {
        closeBox(txtMoney[0]);
        txtMoney[0].setText("0");
    } else {
        openBox(txtMoney[0]);
    }
}

void frmLodgePage2::offerRows() {
    const CompanyStatusRecord& status = state().DataCtrl_P1;
    if (const StatusRates* rates = statusRates(status.IndcBusType)) {
        for (const int row : rates->shown) {
            if (row >= 0) showRow(row);
        }
        if (rates->ticked >= 0) {
            showRow(rates->ticked);
            ChkBox_NewAtt[rates->ticked].setValue(true);
        }
    }
    ChkBox_NewAtt[futureRow].setVisible(false);
    lblBankRate.setVisible(hasBankCode());
    if (hasBankCode()) showRow(bankRow);
    if (status.ChkStatus11 != 1) return;
    showRow(zoneRow);
    if (!isOneOf(statusesOfGeneralRate, status.IndcBusType)) {
        showRow(generalRow);
        ChkBox_NewAtt[generalRow].setValue(false);
    }
}

void frmLodgePage2::keepPayStatus(int i, bool ticked) {
    if (ticked) tax().PayStatus = std::to_string(i + 1);
    if (i == loss) tax().Select_2_1.reset();
    if (i == profit && isOneOf(statusesWithoutCase, state().DataCtrl_P1.IndcBusCode)) {
        tax().Select_2_1.reset();
        lblMoney1.setCaption(nil);
    }
    if (!chkTaxPay[profit].value() && !chkTaxPay[loss].value() && !chkTaxPay[receipts].value()) {
        tax().PayStatus = payStatusOnPage();
        txtMoney[0].setText("");
    }
}

void frmLodgePage2::keepProfitTick(int i) {
    if (i == profit) {
        profitTicked_ = chkTaxPay[profit].value();
    } else {
        tax().RateCodePrint.clear();
        tax().RateCaseText.clear();
    }
    if (profitTicked_ == false) {
        state().strFldPage1_2[5].clear();
        for (std::string* text : {&state().SheetIncome, &state().Sheet71a, &state().Sheet71c})
            text->clear();
    }
}

/// The green sheet belongs to a declared profit: with any other choice it is emptied, and with a profit its
/// figures come back where the business needs the sheet.
void frmLodgePage2::firstTickAfterUntick(int i) {
    firstTick_ = false;
    WorksheetArray& sheet = state().strFldPage1_2;
    if (!chkTaxPay[profit].value() || i != profit) {
        clearGreenArray(state());
        if (auto* form = desk().find<frmLodgePage1_2>()) form->P1_2_ArrayToVar();
        return;
    }
    const CompanyStatusRecord& status = state().DataCtrl_P1;
    if (!hasBankCode() && state().strFldPage1[44] != "1" && status.ChkStatus11 != 1
        && status.ChkStatus14 != 1) {
        return;
    }
    txtMoney[0].setLocked(true);
    if (!sheet[5].empty()) {
        txtMoney[0].setText(formatMoneyText(sheet[2]));
        lblMoney1.setCaption(formatMoneyText(sheet[5]));
    } else if (isOneOf(statusesWithNilTax, status.IndcBusType)) {
        lblMoney1.setCaption(nil);
        txtMoney[0].setLocked(false);
    } else {
        lblMoney1.setCaption("");
    }
}

void frmLodgePage2::makeSingleChoice(int i) {
    const bool before = inSingleChoice_;
    inSingleChoice_ = true;
    for (int other = 0; other < chkTaxPay.count(); ++other) {
        if (other != i) chkTaxPay[other].setValue(false);
    }
    inSingleChoice_ = before;
}

/// Two statuses of earlier forms state the tax themselves; for all others it is computed.
void frmLodgePage2::placeTaxBox() {
    const bool typed = state().strFldPage1[20] == "1" && state().strFldPage1[48] == "1";
    txtMoney[1].setVisible(typed);
    lblMoney1.setVisible(!typed);
    txtMoney[1].setText(typed ? nil : "");
}

void frmLodgePage2::showLossLine() {
    chkTaxChoose[0].setValue(false);
    chkTaxChoose[1].setValue(false);
    if (!txtMoney[0].text().empty()) txtMoney[0].setText(shownAsLoss(readFigure(txtMoney[0].text())));
    lblMoney1.setCaption(nil);
    lblTaxChoose.setVisible(false);
    lblTaxValue.setCaption("");
}

void frmLodgePage2::showProfitLine() {
    lblTaxChoose.setVisible(false);
    if (state().strFldPage1[20] == "1") lblMoney1.setCaption("");
    RateCaseShow();
}

void frmLodgePage2::showReceiptsLine() {
    if (!txtMoney[0].text().empty()) {
        txtMoney[0].setText(formatMoney(std::abs(readFigure(txtMoney[0].text()))));
    }
    chkTaxChoose[0].setValue(false);
    chkTaxChoose[1].setValue(false);
    lblTaxChoose.setVisible(false);
    if (state().strFldPage1[20] != "1" || state().strFldPage1[48] == "1") txtMoney[1].setText(nil);
}

void frmLodgePage2::untickedProfit() {
    if (!txtMoney[0].text().empty()) {
        txtMoney[0].setText(formatMoney(std::abs(readFigure(txtMoney[0].text()))));
    }
    chkTaxPay[loss].setValue(false);
    chkTaxPay[receipts].setValue(false);
    firstTick_ = true;
}

void frmLodgePage2::wipeRateWhenStatusHasNone() {
    const std::vector<std::string>& rates = state().DataCtrl_P1.RateList;
    if (!rates.empty() && !rates.front().empty() && rates.front() != "-") return;
    TaxRecord& record = tax();
    for (std::string* text : {&record.RateTag, &record.nRateLabel, &record.nRateCode, &record.nRateNo})
        text->clear();
    record.Select_2_1.reset();
    record.index_nRate = -1;
}

} // namespace lodge
