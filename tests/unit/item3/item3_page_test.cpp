#include "pages/schedules/item3_page.h"
#include "program/user.h"
#include "test_host.h"
#include "values/messages.h"

#include <gtest/gtest.h>

#include <utility>

namespace lodge {
namespace {

constexpr const char* advice = "กรุณาบันทึก กำไรสุทธิที่ต้องเสียภาษี หรือ ขาดทุนสุทธิ ตามหลักเกณฑ์ วิธีการ "
                               "และเงื่อนไขที่อธิบดีประกาศกำหนด";

class Item3Page : public testing::Test {
  protected:
    Item3Page() {
        program.desk.add(
            frmLodgePage3_3::formName, [this] { return std::make_unique<frmLodgePage3_3>(program); });
        program.state.intP1Box1 = 1;
        program.state.intP1Box2 = 1;
    }

    frmLodgePage3_3& show() {
        program.desk.load(frmLodgePage3_3::formName);
        P3_3_ArrayToControls(program);
        return static_cast<frmLodgePage3_3&>(program.desk.show(frmLodgePage3_3::formName));
    }

    /// Leaves the page as the navigation does.
    void leave() {
        P3_3_CheckPage(program);
        P3_3_ControlsToArray(program);
        program.desk.unload(frmLodgePage3_3::formName);
    }

    Control& control(const std::string& name) {
        Control* found = program.desk.find(frmLodgePage3_3::formName)->find(name);
        if (found == nullptr) throw std::runtime_error("no control " + name);
        return *found;
    }
    std::string reading(const std::string& name) { return control(name).reading(); }
    void type(const std::string& name, const std::string& text) {
        EXPECT_EQ(user.type(control(name), text), std::nullopt) << name;
    }

