#include "shell/return_commands.h"

#include "shell/main_frame.h"
#include "shell/page_table.h"
#include "shell/start_screen.h"

namespace lodge {

namespace {

constexpr const char* warning = "คำเตือน";

} // namespace

bool ReturnCommands::confirms(const char* text, const char* title) {
    const Box question{.text = text, .buttons = Buttons::YesNo, .defaultAnswer = Answer::No, .title = title};
    return program_.show(question) == Answer::Yes;
}

void ReturnCommands::CmdClear1_Click() {
    if (program_.state.intPageCur != page::chooser
        && confirms("ต้องการล้างข้อความ ใช่หรือไม่ (ถ้าตอบ Yes  โปรแกรมจะล้างข้อความทุกรายการทุกหน้า)", warning)) {
        clearAll();
    }
}

void ReturnCommands::CmdClear2_Click() {
    const PageRow* row = findPage(program_.state.intPageCur);
    if (row != nullptr
        && confirms(
            "ต้องการล้างเฉพาะหน้า ใช่หรือไม่ (ถ้าตอบ Yes  โปรแกรมจะล้างข้อความเฉพาะหน้านี้เท่านั้น)", defaultBoxTitle)) {
        clearPage(*row);
    }
}

void ReturnCommands::cmdPageFirst_Click() {
    if (confirms("ท่านได้จัดเก็บข้อมูลหรือยัง ถ้ายังให้กดปุ่ม 'No' เพื่อไปจัดเก็บข้อมูล", defaultBoxTitle)) {
        endReturn();
    }
}

void ReturnCommands::clearAll() {
    program_.shell().UnloadPages();
    program_.state.clearAllPages();
    program_.damagedLines.clear();
    program_.state.intPageCur = page::first;
    program_.shell().EnableTools(true);
    if (auto* frame = program_.desk.find<MDILodge>()) {
        frame->cmdPage1.setEnabled(false); // page 1 is on screen already
    }
    navigation_.ShowPage(page::first);
}

void ReturnCommands::clearPage(const PageRow& row) {
    ReturnState& state = program_.state;
    if (row.code != page::first) {
        program_.desk.unload(row.form); // first: a page that is unloaded writes some of its figures back
    }
    switch (row.code) {
    case page::first:
        state.DataCtrl_P1.IndcBusType.clear();
        state.strWebsite.clear();
        clearAll();
        return;
    case page::tax:
        state.DataCtrl_P2.Clear();
        state.modGreen.Clear();
        state.clearGreenRows();
        state.strFldPage2 = {};
        break;
    case page::item3: state.strFldPage3_3[60].clear(); break;
    case page::item11: state.clearItem11Log(); break;
    case page::headquarters:
        state.modIHQ.Clear();
        state.modIHQ.PeriodStart = state.strStartDDMMYY;
        state.modIHQ.PeriodEnd = state.strFinishDDMMYY;
        break;
    default: break;
    }
    // The page comes back blank; its array keeps what was stored until the page is stored again.
    navigation_.ShowBlank(row.code);
}

void ReturnCommands::endReturn() {
    program_.shell().EnableTools(false);
    program_.desk.unloadAllExcept(MDILodge::formName); // first, for the same reason
    program_.state.putAway();
    program_.damagedLines.clear();
    program_.desk.show(frmLodgeStart::formName);
}

} // namespace lodge
