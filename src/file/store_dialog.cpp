#include "file/store_dialog.h"

#include "file/file_io.h"
#include "file/safe_writer.h"
#include "file/store_load.h"
#include "state/filing.h"
#include "state/tax_fields.h"
#include "values/text.h"

#include <chrono>
#include <string>

namespace lodge {

namespace {

/// Field 45 of page 1 is the filer's 13-digit number, field 0 the old 10-digit one.
constexpr std::size_t idField = 45;
constexpr std::size_t oldIdField = 0;

/// Why an id cannot name the file: a code of the catalogue, empty when it can. Ids of 14 and 18 digits are
/// those of older filers; with an id that equals the filer's number their rules never speak.
std::string_view idRefusal(const std::string& id, const FieldArray& page1) {
    if (id.empty()) {
        return "M078";
    }
    if (id != page1[idField]) {
        return "M083";
    }
    const std::size_t length = textLength(id);
    if (length == 14 && textLeft(id, 10) != page1[oldIdField]) {
        return page1[oldIdField].empty() ? "M134" : "M111";
    }
    if (length == 18 && textLeft(id, 13) != page1[idField]) {
        return page1[idField].empty() ? "M135" : "M130";
    }
    return {};
}

std::string filingTypeCaption(const std::string& type) {
    if (type == "1") {
        return "1 - ยื่นปกติ";
    }
    if (type == "2") {
        return "2 - ยื่นเพิ่มเติม";
    }
    return type == "3" ? "3 - ชำระล่วงหน้า" : type;
}

std::string storeTypeCaption(const std::string& type) {
    return type == "C" ? "C - จัดเก็บสมบรูณ์" : type + " -  จัดเก็บไม่สมบรูณ์";
}

/// The packed file bears the day alone: two stores of one return on one day are one file, byte for byte.
std::chrono::local_seconds fileTime(const Host& host) { return std::chrono::local_days(host.today()); }

/// Writes and packs the return. False, with a message, when it could not be stored.
bool writeReturn(Program& program, const std::string& folder, const std::string& id) {
    program.host().setBusy(true);
    const StoreResult stored = storeReturn(program.state, folder, id, fileTime(program.host()));
    program.host().setBusy(false);
    if (!stored.error.empty()) {
        program.notify(stored.error);
        return false;
    }
    return true;
}

/// Closes a form of the store and gives the page below it and the toolbar back.
void backToPage(Program& program, const char* form) {
    program.shell().EnableTools(true);
    program.shell().SwitchPage(true);
    program.desk.unload(form);
}

} // namespace

frmLodgeDirec::frmLodgeDirec(Program& program)
    : Form(program.desk, formName, "จัดเก็บข้อมูล"), program_(program) {
    txtUserID.setTextKind(TextKind::Number);
    txtUserID.setMaxLength(18);
    Dir1.setCaption("เลือก Folder");
    Label1.setCaption("ควรจัดเก็บไฟล์ไว้ใน Drive ที่ใช้เก็บข้อมูล ไม่ควรเก็บไว้ใน Drive ของระบบ");
    cmdOk.setCaption("ตกลง");
    cmdExit.setCaption("ออก");
    Dir1.onClick = [this] { Dir1_Click(); };
    cmdOk.onClick = [this] { cmdOk_Click(); };
    cmdExit.onClick = [this] { cmdExit_Click(); };
}

void frmLodgeDirec::Form_Load() {
    const ReturnState& state = program_.state;
    txtPath.setText(asFolder(program_.host().programFolder().string()));
    txtUserID.setText(state.strFldPage1[idField]);
    lblTaxYear.setCaption(state.strTaxYear);
    lblTaxType.setCaption(filingTypeCaption(state.strFilingType));
    lblTaxNumber.setCaption(state.strAddNo);
    lblTaxSave.setCaption(storeTypeCaption(state.strStoreType));
}

void frmLodgeDirec::Dir1_Click() {
    if (const auto folder = program_.chooseFolder(txtPath.text())) {
        txtPath.setText(asFolder(folder->string()));
    }
}

bool frmLodgeDirec::refuses(std::string_view code) {
    if (!code.empty()) {
        program_.refuse(code, txtUserID);
    }
    return !code.empty();
}

void frmLodgeDirec::cmdOk_Click() {
    program_.state.intError = 0;
    if (refuses(idRefusal(txtUserID.text(), program_.state.strFldPage1))
        || refuses(txtPath.text().empty() ? "M071" : "")) {
        return;
    }
    program_.shell().StorePageOnScreen();
    const std::string folder = asFolder(trimBlanks(txtPath.text()));
    if (!writeReturn(program_, folder, txtUserID.text())) {
        return; // the dialog stays with its content, so that another folder can be chosen
    }
    if (onStored) {
        onStored();
    }
    desk().unload(formName);
    if (program_.state.strStoreType == "N") {
        program_.show({.text = "จัดเก็บข้อมูล(ชั่วคราว) เรียบร้อย", .title = "ข้อความแจ้งให้ทราบ"});
        cmdExit_Click();
        return;
    }
    desk().show(frmLodgeDisp1::formName);
}

void frmLodgeDirec::cmdExit_Click() { backToPage(program_, formName); }

frmLodgeDisp1::frmLodgeDisp1(Program& program)
    : Form(program.desk, formName, "จัดเก็บข้อมูล"), program_(program) {
    LblMessage1.setCaption("จัดเก็บข้อมูลลงไฟล์เรียบร้อยแล้ว");
    LblMessage2.setCaption("ใช้สำหรับ Upload ในการยื่นแบบภาษีเงินได้ ก.ข.ค.77");
    CmdPrint.setCaption("พิมพ์");
    CmdSaveExit.setCaption("ทำรายการใหม่");
    CmdPrint.onClick = [this] { CmdPrint_Click(); };
    CmdSaveExit.onClick = [this] { program_.shell().EndReturn(); };
}

void frmLodgeDisp1::Form_Load() { LblMessage3.setCaption(packedPathOf(program_.state.strFileName)); }

void frmLodgeDisp1::CmdPrint_Click() {
    // The way into the store left page 2 by its unloading, which puts the income where the tax belongs.
    ReturnState& state = program_.state;
    restoreTaxFields(state);
    state.strFldPage2[33] = state.DataCtrl_P2.TaxValue;
    program_.shell().PrintReturn();
}

void frmLodgeDisp1::closedByFrame() { backToPage(program_, formName); }

void storeAutomatically(Program& program) {
    ReturnState& state = program.state;
    state.strStoreType = "T";
    setFilingType(state);
    const std::string& id = state.strFldPage1[idField];
    if (const std::string_view refusal = idRefusal(id, state.strFldPage1); !refusal.empty()) {
        program.message(refusal);
        return;
    }
    const std::string folder = (program.host().programFolder() / "temp").string();
    SystemFiles files;
    if (const SafeStoreResult made = makeFolderSafely(files, folder); !made.ok()) {
        program.notify(storeFailureText(made));
        return;
    }
    writeReturn(program, asFolder(folder), id);
}

} // namespace lodge
