#include "filled_return.h"
#include "job_list.h"
#include "print/print_return.h"
#include "test_host.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lodge {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// A person who chooses pages in the print dialog.
class PrintingHost : public TestHost {
  public:
    std::optional<PageRange> pages = PageRange{.from = 0, .to = 0};
    std::optional<PageRange> choosePages() override { return pages; }
};

class Printing : public testing::Test {
  protected:
    Printing() { program.attach(engine); }

    std::vector<std::string> printed(int from, int to) {
        engine.done.clear();
        host.pages = PageRange{.from = from, .to = to};
        PrintReturn(program);
        return engine.names();
    }

    PrintingHost host;
    JobList engine;
    Program program{host};
};

TEST_F(Printing, BothEndsZeroTakeAllTenPagesOnceEach) {
    EXPECT_THAT(
        printed(0, 0), ElementsAre("rptLodgePage1.rpt", "rptLodgePage2.rpt", "rptLodgePage3.rpt",
                           "rptLodgePage4.rpt", "rptLodgePage5.rpt", "rptLodgePage6.rpt", "rptLodgePage7.rpt",
                           "rptLodgePage8.rpt", "rptLodgePageIHQ.rpt", "rptLodgeAttachPage.rpt"));
    EXPECT_EQ(engine.actions.size(), 10U);
    EXPECT_THAT(host.shown, IsEmpty());
}

TEST_F(Printing, ARangeThatEndsBeforeTheAttachmentsIsTakenAsItIs) {
    EXPECT_THAT(printed(1, 5), ElementsAre("rptLodgePage1.rpt", "rptLodgePage2.rpt", "rptLodgePage3.rpt",
                                   "rptLodgePage4.rpt", "rptLodgePage5.rpt"));
    EXPECT_THAT(printed(8, 8), ElementsAre("rptLodgePage8.rpt"));
}

TEST_F(Printing, ARangeThatReachesTheHeadquartersAttachmentTakesTheWorksheetToo) {
    EXPECT_EQ(printed(3, 9).size(), 8U);
    EXPECT_THAT(printed(9, 9), ElementsAre("rptLodgePageIHQ.rpt", "rptLodgeAttachPage.rpt"));
    EXPECT_THAT(printed(10, 10), ElementsAre("rptLodgeAttachPage.rpt"));
}

TEST_F(Printing, NumbersOutsideTheTenPagesDoNothing) {
    EXPECT_THAT(printed(0, 2), ElementsAre("rptLodgePage1.rpt", "rptLodgePage2.rpt"));
    EXPECT_THAT(printed(-3, 1), ElementsAre("rptLodgePage1.rpt"));
    EXPECT_THAT(printed(10, 2000000000), ElementsAre("rptLodgeAttachPage.rpt"));
    EXPECT_THAT(printed(11, 12), IsEmpty());
    EXPECT_THAT(printed(5, 4), IsEmpty());
    EXPECT_THAT(printed(5, 0), IsEmpty());
}

TEST_F(Printing, ARangeHoldsForOneRun) {
    printed(2, 2);
    EXPECT_EQ(printed(0, 0).size(), 10U);
}

TEST_F(Printing, WithoutHeadquartersDataTheAttachmentStillRuns) {
    printed(0, 0);
    EXPECT_EQ(engine.done[8].formulas.at(0), "NID = ' ' ");
    for (const auto& [slot, formula] : engine.done[8].formulas) {
        EXPECT_THAT(formula, testing::EndsWith(" = ' ' ")) << slot;
    }
}

TEST_F(Printing, CancellingTheDialogEndsTheRunSilently) {
    host.pages = std::nullopt;
    PrintReturn(program);
    EXPECT_THAT(engine.names(), IsEmpty());
    EXPECT_THAT(host.shown, IsEmpty());
}

TEST_F(Printing, AFailedPageIsToldWithNumberAndCauseAndPagesBeforeItStayPrinted) {
    engine.failingJob = 3;
    EXPECT_THAT(printed(0, 0), ElementsAre("rptLodgePage1.rpt", "rptLodgePage2.rpt"));
    ASSERT_EQ(host.shown.size(), 1U);
    EXPECT_EQ(host.shown[0].text, "มีข้อผิดพลาดในการพิมพ์ รหัส 20507 - no such template");
    EXPECT_EQ(host.shown[0].title, "ข้อผิดพลาด");
    EXPECT_EQ(host.shown[0].buttons, Buttons::Ok);
}

TEST_F(Printing, AnEngineThatWasCancelledIsNoFailure) {
    engine.failingJob = 1;
    engine.failure = ReportError(report_error::cancelled, "cancelled");
    EXPECT_THAT(printed(0, 0), IsEmpty());
    EXPECT_THAT(host.shown, IsEmpty());
}

TEST_F(Printing, AnApostropheRefusesItsPageAndNamesTheField) {
    program.state.strFldPage8[7] = "ร้าน 'ก'";
    EXPECT_EQ(printed(0, 0).size(), 7U);
    ASSERT_EQ(host.shown.size(), 1U);
    EXPECT_THAT(host.shown[0].text, HasSubstr("รหัส 4 - "));
    EXPECT_THAT(host.shown[0].text, HasSubstr("lblFld07"));
}

TEST_F(Printing, WhateverElseGoesWrongIsToldToo) {
    class Faulty : public JobList {
        void setAction(int /*action*/) override { throw std::runtime_error("out of order"); }
    };
    Faulty faulty;
    program.attach(faulty);
    printed(0, 0);
    ASSERT_EQ(host.shown.size(), 1U);
    EXPECT_EQ(host.shown[0].text, "มีข้อผิดพลาดในการพิมพ์ รหัส 9 - out of order");
}

TEST(PrintingWithoutAnEngine, IsToldAsAFailure) {
    PrintingHost host;
    Program program(host);
    PrintReturn(program);
    ASSERT_EQ(host.shown.size(), 1U);
    EXPECT_THAT(host.shown[0].text, HasSubstr("รหัส 1 - "));
}

TEST_F(Printing, Page2IsBroughtUpToDateBeforeItIsRead) {
    program.state.DataCtrl_P2.RateCaseText = "กรณีทั่วไป";
    program.state.DataCtrl_P2.Line4Status = "2";
    printed(2, 2);
    EXPECT_EQ(program.state.strFldPage2[44], "กรณีทั่วไป");
    EXPECT_EQ(program.state.strFldPage2[29], "1");
}

TEST_F(Printing, PrintingTwiceGivesTheSameJobs) {
    program.state = filledReturn();
    printed(0, 0);
    const std::vector<Job> first = engine.done;
    printed(0, 0);
    ASSERT_EQ(engine.done.size(), first.size());
    for (std::size_t job = 0; job < first.size(); ++job) {
        EXPECT_EQ(engine.done[job].sent, first[job].sent) << first[job].file;
    }
}

TEST_F(Printing, OtherPagesLeaveItemsOneAndTwoAlone) {
    program.state.strFldPage2[44] = "2.4";
    printed(1, 1);
    printed(3, 10);
    EXPECT_EQ(program.state.strFldPage2[44], "2.4");
}

} // namespace
} // namespace lodge
