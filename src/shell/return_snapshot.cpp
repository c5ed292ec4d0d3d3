#include "shell/return_snapshot.h"

#include "shell/form_copy.h"
#include "shell/page_table.h"

#include <algorithm>

namespace lodge {

void takeFromScreen(Program& copy, const ReturnState& state, const Form& pageOnScreen) {
    copy.state = state;
    const auto row = std::ranges::find(pageTable(), pageOnScreen.name(), &PageRow::form);
    if (row == pageTable().end()) {
        return;
    }
    Form& page = copy.desk.load(row->form);
    copyControls(pageOnScreen, page);
    copy.state = state; // whatever the page did to the return while it loaded
    if (row->store != nullptr) {
        row->store(copy);
    }
    copy.desk.unload(row->form);
}

ReturnState& ReturnSnapshots::take(const Program& program) {
    const PageRow* row = findPage(program.state.intPageCur);
    const Form* page = row == nullptr ? nullptr : program.desk.find(row->form);
    if (page != nullptr) {
        takeFromScreen(copy_, program.state, *page);
    } else {
        copy_.state = program.state;
    }
    return copy_.state;
}

} // namespace lodge
