// The start screen: a new return for an accounting period, or the load of a stored one.
#pragma once

#include "controls/buttons.h"
#include "controls/control_array.h"
#include "controls/form.h"
#include "controls/label.h"
#include "controls/text_box.h"
#include "program/program.h"

#include <array>

namespace lodge {

/// What a return that was just read from its file begins with: it counts as stored, and so does its number as
/// checked, so that a complete store need not ask for it again.
void beginLoadedReturn(ReturnState& state);

class frmLodgeStart : public Form {
  public:
    static constexpr const char* formName = "frmLodgeStart";

    explicit frmLodgeStart(Program& program);

    Frame Frame1{*this, "Frame1"};
    MaskedBox mskDate1{*this, "mskDate1"};
    MaskedBox mskDate2{*this, "mskDate2"};
    Label Label2{*this, "Label2"};
    CheckBox ChkNewInvestment01{*this, "ChkNewInvestment01"};
    CheckBox ChkNewInvestment02{*this, "ChkNewInvestment02"};
    CheckBox ChkNewInvestment03{*this, "ChkNewInvestment03"};
    CheckBox ChkNewInvestment04{*this, "ChkNewInvestment04"};
    CheckBox ChkNewInvestment05{*this, "ChkNewInvestment05"};
    CheckBox ChkInvestment{*this, "ChkInvestment"};
    CheckBox ChkInvestment2{*this, "ChkInvestment2"};
    CommandButton CmdOK1{*this, "CmdOK1"};
    CommandButton CmdClear1{*this, "CmdClear1"};
    CommandButton cmdMessage{*this, "cmdMessage"};

    Frame Frame2{*this, "Frame2"};
    TextBox txtPath{*this, "txtPath"};
    CommandButton CmdBrowse{*this, "CmdBrowse"};
    Label Label7{*this, "Label7"};
    CommandButton CmdOK2{*this, "CmdOK2"};
    CommandButton CmdClear2{*this, "CmdClear2"};

    CommandButton Command1{*this, "Command1"};
    Label notices1{*this, "notices1"};
    Label notices2{*this, "notices2"};

    /// The advice on the regional settings of the machine, a line a label.
    Frame Frame4{*this, "Frame4"};
    ControlArray<Label> lblAdvice{*this, "lblAdvice", 8};
    Label lbl_Version{*this, "lbl_Version"};

    void Form_Load() override;
    /// It stands in the main frame and has no frame of its own.
    [[nodiscard]] bool isClosable() const override { return false; }

  private:
    void captionControls();
    void wireControls();

    void checkDate(MaskedBox& box);
    void exclusive(CheckBox& ticked);
    void CmdOK1_Click();
    bool periodIsGiven();
    bool lengthIsAccepted();
    void takePeriod();
    bool startYearIsServed();
    void CmdClear1_Click();
    void CmdBrowse_Click();
    void CmdOK2_Click();
    void CmdClear2_Click();
    void Command1_Click();

    Program& program_;
    std::array<CheckBox*, 5> investments_ = {&ChkNewInvestment01, &ChkNewInvestment02, &ChkNewInvestment03,
        &ChkNewInvestment04, &ChkNewInvestment05};
};

} // namespace lodge
