// The worksheet on page 2: net profit by rate, and the tax of each. It decides line 1 and the tax.
#include "pages/fields/ticks.h"
#include "pages/tax/page2.h"
#include "values/money.h"
#include "values/text.h"

#include <algorithm>

namespace lodge {

namespace {

/// Longest amount without separators: 9,999,999,999,999.99 has sixteen characters.
constexpr std::size_t longestFigure = 16;

const WorksheetRow& rowOf(int row) { return worksheetRows()[static_cast<std::size_t>(row)]; }

} // namespace

void frmLodgePage2::wireWorksheet() {
    txtIncome.each([this](TextBox& box, int i) {
        box.onGotFocus = [&box] { showPlainDigits(box); };
        box.onChange = [this, i] { txtIncome_Change(i); };
        box.onLostFocus = [this] { txtIncome_LostFocus(); };
    });
    lbSumR.each([this](Label& label, int i) { label.onChange = [this, i] { lbSumR_Change(i); }; });
    ChkBox_NewAtt.each([this](CheckBox& box, int i) { onTick(box, [this, i] { ChkBox_NewAtt_Click(i); }); });
}

bool frmLodgePage2::isTooLong(const std::string& figure) const {
    const auto separators = static_cast<std::size_t>(std::ranges::count(figure, ','));
    return textLength(figure) - separators > longestFigure;
}

bool frmLodgePage2::incomesAreEmpty() const {
    for (int i = 0; i < txtIncome.count(); ++i) {
        if (!txtIncome[i].text().empty()) return false;
    }
    return true;
}

bool frmLodgePage2::taxesAreEmpty() const {
    for (int i = 0; i < lbSumR.count(); ++i) {
        if (!lbSumR[i].caption().empty()) return false;
    }
    return true;
}

void frmLodgePage2::txtIncome_Change(int i) {
    const int change = ++incomeChange_;
    double total = 0;
    for (int income = 0; income < txtIncome.count(); ++income) {
        const std::string& typed = txtIncome[income].text();
        const double x = isNumericText(typed) ? readFigure(typed) : 0;
        if (typed.empty()) lbSumR[income].setCaption("");
        if (x <= 0) continue; // what is no profit leaves its tax as it stands until the box is left
        total += x;
        for (int row = 0; row < worksheetRowCount; ++row) {
            if (rowOf(row).income == income && !rowOf(row).bands.empty() && ChkBox_NewAtt[row].value()) {
                lbSumR[income].setCaption(formatMoney(worksheetTax(rowOf(row), x)));
            }
        }
    }
    // A tax too long to be shown has emptied the row meanwhile, and that change has done the rest.
    if (change != incomeChange_) return;
    lbIncomeSum.setCaption(formatMoney(total));
    txtMoney[0].setText(formatMoney(total));
    if (isTooLong(txtIncome[i].text()) || isTooLong(txtMoney[0].text())) {
        program_.message("M069");
        txtIncome[i].setText("");
    } else if (incomesAreEmpty()) {
        lbIncomeSum.setCaption("");
    }
}

void frmLodgePage2::lbSumR_Change(int i) {
    double total = 0;
    for (int row = 0; row < lbSumR.count(); ++row)
        total += std::max(readFigure(lbSumR[row].caption()), 0.0);
    lbSumTotal.setCaption(formatMoney(total));
    lblMoney1.setCaption(formatMoney(total));
    if (isTooLong(lbSumR[i].caption())) {
        program_.message("M069");
        lbSumR[i].setCaption("");
        txtIncome[i].setText("");
    }
    if (taxesAreEmpty()) lbSumTotal.setCaption("");
}

void frmLodgePage2::txtIncome_LostFocus() {
    for (int row = 0; row < txtIncome.count(); ++row)
        checkWorksheetRow(row);
    if (!incomesAreEmpty()) lbIncomeSum.setCaption(formatMoneyText(lbIncomeSum.caption()));
    keepWorksheetTexts();
    state().PageChk.CurrentLine = 0;
    state().PageChk.SilentCheck = 0;
    TaxCalculate();
}

/// A row that is no amount is emptied; a good one is rewritten. An empty box is no refusal.
void frmLodgePage2::checkWorksheetRow(int row) {
    TextBox& income = txtIncome[row];
    if (income.text().empty()) return;
    const bool isNumber = isNumericText(income.text());
    if (!isNumber || readFigure(income.text()) < 0) {
        program_.message(isNumber ? "M073" : "M075");
        income.setText("");
        lbSumR[row].setCaption("");
        return;
    }
    income.setText(formatMoneyText(income.text()));
}

void frmLodgePage2::keepWorksheetTexts() {
    for (std::size_t row = 0; row < incomeCount; ++row) {
        tax().WorkIncome[row] = txtIncome[static_cast<int>(row)].text();
        tax().WorkTax[row] = lbSumR[static_cast<int>(row)].caption();
    }
    tax().WorkIncomeSum = lbIncomeSum.caption();
    tax().WorkTaxSum = lbSumTotal.caption();
}

/// The fourteen values that a stored return has of the worksheet.
void frmLodgePage2::clearWorksheetTexts() {
    TaxRecord& record = tax();
    for (std::string* key : {&record.NewAtt1, &record.NewAtt2, &record.NewAtt3, &record.NewAtt4,
             &record.WorkIncomeSum, &record.WorkTaxSum}) {
        key->clear();
    }
    for (std::size_t row = 0; row < incomeCount; ++row) {
        record.WorkIncome[row].clear();
        record.WorkTax[row].clear();
    }
}

int frmLodgePage2::chosenRow() const {
    for (int row = 0; row < choiceRowCount; ++row) {
        if (ChkBox_NewAtt[row].value()) return row;
    }
    return -1;
}

/// Opens the box of an income, or closes and empties it.
void frmLodgePage2::openIncome(int income, bool open) {
    if (open) {
        openBox(txtIncome[income]);
        return;
    }
    closeBox(txtIncome[income]);
    txtIncome[income].setText("");
}

void frmLodgePage2::ChkBox_NewAtt_Click(int i) {
    if (ChkBox_NewAtt[i].value() && i < choiceRowCount) {
        for (int other = 0; other < choiceRowCount; ++other) {
            if (other != i) ChkBox_NewAtt[other].setValue(false);
        }
        txtIncome[0].setText("");
        lbSumR[0].setCaption("");
    }
    const int chosen = chosenRow();
    tax().NewAtt1 = chosen < 0 ? std::string() : std::string(rowOf(chosen).key);
    openIncome(0, chosen >= 0);
    if (chosen < 0) lbSumR[0].setCaption("");

    const bool zone = ChkBox_NewAtt[zoneRow].value();
    openIncome(rowOf(zoneRow).income, zone);
    if (zone) {
        tax().NewAtt2 = rowOf(zoneRow).key;
    } else if (i == zoneRow) {
        tax().NewAtt2.clear();
    }

    if (ChkBox_NewAtt[futureRow].value()) {
        program_.message("M538"); // no law has brought this rate into force
        ChkBox_NewAtt[futureRow].setValue(false);
    }
    openIncome(rowOf(futureRow).income, false);
    lbSumR[rowOf(futureRow).income].setCaption("");

    const bool bank = ChkBox_NewAtt[bankRow].value();
    openIncome(rowOf(bankRow).income, bank);
    if (bank) {
        tax().NewAtt4 = rowOf(bankRow).key;
    } else if (i == bankRow) {
        tax().NewAtt4.clear();
    }

    mirrorWorksheet();
}

void frmLodgePage2::hideWorksheetRows() {
    ChkBox_NewAtt.each([](CheckBox& box, int) {
        box.setVisible(false);
        box.setValue(false);
    });
    lblBankRate.setVisible(false);
}

void frmLodgePage2::showRow(int row) { ChkBox_NewAtt[row].setVisible(true); }

} // namespace lodge
