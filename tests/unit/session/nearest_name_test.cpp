#include "session/nearest_name.h"

#include <gtest/gtest.h>

namespace lodge {
namespace {

TEST(NearestName, TheDistanceCountsSingleSlips) {
    EXPECT_EQ(editDistance("click", "click"), 0U);
    EXPECT_EQ(editDistance("clik", "click"), 1U);
    EXPECT_EQ(editDistance("cllick", "click"), 1U);
    EXPECT_EQ(editDistance("clack", "click"), 1U);
    EXPECT_EQ(editDistance("clcik", "click"), 1U); // neighbours swapped
    EXPECT_EQ(editDistance("kitten", "sitting"), 3U);
    EXPECT_EQ(editDistance("", "abc"), 3U);
    EXPECT_EQ(editDistance("abc", ""), 3U);
    EXPECT_EQ(editDistance("", ""), 0U);
}

TEST(NearestName, CapitalsCountAsSmallLetters) { EXPECT_EQ(editDistance("cmdok1", "CmdOK1"), 0U); }

TEST(NearestName, TheNearestCandidateWins) {
    EXPECT_EQ(nearestName("frmLodgeStrat", {"MDILodge", "frmLodgePage1", "frmLodgeStart"}), "frmLodgeStart");
}

TEST(NearestName, OfEquallyNearOnesTheFirstWins) {
    EXPECT_EQ(nearestName("mskDate", {"mskDate1", "mskDate2"}), "mskDate1");
}

TEST(NearestName, WithoutCandidatesThereIsNoHint) {
    EXPECT_EQ(nearestName("x", {}), "");
    EXPECT_EQ(nearestNameHint("x", {}), "");
}

TEST(NearestName, AHintStandsBehindTheCause) {
    EXPECT_EQ(nearestNameHint("clik", {"type", "click"}), "; the nearest name is \"click\"");
}

} // namespace
} // namespace lodge
