#include "open_page.h"
#include "pages/schedules/schedule_checks.h"
#include "values/messages.h"

#include <gtest/gtest.h>

namespace lodge {
namespace {

class ScheduleChecks : public testing::Test, public Desktop {
  protected:
    bool refuses(void (*check)(Program&)) {
        host.shown.clear();
        state().intError = 0;
        check(program);
        return state().intError == 1;
    }
};

TEST_F(ScheduleChecks, AnEmptyReturnPasses) {
    EXPECT_FALSE(refuses(Chk_Item5Store));
    EXPECT_FALSE(refuses(Chk_Item8Store));
    EXPECT_TRUE(host.shown.empty());
}

TEST_F(ScheduleChecks, ATaxableOrCommonCostOfManufactureBelowZeroIsRefusedInEveryReturn) {
    for (const std::size_t entry : {33u, 50u}) {
        state().strFldPage4_5 = {};
        state().strFldPage4_5[entry] = "-0.01";
        EXPECT_TRUE(refuses(Chk_Item5Store)) << entry;
        EXPECT_EQ(lastMessage(), GetMessage("M054"));
        state().strFldPage4_5[entry] = "0.00";
        EXPECT_FALSE(refuses(Chk_Item5Store)) << entry;
    }
}

TEST_F(ScheduleChecks, AnExemptCostOfManufactureBelowZeroIsRefusedOnlyWithAnInvestmentStatus) {
    state().strFldPage4_5[16] = "-1.00";
    state().intInvestment = 0;
    EXPECT_FALSE(refuses(Chk_Item5Store));
    state().intInvestment = 3;
    EXPECT_TRUE(refuses(Chk_Item5Store));
    EXPECT_EQ(lastMessage(), GetMessage("M054"));
}

TEST_F(ScheduleChecks, AllRefusalsOfItem5AreListed) {
    state().intInvestment = 1;
    state().strFldPage4_5[16] = state().strFldPage4_5[33] = state().strFldPage4_5[50] = "-1.00";
    std::vector<Refusal> refusals;
    collectRefusals({state(), host}, "frmLodgePage4_5", item5CheckRows(), refusals);
    ASSERT_EQ(refusals.size(), 3u);
    EXPECT_EQ(refusals[0].code, "M054");
}

TEST_F(ScheduleChecks, WhatItem9AddsBackMustBeItem8Lines15To26) {
    state().FucChk.TmpSum8_15to25 = 0.1 + 0.2;
    state().strFldPage5_9[20] = "0.30";
    EXPECT_FALSE(refuses(Chk_Item8Store)) << "binary noise is no difference";
    state().strFldPage5_9[20] = "0.31";
    EXPECT_TRUE(refuses(Chk_Item8Store));
    EXPECT_EQ(lastMessage(), GetMessage("M122"));
    state().strFldPage5_9[20] = "";
    EXPECT_TRUE(refuses(Chk_Item8Store)) << "an empty line counts nothing";
}

} // namespace
} // namespace lodge
