// Item 3 between its array and its page.
#include "pages/schedules/item3_page.h"
#include "values/money.h"
#include "values/text.h"

#include <array>
#include <utility>

namespace lodge {

namespace {

struct TickField {
    std::size_t entry;
    CheckBox frmLodgePage3_3::*box;
};

constexpr std::array<TickField, 6> tickFields = {{
    {profit3Entry, &frmLodgePage3_3::chkProfit3},
    {loss3Entry, &frmLodgePage3_3::chkLose3},
    {profit9Entry, &frmLodgePage3_3::chkProfit9},
    {loss9Entry, &frmLodgePage3_3::chkLose9},
    {profit22Entry, &frmLodgePage3_3::chkProfit20},
    {loss22Entry, &frmLodgePage3_3::chkLose20},
}};

std::size_t slot(Column column) { return static_cast<std::size_t>(column); }

} // namespace

void frmLodgePage3_3::P3_3_ArrayToControls() {
    unsigned_.restore(); // a page that is filled again begins from the signed amounts
    FieldArray& fields = program_.state.strFldPage3_3;
    showLines();
    showSubLines();
    showSideBox();
    // What the side box did on its way is the page's own reckoning; the array is what was stored.
    lblTotMoney33.setCaption(unsigned_.show(fields[line22Entry]));
    for (const TickField& tick : tickFields)
        (this->*tick.box).setValue(readNumber(fields[tick.entry]) == 1);
}

void frmLodgePage3_3::showLines() {
    FieldArray& fields = program_.state.strFldPage3_3;
    for (const Item3Line& line : item3Lines()) {
        for (const Column column : allColumns)
            columns.cell(column, line).show(unsigned_.show(fields[line.entries[slot(column)]]));
    }
}

void frmLodgePage3_3::showSubLines() {
    for (const Item3SubLine& subLine : item3SubLines()) {
        const auto parts = splitBar(program_.state.strFldPage3_3[subLine.entry]);
        for (const Column column : allColumns) {
            const std::size_t part = slot(column) + 1;
            columns.cell(column, subLine)
                .show(part < parts.size() ? formatBracketText(parts[part]) : std::string());
        }
    }
}

void frmLodgePage3_3::showSideBox() {
    ReturnState& state = program_.state;
    if (!hasBothColumns()) {
        withdrawSideBox();
        state.BoxAmount.clear();
        return;
    }
    offerSideBox();
    const std::string amount = state.BoxAmount;
    chkProfitX.setValue(state.BoxProfit);
    chkLoseX.setValue(state.BoxLoss);
    txtBOI.setText(formatBracketText(amount)); // last, because a click of the two rewrites the box
}

void frmLodgePage3_3::P3_3_ControlsToArray() {
    ReturnState& state = program_.state;
    FieldArray& fields = state.strFldPage3_3;
    unsigned_.forget();
    for (std::string& field : fields)
        field.clear();
    for (const Item3Line& line : item3Lines()) {
        for (const Column column : allColumns)
            fields[line.entries[slot(column)]] = plainAmount(columns.cell(column, line).text());
    }
    fields[line22Entry] = plainAmount(lblTotMoney33.caption());
    for (const TickField& tick : tickFields)
        fields[tick.entry] = (this->*tick.box).reading();
    for (const Item3SubLine& subLine : item3SubLines()) {
        std::string packed = "|";
        for (const Column column : allColumns)
            packed += plainAmount(columns.cell(column, subLine).text()) + "|";
        fields[subLine.entry] = std::move(packed);
    }
    storeSideBox();
}

void frmLodgePage3_3::storeSideBox() {
    ReturnState& state = program_.state;
    state.BoxProfit = chkProfitX.value();
    state.BoxLoss = chkLoseX.value();
    state.BoxAmount = plainAmount(txtBOI.text());
    if (!state.BoxAmount.empty()) {
        state.modNew3 = {
            .NewBox1 = state.BoxProfit, .NewBox2 = state.BoxLoss, .NewBoxAmount = state.BoxAmount};
    }
}

} // namespace lodge
