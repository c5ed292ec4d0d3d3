#include "filer_fixture.h"

#include <set>

namespace lodge {
namespace {

using Texts = std::vector<std::string>;
using std::chrono::milliseconds;

class Page1Test : public FilerTest {};

// --- The field table ---

TEST_F(Page1Test, TheFieldsAreTheFirstFiftyEntriesEachOnce) {
    std::set<std::size_t> entries;
    std::set<std::string_view> controls;
    for (const Field& field : page1Fields) {
        EXPECT_TRUE(entries.insert(field.index).second) << field.index;
        EXPECT_TRUE(controls.insert(field.control).second) << field.control;
    }
    EXPECT_EQ(entries.size(), 50U);
    EXPECT_EQ(*entries.rbegin(), 49U);
}

TEST_F(Page1Test, EachFieldsControlIsOfTheKindThatTheTableTells) {
    const std::map<FieldKind, ControlKind> kinds = {{FieldKind::Label, ControlKind::Label},
        {FieldKind::Text, ControlKind::TextBox}, {FieldKind::Flag, ControlKind::CheckBox},
        {FieldKind::FlagIfTicked, ControlKind::CheckBox}, {FieldKind::FilingNumber, ControlKind::TextBox},
        {FieldKind::Money, ControlKind::Label}, {FieldKind::Title, ControlKind::ComboBox},
        {FieldKind::Date, ControlKind::MaskedBox}};
    const frmLodgePage1& page = newReturn();
    for (const Field& field : page1Fields) {
        EXPECT_EQ(fieldControl(page, field).kind(), kinds.at(field.kind)) << field.control;
    }
}

TEST_F(Page1Test, ATableThatNamesAnUnknownControlIsAFaultOfTheProgram) {
    EXPECT_THROW(fieldControl(newReturn(), {0, "txtUnknown", FieldKind::Text}), std::logic_error);
}

TEST_F(Page1Test, TheBoxesTakeNoMoreThanTheFormHasRoomFor) {
    const std::map<std::string, int> lengths = {{"txtTinID", 10}, {"txtAddNo", 2}, {"txtPersonRegNo", 13},
        {"txtAuditPinID", 13}, {"txtAuditName", 100}, {"txtAuditSurname", 50}, {"txtAuditRegNo", 8},
        {"txtOffAuditTinID", 13}, {"txtAccPinID", 13}, {"txtAccName", 100}, {"txtAccSurname", 50},
        {"txtAccCodeNo", 8}, {"txtOffAccTinID", 13}, {"txtNid", 13}, {"txtAudOfficeNid", 13},
        {"txtAccOfficeNid", 13}, {"txtSitename", 100}};
    const frmLodgePage1& page = newReturn();
    for (const auto& [name, length] : lengths) {
        EXPECT_EQ(static_cast<const TextBox*>(page.find(name))->maxLength(), length) << name;
    }
}

TEST_F(Page1Test, WhatTheFormNoLongerAsksForIsHidden) {
    const frmLodgePage1& page = newReturn();
    for (const char* name : {"txtTinID", "txtPersonRegNo", "txtOffAuditTinID", "txtOffAccTinID",
             "txtAccCodeNo", "condition12", "Label1(81)", "Label1(82)", "List1", "List2", "lbl4(2)"}) {
        EXPECT_FALSE(page.find(name)->isShown()) << name;
    }
    EXPECT_FALSE(page.txtAccCodeNo.enabled());
    EXPECT_EQ(page.txtPersonRegNo.text(), "0000000000000");
}

TEST_F(Page1Test, ANumberBoxTakesThaiDigits) {
    frmLodgePage1& page = newReturn();
    user.type(page.txtNid, "๐๑๐๕๕๓๖๐๐๐๓๑๓");
    EXPECT_EQ(page.txtNid.text(), "0105536000313");
    EXPECT_TRUE(host.shown.empty());
}

// --- Array and controls ---

/// A page 1 as a stored return has it: a company in the development zone, filed for the second time.
FieldArray storedPage1() {
    FieldArray stored;
    stored[0] = "1234567897";
    stored[1] = "01";
    stored[2] = "มกราคม";
    stored[3] = "2561";
    stored[4] = "31";
    stored[5] = "ธันวาคม";
    stored[6] = "2561";
    for (std::size_t flag : {7U, 8U, 12U, 13U, 14U, 16U, 17U, 18U, 19U, 20U, 21U, 22U, 48U, 49U}) {
        stored[flag] = "0";
    }
    stored[9] = "1";
    stored[10] = "2";
    stored[11] = "0000000000000";
    stored[15] = "1";
    stored[23] = "ธนาคารพาณิชย์";
    stored[24] = "641910";
    stored[25] = "ซูเปอร์มาร์เก็ต";
    stored[26] = "471110";
    stored[27] = "การปลูกข้าว";
    stored[28] = "011210";
    stored[29] = "1250.50";
    stored[30] = "0.00";
    stored[31] = "3100600445635";
    stored[32] = "1";
    stored[33] = "สมชาย";
    stored[34] = "ใจดี";
    stored[35] = "TA012345";
    stored[36] = "1101401234515";
    stored[37] = "20032562";
    stored[38] = "1101401234515";
    stored[39] = "3";
    stored[40] = "สมหญิง";
    stored[41] = "รักงาน";
    stored[42] = "12345678";
    stored[43] = "1101401234515";
    stored[44] = "1";
    stored[45] = "0105536000313";
    stored[46] = "0105535001235";
    stored[47] = "0105547000883";
    return stored;
}

TEST_F(Page1Test, AnOverpaidAmountStandsWithoutItsSign) {
    state.strFldPage1 = storedPage1();
    state.strFldPage1[30] = "-25000.00";
    state.intNewReturn = 0;
    frmLodgePage1& page = showPage1();
    EXPECT_EQ(page.lblMoneyOver.caption(), "25,000.00");

    P1_DataToArray(program);
    EXPECT_EQ(state.strFldPage1[30], "25000.00");
}

TEST_F(Page1Test, WhatTheControlsShowIsStoredAsItWas) {
    state.strFldPage1 = storedPage1();
    state.DataCtrl_P1.BusIndex = {3, 11};
    state.DataCtrl_P1.IndcBusType = "4";
    state.DataCtrl_P1.ChkStatus11 = 1;
    state.intP1Box2 = 1;
    state.intNewReturn = 0;
    frmLodgePage1& page = showPage1();
    EXPECT_EQ(page.lblMoneyAdd.caption(), "1,250.50");
    EXPECT_EQ(page.lblMoneyOver.caption(), "0.00");
    EXPECT_EQ(page.cboAuditTitle.selectedText(), "นาย");
    EXPECT_TRUE(page.chkStatus[3].value() && page.chkStatus[11].value());
    EXPECT_TRUE(page.chkStatus[11].enabled());
    EXPECT_TRUE(page.txtAddNo.enabled());
    EXPECT_EQ(state.FucChk.BusinessText, "ธนาคารพาณิชย์ซูเปอร์มาร์เก็ตการปลูกข้าว");

    P1_DataToArray(program);
    EXPECT_EQ(state.strFldPage1, storedPage1());
    EXPECT_THAT(state.DataCtrl_P1.BusIndex, testing::UnorderedElementsAre(3, 11));
    EXPECT_EQ(state.DataCtrl_P1.IndcBusType, "4") << "the first tick after a load only counts";
    EXPECT_EQ(state.DataCtrl_P1.ChkStatus11, 1);
    EXPECT_EQ(state.intP1Box2, 1);

    storeAndShowAgain();
    P1_DataToArray(program);
    EXPECT_EQ(state.strFldPage1, storedPage1());
    EXPECT_EQ(state.DataCtrl_P1.IndcBusType, "4");
}

TEST_F(Page1Test, EveryStatusThatAFileCanCarryComesBack) {
    for (int box = 0; box < 24; ++box) {
        const auto& tag = companyStatuses[static_cast<std::size_t>(box)].tag;
        if (!tag || tag->number == noStatusNumber) {
            continue;
        }
        program.desk.unload(frmLodgePage1::formName);
        state.DataCtrl_P1.Clear();
        state.strFldPage1 = {};
        state.intNewReturn = 0;
        state.DataCtrl_P1.IndcBusType = tag->number;
        state.DataCtrl_P1.BusIndex = {static_cast<std::int16_t>(box)};
        const frmLodgePage1& page = showPage1();
        EXPECT_TRUE(page.chkStatus[box].value()) << "box " << box;
        EXPECT_EQ(page.status.tickedCount(), 1);
        EXPECT_EQ(state.DataCtrl_P1.IndcBusType, tag->number);
        EXPECT_EQ(state.intStatusIndex, box);
    }
}

TEST_F(Page1Test, Box14FollowsItsRecord) {
    state.intNewReturn = 0;
    state.DataCtrl_P1.ChkStatus14 = 1;
    frmLodgePage1& page = showPage1();
    EXPECT_TRUE(page.chkStatus[14].value());
    P1_DataToArray(program);
    EXPECT_EQ(state.DataCtrl_P1.ChkStatus14, 1);
    EXPECT_THAT(state.DataCtrl_P1.BusIndex, testing::ElementsAre(14));
}

TEST_F(Page1Test, AStoredNumber01ShowsAndStoresAs1) {
    state.intNewReturn = 0;
    state.strFldPage1[9] = "1";
    state.strFldPage1[10] = "01";
    frmLodgePage1& page = showPage1();
    EXPECT_EQ(page.txtAddNo.text(), "1");
    P1_DataToArray(program);
    EXPECT_EQ(state.strFldPage1[10], "1");
    page.txtAddNo.setText("00");
    P1_DataToArray(program);
    EXPECT_EQ(state.strFldPage1[10], "");
}

TEST_F(Page1Test, TheValue2OfAnAdvancePaymentIsNoTick) {
    state.intNewReturn = 0;
    state.strFldPage1[7] = "0";
    state.strFldPage1[8] = "1";
    state.strFldPage1[9] = "2";
    const frmLodgePage1& page = showPage1();
    EXPECT_TRUE(page.chkAdvance.value());
    EXPECT_FALSE(page.chkAdd.value());
}

TEST_F(Page1Test, AnAmountLosesItsSeparatorsAndSignAndKeepsItsDecimals) {
    frmLodgePage1& page = newReturn();
    page.lblMoneyAdd.setCaption("(1,234.50)");
    page.lblMoneyOver.setCaption("0.00");
    P1_DataToArray(program);
    EXPECT_EQ(state.strFldPage1[29], "1234.50");
    EXPECT_EQ(state.strFldPage1[30], "0.00");
    page.lblMoneyAdd.setCaption("");
    P1_DataToArray(program);
    EXPECT_EQ(state.strFldPage1[29], "");
}

TEST_F(Page1Test, AStoreRebuildsTheArrayAndThePeriodOfTheNotificationForm) {
    frmLodgePage1& page = newReturn();
    user.click(page.chkStatus[0]);
    state.strFldPage1[50] = state.strFldPage1[100] = "left over";
    P1_DataToArray(program);
    EXPECT_EQ(state.strFldPage1[50], "");
    EXPECT_EQ(state.strFldPage1[100], "");
    EXPECT_EQ(state.strFldPage1[7], "1");
    EXPECT_EQ(state.strFldPage1[12], "1");
    EXPECT_EQ(state.strFldPage1[13], "0");
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_EQ(state.strFldPage8[i], state.strFldPage1[i + 1]);
    }
    EXPECT_EQ(state.strFldPage8[1], "มกราคม");
}

TEST_F(Page1Test, AStoreWithoutAStatusShowsM006AndKeepsTheRememberedBoxes) {
    newReturn();
    state.DataCtrl_P1.BusIndex = {5};
    P1_DataToArray(program);
    EXPECT_EQ(shown(), messages({"M006"}));
    EXPECT_THAT(state.DataCtrl_P1.BusIndex, testing::ElementsAre(5));
}

TEST_F(Page1Test, AStoreOfAPageThatIsNotLoadedLeavesTheArrayAlone) {
    state.strFldPage1[45] = "0105536000313";
    P1_DataToArray(program);
    EXPECT_EQ(state.strFldPage1[45], "0105536000313");
}

TEST_F(Page1Test, TheTitleListsBeginWithTheEmptyRow) {
    state.intNewReturn = 0;
    state.strFldPage1[32] = "169";
    const frmLodgePage1& page = showPage1();
    EXPECT_EQ(page.cboAuditTitle.count(), 170);
    EXPECT_EQ(page.cboAuditTitle.items()[0], "");
    EXPECT_EQ(page.cboAuditTitle.selected(), 169);
    EXPECT_EQ(page.cboAccTitle.selected(), -1);
    EXPECT_EQ(page.cboAccTitle.count(), 170);
}

// --- Opening ---

TEST_F(Page1Test, ANewReturnIsANormalFiling) {
    const frmLodgePage1& page = newReturn();
    EXPECT_TRUE(page.chkNormal.value());
    EXPECT_EQ(state.intNewReturn, 3);
    EXPECT_EQ(state.intPageCur, 1);
    EXPECT_FALSE(page.txtAddNo.enabled());
    EXPECT_FALSE(page.chkAdvance.enabled());
    EXPECT_EQ(page.lblMonth2.caption(), "ธันวาคม");
    EXPECT_EQ(state.FucDate.PeriodStartDate,
        (Date{std::chrono::year{2018}, std::chrono::month{1}, std::chrono::day{1}}));
    EXPECT_EQ(state.FucDate.CarryYearLimit, 5);
    EXPECT_TRUE(host.shown.empty());
}

TEST_F(Page1Test, APromotedBusinessCarriesItsLossesThirteenYears) {
    state.intInvestment = 1;
    newReturn();
    EXPECT_EQ(state.FucDate.CarryYearLimit, 13);
}

TEST_F(Page1Test, APeriodThatCannotBeReadIsToldAndThePageOpensAllTheSame) {
    state.strStartDDMMYY = "99992561";
    state.strFinishDDMMYY = "";
    const frmLodgePage1& page = newReturn();
    EXPECT_EQ(
        shown(), (Texts{"FucDate.Str2StartDate(strStartDDMMYY) ", "FucDate.Str2EndDate(strFinishDDMMYY) "}));
    EXPECT_TRUE(page.isShown());
}

TEST_F(Page1Test, TheExemptionChosenAtTheStartDecidesWhichStatusesAreOpen) {
    const std::set<int> all = [] {
        std::set<int> boxes;
        for (int box = 0; box < 24; ++box) {
            boxes.insert(box);
        }
        boxes.erase(11);
        return boxes;
    }();
    const std::map<std::int16_t, std::set<int>> open = {
        {0, all}, {1, all}, {5, all}, {2, {17}}, {3, {17}}, {4, {16}}, {6, {}}};
    for (const auto& [investment, boxes] : open) {
        program.desk.unload(frmLodgePage1::formName);
        state.intInvestment = investment;
        const frmLodgePage1& page = newReturn();
        for (int box = 0; box < 24; ++box) {
            EXPECT_EQ(page.chkStatus[box].enabled(), boxes.contains(box))
                << "exemption " << investment << ", box " << box;
        }
    }
}

TEST_F(Page1Test, ActivationTicksTheStatusOfTheReturnAndOpensBox11UnderALegalForm) {
    state.DataCtrl_P1.IndcBusType = "4";
    const frmLodgePage1& page = newReturn();
    EXPECT_TRUE(page.chkStatus[3].value());
    EXPECT_TRUE(page.chkStatus[11].enabled());
}

TEST_F(Page1Test, ActivationPassesOverAHiddenBox) {
    state.DataCtrl_P1.IndcBusType = "12";
    const frmLodgePage1& page = newReturn();
    EXPECT_EQ(page.status.tickedCount(), 0);
}

TEST_F(Page1Test, ActivationShowsTheChoicesOutsideTheArray) {
    state.intNewReturn = 0;
    state.strFldPage1[30] = "500.00";
    state.intP1Box1 = state.intP1Box2 = 1;
    state.intCashRefund = 2;
    state.intAuditStatus = 6;
    state.strWebsite = "http://www.example.co.th";
    const frmLodgePage1& page = showPage1();
    EXPECT_TRUE(page.chkTaxType[0].value() && page.chkTaxType[1].value());
    EXPECT_TRUE(page.cashRefund[1].value());
    EXPECT_TRUE(page.cashRefund[0].enabled() && page.cashRefund[1].enabled());
    EXPECT_TRUE(page.audit[5].value());
    EXPECT_EQ(page.txtSitename.text(), "http://www.example.co.th");
    EXPECT_EQ(state.intCashRefund, 2);
    EXPECT_EQ(state.intAuditStatus, 6);
}

TEST_F(Page1Test, TheNoticeNamesTheFolderOfTheTemporaryFile) {
    const std::vector<std::pair<std::map<std::string, std::string>, std::string>> cases = {
        {{{"tmp", "C:\\Temp"}, {"temp", "D:\\Other"}}, "เก็บไว้ที่ C:\\Temp\\temp"},
        {{{"temp", "D:\\Other\\"}}, "เก็บไว้ที่ D:\\Other\\temp"},
        {{{"tmp", "/tmp"}}, "เก็บไว้ที่ /tmp/temp"},
        {{}, "เก็บไว้ที่ temp"},
    };
    for (const auto& [variables, notice] : cases) {
        program.desk.unload(frmLodgePage1::formName);
        host.variables = variables;
        EXPECT_EQ(newReturn().lbl4_1.caption(), notice);
    }
}

TEST_F(Page1Test, AProgramFolderThatCannotBeWrittenIsTold) {
    state.blnFolderWritable = false;
    const frmLodgePage1& page = newReturn();
    EXPECT_TRUE(page.lbl4_2.isShown());
    EXPECT_EQ(page.lbl4_2.caption(), "ไม่สามารถเขียนไฟล์ข้อมูลชั่วคราวใน path ที่ติดตั้งโปรแกรมได้  "
                                     "ท่านจะต้องเปิดใช้งานโปรแกรมโดย Run as Administrator");
}

// --- The kind of filing ---

TEST_F(Page1Test, TheKindsOfFilingExcludeOneAnother) {
    frmLodgePage1& page = newReturn();
    user.click(page.chkAdd);
    EXPECT_FALSE(page.chkNormal.value());
    EXPECT_TRUE(page.txtAddNo.enabled());
    EXPECT_EQ(state.strFldPage1[9], "1");
    user.type(page.txtAddNo, "3");
    user.click(page.chkNormal);
    EXPECT_FALSE(page.chkAdd.value());
    EXPECT_EQ(page.txtAddNo.text(), "");
    EXPECT_FALSE(page.txtAddNo.enabled());
    EXPECT_EQ(state.strFldPage1[9], "0");
    page.chkAdvance.setValue(true);
    EXPECT_FALSE(page.chkNormal.value());
    EXPECT_EQ(state.strFldPage1[8], "1");
    user.click(page.chkAdd);
    EXPECT_FALSE(page.chkAdvance.value());
    EXPECT_EQ(state.strFldPage1[8], "0");
}

class LeavingAdditionalFiling : public Page1Test {
  protected:
    /// Page 1 with an additional filing ticked and item 2 as given, then the tick taken back.
    frmLodgePage1& leave(const std::map<std::size_t, std::string>& item2) {
        frmLodgePage1& page = newReturn();
        user.click(page.chkAdd);
        page.txtAddNo.setText("1");
        page.lblMoneyAdd.setCaption("1.00");
        page.lblMoneyOver.setCaption("2.00");
        for (const auto& [entry, text] : item2) {
            state.strFldPage2[entry] = text;
        }
        user.click(page.chkAdd);
        return page;
    }
};

TEST_F(LeavingAdditionalFiling, TakesTheTaxPaidBeforeOffLine3) {
    const frmLodgePage1& page = leave({{39, "1355.55"}, {40, "8127.27"}, {41, "5.00"}});
    EXPECT_EQ(state.strFldPage2[40], "6771.72"); // 8127.27 - 1355.55
    EXPECT_EQ(state.strFldPage2[39], "");
    EXPECT_EQ(page.txtAddNo.text(), "");
    EXPECT_FALSE(page.txtAddNo.enabled());
}

TEST_F(LeavingAdditionalFiling, ANegativeLine4IsTaxToPay) {
    const frmLodgePage1& page = leave({{40, "1.00"}, {41, "-1234.5"}});
    EXPECT_EQ(state.strFldPage2[43], "1,234.50");
    EXPECT_EQ(page.lblMoneyAdd.caption(), "1,234.50");
    EXPECT_EQ(page.lblMoneyOver.caption(), "");
}

TEST_F(LeavingAdditionalFiling, APositiveLine4FollowsItsTicks) {
    const frmLodgePage1* page = &leave({{40, "1.00"}, {41, "2000"}, {28, "1"}, {29, "0"}});
    EXPECT_EQ(state.strFldPage2[43], "2,000.00");
    EXPECT_EQ(page->lblMoneyAdd.caption(), "2,000.00");
    EXPECT_EQ(page->lblMoneyOver.caption(), "");
    program.desk.unload(frmLodgePage1::formName);
    page = &leave({{40, "1.00"}, {41, "2000"}, {28, "0"}, {29, "1"}});
    EXPECT_EQ(page->lblMoneyAdd.caption(), "");
    EXPECT_EQ(page->lblMoneyOver.caption(), "2,000.00");
}

TEST_F(LeavingAdditionalFiling, WithNothingLeftLine6TakesTheOldSum) {
    const frmLodgePage1& page = leave({{39, "500"}, {40, "500"}, {41, "0"}, {28, "0"}, {29, ""}});
    EXPECT_EQ(state.strFldPage2[40], "0");
    EXPECT_EQ(state.strFldPage2[43], "500");
    EXPECT_EQ(page.lblMoneyAdd.caption(), "500");
    EXPECT_EQ(page.lblMoneyOver.caption(), "");
}

TEST_F(LeavingAdditionalFiling, ANegativeOldSumGoesToTheOverpaidTax) {
    const frmLodgePage1& page = leave({{39, "-500"}, {40, "-500"}});
    EXPECT_EQ(state.strFldPage2[43], "0.00");
    EXPECT_EQ(page.lblMoneyAdd.caption(), "");
    EXPECT_EQ(page.lblMoneyOver.caption(), "0.00");
}

// --- Refund, audit report, web site ---

TEST_F(Page1Test, WithoutAnOverpaidAmountTheRefundWishIsGoneWithinOneTick) {
    frmLodgePage1& page = newReturn();
    page.lblMoneyOver.setCaption("500.00");
    program.desk.pass(milliseconds(2000));
    EXPECT_TRUE(page.cashRefund[0].enabled() && page.cashRefund[1].enabled());
    user.click(page.cashRefund[1]);
    EXPECT_EQ(state.intCashRefund, 2);
    user.click(page.cashRefund[0]);
    EXPECT_EQ(state.intCashRefund, 1);
    EXPECT_FALSE(page.cashRefund[1].value());
    program.desk.pass(milliseconds(2000));
    EXPECT_EQ(state.intCashRefund, 1);
    page.lblMoneyOver.setCaption("");
    program.desk.pass(milliseconds(2000));
    EXPECT_EQ(state.intCashRefund, 0);
    EXPECT_FALSE(page.cashRefund[0].value() || page.cashRefund[1].value());
    EXPECT_FALSE(page.cashRefund[0].enabled() || page.cashRefund[1].enabled());
}

TEST_F(Page1Test, TheAuditReportIsOneChoiceOfSixBesideTheRefundWish) {
    frmLodgePage1& page = newReturn();
    page.lblMoneyOver.setCaption("500.00");
    program.desk.pass(milliseconds(2000));
    user.click(page.cashRefund[0]);
    for (int option = 0; option < 6; ++option) {
        user.click(page.audit[option]);
        EXPECT_EQ(state.intAuditStatus, option + 1);
    }
    EXPECT_FALSE(page.audit[4].value());
    EXPECT_TRUE(page.cashRefund[0].value()) << "the two frames do not exclude each other";
}

struct WebAddress {
    std::string typed;
    std::string stored; // empty: refused
};

class WebSite : public Page1Test, public testing::WithParamInterface<WebAddress> {};

TEST_P(WebSite, IsTakenWithASchemeOrRefused) {
    frmLodgePage1& page = newReturn();
    user.type(page.txtSitename, GetParam().typed);
    EXPECT_EQ(page.txtSitename.text(), GetParam().stored);
    EXPECT_EQ(state.strWebsite, GetParam().stored);
    EXPECT_EQ(shown(), GetParam().stored.empty() ? messages({"M532"}) : Texts{});
    EXPECT_EQ(focused(), GetParam().stored.empty() ? "txtSitename" : "");
}

INSTANTIATE_TEST_SUITE_P(Addresses, WebSite,
    testing::Values(WebAddress{"www.example.co.th", "http://www.example.co.th"},
        WebAddress{"http://example.co.th", "http://example.co.th"},
        WebAddress{"https://example.co.th", "https://example.co.th"},
        WebAddress{"HTTP://example.co.th", "http://HTTP://example.co.th"}, WebAddress{".example.co.th", ""},
        WebAddress{"https://.example.co.th", ""}, WebAddress{"example", ""},
        WebAddress{"www.example.co.th\\home", ""}, WebAddress{"www.phasiklang.go.th", ""},
        WebAddress{"HTTPS://WWW.PhasiKlang.GO.TH/form", ""}));

TEST_F(Page1Test, ABlankWebAddressIsLeftAlone) {
    frmLodgePage1& page = newReturn();
    user.type(page.txtSitename, "");
    EXPECT_TRUE(host.shown.empty());
    user.focus(page.txtSitename);
    user.edit(page.txtSitename, "www.exa");
    EXPECT_EQ(state.strWebsite, "www.exa") << "the return has it while it is typed";
}

TEST_F(Page1Test, ADoubleClickOnTheAuditorsTitleShowsASingleLetter) {
    frmLodgePage1& page = newReturn();
    user.doubleClick(page.cboAuditTitle);
    EXPECT_EQ(shown(), Texts{"d"});
}

// --- Business lines ---

TEST_F(Page1Test, TheBusinessListTextIsTheThreeNamesTogether) {
    frmLodgePage1& page = newReturn();
    page.takeBusinessLine(0, "ก", "011210");
    page.takeBusinessLine(2, "ค", "641910");
    EXPECT_EQ(state.FucChk.BusinessText, "กค");
    user.click(page.cmdCISIC1[0]);
    EXPECT_EQ(state.FucChk.BusinessText, "ค");
    EXPECT_EQ(page.lblISICCode1[0].caption(), "");
}

TEST_F(Page1Test, SearchingHidesTheToolbarAndOpensTheDialogOverThePage) {
    frmLodgePage1& page = newReturn();
    user.click(page.cmdSISIC1[1]);
    EXPECT_FALSE(shell.tools);
    ASSERT_NE(program.desk.top(), nullptr);
    EXPECT_EQ(program.desk.top()->name(), "frmLodgeISIC");
    EXPECT_TRUE(program.desk.liesUnderModal(page));
}

} // namespace
} // namespace lodge
