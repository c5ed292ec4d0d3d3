#include "open_page.h"
#include "pages/schedules/schedule_page.h"
#include "values/messages.h"

#include <gtest/gtest.h>

namespace lodge {
namespace {

class SchedulePages : public testing::Test, public Desktop {};

bool isOpenForTyping(const Control& box) { return box.enabled() && box.back() == BackColour::Window; }
bool isClosed(const Control& box) { return !box.enabled() && box.back() == BackColour::Button; }

TEST_F(SchedulePages, SetThePageCodeWhenTheyAreLoaded) {
    open<frmLodgePage6_10>();
    EXPECT_EQ(state().intPageCur, 610);
    open<frmLodgePage4_5>();
    EXPECT_EQ(state().intPageCur, 45);
}

TEST_F(SchedulePages, OpenTheColumnsThatPage1Chose) {
    state().intP1Box1 = 0;
    state().intP1Box2 = 1;
    auto& page = open<frmLodgePage5_9>();
    for (int cell = 0; cell <= 5; ++cell) {
        const std::string index = "(" + std::to_string(cell) + ")";
        EXPECT_TRUE(isClosed(control(page, "txtMoney91" + index))) << cell;
        EXPECT_TRUE(isOpenForTyping(control(page, "txtMoney92" + index))) << cell;
    }
}

TEST_F(SchedulePages, FollowPage1WhereTheInvestmentStatusSaysOtherwise) {
    state().intInvestment = 0;
    state().intP1Box1 = 1;
    state().intP1Box2 = 0;
    auto& page = open<frmLodgePage4_5>();
    EXPECT_TRUE(isOpenForTyping(control(page, "txtMoney51(0)")));
    EXPECT_TRUE(isClosed(control(page, "txtMoney52(0)")));
}

TEST_F(SchedulePages, WithColumn2ClosedShowColumn1AsTheRowSum) {
    state().intP1Box2 = 0;
    auto& page = open<frmLodgePage4_7>();
    type(page, "txtMoney71(2)", "350");
    EXPECT_EQ(read(page, "lblMoney73(2)"), "350.00");
    EXPECT_EQ(read(page, "lblSumMoney73"), "350.00");
}

TEST_F(SchedulePages, CloseItem6ForAHeadquartersCompany) {
    state().blnIHQPage = true;
    auto& item6 = open<frmLodgePage4_6>();
    for (int cell = 0; cell <= 5; ++cell) {
        const std::string index = "(" + std::to_string(cell) + ")";
        EXPECT_TRUE(isClosed(control(item6, "txtMoney61" + index))) << cell;
        EXPECT_TRUE(isClosed(control(item6, "txtMoney62" + index))) << cell;
    }
    auto& item7 = open<frmLodgePage4_7>();
    EXPECT_TRUE(isOpenForTyping(control(item7, "txtMoney71(0)"))) << "item 6 alone is closed";
}

TEST_F(SchedulePages, TellNothingFromZero) {
    auto& page = open<frmLodgePage4_6>();
    type(page, "txtMoney61(0)", "0.00");
    EXPECT_EQ(read(page, "lblMoney63(0)"), "0.00");
    EXPECT_EQ(read(page, "lblMoney63(1)"), "");
    type(page, "txtMoney61(0)", "");
    EXPECT_EQ(read(page, "lblMoney63(0)"), "");
    EXPECT_EQ(read(page, "lblSumMoney61"), "");
    EXPECT_EQ(read(page, "lblSumMoney63"), "");
}

TEST_F(SchedulePages, ShowPlainDigitsOnlyWhileACellHasTheFocus) {
    auto& page = open<frmLodgePage4_6>();
    type(page, "txtMoney61(0)", "-1234567.8");
    EXPECT_EQ(read(page, "txtMoney61(0)"), "(1,234,567.80)");
    user.focus(control(page, "txtMoney61(0)"));
    EXPECT_EQ(read(page, "txtMoney61(0)"), "-1234567.80");
    user.leave();
    EXPECT_EQ(read(page, "txtMoney61(0)"), "(1,234,567.80)");
}

TEST_F(SchedulePages, MoveOnWithEnter) {
    auto& page = open<frmLodgePage4_6>();
    user.enter(control(page, "txtMoney61(0)"));
    EXPECT_TRUE(control(page, "txtMoney62(0)").hasFocus());
}

TEST_F(SchedulePages, LeaveTheNextCellAloneWhenTheFocusIsCalledBack) {
    auto& page = open<frmLodgePage4_6>();
    type(page, "txtMoney62(0)", "-7");
    user.focus(control(page, "txtMoney61(0)"));
    user.edit(static_cast<TextBox&>(control(page, "txtMoney61(0)")), "1x");
    user.focus(control(page, "txtMoney62(0)"));
    EXPECT_TRUE(control(page, "txtMoney61(0)").hasFocus());
    EXPECT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(read(page, "txtMoney62(0)"), "(7.00)");
}

TEST_F(SchedulePages, RefuseWhatIsNoAmount) {
    auto& page = open<frmLodgePage4_6>();
    const std::vector<std::pair<const char*, const char*>> refused = {{"1.2.3", "M073"}, {"12-3", "M075"},
        {"-", "M075"}, {"(5)", "M075"}, {"10,000,000,000,000.00", "M069"}};
    for (const auto& [text, message] : refused) {
        type(page, "txtMoney61(0)", text);
        EXPECT_EQ(lastMessage(), GetMessage(message)) << text;
        EXPECT_EQ(read(page, "txtMoney61(0)"), "") << text;
    }
}

// Item 5 of a maker of furniture, column 2: line 4 = 200,000 + 1,500,000 + 30,000; line 6 = line 4 + 50,000;
// line 14 = 40,000 + 10,000 + 7,500.50; line 15 = line 6 + line 7 (600,000) + line 14; line 17 = line 15 less
// 250,000.
TEST_F(SchedulePages, ComputeACostOfManufactureLineByLine) {
    auto& page = open<frmLodgePage4_5>();
    type(page, "txtMoney52(0)", "200000");
    type(page, "txtMoney52(1)", "1500000");
    type(page, "txtMoney52(2)", "30000");
    EXPECT_EQ(read(page, "lblMoney52_04"), "1,730,000.00");
    type(page, "txtMoney52(4)", "50000");
    EXPECT_EQ(read(page, "lblMoney52_06"), "1,780,000.00");
    type(page, "txtMoney52(6)", "600000");
    type(page, "txtMoney52(7)", "40000");
    type(page, "txtMoney52(8)", "10000");
    type(page, "txtMoney52(12)", "7500.50");
    EXPECT_EQ(read(page, "lblMoney52_14"), "57,500.50");
    EXPECT_EQ(read(page, "lblMoney52_15"), "2,437,500.50");
    type(page, "txtMoney52(15)", "250000");
    EXPECT_EQ(read(page, "lblSumMoney52"), "2,187,500.50");
    EXPECT_EQ(read(page, "lblSumMoney53"), "2,187,500.50");
    EXPECT_EQ(read(page, "lblSumMoney51"), "");
}

TEST_F(SchedulePages, LeaveALineAloneThatTheEditedCellDoesNotFeed) {
    state().strFldPage4_5[3] = "500.00"; // line 4 as an older file states it, without lines 1 to 3
    auto& page = open<frmLodgePage4_5>();
    type(page, "txtMoney51(4)", "20");
    EXPECT_EQ(read(page, "lblMoney51_04"), "500.00");
    EXPECT_EQ(read(page, "lblMoney51_06"), "520.00");
    type(page, "txtMoney51(0)", "7");
    EXPECT_EQ(read(page, "lblMoney51_04"), "7.00");
}

TEST_F(SchedulePages, ShowATotalBelowZeroInBrackets) {
    auto& page = open<frmLodgePage3_4>();
    type(page, "txtMoney42(7)", "80");
    EXPECT_EQ(read(page, "lblSumMoney42"), "(80.00)");
    EXPECT_EQ(read(page, "lblSumMoney43"), "(80.00)");
}

TEST_F(SchedulePages, NeverShowBinaryNoise) {
    auto& page = open<frmLodgePage4_6>();
    type(page, "txtMoney61(0)", "0.1");
    type(page, "txtMoney61(1)", "0.2");
    type(page, "txtMoney61(2)", "-0.3");
    EXPECT_EQ(read(page, "lblSumMoney61"), "0.00");
}

TEST_F(SchedulePages, WalkEveryCellBeforeTheyAreLeft) {
    state().strFldPage4_7[0] = "100";
    state().strFldPage4_7[6] = "-20.5";
    auto& page = open<frmLodgePage4_7>();
    PageChk_Item7(program);
    EXPECT_EQ(state().intError, 0);
    EXPECT_EQ(read(page, "txtMoney71(0)"), "100.00");
    EXPECT_EQ(read(page, "txtMoney72(1)"), "(20.50)");
    EXPECT_EQ(read(page, "lblSumMoney73"), "79.50") << "the walk computes what an odd file left out";
    EXPECT_TRUE(host.shown.empty());
}

TEST_F(SchedulePages, EndTheWalkAtTheFirstRefusal) {
    auto& page = open<frmLodgePage4_7>();
    static_cast<TextBox&>(control(page, "txtMoney71(1)")).setText("1x");
    static_cast<TextBox&>(control(page, "txtMoney72(0)")).setText("2x");
    PageChk_Item7(program);
    EXPECT_EQ(state().intError, 1);
    EXPECT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(lastMessage(), GetMessage("M075"));
    EXPECT_EQ(read(page, "txtMoney71(1)"), "");
    EXPECT_EQ(read(page, "txtMoney72(0)"), "2x");
}

TEST_F(SchedulePages, CheckTheCellThatTheScratchNames) {
    auto& page = open<frmLodgePage4_5>();
    static_cast<TextBox&>(control(page, "txtMoney51(7)")).setText("12.345");
    state().PageChk.CurrentLine = 7;
    MoneyChk_Item5_1(program);
    EXPECT_EQ(read(page, "txtMoney51(7)"), "12.35");
    EXPECT_EQ(read(page, "lblMoney51_14"), "12.35");
}

TEST_F(SchedulePages, DoNothingThroughTheirProceduresWhileNotLoaded) {
    state().strFldPage4_5[0] = "-1.00";
    ArrayToVar_Item5(program);
    DataToArray_Item5(program);
    PageChk_Item5(program);
    EXPECT_EQ(state().strFldPage4_5[0], "-1.00");
    EXPECT_EQ(state().intError, 0);
}

TEST_F(SchedulePages, CarryTheRowOfItem10ThatNoBoxShows) {
    for (std::size_t entry = 48; entry <= 50; ++entry)
        state().strFldPage6_10[entry] = "9.00";
    open<frmLodgePage6_10>();
    DataToArray_Item10(program);
    for (std::size_t entry = 48; entry <= 50; ++entry)
        EXPECT_EQ(state().strFldPage6_10[entry], "9.00");
}

TEST_F(SchedulePages, TakeAPackedRowThatIsDamagedAsFarAsItGoes) {
    state().strFldPage5_8[75] = "|10|-20";
    state().strFldPage5_8[76] = "x";
    auto& page = open<frmLodgePage5_8>();
    EXPECT_EQ(read(page, "txtMoney81(30)"), "10.00");
    EXPECT_EQ(read(page, "txtMoney82(30)"), "(20.00)");
    EXPECT_EQ(read(page, "lblMoney83(30)"), "");
    EXPECT_EQ(read(page, "txtMoney81(31)"), "");
    DataToArray_Item8(program);
    EXPECT_EQ(state().strFldPage5_8[75], "|10.00|-20.00||");
    EXPECT_EQ(state().strFldPage5_8[76], "||||");
}

TEST_F(SchedulePages, ClearedComeBackBlankOverAnArrayThatStays) {
    state().strFldPage4_6[0] = "-3.00";
    open<frmLodgePage4_6>();
    program.desk.unload("frmLodgePage4_6");
    const Form& blank = program.desk.show("frmLodgePage4_6");
    EXPECT_EQ(read(blank, "txtMoney61(0)"), "");
    EXPECT_EQ(state().strFldPage4_6[0], "-3.00");
}

// --- The sum of item 8 lines 15 to 26 ---

TEST_F(SchedulePages, SumLines15To26OfItem8OnEveryStore) {
    auto& page = open<frmLodgePage5_8>();
    type(page, "txtMoney81(13)", "1000");  // line 14 is not among them
    type(page, "txtMoney81(14)", "1");     // line 15
    type(page, "txtMoney82(15)", "20");    // line 16
    type(page, "txtMoney81(30)", "300");   // line 17
    type(page, "txtMoney82(39)", "-4000"); // line 26
    type(page, "txtMoney82(23)", "50000"); // nor is line 27
    type(page, "txtMoney82(40)", "50000");
    EXPECT_EQ(state().FucChk.TmpSum8_15to25, 0.0);
    DataToArray_Item8(program);
    EXPECT_EQ(state().FucChk.TmpSum8_15to25, -3679.0);
}

TEST_F(SchedulePages, SumLines15To26OfItem8OnUnloadFromTheArray) {
    state().strFldPage5_8[62] = "-7.00";
    state().strFldPage5_8[84] = "|1.00|2.00|3.00|";
    auto& page = open<frmLodgePage5_8>();
    type(page, "txtMoney81(15)", "100"); // never stored
    program.desk.unload("frmLodgePage5_8");
    EXPECT_EQ(state().FucChk.TmpSum8_15to25, -4.0);
}

} // namespace
} // namespace lodge
