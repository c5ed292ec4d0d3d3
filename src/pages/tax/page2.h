// Page 2 of the return: item 1, the investment promotion, and item 2, the tax.
//
// Three layers of item 2 are kept in step. The worksheet (ChkBox_NewAtt, txtIncome, lbSumR) decides the
// figures; line 1 (chkTaxPay), line 2 (chkTaxCal) and the rate boxes (ChkBox_NewRate) are what the return
// stores and follow the worksheet by its clicks and by a timer; the green sheet (green_sheet.h) is opened for
// a business that needs more than one rate.
#pragma once

#include "controls/buttons.h"
#include "controls/control_array.h"
#include "controls/label.h"
#include "controls/text_box.h"
#include "controls/timer.h"
#include "pages/fields/amounts.h"
#include "pages/tax/rate_table.h"
#include "program/business_line_page.h"
#include "program/page_form.h"
#include "program/program.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodge {

class frmLodgePage2 : public PageForm, public BusinessLinePage {
  public:
    static constexpr const char* formName = "frmLodgePage2";
    static constexpr std::int16_t pageCode = 2;

    explicit frmLodgePage2(Program& program);

    // Item 1.
    Picture picTaxExcept{*this, "picTaxExcept"};
    CheckBox ChkNewInvestment01{*this, "ChkNewInvestment01"};
    TextBox txtInvestID{*this, "txtInvestID"};
    MaskedBox mskInvestDate{*this, "mskInvestDate"};
    Label lblISICName2{*this, "lblISICName2"};
    Label lblISICCode2{*this, "lblISICCode2"};
    CommandButton cmdSISIC2{*this, "cmdSISIC2"};
    CommandButton cmdCISIC2{*this, "cmdCISIC2"};
    ControlArray<CheckBox> chkInvestType{*this, "chkInvestType", 4};
    TextBox txtInvestOther{*this, "txtInvestOther"};
    ControlArray<TextBox> txtYearNo{*this, "txtYearNo", 4};
    ControlArray<MaskedBox> mskDateFrom{*this, "mskDateFrom", 4};
    ControlArray<MaskedBox> mskDateTo{*this, "mskDateTo", 4};
    TextBox txtOther{*this, "txtOther"};

    // Item 2, lines 1 and 2 with the worksheet.
    Label txtMoney_Show{*this, "txtMoney_Show"};
    Label lblMoney{*this, "lblMoney"};
    ControlArray<CheckBox> chkTaxPay{*this, "chkTaxPay", 3};
    ControlArray<CheckBox> ChkBox_NewAtt{*this, "ChkBox_NewAtt", worksheetRowCount};
    Label lblBankRate{*this, "lblBankRate"};
    ControlArray<TextBox> txtIncome{*this, "txtIncome", incomeCount};
    ControlArray<Label> lbSumR{*this, "lbSumR", incomeCount};
    Label lbIncomeSum{*this, "lbIncomeSum"};
    Label lbSumTotal{*this, "lbSumTotal"};
    CommandButton Cmd_Deposit{*this, "Cmd_Deposit"};
    ControlArray<CheckBox> chkTaxCal{*this, "chkTaxCal", 3};
    Frame Frame1{*this, "Frame1"};
    ControlArray<CheckBox> ChkBox_NewRate{*this, "ChkBox_NewRate", rateBoxCount};
    CheckBox ChkBox_NewRate17{*this, "ChkBox_NewRate17"};
    CheckBox ChkBox_NewRate18{*this, "ChkBox_NewRate18"};
    CheckBox ChkBox_NewRate19{*this, "ChkBox_NewRate19"};
    CommandButton cmd_CHKRate1718{*this, "cmd_CHKRate1718"};
    TextBox txtNTax{*this, "txtNTax"};
    Label lblTaxChoose{*this, "lblTaxChoose"};
    Label lblTaxValue{*this, "lblTaxValue"};
    Picture picTaxRate{*this, "picTaxRate"};
    ControlArray<CheckBox> chkTaxChoose{*this, "chkTaxChoose", 3};
    CommandButton cmdTaxRateOK{*this, "cmdTaxRateOK"};
    CommandButton cmdTaxRateExit{*this, "cmdTaxRateExit"};

