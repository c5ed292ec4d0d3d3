// The arithmetic of item 3: every edit computes its column from line 3 down to line 22.
#include "pages/schedules/figures.h"
#include "pages/schedules/item3_page.h"
#include "pages/schedules/line22_cases.h"
#include "values/money.h"

#include <cstdlib>

namespace lodge {

void frmLodgePage3_3::P3_3_Recalculate(Column column) {
    if (!checkEditedBox(column)) return;
    const int edited = program_.state.PageChk.CurrentLine;
    for (const Item3Line& line : item3Lines()) {
        if (!line.isComputed() || line.place < 0) continue;
        // Gross profit moves with turnover and cost of sales alone.
        if (line.number != 3 || edited <= 1) computeLine(line.number, column);
        computeTotal(line);
    }
    tickBySign(columns.cell(Column::Total, item3Line(3)).text(), chkProfit3, chkLose3);
    tickBySign(columns.cell(Column::Total, item3Line(9)).text(), chkProfit9, chkLose9);
    computeLine21(column);
    computeTotal(item3Line(21));
    computeLine22();
    showTotal(edited);
}

/// Rewrites the edited figure as it is shown. False when it is none and the computation ends.
bool frmLodgePage3_3::checkEditedBox(Column column) {
    const CheckScratchRecord& scratch = program_.state.PageChk;
    TextBox* box = columns.box(column, scratch.CurrentLine);
    if (box == nullptr) return true;
    if (!passesMoneyCheck(box->text(), program_)) {
        box->setText("");
        box->setFocus();
        program_.state.intError = 1;
        return scratch.SilentCheck == 1;
    }
    box->setText(formatBracketText(box->text()));
    return true;
}

void frmLodgePage3_3::computeLine(int number, Column column) {
    const Item3Line& line = item3Line(number);
    FigureSum sum;
    for (const int term : line.sum) {
        if (term != 0) sum.add(columns.cell(column, item3Line(std::abs(term))).text(), term < 0 ? -1 : 1);
    }
    columns.cell(column, line).show(sum.text());
}

void frmLodgePage3_3::computeLine21(Column column) {
    const Item3Line& line = item3Line(21);
    FigureSum lines;
    for (const int term : line.sum)
        lines.add(columns.cell(column, item3Line(term)).text());
    FigureSum sum;
    sum.add(lines.text());
    for (const Item3SubLine& subLine : item3SubLines()) // they are line 17, too
        sum.add(columns.cell(column, subLine).text());
    columns.cell(column, line).show(sum.text());
}

void frmLodgePage3_3::computeTotal(const Item3Line& line) {
    FigureSum sum;
    for (const Column column : inputColumns)
        sum.add(columns.cell(column, line).text());
    columns.cell(Column::Total, line).show(sum.text());
}

void frmLodgePage3_3::showTotal(int place) {
    FigureSum sum;
    for (const Column column : inputColumns)
        sum.add(columns.at(column, place).text());
    columns.at(Column::Total, place).show(sum.text());
}

/// Exactly zero is neither profit nor loss.
void frmLodgePage3_3::tickBySign(const std::string& figure, CheckBox& profit, CheckBox& loss) {
    const double value = readFigure(figure);
    profit.setValue(value > 0);
    loss.setValue(value < 0);
}

void frmLodgePage3_3::computeLine22() {
    if (hasBothColumns()) {
        offerSideBox();
        lblTotMoney33.setCaption(txtBOI.text());
        copySideTicks();
        return;
    }
    withdrawSideBox();
    lblTotMoney33.setCaption(line22Text(columns.cell(Column::Exempt, item3Line(21)).text(),
        columns.cell(Column::Taxable, item3Line(21)).text(), program_.state.intInvestment));
    tickBySign(lblTotMoney33.caption(), chkProfit20, chkLose20);
}

} // namespace lodge
