// Page 1 of the return: who files, for which period and in which way, with what company status, in which
// business lines; who audited and who kept the books; whether overpaid tax is wanted back.
#pragma once

#include "controls/buttons.h"
#include "controls/control_array.h"
#include "controls/label.h"
#include "controls/lists.h"
#include "controls/text_box.h"
#include "controls/timer.h"
#include "pages/filer/company_status.h"
#include "program/business_line_page.h"
#include "program/page_form.h"
#include "program/program.h"

#include <chrono>
#include <string>
#include <vector>

namespace lodge {

class frmLodgePage1 : public PageForm, public BusinessLinePage {
  public:
    static constexpr const char* formName = "frmLodgePage1";

    explicit frmLodgePage1(Program& program);

    // Who files.
    TextBox txtNid{*this, "txtNid"};
    /// The old 10-digit number; nobody sees it, but old data still moves through it.
    TextBox txtTinID{*this, "txtTinID"};

    // The accounting period: day, month name, Buddhist year of its first and its last day.
    Label lblDate1{*this, "lblDate1"};
    Label lblMonth1{*this, "lblMonth1"};
    Label lblYear1{*this, "lblYear1"};
    Label lblDate2{*this, "lblDate2"};
    Label lblMonth2{*this, "lblMonth2"};
    Label lblYear2{*this, "lblYear2"};

    // The kind of filing.
    CheckBox chkNormal{*this, "chkNormal"};
    CheckBox chkAdd{*this, "chkAdd"};
    TextBox txtAddNo{*this, "txtAddNo"};
    CheckBox chkAdvance{*this, "chkAdvance"};
    /// A registration number that the form no longer asks for.
    TextBox txtPersonRegNo{*this, "txtPersonRegNo"};

    // Company status, and the columns of the later schedules that are filled in.
    ControlArray<CheckBox> chkStatus{*this, "chkStatus", static_cast<int>(statusCount)};
    CheckBox condition12{*this, "condition12"};
    Label Label1_81{*this, "Label1", 81};
    Label Label1_82{*this, "Label1", 82};
    ControlArray<CheckBox> chkTaxType{*this, "chkTaxType", 2};

    // Up to three business lines.
    ControlArray<Label> lblISICName1{*this, "lblISICName1", 3};
    ControlArray<Label> lblISICCode1{*this, "lblISICCode1", 3};
    ControlArray<CommandButton> cmdSISIC1{*this, "cmdSISIC1", 3};
    ControlArray<CommandButton> cmdCISIC1{*this, "cmdCISIC1", 3};

    // The tax that page 2 came to, and whether an overpaid one is wanted back.
    Label lblMoneyAdd{*this, "lblMoneyAdd"};
    Label lblMoneyOver{*this, "lblMoneyOver"};
    Frame fraCashRefund{*this, "fraCashRefund"};
    ControlArray<OptionButton> cashRefund{*this, "cashRefund", 2};

    // The auditor's report: one choice of six under two headings.
    Frame fraAudit{*this, "fraAudit"};
    ControlArray<OptionButton> audit{*this, "audit", 6};

    // The auditor.
    TextBox txtAuditPinID{*this, "txtAuditPinID"};
    ComboBox cboAuditTitle{*this, "cboAuditTitle"};
    TextBox txtAuditName{*this, "txtAuditName"};
    TextBox txtAuditSurname{*this, "txtAuditSurname"};
    TextBox txtAuditRegNo{*this, "txtAuditRegNo"};
    TextBox txtOffAuditTinID{*this, "txtOffAuditTinID"};
    TextBox txtAudOfficeNid{*this, "txtAudOfficeNid"};
    MaskedBox mskDateReport{*this, "mskDateReport"};

    // The accountant.
    TextBox txtAccPinID{*this, "txtAccPinID"};
    ComboBox cboAccTitle{*this, "cboAccTitle"};
    TextBox txtAccName{*this, "txtAccName"};
    TextBox txtAccSurname{*this, "txtAccSurname"};
    TextBox txtAccCodeNo{*this, "txtAccCodeNo"};
    TextBox txtOffAccTinID{*this, "txtOffAccTinID"};
    TextBox txtAccOfficeNid{*this, "txtAccOfficeNid"};

    TextBox txtSitename{*this, "txtSitename"};

    /// Where the temporary file goes, and that it cannot be written beside the program.
    Label lbl4_1{*this, "lbl4", 1};
    Label lbl4_2{*this, "lbl4", 2};

    /// Rate codes that the status opens, and the numbers of the ticked boxes; ordered lists nobody sees.
    ListBox List1{*this, "List1"};
    ListBox List2{*this, "List2"};
    Timer Timer1{*this, "Timer1", std::chrono::milliseconds(2000)};

    CompanyStatusRules status;

    [[nodiscard]] Program& program() const { return program_; }

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

    bool takeBusinessLine(int row, const std::string& name, const std::string& code) override;

  private:
    void designFields();
    void designStatus();
    std::vector<Control*> statusBoxesOnPaper();
    void designChoices();
    void captionControls();
    void wireFilingKind();
    void wireStatus();
    void wireBusinessLines();
    void wireChoices();
    void wireFields();

    void showPeriod();
    void takePeriod();
    void openStatusBoxes();
    void tickStoredStatus();
    void showChoices();
    void showNotices();

    void chkNormal_Click();
    void chkAdd_Click();
    void chkAdvance_Click();
    void closeAdditionalNumber();
    void leaveAdditionalFiling();
    void cmdSISIC1_Click(int index);
    void cmdCISIC1_Click(int index);
    void lblISICName1_Change();
    void audit_Click();
    void clearRefundWish();
    void Timer1_Timer();

    Program& program_;
};

} // namespace lodge