    // Amounts: line 1, the tax, line 3; then lines 3 to 6 as computed.
    ControlArray<TextBox> txtMoney{*this, "txtMoney", 8};
    Label lblMoney1{*this, "lblMoney1"};
    ControlArray<Label> lblMoney2{*this, "lblMoney2", 4};
    CheckBox chkTaxAdd4{*this, "chkTaxAdd4"};
    CheckBox chkTaxAdvance4{*this, "chkTaxAdvance4"};
    CheckBox chkTaxAdd6{*this, "chkTaxAdd6"};
    CheckBox chkTaxAdvance6{*this, "chkTaxAdvance6"};
    Timer Timer1_rate{*this, "Timer1_rate", std::chrono::milliseconds(250)};

    // --- Between array and page (page2_fields.cpp) ---

    /// Fills the page from strFldPage2 and the worksheet's values. It shows what was stored, whatever its own
    /// ticks would clear on the way, and refuses nothing.
    void P2_ArrayToControls();
    /// Rebuilds strFldPage2, the worksheet's values and the figures of lines 4 and 6 from the page.
    void P2_ControlsToArray();
    // --- Checks of single fields (page2_field_checks.cpp) ---

    /// Walks all fields; the first bad one shows its message, takes the focus and sets `intError`.
    void P2_CheckFields();

    // --- The tax (tax_calculate.cpp) ---

    /// Lines 3 to 6 anew after the amount txtMoney(PageChk.CurrentLine) was edited. False, with `intError`
    /// set, when that amount is none; a walk over the whole page (PageChk.SilentCheck) goes on regardless.
    bool TaxCalculate();
    /// Names the rate case for the printed form.
    void RateCaseShow();

    /// Whether the business needs the green sheet: a bank, or more than one company status.
    [[nodiscard]] bool GreenRequired() const { return greenRequired_; }
    /// Takes the figures of the green sheet: the tax and the net profit, as shown texts.
    void takeGreenSheet(const std::string& tax, const std::string& income);

    /// The promoted business of item 1, chosen in the ISIC dialog; page 2 has a single row.
    bool takeBusinessLine(int row, const std::string& name, const std::string& code) override;

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

  private:
    // page2.cpp
    void captionControls();
    void captionItem1();
    void captionItem2();
    void wireControls();
    void placeControls();
    [[nodiscard]] ReturnState& state() const { return program_.state; }
    [[nodiscard]] TaxRecord& tax() const { return program_.state.DataCtrl_P2; }
    [[nodiscard]] bool hasBankCode() const;
    /// The message of what item 3 still lacks before item 2 can be stated; empty for nothing.
    [[nodiscard]] std::string_view whatItem3Lacks() const;
    void enableRateBoxes();
    [[nodiscard]] std::string payStatusOnPage() const;

    // investment_block.cpp
    void wireInvestmentBlock();
    void InvestBlockEnable(bool open);
    void chkInvestType_Click(int i);
    void closeInvestRow(int i);
    void openInvestRow(int i);

    // page2_field_checks.cpp
    bool ChkInvestDate();
    bool ChkYearNo();
    bool ChkDateFrom();
    bool ChkDateTo();
    [[nodiscard]] std::string todayYMD() const;
    bool refuseDate(std::string_view code, MaskedBox& box);

