#include "shell/start_screen.h"

#include "file/store_load.h"
#include "state/filing.h"
#include "state/lookup_tables.h"
#include "values/dates.h"
#include "values/identification.h"
#include "values/messages.h"

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

namespace lodge {

namespace {

/// The first days of an accounting period that this year's form serves, B.E. years.
constexpr int firstStartYear = 2560;
constexpr int lastStartYear = 2561;

constexpr std::array<const char*, 8> advice = {
    "คำแนะนำ : ก่อนเริ่มใช้งานโปรแกรม   ให้ Set ค่า Regional and Language ใน Control Panel ดังนี้",
    "1. ที่ Tab Format",
    "1.1 ให้กำหนด Current Format เป็น Thai (Thailand)",
    "1.2 ให้เข้าไปที่ Additional settings   แล้วเข้าไปที่ Tab Date ",
    "- ให้กำหนด Calendar type เป็น พุทธศักราช",
    "- ให้กำหนด Date formats เป็น day month year เช่น dd mm yyyy",
    "2. ที่ Tab Location   ให้กำหนด Home location เป็น Thailand",
    "3. ที่ Tab Administrative   ให้กำหนด Current language เป็น Thai (Thailand)",
};

/// A machine whose calendar shows this year or a later one keeps the Thai era.
constexpr int firstThaiMachineYear = 2500;

/// A date box that holds a day, read apart.
struct Day {
    explicit Day(const std::string& digits)
        : day(digits.substr(0, 2)), month(std::stoi(digits.substr(2, 2))), year(std::stoi(digits.substr(4))) {
    }

