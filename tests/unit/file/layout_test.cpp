#include "file/layout.h"
#include "state/field_names.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace lodge {
namespace {

std::vector<std::string> allCarriedNames() {
    std::vector<std::string> names;
    for (const LayoutRow& row : layoutRows()) {
        for (const std::string& name : carriedNames(row))
            names.push_back(name);
    }
    return names;
}

TEST(Layout, CoversTheLinesOneTo261OnceAndInOrder) {
    std::size_t next = 1;
    for (const LayoutRow& row : layoutRows()) {
        EXPECT_EQ(row.firstLine, next);
        EXPECT_GE(row.lastLine, row.firstLine);
        next = row.lastLine + 1U;
    }
    EXPECT_EQ(next, returnLineCount + 1);
}

TEST(Layout, FindsTheRowOfEveryLine) {
    for (std::size_t line = 1; line <= returnLineCount; ++line) {
        const LayoutRow* const row = rowOfLine(line);
        ASSERT_NE(row, nullptr) << line;
        EXPECT_LE(row->firstLine, line);
        EXPECT_GE(row->lastLine, line);
    }
    EXPECT_EQ(rowOfLine(returnLineCount + 1), nullptr);
    EXPECT_EQ(rowOfLine(0), rowOfLine(1));
}

TEST(Layout, NamesValuesThatExist) {
    ReturnState state;
    for (const std::string& name : allCarriedNames())
        EXPECT_TRUE(findStateValue(state, name)) << name;
}

TEST(Layout, CarriesNoValueTwice) {
    std::set<std::string> seen;
    for (const std::string& name : allCarriedNames())
        EXPECT_TRUE(seen.insert(name).second) << name;
}

TEST(Layout, NoFieldLineHasMoreTokensThanAReaderHasRoomFor) {
    for (const LayoutRow& row : layoutRows())
        EXPECT_LE(row.tokenCount, row.tokens.size());
}

// --- What no line carries, array by array, with the reason ---

struct Range {
    int first;
    int last;
};

const std::map<std::string, std::vector<Range>>& uncarriedEntries() {
    static const std::map<std::string, std::vector<Range>> entries{
        {"strFldPage1", {{0, 0},      // The old 10-digit number of a hidden box.
                            {1, 10},  // Period and filing, which lines 1 and 3 give back.
                            {12, 22}, // Status boxes, which line 4 gives back.
                            {48, 49}, // Status boxes 12 and 13.
                            {50, 100}}},
        {"strFldPage2", {{22, 24},    // Profit, loss, receipts: line 10.
                            {28, 31}, // Pay more, overpaid: lines 13 and 14.
                            {33, 33}, // The tax: line 11.
                            {41, 45}, // Balances and rate: lines 11, 13, 14; 42 is never filled.
                            {46, 100}}},
        {"strFldPage1_2", {{0, 10}}}, // Rebuilt from lines 15 and 221.
        {"strFldPage3_3", {{82, 100}}}, {"strFldPage3_4", {{27, 100}}}, {"strFldPage4_5", {{51, 100}}},
        {"strFldPage4_6", {{21, 100}}}, {"strFldPage4_7", {{15, 100}}}, {"strFldPage5_8", {{86, 100}}},
        {"strFldPage5_9", {{21, 100}}}, {"strFldPage6_10", {{78, 100}}}, {"strFldPage6_11", {{69, 100}}},
        {"strFldPage7_12", {{25, 100}}},
        {"strFldPage8", {{0, 5}, {24, 100}}}, // The period again, from page 1.
        {"strItem11Start", {{13, 100}}}, {"strItem11End", {{13, 100}}}, {"intItem11Type", {{13, 100}}},
        {"modIHQ.BoxA", {{8, 10}}}, {"modIHQ.BoxB", {{8, 10}}}, {"modIHQ.BoxC", {{8, 10}}},
        {"modIHQ.BoxDateFrom", {{5, 5}}}, {"modIHQ.BoxDateTo", {{5, 5}}}, {"modIHQ.BoxMoney", {{20, 20}}},
        {"modGreen.GreenIncome", {{4, 5}}}, {"modGreen.GreenTax", {{4, 5}}},
        {"strPrevYear", {{0, 8}}}, // Follows from the period.
    };
    return entries;
}

// Values without an index that no line carries.
const std::set<std::string>& uncarriedValues() {
    static const std::set<std::string> values{// The program's own, or what the store is about.
        "strVersion", "strStoreType", "strFileName", "strLocale", "ChkInvestmentFlag1", "intNewReturn",
        "intPageCur", "intPagePrev", "intError", "blnNeedPage2", "intCount", "blnChooseShown", "blnMouseUp",
        // What page 1 works out from the status boxes and asks once.
        "intStatusIndex", "blnStatus11Kept", "blnIHQPage", "blnWebsiteAsked", "DataCtrl_P1.StatusA",
        "DataCtrl_P1.StatusB", "DataCtrl_P1.RateList", "DataCtrl_P1.IndcBusCode", "DataCtrl_P1.BusIndex",
        "DataCtrl_P1.ChkStatus11", "DataCtrl_P1.StatusChanged", "DataCtrl_P1.StatusBusy",
        // What line 11 gives back through the rate number and the ticks, and what is only printed.
        "DataCtrl_P2.index_nRate", "DataCtrl_P2.nRateCode", "DataCtrl_P2.nRateLabel", "DataCtrl_P2.nRateNo",
        "DataCtrl_P2.Select_2_1", "DataCtrl_P2.RateTag", "DataCtrl_P2.RateCodePrint",
        "DataCtrl_P2.RateCaseText",
        // Line 223: two flags in one choice, and item 3's copies.
        "modNew3.NewBox1", "modNew3.NewBox2", "BoxWarned", "BoxProfit", "BoxLoss", "BoxAmount",
        // Sums and copies that a load works out.
        "Item11ExemptProfit", "Item11ExemptLoss", "Item11Net", "FucChk.TmpSum8_15to25", "modIHQ.PeriodStart",
        "modIHQ.PeriodEnd", "FucDate.PeriodStartDate", "FucDate.PeriodEndDate",
        "FucDate.DayBeforePeriodStart", "FucDate.ParsedDate", "FucDate.EarliestStartDate",
        "FucDate.CarryYearLimit",
        // What holds for one session only.
        "modEdit.EditActive", "modEdit.EditStatus", "modEdit.EditIncome", "modEdit.EditTax",
        "FucChk.PendingMessage", "FucChk.LastValidId", "FucChk.BusinessText", "PageChk.CurrentLine",
        "PageChk.SilentCheck", "PageChk.Sum",
        // What the forms of the pages hand on among themselves.
        "SheetIncome", "Sheet71a", "Sheet71c", "SheetRate", "SheetTax", "blnFolderWritable", "IsRate17",
        "IsRate18"};
    return values;
}

bool isListedAsUncarried(const std::string& name) {
    const std::size_t open = name.find_first_of("[(");
    if (open == std::string::npos) return uncarriedValues().contains(name);
    const auto array = uncarriedEntries().find(name.substr(0, open));
    if (array == uncarriedEntries().end()) {
        // The worksheet of page 2 is carried whole.
        return false;
    }
    const int index = std::stoi(name.substr(open + 1));
    return std::ranges::any_of(
        array->second, [index](Range range) { return range.first <= index && index <= range.last; });
}

TEST(Layout, CarriesEveryValueThatIsNotListedHere) {
    const std::vector<std::string> carried = allCarriedNames();
    const std::set<std::string> known(carried.begin(), carried.end());
    for (const std::string& name : stateValueNames()) {
        EXPECT_NE(known.contains(name), isListedAsUncarried(name)) << name;
    }
}

TEST(Layout, TheSectionsThatAreCountedFromTheirMarkersBeginWithOne) {
    for (const LayoutRow& row : layoutRows()) {
        if (row.section == 0) continue;
        const LayoutRow* const marker = rowOfLine(row.section);
        EXPECT_EQ(marker->form, LineForm::Marker);
        EXPECT_EQ(marker->firstLine, row.section);
        EXPECT_LE(row.section, row.firstLine);
    }
}

TEST(TokenReader, GivesEmptyTokensBehindTheLast) {
    const std::vector<std::string_view> tokens{"a"};
    TokenReader reader(tokens);
    EXPECT_EQ(reader.next(), "a");
    EXPECT_EQ(reader.next(), "");
    EXPECT_EQ(reader.next(), "");
}

} // namespace
} // namespace lodge
