#include "state/field_names.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace lodge {
namespace {

std::string valueOf(ReturnState& state, std::string_view name) {
    const auto value = findStateValue(state, name);
    return value ? value->get() : "(unknown)";
}

bool setValue(ReturnState& state, std::string_view name, std::string_view text) {
    auto value = findStateValue(state, name);
    return value && value->set(text);
}

TEST(StateNames, ReachTheFieldsArraysAndRecordsOfAReturn) {
    ReturnState state;
    state.strFldPage2[44] = "1.1";
    state.strFileName = "C:\\returns\\a.txt";
    state.DataCtrl_P1.IndcBusType = "10";
    state.modIHQ.BoxA[3] = "5.00";
    state.strItem11Start[0] = "01/01/2560";
    state.FucChk.TmpSum8_15to25 = 12.5;
    state.FucDate.CarryYearLimit = 13;
    EXPECT_EQ(valueOf(state, "strFldPage2[44]"), "1.1");
    EXPECT_EQ(valueOf(state, "strFileName"), "C:\\returns\\a.txt");
    EXPECT_EQ(valueOf(state, "DataCtrl_P1.IndcBusType"), "10");
    EXPECT_EQ(valueOf(state, "modIHQ.BoxA(3)"), "5.00");
    EXPECT_EQ(valueOf(state, "strItem11Start(0)"), "01/01/2560");
    EXPECT_EQ(valueOf(state, "FucChk.TmpSum8_15to25"), "12.5");
    EXPECT_EQ(valueOf(state, "FucDate.CarryYearLimit"), "13");
}

TEST(StateNames, TakeBothKindsOfBracketsForAnIndex) {
    ReturnState state;
    state.strFldPage2[44] = "1.1";
    state.modIHQ.BoxA[3] = "5.00";
    EXPECT_EQ(valueOf(state, "strFldPage2(44)"), "1.1");
    EXPECT_EQ(valueOf(state, "modIHQ.BoxA[3]"), "5.00");
}

TEST(StateNames, ReachEachElementThatAListHasNow) {
    ReturnState state;
    state.strIsicCode = {"011111", "641910"};
    state.DataCtrl_P1.BusIndex = {0, 11};
    EXPECT_EQ(valueOf(state, "strIsicCode(1)"), "641910");
    EXPECT_EQ(valueOf(state, "DataCtrl_P1.BusIndex(1)"), "11");
    EXPECT_EQ(valueOf(state, "BusIndex[0]"), "0");
    EXPECT_TRUE(setValue(state, "strIsicCode(0)", "471110"));
    EXPECT_EQ(valueOf(state, "strIsicCode"), "471110,641910");
    EXPECT_FALSE(findStateValue(state, "strIsicCode(2)"));
    EXPECT_FALSE(findStateValue(state, "RateList(0)"));
}

TEST(StateNames, FindAMemberWithoutItsRecordWhenItStandsAlone) {
    ReturnState state;
    state.DataCtrl_P1.RateList = {"(1)", "(2.1)"};
    state.DataCtrl_P1.StatusChanged = true;
    state.modIHQ.BoxA[3] = "5.00";
    EXPECT_EQ(valueOf(state, "RateList"), "(1),(2.1)");
    EXPECT_EQ(valueOf(state, "StatusChanged"), "True");
    EXPECT_EQ(valueOf(state, "BoxA(3)"), "5.00");
}

TEST(StateNames, FindTheWorksheetsRateCodeInBothRecordsThatShowIt) {
    ReturnState state;
    state.modGreen.RateCodeShown = "1.2";
    EXPECT_EQ(valueOf(state, "modGreen.RateCodeShown"), "1.2");
    EXPECT_EQ(valueOf(state, "DataCtrl_P2.RateCodeShown"), "1.2");
    EXPECT_EQ(valueOf(state, "RateCodeShown"), "1.2");
}

TEST(StateNames, DoNotKnowWhatDoesNotExist) {
    ReturnState state;
    for (const char* name : {"", "strFldPage9[1]", "strFldPage2", "strFldPage2[101]", "strFldPage1_2[11]",
             "strFldPage2[x]", "strFldPage2[]", "strFldPage2[1", "strFldPage2[1)", "strFldPage2[-1]",
             "strFldPage2[1]x", "strFileName[0]", "strfilename", "DataCtrl_P1", "DataCtrl_P1.", ".RateList",
             "Clear", "[1]", "strFldPage2[99999999999999999999]"}) {
        EXPECT_FALSE(findStateValue(state, name)) << name;
    }
}

TEST(StateValues, ReadInTheFormsThatScriptsExpect) {
    ReturnState state;
    state.intStatusIndex = -1;
    state.blnNeedPage2 = true;
    state.FucChk.TmpSum8_15to25 = 0.1 + 0.2;
    state.FucDate.PeriodStartDate = Date{std::chrono::year(2018), std::chrono::month(1), std::chrono::day(1)};
    state.DataCtrl_P1.BusIndex = {0, 11};
    EXPECT_EQ(valueOf(state, "intStatusIndex"), "-1");
    EXPECT_EQ(valueOf(state, "blnNeedPage2"), "True");
    EXPECT_EQ(valueOf(state, "blnIHQPage"), "False");
    EXPECT_EQ(valueOf(state, "FucChk.TmpSum8_15to25"), "0.3");
    EXPECT_EQ(valueOf(state, "FucDate.PeriodStartDate"), "2018-01-01");
    EXPECT_EQ(valueOf(state, "FucDate.PeriodEndDate"), "");
    EXPECT_EQ(valueOf(state, "DataCtrl_P1.BusIndex"), "0,11");
    EXPECT_EQ(valueOf(state, "DataCtrl_P2.Select_2_1"), "");
}

TEST(StateValues, TakeTheFormsThatTheyGive) {
    ReturnState state;
    EXPECT_TRUE(setValue(state, "intInvestment", "-32768"));
    EXPECT_EQ(state.intInvestment, -32768);
    EXPECT_TRUE(setValue(state, "blnNeedPage2", "True"));
    EXPECT_TRUE(state.blnNeedPage2);
    EXPECT_TRUE(setValue(state, "FucChk.TmpSum8_15to25", "-12.5"));
    EXPECT_EQ(state.FucChk.TmpSum8_15to25, -12.5);
    EXPECT_TRUE(setValue(state, "FucDate.PeriodStartDate", "2016-02-29"));
    EXPECT_EQ(state.FucDate.PeriodStartDate,
        (Date{std::chrono::year(2016), std::chrono::month(2), std::chrono::day(29)}));
    EXPECT_TRUE(setValue(state, "FucDate.PeriodStartDate", ""));
    EXPECT_FALSE(state.FucDate.PeriodStartDate.has_value());
    EXPECT_TRUE(setValue(state, "RateList", "(1),(2.1)"));
    EXPECT_EQ(state.DataCtrl_P1.RateList, (std::vector<std::string>{"(1)", "(2.1)"}));
    EXPECT_TRUE(setValue(state, "DataCtrl_P1.BusIndex", ""));
    EXPECT_TRUE(state.DataCtrl_P1.BusIndex.empty());
    EXPECT_TRUE(setValue(state, "DataCtrl_P2.Select_2_1", "3"));
    EXPECT_EQ(state.DataCtrl_P2.Select_2_1, 3);
}

TEST(StateValues, RefuseATextThatDoesNotFitAndStayAsTheyAre) {
    ReturnState state;
    state.intInvestment = 4;
    state.DataCtrl_P1.BusIndex = {3};
    const std::vector<std::pair<std::string, std::string>> misfits{{"intInvestment", "32768"},
        {"intInvestment", "1.5"}, {"intInvestment", ""}, {"intInvestment", " 1"}, {"intInvestment", "x"},
        {"blnNeedPage2", "1"}, {"blnNeedPage2", "true"}, {"FucChk.TmpSum8_15to25", "1,000"},
        {"FucChk.TmpSum8_15to25", ""}, {"FucDate.PeriodStartDate", "2017-02-29"},
        {"FucDate.PeriodStartDate", "01/01/2561"}, {"DataCtrl_P1.BusIndex", "1,"},
        {"DataCtrl_P1.BusIndex", "1,x"}};
    for (const auto& [name, text] : misfits)
        EXPECT_FALSE(setValue(state, name, text)) << name << " " << text;
    EXPECT_EQ(state.intInvestment, 4);
    EXPECT_EQ(state.DataCtrl_P1.BusIndex, std::vector<std::int16_t>{3});
}

TEST(StateNames, OfTheListAreAllFoundAndStandOnce) {
    ReturnState state;
    const std::vector<std::string> names = stateValueNames();
    for (const std::string& name : names)
        EXPECT_TRUE(findStateValue(state, name)) << name;
    EXPECT_EQ(std::set<std::string>(names.begin(), names.end()).size(), names.size());
}

TEST(StateNames, OfTheListComeInTheOrderInWhichTheValuesAreVisited) {
    ReturnState state;
    std::vector<std::string> visited;
    forEachStateValue(
        state, [&visited](const std::string& name, const StateValue&) { visited.push_back(name); });
    EXPECT_EQ(visited, stateValueNames());
    EXPECT_EQ(visited.front(), "strFldPage1[0]");
}

TEST(StateNames, LeaveTheLookupListsOutOfTheListButFindThem) {
    ReturnState state;
    EXPECT_TRUE(findStateValue(state, "strTitleCode(1)"));
    for (const std::string& name : stateValueNames())
        EXPECT_FALSE(name.starts_with("strTitle")) << name;
}

} // namespace
} // namespace lodge
