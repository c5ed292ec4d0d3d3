// Item 1 of page 2: the investment promotion, one privilege of four with its years and dates.
#include "pages/fields/ticks.h"
#include "pages/tax/page2.h"
#include "values/money.h"

#include <cmath>

namespace lodge {

namespace {

/// The privilege of half the normal rate; it opens the matching amount of line 3.
constexpr int halfRateOption = 0;
constexpr int otherOption = 3;

/// Amounts of line 3 that the privileges govern: tax paid with form ก.ข.ค.78, and tax at half the rate.
constexpr int paidHalfYear = 5;
constexpr int halfRateTax = 6;

constexpr const char* isicForm = "frmLodgeISIC";

} // namespace

void frmLodgePage2::wireInvestmentBlock() {
    mskInvestDate.onLostFocus = [this] { ChkInvestDate(); };
    chkInvestType.each([this](CheckBox& box, int i) { onTick(box, [this, i] { chkInvestType_Click(i); }); });
    txtYearNo.each([this](TextBox& box, int i) {
        box.onKey = [](KeyPress& press) {
            const bool isControl = press.key < U' ';
            if (!isControl && (press.key < U'0' || press.key > U'9')) press.swallowed = true;
        };
        box.onLostFocus = [this, i] {
            state().PageChk.CurrentLine = static_cast<std::int16_t>(i);
            ChkYearNo();
        };
    });
    mskDateFrom.each([this](MaskedBox& box, int i) {
        box.onLostFocus = [this, i] {
            state().PageChk.CurrentLine = static_cast<std::int16_t>(i);
            state().PageChk.SilentCheck = 0;
            ChkDateFrom();
        };
    });
    mskDateTo.each([this](MaskedBox& box, int i) {
        box.onLostFocus = [this, i] {
            state().PageChk.CurrentLine = static_cast<std::int16_t>(i);
            ChkDateTo();
        };
    });
    cmdSISIC2.onClick = [this] {
        if (!desk().knows(isicForm)) return; // a program without the lookup, as a test of this page alone
        program_.shell().ShowTools(false);
        desk().show(isicForm, Modality::Modal);
    };
    cmdCISIC2.onClick = [this] {
        lblISICName2.setCaption("");
        lblISICCode2.setCaption("");
    };
}

void frmLodgePage2::InvestBlockEnable(bool open) {
    const auto set = [open](Control& box) { open ? openBox(box) : closeBox(box); };
    set(txtInvestID);
    set(mskInvestDate);
    cmdCISIC2.setEnabled(open);
    cmdSISIC2.setEnabled(open);
    set(txtOther);
    for (int i = 0; i < chkInvestType.count(); ++i) {
        chkInvestType[i].setEnabled(open);
        set(txtYearNo[i]);
        set(mskDateFrom[i]);
        set(mskDateTo[i]);
    }
    set(txtInvestOther);
}

bool frmLodgePage2::takeBusinessLine(int /*row*/, const std::string& name, const std::string& code) {
    lblISICName2.setCaption(name);
    lblISICCode2.setCaption(code);
    return true;
}

/// Empties and closes the years and dates of an option.
void frmLodgePage2::closeInvestRow(int i) {
    txtYearNo[i].setText("");
    mskDateFrom[i].setDigits("");
    mskDateTo[i].setDigits("");
    for (Control* box : {static_cast<Control*>(&txtYearNo[i]), static_cast<Control*>(&mskDateFrom[i]),
             static_cast<Control*>(&mskDateTo[i])}) {
        closeBox(*box);
    }
}

void frmLodgePage2::openInvestRow(int i) {
    for (Control* box : {static_cast<Control*>(&txtYearNo[i]), static_cast<Control*>(&mskDateFrom[i]),
             static_cast<Control*>(&mskDateTo[i])}) {
        openBox(*box);
    }
    if (i == otherOption) openBox(txtInvestOther);
    if (i == halfRateOption) openBox(txtMoney[halfRateTax]);
}

void frmLodgePage2::chkInvestType_Click(int i) {
    closeInvestRow(i);
    txtInvestOther.setText("");
    closeBox(txtInvestOther);
    openBox(txtMoney[paidHalfYear]);
    if (!chkInvestType[i].value()) {
        if (i != halfRateOption) return;
        if (!txtMoney[halfRateTax].text().empty()) {
            lblMoney2[0].setCaption(
                shownFigure(readFigure(lblMoney2[0].caption()) - readFigure(txtMoney[halfRateTax].text())));
        }
        txtMoney[halfRateTax].setText("");
        closeBox(txtMoney[halfRateTax]);
        return;
    }
    for (int other = 0; other < chkInvestType.count(); ++other) {
        if (other == i) continue;
        chkInvestType[other].setValue(false);
        closeInvestRow(other);
    }
    openInvestRow(i);
}

} // namespace lodge
