#include "pages/filer/page1_fields.h"

#include "pages/filer/page1.h"
#include "state/status_numbers.h"
#include "values/money.h"

#include <algorithm>
#include <vector>

namespace lodge {

namespace {

/// The period stands in the first six entries of the notification form, too: day, month, year, twice.
constexpr std::size_t periodFields = 6;

/// The columns as they were chosen, whatever the ticks of the status boxes did to them on the way: an IHQ
/// return that chose both still has both.
void showColumns(frmLodgePage1& page, bool first, bool second) {
    if (page.status.anyTicked(statusSet::columnOneOnly)) {
        return; // such a status has set its column already
    }
    page.chkTaxType[0].setValue(first);
    if (first) {
        page.chkTaxType[1].setEnabled(true);
    }
    page.chkTaxType[1].setValue(second);
}

} // namespace

void fillTitles(ComboBox& list, const ReturnState& state) {
    list.setItems({state.strTitleName.begin(), state.strTitleName.end()});
}

void P1_ArrayToVar(Program& program) {
    auto& page = static_cast<frmLodgePage1&>(program.desk.load(frmLodgePage1::formName));
    ReturnState& state = program.state;
    const bool first = state.intP1Box1 == 1;
    const bool second = state.intP1Box2 == 1;
    const std::vector<std::int16_t> remembered = state.DataCtrl_P1.BusIndex;

    fillTitles(page.cboAuditTitle, state);
    fillTitles(page.cboAccTitle, state);
    for (const Field& field : page1Fields) {
        showField(page, field, std::string(state.strFldPage1[field.index]));
    }
    for (const std::int16_t box : remembered) {
        if (box >= 0 && box < page.chkStatus.count()) {
            page.chkStatus[box].setValue(true);
        }
    }
    page.chkStatus[economicZoneBox].setValue(state.DataCtrl_P1.ChkStatus14 == 1);
    showColumns(page, first, second);
}

void P1_DataToArray(Program& program) {
    const auto* page = program.desk.find<frmLodgePage1>();
    if (page == nullptr) {
        return;
    }
    ReturnState& state = program.state;
    state.strFldPage1.fill({});
    for (const Field& field : page1Fields) {
        state.strFldPage1[field.index] = readField(*page, field);
    }
    for (std::size_t i = 0; i < periodFields; ++i) {
        state.strFldPage8[i] = state.strFldPage1[i + 1];
    }
    P1_KeepStatusBoxes(program);
    if (page->List2.count() == 0) {
        program.message("M006");
    }
}

void P1_KeepStatusBoxes(Program& program) {
    const auto* page = program.desk.find<frmLodgePage1>();
    if (page == nullptr) {
        return;
    }
    CompanyStatusRecord& record = program.state.DataCtrl_P1;
    record.ChkStatus11 = page->chkStatus[developmentZoneBox].value() ? 1 : 0;
    record.ChkStatus14 = page->chkStatus[economicZoneBox].value() ? 1 : 0;
    if (page->List2.count() == 0) {
        return; // the boxes remembered before stay
    }
    record.BusIndex.clear();
    for (const std::string& box : page->List2.items()) {
        record.BusIndex.push_back(static_cast<std::int16_t>(readNumber(box)));
    }
}

} // namespace lodge
