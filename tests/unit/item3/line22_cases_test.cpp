#include "pages/schedules/line22_cases.h"

#include <gtest/gtest.h>

namespace lodge {
namespace {

struct Case {
    const char* exempt;
    const char* taxable;
    std::int16_t investment;
    const char* line22;
};

// Figures by hand: S1 is the exempt column of line 21, S2 the taxable one.
class Line22 : public testing::TestWithParam<Case> {};

TEST_P(Line22, FollowsFromTheTwoColumnsOfLine21) {
    const Case& c = GetParam();
    EXPECT_EQ(line22Text(c.exempt, c.taxable, c.investment), c.line22)
        << "S1 " << c.exempt << ", S2 " << c.taxable << ", investment " << c.investment;
}

INSTANTIATE_TEST_SUITE_P(OneColumn, Line22,
    testing::Values(Case{"", "", 0, "0.00"}, Case{"", "", 3, "0.00"}, Case{"100.00", "", 0, "0.00"},
        Case{"(100.00)", "", 1, "(100.00)"}, Case{"(100.00)", "", 3, "0.00"}, Case{"(100.00)", "", 4, "0.00"},
        Case{"", "250.00", 0, "250.00"}, Case{"", "(250.00)", 0, "(250.00)"}, Case{"", "0.00", 0, "0.00"},
        Case{"0.00", "", 0, "0.00"}));

INSTANTIATE_TEST_SUITE_P(ProfitOfTheExemptBusiness, Line22,
    testing::Values(Case{"100.00", "0.00", 0, "0.00"}, Case{"100.00", "250.00", 0, "250.00"},
        Case{"100.00", "250.00", 3, "250.00"},
        Case{"100.00", "(40.00)", 0, "0.00"},      // 100 - 40 = 60, not below zero
        Case{"100.00", "(100.00)", 0, "0.00"},     // exactly zero
        Case{"100.00", "(100.01)", 0, "(100.01)"}, // -0.01: the taxable loss stands whole
        Case{"100.00", "(40.00)", 3, "(40.00)"}, Case{"100.00", "(40.00)", 4, "(40.00)"},
        Case{"0.00", "250.00", 0, "250.00"}, Case{"0.00", "(250.00)", 0, "(250.00)"},
        Case{"0.00", "0.00", 0, "0.00"}));

INSTANTIATE_TEST_SUITE_P(LossOfTheExemptBusiness, Line22,
    testing::Values(Case{"(100.00)", "0.00", 0, "(100.00)"}, Case{"(100.00)", "0.00", 4, "0.00"},
        Case{"(100.00)", "250.00", 0, "150.00"}, Case{"(300.00)", "250.00", 0, "(50.00)"},
        Case{"(250.00)", "250.00", 0, "0.00"}, Case{"(300.00)", "250.00", 3, "250.00"},
        Case{"(100.00)", "(250.00)", 0, "(350.00)"}, Case{"(100.00)", "(250.00)", 4, "(250.00)"}));

TEST(Line22, HasNoNoiseOfBinarySums) {
    EXPECT_EQ(line22Text("(0.30)", "0.30", 0), "0.00");
    EXPECT_EQ(line22Text("(9,999,999,999,999.99)", "9,999,999,999,999.98", 0), "(0.01)");
}

} // namespace
} // namespace lodge
