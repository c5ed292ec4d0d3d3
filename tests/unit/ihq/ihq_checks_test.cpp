#include "ihq_desktop.h"
#include "pages/ihq/ihq_checks.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace lodge {
namespace {

constexpr const char* ofItem2 = " (รายการที่ 2 ใบแนบฯ กิจการ IHQ)";

/// An attachment that agrees with its return. Lines 1 to 4 of the exempt business make 900,000; with a
/// dividend of 100,000 it is 1,000,000 in all. The taxable business has 300,000. A loss of 70 is deducted.
class IhqCheck : public testing::Test, public IhqDesktop {
  protected:
    IhqCheck() {
        ReturnState& r = state();
        r.blnIHQPage = true;
        r.DataCtrl_P1.IndcBusType = "15";
        HeadquartersRecord& a = record();
        a.LicenceConfm = "01/02/2559";
        a.LicenceStart = "01/03/2559";
        a.LicenceEnd = "28/02/2574";
        a.BoxA[0] = "600000.00";
        a.BoxA[1] = "100000.00";
        a.BoxA[2] = "50000.00";
        a.BoxA[3] = "150000.00";
        a.BoxA[4] = "100000.00";
        a.BoxASum = "1000000.00";
        a.BoxB[0] = "300000.00";
        a.BoxBSum = "300000.00";
        r.strFldPage3_3[0] = "1000000.00";
        r.strFldPage3_3[20] = "300000.00";
        a.BoxDateFrom[0] = "01/01/2560";
        a.BoxDateTo[0] = "31/12/2560";
        a.BoxMoney[1] = "70.00";
        a.BoxMoney[3] = "5.00";
        a.BoxG1 = "70.00";
        a.BoxG2 = "0.00";
        r.strFldPage3_3[14] = "70.00";
    }