    std::string day;
    int month;
    int year; // B.E.
};

/// A whole accounting year has 366 days when it holds a 29 February.
long daysOfYear(const Day& first, const Day& last) {
    const bool leapAtStart = first.month <= 2 && isLeapBuddhistYear(first.year);
    const bool leapAtEnd = last.month >= 2 && isLeapBuddhistYear(last.year);
    return leapAtStart || leapAtEnd ? 366 : 365;
}

void putIn(const Frame& frame, std::initializer_list<Control*> controls) {
    for (Control* control : controls) {
        control->putIn(frame);
    }
}

} // namespace

void beginLoadedReturn(ReturnState& state) {
    SilentNotifier silent;
    ChkNid13(state.strFldPage1[45], state.FucChk.LastValidId, silent);
    state.intNewReturn = 0;
}

frmLodgeStart::frmLodgeStart(Program& program) : Form(program.desk, formName), program_(program) {
    captionControls();
    wireControls();
}

void frmLodgeStart::captionControls() {
    Frame1.setCaption("แบบที่ 1 (บันทึกข้อมูลใหม่)");
    Label2.setCaption("เลือกสถานะดังต่อไปนี้ เพื่อบันทึก \"ช่อง 1 กิจการที่ได้รับยกเว้นภาษีเงินได้\"");
    ChkNewInvestment01.setCaption("กิจการที่ได้รับการส่งเสริมการลงทุน");
    ChkNewInvestment02.setCaption(
        "กิจการสำนักงานปฏิบัติการภูมิภาค (ROH) ที่ได้รับยกเว้นภาษีเงินได้ตามมาตรา 9 แห่ง พ.ร.ฎ. (ฉบับที่ 405)");
    ChkNewInvestment03.setCaption("กิจการสำนักงานปฏิบัติการภูมิภาค (ROH) ที่ได้รับยกเว้นภาษีเงินได้ตามมาตรา 11/3, "
                                  "11/4 แห่ง พ.ร.ฎ. (ฉบับที่ 405)");
    ChkNewInvestment04.setCaption("กิจการสำนักงานใหญ่ข้ามประเทศ (IHQ) ที่ได้รับยกเว้นภาษีเงินได้");
    ChkNewInvestment05.setCaption("กิจการที่ได้รับยกเว้นภาษีเงินได้ตามกฎหมาย อื่น ๆ นอกเหนือจากที่ระบุไว้ข้างต้น");
    ChkInvestment.setCaption("กิจการที่ได้รับการส่งเสริมการลงทุน");
    ChkInvestment2.setCaption("กิจการตามพระราชกฤษฏีกา");
    CmdOK1.setCaption("ตกลง");
    CmdClear1.setCaption("ล้างข้อความ");
    cmdMessage.setCaption("โปรดอ่าน");

    Frame2.setCaption("แบบที่ 2 (การโหลดข้อมูล)");
    CmdBrowse.setCaption("Browse");
    Label7.setCaption("(เปิดไฟล์ที่สร้างจากโปรแกรมบันทึกแบบ ก.ข.ค.77 Version 2561.00 ได้เท่านั้น)");
    CmdOK2.setCaption("ตกลง");
    CmdClear2.setCaption("ล้างข้อความ");

    Command1.setCaption("คลิกเพื่อเปิด Folder เครื่องมือช่วยคำนวณรายการทางบัญชีเป็นรายการทางภาษี");
    notices1.setCaption("เครื่องมือช่วยคำนวณฯ เป็นไฟล์ Excel");
    notices2.setCaption("เมื่อท่านเปิดใช้งาน กรุณา Save As เป็นชื่อไฟล์ใหม่");
    lblAdvice.each([this](Label& label, int line) {
        label.setCaption(advice[static_cast<std::size_t>(line)]);
        label.putIn(Frame4);
    });

    for (std::size_t i = 0; i < investments_.size(); ++i) {
        investments_[i]->setTag(std::to_string(i + 1)); // the investment status that the header line carries
    }
    putIn(Frame1, {&mskDate1, &mskDate2, &Label2, &ChkNewInvestment01, &ChkNewInvestment02,
                      &ChkNewInvestment03, &ChkNewInvestment04, &ChkNewInvestment05, &ChkInvestment,
                      &ChkInvestment2, &CmdOK1, &CmdClear1, &cmdMessage});
    putIn(Frame2, {&txtPath, &CmdBrowse, &Label7, &CmdOK2, &CmdClear2});
}

void frmLodgeStart::wireControls() {
    for (MaskedBox* box : {&mskDate1, &mskDate2}) {
        box->onLostFocus = [this, box] { checkDate(*box); };
    }
    for (CheckBox* box : investments_) {
        box->onClick = [this, box] { exclusive(*box); };
    }
    // These two say nothing to the return; each only takes the other's tick.
    ChkInvestment.onClick = [this] {
        if (ChkInvestment.value()) {
            ChkInvestment2.setValue(false);
        }
    };
    ChkInvestment2.onClick = [this] {
        if (ChkInvestment2.value()) {
            ChkInvestment.setValue(false);
        }
    };

    CmdOK1.onClick = [this] { CmdOK1_Click(); };
    CmdClear1.onClick = [this] { CmdClear1_Click(); };
    CmdClear1.onMouseDown = [this](MousePress& press) {
        if (press.gesture.button == MouseButton::Right && press.gesture.ctrl) {
            mskDate1.setDigits("01012560");
            mskDate2.setDigits("31102560");
        }
    };
    cmdMessage.onClick = [this] { desk().show("frmDialogAlert"); };
    CmdBrowse.onClick = [this] { CmdBrowse_Click(); };
    CmdOK2.onClick = [this] { CmdOK2_Click(); };
    CmdClear2.onClick = [this] { CmdClear2_Click(); };
    Command1.onClick = [this] { Command1_Click(); };
}

void frmLodgeStart::Form_Load() {
    ReturnState& state = program_.state;
    state.DataCtrl_P2.index_nRate = -1;
    state.intStatusIndex = -1;
    program_.shell().EnableTools(false);
    program_.shell().EnableExit();
    fillLookupTables(state);
    program_.isic().LoadIsicTables();
    lbl_Version.setCaption("Version " + state.strVersion);
    state.DataCtrl_P2.resetTaxLabels();
    state.strLocale = machineYear(program_.host()) < firstThaiMachineYear ? "EN" : "TH";
    state.DataCtrl_P1.IndcBusType.clear();
    state.modEdit.EditActive = false;
    state.blnFolderWritable = program_.host().canWriteInto(program_.host().programFolder());
    program_.shell().UnloadPages();
}

void frmLodgeStart::checkDate(MaskedBox& box) {
    if (!box.digits().empty() && ChkDate(box.digits()).empty()) {
        program_.refuse("M026", box);
    }
}

void frmLodgeStart::exclusive(CheckBox& ticked) {
    if (ticked.value()) {
        for (CheckBox* other : investments_) {
            if (other != &ticked) {
                other->setValue(false);
            }
        }
    }
    if (&ticked == &ChkNewInvestment01) {
        program_.state.ChkInvestmentFlag1 = ticked.value() ? 1 : 0;
    }
}

void frmLodgeStart::CmdOK1_Click() {
    ReturnState& state = program_.state;
    state.intError = 0;
    if (!periodIsGiven()) {
        return;
    }
    state.beginReturn(IhqRecord::Clear);
    if (!lengthIsAccepted()) {
        return;
    }
    takePeriod();
    if (!startYearIsServed()) {
        return;
    }

    const int year = machineYear(program_.host());
    if (!state.FucDate.Str2StartDate(mskDate1.text(), year)) {
        program_.notify("FucDate.Str2StartDate(mskDate1.Text) ");
    }
    if (!state.FucDate.Str2EndDate(mskDate2.text(), year)) {
        program_.notify("FucDate.Str2EndDate(mskDate2.Text) ");
    }
    state.FucDate.SetCarryYears(carryYears(state));
    state.blnNeedPage2 = false;
    state.modIHQ.PeriodStart = state.strStartDDMMYY;
    state.modIHQ.PeriodEnd = state.strFinishDDMMYY;
    state.intNewReturn = 1;
    program_.shell().ShowPage1();
}

/// Both days are there and in order.
bool frmLodgeStart::periodIsGiven() {
    for (MaskedBox* box : {&mskDate1, &mskDate2}) {
        if (ChkDate(box->digits()).empty()) {
            program_.refuse("M026", *box);
            return false;
        }
    }
    if (DateToYMD(mskDate2.digits()) < DateToYMD(mskDate1.digits())) {
        program_.refuse("M056", mskDate2);
        return false;
    }
    return true;
}

/// A period of less than a year is asked about, because a company's first one may be short; a longer one is
/// against the law.
bool frmLodgeStart::lengthIsAccepted() {
    const long wholeYear = daysOfYear(Day(mskDate1.digits()), Day(mskDate2.digits()));
    const long days = DateFromText(mskDate2.digits()) - DateFromText(mskDate1.digits()) + 1;
    if (days < wholeYear) {
        const Box question{.text = std::string(GetMessage("M001")),
            .buttons = Buttons::OkCancel,
            .defaultAnswer = Answer::Cancel};
        return program_.show(question) == Answer::Ok;
    }
    if (days > wholeYear) {
        program_.refuse("M109", mskDate2);
        return false;
    }
    return true;
}

void frmLodgeStart::takePeriod() {
    ReturnState& state = program_.state;
    std::size_t field = 1; // day, month name, year of the start in fields 1 to 3, of the end in 4 to 6
    for (const std::string& digits : {mskDate1.digits(), mskDate2.digits()}) {
        const Day date(digits);
        state.strFldPage1[field++] = date.day;
        state.strFldPage1[field++] = MonthName("2", date.month);
        state.strFldPage1[field++] = std::to_string(date.year);
    }
    state.intInvestment = 0;
    for (const CheckBox* box : investments_) {
        if (box->value()) {
            state.intInvestment = static_cast<std::int16_t>(std::stoi(box->tag()));
        }
    }
    state.ChkInvestmentFlag1 = ChkNewInvestment01.value() ? 1 : 0; // a refused file may have emptied it
    state.strStartDDMMYY = mskDate1.digits();
    state.strFinishDDMMYY = mskDate2.digits();
}

bool frmLodgeStart::startYearIsServed() {
    const int year = Day(mskDate1.digits()).year;
    if (year < firstStartYear || year > lastStartYear) {
        program_.message("M158");
        program_.state.intError = 1;
        return false;
    }
    return true;
}

void frmLodgeStart::CmdClear1_Click() {
    mskDate1.setDigits("");
    mskDate2.setDigits("");
    ChkInvestment.setValue(false);
    for (CheckBox* box : investments_) {
        box->setValue(false);
    }
    mskDate1.setFocus();
}

void frmLodgeStart::CmdBrowse_Click() {
    if (const auto file =
            program_.chooseFile({.title = Frame2.caption(), .filter = "Text Files(*.txt)|*.txt"})) {
        txtPath.setText(file->string());
    }
}

void frmLodgeStart::CmdOK2_Click() {
    ReturnState& state = program_.state;
    state.intError = 0;
    if (txtPath.text().empty()) {
        program_.refuse("M071", txtPath);
        return;
    }
    const ReadResult read = loadReturn(txtPath.text(), state, machineYear(program_.host()));
    if (read.status != ReadStatus::Loaded) {
        program_.notify(read.message);
        state.intError = 1;
        txtPath.setFocus();
        return;
    }
    program_.damagedLines = read.damagedLines;
    beginLoadedReturn(state);
    program_.shell().ShowPage1();
    state.blnNeedPage2 = true;
}

void frmLodgeStart::CmdClear2_Click() {
    txtPath.setText("");
    txtPath.setFocus();
}

void frmLodgeStart::Command1_Click() {
    const std::filesystem::path folder = program_.host().programFolder() / "Spreadsheet";
    if (!program_.host().folderExists(folder) || !program_.host().openFolder(folder)) {
        program_.notify("ไม่พบ Folder " + folder.string());
    }
}

} // namespace lodge
