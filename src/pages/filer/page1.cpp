#include "pages/filer/page1.h"

#include "pages/filer/isic_lookup.h"
#include "pages/filer/page1_field_checks.h"
#include "pages/filer/page1_fields.h"
#include "state/filing.h"
#include "state/status_numbers.h"
#include "values/money.h"
#include "values/text.h"

#include <array>
#include <cstddef>
#include <utility>

namespace lodge {

namespace {

// `intNewReturn`: how the return on screen came to be.
constexpr std::int16_t loadedReturn = 0;
constexpr std::int16_t newReturn = 1;
constexpr std::int16_t returnShown = 3; // page 1 has been shown

// Entries of strFldPage2 that an additional filing adds to.
constexpr std::size_t payMore4 = 28;
constexpr std::size_t overpaid4 = 29;
constexpr std::size_t paidBefore = 39; // line 3 (6): tax paid with the form filed before
constexpr std::size_t sumOfLine3 = 40;
constexpr std::size_t line4 = 41;
constexpr std::size_t line6 = 43;

constexpr std::array<const char*, 2> columnCaptions = {
    "ช่อง 1 สำหรับ การกรอกข้อมูลของกิจการที่ได้รับยกเว้นภาษีเงินได้",
    "ช่อง 2 สำหรับ การกรอกข้อมูลของกิจการที่ต้องเสียภาษีเงินได้",
};
constexpr std::array<const char*, 2> refundCaptions = {
    "มีความประสงค์จะขอคืนเงินภาษีที่ชำระไว้เกิน",
    "ไม่มีความประสงค์จะขอคืนเงินภาษีที่ชำระไว้เกิน",
};
constexpr std::array<const char*, 6> auditCaptions = {
    "(1) ไม่มีเงื่อนไข",
    "(2) มีเงื่อนไข",
    "(3) ไม่แสดงความคิดเห็น",
    "(4) ไม่ถูกต้อง",
    "(5) ไม่มีข้อยกเว้น",
    "(6) มีข้อยกเว้น",
};

struct BoxDesignRow {
    std::string_view control;
    int maxLength;
    TextKind kind;
    bool visible;
};

// clang-format off
constexpr std::array textBoxes{
    BoxDesignRow{"txtNid",           13,  TextKind::Number, true},
    BoxDesignRow{"txtTinID",         10,  TextKind::Number, false},
    BoxDesignRow{"txtAddNo",         2,   TextKind::Number, true},
    BoxDesignRow{"txtPersonRegNo",   13,  TextKind::Text,   false},
    BoxDesignRow{"txtAuditPinID",    13,  TextKind::Number, true},
    BoxDesignRow{"txtAuditName",     100, TextKind::Text,   true},
    BoxDesignRow{"txtAuditSurname",  50,  TextKind::Text,   true},
    BoxDesignRow{"txtAuditRegNo",    8,   TextKind::Text,   true},
    BoxDesignRow{"txtOffAuditTinID", 13,  TextKind::Number, false},
    BoxDesignRow{"txtAudOfficeNid",  13,  TextKind::Number, true},
    BoxDesignRow{"txtAccPinID",      13,  TextKind::Number, true},
    BoxDesignRow{"txtAccName",       100, TextKind::Text,   true},
    BoxDesignRow{"txtAccSurname",    50,  TextKind::Text,   true},
    BoxDesignRow{"txtAccCodeNo",     8,   TextKind::Text,   false},
    BoxDesignRow{"txtOffAccTinID",   13,  TextKind::Number, false},
    BoxDesignRow{"txtAccOfficeNid",  13,  TextKind::Number, true},
    BoxDesignRow{"txtSitename",      100, TextKind::Text,   true},
};
// clang-format on

/// "C:\Temp" and "/tmp" with the separator that they are written with at their end.
std::string withSeparator(std::string folder) {
    if (!folder.empty() && !folder.ends_with('\\') && !folder.ends_with('/')) {
        folder += folder.find('\\') == std::string::npos ? '/' : '\\';
    }
    return folder;
}

} // namespace

// --- Design ---

frmLodgePage1::frmLodgePage1(Program& program)
    : PageForm(program.desk, formName, "หน้า 1"), status(*this, program), program_(program) {
    designFields();
    designStatus();
    designChoices();
    captionControls();
    wireFilingKind();
    wireStatus();
    wireBusinessLines();
    wireChoices();
    wireFields();
}

void frmLodgePage1::designFields() {
    for (const BoxDesignRow& row : textBoxes) {
        auto& box = static_cast<TextBox&>(*find(row.control));
        box.setMaxLength(row.maxLength);
        box.setTextKind(row.kind);
        box.setVisible(row.visible);
    }
    txtPersonRegNo.setText("0000000000000");
    txtAccCodeNo.setEnabled(false);
    List1.setVisible(false);
    List2.setVisible(false);
    lbl4_2.setVisible(false);
}

void frmLodgePage1::designStatus() {
    chkStatus.each([](CheckBox& box, int index) {
        const CompanyStatus& row = companyStatuses[static_cast<std::size_t>(index)];
        box.setCaption(std::string(row.caption));
        box.setTag(tagText(index));
        box.setVisible(row.design != BoxDesign::Hidden);
        box.setEnabled(row.design != BoxDesign::Disabled);
    });
    for (Control* control : {static_cast<Control*>(&condition12), static_cast<Control*>(&Label1_81),
             static_cast<Control*>(&Label1_82)}) {
        control->setVisible(false);
    }
    orderOnPaper(statusBoxesOnPaper());
    std::vector<Control*> businessButtons;
    for (int row = 0; row < cmdSISIC1.count(); ++row) {
        businessButtons.insert(businessButtons.end(), {&cmdSISIC1[row], &cmdCISIC1[row]});
    }
    orderOnPaper(businessButtons);
}

std::vector<Control*> frmLodgePage1::statusBoxesOnPaper() {
    std::vector<Control*> boxes;
    chkStatus.each([&](CheckBox& box, int /*index*/) {
        if (box.visible()) {
            boxes.push_back(&box);
        }
    });
    // A caption begins with the number of its line, "(12) ...".
    const auto line = [](const Control* box) {
        return readNumber(std::string_view(static_cast<const CheckBox*>(box)->caption()).substr(1));
    };
    std::ranges::stable_sort(boxes, {}, line);
    return boxes;
}

void frmLodgePage1::designChoices() {
    chkTaxType.each(
        [](CheckBox& box, int index) { box.setCaption(columnCaptions[static_cast<std::size_t>(index)]); });
    cashRefund.each([this](OptionButton& option, int index) {
        option.setCaption(refundCaptions[static_cast<std::size_t>(index)]);
        option.putIn(fraCashRefund);
    });
    audit.each([this](OptionButton& option, int index) {
        option.setCaption(auditCaptions[static_cast<std::size_t>(index)]);
        option.putIn(fraAudit);
    });
}

void frmLodgePage1::captionControls() {
    chkNormal.setCaption("(1) ยื่นปกติ");
    chkAdd.setCaption("(2) ยื่นเพิ่มเติม");
    chkAdvance.setCaption("(3) ชำระล่วงหน้า");
    condition12.setCaption("(12) กิจการที่ได้รับการยกเว้นภาษีเงินได้ตามกฎหมาย");
    Label1_81.setCaption("กิจการที่ได้รับการยกเว้นภาษีเงินได้ตามกฎหมาย");
    Label1_82.setCaption("(13) ถึง (18)");
    cmdSISIC1.each([](CommandButton& button, int) { button.setCaption("ค้นหา"); });
    cmdCISIC1.each([](CommandButton& button, int) { button.setCaption("ล้าง"); });
    fraCashRefund.setCaption("การขอคืนเงินภาษี");
    fraAudit.setCaption("รายงานของผู้สอบบัญชีรับอนุญาต / รายงานการตรวจสอบและรับรองบัญชี");
    lbl4_2.setCaption("ไม่สามารถเขียนไฟล์ข้อมูลชั่วคราวใน path ที่ติดตั้งโปรแกรมได้  "
                      "ท่านจะต้องเปิดใช้งานโปรแกรมโดย Run as Administrator");
}

void frmLodgePage1::wireFilingKind() {
    chkNormal.onClick = [this] { chkNormal_Click(); };
    chkAdd.onClick = [this] { chkAdd_Click(); };
    chkAdvance.onClick = [this] { chkAdvance_Click(); };
}

void frmLodgePage1::wireStatus() {
    chkStatus.each([this](CheckBox& box, int index) {
        box.onMouseDown = [this, index](MousePress& press) { status.chkStatus_MouseDown(index, press); };
        box.onClick = [this, index] { status.chkStatus_Click(index); };
        box.onMouseUp = [this, index](const MouseGesture&) { status.chkStatus_MouseUp(index); };
    });
    chkTaxType.each([this](CheckBox& box, int index) {
        box.onMouseDown = [this, index](MousePress& press) { status.chkTaxType_MouseDown(index, press); };
        box.onClick = [this, index] { status.chkTaxType_Click(index); };
    });
    condition12.onMouseDown = [this](MousePress& press) { status.condition12_MouseDown(press); };
    condition12.onClick = [this] { status.condition12_Click(); };
}

void frmLodgePage1::wireBusinessLines() {
    cmdSISIC1.each([this](CommandButton& button, int index) {
        button.onClick = [this, index] { cmdSISIC1_Click(index); };
    });
    cmdCISIC1.each([this](CommandButton& button, int index) {
        button.onClick = [this, index] { cmdCISIC1_Click(index); };
    });
    lblISICName1.each([this](Label& name, int) { name.onChange = [this] { lblISICName1_Change(); }; });
}

void frmLodgePage1::wireChoices() {
    cashRefund.each([this](OptionButton& option, int index) {
        option.onClick = [this, index] {
            program_.state.intCashRefund = static_cast<std::int16_t>(index + 1);
        };
    });
    audit.each([this](OptionButton& option, int) { option.onClick = [this] { audit_Click(); }; });
    Timer1.onTimer = [this] { Timer1_Timer(); };
    // A leftover of this form that its users know.
    cboAuditTitle.onDoubleClick = [this] { program_.notify("d"); };
}

void frmLodgePage1::wireFields() {
    for (const Page1Leaving& row : page1Leavings) {
        find(row.control)->onLostFocus = [this, leave = row.leave] { leave(*this); };
    }
    txtSitename.onChange = [this] { program_.state.strWebsite = txtSitename.text(); };
}

// --- Opening ---

void frmLodgePage1::Form_Load() {
    ReturnState& state = program_.state;
    txtAddNo.setEnabled(false);
    chkAdvance.setEnabled(false);
    showPeriod();
    if (state.intNewReturn == newReturn) {
        chkNormal.setValue(true);
        state.intNewReturn = returnShown;
    } else if (state.intNewReturn == loadedReturn) {
        P1_ArrayToVar(program_);
        state.intNewReturn = returnShown;
    }
    state.intPageCur = 1;
    takePeriod();
    openStatusBoxes();
    Timer1.setEnabled(true);
    Form_Activate();
}

void frmLodgePage1::showPeriod() {
    const std::array<Label*, 6> labels = {&lblDate1, &lblMonth1, &lblYear1, &lblDate2, &lblMonth2, &lblYear2};
    for (std::size_t i = 0; i < labels.size(); ++i) {
        labels[i]->setCaption(program_.state.strFldPage1[i + 1]);
    }
}

void frmLodgePage1::takePeriod() {
    ReturnState& state = program_.state;
    const int year = machineYear(program_.host());
    if (!state.FucDate.Str2StartDate(state.strStartDDMMYY, year)) {
        program_.notify("FucDate.Str2StartDate(strStartDDMMYY) ");
    }
    if (!state.FucDate.Str2EndDate(state.strFinishDDMMYY, year)) {
        program_.notify("FucDate.Str2EndDate(strFinishDDMMYY) ");
    }
    state.FucDate.SetCarryYears(carryYears(state));
}

/// The exemption chosen on the start screen decides which statuses are offered. Box 11 waits for a legal
/// form.
void frmLodgePage1::openStatusBoxes() {
    const std::int16_t investment = program_.state.intInvestment;
    chkStatus.each([investment](CheckBox& box, int index) {
        bool open = false;
        switch (investment) {
        case 0:
        case 1:
        case 5: open = true; break;
        case 2:
        case 3: open = index == regionalOfficeBox; break;
        case 4: open = index == headquartersBox; break;
        default: break;
        }
        box.setEnabled(open && index != developmentZoneBox);
    });
}

void frmLodgePage1::Form_Activate() {
    tickStoredStatus();
    if (status.anyTicked(statusSet::legalForm)) {
        chkStatus[developmentZoneBox].setEnabled(true);
    }
    chkTaxType[0].setValue(program_.state.intP1Box1 == 1);
    chkTaxType[1].setValue(program_.state.intP1Box2 == 1);
    showChoices();
    showNotices();
}

void frmLodgePage1::tickStoredStatus() {
    const std::string number = program_.state.DataCtrl_P1.IndcBusType;
    for (int box = 0; box < chkStatus.count(); ++box) {
        const std::optional<StatusTag>& tag = companyStatuses[static_cast<std::size_t>(box)].tag;
        if (chkStatus[box].visible() && tag && tag->number == number) {
            chkStatus[box].setValue(true);
            return;
        }
    }
}

void frmLodgePage1::showChoices() {
    const ReturnState& state = program_.state;
    const bool overpaid = !lblMoneyOver.caption().empty();
    cashRefund.each([overpaid](OptionButton& option, int) { option.setEnabled(overpaid); });
    if (!overpaid) {
        clearRefundWish();
    }
    if (state.intCashRefund >= 1 && state.intCashRefund <= cashRefund.count()) {
        cashRefund[state.intCashRefund - 1].setValue(true);
    }
    if (state.intAuditStatus >= 1 && state.intAuditStatus <= audit.count()) {
        audit[state.intAuditStatus - 1].setValue(true);
    }
    txtSitename.setText(state.strWebsite);
}

void frmLodgePage1::showNotices() {
    std::string folder = program_.host().environment("tmp");
    if (folder.empty()) {
        folder = program_.host().environment("temp");
    }
    lbl4_1.setCaption("เก็บไว้ที่ " + withSeparator(std::move(folder)) + "temp");
    if (!program_.state.blnFolderWritable) {
        lbl4_2.setVisible(true);
    }
}

void frmLodgePage1::Form_Unload() { program_.state.blnIHQPage = chkStatus[headquartersBox].value(); }

// --- The kind of filing ---

void frmLodgePage1::closeAdditionalNumber() {
    txtAddNo.setText("");
    txtAddNo.setEnabled(false);
}

void frmLodgePage1::chkNormal_Click() {
    if (chkNormal.value()) {
        chkAdd.setValue(false);
        chkAdvance.setValue(false);
        closeAdditionalNumber();
    }
}

void frmLodgePage1::chkAdvance_Click() {
    if (chkAdvance.value()) {
        chkNormal.setValue(false);
        chkAdd.setValue(false);
        closeAdditionalNumber();
    }
    program_.state.strFldPage1[filing::advancePayment] = chkAdvance.reading();
}

void frmLodgePage1::chkAdd_Click() {
    if (chkAdd.value()) {
        chkNormal.setValue(false);
        chkAdvance.setValue(false);
        txtAddNo.setEnabled(true);
    }
    program_.state.strFldPage1[filing::additional] = chkAdd.reading();
    if (!chkAdd.value()) {
        leaveAdditionalFiling();
    }
}

/// The tax paid before counts in an additional filing alone, so item 2 is worked out again without it.
void frmLodgePage1::leaveAdditionalFiling() {
    closeAdditionalNumber();
    FieldArray& page2 = program_.state.strFldPage2;
    const std::string sumBefore = page2[sumOfLine3];
    page2[sumOfLine3] = plainNumberText(readFigure(sumBefore) - readFigure(page2[paidBefore]));
    page2[paidBefore].clear();
    lblMoneyAdd.setCaption("");
    lblMoneyOver.setCaption("");

    const double left = readFigure(page2[line4]);
    const bool paysMore = readFigure(page2[payMore4]) == 1.0;
    const bool overpaid = readFigure(page2[overpaid4]) == 1.0;
    if (left < 0) {
        page2[line6] = formatMoney(-left);
        lblMoneyAdd.setCaption(page2[line6]);
    } else if (left > 0) {
        page2[line6] = formatMoney(left);
        lblMoneyAdd.setCaption(paysMore ? page2[line6] : "");
        lblMoneyOver.setCaption(overpaid ? page2[line6] : "");
    }

    bool nothingLeft = true;
    for (const std::size_t entry : {line4, payMore4, overpaid4, sumOfLine3}) {
        nothingLeft = nothingLeft && readFigure(page2[entry]) == 0.0;
    }
    if (!nothingLeft) {
        return;
    }
    page2[line6] = sumBefore;
    if (readFigure(sumBefore) < 0) {
        page2[line6] = formatMoney(-left);
        lblMoneyAdd.setCaption("");
        lblMoneyOver.setCaption(page2[line6]);
    } else {
        lblMoneyOver.setCaption("");
        lblMoneyAdd.setCaption(page2[line6]);
    }
}

// --- Business lines ---

void frmLodgePage1::cmdSISIC1_Click(int index) {
    static_cast<frmLodgeISIC&>(desk().load(frmLodgeISIC::formName)).setRow(index);
    program_.shell().ShowTools(false);
    desk().show(frmLodgeISIC::formName, Modality::Modal);
}

void frmLodgePage1::cmdCISIC1_Click(int index) {
    lblISICName1[index].setCaption("");
    lblISICCode1[index].setCaption("");
}

bool frmLodgePage1::takeBusinessLine(int row, const std::string& name, const std::string& code) {
    for (int other = 0; other < lblISICCode1.count(); ++other) {
        if (other != row && lblISICCode1[other].caption() == code) {
            return false;
        }
    }
    lblISICName1[row].setCaption(name);
    lblISICCode1[row].setCaption(code);
    return true;
}

void frmLodgePage1::lblISICName1_Change() {
    std::string& text = program_.state.FucChk.BusinessText;
    text.clear();
    lblISICName1.each([&text](const Label& name, int) { text += name.caption(); });
}

// --- Refund and audit report ---

void frmLodgePage1::audit_Click() {
    audit.each([this](const OptionButton& option, int index) {
        if (option.value()) {
            program_.state.intAuditStatus = static_cast<std::int16_t>(index + 1);
        }
    });
}

void frmLodgePage1::clearRefundWish() {
    cashRefund.each([](OptionButton& option, int) { option.setValue(false); });
}

/// Keeps the refund wish honest: without an overpaid amount there is nothing to want back.
void frmLodgePage1::Timer1_Timer() {
    const bool overpaid = !lblMoneyOver.caption().empty();
    cashRefund.each([overpaid](OptionButton& option, int) { option.setEnabled(overpaid); });
    if (!overpaid) {
        clearRefundWish();
        program_.state.intCashRefund = 0;
    }
    if (!status.anyTicked(statusSet::keepsBox11)) {
        program_.state.blnStatus11Kept = false;
    }
}

} // namespace lodge
