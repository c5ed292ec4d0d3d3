#include "pages/tax/rate_table.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

namespace lodge {
namespace {

double taxOfRow(int row, double income) {
    return worksheetTax(worksheetRows()[static_cast<std::size_t>(row)], income);
}

TEST(WorksheetTax, OfASmallCompanyRisesInTwoSteps) {
    EXPECT_EQ(taxOfRow(1, 300000), 0);
    EXPECT_EQ(taxOfRow(1, 300000.10), 0.02);       // 0.10 x 15% = 0.015
    EXPECT_EQ(taxOfRow(1, 2450000), 322500);       // 2,150,000 x 15%
    EXPECT_EQ(taxOfRow(1, 3000000), 405000);       // 2,700,000 x 15%
    EXPECT_EQ(taxOfRow(1, 3000000.01), 405000);    // 0.01 x 20% = 0.002, the 20% branch
    EXPECT_EQ(taxOfRow(1, 3000000.05), 405000.01); // 0.05 x 20% = 0.01; 15% would give 405,000.0075
    EXPECT_EQ(taxOfRow(1, 5000000), 805000);       // 405,000 + 2,000,000 x 20%
}

TEST(WorksheetTax, OfASingleAccountCompanyBeginsAbove300000) {
    EXPECT_EQ(taxOfRow(7, 300000), 0);
    EXPECT_EQ(taxOfRow(7, 300000.05), 0.01); // 0.05 x 10% = 0.005
    EXPECT_EQ(taxOfRow(7, 1000000), 70000);
}

TEST(WorksheetTax, OfEachRowIsItsRate) {
    const std::map<int, double> taxOf1234567_85 = {
        {0, 246913.57}, // 20%
        {2, 123456.79}, // 10%: 123,456.785
        {3, 185185.18}, // 15%: 185,185.1775
        {4, 123456.79},
        {5, 123456.79},
        {6, 123456.79},
        {8, 37037.04}, // 3%: 37,037.0355
        {10, 123456.79},
    };
    for (const auto& [row, tax] : taxOf1234567_85)
        EXPECT_EQ(taxOfRow(row, 1234567.85), tax) << "row " << row;
}

TEST(WorksheetTax, OfTheRowThatNoLawHasBroughtIntoForceIsNil) { EXPECT_EQ(taxOfRow(9, 1000000), 0); }

TEST(WorksheetRows, AreMirroredByDifferentBoxes) {
    std::set<Mirror> used;
    for (const WorksheetRow& row : worksheetRows()) {
        if (row.mirror != Mirror::None) {
            EXPECT_TRUE(used.insert(row.mirror).second) << row.key;
        }
    }
    EXPECT_EQ(used.size(), 10U) << "all rows but the bank's";
}

// --- Rate codes ---

TEST(CalcTaxByRate, TaxesByCode) {
    EXPECT_EQ(CalcTaxByRate("1.1", 1000), 200);
    EXPECT_EQ(CalcTaxByRate("1.2", 301000), 100); // (301,000 - 300,000) x 10%
    EXPECT_EQ(CalcTaxByRate("1.3", 1000), 100);
    EXPECT_EQ(CalcTaxByRate("1.4", 1000), 150);
    EXPECT_EQ(CalcTaxByRate("1.5", 1000), 100);
    EXPECT_EQ(CalcTaxByRate("1.6", 1000), 100);
    EXPECT_EQ(CalcTaxByRate("5%", 1000), 50);
}

TEST(CalcTaxByRate, TakesTheCodeWithItsBrackets) {
    EXPECT_EQ(CalcTaxByRate("(1.1)", 1000), 200);
    EXPECT_EQ(CalcTaxByRate("(1.2)", 301000), 100);
    EXPECT_EQ(CalcTaxByRate("(1.6)", 1000), 100);
}

TEST(CalcTaxByRate, GivesNothingForACodeWithoutRate) {
    for (const char* code : {"1.7", "1.8", "(1.7)", "(2.1)", "2.4", "", "1.10", "x"})
        EXPECT_EQ(CalcTaxByRate(code, 1000000), 0) << code;
}

TEST(CalcTaxByRate, NeverGoesBelowZeroBelowTheExemptProfit) { EXPECT_EQ(CalcTaxByRate("1.2", 250000), 0); }

TEST(CalcTaxByRate, RoundsHalfASatangAwayFromZero) {
    EXPECT_EQ(CalcTaxByRate("1.3", 0.05), 0.01);                       // 0.005
    EXPECT_EQ(CalcTaxByRate("1.3", 0.04), 0);                          // 0.004
    EXPECT_EQ(CalcTaxByRate("1.3", -0.05), -0.01);                     // a loss counts the same way
    EXPECT_EQ(CalcTaxByRate("5%", 1234.50), 61.73);                    // 61.725
    EXPECT_EQ(CalcTaxByRate("5%", 9999999999999.99), 500000000000.00); // 499,999,999,999.9995
}

// --- Rate boxes ---

TEST(RateBoxes, CarryTheirTags) {
    EXPECT_EQ(rateBoxes()[0].tag(), "20|1.1|1");
    EXPECT_EQ(rateBoxes()[3].tag(), "15|1.4|4");
    EXPECT_EQ(rateBoxes()[6].tag(), "3|1.7|7");
    EXPECT_EQ(singleRateBoxes()[0].tag(), "3|1.7|7");
    EXPECT_EQ(singleRateBoxes()[1].tag(), "10|1.8|8");
    EXPECT_EQ(singleRateBoxes()[2].tag(), "10|1.8|8");
}

// --- Statuses ---

TEST(StatusRates, NoStatusStandsTwice) {
    std::set<std::string_view> seen;
    for (const StatusRates& row : allStatusRates())
        EXPECT_TRUE(seen.insert(row.status).second) << row.status;
    EXPECT_EQ(seen.size(), 19U);
}

TEST(StatusRates, ExemptStatusesOpenNoRow) {
    for (const char* exempt : {"14", "9", "16", "17", "19", "21"})
        EXPECT_TRUE(isExemptStatus(exempt)) << exempt;
    for (const char* taxed : {"1", "4", "10", "11", "13", "15", "18", "20", "12", ""})
        EXPECT_FALSE(isExemptStatus(taxed)) << taxed;
}

} // namespace
} // namespace lodge
