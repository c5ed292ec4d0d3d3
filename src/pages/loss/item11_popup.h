// The popup of item 11: takes one earlier accounting period after the other, walking back in time from the
// period of the return. It stays open over many entries; the page under it is switched off meanwhile.
#pragma once

#include "controls/buttons.h"
#include "controls/control_array.h"
#include "controls/form.h"
#include "controls/label.h"
#include "controls/text_box.h"
#include "pages/loss/item11_page.h"
#include "pages/loss/item11_rules.h"
#include "program/program.h"

namespace lodge {

class frmLodgePage6_11Popup : public Form {
  public:
    static constexpr const char* formName = "frmLodgePage6_11Popup";

    explicit frmLodgePage6_11Popup(Program& program);

    Label Label2{*this, "Label2"}; ///< Which year before the present one is asked for.
    Label Label3{*this, "Label3"}; ///< The period of the return.
    CheckBox Check1{*this, "Check1"};
    CheckBox Check2{*this, "Check2"};
    ControlArray<MaskedBox> mskDateFrom{*this, "mskDateFrom", 1};
    ControlArray<MaskedBox> mskDateTo{*this, "mskDateTo", 1};
    /// Exempt profit, exempt loss, taxable profit, taxable loss.
    ControlArray<TextBox> txtMoney1{*this, "txtMoney1", 4};
    CommandButton cmdOK01{*this, "cmdOK01"};
    CommandButton cmdCan01{*this, "cmdCan01"};

    [[nodiscard]] const ReturnState& state() const { return program_.state; }

    void Form_Load() override;
    void Form_Unload() override;

  private:
    void wireControls();
    void Check1_Click();
    void Check2_Click();
    void closeWithoutChoice();
    void startLeft();
    void endEntered();
    void endLeft();
    void amountLeft(int cell);
    void cmdOK01_Click();
    void addEntry(frmLodgePage6_11& page);
    void ClearEntry();
    void askForNextPeriod();
    [[nodiscard]] NewPeriod typedPeriod() const;
    void refuse(const NewPeriodRule& rule, MaskedBox& left);

    Program& program_;
};

} // namespace lodge