    TestHost host;
    Program program{host};
    User user{program.desk};
    FieldArray& fields = program.state.strFldPage3_3;
};

// Taxable column of a trading company, by hand:
//  3 = 12,000,000 - 7,000,000 = 5,000,000    5 = 5,000,000 + 100,000 = 5,100,000
//  7 = 5,100,000 - 50,000 = 5,050,000        9 = 5,050,000 - 3,000,000 = 2,050,000
// 12 = 2,050,000 + 0 + 150,000 = 2,200,000  14 = 16 = 21 = 22 = 2,200,000
TEST_F(Item3Page, ComputesATradingCompanyDownToLine22) {
    show();
    type("txtMoney32(0)", "12000000");
    type("txtMoney32(1)", "7000000");
    type("txtMoney32(3)", "100000");
    type("txtMoney32(5)", "50000");
    type("txtMoney32(7)", "3000000");
    type("txtMoney32(10)", "150000");
    EXPECT_EQ(reading("txtMoney32(0)"), "12,000,000.00");
    EXPECT_EQ(reading("lblMoney32_03"), "5,000,000.00");
    EXPECT_EQ(reading("lblMoney32_05"), "5,100,000.00");
    EXPECT_EQ(reading("lblMoney32_07"), "5,050,000.00");
    EXPECT_EQ(reading("lblMoney32_09"), "2,050,000.00");
    EXPECT_EQ(reading("lblMoney32_12"), "2,200,000.00");
    EXPECT_EQ(reading("lblMoney32_14"), "2,200,000.00");
    EXPECT_EQ(reading("lblMoney32_16"), "2,200,000.00");
    EXPECT_EQ(reading("lblSumMoney32"), "2,200,000.00");
    EXPECT_EQ(reading("lblSumMoney33"), "2,200,000.00");
    EXPECT_EQ(reading("lblMoney33(10)"), "150,000.00");
    EXPECT_EQ(reading("lblMoney33(8)"), "2,050,000.00");
    EXPECT_EQ(reading("lblTotMoney33"), "2,200,000.00");
    EXPECT_EQ(reading("lblSumMoney31"), "");
    EXPECT_EQ(reading("chkProfit3") + reading("chkLose3"), "10");
    EXPECT_EQ(reading("chkProfit9") + reading("chkLose9"), "10");
    EXPECT_EQ(reading("chkProfit20") + reading("chkLose20"), "10");
    EXPECT_TRUE(host.shown.empty());
}

TEST_F(Item3Page, ShowsNegativesInBracketsAndStoresThemWithAMinus) {
    show();
    type("txtMoney32(0)", "100");
    type("txtMoney32(1)", "350.5");
    EXPECT_EQ(reading("lblMoney32_03"), "(250.50)");
    EXPECT_EQ(reading("lblTotMoney33"), "(250.50)");
    EXPECT_EQ(reading("chkLose20"), "1");
    leave();
    EXPECT_EQ(fields[22], "-250.50");
    EXPECT_EQ(fields[60], "-250.50");
    EXPECT_EQ(fields[62], "1");
    EXPECT_EQ(fields[66], "1");
    EXPECT_EQ(fields[65], "0");
}

TEST_F(Item3Page, ANilLine3IsNeitherProfitNorLoss) {
    show();
    type("txtMoney32(0)", "500");
    type("txtMoney32(1)", "500");
    EXPECT_EQ(reading("lblMoney32_03"), "0.00");
    EXPECT_EQ(reading("chkProfit3") + reading("chkLose3"), "00");
}

TEST_F(Item3Page, BinaryNoiseIsNoLoss) {
    show();
    type("txtMoney32(9)", "0.1");
    type("txtMoney32(10)", "0.2");
    type("txtMoney32(12)", "0.3"); // 0.1 + 0.2 - 0.3
    EXPECT_EQ(reading("lblMoney32_14"), "0.00");
    EXPECT_EQ(reading("chkLose20"), "0");
}

TEST_F(Item3Page, SubLinesCountAsLine17) {
    show();
    type("txtMoney32(21)", "10");
    EXPECT_EQ(reading("lblMoney33(21)"), "10.00");
    EXPECT_EQ(reading("lblSumMoney32"), "10.00") << "the column is not empty although lines 16 to 20 are";
    type("txtMoney32(32)", "5.25");
    type("txtMoney32(16)", "1");
    type("txtMoney32(19)", "2");
    EXPECT_EQ(reading("lblSumMoney32"), "18.25"); // 1 + 2 + 10 + 5.25
    EXPECT_EQ(reading("lblMoney33(19)"), "2.00");
}

TEST_F(Item3Page, SubLinesArePackedAndUnpacked) {
    show();
    type("txtMoney31(21)", "7");
    type("txtMoney32(21)", "10");
    type("txtMoney32(26)", "-3.5");
    leave();
    EXPECT_EQ(fields[70], "|7.00|10.00|17.00|");
    EXPECT_EQ(fields[71], "||||");
    EXPECT_EQ(fields[75], "||-3.50|-3.50|");
    show();
    EXPECT_EQ(reading("txtMoney31(21)"), "7.00");
    EXPECT_EQ(reading("lblMoney33(21)"), "17.00");
    EXPECT_EQ(reading("txtMoney32(26)"), "(3.50)");
    EXPECT_EQ(reading("txtMoney32(22)"), "");
}

TEST_F(Item3Page, Line20HasItsOwnEntries) {
    show();
    type("txtMoney32(19)", "42");
    leave();
    EXPECT_EQ(fields[67], "");
    EXPECT_EQ(fields[68], "42.00");
    EXPECT_EQ(fields[69], "42.00");
    EXPECT_EQ(fields[39], "42.00");
}

TEST_F(Item3Page, LeavingThePageChecksItsLinesDownTo19) {
    for (const auto& [entry, messages] : {std::pair(38U, 1U), std::pair(68U, 0U), std::pair(81U, 0U)}) {
        fields = {};
        fields[entry] = entry == 81U ? "||10000000000000|10000000000000|" : "10000000000000";
        program.state.intError = 0;
        host.shown.clear();
        show();
        leave();
        EXPECT_EQ(host.shown.size(), messages) << entry;
    }
}

TEST_F(Item3Page, LeavingAndComingBackChangesNothing) {
    show();
    type("txtMoney31(0)", "100");
    type("txtMoney31(1)", "300");
    type("txtMoney32(0)", "1000");
    type("txtMoney32(23)", "55.55");
    user.click(control("chkProfitX"));
    type("txtBOI", "800");
    leave();
    const FieldArray stored = fields;
    show();
    leave();
    EXPECT_EQ(fields, stored);
    EXPECT_TRUE(program.state.BoxProfit);
    EXPECT_EQ(program.state.BoxAmount, "800.00");
}

TEST_F(Item3Page, APageThatGoesUnstoredGivesItsEntriesTheirSignsBack) {
    fields[60] = "-250.50";
    fields[39] = "-250.50";
    show();
    EXPECT_EQ(fields[60], "250.50") << "absolute while the page is on screen";
    EXPECT_EQ(reading("lblTotMoney33"), "(250.50)");
    program.desk.unload(frmLodgePage3_3::formName);
    EXPECT_EQ(fields[60], "-250.50");
    EXPECT_EQ(fields[39], "-250.50");
}

TEST_F(Item3Page, AnArrayEmptiedMeanwhileStaysEmpty) {
    fields[60] = "-250.50";
    show();
    fields[60].clear();
    program.desk.unload(frmLodgePage3_3::formName);
    EXPECT_EQ(fields[60], "");
}

TEST_F(Item3Page, ABadFigureIsEmptiedAndKeepsTheFocus) {
    show();
    type("txtMoney32(0)", "12-3");
    ASSERT_EQ(host.shown.size(), 1U);
    EXPECT_EQ(host.shown[0].text, GetMessage("M075"));
    EXPECT_EQ(reading("txtMoney32(0)"), "");
    EXPECT_TRUE(control("txtMoney32(0)").hasFocus());
    EXPECT_EQ(program.state.intError, 1);
}

TEST_F(Item3Page, LeavingAnEmptyBoxSaysNothing) {
    show();
    type("txtMoney32(0)", "");
    EXPECT_TRUE(host.shown.empty());
    EXPECT_EQ(reading("lblTotMoney33"), "0.00") << "line 22 of an empty form is nil, not empty";
}

// --- Columns ---

TEST_F(Item3Page, OpensTheColumnsThatPage1Chose) {
    program.state.intP1Box1 = 0;
    show();
    EXPECT_FALSE(control("txtMoney31(0)").enabled());
    EXPECT_EQ(control("txtMoney31(32)").back(), BackColour::Button);
    EXPECT_FALSE(control("txtMoney31(3)").enabled());
    EXPECT_TRUE(control("txtMoney32(0)").enabled());
    EXPECT_TRUE(control("txtMoney32(32)").enabled());
}

TEST_F(Item3Page, AHeadquartersCompanyKeepsLine4LockedWithItsFigures) {
    program.state.DataCtrl_P1.IndcBusCode = "15";
    fields[23] = "77.00";
    show();
    EXPECT_FALSE(control("txtMoney31(3)").enabled());
    EXPECT_FALSE(control("txtMoney32(3)").enabled());
    EXPECT_EQ(control("txtMoney32(3)").back(), BackColour::Button);
    EXPECT_EQ(reading("txtMoney32(3)"), "77.00");
    leave();
    EXPECT_EQ(fields[23], "77.00");
}

// --- The side box ---

class Item3SideBox : public Item3Page {
  protected:
    /// Exempt profit 100, taxable profit 250: both columns of line 21 are filled.
    void showBothColumns() {
        show();
        type("txtMoney31(0)", "100");
        type("txtMoney32(0)", "250");
    }
};

TEST_F(Item3SideBox, IsOfferedOnlyWithFiguresInBothColumns) {
    show();
    EXPECT_FALSE(control("txtBOI").visible());
    type("txtMoney32(0)", "250");
    EXPECT_FALSE(control("txtBOI").visible());
    EXPECT_EQ(reading("lblTotMoney33"), "250.00");
    type("txtMoney31(0)", "100");
    EXPECT_TRUE(control("txtBOI").visible());
    EXPECT_TRUE(control("chkProfitX").enabled());
    EXPECT_EQ(reading("lblTotMoney33"), "") << "line 22 is what the filer states, and nothing is stated yet";
    EXPECT_EQ(reading("chkProfit20") + reading("chkLose20"), "00");
    type("txtMoney31(0)", "");
    EXPECT_FALSE(control("txtBOI").visible());
    EXPECT_EQ(reading("lblTotMoney33"), "250.00");
}

TEST_F(Item3SideBox, StatesLine22) {
    showBothColumns();
    user.click(control("chkProfitX"));
    type("txtBOI", "200");
    EXPECT_EQ(reading("txtBOI"), "200.00");
    EXPECT_EQ(reading("lblTotMoney33"), "200.00");
    EXPECT_EQ(reading("chkProfit20") + reading("chkLose20"), "10");
    user.click(control("chkLoseX"));
    EXPECT_EQ(reading("txtBOI"), "(200.00)");
    EXPECT_EQ(reading("lblTotMoney33"), "(200.00)");
    EXPECT_EQ(reading("chkProfitX") + reading("chkLoseX"), "01");
    EXPECT_EQ(reading("chkProfit20") + reading("chkLose20"), "01");
}

TEST_F(Item3SideBox, AdvisesOnceInTheReturn) {
    showBothColumns();
    user.click(control("chkProfitX"));
    type("txtBOI", "200");
    ASSERT_EQ(host.shown.size(), 1U);
    EXPECT_EQ(host.shown[0].text, advice);
    type("txtBOI", "300");
    leave();
    show();
    type("txtBOI", "400");
    EXPECT_EQ(host.shown.size(), 1U);
}

TEST_F(Item3SideBox, AMinusWithoutATickIsTakenAsPositive) {
    showBothColumns();
    type("txtBOI", "-120");
    EXPECT_EQ(reading("txtBOI"), "120.00");
    EXPECT_EQ(reading("lblTotMoney33"), "120.00");
    EXPECT_EQ(reading("chkProfitX") + reading("chkLoseX"), "00");
}

TEST_F(Item3SideBox, ShowsPositiveDigitsWhileItHasTheFocus) {
    showBothColumns();
    user.click(control("chkLoseX"));
    type("txtBOI", "1200");
    EXPECT_EQ(reading("txtBOI"), "(1,200.00)");
    user.focus(control("txtBOI"));
    EXPECT_EQ(reading("txtBOI"), "1200.00");
    user.leave();
    EXPECT_EQ(reading("txtBOI"), "(1,200.00)");
}

TEST_F(Item3SideBox, ANilAmountClearsTheTicks) {
    showBothColumns();
    user.click(control("chkProfitX"));
    type("txtBOI", "0");
    EXPECT_EQ(reading("txtBOI"), "0.00");
    EXPECT_EQ(reading("lblTotMoney33"), "0.00");
    EXPECT_EQ(
        reading("chkProfitX") + reading("chkLoseX") + reading("chkProfit20") + reading("chkLose20"), "0000");
    EXPECT_TRUE(host.shown.empty()) << "the advice is for an amount";
}

TEST_F(Item3SideBox, AnEmptyAmountClearsTheTicks) {
    showBothColumns();
    user.click(control("chkProfitX"));
    type("txtBOI", "10");
    type("txtBOI", "");
    EXPECT_EQ(reading("chkProfitX") + reading("chkProfit20"), "00");
    EXPECT_EQ(reading("lblTotMoney33"), "");
}

TEST_F(Item3SideBox, UntickingBothEmptiesLine22) {
    showBothColumns();
    user.click(control("chkProfitX"));
    type("txtBOI", "10");
    user.click(control("chkProfitX"));
    EXPECT_EQ(reading("txtBOI"), "");
    EXPECT_EQ(reading("lblTotMoney33"), "");
    EXPECT_EQ(reading("chkProfit20"), "0");
}

TEST_F(Item3SideBox, ABadAmountIsEmptiedAndKeepsTheFocus) {
    showBothColumns();
    type("txtBOI", "abc");
    EXPECT_EQ(reading("txtBOI"), "");
    EXPECT_TRUE(control("txtBOI").hasFocus());
    EXPECT_EQ(program.state.intError, 1);
}

TEST_F(Item3SideBox, IsKeptInItsHolders) {
    showBothColumns();
    user.click(control("chkLoseX"));
    type("txtBOI", "30");
    leave();
    EXPECT_FALSE(program.state.BoxProfit);
    EXPECT_TRUE(program.state.BoxLoss);
    EXPECT_EQ(program.state.BoxAmount, "-30.00");
    EXPECT_TRUE(program.state.modNew3.NewBox2);
    EXPECT_EQ(program.state.modNew3.NewBoxAmount, "-30.00");
    EXPECT_EQ(fields[60], "-30.00");
    show();
    EXPECT_EQ(reading("txtBOI"), "(30.00)");
    EXPECT_EQ(reading("chkLoseX"), "1");
    EXPECT_EQ(reading("lblTotMoney33"), "(30.00)");
}

TEST_F(Item3SideBox, IsForgottenWhenAColumnIsEmptied) {
    showBothColumns();
    user.click(control("chkLoseX"));
    type("txtBOI", "30");
    leave();
    show();
    type("txtMoney31(0)", "");
    EXPECT_EQ(program.state.modNew3.NewBoxAmount, "");
    leave();
    EXPECT_EQ(program.state.BoxAmount, "");
    EXPECT_FALSE(program.state.BoxLoss);
    EXPECT_EQ(fields[60], "250.00");
}

} // namespace
} // namespace lodge
