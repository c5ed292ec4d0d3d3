#include "ihq_desktop.h"
#include "pages/ihq/ihq_rules.h"
#include "values/notifier.h"

#include <gtest/gtest.h>

#include <vector>

namespace lodge {
namespace {

class RememberingNotifier : public Notifier {
  public:
    std::vector<std::string> shown;
    void notify(const std::string& text) override { shown.push_back(text); }
};

// --- Amounts ---

TEST(FormatBox, ShowsWhatIsBelowZeroInBrackets) {
    EXPECT_EQ(FormatBox("-1234.5"), "(1,234.50)");
    EXPECT_EQ(FormatBox("1234.5"), "1,234.50");
    EXPECT_EQ(FormatBox("0"), "0.00");
}

TEST(FormatBox, LeavesAnEmptyTextEmpty) { EXPECT_EQ(FormatBox(""), ""); }

TEST(ChkBoxNum, TakesAnAmountAndAnEmptyText) {
    RememberingNotifier notifier;
    EXPECT_TRUE(ChkBoxNum("", notifier));
    EXPECT_TRUE(ChkBoxNum("-1,234.50", notifier));
    EXPECT_TRUE(notifier.shown.empty());
}

TEST(ChkBoxNum, TellsWhyItRefuses) {
    RememberingNotifier notifier;
    EXPECT_FALSE(ChkBoxNum("1.2.3", notifier));
    EXPECT_FALSE(ChkBoxNum("12-3", notifier));
    EXPECT_FALSE(ChkBoxNum("10000000000000.00", notifier));
    const std::vector<std::string> wanted = {
        std::string(GetMessage("M073")), std::string(GetMessage("M075")), std::string(GetMessage("M069"))};
    EXPECT_EQ(notifier.shown, wanted);
}

// --- Dates ---

TEST(CheckDate, ReadsEightDigitsAndAFullMask) {
    EXPECT_TRUE(CheckDate("31122561"));
    EXPECT_TRUE(CheckDate("31/12/2561"));
}

TEST(CheckDate, RefusesAMaskThatIsNotFull) {
    EXPECT_FALSE(CheckDate(""));
    EXPECT_FALSE(CheckDate("__/__/____"));
    EXPECT_FALSE(CheckDate("01/01/256_"));
    EXPECT_FALSE(CheckDate("0101256"));
}

TEST(CheckDate, RefusesADayMonthOrYearOfNothing) {
    EXPECT_FALSE(CheckDate("00012561"));
    EXPECT_FALSE(CheckDate("01002561"));
    EXPECT_FALSE(CheckDate("01010000"));
}

TEST(CheckDate, KnowsTheLengthOfTheMonths) {
    EXPECT_TRUE(CheckDate("31012561"));
    EXPECT_TRUE(CheckDate("28022561"));
    EXPECT_FALSE(CheckDate("29022561"));
    EXPECT_TRUE(CheckDate("29022559")); // 2016
    EXPECT_FALSE(CheckDate("30022559"));
    EXPECT_FALSE(CheckDate("31042561"));
    EXPECT_FALSE(CheckDate("01132561"));
}

TEST(ChkContinue, WantsTheNextDay) {
    EXPECT_TRUE(ChkContinue("01012560", "31122559"));
    EXPECT_TRUE(ChkContinue("01032559", "29022559")); // a leap year
    EXPECT_FALSE(ChkContinue("02012560", "31122559"));
    EXPECT_FALSE(ChkContinue("31122559", "31122559"));
}

TEST(DayBefore, IsTheDayBefore) {
    EXPECT_EQ(dayBefore("01012560"), "31122559");
    EXPECT_EQ(dayBefore("01032559"), "29022559");
}

// --- The privilege ---

class Privilege : public testing::Test, public IhqDesktop {
  protected:
    PrivilegeDates dates(const char* confirmed, const char* start, const char* end) {
        return {.confirmed = confirmed, .start = start, .end = end, .record = record()};
    }
};

TEST_F(Privilege, MayBeWithoutADate) {
    EXPECT_EQ(refusalOfConfirmed(dates("", "", "")), "");
    EXPECT_EQ(refusalOfStart(dates("", "", "")), "");
    EXPECT_EQ(refusalOfEnd(dates("", "", "")), "");
}

TEST_F(Privilege, WantsReadableDates) {
    EXPECT_EQ(refusalOfConfirmed(dates("31042559", "", "")), "M026");
    EXPECT_EQ(refusalOfStart(dates("", "3104", "")), "M026");
    EXPECT_EQ(refusalOfEnd(dates("", "", "29022561")), "M026");
}

TEST_F(Privilege, IsApprovedWithinTheReturnsPeriodOrBefore) {
    EXPECT_EQ(refusalOfConfirmed(dates("31122561", "", "")), "");
    EXPECT_EQ(refusalOfConfirmed(dates("01012562", "", "")), "M201");
}

TEST_F(Privilege, StartsWithinTheReturnsPeriodOrBefore) {
    EXPECT_EQ(refusalOfStart(dates("", "31122561", "")), "");
    EXPECT_EQ(refusalOfStart(dates("", "01012562", "")), "M202");
}

TEST_F(Privilege, StartsOnTheDayOfItsApprovalOrLater) {
    EXPECT_EQ(refusalOfStart(dates("02012559", "02012559", "")), "");
    EXPECT_EQ(refusalOfStart(dates("02012559", "01012559", "")), "M203");
    EXPECT_EQ(refusalOfConfirmed(dates("02012559", "02012559", "")), "");
    EXPECT_EQ(refusalOfConfirmed(dates("02012559", "01012559", "")), "M203");
}

TEST_F(Privilege, EndsWithinTheReturnsPeriodOrLater) {
    EXPECT_EQ(refusalOfEnd(dates("", "", "01012561")), "");
    EXPECT_EQ(refusalOfEnd(dates("", "", "31122560")), "M204");
}

// --- The earlier periods ---

class LossRow : public testing::Test, public IhqDesktop {
  protected:
    std::string_view first(const char* from, const char* to = "") {
        return refusalOfLossStart(
            {.from = from, .to = to, .isFirstRow = true, .fromAbove = "", .toAbove = "", .state = state()});
    }
    std::string_view below(const char* fromAbove, const char* toAbove, const char* from) {
        return refusalOfLossStart({.from = from,
            .to = "",
            .isFirstRow = false,
            .fromAbove = fromAbove,
            .toAbove = toAbove,
            .state = state()});
    }
    std::string_view end(const char* from, const char* to) {
        return refusalOfLossEnd(
            {.from = from, .to = to, .isFirstRow = true, .fromAbove = "", .toAbove = "", .state = state()});
    }
};

TEST_F(LossRow, MayBeEmpty) {
    EXPECT_EQ(first(""), "");
    EXPECT_EQ(end("", ""), "");
}

TEST_F(LossRow, WantsReadableDates) {
    EXPECT_EQ(first("31042560"), "M026");
    EXPECT_EQ(first("0104"), "M026");
    EXPECT_EQ(end("01012560", "31042560"), "M026");
}

TEST_F(LossRow, StartsBeforeTheReturnsPeriod) {
    EXPECT_EQ(first("31122560"), "");
    EXPECT_EQ(first("01012561"), "M517");
}

TEST_F(LossRow, StartsNoEarlierThanTheCarryOverReaches) {
    EXPECT_EQ(first("01012556"), ""); // 2561 less five years
    EXPECT_EQ(first("31122555"), "M516");
}

TEST_F(LossRow, ReachesThirteenYearsBackForAPromotedBusinessAndTheMessageStillSaysFive) {
    state().FucDate.SetCarryYears(13);
    EXPECT_EQ(first("01012548"), "");
    EXPECT_EQ(first("31122547"), "M516");
    EXPECT_NE(GetMessage("M516").find("ไม่เกิน 5 รอบ"), std::string_view::npos);
}

TEST_F(LossRow, ComesAfterTheRowAbove) {
    EXPECT_EQ(below("01012559", "31122559", "31122558"), "M515");
    EXPECT_EQ(below("01012559", "31122559", "01012559"), "M136") << "the same day is not before";
}

TEST_F(LossRow, WaitsForTheRowAbove) {
    EXPECT_EQ(below("", "", "01012560"), "M207");
    EXPECT_EQ(below("01012559", "", "01012560"), "M207");
}

TEST_F(LossRow, FollowsTheRowAboveWithoutADayBetween) {
    EXPECT_EQ(below("01012559", "31122559", "01012560"), "");
    EXPECT_EQ(below("01012559", "31122559", "02012560"), "M136");
}

TEST_F(LossRow, EndsOnlyWhereItHasStarted) { EXPECT_EQ(end("", "31122560"), "M200"); }

TEST_F(LossRow, EndsBeforeTheReturnsPeriod) {
    EXPECT_EQ(end("01012560", "31122560"), "");
    EXPECT_EQ(end("01022560", "01012561"), "M206");
    state().intInvestment = 1;
    EXPECT_EQ(end("01022560", "01012561"), "M152");
}

TEST_F(LossRow, HasAtMostAYear) {
    EXPECT_EQ(end("01042558", "31032559"), "");
    EXPECT_EQ(end("01042558", "01042559"), "M514");
    EXPECT_EQ(end("29022559", "27022560"), ""); // a year after 29 February is 28 February
    EXPECT_EQ(end("29022559", "28022560"), "M514");
}

TEST_F(LossRow, HasAtLeastTwoDays) {
    EXPECT_EQ(end("01012560", "02012560"), "");
    EXPECT_EQ(end("01012560", "01012560"), "M148");
    EXPECT_EQ(end("01012560", "31122559"), "M148");
}

} // namespace
} // namespace lodge
