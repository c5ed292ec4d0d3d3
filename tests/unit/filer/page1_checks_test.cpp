#include "filer_fixture.h"
#include "pages/filer/page1_checks.h"
#include "pages/filer/page1_field_checks.h"

#include <functional>

namespace lodge {
namespace {

using Texts = std::vector<std::string>;

// Numbers whose check digits fit.
constexpr const char* filerNid = "0105536000313";
constexpr const char* auditor = "3100600445635";
constexpr const char* accountant = "1101401234515";
constexpr const char* auditOffice = "0105535001235";
constexpr const char* accountingOffice = "0105547000883";

class FieldChecks : public FilerTest {
  protected:
    frmLodgePage1& page = newReturn();
};

// --- The filer's number ---

TEST_F(FieldChecks, AGoodNumberIsRememberedForTheCompleteStore) {
    user.type(page.txtNid, "1234567890121");
    EXPECT_EQ(shown(), Texts{});
    EXPECT_EQ(state.FucChk.LastValidId, "1234567890121");
    EXPECT_EQ(state.intError, 0);
}

TEST_F(FieldChecks, AFilersNumberOfTheWrongLengthIsM113) {
    state.strFldPage1[45] = filerNid;
    user.type(page.txtNid, "123");
    EXPECT_EQ(shown(), messages({"M113"}));
    EXPECT_EQ(page.txtNid.text(), "");
    EXPECT_EQ(state.strFldPage1[45], "");
    EXPECT_EQ(focused(), "txtNid");
    EXPECT_EQ(state.intError, 1);
}

TEST_F(FieldChecks, AFilersNumberWithAWrongCheckDigitIsM129AndForgotten) {
    state.FucChk.LastValidId = filerNid;
    user.type(page.txtNid, "1234567890122");
    EXPECT_EQ(shown(), messages({"M129"}));
    EXPECT_EQ(page.txtNid.text(), "");
    EXPECT_EQ(state.FucChk.LastValidId, "");
}

TEST_F(FieldChecks, AFilersNumberWithALetterIsM075AndNoSecondMessage) {
    user.type(page.txtNid, "123456789012X");
    EXPECT_EQ(shown(), messages({"M075"}));
    EXPECT_EQ(page.txtNid.text(), "");
    EXPECT_EQ(focused(), "txtNid");
}

TEST_F(FieldChecks, AnEmptyFilersNumberEmptiesItsEntryWithoutAWord) {
    state.strFldPage1[45] = filerNid;
    user.type(page.txtNid, "");
    EXPECT_EQ(shown(), Texts{});
    EXPECT_EQ(state.strFldPage1[45], "");
}

TEST_F(FieldChecks, TheFilersOwnNumberIsRefusedOnlyFor0991And0992) {
    for (const char* refused : {"099100000000", "099212345678"}) {
        user.type(page.txtNid, withCheckDigit(refused));
        EXPECT_EQ(shown(), messages({"M003"})) << refused;
        EXPECT_EQ(page.txtNid.text(), "");
    }
    for (const char* accepted : {"099312345678", "099412345678"}) {
        user.type(page.txtNid, withCheckDigit(accepted));
        EXPECT_EQ(shown(), Texts{}) << accepted;
        EXPECT_EQ(page.txtNid.text(), withCheckDigit(accepted));
    }
}

TEST_F(FieldChecks, AFilersNumberThatStandsElsewhereIsM151AndForgotten) {
    for (TextBox* other : {&page.txtAuditPinID, &page.txtAccPinID, &page.txtAudOfficeNid}) {
        other->setText(filerNid);
        user.type(page.txtNid, filerNid);
        EXPECT_EQ(shown(), messages({"M151"})) << other->name();
        EXPECT_EQ(page.txtNid.text(), "");
        EXPECT_EQ(state.FucChk.LastValidId, "");
        EXPECT_EQ(focused(), "txtNid");
        other->setText("");
    }
    page.txtAccOfficeNid.setText(filerNid); // not compared here
    user.type(page.txtNid, filerNid);
    EXPECT_EQ(shown(), Texts{});
}

// --- Auditor ---

TEST_F(FieldChecks, AGoodAuditorFillsTheTitlesOnce) {
    user.type(page.txtAuditPinID, auditor);
    EXPECT_EQ(shown(), Texts{});
    EXPECT_EQ(page.cboAuditTitle.count(), 170);
    page.cboAuditTitle.select(5);
    user.type(page.txtAuditPinID, auditor);
    EXPECT_EQ(page.cboAuditTitle.selected(), 5);
}

TEST_F(FieldChecks, TheAuditorsNumberNeverTakesThePlaceOfTheFilers) {
    user.type(page.txtNid, filerNid);
    user.type(page.txtAuditPinID, auditor);
    EXPECT_EQ(state.FucChk.LastValidId, filerNid);
    user.type(page.txtAuditPinID, "3100600445636");
    EXPECT_EQ(state.FucChk.LastValidId, filerNid);
}

TEST_F(FieldChecks, AWrongAuditorIsM113ForItsLengthAndM129ForItsCheckDigit) {
    user.type(page.txtAuditPinID, "310060044563");
    EXPECT_EQ(shown(), messages({"M113"}));
    EXPECT_EQ(page.txtAuditPinID.text(), "");
    user.type(page.txtAuditPinID, "3100600445636");
    EXPECT_EQ(shown(), messages({"M129"}));
    EXPECT_EQ(page.txtAuditPinID.text(), "");
    EXPECT_EQ(focused(), "txtAuditPinID");
}

TEST_F(FieldChecks, AnAuditorWithAReservedPrefixIsM003) {
    for (const char* prefix : {"099200000000", "099300000000", "099400000000"}) {
        user.type(page.txtAuditPinID, withCheckDigit(prefix));
        EXPECT_EQ(shown(), messages({"M003"})) << prefix;
        EXPECT_EQ(page.txtAuditPinID.text(), "");
    }
    user.type(page.txtAuditPinID, withCheckDigit("099100000000"));
    EXPECT_EQ(shown(), Texts{});
}

TEST_F(FieldChecks, TheStateAuditOfficeFillsAndLocksTheAuditorsBlock) {
    page.txtAuditSurname.setText("ใจดี");
    page.txtAuditRegNo.setText("TA123456");
    page.txtAudOfficeNid.setText(auditOffice);
    user.type(page.txtAuditPinID, "0994000160500");
    EXPECT_EQ(shown(), Texts{});
    EXPECT_EQ(page.txtAuditName.text(), "สำนักงานตรวจเงินแผ่นดิน");
    EXPECT_EQ(page.txtAuditSurname.text(), "");
    EXPECT_EQ(page.txtAuditRegNo.text(), "");
    EXPECT_EQ(page.txtAudOfficeNid.text(), "");
    const std::vector<const Control*> block = {&page.txtAuditName, &page.txtAuditSurname, &page.cboAuditTitle,
        &page.txtAuditRegNo, &page.txtAudOfficeNid};
    for (const Control* control : block) {
        EXPECT_TRUE(control->locked()) << control->name();
    }
    user.type(page.txtAuditPinID, auditor);
    for (const Control* control : block) {
        EXPECT_FALSE(control->locked()) << control->name();
    }
}

TEST_F(FieldChecks, AnAuditorThatIsSomeoneElseIsM143ForTheAccountantAndM151ForOthers) {
    struct Case {
        bool isAccountant;
        bool isFiler;
        bool isAccountingOffice;
        const char* code;
    };
    for (const Case& c :
        {Case{true, false, false, "M143"}, Case{false, true, false, "M151"}, Case{true, true, false, "M143"},
            Case{false, false, true, "M151"}, Case{true, false, true, "M151"},
            Case{false, true, true, "M151"}, Case{true, true, true, "M143"}}) {
        page.txtAccPinID.setText(c.isAccountant ? auditor : "");
        page.txtNid.setText(c.isFiler ? auditor : "");
        page.txtAccOfficeNid.setText(c.isAccountingOffice ? auditor : "");
        user.type(page.txtAuditPinID, auditor);
        EXPECT_EQ(shown(), messages({c.code})) << c.isAccountant << c.isFiler << c.isAccountingOffice;
        EXPECT_EQ(page.txtAuditPinID.text(), "");
        EXPECT_EQ(focused(), "txtAuditPinID");
    }
}

TEST_F(FieldChecks, ARegistrationIsSixDigitsBehindTAOrEightDigits) {
    const std::string start = "ทะเบียนเลขที่ ต้องไม่เป็นตัวอักษรในหลักที่  ";
    const std::string withLetters = " (ต้องขึ้นต้นด้วย TA และตามด้วยเลข 6 หลัก เช่น TA123456)";
    const std::string digitsAlone = " (เป็นตัวเลขทั้งหมด)";
    for (const char* good : {"TA123456", "ta123456", "12345678"}) {
        user.type(page.txtAuditRegNo, good);
        EXPECT_EQ(shown(), Texts{}) << good;
    }
    user.type(page.txtAuditRegNo, "ta123456");
    EXPECT_EQ(page.txtAuditRegNo.text(), "TA123456");

    user.type(page.txtAuditRegNo, "TA12345X");
    EXPECT_EQ(shown(), Texts{start + "8" + withLetters});
    EXPECT_EQ(page.txtAuditRegNo.text(), "");
    EXPECT_EQ(focused(), "txtAuditRegNo");
    user.type(page.txtAuditRegNo, "TAX23456");
    EXPECT_EQ(shown(), Texts{start + "3" + withLetters});

    user.type(page.txtAuditRegNo, "1234567A");
    EXPECT_EQ(shown(), Texts{start + "8" + digitsAlone});
    EXPECT_EQ(page.txtAuditRegNo.text(), "1234567A");
    user.type(page.txtAuditRegNo, "A2345678");
    EXPECT_EQ(shown(), Texts{start + "1" + digitsAlone});
}

TEST_F(FieldChecks, ARegistrationOfAnotherLengthOrWithABlankIsM086) {
    for (const char* bad : {"1234567", "1234 678", " 234567 "}) {
        user.type(page.txtAuditRegNo, bad);
        EXPECT_EQ(shown(), messages({"M086"})) << bad;
        EXPECT_EQ(page.txtAuditRegNo.text(), bad);
    }
    user.type(page.txtAuditRegNo, "   ");
    EXPECT_EQ(shown(), Texts{});
}

TEST_F(FieldChecks, AReportIsDatedAfterThePeriodAndNotAfterToday) {
    // Today is 20 May 2019, which is 20/05/2562; the period ends on 31/12/2561.
    struct Case {
        const char* date;
        const char* code;
    };
    for (const Case& c : {Case{"20052562", ""}, Case{"21052562", "M017"}, Case{"31122561", "M104"},
             Case{"01012562", ""}, Case{"29022562", "M026"}, Case{"0101", "M026"}}) {
        user.type(page.mskDateReport, c.date);
        EXPECT_EQ(shown(), *c.code == '\0' ? Texts{} : messages({c.code})) << c.date;
        EXPECT_EQ(focused(), *c.code == '\0' ? "" : "mskDateReport");
    }
    user.type(page.mskDateReport, "");
    EXPECT_EQ(shown(), Texts{});
    host.calendarIs = Calendar::Buddhist;
    user.type(page.mskDateReport, "20052562");
    EXPECT_EQ(shown(), Texts{}) << "a machine with a Buddhist calendar has the same today";
}

// --- Accountant ---

TEST_F(FieldChecks, AGoodAccountantOpensTheSurnameAndFillsTheTitles) {
    page.txtAccSurname.setEnabled(false);
    page.txtAccSurname.setBack(BackColour::Button);
    user.type(page.txtAccPinID, accountant);
    EXPECT_EQ(shown(), Texts{});
    EXPECT_TRUE(page.txtAccSurname.enabled());
    EXPECT_EQ(page.txtAccSurname.back(), BackColour::Window);
    EXPECT_EQ(page.cboAccTitle.count(), 170);
}

TEST_F(FieldChecks, AnAccountantWithAReservedPrefixIsAlwaysM003) {
    user.type(page.txtAccPinID, "0994000160500");
    EXPECT_EQ(shown(), messages({"M003"}));
    EXPECT_EQ(page.txtAccPinID.text(), "");
    EXPECT_FALSE(page.txtAuditName.locked());
}

TEST_F(FieldChecks, AnAccountantThatIsSomeoneElseIsM143ForTheAuditorAndM151ForOthers) {
    page.txtAuditPinID.setText(accountant);
    user.type(page.txtAccPinID, accountant);
    EXPECT_EQ(shown(), messages({"M143"}));
    page.txtAuditPinID.setText("");
    page.txtAudOfficeNid.setText(accountant);
    user.type(page.txtAccPinID, accountant);
    EXPECT_EQ(shown(), messages({"M151"}));
    page.txtAudOfficeNid.setText("");
    page.txtNid.setText(accountant);
    user.type(page.txtAccPinID, accountant);
    EXPECT_EQ(shown(), messages({"M151"}));
    page.txtNid.setText("");
    page.txtAccOfficeNid.setText(accountant); // not compared here
    user.type(page.txtAccPinID, accountant);
    EXPECT_EQ(shown(), Texts{});
}

TEST_F(FieldChecks, TheLightCheckOfTheAccountantAsksForTenDigitsAndTheCheckDigitDoesTheRest) {
    page.txtAuditPinID.setText("1234567890");
    EXPECT_FALSE(P1_CheckAuditPin(page));
    EXPECT_EQ(shown(), messages({"M113"}));
    page.txtAuditPinID.setText("");
    page.txtAccPinID.setText("123456789");
    EXPECT_FALSE(P1_CheckAccPin(page));
    EXPECT_EQ(shown(), messages({"M113"}));
    page.txtAccPinID.setText("1234567890");
    EXPECT_FALSE(P1_CheckAccPin(page));
    EXPECT_EQ(shown(), messages({"M129"}));
}

// --- Offices ---

TEST_F(FieldChecks, OfficesNeedThirteenFittingDigits) {
    for (TextBox* office : {&page.txtAudOfficeNid, &page.txtAccOfficeNid}) {
        user.type(*office, "010553500123");
        EXPECT_EQ(shown(), messages({"M128"})) << office->name();
        EXPECT_EQ(office->text(), "010553500123") << "what was typed stays";
        user.type(*office, "0105535001236");
        EXPECT_EQ(shown(), messages({"M129"}));
        user.type(*office, "01055350012A5");
        EXPECT_EQ(shown(), Texts{}) << "a letter is refused without a word";
        EXPECT_EQ(office->text(), "");
        EXPECT_EQ(state.intError, 1);
        user.type(*office, "");
        EXPECT_EQ(shown(), Texts{});
        user.type(*office, auditOffice);
        EXPECT_EQ(shown(), Texts{});
        EXPECT_EQ(state.intError, 0);
        office->setText("");
    }
}

TEST_F(FieldChecks, OfficesThatAreSomeoneElseAreM151) {
    struct Pair {
        TextBox* box;
        TextBox* other;
    };
    for (const Pair& pair : {Pair{&page.txtAudOfficeNid, &page.txtAccPinID},
             Pair{&page.txtAudOfficeNid, &page.txtNid}, Pair{&page.txtAudOfficeNid, &page.txtAccOfficeNid},
             Pair{&page.txtAccOfficeNid, &page.txtAudOfficeNid},
             Pair{&page.txtAccOfficeNid, &page.txtAuditPinID}}) {
        pair.other->setText(auditOffice);
        user.type(*pair.box, auditOffice);
        EXPECT_EQ(shown(), messages({"M151"})) << pair.box->name() << " " << pair.other->name();
        EXPECT_EQ(pair.box->text(), "");
        EXPECT_EQ(focused(), pair.box->name());
        pair.other->setText("");
    }
}

// --- Fields that nobody sees any more ---

TEST_F(FieldChecks, TheOldNumberIsEmptiedByALetterAndAsksForTheFilersNumber) {
    page.txtTinID.setText("12345X");
    EXPECT_FALSE(P1_CheckTin(page));
    EXPECT_EQ(shown(), Texts{});
    EXPECT_EQ(page.txtTinID.text(), "");
    EXPECT_FALSE(P1_CheckTin(page));
    EXPECT_EQ(shown(), messages({"M132"}));
    EXPECT_EQ(focused(), "txtNid");
    state.strFldPage1[45] = filerNid;
    EXPECT_TRUE(P1_CheckTin(page));
}

TEST_F(FieldChecks, TheOldOfficeNumbersFollowTheTenDigitRule) {
    // 1-2-3-4-5-6-7-8-9-x weighs 3+2+9+4+15+6+21+8+27+x = 95+x.
    for (TextBox* office : {&page.txtOffAuditTinID, &page.txtOffAccTinID}) {
        const auto check = office == &page.txtOffAuditTinID ? P1_CheckOffAuditTin : P1_CheckOffAccTin;
        struct Case {
            const char* text;
            const char* code;
        };
        for (const Case& c : {Case{"123456789", "M009"}, Case{"5234567895", "M003"},
                 Case{"1234567894", "M003"}, Case{"1234567895", ""}}) {
            office->setText(c.text);
            EXPECT_EQ(check(page), *c.code == '\0') << c.text;
            EXPECT_EQ(shown(), *c.code == '\0' ? Texts{} : messages({c.code})) << c.text;
        }
        office->setText("12345678X5");
        EXPECT_FALSE(check(page));
        EXPECT_EQ(shown(), Texts{});
        EXPECT_EQ(office->text(), "");
    }
}

TEST_F(FieldChecks, TheAccountantsCodeIsEightDigits) {
    page.txtAccCodeNo.setText("1234567");
    EXPECT_FALSE(P1_CheckAccCodeNo(page));
    EXPECT_EQ(shown(), messages({"M077"}));
    page.txtAccCodeNo.setText("1234567X");
    EXPECT_FALSE(P1_CheckAccCodeNo(page));
    EXPECT_EQ(shown(), Texts{});
    EXPECT_EQ(page.txtAccCodeNo.text(), "");
    page.txtAccCodeNo.setText("12345678");
    EXPECT_TRUE(P1_CheckAccCodeNo(page));
}

TEST_F(FieldChecks, TheRegistrationNumberIsWrittenInCapitals) {
    page.txtPersonRegNo.setText("ab12");
    page.txtPersonRegNo.raise(page.txtPersonRegNo.onLostFocus);
    EXPECT_EQ(page.txtPersonRegNo.text(), "AB12");
}

TEST_F(FieldChecks, TheAdditionalNumberTakesDigitsAndGoesIntoTheArrayAtOnce) {
    user.click(page.chkAdd);
    user.type(page.txtAddNo, "1x");
    EXPECT_EQ(page.txtAddNo.text(), "");
    EXPECT_EQ(shown(), Texts{});
    EXPECT_EQ(state.intError, 1);
    user.type(page.txtAddNo, "02");
    EXPECT_EQ(state.strFldPage1[10], "02");
    EXPECT_EQ(state.intError, 0);
}

// --- Status ---

TEST_F(FieldChecks, AStatusMustBeChosenAndALegalFormBesideBox11) {
    EXPECT_FALSE(P1_CheckStatus(page));
    EXPECT_EQ(shown(), messages({"M006"}));
    EXPECT_EQ(focused(), "chkStatus(0)");
    page.chkStatus[11].setValue(true);
    EXPECT_FALSE(P1_CheckStatus(page));
    EXPECT_EQ(shown(), messages({"M205"}));
    page.chkStatus[13].setValue(true);
    EXPECT_FALSE(P1_CheckStatus(page));
    EXPECT_EQ(shown(), messages({"M205"}));
    page.chkStatus[6].setValue(true);
    EXPECT_TRUE(P1_CheckStatus(page));
    EXPECT_EQ(shown(), Texts{});
}

TEST_F(FieldChecks, AnEntryOfTheArrayCountsAsAStatusAlsoBehindBox10) {
    state.strFldPage1[32] = "1"; // the auditor's title stands where box 20 would
    EXPECT_TRUE(P1_CheckStatus(page));
}

TEST_F(FieldChecks, TheFocusStaysAwayFromADisabledStatusBox) {
    page.chkStatus[0].setEnabled(false);
    EXPECT_FALSE(P1_CheckStatus(page));
    EXPECT_EQ(focused(), "");
}

// --- The light check ---

class LightCheck : public FieldChecks {
  protected:
    LightCheck() {
        page.txtNid.setText(filerNid);
        page.chkStatus[0].setValue(true);
        page.takeBusinessLine(0, "ซูเปอร์มาร์เก็ต", "471110");
        page.chkTaxType[1].setValue(true);
        state.strWebsite = "http://www.example.co.th";
    }
};

TEST_F(LightCheck, PassesWhatNeedsNoMore) {
    EXPECT_TRUE(passes(P1_CheckForm));
    EXPECT_EQ(shown(), Texts{});
    EXPECT_EQ(state.intError, 0);
}

TEST_F(LightCheck, RefusesInItsOrder) {
    struct Step {
        const char* code; // empty for a silent refusal
        const char* focus;
        std::function<void(frmLodgePage1&)> mend;
    };
    page.txtNid.setText("");
    page.chkNormal.setValue(false);
    state.strFldPage1[7].clear();
    state.strFldPage1[8].clear();
    state.strFldPage1[9].clear();
    page.chkStatus[0].setValue(false);
    page.cmdCISIC1[0].raise(page.cmdCISIC1[0].onClick);
    page.chkTaxType[1].setValue(false);
    page.txtAuditPinID.setText("12");
    page.txtOffAccTinID.setText("12");
    page.txtAccPinID.setText("12");
    page.mskDateReport.setDigits("0101");
    page.txtAuditRegNo.setText("1");
    page.txtAccCodeNo.setText("1");
    state.strWebsite.clear();
    host.answers = {Answer::Ok};
    const std::vector<Step> steps = {
        {"M132", "txtNid", [](frmLodgePage1& p) { p.txtNid.setText(filerNid); }},
        {"M113", "txtAuditPinID", [](frmLodgePage1& p) { p.txtAuditPinID.setText(auditor); }},
        {"M009", nullptr, [](frmLodgePage1& p) { p.txtOffAccTinID.setText("1234567895"); }},
        {"M113", "txtAccPinID", [](frmLodgePage1& p) { p.txtAccPinID.setText(accountant); }},
        {"M026", "mskDateReport", [](frmLodgePage1& p) { p.mskDateReport.setDigits("20032562"); }},
        {"M076", "chkNormal", [](frmLodgePage1& p) { p.chkAdd.setValue(true); }},
        {"M085", "cmdSISIC1(0)", [](frmLodgePage1& p) { p.takeBusinessLine(1, "ก", "471110"); }},
        {"M004", "txtAddNo", [](frmLodgePage1& p) { p.txtAddNo.setText("1"); }},
        {"M006", "chkStatus(0)", [](frmLodgePage1& p) { p.chkStatus[0].setValue(true); }},
        {"M086", "txtAuditRegNo", [](frmLodgePage1& p) { p.txtAuditRegNo.setText("TA123456"); }},
        {"M077", nullptr, [](frmLodgePage1& p) { p.txtAccCodeNo.setText("12345678"); }},
        {"M520", "chkTaxType(0)", [](frmLodgePage1& p) { p.chkTaxType[1].setValue(true); }},
    };
    for (const Step& step : steps) {
        state.intError = 0;
        EXPECT_FALSE(passes(P1_CheckForm)) << step.code;
        EXPECT_EQ(shown(), messages({step.code}));
        EXPECT_EQ(state.intError, 1);
        if (step.focus != nullptr) {
            EXPECT_EQ(focused(), step.focus);
        }
        step.mend(page);
    }
    EXPECT_FALSE(passes(P1_CheckForm)) << "the web site is asked about last";
    EXPECT_EQ(host.shown.size(), 1U);
    EXPECT_TRUE(passes(P1_CheckForm));
}

TEST_F(LightCheck, TheFieldThatLosesTheFocusToARefusalDoesNotTakeTheRefusalBack) {
    user.focus(page.txtAddNo);
    user.focus(page.txtNid); // its own check passes when the focus moves on
    page.txtAuditPinID.setText("12");
    EXPECT_FALSE(passes(P1_CheckForm));
    EXPECT_EQ(shown(), messages({"M113"}));
    EXPECT_EQ(focused(), "txtAuditPinID");
}

TEST_F(LightCheck, TheFilingKindAsksAtTheNumberWhenThereIsOne) {
    page.chkNormal.setValue(false);
    for (const std::size_t kind : {7U, 8U, 9U}) {
        state.strFldPage1[kind].clear();
    }
    page.txtAddNo.setText("1");
    EXPECT_FALSE(passes(P1_CheckForm));
    EXPECT_EQ(shown(), messages({"M076"}));
    EXPECT_EQ(focused(), "chkAdd");
}

TEST_F(LightCheck, AStoredFilingKindOrBusinessCodeCounts) {
    page.chkNormal.setValue(false);
    page.cmdCISIC1[0].raise(page.cmdCISIC1[0].onClick);
    state.strFldPage1[7] = "0"; // a text, whatever it says
    state.strFldPage1[28] = "471110";
    EXPECT_TRUE(passes(P1_CheckForm));
}

TEST_F(LightCheck, TheForgottenWebSiteIsAskedAboutOnceAReturn) {
    state.strWebsite.clear();
    host.answers = {Answer::Ok};
    EXPECT_FALSE(passes(P1_CheckForm));
    ASSERT_EQ(host.shown.size(), 1U);
    EXPECT_EQ(host.shown[0].text,
        "ท่านยังไม่ได้ระบุชื่อเว็บไซต์ กดปุ่ม OK เพื่อกลับไประบุชื่อเว็บไซต์ กดปุ่ม Cancel เพื่อให้โปรแกรมทำงานต่อไป");
    EXPECT_EQ(host.shown[0].title, "แจ้งเตือน");
    EXPECT_EQ(host.shown[0].buttons, Buttons::OkCancel);
    EXPECT_EQ(focused(), "txtSitename");
    EXPECT_EQ(state.intError, 1);
    EXPECT_TRUE(state.blnWebsiteAsked);
    host.shown.clear();
    EXPECT_TRUE(passes(P1_CheckForm));
    EXPECT_TRUE(host.shown.empty());
}

TEST_F(LightCheck, CancelPassesWithoutAWebSite) {
    state.strWebsite.clear();
    host.answers = {Answer::Cancel};
    EXPECT_TRUE(passes(P1_CheckForm));
    EXPECT_TRUE(state.blnWebsiteAsked);
    EXPECT_EQ(state.intError, 0);
}

TEST_F(LightCheck, APageThatIsNotLoadedPasses) {
    program.desk.unload(frmLodgePage1::formName);
    EXPECT_TRUE(passes(P1_CheckForm));
}

// --- The full check ---

class FullCheck : public FilerTest {
  protected:
    FullCheck() {
        FieldArray& p = state.strFldPage1;
        p[7] = "1";
        p[8] = p[9] = "0";
        p[23] = "ซูเปอร์มาร์เก็ต";
        p[24] = "471110";
        p[31] = auditor;
        p[32] = "1";
        p[33] = "สมชาย";
        p[34] = "ใจดี";
        p[35] = "TA012345";
        p[37] = "20032562";
        p[38] = accountant;
        p[39] = "3";
        p[40] = "สมหญิง";
        p[41] = "รักงาน";
        p[45] = filerNid;
        p[46] = auditOffice;
        p[47] = accountingOffice;
    }

