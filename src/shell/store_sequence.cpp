#include "shell/store_sequence.h"

#include "file/store_dialog.h"
#include "pages/filer/page1_fields.h"
#include "pages/loss/item11_page.h"
#include "pages/tax/page2_checks.h"
#include "program/checks.h"
#include "shell/page_table.h"
#include "state/filing.h"
#include "values/text.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace lodge {

namespace {

constexpr std::array<CheckRow, 1> idGate = {{
    {"M132", "txtNid", [](const CheckContext& c) { return c.state.FucChk.LastValidId.empty(); }},
}};

/// Refused from whatever page is on screen; the store moves no focus for them.
constexpr std::array<CheckRow, 3> choiceGates = {{
    {"M006", "chkStatus(0)", [](const CheckContext& c) { return c.state.intStatusIndex == -1; }},
    {"M085", "cmdSISIC1(0)",
        [](const CheckContext& c) { return trimBlanks(c.state.FucChk.BusinessText).empty(); }},
    {"M521", "audit(0)", [](const CheckContext& c) { return c.state.intAuditStatus == 0; }},
}};

/// Status boxes of which one must stand beside box 11, the special-purpose development zone.
constexpr std::array<std::int16_t, 14> statusesOfZone = {0, 1, 2, 3, 4, 5, 6, 15, 8, 12, 10, 13, 17, 16};

bool zoneStandsAlone(const CheckContext& context) {
    const CompanyStatusRecord& record = context.state.DataCtrl_P1;
    return record.ChkStatus11 == 1 && std::ranges::none_of(record.BusIndex, [](std::int16_t box) {
        return std::ranges::find(statusesOfZone, box) != statusesOfZone.end();
    });
}

constexpr std::array<CheckRow, 1> zoneGate = {{{"M144", "chkStatus(0)", zoneStandsAlone}}};

constexpr std::string_view noForm;

} // namespace

void collectGateRefusals(const CheckContext& context, std::vector<Refusal>& refusals) {
    const char* const page1 = findPage(page::first)->form;
    collectRefusals(context, page1, idGate, refusals);
    collectRefusals(context, page1, choiceGates, refusals);
    collectTaxGateRefusals(context, refusals);
}

void collectFullRefusals(const CheckContext& context, std::vector<Refusal>& refusals) {
    collectRefusals(context, findPage(page::first)->form, zoneGate, refusals);
    for (const FullCheck& check : fullChecks()) {
        if (check.applies == nullptr || check.applies(context.state)) {
            check.collect(context, refusals);
        }
    }
}

void StoreSequence::cmdSave1_Click() {
    ReturnState& state = program_.state;
    state.intError = 0;
    if (!passesGates() || goesThroughPage2() || !passesTaxGates()) {
        return;
    }
    if (!navigation_.cmdPage1_Click()) {
        return;
    }
    state.strStoreType = "C";
    if (ChkZoneStatus()) {
        storeFlow();
    }
}

void StoreSequence::cmdSave2_Click() {
    program_.state.intError = 0;
    if (!navigation_.cmdPage1_Click()) {
        return;
    }
    program_.state.strStoreType = "N";
    if (ChkZoneStatus()) {
        storeFlow();
    }
}

bool StoreSequence::passesGates() {
    const PageRow* row = findPage(program_.state.intPageCur);
    return runChecks(program_, row == nullptr ? noForm : row->form, idGate)
           && runChecks(program_, noForm, choiceGates);
}

bool StoreSequence::goesThroughPage2() {
    ReturnState& state = program_.state;
    if (!state.blnNeedPage2) {
        return false;
    }
    state.intPagePrev = state.intPageCur;
    if (state.intPageCur == page::item11 && state.intItem11Count > 0) {
        const Form* item11 = program_.desk.find(findPage(page::item11)->form);
        const Control* carried = item11 == nullptr ? nullptr : item11->find("txtMoney1(42)");
        if (carried != nullptr && carried->reading().empty()) {
            program_.message("M127");
            state.intError = 1;
            return true;
        }
    }
    program_.message("M153");
    if (navigation_.cmdChoose_Click()) {
        navigation_.ShowPage(page::tax);
        state.blnNeedPage2 = false;
    }
    return true;
}

bool StoreSequence::passesTaxGates() {
    ReturnState& state = program_.state;
    if (!IsGreenCase(state)) {
        ChkWorksheetRows(program_);
    }
    if (state.intError == 0) {
        ChkRate24Capital(program_);
    }
    if (state.intError == 0 && state.intPageCur == page::item11) {
        Chk_Item11Deduct(program_);
    }
    return state.intError == 0;
}

bool StoreSequence::ChkZoneStatus() {
    P1_KeepStatusBoxes(program_);
    return runChecks(program_, noForm, zoneGate);
}

void StoreSequence::storeFlow() {
    ReturnState& state = program_.state;
    if (!navigation_.LeavePage()) {
        return;
    }
    if (state.strStoreType == "C" && !passesFullChecks()) {
        focusFirstField();
        return;
    }
    setFilingType(state);
    program_.shell().SwitchPage(false);
    program_.shell().EnableTools(false);
    program_.desk.show(frmLodgeDirec::formName);
}

bool StoreSequence::passesFullChecks() {
    ReturnState& state = program_.state;
    for (const FullCheck& check : fullChecks()) {
        if (check.applies != nullptr && !check.applies(state)) {
            continue;
        }
        check.run(program_);
        if (state.intError != 0) {
            return false;
        }
    }
    return true;
}

void StoreSequence::focusFirstField() {
    const ReturnState& state = program_.state;
    if (state.intPageCur == page::chooser) {
        if (const Form* chooser = program_.desk.find("frmLodgeChoose")) {
            chooser->find("cmdItem01")->setFocus();
        }
        return;
    }
    const PageRow* row = findPage(state.intPageCur);
    const Form* form = row == nullptr ? nullptr : program_.desk.find(row->form);
    if (form == nullptr) {
        return;
    }
    const char* field = row->firstField(state.intInvestment);
    if (Control* control = form->find(field)) {
        control->setFocus();
    }
}

} // namespace lodge
