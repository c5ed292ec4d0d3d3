#include "state/field_names.h"
#include "state/return_state.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

namespace lodge {
namespace {

const std::vector<FieldArray ReturnState::*> commonArrays{&ReturnState::strFldPage1,
    &ReturnState::strFldPage2, &ReturnState::strFldPage3_3, &ReturnState::strFldPage3_4,
    &ReturnState::strFldPage4_5, &ReturnState::strFldPage4_6, &ReturnState::strFldPage4_7,
    &ReturnState::strFldPage5_8, &ReturnState::strFldPage5_9, &ReturnState::strFldPage6_10,
    &ReturnState::strFldPage6_11, &ReturnState::strFldPage7_12, &ReturnState::strFldPage8};

// A value of its own for everything that can be set by name.
ReturnState filledState() {
    ReturnState state;
    int number = 1000;
    forEachStateValue(state, [&number](const std::string& name, StateValue value) {
        const std::string text = std::to_string(++number);
        const bool isSet = value.set(text) || value.set("True") || value.set("2018-05-20");
        EXPECT_TRUE(isSet) << name;
    });
    return state;
}

// The names of the values that differ between two states.
std::set<std::string> differences(ReturnState& one, ReturnState& other) {
    std::set<std::string> names;
    forEachStateValue(one, [&](const std::string& name, const StateValue& value) {
        if (value.get() != findStateValue(other, name)->get()) names.insert(name);
    });
    return names;
}

TEST(ReturnState, TheThirteenPageArraysHaveFieldsZeroToOneHundredAndBeginEmpty) {
    const ReturnState state;
    EXPECT_EQ(commonArrays.size(), 13U);
    for (const auto array : commonArrays) {
        EXPECT_EQ((state.*array).size(), 101U);
        for (const std::string& field : state.*array)
            EXPECT_EQ(field, "");
    }
}

TEST(ReturnState, TheWorksheetArrayHasElevenFields) { EXPECT_EQ(ReturnState().strFldPage1_2.size(), 11U); }

TEST(ReturnState, TheItem11ListsHaveRowsZeroToOneHundred) {
    const ReturnState state;
    EXPECT_EQ(state.strItem11Start.size(), 101U);
    EXPECT_EQ(state.strItem11End.size(), 101U);
    EXPECT_EQ(state.intItem11Type.size(), 101U);
}

TEST(ReturnState, ScalarsBeginWithTheirDefaults) {
    const ReturnState state;
    EXPECT_EQ(state.strVersion, "2561.00");
    EXPECT_EQ(state.strFilingType, "0");
    EXPECT_EQ(state.strAddNo, "00");
    EXPECT_EQ(state.strStartDDMMYY + state.strFinishDDMMYY + state.strTaxYear + state.strStoreType
                  + state.strFileName,
        "");
    EXPECT_EQ(state.intInvestment, 0);
    EXPECT_EQ(state.intNewReturn, 0);
    EXPECT_EQ(state.intPageCur, 0);
    EXPECT_EQ(state.intPagePrev, 0);
    EXPECT_EQ(state.intError, 0);
    EXPECT_FALSE(state.blnNeedPage2);
    EXPECT_FALSE(state.blnChooseShown);
    EXPECT_EQ(state.intStatusIndex, -1);
}

TEST(ReturnState, NumbersHaveSixteenBits) {
    static_assert(std::is_same_v<decltype(ReturnState::intInvestment), std::int16_t>);
    static_assert(std::is_same_v<decltype(ReturnState::intItem11Count), std::int16_t>);
    static_assert(std::is_same_v<decltype(CompanyStatusRecord::StatusA), std::int16_t>);
    static_assert(std::is_same_v<decltype(TaxRecord::index_nRate), std::int16_t>);
    static_assert(std::is_same_v<decltype(CheckMemoryRecord::TmpSum8_15to25), double>);
}

TEST(ReturnState, ClearOfTheStatusRecordRestoresItsDefaults) {
    ReturnState state = filledState();
    state.DataCtrl_P1.Clear();
    EXPECT_EQ(state.DataCtrl_P1.StatusA, -1);
    EXPECT_EQ(state.DataCtrl_P1.StatusB, -1);
    EXPECT_TRUE(state.DataCtrl_P1.RateList.empty());
    EXPECT_EQ(state.DataCtrl_P1.IndcBusCode, "");
    EXPECT_TRUE(state.DataCtrl_P1.BusIndex.empty());
    EXPECT_EQ(state.DataCtrl_P1.ChkStatus11, 0);
    EXPECT_EQ(state.DataCtrl_P1.ChkStatus14, 0);
    EXPECT_EQ(state.DataCtrl_P1.IndcBusType, "");
    EXPECT_FALSE(state.DataCtrl_P1.StatusChanged);
    EXPECT_EQ(state.DataCtrl_P1.StatusBusy, 0);
}

TEST(ReturnState, ClearOfTheTaxRecordLeavesNoRateAndNoResult) {
    ReturnState state = filledState();
    state.DataCtrl_P2.Clear();
    EXPECT_EQ(state.DataCtrl_P2.index_nRate, -1);
    EXPECT_EQ(state.DataCtrl_P2.Select_2_1, std::nullopt);
    EXPECT_EQ(state.DataCtrl_P2.PayStatus, "0");
    EXPECT_EQ(state.DataCtrl_P2.RateIndex1, 0);
    EXPECT_EQ(state.DataCtrl_P2.nRateCode + state.DataCtrl_P2.TaxValue + state.DataCtrl_P2.NewAtt1, "");
    for (const std::string& income : state.DataCtrl_P2.WorkIncome)
        EXPECT_EQ(income, "");
}

TEST(ReturnState, ClearAllEmptiesTheArraysAndTheRecords) {
    ReturnState state = filledState();
    state.ClearAll(IhqRecord::Clear);
    for (const auto array : commonArrays) {
        for (const std::string& field : state.*array)
            EXPECT_EQ(field, "");
    }
    ReturnState fresh;
    const auto left = differences(state, fresh);
    for (const std::string& name : left) {
        for (const std::string record :
            {"DataCtrl_P1.", "DataCtrl_P2.", "modGreen.", "modIHQ.", "modNew3.", "modEdit."}) {
            EXPECT_FALSE(name.starts_with(record)) << name;
        }
    }
    EXPECT_EQ(state.FucChk.PendingMessage, "");
}

TEST(ReturnState, ClearAllForALoadLeavesTheHeadquartersRecordToTheFile) {
    ReturnState state = filledState();
    const std::string before = state.modIHQ.BoxA[3];
    state.ClearAll(IhqRecord::Keep);
    EXPECT_EQ(state.modIHQ.BoxA[3], before);
    EXPECT_EQ(state.modGreen.GreenIncome[0], "");
}

TEST(ReturnState, TheWorksheetArraySurvivesANewReturn) {
    ReturnState state = filledState();
    const WorksheetArray before = state.strFldPage1_2;
    state.beginReturn(IhqRecord::Clear);
    EXPECT_EQ(state.strFldPage1_2, before);
}

TEST(ReturnState, ANewReturnForgetsWhatStandsBesideTheRecords) {
    ReturnState state = filledState();
    state.beginReturn(IhqRecord::Clear);
    EXPECT_EQ(state.FucChk.LastValidId, "");
    EXPECT_EQ(state.FucChk.BusinessText, "");
    EXPECT_EQ(state.FucChk.TmpSum8_15to25, 0.0);
    EXPECT_EQ(state.strWebsite, "");
    EXPECT_EQ(
        state.intP1Box1 + state.intP1Box2 + state.intCashRefund + state.intAuditStatus + state.intP1Box5, 0);
    EXPECT_FALSE(state.blnWebsiteAsked);
    EXPECT_FALSE(state.BoxWarned);
    EXPECT_FALSE(state.BoxProfit);
    EXPECT_FALSE(state.BoxLoss);
    EXPECT_EQ(state.BoxAmount, "");
    EXPECT_EQ(state.intItem11Count + state.intItem11CountA + state.intItem11CountB, 0);
    EXPECT_EQ(state.strItem11Start[0] + state.strItem11End[100], "");
    EXPECT_EQ(state.intItem11Type[12], 0);
}

// What a new return leaves as it is: the period and the filing are set right after, the rest belongs to the
// screens.
TEST(ReturnState, ANewReturnLeavesOnlyTheValuesOfThePeriodTheScreensAndTheScratchFields) {
    ReturnState state = filledState();
    ReturnState fresh;
    state.beginReturn(IhqRecord::Clear);
    std::set<std::string> left;
    for (const std::string& name : differences(state, fresh))
        left.insert(name.substr(0, name.find_first_of("([")));
    EXPECT_THAT(left,
        testing::UnorderedElementsAre("strFldPage1_2", "strPrevYear", "strStartDDMMYY", "strFinishDDMMYY",
            "strVersion", "strTaxYear", "strFilingType", "strAddNo", "strStoreType", "strFileName",
            "strLocale", "SheetIncome", "Sheet71a", "Sheet71c", "SheetRate", "SheetTax", "IsRate17",
            "IsRate18", "intInvestment", "ChkInvestmentFlag1", "intNewReturn", "intPageCur", "intPagePrev",
            "intError", "blnNeedPage2", "intCount", "blnChooseShown", "intStatusIndex", "blnStatus11Kept",
            "blnIHQPage", "blnMouseUp", "FucDate.PeriodStartDate", "FucDate.PeriodEndDate",
            "FucDate.DayBeforePeriodStart", "FucDate.ParsedDate", "FucDate.EarliestStartDate",
            "FucDate.CarryYearLimit", "PageChk.CurrentLine", "PageChk.SilentCheck", "PageChk.Sum"));
}

TEST(ReturnState, TwoReturnsStandBesideEachOther) {
    ReturnState one;
    ReturnState other;
    one.strFldPage2[44] = "1.1";
    EXPECT_EQ(other.strFldPage2[44], "");
}

TEST(Fields, AreReadAndWrittenByTheirIndex) {
    ReturnState state;
    SetField(state.strFldPage2, 100, "last");
    EXPECT_EQ(GetField(state.strFldPage2, 100), "last");
    SetField(state.strFldPage1_2, 10, "worksheet");
    EXPECT_EQ(GetField(state.strFldPage1_2, 10), "worksheet");
}

TEST(Fields, AnIndexOutsideTheArrayIsAFaultOfTheProgram) {
    ReturnState state;
    EXPECT_THROW(GetField(state.strFldPage2, 101), std::out_of_range);
    EXPECT_THROW(SetField(state.strFldPage1_2, 11, "x"), std::out_of_range);
}

} // namespace
} // namespace lodge
