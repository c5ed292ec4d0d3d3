#include "filer_fixture.h"
#include "pages/filer/notification_form.h"
#include "pages/filer/page8_fields.h"

#include <functional>
#include <set>

namespace lodge {
namespace {

using Texts = std::vector<std::string>;

class NotificationForm : public FilerTest {
  protected:
    struct Pair {
        ControlArray<CheckBox>& boxes;
        TextBox& reason;
        int withReason;
    };
    static std::vector<Pair> pairs(frmLodgePage8& p) {
        return {{p.chkBussiness1, p.txtBussiness1, 0}, {p.chkBussiness2, p.txtBussiness2, 0},
            {p.chkBussiness3, p.txtBussiness3, 0}, {p.chkBussiness4, p.txtBussiness4, 0},
            {p.chkBussiness5, p.txtBussiness5, 1}};
    }
};

TEST_F(NotificationForm, TheFieldsAreTheFirstTwentyFourEntriesEachOnce) {
    std::set<std::size_t> entries;
    for (const Field& field : page8Fields) {
        EXPECT_TRUE(entries.insert(field.index).second);
        EXPECT_NE(showPage8().find(field.control), nullptr) << field.control;
    }
    EXPECT_EQ(entries.size(), 24U);
    EXPECT_EQ(*entries.rbegin(), 23U);
}

TEST_F(NotificationForm, TheBoxesOfAPairExcludeEachOther) {
    frmLodgePage8& page = showPage8();
    for (const Pair& pair : pairs(page)) {
        user.click(pair.boxes[0]);
        user.click(pair.boxes[1]);
        EXPECT_FALSE(pair.boxes[0].value()) << pair.reason.name();
        user.click(pair.boxes[0]);
        EXPECT_FALSE(pair.boxes[1].value());
        EXPECT_TRUE(pair.boxes[0].value());
    }
}

TEST_F(NotificationForm, TheAnswerThatNeedsAReasonOpensIt) {
    frmLodgePage8& page = showPage8();
    for (const Pair& pair : pairs(page)) {
        EXPECT_FALSE(pair.reason.enabled());
        user.click(pair.boxes[pair.withReason]);
        EXPECT_TRUE(pair.reason.enabled()) << pair.reason.name();
        EXPECT_EQ(pair.reason.back(), BackColour::Window);
        user.type(pair.reason, "เพราะเหตุผลทางการค้า");
        user.click(pair.boxes[1 - pair.withReason]);
        EXPECT_EQ(pair.reason.text(), "");
        EXPECT_FALSE(pair.reason.enabled());
        EXPECT_EQ(pair.reason.back(), BackColour::Button);
    }
}

TEST_F(NotificationForm, LeavingATextTakesItsLineBreaksAway) {
    frmLodgePage8& page = showPage8();
    for (const Pair& pair : pairs(page)) {
        user.click(pair.boxes[pair.withReason]);
        user.type(pair.reason, "บรรทัดหนึ่ง\r\nบรรทัดสอง\nสาม");
        EXPECT_EQ(pair.reason.text(), "บรรทัดหนึ่งบรรทัดสองสาม");
    }
    for (TextBox* remark : {&page.txtAuditDesc, &page.txtAuditOther}) {
        user.type(*remark, "ก\nข");
        EXPECT_EQ(remark->text(), "กข");
    }
}

TEST_F(NotificationForm, WhatTheControlsShowIsStoredAsItWas) {
    FieldArray stored;
    const Texts texts = {"01", "มกราคม", "2561", "31", "ธันวาคม", "2561", "1", "ขายต่ำกว่าราคาตลาด", "0", "0",
        "", "1", "1", "ตั้งตามสัญญา", "0", "0", "", "1", "0", "1", "รอนำส่ง", "ไม่มีข้อสังเกต", "ต่อ", "20032562"};
    std::copy(texts.begin(), texts.end(), stored.begin());
    state.strFldPage8 = stored;
    state.strFldPage1[45] = "0105536000313";
    frmLodgePage8& page = showPage8();
    EXPECT_EQ(page.lblName.caption(), "0105536000313");
    EXPECT_EQ(page.lblMonth2.caption(), "ธันวาคม");
    EXPECT_TRUE(page.txtBussiness1.enabled());
    EXPECT_FALSE(page.txtBussiness2.enabled());
    state.strFldPage8[50] = "left over";
    P8_DataToArray(program);
    EXPECT_EQ(state.strFldPage8, stored);
}

TEST_F(NotificationForm, AReasonBesideTheOtherAnswerIsShownAsStored) {
    state.strFldPage8[7] = "เหตุผล";
    state.strFldPage8[8] = "1";
    EXPECT_EQ(showPage8().txtBussiness1.text(), "เหตุผล");
}

TEST_F(NotificationForm, AStoreOfAFormThatIsNotLoadedLeavesTheArrayAlone) {
    state.strFldPage8[23] = "20032562";
    P8_DataToArray(program);
    EXPECT_EQ(state.strFldPage8[23], "20032562");
}

// --- The date ---

TEST_F(NotificationForm, TheStatementIsDatedBeforeTodayAndAfterThePeriod) {
    // Today is 20 May 2019, which is 20/05/2562; the period ends on 31/12/2561.
    frmLodgePage8& page = showPage8();
    struct Case {
        const char* date;
        const char* code;
    };
    for (const Case& c :
        {Case{"19052562", ""}, Case{"20052562", "M068"}, Case{"21052562", "M068"}, Case{"31122561", "M119"},
            Case{"01012562", ""}, Case{"31042562", "M026"}, Case{"0101", "M026"}}) {
        user.type(page.mskDate1, c.date);
        EXPECT_EQ(shown(), *c.code == '\0' ? Texts{} : messages({c.code})) << c.date;
        EXPECT_EQ(focused(), *c.code == '\0' ? "" : "mskDate1");
        EXPECT_EQ(page.mskDate1.digits(), c.date) << "nothing is emptied";
        EXPECT_EQ(passes(P8_CheckForm), *c.code == '\0');
        shown();
    }
    user.type(page.mskDate1, "");
    EXPECT_EQ(shown(), Texts{});
    EXPECT_TRUE(passes(P8_CheckForm)) << "without digits there is nothing to check yet";
    EXPECT_EQ(state.intError, 0);
}

// --- The full check ---

class NotificationCheck : public FilerTest {
  protected:
    NotificationCheck() {
        for (const std::size_t no : {8U, 11U, 14U, 17U, 18U}) {
            state.strFldPage8[no] = "1";
        }
        state.strFldPage8[23] = "20032562";
    }
};

TEST_F(NotificationCheck, EveryRowRefusesWhatItIsThereFor) {
    EXPECT_TRUE(passes(P8_CheckData));
    struct Fault {
        const char* code;
        std::function<void(FieldArray&)> make;
    };
    const auto yes = [](std::size_t answer, std::size_t other) {
        return [=](FieldArray& p) {
            p[answer] = "1";
            p[other] = "0";
        };
    };
    const std::vector<Fault> faults = {
        {"M057", [](FieldArray& p) { p[8] = "0"; }},
        {"M058", yes(6, 8)},
        {"M059", [](FieldArray& p) { p[11] = ""; }},
        {"M060", yes(9, 11)},
        {"M061", [](FieldArray& p) { p[14] = "0"; }},
        {"M062", yes(12, 14)},
        {"M063", [](FieldArray& p) { p[17] = "0"; }},
        {"M064", yes(15, 17)},
        {"M065", [](FieldArray& p) { p[18] = "0"; }},
        {"M066", yes(19, 18)},
        {"M067", [](FieldArray& p) { p[23] = ""; }},
    };
    ASSERT_EQ(faults.size(), page8CheckRows().size());
    const FieldArray complete = state.strFldPage8;
    for (const Fault& fault : faults) {
        state.strFldPage8 = complete;
        state.intError = 0;
        fault.make(state.strFldPage8);
        std::vector<Refusal> refusals;
        collectRefusals({state, host}, frmLodgePage8::formName, page8CheckRows(), refusals);
        ASSERT_EQ(refusals.size(), 1U) << fault.code;
        EXPECT_EQ(refusals[0].code, fault.code);
        EXPECT_FALSE(passes(P8_CheckData));
        EXPECT_EQ(shown(), messages({fault.code}));
        EXPECT_EQ(state.intError, 1);
    }
}

TEST_F(NotificationCheck, AReasonSatisfiesTheAnswerThatAsksForIt) {
    FieldArray& p = state.strFldPage8;
    for (const std::size_t answer : {6U, 9U, 12U, 15U}) {
        p[answer] = "1";
        p[answer + 1] = "เหตุผล";
        p[answer + 2] = "0";
    }
    p[18] = "0";
    p[19] = "1";
    p[20] = "เหตุผล";
    EXPECT_TRUE(passes(P8_CheckData));
}

TEST_F(NotificationCheck, AnEmptyFormMeetsEveryQuestion) {
    state.strFldPage8 = {};
    std::vector<Refusal> refusals;
    collectRefusals({state, host}, frmLodgePage8::formName, page8CheckRows(), refusals);
    Texts codes;
    for (const Refusal& refusal : refusals) {
        codes.push_back(refusal.code);
    }
    EXPECT_EQ(codes, (Texts{"M057", "M059", "M061", "M063", "M065", "M067"}));
}

TEST_F(NotificationCheck, EveryRowNamesAControlOfTheForm) {
    const frmLodgePage8& page = showPage8();
    for (const CheckRow& row : page8CheckRows()) {
        EXPECT_NE(page.find(row.focus), nullptr) << row.focus;
    }
}

} // namespace
} // namespace lodge
