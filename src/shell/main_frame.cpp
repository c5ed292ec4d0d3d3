#include "shell/main_frame.h"

#include "shell/navigation.h"
#include "shell/page_table.h"
#include "shell/return_commands.h"
#include "shell/store_sequence.h"

#include <string>

namespace lodge {

namespace {

bool allKeysHeld(const MouseGesture& gesture) { return gesture.shift && gesture.ctrl && gesture.alt; }

} // namespace

MDILodge::MDILodge(Program& program, const ToolCommands& commands)
    : Form(program.desk, formName), program_(program) {
    captionControls();
    wireTools(commands);
}

void MDILodge::captionControls() {
    cmdPage1.setCaption("หน้า 1");
    cmdChoose.setCaption("เลือกรายการที่ต้องการบันทึก");
    cmdSave1.setCaption("จัดเก็บ");
    cmdSave2.setCaption("จัดเก็บ(ชั่วคราว)");
    CmdPrint.setCaption("พิมพ์");
    CmdClear1.setCaption("ล้างข้อความ");
    CmdClear2.setCaption("ล้างเฉพาะหน้า");
    cmdPageFirst.setCaption("ทำรายการใหม่");
    cmdExit.setCaption("ออก");
    Label2.setCaption("ให้คลิกไปที่หน้าจอบันทึกรายการที่ 2 ก่อนกดปุ่มจัดเก็บ");
    Label1.setCaption("Code: C86");
    Label1.setVisible(false);

    struct Tool {
        CommandButton& button;
        const char* caption;
    };
    for (const Tool& tool : {Tool{Command1, "Prototype Check"}, Tool{Command2, "Edt.Tax"}, Tool{Command3, ""},
             Tool{Command4, "IHQ"}, Tool{Command5, "IHQ_CLS"}, Tool{Command6, "IHQ_HID"},
             Tool{Command7, "Edt.Income"}, Tool{Command8, "DisReChg"}}) {
        tool.button.setCaption(tool.caption);
        tool.button.setVisible(false);
    }
}

void MDILodge::wireTools(const ToolCommands& commands) {
    cmdPage1.onClick = [&navigation = commands.navigation] { navigation.cmdPage1_Click(); };
    cmdChoose.onClick = [&navigation = commands.navigation] { navigation.cmdChoose_Click(); };
    cmdSave1.onClick = [&stores = commands.stores] { stores.cmdSave1_Click(); };
    cmdSave2.onClick = [&stores = commands.stores] { stores.cmdSave2_Click(); };
    CmdPrint.onClick = [this] { CmdPrint_Click(); };
    CmdClear1.onClick = [&returns = commands.returns] { returns.CmdClear1_Click(); };
    CmdClear2.onClick = [&returns = commands.returns] { returns.CmdClear2_Click(); };
    cmdPageFirst.onClick = [&returns = commands.returns] { returns.cmdPageFirst_Click(); };
    cmdExit.onClick = [this] { cmdExit_Click(); };
    Command3.onClick = [this] { program_.shell().PrintReturn(); };
    Command7.onClick = [this] { desk().show("frm_incomeEdit"); };
    Picture1.onMouseDown = [this](MousePress& press) {
        if (allKeysHeld(press.gesture)) {
            Label1.setVisible(true);
        } else {
            Label1.setVisible(false);
            Command1.setVisible(false);
        }
    };
    Label1.onMouseDown = [this](MousePress& press) {
        if (allKeysHeld(press.gesture)) {
            Command1.setVisible(true);
            Command7.setVisible(true);
        }
    };
}

void MDILodge::Form_Load() {
    program_.state.intPagePrev = 0;
    setCaption("แบบแสดงรายการภาษีเงินได้นิติบุคคล ก.ข.ค.77 (Version " + program_.state.strVersion + ")");
}

std::array<CommandButton*, 9> MDILodge::tools() {
    return {&cmdPage1, &cmdChoose, &cmdSave1, &cmdSave2, &CmdPrint, &CmdClear1, &CmdClear2, &cmdPageFirst,
        &cmdExit};
}

void MDILodge::EnableTools(bool enabled) {
    for (CommandButton* button : tools()) {
        button->setEnabled(enabled);
    }
}

void MDILodge::ShowTools(bool shown) {
    for (CommandButton* button : tools()) {
        button->setVisible(shown);
    }
}

void MDILodge::EnableNav(bool enabled) {
    cmdPage1.setEnabled(enabled);
    cmdChoose.setEnabled(enabled);
}

void MDILodge::CmdPrint_Click() {
    ShellServices& shell = program_.shell();
    shell.StorePageOnScreen();
    shell.ShowTools(false);
    shell.PrintReturn();
    shell.ShowTools(true);
    const PageRow* page = findPage(program_.state.intPageCur);
    if (page != nullptr && desk().find(page->form) != nullptr) {
        desk().show(page->form);
    }
}

void MDILodge::cmdExit_Click() {
    const Box question{.text = "ต้องการออกจากระบบ ใช่หรือไม่",
        .buttons = Buttons::YesNo,
        .defaultAnswer = Answer::No,
        .title = "คำเตือน"};
    if (program_.show(question) == Answer::Yes) {
        // Nothing is stored here: the automatic store is the one on the way to the chooser.
        desk().unloadAllExcept({});
        program_.host().quit();
    }
}

} // namespace lodge
