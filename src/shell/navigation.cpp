#include "shell/navigation.h"

#include "shell/chooser.h"
#include "shell/main_frame.h"

#include <algorithm>

namespace lodge {

bool Navigation::LeavePage() {
    ReturnState& state = program_.state;
    state.intPagePrev = state.intPageCur;
    state.intError = 0;
    const PageRow* row = findPage(state.intPageCur);
    if (row == nullptr || program_.desk.find(row->form) == nullptr) {
        return true;
    }
    if (row->code == page::first && state.intStatusIndex == -1) {
        program_.message("M006");
        state.intError = 1;
        return false;
    }
    if (row->lightCheck != nullptr) {
        row->lightCheck(program_);
        if (state.intError != 0) {
            return false;
        }
    }
    if (row->store != nullptr) {
        row->store(program_);
    }
    return true;
}

void Navigation::ShowPage(std::int16_t code) {
    if (const PageRow* row = findPage(code)) {
        show(*row, true);
    }
}

void Navigation::ShowBlank(std::int16_t code) {
    if (const PageRow* row = findPage(code)) {
        show(*row, false);
    }
}

void Navigation::show(const PageRow& row, bool fill) {
    ReturnState& state = program_.state;
    state.intPagePrev = state.intPageCur;
    program_.host().setBusy(true);
    program_.desk.load(row.form);
    if (fill && row.arrayToControls != nullptr) {
        row.arrayToControls(program_);
    }
    state.intPageCur = row.code;
    program_.host().setBusy(false);
    program_.desk.show(row.form);
    for (const Form* form : program_.desk.loadedForms()) {
        const bool isPage = std::any_of(pageTable().begin(), pageTable().end(),
            [&](const PageRow& other) { return form->name() == other.form && other.code != row.code; });
        if (isPage || form->name() == frmLodgeChoose::formName) {
            program_.desk.unload(form->name());
        }
    }
}

void Navigation::unloadPageOnScreen() {
    if (const PageRow* row = findPage(program_.state.intPageCur)) {
        program_.desk.unload(row->form);
    }
    // Clear all closes the way to page 1 while page 1 is on screen; leaving the page opens it again.
    if (auto* frame = program_.desk.find<MDILodge>()) {
        frame->cmdPage1.setEnabled(true);
    }
}

bool Navigation::cmdPage1_Click() {
    if (!LeavePage()) {
        return false;
    }
    unloadPageOnScreen();
    ShowPage(page::first);
    return true;
}

bool Navigation::cmdChoose_Click() {
    if (!LeavePage()) {
        return false;
    }
    unloadPageOnScreen();
    if (program_.state.intPagePrev != page::chooser && automaticStore_) {
        automaticStore_();
    }
    program_.state.intPageCur = page::chooser;
    program_.desk.show(frmLodgeChoose::formName);
    return true;
}

} // namespace lodge
