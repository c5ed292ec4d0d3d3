#include "pages/schedules/item3_lines.h"

#include <gtest/gtest.h>

#include <set>

namespace lodge {
namespace {

TEST(Item3Lines, NoEntryOfTheArrayIsUsedTwice) {
    std::set<std::size_t> used = {
        line22Entry, profit3Entry, loss3Entry, profit9Entry, loss9Entry, profit22Entry, loss22Entry};
    ASSERT_EQ(used.size(), 7U);
    for (const Item3Line& line : item3Lines()) {
        for (const std::size_t entry : line.entries)
            EXPECT_TRUE(used.insert(entry).second) << "line " << line.number << " entry " << entry;
    }
    for (const Item3SubLine& line : item3SubLines())
        EXPECT_TRUE(used.insert(line.entry).second) << line.number;
    EXPECT_EQ(*used.rbegin(), 81U);
    EXPECT_EQ(used.size(), 82U) << "entries 0 to 81 without a gap";
}

TEST(Item3Lines, NoPlaceIsUsedTwice) {
    std::set<int> used;
    for (const Item3Line& line : item3Lines()) {
        if (line.place >= 0) {
            EXPECT_TRUE(used.insert(line.place).second) << line.number;
        }
    }
    for (const Item3SubLine& line : item3SubLines())
        EXPECT_TRUE(used.insert(line.place).second) << line.number;
    EXPECT_FALSE(used.contains(20)) << "the form has no box 20";
    EXPECT_EQ(*used.rbegin(), item3Places - 1);
}

TEST(Item3Lines, SevenLinesAndTheSumAreComputed) {
    std::set<int> computed;
    for (const Item3Line& line : item3Lines()) {
        if (line.isComputed()) computed.insert(line.number);
    }
    EXPECT_EQ(computed, (std::set<int>{3, 5, 7, 9, 12, 14, 16, 21}));
}

} // namespace
} // namespace lodge
