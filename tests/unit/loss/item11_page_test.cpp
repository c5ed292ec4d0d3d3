#include "item11_desktop.h"
#include "pages/loss/item11_page.h"

#include <gtest/gtest.h>

namespace lodge {
namespace {

class Item11Page : public testing::Test, public Item11Desktop {
  protected:
    frmLodgePage6_11& page = openPage();
    TextBox& carried() { return page.txtMoney1[42]; }

    void putRow(int row, const char* from, const char* to) {
        page.mskDateFrom[row].setDigits(from);
        page.mskDateTo[row].setDigits(to);
    }
    /// A period with a loss of 100 in the lowest row, and the page as it looks afterwards.
    void addPeriod() {
        auto& popup = openPopup();
        addTaxable(popup, "01012560", "100");
        user.click(popup.cmdCan01);
    }
    /// Leaves the page; true when nothing stands in the way.
    bool leaves() {
        host.shown.clear();
        state().intError = 0;
        Chk_Item11Leave(program);
        return state().intError == 0;
    }
};

// --- The page ---

TEST_F(Item11Page, ShowsATableThatNobodyTypesInto) {
    EXPECT_EQ(state().intPageCur, 611);
    for (int row = 0; row < item11Rows; ++row) {
        EXPECT_FALSE(page.mskDateFrom[row].enabled());
        EXPECT_FALSE(page.mskDateTo[row].enabled());
        EXPECT_FALSE(page.DelButton[row].visible());
        EXPECT_EQ(page.DelButton[row].caption(), "ลบ");
    }
    for (int cell = 0; cell <= 42; ++cell) {
        EXPECT_FALSE(page.txtMoney1[cell].enabled()) << cell;
        EXPECT_EQ(page.txtMoney1[cell].back(), BackColour::Button) << cell;
    }
    EXPECT_EQ(page.Command1.caption(), "เพิ่มรายการ");
    EXPECT_EQ(page.txtSum.text(), "0.00");
}

TEST_F(Item11Page, OpensTheCarriedLossOnceThereIsAPeriod) {
    addPeriod();
    EXPECT_TRUE(carried().enabled());
    EXPECT_EQ(carried().back(), BackColour::Window);
    EXPECT_EQ(page.txtSum.text(), "100.00");
}

TEST_F(Item11Page, IsClosedToAHeadquartersCompany) {
    program.desk.unload("frmLodgePage6_11");
    state().blnIHQPage = true;
    state().intItem11Count = 1;
    state().intItem11Type[0] = 12;
    state().strFldPage6_11[12] = "01/01/2560";
    auto& closed = openPage();
    EXPECT_FALSE(closed.Command1.visible());
    for (const Control* control : closed.controls())
        EXPECT_FALSE(control->enabled()) << control->fullName();
    EXPECT_FALSE(closed.DelButton[12].visible());
    EXPECT_EQ(closed.mskDateFrom[12].digits(), "") << "its array is not shown";
    EXPECT_TRUE(leaves());
}

TEST_F(Item11Page, MovesItsArrayIntoItsControlsAndBack) {
    FieldArray& fields = state().strFldPage6_11;
    for (int row = 0; row < item11Rows; ++row) {
        fields[fromEntry(row)] = "01/01/25" + std::to_string(40 + row);
        fields[toEntry(row)] = "31/12/25" + std::to_string(40 + row);
    }
    for (int cell = 0; cell <= 42; ++cell)
        fields[cellEntry(cell)] = std::to_string(1000 + cell) + ".50";
    fields[cellEntry(3)] = "-3.00";
    fields[cellEntry(4)] = "";
    const FieldArray stored = fields;
    P6_11_ArrayToVar(program);
    EXPECT_EQ(page.mskDateFrom[12].text(), "01/01/2552");
    EXPECT_EQ(page.mskDateTo[0].text(), "31/12/2540");
    EXPECT_EQ(page.txtMoney1[0].text(), "1,000.50");
    EXPECT_EQ(page.txtMoney1[3].text(), "(3.00)");
    EXPECT_EQ(page.txtMoney1[4].text(), "");
    EXPECT_EQ(fields[cellEntry(3)], "3.00");
    fields[80] = "x";
    P6_11_DataToArray(program);
    EXPECT_EQ(fields, stored);
}

TEST_F(Item11Page, GivesItsArrayTheSignsBackWhenItGoesWithoutAStore) {
    state().strFldPage6_11[cellEntry(3)] = "-3.00";
    P6_11_ArrayToVar(program);
    program.desk.unload("frmLodgePage6_11");
    EXPECT_EQ(state().strFldPage6_11[cellEntry(3)], "-3.00");
}

// --- Sums ---

TEST_F(Item11Page, OffersLossesLessTaxableProfits) {
    page.txtMoney1[0].setText("9,000.00");  // an exempt profit stays outside
    page.txtMoney1[29].setText("500.00");   // exempt loss
    page.txtMoney1[30].setText("120.00");   // taxable profit
    page.txtMoney1[27].setText("60.00");    // taxable loss
    page.txtMoney1[40].setText("40.00");    // taxable profit of block 2
    page.txtMoney1[39].setText("1,000.00"); // taxable loss of block 2
    page.Form_Activate();
    EXPECT_EQ(page.txtSum.text(), "1,400.00");
}

TEST_F(Item11Page, OffersNothingWhereTheProfitsAreLarger) {
    page.txtMoney1[40].setText("40.00");
    page.txtMoney1[39].setText("10.00");
    page.Form_Activate();
    EXPECT_EQ(page.txtSum.text(), "0.00");
}

TEST_F(Item11Page, FollowsARealKeyPressInATableThatIsOpened) {
    page.txtMoney1[41].setEnabled(true);
    page.txtMoney1[41].setText("50");
    EXPECT_EQ(page.txtSum.text(), "0.00") << "code alone moves nothing";
    user.focus(page.txtMoney1[41]);
    user.key(page.txtMoney1[41], U'x');
    user.edit(page.txtMoney1[41], "5");
    EXPECT_EQ(page.txtSum.text(), "0.00") << "a key that does not count";
    user.key(page.txtMoney1[41], U'7');
    user.edit(page.txtMoney1[41], "57");
    EXPECT_EQ(page.txtSum.text(), "57.00");
}

TEST_F(Item11Page, SumsTheColumnsOfTheTable) {
    page.txtMoney1[0].setText("1.00");
    page.txtMoney1[28].setText("2.00");
    page.txtMoney1[1].setText("30.00");
    page.txtMoney1[2].setText("400.00");
    page.txtMoney1[32].setText("500.00");
    page.txtMoney1[3].setText("6,000.00");
    page.txtMoney1[41].setText("7,000.00");
    page.Sum_Item11();
    EXPECT_EQ(state().Item11ExemptProfit, 3.0);
    EXPECT_EQ(state().Item11ExemptLoss, 30.0);
    EXPECT_EQ(state().Item11Net, 12100.0);
    page.txtMoney1[3].setText("");
    page.txtMoney1[41].setText("850.00");
    page.Sum_Item11();
    EXPECT_EQ(state().Item11Net, -20.0) << "of 0 or below the exempt loss is added: -50 + 30";
}

// --- The carried loss ---

TEST_F(Item11Page, TakesACarriedLossThatDiffersFromTheSum) {
    addPeriod();
    type(page, "txtMoney1(42)", "55");
    EXPECT_TRUE(host.shown.empty());
    EXPECT_EQ(carried().text(), "55.00");
    EXPECT_TRUE(leaves());
}

TEST_F(Item11Page, GivesThePaperTheCarriedLossAsItIsShown) {
    addPeriod();
    type(page, "txtMoney1(42)", "1234.5");
    EXPECT_EQ(page.lblMoney1_42.caption(), "1,234.50");
    EXPECT_FALSE(page.lblMoney1_42.visible());
    user.click(page.DelButton[12]);
    EXPECT_EQ(page.lblMoney1_42.caption(), "");
}

TEST_F(Item11Page, AsksForTheCarriedLossUntilItIsTyped) {
    addPeriod();
    EXPECT_FALSE(leaves());
    expectMessage("M127");
    EXPECT_TRUE(carried().hasFocus());
    type(page, "txtMoney1(42)", "100");
    EXPECT_TRUE(leaves());
}

TEST_F(Item11Page, AsksForTheCarriedLossEvenWhenItIsNil) {
    auto& popup = openPopup();
    user.click(popup.Check2);
    type(popup, "mskDateFrom(0)", "01012560");
    type(popup, "txtMoney1(2)", "0");
    user.click(popup.cmdOK01);
    user.click(popup.cmdCan01);
    EXPECT_EQ(page.txtSum.text(), "0.00");
    EXPECT_FALSE(leaves());
    expectMessage("M127");
    type(page, "txtMoney1(42)", "0");
    EXPECT_EQ(carried().text(), "0.00");
    EXPECT_TRUE(leaves());
}

TEST_F(Item11Page, AsksForTheCarriedLossBesideExemptProfitsAlone) {
    auto& popup = openPopup();
    user.click(popup.Check1);
    type(popup, "mskDateFrom(0)", "01012560");
    type(popup, "txtMoney1(0)", "900");
    user.click(popup.cmdOK01);
    user.click(popup.cmdCan01);
    EXPECT_EQ(page.txtSum.text(), "0.00");
    EXPECT_FALSE(leaves());
    expectMessage("M127");
}

TEST_F(Item11Page, PassesEmpty) {
    EXPECT_TRUE(leaves());
    EXPECT_EQ(page.Chk_Item11Deduct(), 1);
    EXPECT_TRUE(host.shown.empty());
}

TEST_F(Item11Page, LeavingTheEmptyCellAsksAtOnce) {
    addPeriod();
    user.focus(carried());
    user.leave();
    expectMessage("M127");
    EXPECT_TRUE(carried().hasFocus());
}

TEST_F(Item11Page, RefusesACarriedLossThatIsNoAmount) {
    addPeriod();
    type(page, "txtMoney1(42)", "1x");
    expectMessage("M075");
    EXPECT_EQ(carried().text(), "");
    EXPECT_TRUE(carried().hasFocus());
}

TEST_F(Item11Page, ShowsANegativeCarriedLossInBrackets) {
    addPeriod();
    type(page, "txtMoney1(42)", "-5");
    EXPECT_EQ(carried().text(), "(5.00)");
}

TEST_F(Item11Page, RefusesACarriedLossWithoutAnyPeriod) {
    carried().setEnabled(true);
    type(page, "txtMoney1(42)", "10");
    expectMessage("M125");
    EXPECT_EQ(carried().text(), "");
}

TEST_F(Item11Page, RefusesACarriedLossOverAStartAlone) {
    carried().setEnabled(true);
    page.mskDateFrom[3].setDigits("01012560");
    type(page, "txtMoney1(42)", "0"); // as large as the sum offered
    expectMessage("M117");
    EXPECT_EQ(carried().text(), "");
    EXPECT_EQ(state().intError, 1);
}

TEST_F(Item11Page, RefusesACarriedLossOverATaxablePeriodWithoutResult) {
    carried().setEnabled(true);
    putRow(12, "01012560", "31122560");
    type(page, "txtMoney1(42)", "0");
    expectMessage("M118");
    host.shown.clear();
    state().intError = 0;
    state().intInvestment = 1;
    type(page, "txtMoney1(42)", "0");
    expectMessage("M118"); // the taxable block is looked at whatever the span of years
    type(page, "txtMoney1(42)", "7");
    EXPECT_TRUE(host.shown.empty()) << "a loss that differs from the sum is taken as typed";
}

// --- Leaving the page ---

TEST_F(Item11Page, RefusesOddDatesWhenItIsLeft) {
    carried().setText("0.00");
    putRow(12, "01012560", "31112560");
    EXPECT_FALSE(leaves());
    expectMessage("M026");
    putRow(12, "01012562", "20052562"); // today
    EXPECT_FALSE(leaves());
    expectMessage("M055");
    EXPECT_EQ(page.mskDateTo[12].digits(), "");
    putRow(12, "01012560", "01012560");
    EXPECT_FALSE(leaves());
    expectMessage("M148");
    putRow(12, "", "31122560");
    EXPECT_FALSE(leaves());
    expectMessage("M102");
}

TEST_F(Item11Page, RefusesATaxablePeriodWithoutResultWhenItIsLeft) {
    carried().setText("0.00");
    putRow(9, "01012560", "31122560");
    EXPECT_FALSE(leaves());
    expectMessage("M103");
    page.txtMoney1[34].setText("5");
    EXPECT_TRUE(leaves());
    EXPECT_EQ(page.txtMoney1[34].text(), "5.00") << "the walk shows every result as an amount";
}

TEST_F(Item11Page, WalksItsResultsWhenItIsLeft) {
    putRow(12, "01012560", "31122560");
    page.txtMoney1[40].setText("(5.00)");
    page.txtMoney1[1].setText("1x");
    EXPECT_FALSE(leaves());
    expectMessage("M075");
    EXPECT_EQ(page.txtMoney1[1].text(), "");
}

TEST_F(Item11Page, ClearsTheOtherResultOfAPair) {
    page.txtMoney1[0].setText("5");
    page.txtMoney1[1].setText("6");
    carried().setText("0.00");
    EXPECT_TRUE(leaves());
    EXPECT_EQ(page.txtMoney1[0].text(), "5.00");
    EXPECT_EQ(page.txtMoney1[1].text(), "");
}

// --- Dates of a table that is opened ---

TEST_F(Item11Page, RefusesAStartOfAnOpenedTable) {
    putRow(11, "01012559", "31122559");
    page.mskDateFrom[12].setEnabled(true);
    type(page, "mskDateFrom(12)", "02012560");
    expectMessage("M136");
    EXPECT_TRUE(page.mskDateFrom[12].hasFocus());
    type(page, "mskDateFrom(12)", "01012560");
    EXPECT_TRUE(host.shown.empty());
}

TEST_F(Item11Page, ClearsTheTaxableRowsBelowARowThatIsEmptied) {
    putRow(11, "01012559", "31122559");
    page.txtMoney1[38].setText("5.00");
    page.mskDateFrom[10].setEnabled(true);
    page.mskDateFrom[10].setDigits("01012558");
    type(page, "mskDateFrom(10)", "");
    EXPECT_EQ(page.mskDateFrom[11].digits(), "");
    EXPECT_EQ(page.mskDateTo[11].digits(), "");
    EXPECT_EQ(page.txtMoney1[38].text(), "");
}

// --- Taking rows away ---

TEST_F(Item11Page, UnwindsInReverseOrderOfEntry) {
    auto& popup = openPopup();
    addTaxable(popup, "01012560", "100");
    addExempt(popup, "01012559", "200");
    user.click(popup.cmdCan01);
    type(page, "txtMoney1(42)", "300");
    EXPECT_FALSE(page.DelButton[12].visible());
    user.click(page.DelButton[7]);
    EXPECT_EQ(page.mskDateFrom[7].digits(), "");
    EXPECT_EQ(page.mskDateTo[7].digits(), "");
    EXPECT_EQ(page.txtMoney1[29].text(), "");
    EXPECT_EQ(page.mskDateFrom[12].digits(), "01012560") << "the first keeps its row";
    EXPECT_EQ(state().intItem11Count, 1);
    EXPECT_EQ(state().intItem11CountA, 0);
    EXPECT_EQ(state().intItem11CountB, 1);
    EXPECT_EQ(state().strItem11Start[1], "");
    EXPECT_TRUE(page.DelButton[12].visible());
    EXPECT_EQ(carried().text(), "300.00");
    EXPECT_EQ(page.txtSum.text(), "300.00") << "the sum follows when the page comes up again";
    user.click(page.DelButton[12]);
    EXPECT_EQ(state().intItem11Count, 0);
    EXPECT_EQ(carried().text(), "");
    EXPECT_FALSE(carried().enabled());
    EXPECT_FALSE(page.DelButton[12].visible());
}

TEST_F(Item11Page, EmptiedAgainCanBeLeft) {
    addPeriod();
    type(page, "txtMoney1(42)", "100"); // the sums of the table are taken now
    user.click(page.DelButton[12]);
    EXPECT_TRUE(leaves());
    page.Form_Activate();
    EXPECT_EQ(page.txtSum.text(), "0.00");
    EXPECT_TRUE(leaves()) << "no sum of a row that is gone asks for the carried loss";
}

} // namespace
} // namespace lodge