    // worksheet.cpp
    void wireWorksheet();
    void txtIncome_Change(int i);
    void lbSumR_Change(int i);
    void txtIncome_LostFocus();
    void checkWorksheetRow(int row);
    void keepWorksheetTexts();
    void clearWorksheetTexts();
    void ChkBox_NewAtt_Click(int i);
    void openIncome(int income, bool open);
    [[nodiscard]] int chosenRow() const;
    [[nodiscard]] bool incomesAreEmpty() const;
    [[nodiscard]] bool taxesAreEmpty() const;
    [[nodiscard]] bool isTooLong(const std::string& figure) const;
    void hideWorksheetRows();
    void showRow(int row);

    // rate_boxes.cpp
    void wireRateBoxes();
    void Timer1_rate_Timer();
    void mirrorWorksheet();
    [[nodiscard]] CheckBox* mirrorOf(Mirror mirror);
    void ChkBox_NewRate_Click(int i);
    void ChkBox_NewRate_MouseDown(int i, MousePress& press);
    void ChkBox_NewRate_MouseUp();
    void singleRateClicked(CheckBox& box);
    void chkTaxCal_Click(int i);
    void tickOnlyOpenRate();
    void forgetRate();
    [[nodiscard]] int tickedRateBoxes() const;
    void Cmd_Deposit_Click();
    void showComputedTax(const std::string& tax);

    // line1_choice.cpp
    void chkTaxPay_Click(int i);
    [[nodiscard]] bool refuseTick(int i);
    void takeBackTick(int i, std::string_view message);
    void openLine1Amount(int i, bool ticked);
    void offerRows();
    void keepPayStatus(int i, bool ticked);
    void keepProfitTick(int i);
    void firstTickAfterUntick(int i);
    void makeSingleChoice(int i);
    void placeTaxBox();
    void showLossLine();
    void showProfitLine();
    void showReceiptsLine();
    void untickedProfit();
    void wipeRateWhenStatusHasNone();

    // rate_panel.cpp
    void wireRatePanel();
    void lblTaxChoose_Click();
    void cmdTaxRateOK_Click();
    void closeRatePanel();

    // amount_boxes.cpp
    void wireAmountBoxes();
    void txtMoney_Click();
    void txtMoney_Change(int i);
    void txtMoney_LostFocus(int i);
    void taxOfLine1();
    void lblMoney2_Change();
    void lblMoney1_Change();
    void lblMoney1_MouseDown(const MouseGesture& gesture);
    void handToPage1();

    // tax_calculate.cpp
    bool checkEditedAmount();
    void clearForNilAmount();
    void openLine3ForAmount();
    void computeBalance();
    [[nodiscard]] double taxOnPage() const;
    void computeEntry41();

    // page2_fields.cpp
    void showTicks(const FieldArray& stored, const TaxRecord& record);
    void showWorksheet(const TaxRecord& record);
    void showAmounts(const TaxRecord& record);
    void applyStoredExceptions();
    void finishShow();

    Program& program_;
    UnsignedEntries unsigned_;
    bool greenRequired_ = false;
    bool filling_ = false;             ///< The array is on its way into the page.
    bool freshlyFilled_ = false;       ///< Filled, and not on screen yet.
    bool firstTick_ = false;           ///< Profit was unticked; the next tick looks at the green sheet anew.
    bool inSingleChoice_ = false;      ///< One choice of line 1 is taking the tick from another.
    bool takingBack_ = false;          ///< A refused tick is on its way back.
    std::optional<bool> profitTicked_; ///< The last that the first choice of line 1 said.
    int incomeChange_ = 0;             ///< Tells a change of an income that a later one has overtaken.

    /// What the rate panel found open or shown, given back when it closes.
    struct FoundControl {
        Control* control;
        bool enabled;
        bool visible;
    };
    std::vector<FoundControl> underPanel_;
};

// The procedures of the page table. They do nothing while the page is not loaded.

/// Withdraws what the company status does not allow (page2_normalise.h) and fills the page. Run it between
/// loading and showing the page; the first activation then brings the focus.
void P2_ArrayToControls(Program& program);
/// The light check.
void P2_CheckFields(Program& program);
void P2_ControlsToArray(Program& program);

} // namespace lodge
