#include "ihq_desktop.h"
#include "pages/ihq/ihq_page.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace lodge {
namespace {

class IhqPage : public testing::Test, public IhqDesktop {
  protected:
    frmIHQ& page = openPage();

    void put(const char* control, const char* text) { type(page, control, text); }
    [[nodiscard]] std::string shown(const char* control) const { return read(page, control); }
    [[nodiscard]] Control& box(const char* control) const { return Desktop::control(page, control); }
    [[nodiscard]] std::string focused() const {
        return program.desk.focus() == nullptr ? "" : program.desk.focus()->fullName();
    }
    /// A period with a loss of the exempt business.
    void putPeriod(int row, const char* from, const char* to, const char* loss) {
        const std::string number = std::to_string(row);
        put(("mskDateFrom(" + number + ")").c_str(), from);
        put(("mskDateTo(" + number + ")").c_str(), to);
        put(("txtMoney1(" + std::to_string(4 * row + 1) + ")").c_str(), loss);
    }
};

// --- The page ---

TEST_F(IhqPage, ShowsWhoFiles) { EXPECT_EQ(shown("txtNid"), "0105536000313"); }

TEST_F(IhqPage, HidesTheToolsOfItsMakers) {
    EXPECT_FALSE(page.Command1.visible());
    EXPECT_FALSE(page.cmdChkN2Input.visible());
}

TEST_F(IhqPage, IsNoPageYetWhileItIsMade) { EXPECT_EQ(state().intPageCur, 13); }

TEST_F(IhqPage, NobodyTypesIntoWhatItComputes) {
    for (const char* control : {"txtNid", "txtC(0)", "txtC(7)", "txtSumA", "txtSumB", "txtSumC"}) {
        EXPECT_TRUE(user.whyNot(box(control)).has_value()) << control;
        EXPECT_EQ(box(control).back(), BackColour::Button) << control;
    }
}

TEST_F(IhqPage, OpensTheColumnsThatTheFilerHas) {
    const auto isOpen = [](const Control& box) {
        EXPECT_EQ(box.back(), box.enabled() ? BackColour::Window : BackColour::Button) << box.fullName();
        return box.enabled();
    };
    for (const auto& [exempt, taxable] :
        {std::pair(1, 0), std::pair(0, 1), std::pair(1, 1), std::pair(0, 0)}) {
        state().intP1Box1 = static_cast<std::int16_t>(exempt);
        state().intP1Box2 = static_cast<std::int16_t>(taxable);
        frmIHQ& again = openAgain();
        for (int line = 0; line < 8; ++line) {
            EXPECT_EQ(isOpen(again.txtA[line]), exempt == 1) << line;
            EXPECT_EQ(isOpen(again.txtB[line]), taxable == 1) << line;
        }
        for (int row = 0; row < 5; ++row) {
            EXPECT_EQ(isOpen(again.txtMoney1[4 * row]), exempt == 1) << row;
            EXPECT_EQ(isOpen(again.txtMoney1[4 * row + 1]), exempt == 1) << row;
            EXPECT_EQ(isOpen(again.txtMoney1[4 * row + 2]), taxable == 1) << row;
            EXPECT_EQ(isOpen(again.txtMoney1[4 * row + 3]), taxable == 1) << row;
            EXPECT_TRUE(isOpen(again.mskDateFrom[row]) && isOpen(again.mskDateTo[row]));
        }
        EXPECT_EQ(isOpen(again.txtG1), exempt == 1);
        EXPECT_EQ(isOpen(again.txtG2), taxable == 1);
    }
}

TEST_F(IhqPage, TheFocusGoesLineByLine) {
    std::vector<std::string> order;
    for (const Control* each : page.controls())
        order.push_back(each->fullName());
    const auto place = [&](const char* name) { return std::ranges::find(order, name) - order.begin(); };
    EXPECT_LT(place("mskDateEnd"), place("txtA(0)"));
    EXPECT_LT(place("txtA(0)"), place("txtB(0)"));
    EXPECT_LT(place("txtB(0)"), place("txtA(1)"));
    EXPECT_LT(place("txtB(7)"), place("txtSumA"));
    EXPECT_LT(place("mskDateTo(0)"), place("txtMoney1(0)"));
    EXPECT_LT(place("txtMoney1(3)"), place("mskDateFrom(1)"));
    EXPECT_LT(place("txtMoney1(19)"), place("txtG1"));
}

// --- Record and controls ---

HeadquartersRecord fullRecord() {
    HeadquartersRecord record;
    record.LicenceConfm = "01/02/2559";
    record.LicenceStart = "01/03/2559";
    record.LicenceEnd = "28/02/2574";
    for (std::size_t i = 0; i < 8; ++i) {
        record.BoxA[i] = std::to_string(100 + i) + ".25";
        record.BoxB[i] = "-" + std::to_string(10 + i) + ".50";
        record.BoxC[i] = "7.00"; // whatever a file states
    }
    record.BoxASum = "830.00";
    record.BoxBSum = "-112.00";
    record.BoxCSum = "5.00";
    for (std::size_t row = 0; row < 5; ++row) {
        record.BoxDateFrom[row] = "01/01/" + std::to_string(2556 + row);
        record.BoxDateTo[row] = "31/12/" + std::to_string(2556 + row);
    }
    for (std::size_t cell = 0; cell < 20; ++cell)
        record.BoxMoney[cell] = cell % 2 == 0 ? "" : std::to_string(1000 * cell) + ".00";
    record.BoxG1 = "0.00";
    record.BoxG2 = "3000.00";
    record.PeriodStart = "01012561";
    record.PeriodEnd = "31122561";
    return record;
}

bool same(const HeadquartersRecord& one, const HeadquartersRecord& other) {
    const auto texts = [](const HeadquartersRecord& r) {
        return std::tie(r.LicenceConfm, r.LicenceStart, r.LicenceEnd, r.BoxA, r.BoxB, r.BoxC, r.BoxASum,
            r.BoxBSum, r.BoxCSum, r.BoxDateFrom, r.BoxDateTo, r.BoxMoney, r.BoxG1, r.BoxG2, r.PeriodStart,
            r.PeriodEnd);
    };
    return texts(one) == texts(other);
}

TEST_F(IhqPage, ShowsItsRecordAndTakesItBack) {
    record() = fullRecord();
    frmIHQ& again = openAgain();
    EXPECT_EQ(again.mskDateConfm.text(), "01/02/2559");
    EXPECT_EQ(again.mskDateStart.digits(), "01032559");
    EXPECT_EQ(again.mskDateEnd.digits(), "28022574");
    EXPECT_EQ(again.txtA[7].text(), "107.25");
    EXPECT_EQ(again.txtB[0].text(), "(10.50)");
    EXPECT_EQ(again.txtC[3].text(), "7.00");
    EXPECT_EQ(again.txtSumA.text(), "830.00");
    EXPECT_EQ(again.txtSumB.text(), "(112.00)");
    EXPECT_EQ(again.txtSumC.text(), "5.00");
    EXPECT_EQ(again.mskDateFrom[4].digits(), "01012560");
    EXPECT_EQ(again.mskDateTo[0].digits(), "31122556");
    EXPECT_EQ(again.txtMoney1[0].text(), "");
    EXPECT_EQ(again.txtMoney1[19].text(), "19,000.00");
    EXPECT_EQ(again.txtG1.text(), "0.00");
    EXPECT_EQ(again.txtG2.text(), "3,000.00");
    again.BoxToForm();
    EXPECT_TRUE(same(record(), fullRecord()));
}

TEST_F(IhqPage, ShowingTheRecordLeavesItToTheLetter) {
    record() = fullRecord();
    record().BoxA[0] = "5000"; // without satang, as another program may have stored it
    const HeadquartersRecord before = record();
    openAgain();
    EXPECT_TRUE(same(record(), before));
}

TEST_F(IhqPage, AnEmptyRecordStaysEmpty) {
    page.BoxToForm();
    HeadquartersRecord empty;
    empty.PeriodStart = "01012561";
    empty.PeriodEnd = "31122561";
    EXPECT_TRUE(same(record(), empty));
}

TEST_F(IhqPage, KeepsTheFiguresOfAClosedColumn) {
    record() = fullRecord();
    state().intP1Box2 = 0;
    openAgain().BoxToForm();
    EXPECT_TRUE(same(record(), fullRecord()));
}

TEST_F(IhqPage, HasAFieldInTheRecordAsSoonAsItIsLeft) {
    put("mskDateConfm", "01022559");
    put("txtA(0)", "1234.5");
    putPeriod(0, "01012560", "31122560", "70");
    put("txtG1", "70");
    EXPECT_EQ(record().LicenceConfm, "01/02/2559");
    EXPECT_EQ(record().BoxA[0], "1234.50");
    EXPECT_EQ(record().BoxASum, "1234.50");
    EXPECT_EQ(record().BoxDateFrom[0], "01/01/2560");
    EXPECT_EQ(record().BoxDateTo[0], "31/12/2560");
    EXPECT_EQ(record().BoxMoney[1], "70.00");
    EXPECT_EQ(record().BoxG1, "70.00");
}

// --- The privilege ---

TEST_F(IhqPage, ARefusedDateOfThePrivilegeIsClearedAndKeepsTheFocus) {
    struct Case {
        const char* control;
        const char* date;
        const char* code;
    };
    for (const Case& each :
        {Case{"mskDateConfm", "31042559", "M026"}, Case{"mskDateConfm", "01012562", "M201"},
            Case{"mskDateStart", "0101", "M026"}, Case{"mskDateStart", "01012562", "M202"},
            Case{"mskDateEnd", "30022561", "M026"}, Case{"mskDateEnd", "31122560", "M204"}}) {
        put(each.control, each.date);
        expectMessage(each.code);
        EXPECT_EQ(shown(each.control), "") << each.code;
        EXPECT_EQ(focused(), each.control) << each.code;
        EXPECT_EQ(state().intError, 1);
    }
    EXPECT_EQ(record().LicenceConfm + record().LicenceStart + record().LicenceEnd, "");
}

TEST_F(IhqPage, ThePrivilegeStartsNotBeforeItsApproval) {
    put("mskDateConfm", "02012559");
    put("mskDateStart", "01012559");
    expectMessage("M203");
    EXPECT_EQ(focused(), "mskDateStart");
    put("mskDateStart", "02012559");
    expectNoMessage();
    put("mskDateConfm", "03012559");
    expectMessage("M203");
    EXPECT_EQ(shown("mskDateConfm"), "");
    EXPECT_EQ(shown("mskDateStart"), "02012559");
}

// --- Item 1 ---

TEST_F(IhqPage, AddsBothColumnsOfALineAndAllLinesOfAColumn) {
    put("txtA(0)", "1000");
    put("txtA(7)", "0.50");
    put("txtB(0)", "250.25");
    EXPECT_EQ(shown("txtC(0)"), "1,250.25");
    EXPECT_EQ(shown("txtC(7)"), "0.50");
    EXPECT_EQ(shown("txtC(1)"), "");
    EXPECT_EQ(shown("txtSumA"), "1,000.50");
    EXPECT_EQ(shown("txtSumB"), "250.25");
    EXPECT_EQ(shown("txtSumC"), "1,250.75");
    EXPECT_EQ(record().BoxC[0], "1250.25");
    EXPECT_EQ(record().BoxBSum, "250.25");
    EXPECT_EQ(record().BoxCSum, "1250.75");
}

TEST_F(IhqPage, BothColumnsEmptyLeaveLine9Empty) {
    put("txtA(0)", "1000");
    put("txtB(3)", "5");
    put("txtA(0)", "");
    EXPECT_EQ(shown("txtC(0)"), "");
    EXPECT_EQ(shown("txtSumA"), "");
    EXPECT_EQ(shown("txtSumC"), "5.00");
    put("txtB(3)", "");
    EXPECT_EQ(shown("txtSumB"), "");
    EXPECT_EQ(shown("txtSumC"), "");
    EXPECT_EQ(record().BoxASum + record().BoxBSum + record().BoxCSum, "");
    EXPECT_EQ(record().BoxA[0] + record().BoxB[3] + record().BoxC[0] + record().BoxC[3], "");
}

TEST_F(IhqPage, ANilIsNotNothing) {
    put("txtA(2)", "0");
    EXPECT_EQ(shown("txtC(2)"), "0.00");
    EXPECT_EQ(shown("txtSumA"), "0.00");
    EXPECT_EQ(shown("txtSumB"), "");
    EXPECT_EQ(shown("txtSumC"), "0.00");
}

TEST_F(IhqPage, ANegativeIncomeStandsInBracketsAndReloadsAsNegative) {
    put("txtA(1)", "-1500");
    put("txtB(1)", "500");
    EXPECT_EQ(shown("txtA(1)"), "(1,500.00)");
    EXPECT_EQ(shown("txtC(1)"), "(1,000.00)");
    EXPECT_EQ(shown("txtSumC"), "(1,000.00)");
    EXPECT_EQ(record().BoxA[1], "-1500.00");
    EXPECT_EQ(record().BoxCSum, "-1000.00");
    openAgain();
    EXPECT_EQ(read(*program.desk.find("frmIHQ"), "txtA(1)"), "(1,500.00)");
    EXPECT_EQ(record().BoxA[1], "-1500.00");
}

TEST_F(IhqPage, WithColumn1AloneTheTaxableSumStaysEmpty) {
    state().intP1Box2 = 0;
    openAgain();
    type(*program.desk.find("frmIHQ"), "txtA(0)", "1000");
    EXPECT_EQ(record().BoxBSum, "");
    EXPECT_EQ(record().BoxCSum, "1000.00");
}

TEST_F(IhqPage, ShowsPlainDigitsWhileAnAmountIsTyped) {
    put("txtA(0)", "-1234.5");
    user.focus(page.txtA[0]);
    EXPECT_EQ(shown("txtA(0)"), "-1234.50");
    user.leave();
    EXPECT_EQ(shown("txtA(0)"), "(1,234.50)");
}

TEST_F(IhqPage, ARefusedIncomeIsClearedAndLeavesItsSums) {
    put("txtA(0)", "1000");
    put("txtA(0)", "1-2");
    expectMessage("M075");
    EXPECT_EQ(shown("txtA(0)"), "");
    EXPECT_EQ(shown("txtC(0)"), "");
    EXPECT_EQ(shown("txtSumA"), "");
    EXPECT_EQ(focused(), "txtA(0)");
    EXPECT_EQ(state().intError, 1);
}

// --- Item 2: the periods ---

TEST_F(IhqPage, ARefusedStartIsCleared) {
    struct Case {
        const char* date;
        const char* code;
    };
    for (const Case& each : {Case{"31042560", "M026"}, Case{"01012561", "M517"}, Case{"31122555", "M516"}}) {
        put("mskDateFrom(0)", each.date);
        expectMessage(each.code);
        EXPECT_EQ(shown("mskDateFrom(0)"), "") << each.code;
        EXPECT_EQ(focused(), "mskDateFrom(0)") << each.code;
    }
}

TEST_F(IhqPage, ARow2WithoutARow1IsClearedAndSendsToTheEndAbove) {
    page.mskDateTo[1].setDigits("31122560");
    page.txtMoney1[5].setText("70.00");
    put("mskDateFrom(1)", "01012560");
    expectMessage("M207");
    EXPECT_EQ(shown("mskDateFrom(1)") + shown("mskDateTo(1)") + shown("txtMoney1(5)"), "");
    EXPECT_EQ(focused(), "mskDateTo(0)");
}

TEST_F(IhqPage, AStartBeforeTheRowAboveIsCleared) {
    put("mskDateFrom(0)", "01012559");
    put("mskDateTo(0)", "31122559");
    put("mskDateFrom(1)", "01012558");
    expectMessage("M515");
    EXPECT_EQ(shown("mskDateFrom(1)"), "");
    EXPECT_EQ(shown("mskDateTo(0)"), "31122559") << "the first refusal ends the rules";
    EXPECT_EQ(focused(), "mskDateFrom(1)");
}

TEST_F(IhqPage, AStartAfterAGapIsClearedAndMovesTheEndAbove) {
    put("mskDateFrom(0)", "01012559");
    put("mskDateTo(0)", "31122559");
    put("mskDateFrom(1)", "01022560");
    expectMessage("M136");
    EXPECT_EQ(shown("mskDateFrom(1)"), "");
    EXPECT_EQ(shown("mskDateTo(0)"), "31012560");
    EXPECT_EQ(page.mskDateTo[0].text(), "31/01/2560");
    EXPECT_EQ(record().BoxDateTo[0], "31/01/2560");
    EXPECT_EQ(focused(), "mskDateFrom(1)");
    put("mskDateFrom(1)", "01022560");
    expectNoMessage();
}

TEST_F(IhqPage, ARefusedEndIsClearedAndKeepsTheFocus) {
    put("mskDateTo(0)", "31122560");
    expectMessage("M200");
    EXPECT_EQ(shown("mskDateTo(0)"), "");
    put("mskDateFrom(0)", "01022560");
    struct Case {
        const char* date;
        const char* code;
    };
    for (const Case& each : {Case{"31042560", "M026"}, Case{"01012561", "M206"}, Case{"01022560", "M148"}}) {
        put("mskDateTo(0)", each.date);
        expectMessage(each.code);
        EXPECT_EQ(shown("mskDateTo(0)"), "") << each.code;
        EXPECT_EQ(focused(), "mskDateTo(0)") << each.code;
    }
    put("mskDateFrom(0)", "01022559");
    put("mskDateTo(0)", "01022560");
    expectMessage("M514");
}

// --- Item 2: the results ---

TEST_F(IhqPage, AResultNeedsItsPeriod) {
    page.txtMoney1[6].setText("5.00"); // the same row
    put("txtMoney1(5)", "70");
    expectMessage("M117");
    EXPECT_EQ(shown("txtMoney1(5)") + shown("txtMoney1(6)"), "");
    EXPECT_EQ(focused(), "mskDateFrom(1)");
}

TEST_F(IhqPage, ABusinessHasEitherAProfitOrALoss) {
    putPeriod(0, "01012560", "31122560", "70");
    put("txtMoney1(0)", "80");
    EXPECT_EQ(shown("txtMoney1(0)"), "80.00");
    EXPECT_EQ(shown("txtMoney1(1)"), "");
    put("txtMoney1(2)", "90");
    EXPECT_EQ(shown("txtMoney1(0)"), "80.00") << "the taxable business has a pair of its own";
    put("txtMoney1(3)", "1,000");
    EXPECT_EQ(shown("txtMoney1(2)"), "");
    EXPECT_EQ(shown("txtMoney1(3)"), "1,000.00");
    put("txtMoney1(2)", "");
    EXPECT_EQ(shown("txtMoney1(3)"), "1,000.00") << "an empty cell clears nothing";
}

TEST_F(IhqPage, TheSignOfALossIsAsTyped) {
    putPeriod(0, "01012560", "31122560", "-70");
    EXPECT_EQ(shown("txtMoney1(1)"), "(70.00)");
    EXPECT_EQ(record().BoxMoney[1], "-70.00");
}

TEST_F(IhqPage, ARefusedResultGivesM073) {
    put("mskDateFrom(0)", "01012560");
    for (const char* typed : {"1.2.3", "1-2", "-"}) {
        put("txtMoney1(0)", typed);
        expectMessage("M073");
        EXPECT_EQ(shown("txtMoney1(0)"), "");
        EXPECT_EQ(focused(), "txtMoney1(0)");
    }
}

// --- Item 2: the loss that is deducted ---

TEST_F(IhqPage, TheDeductedLossIsAnAmountThatIsNotNegative) {
    putPeriod(0, "01012560", "31122560", "70");
    for (const char* typed : {"1.2.3", "1-2", "-5"}) {
        put("txtG1", typed);
        expectMessage("M073");
        EXPECT_EQ(shown("txtG1"), "");
        EXPECT_EQ(focused(), "txtG1");
    }
    put("txtG1", "1000");
    expectNoMessage();
    EXPECT_EQ(shown("txtG1"), "1,000.00");
}

TEST_F(IhqPage, TheDeductedLossNeedsAPeriod) {
    put("txtG2", "0");
    expectMessage("M117");
    EXPECT_EQ(shown("txtG2"), "");
}

TEST_F(IhqPage, TheDeductedLossNeedsAResultInEveryPeriod) {
    putPeriod(0, "01012559", "31122559", "70");
    put("mskDateFrom(1)", "01012560");
    put("mskDateTo(1)", "31122560");
    put("txtG1", "0");
    expectMessage("M145");
    EXPECT_EQ(shown("txtG1"), "0.00") << "the amount is right; what is missing is in the table";
    EXPECT_EQ(focused(), "txtMoney1(4)");
    EXPECT_EQ(state().intError, 1);
    put("txtMoney1(7)", "5");
    put("txtG1", "0");
    expectNoMessage();
}

TEST_F(IhqPage, TheDeductedLossMayBeEmpty) {
    put("txtG1", "");
    put("txtG2", "");
    expectNoMessage();
}

} // namespace
} // namespace lodge
