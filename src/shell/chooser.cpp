#include "shell/chooser.h"

#include "shell/page_table.h"

namespace lodge {

frmLodgeChoose::frmLodgeChoose(Program& program, Navigation& navigation)
    : PageForm(program.desk, formName, "เลือกรายการที่ต้องการบันทึก"), program_(program) {
    for (const PageRow& row : pageTable()) {
        if (row.chooserButton == nullptr) {
            continue;
        }
        items_.push_back(std::make_unique<CommandButton>(*this, row.chooserButton));
        items_.back()->setCaption(row.chooserCaption);
        items_.back()->onClick = [&navigation, code = row.code] { navigation.ShowPage(code); };
    }
    lblNoWrite.setCaption("ไม่สามารถเขียนไฟล์ข้อมูลชั่วคราวใน path ที่ติดตั้งโปรแกรมได้  "
                          "ท่านจะต้องเปิดใช้งานโปรแกรมโดย Run as Administrator");
    lblNoWrite.setVisible(false);
}

void frmLodgeChoose::Form_Load() { program_.state.blnChooseShown = true; }

void frmLodgeChoose::Form_Activate() {
    program_.state.DataCtrl_P1.StatusChanged = true;
    const std::filesystem::path folder = program_.host().programFolder() / "temp";
    lblHint.setCaption("หากท่านปิดโปรแกรมโดยไม่ได้จัดเก็บข้อมูลไว้  โปรแกรมจะจัดเก็บข้อมูลชั่วคราวไว้ที่ "
                       "เก็บไว้ที่ "
                       + folder.string());
    lblNoWrite.setVisible(!program_.state.blnFolderWritable);
    closeForOthers();
}

/// The attachment is for an international headquarters alone.
void frmLodgeChoose::closeForOthers() {
    if (Control* attachment = find(findPage(page::headquarters)->chooserButton)) {
        attachment->setEnabled(program_.state.blnIHQPage);
    }
}

void frmLodgeChoose::Form_Unload() { program_.state.blnChooseShown = false; }

} // namespace lodge
