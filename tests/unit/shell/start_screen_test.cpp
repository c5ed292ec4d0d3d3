#include "program/user.h"
#include "shell/main_frame.h"
#include "shell/shell.h"
#include "shell/start_screen.h"
#include "test_host.h"
#include "values/messages.h"

#include <gtest/gtest.h>

namespace lodge {
namespace {

class StartScreen : public testing::Test {
  protected:
    StartScreen() {
        shell.start();
        host.shown.clear(); // the list of business codes is not there
    }

    frmLodgeStart& start() { return *program.desk.find<frmLodgeStart>(); }
    void openReturn(const char* first, const char* last) {
        user.type(start().mskDate1, first);
        user.type(start().mskDate2, last);
        user.click(start().CmdOK1);
    }
    std::string lastMessage() { return host.shown.empty() ? "" : host.shown.back().text; }

    TestHost host;
    Program program{host};
    Shell shell{program};
    User user{program.desk};
};

TEST_F(StartScreen, TheFrameComesUpWithItsCaptionAndTheExitAlone) {
    const MDILodge& frame = *program.desk.find<MDILodge>();
    EXPECT_EQ(frame.caption(), "แบบแสดงรายการภาษีเงินได้นิติบุคคล ก.ข.ค.77 (Version 2561.00)");
    EXPECT_FALSE(frame.cmdPage1.enabled());
    EXPECT_TRUE(frame.cmdExit.enabled());
    EXPECT_EQ(program.desk.top()->name(), "frmLodgeStart");
    EXPECT_EQ(start().lbl_Version.caption(), "Version 2561.00");
}

TEST_F(StartScreen, AWholeCalendarYearOpensPage1WithoutAQuestion) {
    openReturn("01012561", "31122561");
    EXPECT_TRUE(host.shown.empty());
    EXPECT_EQ(program.desk.top()->name(), "frmLodgePage1");
    EXPECT_EQ(program.desk.find("frmLodgeStart"), nullptr);
    EXPECT_EQ(program.state.strFldPage1[2], "มกราคม");
    EXPECT_EQ(program.state.strFldPage1[7], "1") << "a new return begins as a normal filing";
    EXPECT_EQ(program.state.strTaxYear, "2561");
    EXPECT_EQ(program.state.strPrevYear[0], "2553");
    EXPECT_EQ(program.state.strPrevYear[8], "");
}

struct Length {
    const char* first;
    const char* last;
    const char* message; // empty: page 1 opens without a word
};

class PeriodLength : public StartScreen, public testing::WithParamInterface<Length> {};

// Buddhist years that leave 3 when divided by 4 have a 29 February: 2559 and 2563 do, 2560 to 2562 do not.
INSTANTIATE_TEST_SUITE_P(Periods, PeriodLength,
    testing::Values(Length{"01032560", "28022561", ""}, Length{"01032561", "28022562", ""},
        Length{"01072561", "30062562", ""}, Length{"02012561", "31122561", "M001"},
        Length{"01012561", "01012561", "M001"}, Length{"01012561", "01012562", "M109"},
        Length{"01012560", "04022561", "M109"}, Length{"31122561", "01012561", "M056"},
        Length{"01012563", "31122563", "M158"}, Length{"01012559", "31122559", "M158"}));

TEST_P(PeriodLength, IsJudgedByTheDaysOfItsYear) {
    openReturn(GetParam().first, GetParam().last);
    EXPECT_EQ(lastMessage(), GetMessage(GetParam().message));
}

TEST_F(StartScreen, AShortPeriodIsAskedAboutWithCancelAsTheDefault) {
    host.answers = {Answer::Ok};
    openReturn("01012561", "30012561");
    ASSERT_EQ(host.shown.size(), 1U);
    EXPECT_EQ(host.shown[0].buttons, Buttons::OkCancel);
    EXPECT_EQ(host.shown[0].defaultAnswer, Answer::Cancel);
    EXPECT_EQ(program.desk.top()->name(), "frmLodgePage1");
}

TEST_F(StartScreen, APeriodThatIsTooLongLeavesTheReturnEmpty) {
    program.state.strFldPage2[44] = "(2.1)";
    openReturn("01012560", "04022561");
    EXPECT_EQ(program.state.strFldPage2[44], "");
    EXPECT_EQ(program.state.strStartDDMMYY, "");
    EXPECT_EQ(program.desk.focus(), &start().mskDate2);
}

TEST_F(StartScreen, ARefusedStartYearKeepsThePeriodThatWasTaken) {
    openReturn("01012559", "31122559");
    EXPECT_EQ(program.state.strStartDDMMYY, "01012559");
    EXPECT_EQ(program.state.strFldPage1[3], "2559");
    EXPECT_EQ(program.desk.top()->name(), "frmLodgeStart");
}

TEST_F(StartScreen, TheTickedInvestmentDecidesStatusAndLossSpan) {
    user.click(start().ChkNewInvestment04);
    user.click(start().ChkNewInvestment01);
    EXPECT_FALSE(start().ChkNewInvestment04.value());
    EXPECT_EQ(program.state.ChkInvestmentFlag1, 1);
    openReturn("01012561", "31122561");
    EXPECT_EQ(program.state.intInvestment, 1);
    EXPECT_EQ(program.state.FucDate.CarryYearLimit, 13);
    EXPECT_EQ(isoText(*program.state.FucDate.EarliestStartDate), "2005-01-01");
    EXPECT_EQ(isoText(*program.state.FucDate.DayBeforePeriodStart), "2017-12-31");
}

TEST_F(StartScreen, AMissingSpreadsheetFolderIsNamed) {
    host.folderIsThere = false;
    user.click(start().Command1);
    EXPECT_EQ(lastMessage(), "ไม่พบ Folder /opt/lodge77/Spreadsheet");
    host.folderIsThere = true;
    user.click(start().Command1);
    EXPECT_EQ(host.opened.back(), "/opt/lodge77/Spreadsheet");
}

TEST_F(StartScreen, AMachineOfTheBuddhistCalendarReadsTheSameDays) {
    EXPECT_EQ(program.state.strLocale, "EN");
    host.calendarIs = Calendar::Buddhist;
    openReturn("01012561", "31122561");
    EXPECT_EQ(isoText(*program.state.FucDate.PeriodStartDate), "2018-01-01");
}

TEST_F(StartScreen, TwoReturnsLiveInOneProcess) {
    TestHost otherHost;
    Program other{otherHost};
    Shell otherShell{other};
    otherShell.start();
    openReturn("01012561", "31122561");
    EXPECT_EQ(other.desk.top()->name(), "frmLodgeStart");
    EXPECT_EQ(other.state.strStartDDMMYY, "");
}

} // namespace
} // namespace lodge