    Texts refusals() {
        std::vector<Refusal> list;
        collectRefusals({state, host}, frmLodgePage1::formName, page1CheckRows(), list);
        Texts texts;
        for (const Refusal& refusal : list) {
            texts.push_back(refusal.code.empty() ? refusal.text : refusal.code);
        }
        return texts;
    }
};

TEST_F(FullCheck, PassesACompletePage) {
    EXPECT_TRUE(passes(P1_CheckData));
    EXPECT_EQ(shown(), Texts{});
    EXPECT_EQ(state.intError, 0);
    EXPECT_EQ(refusals(), Texts{});
}

TEST_F(FullCheck, EveryRowRefusesWhatItIsThereForAndNothingElse) {
    struct Fault {
        const char* code;
        std::function<void(FieldArray&)> make;
    };
    const std::vector<Fault> faults = {
        {"เลขบัตรประจำตัวประชาชนของผู้ตรวจสอบบัญชี ต้องไม่ซ้ำกับของผู้ทำบัญชี หน้าที่ 1",
            [](FieldArray& p) { p[38] = p[31]; }},
        {"M132", [](FieldArray& p) { p[45] = ""; }},
        {"M076", [](FieldArray& p) { p[7] = "0"; }},
        {"M004",
            [](FieldArray& p) {
                p[9] = "1";
                p[10] = "0";
            }},
        {"M141", [](FieldArray& p) { p[31] = ""; }},
        {"M011", [](FieldArray& p) { p[32] = "0"; }},
        {"M012", [](FieldArray& p) { p[33] = ""; }},
        {"M013", [](FieldArray& p) { p[34] = ""; }},
        {"M014", [](FieldArray& p) { p[35] = ""; }},
        {"M015", [](FieldArray& p) { p[46] = ""; }},
        {"M016", [](FieldArray& p) { p[37] = ""; }},
        {"M142", [](FieldArray& p) { p[38] = ""; }},
        {"M020", [](FieldArray& p) { p[39] = ""; }},
        {"M021", [](FieldArray& p) { p[40] = ""; }},
        {"M022", [](FieldArray& p) { p[41] = ""; }},
        {"M024", [](FieldArray& p) { p[47] = "0"; }},
        {"M085", [](FieldArray& p) { p[23] = ""; }},
        {"M522", [](FieldArray& p) { p[30] = "100.00"; }},
    };
    ASSERT_EQ(faults.size(), page1CheckRows().size());
    const FieldArray complete = state.strFldPage1;
    for (const Fault& fault : faults) {
        state.strFldPage1 = complete;
        state.intError = 0;
        fault.make(state.strFldPage1);
        EXPECT_EQ(refusals(), Texts{fault.code});
        EXPECT_FALSE(passes(P1_CheckData));
        const Texts texts = shown();
        ASSERT_EQ(texts.size(), 1U);
        EXPECT_EQ(texts[0], messageText(fault.code));
        EXPECT_EQ(state.intError, 1);
    }
}

TEST_F(FullCheck, AnEmptyPageMeetsEveryRowThatAsksForSomething) {
    state.strFldPage1 = {};
    EXPECT_EQ(refusals(), (Texts{"M132", "M076", "M141", "M011", "M012", "M013", "M014", "M015", "M016",
                              "M142", "M020", "M021", "M022", "M024", "M085"}));
    EXPECT_FALSE(passes(P1_CheckData));
    EXPECT_EQ(shown(), messages({"M132"})) << "a store stops at the first";
}

TEST_F(FullCheck, AnyOfTheFilersNumbersAndAnyBusinessLineWillDo) {
    state.strFldPage1[45] = "";
    state.strFldPage1[0] = "1234567895";
    state.strFldPage1[27] = std::exchange(state.strFldPage1[23], "");
    EXPECT_TRUE(passes(P1_CheckData));
}

TEST_F(FullCheck, AnAccountantWhoseNumberBeginsWith2NeedsNoSurname) {
    state.strFldPage1[38] = "2101401234515";
    state.strFldPage1[41] = "";
    EXPECT_TRUE(passes(P1_CheckData));
}

TEST_F(FullCheck, AnOverpaidAmountAsksForTheRefundWish) {
    state.strFldPage1[30] = "0.00";
    EXPECT_TRUE(passes(P1_CheckData));
    state.strFldPage1[30] = "0.01";
    EXPECT_FALSE(passes(P1_CheckData));
    EXPECT_EQ(shown(), messages({"M522"}));
    state.intCashRefund = 2;
    EXPECT_TRUE(passes(P1_CheckData));
}

TEST_F(FullCheck, TheStateAuditOfficePassesWithoutAuditorDataAndLeavesBlanks) {
    FieldArray& p = state.strFldPage1;
    p[31] = "0994000160500";
    for (const std::size_t index : {32U, 33U, 34U, 35U, 46U}) {
        p[index].clear();
    }
    EXPECT_EQ(refusals(), Texts{});
    EXPECT_EQ(p[33], "") << "the list of refusals writes nothing";
    EXPECT_TRUE(passes(P1_CheckData));
    for (const std::size_t index : {32U, 33U, 34U, 35U, 46U}) {
        EXPECT_EQ(p[index], " ") << index;
    }
    EXPECT_TRUE(passes(P1_CheckData)) << "and again with the blanks";
}

TEST_F(FullCheck, TheStateAuditOfficeKeepsWhatItHas) {
    FieldArray& p = state.strFldPage1;
    p[31] = "0994000160500";
    EXPECT_TRUE(passes(P1_CheckData));
    EXPECT_EQ(p[33], "สมชาย");
    EXPECT_EQ(p[46], auditOffice);
}

TEST_F(FullCheck, ARefusalLeavesTheFocusWhereItIs) {
    frmLodgePage1& page = newReturn();
    page.txtSitename.setFocus();
    state.strFldPage1[47] = "";
    EXPECT_FALSE(passes(P1_CheckData));
    EXPECT_TRUE(page.txtSitename.hasFocus());
}

TEST_F(FullCheck, EveryRowNamesAControlOfThePage) {
    const frmLodgePage1& page = newReturn();
    for (const CheckRow& row : page1CheckRows()) {
        EXPECT_NE(page.find(row.focus), nullptr) << row.focus;
    }
}

} // namespace
} // namespace lodge
