// The checks of single fields of page 2: on leaving a field, and all of them when the page is left.
#include "pages/fields/days.h"
#include "pages/tax/page2.h"
#include "values/money.h"

namespace lodge {

namespace {

/// The day before the same day some years later, as a date text: the last day of a privilege.
std::string lastDayOfYears(Date firstDay, int years) {
    return dateText(AddDays(AddYears(firstDay, years), -1));
}

} // namespace

void frmLodgePage2::P2_CheckFields() {
    CheckScratchRecord& scratch = state().PageChk;
    state().intError = 0;
    if (!ChkInvestDate()) return;
    for (int line = 0; line < chkInvestType.count(); ++line) {
        scratch.CurrentLine = static_cast<std::int16_t>(line);
        if (!ChkYearNo()) return;
        scratch.SilentCheck = 1;
        if (!ChkDateFrom() || !ChkDateTo()) return;
    }
    for (int line = 0; line < txtMoney.count(); ++line) {
        if (line == 1 || txtMoney[line].text().empty()) continue;
        scratch.CurrentLine = static_cast<std::int16_t>(line);
        showPlainDigits(txtMoney[line]);
        scratch.SilentCheck = 1;
        if (!TaxCalculate()) return;
    }
}

std::string frmLodgePage2::todayYMD() const { return DateToYMD(dateText(program_.host().today())); }

bool frmLodgePage2::refuseDate(std::string_view code, MaskedBox& box) {
    program_.refuse(code, box);
    return false;
}

bool frmLodgePage2::ChkInvestDate() {
    const std::string& digits = mskInvestDate.digits();
    if (digits.empty()) return true;
    if (ChkDate(digits).empty()) return refuseDate("M026", mskInvestDate);
    if (DateToYMD(digits) > todayYMD()) return refuseDate("M027", mskInvestDate);
    return true;
}

bool frmLodgePage2::ChkYearNo() {
    TextBox& box = txtYearNo[state().PageChk.CurrentLine];
    if (box.text().empty()) return true;
    const std::string digits = DigitFilter(box.text(), box.text().size(), box.text().size());
    const double years = readNumber(digits);
    if (years == 0) { // no number at all, or a zero
        box.setText("");
        state().intError = 1;
        box.setFocus();
        return false;
    }
    box.setText(plainNumberText(years));
    return true;
}

bool frmLodgePage2::ChkDateFrom() {
    const CheckScratchRecord& scratch = state().PageChk;
    MaskedBox& from = mskDateFrom[scratch.CurrentLine];
    MaskedBox& to = mskDateTo[scratch.CurrentLine];
    if (from.digits().empty()) return true;
    const std::optional<Date> firstDay = dayOf(from.digits());
    if (!firstDay) return refuseDate("M026", from);
    if (DateToYMD(from.digits()) >= todayYMD()) {
        to.setDigits("");
        return refuseDate("M032", from);
    }
    const int years = static_cast<int>(readNumber(txtYearNo[scratch.CurrentLine].text()));
    if (scratch.SilentCheck != 1 && years > 0) to.setDigits(lastDayOfYears(*firstDay, years));
    return true;
}

bool frmLodgePage2::ChkDateTo() {
    const std::int16_t line = state().PageChk.CurrentLine;
    MaskedBox& to = mskDateTo[line];
    if (to.digits().empty()) return true;
    if (ChkDate(to.digits()).empty()) return refuseDate("M026", to);
    if (DateToYMD(mskDateFrom[line].digits()) >= DateToYMD(to.digits())) {
        program_.message("M033");
        state().intError = 1;
        to.setDigits("");
        to.setFocus();
        return false;
    }
    return true;
}

} // namespace lodge
