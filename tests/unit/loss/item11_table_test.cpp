#include "pages/loss/item11_table.h"

#include <gtest/gtest.h>

#include <set>

namespace lodge {
namespace {

TEST(Item11Table, GivesEveryCellToOneRow) {
    std::set<int> cells;
    for (int row = 0; row < item11Rows; ++row) {
        for (int i = 0; i < cellCount(row); ++i)
            EXPECT_TRUE(cells.insert(firstCell(row) + i).second);
    }
    EXPECT_EQ(cells.size(), 42u);
    EXPECT_EQ(*cells.rbegin(), 41);
    EXPECT_EQ(firstCell(7), 28);
    EXPECT_EQ(firstCell(8), 32);
    EXPECT_EQ(firstCell(12), 40);
}

TEST(Item11Table, CountsLossesAndTakesTaxableProfitsOff) {
    for (int row = 0; row < 8; ++row) {
        EXPECT_EQ(signInCarriedLoss(4 * row), 0) << "an exempt profit stays outside";
        EXPECT_EQ(signInCarriedLoss(4 * row + 1), 1);
        EXPECT_EQ(signInCarriedLoss(4 * row + 2), -1);
        EXPECT_EQ(signInCarriedLoss(4 * row + 3), 1);
    }
    for (int j = 0; j < 5; ++j) {
        EXPECT_EQ(signInCarriedLoss(32 + 2 * j), -1);
        EXPECT_EQ(signInCarriedLoss(33 + 2 * j), 1);
    }
}

TEST(Item11Table, KeepsItsFieldsWhereTheFileHasThem) {
    EXPECT_EQ(fromEntry(12), 12u);
    EXPECT_EQ(toEntry(0), 13u);
    EXPECT_EQ(toEntry(12), 25u);
    EXPECT_EQ(cellEntry(0), 26u);
    EXPECT_EQ(cellEntry(41), 67u);
    EXPECT_EQ(cellEntry(item11CarriedCell), 68u);
}

TEST(Item11Amounts, AreReadWithoutSeparatorsAndAreZeroWhereTheyAreNoNumber) {
    EXPECT_EQ(txt2CDbl("1,234.50"), 1234.5);
    EXPECT_EQ(txt2CDbl("  12 "), 12.0);
    EXPECT_EQ(txt2CDbl(".5"), 0.5);
    EXPECT_EQ(txt2CDbl(""), 0.0);
    EXPECT_EQ(txt2CDbl("-5.00"), 0.0);
    EXPECT_EQ(txt2CDbl("(5.00)"), 0.0);
    EXPECT_EQ(txt2CDbl("12x"), 0.0);
    EXPECT_EQ(txt2CDbl("1.2.3"), 0.0);
}

TEST(Item11Log, FillsEachBlockFromBelow) {
    ReturnState state;
    EXPECT_EQ(nextExemptRow(state), 7);
    EXPECT_EQ(nextTaxableRow(state), 12);
    logEntry(state, 7, "01/01/2560", "31/12/2560");
    logEntry(state, 12, "01/01/2559", "31/12/2559");
    logEntry(state, 11, "01/01/2558", "31/12/2558");
    EXPECT_EQ(nextExemptRow(state), 6);
    EXPECT_EQ(nextTaxableRow(state), 10);
    EXPECT_EQ(state.intItem11Count, 3);
    EXPECT_EQ(state.intItem11CountA, 1);
    EXPECT_EQ(state.intItem11CountB, 2);
    EXPECT_EQ(lastEntryRow(state), 11);
    EXPECT_EQ(state.strItem11Start[0], "01/01/2560");
    EXPECT_EQ(state.strItem11End[2], "31/12/2558");
}

TEST(Item11Log, GivesItsEntriesBackFromTheLastOn) {
    ReturnState state;
    logEntry(state, 7, "01/01/2560", "31/12/2560");
    logEntry(state, 12, "01/01/2559", "31/12/2559");
    unlogLastEntry(state);
    EXPECT_EQ(state.intItem11Count, 1);
    EXPECT_EQ(state.intItem11CountA, 1);
    EXPECT_EQ(state.intItem11CountB, 0);
    EXPECT_EQ(state.strItem11Start[1], "");
    EXPECT_EQ(state.strItem11End[1], "");
    EXPECT_EQ(state.intItem11Type[1], 0);
    EXPECT_EQ(lastEntryRow(state), 7);
    unlogLastEntry(state);
    unlogLastEntry(state);
    EXPECT_EQ(state.intItem11Count, 0);
    EXPECT_EQ(lastEntryRow(state), std::nullopt);
}

TEST(Item11Log, BearsTheCountersOfAHostileFile) {
    ReturnState state;
    state.intItem11Count = 32000;
    state.intItem11CountA = -5;
    state.intItem11CountB = 900;
    state.intItem11Type[100] = 77;
    EXPECT_EQ(lastEntryRow(state), std::nullopt);
    EXPECT_EQ(nextExemptRow(state), 7);
    EXPECT_EQ(nextTaxableRow(state), std::nullopt);
    logEntry(state, 7, "01/01/2560", "31/12/2560");
    EXPECT_EQ(state.intItem11Count, 101);
    unlogLastEntry(state);
    EXPECT_EQ(state.intItem11Count, 100);
    state.intItem11Count = -1;
    unlogLastEntry(state);
    EXPECT_EQ(state.intItem11Count, -1);
}

} // namespace
} // namespace lodge
