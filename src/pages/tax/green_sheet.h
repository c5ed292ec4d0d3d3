// The green work sheet: the net profit of a business that needs more than one rate, split by rate. It gives
// page 2 the net profit and the tax. Two generations of fields stand on it, and a stored return has both: the
// line form (strFldPage1_2) and the row form (modGreen).
#pragma once

#include "controls/buttons.h"
#include "controls/control_array.h"
#include "controls/form.h"
#include "controls/label.h"
#include "controls/text_box.h"
#include "program/program.h"

#include <string>
#include <string_view>

namespace lodge {

/// "#,##0.00" of a shown amount, brackets when negative; an empty text stays empty.
[[nodiscard]] std::string FormatMoney(std::string_view text);
/// Whether a text can be an amount of the sheet; an empty one can.
[[nodiscard]] bool IsAmountText(std::string_view text);
/// Empties strFldPage1_2 and the sheet's total tax. (`ClearArray` of the sheet.)
void clearGreenArray(ReturnState& state);

class frmLodgePage1_2 : public Form {
  public:
    static constexpr const char* formName = "frmLodgePage1_2";
    static constexpr int rowCount = 4;

    explicit frmLodgePage1_2(Program& program);

    // Row form.
    ControlArray<Label> lblRow{*this, "lblRow", rowCount};
    Label lbShowRate{*this, "lbShowRate"};
    ControlArray<TextBox> txtIncome{*this, "txtIncome", rowCount};
    ControlArray<TextBox> txtSum{*this, "txtSum", rowCount};
    TextBox txtIncomeSum{*this, "txtIncomeSum"};
    TextBox txtSumTax{*this, "txtSumTax"};
    ControlArray<Label> lbSumR{*this, "lbSumR", rowCount};
    Label lbIncomeSum{*this, "lbIncomeSum"};
    Label lbSumTotal{*this, "lbSumTotal"};
    // Line form.
    ControlArray<TextBox> txtMoney71{*this, "txtMoney71", 3};
    Label lblSumMoney71{*this, "lblSumMoney71"};
    ControlArray<Label> lblMoney73{*this, "lblMoney73", 3};
    Label lblMoney2_9{*this, "lblMoney2_9"};
    CommandButton Cmd_Ok{*this, "Cmd_Ok"};

    /// Fills the line form from strFldPage1_2.
    void P1_2_ArrayToVar();
    /// Rebuilds strFldPage1_2 from the line form and hands its totals to page 2.
    void P1_2_DataToArray();
    /// Computes the line form after txtMoney71(i) was edited. A bad amount is emptied, takes the focus, sets
    /// `intError` and ends the computation unless PageChk.SilentCheck is 1.
    void Sum_txtMoney71(int i);

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

  private:
    void captionControls();
    void wireControls();
    void storeLineForm();
    void openRow(int row, bool open);
    void showRows();
    void txtIncome_LostFocus(int i);
    void txtSum_Change(int i);
    void sumIncomes();
    void Cmd_Ok_Click();
    [[nodiscard]] bool hasBankCode() const;

    Program& program_;
};

} // namespace lodge
