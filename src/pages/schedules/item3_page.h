// Item 3: from the profit of the accounts to the net profit on which tax is computed, in three columns.
// Line 22 is what line 1 of item 2 must agree with.
#pragma once

#include "controls/buttons.h"
#include "controls/label.h"
#include "controls/text_box.h"
#include "pages/fields/amounts.h"
#include "pages/schedules/item3_columns.h"
#include "program/page_form.h"
#include "program/program.h"

#include <array>

namespace lodge {

class frmLodgePage3_3 : public PageForm {
  public:
    static constexpr const char* formName = "frmLodgePage3_3";
    static constexpr std::int16_t pageCode = 33;

    explicit frmLodgePage3_3(Program& program);

    Item3Columns columns{*this};
    CheckBox chkProfit3{*this, "chkProfit3"};
    CheckBox chkLose3{*this, "chkLose3"};
    CheckBox chkProfit9{*this, "chkProfit9"};
    CheckBox chkLose9{*this, "chkLose9"};
    Label lblTotMoney33{*this, "lblTotMoney33"};
    CheckBox chkProfit20{*this, "chkProfit20"};
    CheckBox chkLose20{*this, "chkLose20"};
    // The side box of a company with both kinds of business, which states line 22 itself.
    CheckBox chkProfitX{*this, "chkProfitX"};
    CheckBox chkLoseX{*this, "chkLoseX"};
    TextBox txtBOI{*this, "txtBOI"};

    /// Fills the page from strFldPage3_3. While it is on screen its negative entries stand there without
    /// their sign.
    void P3_3_ArrayToControls();
    /// Rebuilds strFldPage3_3 and the holders of the side box from the page.
    void P3_3_ControlsToArray();
    /// Computes a column and what hangs on it after its box PageChk.CurrentLine was edited. That box is
    /// checked first; a bad figure empties it, takes the focus, sets `intError` and ends the computation
    /// unless PageChk.SilentCheck is 1.
    void P3_3_Recalculate(Column column);
    /// Checks and computes every filled line down to line 19; the first bad figure sets `intError` and ends
    /// the walk.
    void P3_3_CheckPage();

    void EnableColumn1(bool open) { enableColumn(Column::Exempt, open); }
    void EnableColumn2(bool open) { enableColumn(Column::Taxable, open); }

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

  private:
    void wireControls();
    void enableColumn(Column column, bool open);

    [[nodiscard]] bool checkEditedBox(Column column);
    void computeLine(int number, Column column);
    void computeLine21(Column column);
    void computeTotal(const Item3Line& line);
    void showTotal(int place);
    void tickBySign(const std::string& figure, CheckBox& profit, CheckBox& loss);
    void computeLine22();

    [[nodiscard]] bool hasBothColumns() const;
    [[nodiscard]] std::array<Control*, 3> sideBox();
    void offerSideBox();
    void withdrawSideBox();
    void copySideTicks();
    void sideTickClicked(CheckBox& clicked, CheckBox& other);
    void txtBOI_LostFocus();
    void takeStatedAmount(double amount);

    void showLines();
    void showSubLines();
    void showSideBox();
    void storeSideBox();

    Program& program_;
    UnsignedEntries unsigned_;
};

// The procedures of the page table. They do nothing while the page is not loaded.

void P3_3_ArrayToControls(Program& program);
/// The light check.
void P3_3_CheckPage(Program& program);
void P3_3_ControlsToArray(Program& program);

} // namespace lodge
