// Item 12: the balance sheet in brief, assets on one side, liabilities and shareholders' equity on the other.
// The paid-up capital decides over the reduced tax rates.
#pragma once

#include "controls/buttons.h"
#include "controls/control_array.h"
#include "controls/label.h"
#include "controls/text_box.h"
#include "pages/fields/amounts.h"
#include "program/page_form.h"
#include "program/program.h"

namespace lodge {

class frmLodgePage7_12 : public PageForm {
  public:
    static constexpr const char* formName = "frmLodgePage7_12";
    static constexpr std::int16_t pageCode = 712;

    explicit frmLodgePage7_12(Program& program);

    ControlArray<TextBox> txtMoney2{*this, "txtMoney2", 9}; ///< Assets.
    Label lblSumMoney2{*this, "lblSumMoney2"};
    ControlArray<TextBox> txtMoney3{*this, "txtMoney3", 6}; ///< Liabilities.
    Label lblSumMoney3{*this, "lblSumMoney3"};
    /// Equity: registered capital, paid-up capital, another line, the profit or loss carried forward.
    ControlArray<TextBox> txtMoney4{*this, "txtMoney4", 4};
    CheckBox chkProfit{*this, "chkProfit"};
    CheckBox chkLose{*this, "chkLose"};
    Label lblSumMoney4{*this, "lblSumMoney4"};
    Label lblSumMoney34{*this, "lblSumMoney34"}; ///< Liabilities and equity.

    /// Fills the page from strFldPage7_12. While it is on screen its negative entries stand there without
    /// their sign.
    void ArrayToVar();
    void DataToArray();
    /// Checks every cell as on leaving it; the first that is no amount sets `intError` and ends the walk.
    void PageChk();

    void Form_Load() override;
    void Form_Unload() override;

  private:
    void wire(TextBox& box);
    static constexpr int resultLine = 3;
    [[nodiscard]] TextBox& result() { return txtMoney4[resultLine]; }
    [[nodiscard]] bool MoneyChk(TextBox& box);
    void chkRegisFund(TextBox& left);
    void resultKindClicked(CheckBox& clicked, CheckBox& other);
    void showSums();

    Program& program_;
    UnsignedEntries unsigned_;
};

/// The procedures of the page for the shell: nothing while its form is not loaded.
void P7_12_ArrayToVar(Program& program);
void P7_12_DataToArray(Program& program);
void P7_12_PageChk(Program& program);

} // namespace lodge
