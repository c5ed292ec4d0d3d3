// Item 11: the earlier accounting periods with their results, and the loss of them that is carried to item 3
// line 15. The table is only looked at: the popup adds its rows and the button of the newest row takes them
// away. What is typed here is the carried loss alone.
#pragma once

#include "controls/buttons.h"
#include "controls/control_array.h"
#include "controls/label.h"
#include "controls/text_box.h"
#include "pages/fields/amounts.h"
#include "pages/loss/item11_table.h"
#include "program/page_form.h"
#include "program/program.h"

#include <span>
#include <string>
#include <string_view>

namespace lodge {

class frmLodgePage6_11 : public PageForm {
  public:
    static constexpr const char* formName = "frmLodgePage6_11";
    static constexpr std::int16_t pageCode = 611;

    explicit frmLodgePage6_11(Program& program);

    ControlArray<MaskedBox> mskDateFrom{*this, "mskDateFrom", item11Rows};
    ControlArray<MaskedBox> mskDateTo{*this, "mskDateTo", item11Rows};
    ControlArray<TextBox> txtMoney1{*this, "txtMoney1", item11CarriedCell + 1};
    ControlArray<CommandButton> DelButton{*this, "DelButton", item11Rows};
    Label lblMoney1_42{*this, "lblMoney1_42"}; ///< What the carried loss shows.
    TextBox txtSum{*this, "txtSum"};
    CommandButton Command1{*this, "Command1"};

    /// Fills the page from strFldPage6_11; nothing for a filer with the headquarters attachment. While it is
    /// on screen its negative entries stand there without their sign.
    void ArrayToVar();
    void DataToArray();

    /// Whether the carried loss is the sum that the page offers.
    [[nodiscard]] bool ChkTotal() const;
    /// Sums the columns of the table into Item11ExemptProfit, Item11ExemptLoss and Item11Net.
    void Sum_Item11();
    /// Checks the cell PageChk.CurrentLine; a refusal sets `intError`. With PageChk.SilentCheck 1 the page is
    /// walked: the focus stays where it is, and the carried loss is not asked for.
    void Chk_Item11Money();
    /// Asks for the carried loss when there are periods. 1 when it is there or not needed, -1 after M127,
    /// which sets `intError`.
    int Chk_Item11Deduct();
    /// The check of the whole page on leaving it; the first refusal sets `intError`.
    void Chk_Item11Page();

    /// Shows the button of the row entered last; the table unwinds only in reverse order of entry.
    void ShowButton();
    /// Takes a period from the popup into a row; `results` are the row's cells as shown.
    void takePeriod(
        int row, const MaskedBox& from, const MaskedBox& to, std::span<const std::string> results);

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

  private:
    void wireCells();
    void wireDates();
    void cellLeft(int cell);
    void startLeft(int row);
    [[nodiscard]] bool showAsAmount(TextBox& box);
    [[nodiscard]] bool periodsBearCarriedLoss();
    [[nodiscard]] bool Chk_Item11Date(int row);
    [[nodiscard]] bool walkResults();
    [[nodiscard]] bool hasBothDates(int row) const;
    [[nodiscard]] bool isEmptyRow(int row) const;
    [[nodiscard]] int filledCells() const;
    [[nodiscard]] double columnSum(int cell, int cells, int step) const;

    void clearRow(int row);
    void DelButton_Click(int row);
    void Command1_Click();
    void showSum();
    void switchCarriedCell();
    /// A headquarters lists its periods in its attachment.
    void closeForHeadquarters();
    void refuse(std::string_view code);

    Program& program_;
    UnsignedEntries unsigned_;
    bool keyPressed_ = false; ///< A key that counts was pressed in the cell that has the focus.
};

/// The procedures of the page for the shell: nothing while its form is not loaded.
void P6_11_ArrayToVar(Program& program);
void P6_11_DataToArray(Program& program);
/// The light check: the whole page, then the question for the carried loss.
void Chk_Item11Leave(Program& program);
/// The question for the carried loss alone, which a complete store begins with while the page is on screen.
void Chk_Item11Deduct(Program& program);

} // namespace lodge
