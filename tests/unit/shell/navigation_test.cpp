#include "program/user.h"
#include "shell/main_frame.h"
#include "shell/navigation.h"
#include "shell/page_table.h"
#include "shell/shell.h"
#include "shell/start_screen.h"
#include "test_host.h"
#include "values/messages.h"

#include <gtest/gtest.h>

#include <set>

namespace lodge {
namespace {

class Shelled : public testing::Test {
  protected:
    Shelled() {
        shell.start();
        host.shown.clear(); // the list of business codes is not there
        auto& start = *program.desk.find<frmLodgeStart>();
        user.type(start.mskDate1, "01012561");
        user.type(start.mskDate2, "31122561");
        user.click(start.CmdOK1);
    }
    MDILodge& frame() { return *program.desk.find<MDILodge>(); }
    std::string lastMessage() { return host.shown.empty() ? "" : host.shown.back().text; }

    TestHost host;
    Program program{host};
    Shell shell{program};
    User user{program.desk};
};

TEST(PageTable, HasEveryPageOnceInTheOrderOfTheForm) {
    std::vector<std::int16_t> codes;
    std::set<std::string> forms;
    for (const PageRow& row : pageTable()) {
        codes.push_back(row.code);
        forms.insert(row.form);
    }
    const std::vector<std::int16_t> wanted = {1, 2, 33, 34, 45, 46, 47, 58, 59, 610, 611, 712, 8, 100};
    EXPECT_EQ(codes, wanted);
    EXPECT_EQ(forms.size(), wanted.size());
}

TEST_F(Shelled, EveryPageHasAForm) {
    for (const PageRow& row : pageTable()) {
        EXPECT_TRUE(program.desk.knows(row.form)) << row.form;
    }
}

TEST_F(Shelled, LeavingPage1WithoutAStatusIsRefused) {
    user.click(frame().cmdChoose);
    EXPECT_EQ(lastMessage(), GetMessage("M006"));
    EXPECT_EQ(program.state.intError, 1);
    EXPECT_EQ(program.desk.top()->name(), "frmLodgePage1");
}

TEST_F(Shelled, TheGatesOfACompleteStoreStandInTheirOrder) {
    ReturnState& state = program.state;
    user.click(frame().cmdSave1);
    EXPECT_EQ(lastMessage(), GetMessage("M132"));
    state.FucChk.LastValidId = "0105536000313";
    user.click(frame().cmdSave1);
    EXPECT_EQ(lastMessage(), GetMessage("M006"));
    state.intStatusIndex = 0;
    state.FucChk.BusinessText = "   ";
    user.click(frame().cmdSave1);
    EXPECT_EQ(lastMessage(), GetMessage("M085"));
    state.FucChk.BusinessText = "ซูเปอร์มาร์เก็ต";
    user.click(frame().cmdSave1);
    EXPECT_EQ(lastMessage(), GetMessage("M521"));
}

TEST_F(Shelled, ExitAsksAndNoIsTheDefault) {
    host.answers = {Answer::No};
    user.click(frame().cmdExit);
    ASSERT_FALSE(host.shown.empty());
    EXPECT_EQ(host.shown.back().text, "ต้องการออกจากระบบ ใช่หรือไม่");
    EXPECT_EQ(host.shown.back().title, "คำเตือน");
    EXPECT_EQ(host.shown.back().defaultAnswer, Answer::No);
    EXPECT_FALSE(host.quitAsked);
    host.answers = {Answer::Yes};
    user.close(frame());
    EXPECT_TRUE(host.quitAsked);
    EXPECT_TRUE(program.desk.loadedForms().empty());
}

TEST_F(Shelled, ClearAllKeepsThePeriodAndClosesTheWayToPage1) {
    ReturnState& state = program.state;
    state.strFldPage2[32] = "100.00";
    state.strFldPage1[45] = "0105536000313";
    state.strFldPage1_2[0] = "100.00";
    state.modGreen.GreenIncome[0] = "100.00";
    host.answers = {Answer::Yes};
    user.click(frame().CmdClear1);
    EXPECT_EQ(state.strFldPage1[3], "2561");
    EXPECT_EQ(state.strFldPage1[45], "");
    EXPECT_EQ(state.strFldPage2[32], "");
    EXPECT_EQ(state.strFldPage1_2[0], "");
    EXPECT_EQ(state.modGreen.GreenIncome[0], "");
    EXPECT_FALSE(frame().cmdPage1.enabled());
    EXPECT_TRUE(frame().cmdChoose.enabled());
    EXPECT_EQ(program.desk.top()->name(), "frmLodgePage1");
}

TEST_F(Shelled, ANewReturnPutsTheOldOneAwayAndComesBackToTheStartScreen) {
    program.state.strFldPage2[32] = "100.00";
    host.answers = {Answer::Yes};
    user.click(frame().cmdPageFirst);
    EXPECT_EQ(program.state.strFldPage2[32], "");
    EXPECT_EQ(program.state.strStartDDMMYY, "");
    EXPECT_EQ(program.desk.top()->name(), "frmLodgeStart");
    EXPECT_FALSE(frame().cmdSave1.enabled());
    EXPECT_TRUE(frame().cmdExit.enabled());
}

TEST_F(Shelled, TheDamagedLinesOfALoadedReturnAreForgottenWithIt) {
    host.answers = {Answer::Yes};
    program.damagedLines = {17};
    user.click(frame().CmdClear1);
    EXPECT_TRUE(program.damagedLines.empty());
    host.answers = {Answer::Yes};
    program.damagedLines = {17};
    user.click(frame().cmdPageFirst);
    EXPECT_TRUE(program.damagedLines.empty());
}

TEST_F(Shelled, TheAttachmentIsOpenToAHeadquartersAlone) {
    const Form& chooser = program.desk.show("frmLodgeChoose");
    EXPECT_FALSE(chooser.find("cmdItemIHQ")->enabled());
    EXPECT_TRUE(chooser.find("cmdItem12")->enabled());
    program.state.blnIHQPage = true;
    program.desk.show("frmLodgeChoose");
    EXPECT_TRUE(chooser.find("cmdItemIHQ")->enabled());
}

TEST_F(Shelled, ClearingTheAttachmentEmptiesItsRecordButThePeriod) {
    ReturnState& state = program.state;
    state.blnIHQPage = true;
    state.modIHQ.BoxASum = "5.00";
    state.modIHQ.LicenceStart = "01/01/2559";
    program.desk.show("frmLodgeChoose");
    user.click(*program.desk.find("frmLodgeChoose")->find("cmdItemIHQ"));
    EXPECT_EQ(state.intPageCur, 100);
    EXPECT_EQ(program.desk.top()->find("txtSumA")->reading(), "5.00");
    host.answers = {Answer::Yes};
    user.click(frame().CmdClear2);
    EXPECT_EQ(program.desk.top()->name(), "frmIHQ");
    EXPECT_EQ(program.desk.top()->find("txtSumA")->reading(), "");
    EXPECT_EQ(state.intPageCur, 100);
    EXPECT_EQ(state.modIHQ.BoxASum + state.modIHQ.LicenceStart, "");
    EXPECT_EQ(state.modIHQ.PeriodStart, "01012561");
    EXPECT_EQ(state.modIHQ.PeriodEnd, "31122561");
}

TEST_F(Shelled, TheMakersToolsComeUpWithThreeKeysHeldAlone) {
    const MouseGesture allKeys{.shift = true, .ctrl = true, .alt = true};
    user.mouse(frame().Picture1, {.shift = true, .ctrl = true});
    EXPECT_FALSE(frame().Label1.visible());
    user.mouse(frame().Picture1, allKeys);
    EXPECT_TRUE(frame().Label1.visible());
    user.mouse(frame().Label1, allKeys);
    EXPECT_TRUE(frame().Command1.visible());
    EXPECT_TRUE(frame().Command7.visible());
    user.mouse(frame().Picture1, {});
    EXPECT_FALSE(frame().Label1.visible());
    EXPECT_FALSE(frame().Command1.visible());
    EXPECT_TRUE(frame().Command7.visible());
}

} // namespace
} // namespace lodge
