// What the chooser says of each page.
#include "shell/item_states.h"
#include "shell/page_table.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace lodge {
namespace {

Problem problem(const char* code, std::int16_t page) {
    return {.refusal = {.code = code, .text = code, .form = findPage(page)->form, .control = {}},
        .page = page,
        .pageName = findPage(page)->title};
}

ItemState stateOf(const ReturnState& state, std::vector<Problem> problems, std::int16_t page) {
    const std::vector<ItemState> all = itemStates(state, problems);
    return *std::ranges::find(all, page, &ItemState::page);
}

TEST(ItemStates, StandInTheOrderOfTheForm) {
    const std::vector<ItemState> all = itemStates(ReturnState(), {});
    ASSERT_EQ(all.size(), pageTable().size());
    for (std::size_t i = 0; i < all.size(); ++i)
        EXPECT_EQ(all[i].page, pageTable()[i].code);
}

TEST(ItemStates, AFreshReturnIsEmptyAndTheAttachmentClosed) {
    for (const ItemState& item : itemStates(ReturnState(), {})) {
        const bool attachment = item.page == page::headquarters;
        EXPECT_EQ(item.progress, attachment ? ItemProgress::Closed : ItemProgress::Empty) << item.page;
        EXPECT_EQ(item.figure, "") << item.page;
    }
}

TEST(ItemStates, UntouchedTicksAndThePeriodBeginNothing) {
    ReturnState state;
    state.strFldPage2[22] = "0";
    state.strFldPage5_8[75] = "||||";
    state.strFldPage8[0] = "01";
    state.strFldPage1[1] = "01";
    EXPECT_EQ(stateOf(state, {}, page::tax).progress, ItemProgress::Empty);
    EXPECT_EQ(stateOf(state, {}, page::item8).progress, ItemProgress::Empty);
    EXPECT_EQ(stateOf(state, {}, page::notification).progress, ItemProgress::Empty);
    EXPECT_EQ(stateOf(state, {}, page::first).progress, ItemProgress::Empty);
}

TEST(ItemStates, AnEntryBeginsItsPage) {
    ReturnState state;
    state.strFldPage4_7[5] = "330100.00";
    EXPECT_EQ(stateOf(state, {}, page::item7).progress, ItemProgress::Clear);
    EXPECT_EQ(stateOf(state, {}, page::item6).progress, ItemProgress::Empty);
}

TEST(ItemStates, ATieIsInTheWayOnItsLineAndNamesItsSchedule) {
    ReturnState state;
    state.strFldPage4_7[5] = "330100.00";
    const std::vector<Problem> problems = {
        problem("M047", page::item3), problem("M016", page::first), problem("M024", page::first)};
    const ItemState item3 = stateOf(state, problems, page::item3);
    EXPECT_EQ(item3.progress, ItemProgress::InTheWay);
    EXPECT_EQ(item3.problems, 1U);
    const ItemState item7 = stateOf(state, problems, page::item7);
    EXPECT_EQ(item7.progress, ItemProgress::Named);
    EXPECT_EQ(item7.namedBy, page::item3);
    EXPECT_EQ(stateOf(state, problems, page::first).problems, 2U);
}

TEST(ItemStates, WhatIsInTheWayOnThePageItselfComesBeforeANaming) {
    const std::vector<Problem> problems = {problem("M042", page::tax), problem("M047", page::item3)};
    EXPECT_EQ(stateOf({}, problems, page::item3).progress, ItemProgress::InTheWay);
}

TEST(ItemStates, AnEmptyPageCanBeInTheWay) {
    EXPECT_EQ(stateOf({}, {problem("M057", page::notification)}, page::notification).progress,
        ItemProgress::InTheWay);
}

TEST(ItemStates, TheAttachmentIsOpenForAHeadquarters) {
    ReturnState state;
    state.blnIHQPage = true;
    EXPECT_EQ(stateOf(state, {}, page::headquarters).progress, ItemProgress::Empty);
    state.modIHQ.LicenceConfm = "01/06/2558";
    EXPECT_EQ(stateOf(state, {}, page::headquarters).progress, ItemProgress::Clear);
}

struct MainFigure {
    std::int16_t page;
    FieldArray ReturnState::*fields;
    std::size_t entry;
    const char* caption;
};

class MainFigures : public testing::TestWithParam<MainFigure> {};

// The total of column 3, on the line that the paper form gives to it.
INSTANTIATE_TEST_SUITE_P(ItemStates, MainFigures,
    testing::Values(MainFigure{page::tax, &ReturnState::strFldPage2, 43, "ชำระเพิ่มเติม"},
        MainFigure{page::item3, &ReturnState::strFldPage3_3, 60, "ข้อ 22"},
        MainFigure{page::item4, &ReturnState::strFldPage3_4, 26, "ข้อ 9 รวม"},
        MainFigure{page::item5, &ReturnState::strFldPage4_5, 50, "ข้อ 17 รวม"},
        MainFigure{page::item6, &ReturnState::strFldPage4_6, 20, "ข้อ 7 รวม"},
        MainFigure{page::item7, &ReturnState::strFldPage4_7, 14, "ข้อ 5 รวม"},
        MainFigure{page::item8, &ReturnState::strFldPage5_8, 71, "ข้อ 35 รวม"},
        MainFigure{page::item9, &ReturnState::strFldPage5_9, 17, "ข้อ 7 รวม"},
        MainFigure{page::item10, &ReturnState::strFldPage6_10, 35, "รวม"},
        MainFigure{page::item11, &ReturnState::strFldPage6_11, 68, "ยกไปรายการที่ 3"},
        MainFigure{page::item12, &ReturnState::strFldPage7_12, 9, "รวมสินทรัพย์"}));

TEST_P(MainFigures, AreShownWithTheirLine) {
    ReturnState state;
    (state.*GetParam().fields)[GetParam().entry] = "2450000.5";
    const ItemState item = stateOf(state, {}, GetParam().page);
    EXPECT_EQ(item.figure, "2,450,000.50");
    EXPECT_EQ(item.figureCaption, GetParam().caption);
}

TEST(ItemStates, AnOverpaidTaxAndALossAreShownAsWhatTheyAre) {
    ReturnState state;
    state.strFldPage2[31] = "1";
    state.strFldPage2[43] = "100.00";
    state.strFldPage3_3[60] = "-100.00";
    EXPECT_EQ(stateOf(state, {}, page::tax).figureCaption, "ชำระไว้เกิน");
    EXPECT_EQ(stateOf(state, {}, page::item3).figure, "(100.00)");
}

} // namespace
} // namespace lodge
