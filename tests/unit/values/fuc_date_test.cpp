#include "values/fuc_date.h"

#include <gtest/gtest.h>

namespace lodge {
namespace {

constexpr int christianMachine = 2018;
constexpr int buddhistMachine = 2561;

constexpr Date day(int year, unsigned month, unsigned date) {
    return Date{std::chrono::year{year}, std::chrono::month{month}, std::chrono::day{date}};
}

TEST(FucDate, AStartDateSetsThePeriodAndTheDayBefore) {
    FucDate dates;
    EXPECT_TRUE(dates.Str2StartDate("01012561", christianMachine));
    EXPECT_EQ(dates.ParsedDate, day(2018, 1, 1));
    EXPECT_EQ(dates.PeriodStartDate, day(2018, 1, 1));
    EXPECT_EQ(dates.DayBeforePeriodStart, day(2017, 12, 31));
    EXPECT_FALSE(dates.PeriodEndDate);
}

TEST(FucDate, AnEndDateSetsTheEndAlone) {
    FucDate dates;
    EXPECT_TRUE(dates.Str2EndDate("31122561", christianMachine));
    EXPECT_EQ(dates.ParsedDate, day(2018, 12, 31));
    EXPECT_EQ(dates.PeriodEndDate, day(2018, 12, 31));
    EXPECT_FALSE(dates.PeriodStartDate);
    EXPECT_FALSE(dates.DayBeforePeriodStart);
}

TEST(FucDate, AMachineOfTheBuddhistCalendarMeansTheSameDay) {
    for (const int machineYear : {christianMachine, 2500, 2501, buddhistMachine}) {
        FucDate dates;
        EXPECT_TRUE(dates.Str2StartDate("29022563", machineYear)) << machineYear;
        EXPECT_EQ(dates.PeriodStartDate, day(2020, 2, 29)) << machineYear;
    }
}

TEST(FucDate, TheBoundaryIsAboutTheMachineAndNotAboutTheDateGiven) {
    FucDate dates;
    EXPECT_TRUE(dates.Str2StartDate("31122499", buddhistMachine));
    EXPECT_EQ(dates.PeriodStartDate, day(1956, 12, 31));
    EXPECT_TRUE(dates.Str2StartDate("31122499", christianMachine));
    EXPECT_EQ(dates.PeriodStartDate, day(1956, 12, 31));
}

TEST(FucDate, SeparatorsAndALostLeadingZeroDoNotMatter) {
    for (const char* text : {"01/05/2561", "01-05-2561", "01 05 2561", " 01052561 ", "1052561"}) {
        FucDate dates;
        EXPECT_TRUE(dates.Str2EndDate(text, christianMachine)) << text;
        EXPECT_EQ(dates.PeriodEndDate, day(2018, 5, 1)) << text;
    }
}

TEST(FucDate, AnUnreadableTextIsRefusedAndLeavesEverythingAsItWas) {
    FucDate dates;
    ASSERT_TRUE(dates.Str2StartDate("01012561", christianMachine));
    ASSERT_TRUE(dates.Str2EndDate("31122561", christianMachine));
    for (const char* text : {"", "31022561", "29022562", "00012561", "01132561", "101012561", "0101256x",
             "__/__/____", "01010500", "29022643", "๐๑๐๑๒๕๖๑"}) {
        EXPECT_FALSE(dates.Str2StartDate(text, christianMachine)) << text;
        EXPECT_FALSE(dates.Str2EndDate(text, buddhistMachine)) << text;
    }
    EXPECT_EQ(dates.PeriodStartDate, day(2018, 1, 1));
    EXPECT_EQ(dates.DayBeforePeriodStart, day(2017, 12, 31));
    EXPECT_EQ(dates.PeriodEndDate, day(2018, 12, 31));
    EXPECT_EQ(dates.ParsedDate, day(2018, 12, 31));
}

TEST(FucDate, TheEarliestStartLiesTheCarrySpanBeforeThePeriod) {
    FucDate dates;
    ASSERT_TRUE(dates.Str2StartDate("01012561", christianMachine));
    dates.SetCarryYears(5);
    EXPECT_EQ(dates.CarryYearLimit, 5);
    EXPECT_EQ(dates.EarliestStartDate, day(2013, 1, 1));
    dates.SetCarryYears(13);
    EXPECT_EQ(dates.CarryYearLimit, 13);
    EXPECT_EQ(dates.EarliestStartDate, day(2005, 1, 1));
}

TEST(FucDate, TheEarliestStartOfALeapDayFallsOnThe28th) {
    FucDate dates;
    ASSERT_TRUE(dates.Str2StartDate("29022563", christianMachine));
    dates.SetCarryYears(5);
    EXPECT_EQ(dates.EarliestStartDate, day(2015, 2, 28));
}

TEST(FucDate, WithoutAPeriodThereIsNoEarliestStart) {
    FucDate dates;
    dates.SetCarryYears(5);
    EXPECT_EQ(dates.CarryYearLimit, 5);
    EXPECT_FALSE(dates.EarliestStartDate);
}

} // namespace
} // namespace lodge
