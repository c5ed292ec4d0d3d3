#include "shell/shell.h"

#include "file/store_dialog.h"
#include "pages/filer/isic_lookup.h"
#include "pages/filer/notification_form.h"
#include "pages/filer/page1.h"
#include "pages/ihq/ihq_page.h"
#include "pages/loss/item11_page.h"
#include "pages/loss/item11_popup.h"
#include "pages/schedules/item12_page.h"
#include "pages/schedules/item3_page.h"
#include "pages/schedules/schedule_page.h"
#include "pages/tax/green_sheet.h"
#include "pages/tax/income_edit.h"
#include "pages/tax/page2.h"
#include "print/print_return.h"
#include "shell/chooser.h"
#include "shell/notice_form.h"
#include "shell/page_table.h"
#include "shell/start_screen.h"
#include "state/filing.h"

#include <memory>

namespace lodge {

namespace {

/// Makes a form known that is made from the program and whatever else it is given.
template <typename T, typename... More>
void add(Program& program, More&... more) {
    program.desk.add(T::formName, [&program, &more...] { return std::make_unique<T>(program, more...); });
}

} // namespace

Shell::Shell(Program& program)
    : program_(program), isic_(program), navigation_(program), stores_(program, navigation_),
      returns_(program, navigation_) {
    program.attach(*this);
    program.attach(isic_);
    navigation_.onAutomaticStore([&program] { storeAutomatically(program); });
    addForms();
}

void Shell::addForms() {
    Desk& desk = program_.desk;
    desk.add(MDILodge::formName, [this] {
        return std::make_unique<MDILodge>(program_, ToolCommands{navigation_, stores_, returns_});
    });
    add<frmLodgeStart>(program_);
    add<frmDialogAlert>(program_);
    add<frmLodgeChoose>(program_, navigation_);
    add<frmLodgeDirec>(program_);
    add<frmLodgeDisp1>(program_);
    add<frmLodgePage1>(program_);
    add<frmLodgeISIC>(program_);
    add<frmLodgePage8>(program_);
    add<frmLodgePage2>(program_);
    add<frmLodgePage1_2>(program_);
    add<frm_incomeEdit>(program_);
    add<frmLodgePage3_3>(program_);
    add<frmLodgePage3_4>(program_);
    add<frmLodgePage4_5>(program_);
    add<frmLodgePage4_6>(program_);
    add<frmLodgePage4_7>(program_);
    add<frmLodgePage5_8>(program_);
    add<frmLodgePage5_9>(program_);
    add<frmLodgePage6_10>(program_);
    add<frmLodgePage6_11>(program_);
    add<frmLodgePage6_11Popup>(program_);
    add<frmLodgePage7_12>(program_);
    add<frmIHQ>(program_);
}

void Shell::start() {
    program_.desk.show(MDILodge::formName);
    program_.desk.show(frmLodgeStart::formName);
}

MDILodge* Shell::frame() const { return program_.desk.find<MDILodge>(); }

void Shell::ShowPage1() {
    ReturnState& state = program_.state;
    program_.desk.unload(frmLodgeStart::formName);
    program_.desk.unload(frmDialogAlert::formName);
    EnableTools(true);
    state.intPageCur = page::first;
    state.intPagePrev = page::first;
    setTaxYear(state);
    setPreviousYears(state);
    if (state.intNewReturn == 1) {
        state.strFldPage1[7] = "1"; // a new return begins as a normal filing
    }
    program_.desk.show(frmLodgePage1::formName);
}

void Shell::EnableTools(bool enabled) {
    if (MDILodge* main = frame()) {
        main->EnableTools(enabled);
    }
}

void Shell::EnableExit() {
    if (MDILodge* main = frame()) {
        main->cmdExit.setEnabled(true);
    }
}

void Shell::EnableNav(bool enabled) {
    if (MDILodge* main = frame()) {
        main->EnableNav(enabled);
    }
}

void Shell::ShowTools(bool shown) {
    if (MDILodge* main = frame()) {
        main->ShowTools(shown);
    }
}

void Shell::UnloadPages() {
    for (const Form* form : program_.desk.loadedForms()) {
        if (form->name() != MDILodge::formName && form->name() != frmLodgeStart::formName) {
            program_.desk.unload(form->name());
        }
    }
}

void Shell::StorePageOnScreen() {
    const PageRow* row = findPage(program_.state.intPageCur);
    if (row != nullptr && row->store != nullptr && program_.desk.find(row->form) != nullptr) {
        row->store(program_);
    }
}

void Shell::SwitchPage(bool on) {
    const PageRow* row = findPage(program_.state.intPageCur);
    Form* form = program_.desk.find(row == nullptr ? frmLodgeChoose::formName : row->form);
    if (form != nullptr) {
        form->setEnabled(on);
    }
}

void Shell::PrintReturn() { lodge::PrintReturn(program_); }

void Shell::EndReturn() { returns_.endReturn(); }

} // namespace lodge
