#include "job_list.h"
#include "program/user.h"
#include "shell/main_frame.h"
#include "shell/shell.h"
#include "shell/start_screen.h"
#include "test_host.h"

#include <gtest/gtest.h>

#include <functional>

namespace lodge {
namespace {

/// A person who chooses page 1, and looks at the screen meanwhile.
class LookingHost : public TestHost {
  public:
    std::function<void()> look = [] {};
    std::optional<PageRange> choosePages() override {
        look();
        return PageRange{.from = 1, .to = 1};
    }
};

class PrintButtons : public testing::Test {
  protected:
    PrintButtons() {
        program.attach(engine);
        shell.start();
        auto& start = *program.desk.find<frmLodgeStart>();
        user.type(start.mskDate1, "01012561");
        user.type(start.mskDate2, "31122561");
        user.click(start.CmdOK1);
        host.shown.clear();
    }
    MDILodge& frame() { return *program.desk.find<MDILodge>(); }

    LookingHost host;
    JobList engine;
    Program program{host};
    Shell shell{program};
    User user{program.desk};
};

TEST_F(PrintButtons, ThePrintButtonStoresThePageAndHidesTheToolbarForTheRun) {
    program.state.strFldPage1[7] = "as before the store";
    bool toolbarShown = true;
    std::string stored;
    host.look = [&] {
        toolbarShown = frame().CmdPrint.visible() || frame().cmdExit.visible();
        stored = program.state.strFldPage1[7];
    };
    user.click(frame().CmdPrint);
    EXPECT_FALSE(toolbarShown);
    EXPECT_EQ(stored, "1"); // a new return is a normal filing
    EXPECT_TRUE(frame().CmdPrint.visible());
    EXPECT_TRUE(frame().cmdExit.visible());
    EXPECT_EQ(program.desk.top()->name(), "frmLodgePage1");
    EXPECT_EQ(engine.done.size(), 1U);
}

TEST_F(PrintButtons, TheToolbarComesBackAfterAFailedRun) {
    engine.failingJob = 1;
    user.click(frame().CmdPrint);
    EXPECT_TRUE(frame().CmdPrint.visible());
    EXPECT_EQ(program.desk.top()->name(), "frmLodgePage1");
}

TEST_F(PrintButtons, TheHiddenButtonOnlyPrints) {
    program.state.strFldPage1[7] = "as before the run";
    bool toolbarShown = false;
    host.look = [&] { toolbarShown = frame().CmdPrint.visible(); };
    frame().Command3.onClick();
    EXPECT_TRUE(toolbarShown);
    EXPECT_EQ(program.state.strFldPage1[7], "as before the run");
    EXPECT_EQ(engine.done.size(), 1U);
}

} // namespace
} // namespace lodge
