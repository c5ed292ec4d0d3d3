#include "pages/schedules/item3_page.h"

#include "pages/fields/ticks.h"

namespace lodge {

namespace {

constexpr std::string_view headquartersStatus = "15";

/// Other income: a headquarters company has none, its line stays closed.
constexpr int otherIncomePlace = 3;

/// The walk over the page ends with line 19. Line 20 and the further items of line 17, which the form got
/// later, are checked where they are typed and not once more when the page is left.
constexpr int lastWalkedPlace = 18;

} // namespace

frmLodgePage3_3::frmLodgePage3_3(Program& program)
    : PageForm(program.desk, formName, "รายการที่ 3"), program_(program) {
    chkProfit3.setCaption("กำไรขั้นต้น");
    chkLose3.setCaption("ขาดทุนขั้นต้น");
    chkProfit9.setCaption("กำไรสุทธิ");
    chkLose9.setCaption("ขาดทุนสุทธิ");
    chkProfit20.setCaption("กำไรสุทธิที่ต้องเสียภาษี");
    chkLose20.setCaption("ขาดทุนสุทธิ");
    for (CheckBox* computed : {&chkProfit3, &chkLose3, &chkProfit9, &chkLose9, &chkProfit20, &chkLose20}) {
        computed->setEnabled(false);
    }
    chkProfitX.setCaption("กำไรสุทธิที่ต้องเสียภาษี");
    chkLoseX.setCaption("ขาดทุนสุทธิ");
    txtBOI.setTextKind(TextKind::Amount);
    wireControls();
}

void frmLodgePage3_3::wireControls() {
    for (const Column column : inputColumns) {
        for (int place = 0; place < item3Places; ++place) {
            TextBox* box = columns.box(column, place);
            if (box == nullptr) continue;
            box->onGotFocus = [box] { showPlainDigits(*box); };
            box->onLostFocus = [this, column, place] {
                program_.state.PageChk.CurrentLine = static_cast<std::int16_t>(place);
                program_.state.PageChk.SilentCheck = 0;
                P3_3_Recalculate(column);
            };
        }
    }
    onTick(chkProfitX, [this] { sideTickClicked(chkProfitX, chkLoseX); });
    onTick(chkLoseX, [this] { sideTickClicked(chkLoseX, chkProfitX); });
    txtBOI.onGotFocus = [this] {
        showPlainDigits(txtBOI);
        if (txtBOI.text().starts_with('-')) txtBOI.setText(txtBOI.text().substr(1));
    };
    txtBOI.onLostFocus = [this] { txtBOI_LostFocus(); };
}

void frmLodgePage3_3::Form_Load() {
    ReturnState& state = program_.state;
    EnableColumn1(state.intP1Box1 >= 1);
    EnableColumn2(state.intP1Box2 >= 1);
    state.intPageCur = pageCode;
    for (Control* control : sideBox())
        control->setVisible(!txtBOI.text().empty());
}

void frmLodgePage3_3::Form_Activate() {
    const ReturnState& state = program_.state;
    const bool mayHaveOtherIncome = state.DataCtrl_P1.IndcBusCode != headquartersStatus;
    for (const Column column : inputColumns) {
        const bool columnIsOpen = (column == Column::Exempt ? state.intP1Box1 : state.intP1Box2) >= 1;
        TextBox& otherIncome = *columns.box(column, otherIncomePlace);
        columnIsOpen&& mayHaveOtherIncome ? openBox(otherIncome) : closeBox(otherIncome);
    }
}

void frmLodgePage3_3::Form_Unload() { unsigned_.restore(); }

void frmLodgePage3_3::enableColumn(Column column, bool open) {
    for (int place = 0; place < item3Places; ++place) {
        if (TextBox* box = columns.box(column, place)) {
            open ? openBox(*box) : closeBox(*box);
        }
    }
}

void frmLodgePage3_3::P3_3_CheckPage() {
    CheckScratchRecord& scratch = program_.state.PageChk;
    for (const Column column : inputColumns) {
        for (const Item3Line& line : item3Lines()) {
            if (line.isComputed() || line.place > lastWalkedPlace) continue;
            if (columns.cell(column, line).text().empty()) continue;
            showPlainDigits(*columns.box(column, line.place));
            scratch.CurrentLine = static_cast<std::int16_t>(line.place);
            scratch.SilentCheck = 1;
            P3_3_Recalculate(column);
            if (program_.state.intError == 1) return;
        }
    }
}

void P3_3_ArrayToControls(Program& program) {
    if (auto* page = program.desk.find<frmLodgePage3_3>()) page->P3_3_ArrayToControls();
}

void P3_3_CheckPage(Program& program) {
    if (auto* page = program.desk.find<frmLodgePage3_3>()) page->P3_3_CheckPage();
}

void P3_3_ControlsToArray(Program& program) {
    if (auto* page = program.desk.find<frmLodgePage3_3>()) page->P3_3_ControlsToArray();
}

} // namespace lodge
