#include "controls/desk.h"
#include "family.h"
#include "open_page.h"
#include "pages/schedules/schedule.h"
#include "pages/schedules/schedule_page.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

namespace lodge {
namespace {

TEST(ScheduleTables, HoldTheSevenPagesByTheirNamesAndCodes) {
    const std::map<std::string, int> wanted = {{"frmLodgePage3_4", 34}, {"frmLodgePage4_5", 45},
        {"frmLodgePage4_6", 46}, {"frmLodgePage4_7", 47}, {"frmLodgePage5_8", 58}, {"frmLodgePage5_9", 59},
        {"frmLodgePage6_10", 610}};
    std::map<std::string, int> found;
    for (const Schedule& schedule : schedules)
        found[schedule.form] = schedule.pageCode;
    EXPECT_EQ(found, wanted);
}

TEST(ScheduleTables, UseNoEntryTwice) {
    for (const Schedule& schedule : schedules) {
        std::set<std::size_t> used;
        for (const ScheduleLine& line : scheduleLines(schedule)) {
            std::set<std::size_t> own;
            for (const Column column : allColumns)
                own.insert(entryOf(schedule, line, column));
            EXPECT_EQ(own.size(), line.shape == EntryShape::Packed ? 1u : 3u);
            for (const std::size_t entry : own)
                EXPECT_TRUE(used.insert(entry).second) << "item " << schedule.item << " entry " << entry;
        }
    }
}

TEST(ScheduleTables, UseNoCellAndNoPrintedNumberTwice) {
    for (const Schedule& schedule : schedules) {
        std::set<int> cells;
        std::set<int> numbers;
        for (const ScheduleLine& line : scheduleLines(schedule)) {
            EXPECT_TRUE(cells.insert(line.cell).second) << "item " << schedule.item << " cell " << line.cell;
            if (line.number != 0) {
                EXPECT_TRUE(numbers.insert(line.number).second)
                    << "item " << schedule.item << " line " << line.number;
            }
        }
    }
}

TEST(ScheduleTables, ListTheLinesInTheOrderOfThePaper) {
    for (const Schedule& schedule : schedules) {
        int last = 0;
        for (const ScheduleLine& line : scheduleLines(schedule)) {
            if (line.number == 0) continue;
            EXPECT_EQ(line.number, last + 1) << "item " << schedule.item;
            last = line.number;
        }
        EXPECT_EQ(scheduleLines(schedule).back().cell, totalCell);
    }
}

TEST(ScheduleTables, EndWithTheLineThatItem3Names) {
    // Items 4 and 6 to 9: "จากรายการที่ 4 9.", "6 7.", "7 5.", "8 35.", "9 7."
    const std::map<int, int> totals = {{4, 9}, {5, 17}, {6, 7}, {7, 5}, {8, 35}, {9, 7}};
    for (const auto& [item, line] : totals)
        EXPECT_EQ(scheduleLines(scheduleOf(item)).back().number, line) << "item " << item;
}

TEST(ScheduleTables, TellWhatEveryTypedCellFeeds) {
    for (const Member& member : family()) {
        const Schedule& schedule = scheduleOf(member.item);
        for (const Cell& cell : member.cells) {
            std::set<std::size_t> wanted;
            for (const Fed& fed : cell.feeds)
                wanted.insert(fed.entry);
            std::set<std::size_t> found;
            for (const ScheduleLine& line : scheduleLines(schedule)) {
                if (dependsOn(schedule, line, cell.cell)) found.insert(line.entry);
            }
            EXPECT_EQ(found, wanted) << "item " << member.item << " cell " << cell.cell;
        }
    }
}

TEST(ScheduleTables, HaveTheTypedCellsOfEveryMemberAndNoOther) {
    for (const Member& member : family()) {
        std::set<int> wanted;
        for (const Cell& cell : member.cells)
            wanted.insert(cell.cell);
        std::set<int> found;
        for (const ScheduleLine& line : scheduleLines(scheduleOf(member.item))) {
            if (!line.isComputed()) found.insert(line.cell);
        }
        EXPECT_EQ(found, wanted) << "item " << member.item;
    }
}

TEST(ScheduleNames, AreTheSystems) {
    Desktop desktop;
    const std::map<std::string, std::vector<std::string>> wanted = {
        {"frmLodgePage3_4", {"txtMoney41(0)", "txtMoney42(7)", "lblMoney41_06", "lblMoney42_06",
                                "lblMoney41_07", "lblMoney42_07", "lblMoney43(5)", "lblMoney43(0)",
                                "lblSumMoney41", "lblSumMoney42", "lblSumMoney43"}},
        {"frmLodgePage4_5",
            {"txtMoney51(15)", "txtMoney52(12)", "lblMoney51_04", "lblMoney52_04", "lblMoney51_06",
                "lblMoney52_06", "lblMoney51_14", "lblMoney52_14", "lblMoney51_15", "lblMoney52_15",
                "lblMoney53(3)", "lblMoney53(14)", "lblSumMoney51", "lblSumMoney52", "lblSumMoney53"}},
        {"frmLodgePage4_6", {"txtMoney61(5)", "txtMoney62(0)", "lblMoney63(5)", "lblSumMoney63"}},
        {"frmLodgePage4_7", {"txtMoney71(3)", "txtMoney72(3)", "lblMoney73(3)", "lblSumMoney71"}},
        {"frmLodgePage5_8",
            {"txtMoney81(23)", "txtMoney82(40)", "lblMoney83(30)", "lblMoney83(39)", "lblSumMoney83"}},
        {"frmLodgePage5_9", {"txtMoney91(5)", "txtMoney92(4)", "lblMoney93(5)", "lblSumMoney92"}},
        {"frmLodgePage6_10", {"txtMoney101(0)", "txtMoney102(41)", "lblMoney101", "lblMoney102",
                                 "lblMoney103(9)", "lblMoney103(14)", "lblSumMoney101", "lblSumMoney103"}},
    };
    desktop.open<frmLodgePage3_4>();
    desktop.open<frmLodgePage4_5>();
    desktop.open<frmLodgePage4_6>();
    desktop.open<frmLodgePage4_7>();
    desktop.open<frmLodgePage5_8>();
    desktop.open<frmLodgePage5_9>();
    desktop.open<frmLodgePage6_10>();
    for (const auto& [form, names] : wanted) {
        for (const std::string& name : names)
            EXPECT_NE(desktop.program.desk.find(form)->find(name), nullptr) << form << "." << name;
    }
    EXPECT_EQ(desktop.program.desk.find("frmLodgePage4_5")->find("txtMoney51(3)"), nullptr);
    EXPECT_EQ(desktop.program.desk.find("frmLodgePage6_10")->find("txtMoney101(9)"), nullptr);
}

} // namespace
} // namespace lodge
