#include "program/user.h"
#include "shell/page_table.h"
#include "shell/reconciliation.h"
#include "shell/shell.h"
#include "test_host.h"
#include "values/messages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace lodge {
namespace {

/// The ties as the paper has them: a figure of a schedule, a figure of the item that it feeds, the message,
/// and whether the filer has the attachment of a headquarters.
struct PaperTie {
    std::string& (*schedule)(ReturnState& state);
    std::string& (*line)(ReturnState& state);
    const char* message;
    bool withAttachment = false;
};

using S = ReturnState;

const std::vector<PaperTie>& paperTies() {
    static const std::vector<PaperTie> ties = {
        // Item 4 line 9, item 6 line 7, item 7 line 5, item 8 line 35, item 9 line 7, item 10 line 5; each in
        // the exempt and in the taxable column.
        {[](S& s) -> std::string& { return s.strFldPage3_4[8]; },
            [](S& s) -> std::string& { return s.strFldPage3_3[1]; }, "M045"},
        {[](S& s) -> std::string& { return s.strFldPage3_4[17]; },
            [](S& s) -> std::string& { return s.strFldPage3_3[21]; }, "M045"},
        {[](S& s) -> std::string& { return s.strFldPage4_6[6]; },
            [](S& s) -> std::string& { return s.strFldPage3_3[3]; }, "M046"},
        {[](S& s) -> std::string& { return s.strFldPage4_6[13]; },
            [](S& s) -> std::string& { return s.strFldPage3_3[23]; }, "M046"},
        {[](S& s) -> std::string& { return s.strFldPage4_7[4]; },
            [](S& s) -> std::string& { return s.strFldPage3_3[5]; }, "M047"},
        {[](S& s) -> std::string& { return s.strFldPage4_7[9]; },
            [](S& s) -> std::string& { return s.strFldPage3_3[25]; }, "M047"},
        {[](S& s) -> std::string& { return s.strFldPage5_8[23]; },
            [](S& s) -> std::string& { return s.strFldPage3_3[7]; }, "M048"},
        {[](S& s) -> std::string& { return s.strFldPage5_8[47]; },
            [](S& s) -> std::string& { return s.strFldPage3_3[27]; }, "M048"},
        {[](S& s) -> std::string& { return s.strFldPage5_9[5]; },
            [](S& s) -> std::string& { return s.strFldPage3_3[10]; }, "M049"},
        {[](S& s) -> std::string& { return s.strFldPage5_9[11]; },
            [](S& s) -> std::string& { return s.strFldPage3_3[30]; }, "M049"},
        {[](S& s) -> std::string& { return s.strFldPage6_10[11]; },
            [](S& s) -> std::string& { return s.strFldPage3_3[12]; }, "M082"},
        {[](S& s) -> std::string& { return s.strFldPage6_10[23]; },
            [](S& s) -> std::string& { return s.strFldPage3_3[32]; }, "M082"},
        // The losses of the attachment with line 15 of their column, item 11 with the column that adds both.
        {[](S& s) -> std::string& { return s.modIHQ.BoxG1; },
            [](S& s) -> std::string& { return s.strFldPage3_3[14]; }, "M505", true},
        {[](S& s) -> std::string& { return s.modIHQ.BoxG2; },
            [](S& s) -> std::string& { return s.strFldPage3_3[34]; }, "M506", true},
        {[](S& s) -> std::string& { return s.strFldPage6_11[68]; },
            [](S& s) -> std::string& { return s.strFldPage3_3[54]; }, "M050"},
        // Item 5 line 17 with item 4 line 3.
        {[](S& s) -> std::string& { return s.strFldPage4_5[16]; },
            [](S& s) -> std::string& { return s.strFldPage3_4[2]; }, "M051"},
        {[](S& s) -> std::string& { return s.strFldPage4_5[33]; },
            [](S& s) -> std::string& { return s.strFldPage3_4[11]; }, "M051"},
    };
    return ties;
}

class Reconciliation : public testing::Test {
  protected:
    TestHost host;
    Program program{host};
    ReturnState& state = program.state;

