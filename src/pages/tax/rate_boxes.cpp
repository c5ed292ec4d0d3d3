// Line 2 of item 2: the case of the computation and the rate boxes, which follow the worksheet.
#include "pages/fields/ticks.h"
#include "pages/tax/green_sheet.h"
#include "pages/tax/page2.h"
#include "pages/tax/page2_fields.h"
#include "values/money.h"

namespace lodge {

namespace {

constexpr const char* changeOfRateQuestion = "ถ้าเปลี่ยนข้อลดอัตราภาษี โปรแกรมจะล้างข้อมูลกำไรที่บันทึกไว้";

} // namespace

void frmLodgePage2::wireRateBoxes() {
    Timer1_rate.onTimer = [this] { Timer1_rate_Timer(); };
    ChkBox_NewRate.each([this](CheckBox& box, int i) {
        onTick(box, [this, i] { ChkBox_NewRate_Click(i); });
        box.onMouseDown = [this, i](MousePress& press) { ChkBox_NewRate_MouseDown(i, press); };
        box.onMouseUp = [this](const MouseGesture&) { ChkBox_NewRate_MouseUp(); };
    });
    for (CheckBox* box : {&ChkBox_NewRate17, &ChkBox_NewRate18, &ChkBox_NewRate19}) {
        onTick(*box, [this, box] { singleRateClicked(*box); });
    }
    chkTaxCal.each([this](CheckBox& box, int i) { onTick(box, [this, i] { chkTaxCal_Click(i); }); });
    Cmd_Deposit.onClick = [this] { Cmd_Deposit_Click(); };
    cmd_CHKRate1718.onClick = [this] {
        program_.notify(state().IsRate17 ? "True" : "False");
        program_.notify(state().IsRate18 ? "True" : "False");
    };
}

/// Keeps lines 1 and 2 true to the worksheet after any event. A pass that finds nothing to do touches
/// nothing. A reduced rate that a row does not bear out is never ticked for a moment, because its click would
/// leave the code of that rate behind.
void frmLodgePage2::Timer1_rate_Timer() {
    if (chkTaxPay[2].enabled() && chkTaxPay[2].value()) {
        chkTaxCal[2].setVisible(true);
        chkTaxCal[2].setValue(true);
    }
    mirrorWorksheet();
    bool reduced = false;
    for (int row = smallCompanyRow; row <= zoneRow; ++row)
        reduced = reduced || ChkBox_NewAtt[row].value();
    chkTaxCal[1].setValue(reduced);
}

CheckBox* frmLodgePage2::mirrorOf(Mirror mirror) {
    switch (mirror) {
    case Mirror::None: return nullptr;
    case Mirror::General: return &chkTaxCal[0];
    case Mirror::Rate0: return &ChkBox_NewRate[0];
    case Mirror::Rate1: return &ChkBox_NewRate[1];
    case Mirror::Rate2: return &ChkBox_NewRate[2];
    case Mirror::Rate3: return &ChkBox_NewRate[3];
    case Mirror::Rate4: return &ChkBox_NewRate[4];
    case Mirror::Rate5: return &ChkBox_NewRate[5];
    case Mirror::Rate17: return &ChkBox_NewRate17;
    case Mirror::Rate18: return &ChkBox_NewRate18;
    case Mirror::Rate19: return &ChkBox_NewRate19;
    }
    return nullptr;
}

void frmLodgePage2::mirrorWorksheet() {
    int row = 0;
    for (const WorksheetRow& each : worksheetRows()) {
        const bool ticked = ChkBox_NewAtt[row++].value();
        CheckBox* mirror = mirrorOf(each.mirror);
        if (mirror == nullptr || mirror->value() == ticked) continue;
        const bool keepsItsTick = mirror->index() < 0 && mirror->enabled() && mirror->value();
        if (!keepsItsTick) mirror->setValue(ticked);
    }
    // The general rate, (2.7) and (2.8) have no code of their own: a return that uses one carries none.
    if (chosenRow() >= 0 && tickedRateBoxes() == 0) forgetRate();
}

int frmLodgePage2::tickedRateBoxes() const {
    int ticked = 0;
    for (int i = 0; i < ChkBox_NewRate.count(); ++i)
        ticked += ChkBox_NewRate[i].value() ? 1 : 0;
    return ticked;
}

/// The worksheet wins: while it holds a tax, that is the tax, whatever a rate box computes.
void frmLodgePage2::showComputedTax(const std::string& tax) {
    lblMoney1.setCaption(lbSumTotal.caption().empty() ? tax : lbSumTotal.caption());
}

void frmLodgePage2::ChkBox_NewRate_Click(int i) {
    CheckBox& box = ChkBox_NewRate[i];
    if (!box.value()) return; // the mouse-up forgets the rate once no box is ticked
    chkTaxCal[1].setValue(true);
    if (!greenRequired_) {
        Cmd_Deposit.setVisible(false);
        // By its caption, "(2.x)", for which there is no code: the tax of a rate box is nil, the worksheet's
        // is shown in its place.
        txtNTax.setText(
            DoubleToMoneyText(CalcTaxByRate(box.caption(), MoneyTextToDouble(txtMoney[0].text()))));
        showComputedTax(txtNTax.text());
    }
    const RateBox& rate = rateBoxes()[static_cast<std::size_t>(i)];
    TaxRecord& record = tax();
    record.RateTag = box.tag();
    record.index_nRate = static_cast<std::int16_t>(i);
    record.RateIndex1 = static_cast<std::int16_t>(i + 1);
    record.nRateLabel = box.caption();
    record.nRateCode = rate.code;
    record.nRateNo = rate.number;
    record.RateCodePrint = rate.code;
    state().strFldPage2[44] = rate.code;
    state().modGreen.RateCodeShown = rate.code;
}

void frmLodgePage2::ChkBox_NewRate_MouseDown(int i, MousePress& press) {
    const TaxRecord& record = tax();
    if (ChkBox_NewRate[i].value() || !greenRequired_ || record.index_nRate < 0 || record.index_nRate == i)
        return;
    press.follow = MousePress::Follow::Nothing;
    if (program_.show({.text = changeOfRateQuestion, .buttons = Buttons::OkCancel}) != Answer::Ok) return;
    state().modGreen.Clear();
    ChkBox_NewRate[i].setValue(true);
    press.follow = MousePress::Follow::ReleaseOnly;
}

void frmLodgePage2::ChkBox_NewRate_MouseUp() {
    if (tickedRateBoxes() > 0) return;
    txtNTax.setText("");
    forgetRate();
    const CompanyStatusRecord& status = state().DataCtrl_P1;
    if (status.ChkStatus11 == 1 || status.ChkStatus14 == 1) {
        clearGreenArray(state());
    } else {
        Cmd_Deposit.setEnabled(false);
    }
}

void frmLodgePage2::forgetRate() {
    TaxRecord& record = tax();
    for (std::string* text : {&record.RateTag, &record.nRateLabel, &record.nRateCode, &record.nRateNo,
             &record.RateCodePrint, &state().modGreen.RateCodeShown, &state().strFldPage2[44]}) {
        text->clear();
    }
    record.index_nRate = -1;
    record.RateIndex1 = 0;
}

/// These three cannot be unticked by a click: only a closed one lets go of its tick.
void frmLodgePage2::singleRateClicked(CheckBox& box) {
    if (box.enabled()) box.setValue(true);
    if (&box == &ChkBox_NewRate17) state().IsRate17 = box.enabled();
    if (&box == &ChkBox_NewRate18) state().IsRate18 = box.enabled();
}

void frmLodgePage2::chkTaxCal_Click(int i) {
    tax().Select_2_1.reset();
    // A case that goes leaves the other in force: receipts stay receipts when the rate of a former profit
    // is taken back behind them.
    if (!chkTaxCal[i].value()) {
        if (chkTaxCal[1].value()) tax().Select_2_1 = reducedTaxCase;
        if (chkTaxCal[2].value()) tax().Select_2_1 = receiptsTaxCase;
    }
    if (i == 2 && chkTaxCal[2].value()) {
        const double onPage = readFigure(txtMoney[0].text());
        const double amount = onPage > 0 ? onPage : readFigure(state().strFldPage2[32]);
        const std::string receiptsTax = formatMoney(CalcTaxByRate(receiptsCode, amount));
        state().strFldPage2[33] = plainAmount(receiptsTax);
        lblMoney1.setCaption(receiptsTax);
        tax().Select_2_1 = receiptsTaxCase;
    }
    if (i == 1 && chkTaxCal[1].value()) tax().Select_2_1 = reducedTaxCase;
    if (chkTaxCal[1].value()) tickOnlyOpenRate();
}

/// A status that opens a single rate leaves no choice.
void frmLodgePage2::tickOnlyOpenRate() {
    int open = 0;
    int only = 0;
    for (int i = 0; i < mirroredRateBoxes; ++i) {
        if (!ChkBox_NewRate[i].enabled()) continue;
        ++open;
        only = i;
    }
    if (open == 1) ChkBox_NewRate[only].setValue(true);
}

void frmLodgePage2::Cmd_Deposit_Click() {
    int ticked = tickedRateBoxes();
    if (ticked == 0 && (ChkBox_NewRate17.value() || ChkBox_NewRate18.value())) {
        ticked = 1;
        tax().nRateCode.clear();
    }
    if (!chkTaxCal[1].value() || ticked == 0) {
        program_.message("M123");
        return;
    }
    Cmd_Deposit.setEnabled(false);
    desk().show(frmLodgePage1_2::formName, Modality::Modal); // its load fills it
}

void frmLodgePage2::takeGreenSheet(const std::string& sheetTax, const std::string& income) {
    lblTaxValue.setCaption(sheetTax);
    lblMoney1.setCaption(sheetTax);
    txtMoney[0].setText(income);
}

} // namespace lodge
