#include "item11_desktop.h"
#include "pages/loss/item11_rules.h"

#include <gtest/gtest.h>

namespace lodge {
namespace {

// --- The next end of the chain ---

TEST(Item11Chain, BeginsTheDayBeforeTheReturnsPeriod) {
    Item11Desktop desktop;
    EXPECT_EQ(nextPeriodEnd(desktop.state()), "31122560");
    desktop.period("01042561", "31032562");
    EXPECT_EQ(nextPeriodEnd(desktop.state()), "31032561");
}

TEST(Item11Chain, GoesOnTheDayBeforeThePeriodEnteredLast) {
    Item11Desktop desktop;
    logEntry(desktop.state(), 12, "01/03/2559", "28/02/2560");
    EXPECT_EQ(nextPeriodEnd(desktop.state()), "29022559") << "2559 is a leap year";
    logEntry(desktop.state(), 11, "01/03/2558", "29/02/2559");
    EXPECT_EQ(nextPeriodEnd(desktop.state()), "28022558");
}

TEST(Item11Chain, HasNoEndWhereTheLogIsUnreadable) {
    Item11Desktop desktop;
    logEntry(desktop.state(), 12, "31/02/2559", "");
    EXPECT_EQ(nextPeriodEnd(desktop.state()), "");
}

// --- A start typed into the popup ---

class StartRules : public testing::Test, public Item11Desktop {
  protected:
    std::string broken(const std::string& start, const std::string& end) {
        const NewPeriodRule* rule = brokenByStart({.start = start, .end = end, .state = state()});
        return rule == nullptr ? "" : std::string(rule->code);
    }
};

TEST_F(StartRules, TakeAWholeYearAndAnythingShorter) {
    EXPECT_EQ(broken("01012560", "31122560"), "");
    EXPECT_EQ(broken("01072560", "31122560"), "");
    EXPECT_EQ(broken("30122560", "31122560"), "") << "two days are a period";
}

TEST_F(StartRules, RefuseADateThatCannotBeRead) {
    EXPECT_EQ(broken("31112560", "31122560"), "M026");
    EXPECT_EQ(broken("29022560", "31122560"), "M026");
    EXPECT_EQ(broken("0101", "31122560"), "M026");
}

TEST_F(StartRules, RefuseAStartBehindTheEndAndAPeriodOfOneDay) {
    EXPECT_EQ(broken("01012561", "31122560"), "M537");
    EXPECT_EQ(broken("31122560", "31122560"), "M542");
}

TEST_F(StartRules, RefuseMoreThanTwelveMonths) { EXPECT_EQ(broken("31122559", "31122560"), "M147"); }

TEST_F(StartRules, CountTwelveMonthsOverALeapDay) {
    EXPECT_EQ(broken("01032558", "29022559"), "");
    EXPECT_EQ(broken("28022558", "29022559"), "M147");
    EXPECT_EQ(broken("01032559", "28022560"), "");
}

TEST_F(StartRules, LetAYearFromALeapDayEndOn27February) {
    // 29 February plus a year is 28 February where the year has no 29th, and the period ends the day before.
    EXPECT_EQ(broken("29022559", "27022560"), "");
    EXPECT_EQ(broken("29022559", "28022560"), "M147");
}

TEST_F(StartRules, KeepTheChainGoingBackInTime) {
    logEntry(state(), 12, "01/01/2560", "31/12/2560");
    EXPECT_EQ(broken("01012559", "31122559"), "");
    EXPECT_EQ(broken("02012560", "31122560"), "M537") << "behind the start of the entry before";
    EXPECT_EQ(broken("01012560", "31122560"), "M542") << "the very start of the entry before";
}

TEST_F(StartRules, RefuseAnEndInThePeriodOfTheReturn) {
    EXPECT_EQ(broken("01022560", "01012561"), "M120");
    state().intInvestment = 1;
    EXPECT_EQ(broken("01022560", "01012561"), "M152");
}

TEST_F(StartRules, AreStoppedByAnEndThatIsMissing) {
    EXPECT_EQ(broken("01012560", ""), "M537") << "any day lies behind an end that is not there";
}

// --- An end typed into the popup ---

TEST(EndRules, StandInTheirOrder) {
    Item11Desktop desktop;
    const auto broken = [&](const std::string& start, const std::string& end) {
        const NewPeriodRule* rule = brokenByEnd({.start = start, .end = end, .state = desktop.state()});
        return rule == nullptr ? "" : std::string(rule->code);
    };
    EXPECT_EQ(broken("", "31122560"), "M102");
    EXPECT_EQ(broken("01012560", "3112"), "M026");
    EXPECT_EQ(broken("01022560", "01012561"), "M120");
    EXPECT_EQ(broken("31122559", "31122560"), "M147");
    EXPECT_EQ(broken("01012560", "30122559"), "M148");
    EXPECT_EQ(broken("01012560", "31122559"), "M148");
    EXPECT_EQ(broken("01012560", "01012560"), "M148") << "a typed end lies behind its start";
    EXPECT_EQ(broken("01012560", "02012560"), "");
    EXPECT_EQ(broken("01012560", "31122560"), "");
    logEntry(desktop.state(), 12, "01/12/2560", "31/12/2560");
    EXPECT_EQ(broken("01012560", "01122560"), "M537");
    EXPECT_EQ(broken("01012560", "30112560"), "");
}

// --- The table when its page is left ---

TEST(LeavingRules, StandInTheirOrder) {
    const auto broken = [](const std::string& from, const std::string& to) -> std::string {
        for (const TablePeriodRule& rule : tablePeriodRules()) {
            if (rule.refuses({.from = from, .to = to, .today = "20052562"})) return std::string(rule.code);
        }
        return "";
    };
    EXPECT_EQ(broken("01012560", "31122560"), "");
    EXPECT_EQ(broken("01012560", "31112560"), "M026");
    EXPECT_EQ(broken("01012562", "20052562"), "M055") << "today itself is not past";
    EXPECT_EQ(broken("01012562", "19052562"), "");
    EXPECT_EQ(broken("01012560", "01012560"), "M148");
    EXPECT_EQ(broken("02012560", "01012560"), "M148");
    EXPECT_EQ(broken("", "31122560"), "M102");
}

// --- A start typed into the table ---

TEST(TableStartRules, StandInTheirOrder) {
    Item11Desktop desktop;
    const auto refusal = [&](const std::string& from, const std::string& fromAbove,
                             const std::string& toAbove) {
        return typedStartRefusal(
            {.from = from, .fromAbove = fromAbove, .toAbove = toAbove, .period = desktop.state().FucDate});
    };
    EXPECT_EQ(refusal("01012561", "", ""), GetMessage("M101"));
    EXPECT_EQ(refusal("31122560", "", ""), "");
    EXPECT_EQ(refusal("01012556", "", ""), "");
    EXPECT_EQ(refusal("31122555", "", ""),
        "M150 : รอบระยะเวลาบัญชี (รายการที่ 11) ต้องไม่เกิน 5 รอบระยะเวลาบัญชีก่อนรอบระยะเวลาบัญชีปัจจุบัน");
    EXPECT_EQ(refusal("01012559", "01012559", "31122559"), GetMessage("M149"));
    EXPECT_EQ(refusal("02012560", "01012559", "31122559"), GetMessage("M136"));
    EXPECT_EQ(refusal("01012560", "01012559", "31122559"), "");
}

// --- The complete store ---

class Item11Store : public testing::Test, public Item11Desktop {
  protected:
    std::string refusal() {
        host.shown.clear();
        state().intError = 0;
        Chk_Item11Store(program);
        EXPECT_EQ(state().intError == 1, !host.shown.empty());
        return lastMessage();
    }
    void storedRow(int row, const char* from, const char* to) {
        state().strFldPage6_11[fromEntry(row)] = from;
        state().strFldPage6_11[toEntry(row)] = to;
    }
};

TEST_F(Item11Store, PassesAnEmptyTable) { EXPECT_EQ(refusal(), ""); }

TEST_F(Item11Store, RefusesHalfAPeriod) {
    for (int row = 0; row < item11Rows; ++row) {
        state().strFldPage6_11 = {};
        storedRow(row, "01/01/2560", "");
        EXPECT_EQ(refusal(), GetMessage("M102")) << row;
        storedRow(row, "", "31/12/2560");
        EXPECT_EQ(refusal(), GetMessage("M102")) << row;
    }
}

TEST_F(Item11Store, RefusesAPeriodWithoutAnyResult) {
    for (int row = 0; row < item11Rows; ++row) {
        state().strFldPage6_11 = {};
        storedRow(row, "01/01/2560", "31/12/2560");
        EXPECT_EQ(refusal(), GetMessage("M118")) << row;
        for (int i = 0; i < cellCount(row); ++i) {
            std::string& result = state().strFldPage6_11[cellEntry(firstCell(row) + i)];
            result = "0.00";
            EXPECT_EQ(refusal(), "") << row << ", " << i;
            result.clear();
        }
    }
}

TEST_F(Item11Store, RefusesAChainWithAGap) {
    logEntry(state(), 12, "01/01/2560", "31/12/2560");
    EXPECT_EQ(refusal(), "") << "one entry is a chain";
    logEntry(state(), 7, "01/01/2559", "31/12/2559");
    EXPECT_EQ(refusal(), "") << "the chain runs across both blocks";
    logEntry(state(), 11, "01/03/2558", "30/12/2558");
    EXPECT_EQ(refusal(), GetMessage("M541"));
    state().strItem11End[2] = "31/12/2558";
    EXPECT_EQ(refusal(), "");
    logEntry(state(), 10, "01/03/2557", "28/02/2558");
    EXPECT_EQ(refusal(), "") << "2558 has no 29 February";
}

TEST_F(Item11Store, FollowsTheChainOverALeapDay) {
    logEntry(state(), 12, "01/03/2559", "28/02/2560");
    logEntry(state(), 11, "01/03/2558", "28/02/2559");
    EXPECT_EQ(refusal(), GetMessage("M541")) << "29 February 2559 is missing";
    state().strItem11End[1] = "29/02/2559";
    EXPECT_EQ(refusal(), "");
}

TEST_F(Item11Store, RefusesALogThatCannotBeRead) {
    state().intItem11Count = 2;
    EXPECT_EQ(refusal(), GetMessage("M541"));
}

} // namespace
} // namespace lodge
