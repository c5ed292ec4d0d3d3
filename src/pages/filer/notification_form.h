// Page 8 of the return, the notification form ("แบบแจ้งข้อความ"): five questions about the business, each with
// a reason, the auditor's remark and the date of the statement.
#pragma once

#include "controls/buttons.h"
#include "controls/control_array.h"
#include "controls/label.h"
#include "controls/text_box.h"
#include "program/checks.h"
#include "program/page_form.h"
#include "program/program.h"

#include <array>
#include <span>

namespace lodge {

class frmLodgePage8 : public PageForm {
  public:
    static constexpr const char* formName = "frmLodgePage8";

    explicit frmLodgePage8(Program& program);

    /// The filer's 13-digit number: a return holds no name.
    Label lblName{*this, "lblName"};
    Label lblDate1{*this, "lblDate1"};
    Label lblMonth1{*this, "lblMonth1"};
    Label lblYear1{*this, "lblYear1"};
    Label lblDate2{*this, "lblDate2"};
    Label lblMonth2{*this, "lblMonth2"};
    Label lblYear2{*this, "lblYear2"};

    // The questions; box 0 is the first answer on the paper, and a pair never stands ticked both.
    ControlArray<CheckBox> chkBussiness1{*this, "chkBussiness1", 2};
    TextBox txtBussiness1{*this, "txtBussiness1"};
    ControlArray<CheckBox> chkBussiness2{*this, "chkBussiness2", 2};
    TextBox txtBussiness2{*this, "txtBussiness2"};
    ControlArray<CheckBox> chkBussiness3{*this, "chkBussiness3", 2};
    TextBox txtBussiness3{*this, "txtBussiness3"};
    ControlArray<CheckBox> chkBussiness4{*this, "chkBussiness4", 2};
    TextBox txtBussiness4{*this, "txtBussiness4"};
    ControlArray<CheckBox> chkBussiness5{*this, "chkBussiness5", 2};
    TextBox txtBussiness5{*this, "txtBussiness5"};

    TextBox txtAuditDesc{*this, "txtAuditDesc"};
    TextBox txtAuditOther{*this, "txtAuditOther"};
    MaskedBox mskDate1{*this, "mskDate1"};

    [[nodiscard]] Program& program() const { return program_; }

    void Form_Load() override;

  private:
    /// A question: its boxes, its reason, and the box that asks for the reason.
    struct Question {
        ControlArray<CheckBox>& boxes;
        TextBox& reason;
        int withReason;
    };

    void designReasons();
    void chkBussiness_Click(const Question& question, int index);

    Program& program_;
    std::array<Question, 5> questions_ = {Question{chkBussiness1, txtBussiness1, 0},
        Question{chkBussiness2, txtBussiness2, 0}, Question{chkBussiness3, txtBussiness3, 0},
        Question{chkBussiness4, txtBussiness4, 0}, Question{chkBussiness5, txtBussiness5, 1}};
};

/// Shows strFldPage8 on the form; loads it if needed.
void P8_ArrayToVar(Program& program);

/// Empties strFldPage8 and rebuilds it from the controls. Nothing while the form is not loaded.
void P8_DataToArray(Program& program);

/// The date of the statement: a day (M026) before today (M068) and after the period (M119). A refusal sets
/// `intError` and puts the focus back on the box. True while the form is not loaded.
bool P8_CheckDate(Program& program);

/// The light check: the date, when it has digits.
void P8_CheckForm(Program& program);

/// The full check, over strFldPage8. The first refusal sets `intError`.
void P8_CheckData(Program& program);

/// The rows of the full check in their order.
[[nodiscard]] std::span<const CheckRow> page8CheckRows();

} // namespace lodge
