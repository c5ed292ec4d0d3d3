#include "state/filing.h"
#include "state/status_numbers.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace lodge {
namespace {

TEST(TaxYear, IsTheEndDatesYearEvenWhenMostOfThePeriodLiesInTheYearBefore) {
    ReturnState state;
    state.strStartDDMMYY = "01022560";
    state.strFinishDDMMYY = "31012561";
    setTaxYear(state);
    EXPECT_EQ(state.strTaxYear, "2561");
}

TEST(PreviousYears, AreTheEightYearsBeforeTheStartAndAnEmptyNinth) {
    ReturnState state;
    state.strStartDDMMYY = "01012561";
    setPreviousYears(state);
    EXPECT_EQ(state.strPrevYear[0], "2553");
    EXPECT_EQ(state.strPrevYear[7], "2560");
    EXPECT_EQ(state.strPrevYear[8], "");
}

TEST(PreviousYears, AreEmptyWithoutAStart) {
    ReturnState state;
    state.strPrevYear.fill("2550");
    state.strPrevYear[8] = "";
    setPreviousYears(state);
    for (const std::string& year : state.strPrevYear)
        EXPECT_EQ(year, "");
}

struct Filing {
    const char* normal;
    const char* advance;
    const char* additional;
    const char* number;
    const char* wantedType;
    const char* wantedNumber;
};

class FilingType : public testing::TestWithParam<Filing> {};

TEST_P(FilingType, FollowsFromTheBoxesOfPage1) {
    const Filing& filing = GetParam();
    ReturnState state;
    state.strFldPage1[7] = filing.normal;
    state.strFldPage1[8] = filing.advance;
    state.strFldPage1[9] = filing.additional;
    state.strFldPage1[10] = filing.number;
    setFilingType(state);
    EXPECT_EQ(state.strFilingType, filing.wantedType);
    EXPECT_EQ(state.strAddNo, filing.wantedNumber);
}

INSTANTIATE_TEST_SUITE_P(Boxes, FilingType,
    testing::Values(Filing{"", "", "", "", "0", "00"}, Filing{"1", "0", "0", "", "1", "00"},
        Filing{"1", "0", "0", "7", "1", "00"}, // A number without its box counts for nothing.
        Filing{"0", "0", "1", "7", "2", "07"}, Filing{"0", "0", "1", "12", "2", "12"},
        Filing{"0", "1", "2", "", "3", "00"}, // As a load leaves an advance payment.
        Filing{"1", "1", "1", "3", "1", "00"}, Filing{"0", "1", "1", "3", "2", "03"}));

TEST(StatusNumbers, EachLeadsToItsBox) {
    EXPECT_EQ(boxOfStatus("1"), 0);
    EXPECT_EQ(boxOfStatus("4"), 3);
    EXPECT_EQ(boxOfStatus("9"), 8);
    EXPECT_EQ(boxOfStatus("10"), 17);
    EXPECT_EQ(boxOfStatus("11"), 10);
    EXPECT_EQ(boxOfStatus("14"), 15);
    EXPECT_EQ(boxOfStatus("15"), 16);
    EXPECT_EQ(boxOfStatus("18"), 21);
    EXPECT_EQ(boxOfStatus("20"), 14);
    EXPECT_EQ(boxOfStatus("21"), 23);
}

TEST(StatusNumbers, NoTwoLeadToTheSameBoxAndNoneToTheZonesBox) {
    std::set<std::int16_t> boxes{developmentZoneBox};
    int numbers = 0;
    for (int number = 0; number <= 99; ++number) {
        if (const auto box = boxOfStatus(std::to_string(number))) {
            ++numbers;
            EXPECT_TRUE(boxes.insert(*box).second) << number;
        }
    }
    EXPECT_EQ(numbers, 20);
}

TEST(StatusNumbers, AnEmptyOrUnknownNumberHasNoBox) {
    EXPECT_EQ(boxOfStatus(""), std::nullopt);
    EXPECT_EQ(boxOfStatus("8"), std::nullopt);
    EXPECT_EQ(boxOfStatus("99"), std::nullopt);
}

TEST(FilingBoxes, StayAsTheyAreForAFilingTypeThatIsNone) {
    ReturnState state;
    state.strFldPage1[filing::normal] = "1";
    state.strFldPage1[filing::additionalNumber] = "3";
    state.strFilingType = "0";
    restoreFilingBoxes(state);
    EXPECT_EQ(state.strFldPage1[filing::normal], "1");
    EXPECT_EQ(state.strFldPage1[filing::additionalNumber], "3");
}

} // namespace
} // namespace lodge
