#include "values/dates.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

namespace lodge {
namespace {

constexpr Date day(int year, unsigned month, unsigned date) {
    return Date{std::chrono::year{year}, std::chrono::month{month}, std::chrono::day{date}};
}

TEST(Dates, AValidDateComesBackAsItIs) {
    EXPECT_EQ(ChkDate("01012561"), "01012561");
    EXPECT_EQ(ChkDate("31122561"), "31122561");
    EXPECT_EQ(ChkDate("30042561"), "30042561");
}

TEST(Dates, TheTwentyNinthOfFebruaryNeedsALeapYear) {
    EXPECT_EQ(ChkDate("29022563"), "29022563");
    EXPECT_EQ(ChkDate("29022562"), "");
    EXPECT_EQ(ChkDate("28022562"), "28022562");
    EXPECT_EQ(ChkDate("30022563"), "");
}

TEST(Dates, ADayBehindTheEndOfItsMonthIsRefused) {
    EXPECT_EQ(ChkDate("31042561"), "");
    EXPECT_EQ(ChkDate("32012561"), "");
    for (const char* text : {"31012561", "31032561", "30042561", "31052561", "30062561", "31072561",
             "31082561", "30092561", "31102561", "30112561", "31122561"})
        EXPECT_EQ(ChkDate(text), text);
    for (const char* text : {"31062561", "31092561", "31112561", "29022561"})
        EXPECT_EQ(ChkDate(text), "") << text;
}

TEST(Dates, ADayAMonthOrAYearOfZeroIsRefused) {
    EXPECT_EQ(ChkDate("00002561"), "");
    EXPECT_EQ(ChkDate("00012561"), "");
    EXPECT_EQ(ChkDate("01002561"), "");
    EXPECT_EQ(ChkDate("01010000"), "");
}

TEST(Dates, AMonthAboveTwelveIsRefused) {
    EXPECT_EQ(ChkDate("01132561"), "");
    EXPECT_EQ(ChkDate("01992561"), "");
}

TEST(Dates, TheYear2500IsTheFirstThatCounts) {
    EXPECT_EQ(ChkDate("01012500"), "01012500");
    EXPECT_EQ(ChkDate("31122499"), "");
    EXPECT_EQ(ChkDate("01012018"), "");
    EXPECT_EQ(ChkDate("31129999"), "31129999");
}

TEST(Dates, ATextOfFewerThanEightCharactersIsNoDate) {
    EXPECT_EQ(ChkDate(""), "");
    EXPECT_EQ(ChkDate("1012561"), "");
    EXPECT_EQ(ChkDate("1"), "");
}

TEST(Dates, ATextThatIsNotDigitsIsNoDate) {
    EXPECT_EQ(ChkDate("1_012561"), "");
    EXPECT_EQ(ChkDate("01/01/2561"), ""); // the mask's slashes are dropped by the caller
    EXPECT_EQ(ChkDate("๐๑๐๑๒๕๖๑"), "");
    EXPECT_EQ(ChkDate("กขคงจฉชซ"), "");
    EXPECT_EQ(ChkDate("0101256\xff"), "");
}

TEST(Dates, ALongerTextCountsByItsFirstFourAndItsLastFourCharacters) {
    EXPECT_EQ(ChkDate("0101002561"), "01012561");
}

TEST(Dates, ABuddhistYearThatLeavesThreeIsALeapYear) {
    EXPECT_TRUE(isLeapBuddhistYear(2563)); // 2020
    EXPECT_TRUE(isLeapBuddhistYear(2543)); // 2000
    EXPECT_FALSE(isLeapBuddhistYear(2560));
    EXPECT_FALSE(isLeapBuddhistYear(2561));
    EXPECT_FALSE(isLeapBuddhistYear(2562));
    EXPECT_FALSE(isLeapBuddhistYear(2564));
}

TEST(Dates, TheCheckTakesEveryFourthYearForALeapYearEven2643) {
    EXPECT_EQ(ChkDate("29022643"), "29022643"); // 2100, which the Gregorian calendar skips
}

TEST(Dates, DatesCompareAsYearMonthDay) {
    EXPECT_EQ(DateToYMD("31122561"), "25611231");
    EXPECT_EQ(DateToYMD("31/12/2561"), "25611231");
    EXPECT_EQ(DateToYMD("__/__/____"), "");
    EXPECT_EQ(DateToYMD("3112256"), "");
    EXPECT_EQ(DateToYMD(""), "");
    EXPECT_LT(DateToYMD("31122560"), DateToYMD("01012561"));
}

TEST(Dates, ADateTextIsAJulianDayNumber) {
    EXPECT_EQ(DateFromText("01012561"), 2458120);   // 1 January 2018
    EXPECT_EQ(DateFromText("01/01/2561"), 2458120); // the same from a mask
    EXPECT_EQ(DateFromText("01012543"), 2451545);   // 1 January 2000
    EXPECT_EQ(DateFromText("16112401"), 2400000);   // 16 November 1858
    EXPECT_EQ(DateFromText("24052511"), 2440001);   // 24 May 1968
}

TEST(Dates, TheGregorianReformLeavesNoDayNumberOut) {
    EXPECT_EQ(DateFromText("15102125"), 2299161); // 15 October 1582, the day after …
    EXPECT_EQ(DateFromText("04102125"), 2299160); // … 4 October 1582
}

TEST(Dates, AYearBeforeTheChristianEraCountsAsTheOneAfterIt) {
    EXPECT_EQ(DateFromText("31120542"), DateFromText("31120543"));
    EXPECT_EQ(DateFromText("31120543") + 1, DateFromText("01010544"));
}

TEST(Dates, DayNumbersAgreeWithTheCalendarOnEveryDayOf200Years) {
    // 1 January 1970 is the Julian day 2440588.
    for (std::chrono::sys_days at = day(1957, 1, 1); at < std::chrono::sys_days{day(2157, 1, 1)};
         at += std::chrono::days{1}) {
        const std::string text = dateText(Date{at});
        ASSERT_EQ(DateFromText(text), at.time_since_epoch().count() + 2440588) << text;
    }
}

TEST(Dates, ATextWithoutEightDigitsHasNoDayNumber) {
    EXPECT_EQ(DateFromText(""), 0);
    EXPECT_EQ(DateFromText("1012561"), 0);
    EXPECT_EQ(DateFromText("__/__/____"), 0);
}

TEST(Dates, MonthsHaveAShortAndAFullName) {
    EXPECT_EQ(MonthName("1", 1), "ม.ค.");
    EXPECT_EQ(MonthName("1", 4), "เม.ย.");
    EXPECT_EQ(MonthName("1", 12), "ธ.ค.");
    EXPECT_EQ(MonthName("2", 1), "มกราคม");
    EXPECT_EQ(MonthName("2", 12), "ธันวาคม");
}

TEST(Dates, JulyIsSpeltAsTheFormSpellsIt) { EXPECT_EQ(MonthName("2", 7), "กรกฏาคม"); }

TEST(Dates, AMonthOutOfRangeOrAnUnknownFormHasNoName) {
    EXPECT_EQ(MonthName("1", 0), "");
    EXPECT_EQ(MonthName("2", 13), "");
    EXPECT_EQ(MonthName("2", -1), "");
    EXPECT_EQ(MonthName("3", 1), "");
    EXPECT_EQ(MonthName("", 1), "");
}

TEST(Dates, DigitsOfAMaskLoseSlashesAndPrompts) {
    EXPECT_EQ(dateDigits("01/05/2561"), "01052561");
    EXPECT_EQ(dateDigits("1_/__/____"), "1");
    EXPECT_EQ(dateDigits("__/__/____"), "");
    EXPECT_EQ(dateDigits(""), "");
}

TEST(Dates, AddingYearsToALeapDayFallsOnThe28th) {
    EXPECT_EQ(AddYears(day(2020, 2, 29), -5), day(2015, 2, 28));
    EXPECT_EQ(AddYears(day(2020, 2, 29), 4), day(2024, 2, 29));
    EXPECT_EQ(AddYears(day(2018, 1, 31), 13), day(2031, 1, 31));
    EXPECT_EQ(AddYears(day(2018, 1, 31), 0), day(2018, 1, 31));
}

TEST(Dates, AddingDaysCrossesMonthsAndYears) {
    EXPECT_EQ(AddDays(day(2018, 1, 1), -1), day(2017, 12, 31));
    EXPECT_EQ(AddDays(day(2020, 2, 28), 1), day(2020, 2, 29));
    EXPECT_EQ(AddDays(day(2018, 12, 31), 366), day(2020, 1, 1));
}

TEST(Dates, APeriodCountsItsFirstAndItsLastDay) {
    EXPECT_EQ(periodDays(day(2018, 1, 1), day(2018, 12, 31)), 365);
    EXPECT_EQ(periodDays(day(2020, 1, 1), day(2020, 12, 31)), 366);
    EXPECT_EQ(periodDays(day(2018, 1, 1), day(2018, 1, 1)), 1);
    EXPECT_EQ(periodDays(day(2018, 1, 2), day(2018, 1, 1)), 0);
}

TEST(Dates, ADayIsWrittenForPeopleForTheReturnAndForMachines) {
    EXPECT_EQ(isoText(day(2018, 5, 1)), "2018-05-01");
    EXPECT_EQ(dateText(day(2018, 5, 1)), "01052561");
    EXPECT_EQ(maskText(day(2018, 5, 1)), "01/05/2561");
}

} // namespace
} // namespace lodge