    [[nodiscard]] std::vector<Refusal> listed() {
        std::vector<Refusal> refusals;
        collectReconciliation({state, host}, refusals);
        return refusals;
    }
    void expectPasses() {
        state.intError = 0;
        ReconcileItems(program);
        EXPECT_EQ(state.intError, 0);
        EXPECT_TRUE(host.shown.empty());
        EXPECT_TRUE(listed().empty());
    }
    /// The walk stops at this message, and the list has nothing else.
    void expectRefused(const char* code) {
        state.intError = 0;
        ReconcileItems(program);
        EXPECT_EQ(state.intError, 1) << code;
        ASSERT_EQ(host.shown.size(), 1U) << code;
        EXPECT_EQ(host.shown.back().text, GetMessage(code)) << code;
        host.shown.clear();
        const std::vector<Refusal> list = listed();
        ASSERT_EQ(list.size(), 1U) << code;
        EXPECT_EQ(list.front().code, code);
        EXPECT_EQ(list.front().text, GetMessage(code));
    }
    void exchange(const PaperTie& tie, const char* schedule, const char* line) {
        state.blnIHQPage = tie.withAttachment;
        tie.schedule(state) = schedule;
        tie.line(state) = line;
    }
};

TEST_F(Reconciliation, AnEmptyReturnAgrees) { expectPasses(); }

TEST_F(Reconciliation, EveryTieIsHeldBothWays) {
    for (const PaperTie& tie : paperTies()) {
        exchange(tie, "100.00", "");
        expectRefused(tie.message);
        exchange(tie, "", "100.00");
        expectRefused(tie.message);
        exchange(tie, "100.00", "100.01");
        expectRefused(tie.message);
        exchange(tie, "-100.00", "100.00");
        expectRefused(tie.message);
        exchange(tie, "100.00", "100");
        expectPasses();
        exchange(tie, "0.00", "");
        expectPasses();
        exchange(tie, "-100.00", "-100.00");
        expectPasses();
        exchange(tie, "", "");
    }
}

TEST_F(Reconciliation, TheTableHasTheTiesOfThePaperInTheirOrder) {
    const auto ties = reconciliationTies();
    ASSERT_EQ(ties.size(), paperTies().size());
    for (std::size_t i = 0; i < ties.size(); ++i) {
        const PaperTie& wanted = paperTies()[i];
        EXPECT_EQ(&ties[i].schedule.figure(state), &wanted.schedule(state)) << i;
        EXPECT_EQ(&ties[i].line.figure(state), &wanted.line(state)) << i;
        EXPECT_EQ(ties[i].message, wanted.message) << i;
    }
}

TEST_F(Reconciliation, TheWalkStopsAtTheFirstTieThatDiffersAndTheListGoesOn) {
    for (const bool withAttachment : {false, true}) {
        state.blnIHQPage = withAttachment;
        std::vector<std::string> wanted;
        for (const PaperTie& tie : paperTies()) {
            tie.schedule(state) = "1.00";
            if (tie.message == std::string("M050") ? !withAttachment
                                                   : !tie.withAttachment || withAttachment) {
                wanted.emplace_back(tie.message);
            }
        }
        std::vector<std::string> codes;
        for (const Refusal& refusal : listed())
            codes.push_back(refusal.code);
        EXPECT_EQ(codes, wanted);
        host.shown.clear();
        ReconcileItems(program);
        ASSERT_EQ(host.shown.size(), 1U);
        EXPECT_EQ(host.shown.back().text, GetMessage("M045"));
    }
}

TEST_F(Reconciliation, AHeadquartersIsNeverHeldAgainstItem11) {
    state.blnIHQPage = true;
    state.strFldPage6_11[68] = "100.00";
    expectPasses();
    state.strFldPage3_3[54] = "50.00";
    expectPasses();
}

TEST_F(Reconciliation, OthersAreNeverHeldAgainstTheAttachment) {
    state.modIHQ.BoxG1 = "100.00";
    state.modIHQ.BoxG2 = "100.00";
    expectPasses();
}

TEST_F(Reconciliation, TheSecondWalkLooksAtItem5Alone) {
    state.strFldPage3_4[8] = "1.00";
    ReconcileItem45(program);
    EXPECT_EQ(state.intError, 0);
    state.strFldPage4_5[33] = "1.00";
    ReconcileItem45(program);
    EXPECT_EQ(state.intError, 1);
    ASSERT_EQ(host.shown.size(), 1U);
    EXPECT_EQ(host.shown.back().text, GetMessage("M051"));
}

TEST_F(Reconciliation, NoFigureIsAltered) {
    state.strFldPage3_4[8] = "1.00";
    ReconcileItems(program);
    EXPECT_EQ(state.strFldPage3_4[8], "1.00");
    EXPECT_EQ(state.strFldPage3_3[1], "");
    EXPECT_EQ(state.intPageCur, 0);
}

TEST_F(Reconciliation, AListedTieHasBothItsSides) {
    state.strFldPage3_4[17] = "100.00";
    state.strFldPage3_3[21] = "90.00";
    const Refusal refusal = listed().front();
    EXPECT_EQ(refusal.form, "frmLodgePage3_3");
    EXPECT_EQ(refusal.control, "txtMoney32(1)");
    ASSERT_TRUE(refusal.sides.has_value());
    EXPECT_EQ(refusal.sides->here, 90.0);
    EXPECT_EQ(refusal.sides->there, 100.0);
}

TEST_F(Reconciliation, TheLossOfItem11IsMendedInTheColumnThatTheFilerHas) {
    state.strFldPage6_11[68] = "100.00";
    state.intP1Box1 = 1;
    EXPECT_EQ(listed().front().control, "txtMoney31(14)");
    state.intP1Box2 = 1;
    EXPECT_EQ(listed().front().control, "txtMoney32(14)");
}

TEST_F(Reconciliation, EveryPlaceToMendIsABoxToTypeInto) {
    const Shell shell(program);
    for (const Tie& tie : reconciliationTies()) {
        for (const TieSide& side : {tie.line, tie.schedule}) {
            const Form& form = program.desk.loadedOrDesign(side.form);
            if (side.control.empty()) continue;
            const Control* control = form.find(side.control);
            ASSERT_NE(control, nullptr) << side.form << '.' << side.control;
            EXPECT_EQ(control->kind(), ControlKind::TextBox) << side.control;
        }
    }
}

// --- The full checks of a complete store ---

/// The codes that the full checks list for a return in which everything is wrong, each once, in their order.
std::vector<std::string> codesInOrder(const ReturnState& state, const Host& host) {
    std::vector<Refusal> refusals;
    for (const FullCheck& check : fullChecks()) {
        if (check.applies == nullptr || check.applies(state)) check.collect({state, host}, refusals);
    }
    std::vector<std::string> codes(refusals.size());
    std::ranges::transform(refusals, codes.begin(), &Refusal::code);
    return codes;
}

std::ptrdiff_t place(const std::vector<std::string>& codes, const char* code) {
    const auto found = std::ranges::find(codes, code);
    EXPECT_NE(found, codes.end()) << code;
    return found - codes.begin();
}

TEST_F(Reconciliation, StandsBetweenPage2AndItem5InACompleteStore) {
    state.strFldPage3_4[8] = "1.00";   // M045
    state.strFldPage4_5[33] = "-1.00"; // M051 and M054
    state.strFldPage5_9[20] = "1.00";  // M122
    state.strFldPage6_11[0] = "x";     // M102
    state.strFldPage7_12[9] = "1.00";  // M084
    state.blnIHQPage = true;           // M501
    state.DataCtrl_P1.IndcBusType = "15";
    const std::vector<std::string> codes = codesInOrder(state, host);
    const std::array places = {place(codes, "M045"), place(codes, "M051"), place(codes, "M054"),
        place(codes, "M501"), place(codes, "M122"), place(codes, "M102"), place(codes, "M084")};
    EXPECT_TRUE(std::ranges::is_sorted(places));
    EXPECT_GT(places.front(), 0) << "page 1 and page 2 come first";
}

TEST_F(Reconciliation, TheFullChecksStandInTheirOrder) {
    const auto checks = fullChecks();
    ASSERT_EQ(checks.size(), 10U);
    EXPECT_EQ(checks[2].run, &ReconcileItems);
    EXPECT_EQ(checks[3].run, &ReconcileItem45);
    EXPECT_EQ(checks[2].applies, nullptr);
    ASSERT_NE(checks[3].applies, nullptr);
    EXPECT_FALSE(checks[3].applies(state));
    state.intInvestment = 4;
    EXPECT_TRUE(checks[3].applies(state));
}

TEST_F(Reconciliation, AnAttachmentIsAskedForOfAHeadquartersAlone) {
    EXPECT_EQ(std::ranges::count(codesInOrder(state, host), "M501"), 0);
    state.blnIHQPage = true;
    state.DataCtrl_P1.IndcBusType = "15";
    EXPECT_EQ(std::ranges::count(codesInOrder(state, host), "M501"), 1);
}

} // namespace
} // namespace lodge