    [[nodiscard]] std::vector<Refusal> listed() {
        std::vector<Refusal> refusals;
        collectIhqRefusals({state(), host}, refusals);
        return refusals;
    }
    void expectPasses() {
        state().intError = 0;
        ChkIHQ(program);
        EXPECT_EQ(state().intError, 0);
        expectNoMessage();
        EXPECT_TRUE(listed().empty());
    }
    /// The store stops at this text, which the list has first, with the place to mend it at.
    void expectRefused(const std::string& text, const char* form, const char* control) {
        state().intError = 0;
        ChkIHQ(program);
        EXPECT_EQ(state().intError, 1) << text;
        ASSERT_EQ(host.shown.size(), 1U) << text;
        EXPECT_EQ(lastMessage(), text);
        host.shown.clear();
        const std::vector<Refusal> list = listed();
        ASSERT_FALSE(list.empty()) << text;
        EXPECT_EQ(list.front().text, text);
        EXPECT_EQ(list.front().form, form);
        EXPECT_EQ(list.front().control, control);
    }
    void expectRefusedOnAttachment(const char* code, const char* control) {
        expectRefused(std::string(GetMessage(code)), "frmIHQ", control);
    }
};

TEST_F(IhqCheck, PassesAnAttachmentThatAgrees) { expectPasses(); }

TEST_F(IhqCheck, IsForTheStatusOfAHeadquartersWithItsAttachment) {
    EXPECT_TRUE(needsIhqCheck(state()));
    state().blnIHQPage = false;
    EXPECT_FALSE(needsIhqCheck(state()));
    state().blnIHQPage = true;
    state().DataCtrl_P1.IndcBusType = "1";
    EXPECT_FALSE(needsIhqCheck(state()));
}

// --- The privilege ---

TEST_F(IhqCheck, WantsEveryDateOfThePrivilege) {
    record().LicenceEnd = "";
    expectRefusedOnAttachment("M501", "mskDateEnd");
    record().LicenceStart = "";
    expectRefusedOnAttachment("M501", "mskDateStart");
    record().LicenceConfm = "";
    expectRefusedOnAttachment("M501", "mskDateConfm");
    EXPECT_EQ(listed().size(), 1U) << "one message, at the first date that is missing";
}

// --- Income ---

TEST_F(IhqCheck, HoldsTheExemptIncomeAgainstItem3) {
    state().strFldPage3_3[0] = "1000000.01";
    expectRefusedOnAttachment("M502", "txtA(0)");
    const Refusal refusal = listed().front();
    EXPECT_EQ(refusal.code, "M502");
    ASSERT_TRUE(refusal.sides.has_value());
    EXPECT_EQ(refusal.sides->here, 1'000'000.00);
    EXPECT_EQ(refusal.sides->there, 1'000'000.01);
}

TEST_F(IhqCheck, HoldsTheExemptIncomeAgainstItem3OfThisStatusAlone) {
    state().DataCtrl_P1.IndcBusType = "1";
    state().strFldPage3_3[0] = "1000000.01";
    expectPasses();
}

TEST_F(IhqCheck, ANilIncomeIsTheSameAsNone) {
    for (std::string& box : record().BoxA)
        box.clear();
    record().BoxASum = "0.00";
    record().BoxBSum = "";
    state().strFldPage3_3[0] = "";
    state().strFldPage3_3[20] = "";
    expectPasses();
}

TEST_F(IhqCheck, RefusesTaxableIncomeAloneWithNothingExempt) {
    for (std::string& box : record().BoxA)
        box.clear();
    record().BoxASum = "";
    state().strFldPage3_3[0] = "";
    state().strFldPage3_3[20] = "0.00";
    expectRefusedOnAttachment("M502", "txtA(0)");
    state().strFldPage3_3[20] = "";
    record().BoxBSum = "";
    expectPasses();
}

TEST_F(IhqCheck, CapsTheTaxableIncomeAtTheExemptOneOfLines1To4) {
    record().BoxBSum = "900000.01"; // above 600,000 + 100,000 + 50,000 + 150,000
    expectRefused(std::string(GetMessage("M503")), "frmLodgePage3_3", "txtMoney32(0)");
    state().strFldPage3_3[20] = "900000.00";
    expectPasses();
    state().strFldPage3_3[20] = "900000.01";
    expectRefused(std::string(GetMessage("M503")), "frmLodgePage3_3", "txtMoney32(0)");
}

TEST_F(IhqCheck, TakesTaxableIncomeEqualToTheCapAsItIs) {
    record().BoxBSum = "900000.00";
    expectRefusedOnAttachment("M504", "txtB(0)");
    state().strFldPage3_3[20] = "900000.00";
    expectPasses();
}

TEST_F(IhqCheck, HoldsTheTaxableIncomeAgainstItem3) {
    state().strFldPage3_3[20] = "299999.99";
    expectRefusedOnAttachment("M504", "txtB(0)");
    state().strFldPage3_3[20] = "";
    expectRefusedOnAttachment("M504", "txtB(0)");
}

TEST_F(IhqCheck, AddsLines1To4WithoutTheNoiseOfBinarySums) {
    HeadquartersRecord& a = record();
    a.BoxA = {};
    a.BoxA[0] = "0.10";
    a.BoxA[1] = "0.20";
    a.BoxASum = "0.30";
    a.BoxBSum = "5.00";
    state().strFldPage3_3[0] = "0.30";
    state().strFldPage3_3[20] = "0.30";
    expectPasses();
    a.BoxBSum = "0.30";
    expectPasses();
}

// --- Losses ---

TEST_F(IhqCheck, WantsTheDeductedLossOfAColumnWithResults) {
    record().BoxG1 = "";
    state().strFldPage3_3[14] = "";
    expectRefusedOnAttachment("M511", "txtG1");
    record().BoxMoney[1] = "";
    expectPasses();
    record().BoxMoney[16] = "1.00"; // an exempt profit of the last row
    expectRefusedOnAttachment("M511", "txtG1");
    record().BoxG1 = "0.00";
    record().BoxG2 = "";
    expectRefusedOnAttachment("M512", "txtG2");
    record().BoxMoney[3] = "";
    record().BoxDateFrom[0] = ""; // nor is there a period that lacks its result
    expectPasses();
}

TEST_F(IhqCheck, AsksForBothDeductedLossesBeforeItComparesThem) {
    record().BoxG1 = "1.00";
    record().BoxG2 = "";
    expectRefusedOnAttachment("M512", "txtG2");
}

TEST_F(IhqCheck, HoldsTheDeductedLossesAgainstItem3Line15) {
    record().BoxG1 = "69.99";
    expectRefused(std::string(GetMessage("M505")), "frmLodgePage3_3", "txtMoney31(14)");
    record().BoxG1 = "70.00";
    record().BoxG2 = "5.00";
    expectRefused(std::string(GetMessage("M506")), "frmLodgePage3_3", "txtMoney32(14)");
    state().strFldPage3_3[34] = "5.00";
    expectPasses();
}

TEST_F(IhqCheck, ANilLossAgreesWithAnEmptyLine15) {
    record().BoxG1 = "0.00";
    state().strFldPage3_3[14] = "";
    expectPasses();
}

// --- Items that a headquarters does not have ---

TEST_F(IhqCheck, RefusesOtherIncomeAndItem11) {
    state().strFldPage4_6[20] = "0.00";
    expectRefused(std::string(GetMessage("M507")), "frmLodgePage4_6", "txtMoney61(0)");
    state().strFldPage4_6[20] = "";
    state().strFldPage6_11[68] = "0.00";
    expectRefused(std::string(GetMessage("M508")), "frmLodgePage6_11", "txtMoney1(42)");
}

// --- Periods ---

TEST_F(IhqCheck, WantsAnEndAndAResultForEveryPeriod) {
    const std::string noEnd = std::string(GetMessage("M534.2")) + ofItem2;
    const std::string noResult = std::string(GetMessage("M534.3")) + ofItem2;
    for (std::size_t row = 0; row < 5; ++row) {
        record().BoxDateFrom[row] = "01/01/2560";
        record().BoxDateTo[row] = "31/12/2560";
        record().BoxMoney[4 * row + row % 4] = "1.00"; // whichever of the four cells
    }
    expectPasses();
    for (std::size_t row = 0; row < 5; ++row) {
        const std::string end = record().BoxDateTo[row];
        record().BoxDateTo[row] = "";
        expectRefused(noEnd, "frmIHQ", ("mskDateTo(" + std::to_string(row) + ")").c_str());
        record().BoxDateTo[row] = end;
        const auto cells = record().BoxMoney;
        for (std::size_t cell = 0; cell < 4; ++cell)
            record().BoxMoney[4 * row + cell] = "";
        expectRefused(noResult, "frmIHQ", ("mskDateFrom(" + std::to_string(row) + ")").c_str());
        record().BoxMoney = cells;
    }
    expectPasses();
}

TEST_F(IhqCheck, APeriodWithoutAStartIsNotLookedAt) {
    record().BoxDateTo[3] = "31/12/2559";
    expectPasses();
}

TEST_F(IhqCheck, GoesRowByRow) {
    record().BoxMoney = {};
    record().BoxG1 = record().BoxG2 = "";
    state().strFldPage3_3[14] = "";
    record().BoxDateFrom[1] = "01/01/2560";
    const std::string ofRow0 = std::string(GetMessage("M534.3")) + ofItem2;
    expectRefused(ofRow0, "frmIHQ", "mskDateFrom(0)");
    const std::vector<Refusal> list = listed();
    ASSERT_EQ(list.size(), 3U);
    EXPECT_EQ(list[1].text, std::string(GetMessage("M534.2")) + ofItem2);
    EXPECT_EQ(list[1].control, "mskDateTo(1)");
    EXPECT_EQ(list[2].control, "mskDateFrom(1)");
}

// --- The order, and what a check leaves ---

TEST_F(IhqCheck, MeetsEverythingThatIsWrongInItsOrder) {
    HeadquartersRecord& a = record();
    a.LicenceConfm = "";
    a.BoxASum = "1.00";
    a.BoxBSum = "2.00";
    a.BoxG1 = a.BoxG2 = "";
    state().strFldPage3_3[34] = "9.00";
    state().strFldPage4_6[20] = "1.00";
    state().strFldPage6_11[68] = "1.00";
    a.BoxDateTo[0] = "";
    std::vector<std::string> codes;
    for (const Refusal& refusal : listed())
        codes.push_back(refusal.code);
    const std::vector<std::string> wanted = {
        "M501", "M502", "M504", "M511", "M512", "M505", "M506", "M507", "M508", ""};
    EXPECT_EQ(codes, wanted);
    expectRefusedOnAttachment("M501", "mskDateConfm");
}

TEST_F(IhqCheck, NoListedRefusalNamesAControlThatThePageLacks) {
    const frmIHQ& page = openPage();
    for (const CheckRow& row : ihqCheckRows()) {
        const bool isElsewhere = row.focus.starts_with("txtMoney3") || row.focus == "txtMoney61(0)"
                                 || row.focus == "txtMoney1(42)";
        EXPECT_EQ(page.find(row.focus) == nullptr, isElsewhere) << row.focus;
    }
}

} // namespace
} // namespace lodge
