// The list of everything in the way against the store itself: whatever the store stops at first, the list
// begins with.
#include "file/store_load.h"
#include "program/user.h"
#include "shell/main_frame.h"
#include "shell/page_table.h"
#include "shell/problem_list.h"
#include "shell/shell.h"
#include "shell/start_screen.h"
#include "state/lookup_tables.h"
#include "test_host.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

namespace lodge {
namespace {

constexpr Today today{
    std::chrono::year_month_day{std::chrono::year{2019}, std::chrono::month{5}, std::chrono::day{20}},
    Calendar::Christian};

/// The ordinary company of tests/data, just loaded: nothing stands in its way.
ReturnState soundReturn() {
    ReturnState state;
    fillLookupTables(state);
    const InnerFile inner =
        readInnerFile(LODGE_TEST_DATA "/returns/ordinary-company/01055360003132561100C.txt");
    EXPECT_EQ(loadReturnText(inner.bytes, state, 2019).status, ReadStatus::Loaded);
    beginLoadedReturn(state);
    return state;
}

/// What a person meets who presses "จัดเก็บ" on page 1 of this return, and again on page 2.
class CompleteStore {
  public:
    explicit CompleteStore(const ReturnState& state) {
        host_.folder = "/dev/null";
        shell_.start();
        program_.state = state;
        shell_.ShowPage1();
        program_.state.blnNeedPage2 = true;
        host_.shown.clear();
    }

    ReturnState& state() { return program_.state; }
    const Form& pageOnScreen() { return *program_.desk.find(findPage(program_.state.intPageCur)->form); }

    /// Presses the button once: the round through page 2.
    void goToPage2() {
        press();
        EXPECT_EQ(host_.shown.at(0).text, messageText("M153"));
        EXPECT_EQ(program_.state.intPageCur, page::tax);
        host_.shown.clear();
    }
    /// The first message; empty when the store dialog came up instead.
    std::string firstRefusal() {
        press();
        if (!host_.shown.empty() && host_.shown.front().text == messageText("M153")) {
            host_.shown.erase(host_.shown.begin());
            if (program_.state.intPageCur == page::tax) {
                host_.shown.clear(); // the automatic store has no folder
                press();
            }
        }
        EXPECT_EQ(host_.shown.empty(), program_.desk.find("frmLodgeDirec") != nullptr);
        return host_.shown.empty() ? std::string() : host_.shown.front().text;
    }

  private:
    void press() { User(program_.desk).click(program_.desk.find<MDILodge>()->cmdSave1); }

    TestHost host_;
    Program program_{host_};
    Shell shell_{program_};
};

std::string firstOf(const std::vector<Problem>& problems) {
    return problems.empty() ? std::string() : problems.front().refusal.text;
}

std::vector<std::string> codesOf(const std::vector<Problem>& problems) {
    std::vector<std::string> codes;
    for (const Problem& problem : problems)
        codes.push_back(problem.refusal.code);
    return codes;
}

/// A way to break a sound return so that one row refuses before all others.
struct Broken {
    const char* name;
    /// The message of the row.
    const char* message;
    void (*breaks)(ReturnState& state);
};

void PrintTo(const Broken& broken, std::ostream* out) { *out << broken.name; }

// --- Filers that other rows are about; they are sound, too ---

/// Investment promotion: certificate, business and one privilege, of which the first is the reduction.
void promote(ReturnState& state) {
    state.intInvestment = 1;
    state.ChkInvestmentFlag1 = 1;
    FieldArray& page2 = state.strFldPage2;
    page2[0] = "1234(2)/2560";
    page2[1] = "01/03/2560";
    page2[2] = "ซูเปอร์มาร์เก็ต";
    page2[3] = "471110";
}

/// A status whose only rate is (2.4).
void regionalOffice(ReturnState& state) {
    state.strFldPage1[12] = "0";
    state.DataCtrl_P1.IndcBusType = "10";
    state.DataCtrl_P1.BusIndex = {17};
    state.DataCtrl_P2.NewAtt1 = "(2.4)";
}

/// An international headquarters whose attachment agrees with the return: exempt and taxable income alike.
void headquarters(ReturnState& state) {
    state.intInvestment = 4;
    state.strFldPage1[12] = "0";
    state.DataCtrl_P1.IndcBusType = "15";
    state.DataCtrl_P1.BusIndex = {16};
    state.DataCtrl_P2.NewAtt1 = "(2.5)";
    state.blnIHQPage = true;
    state.strFldPage3_3[0] = "12000000.00";
    state.strFldPage3_3[23].clear(); // such a company has no item 6
    state.strFldPage4_6.fill({});
    HeadquartersRecord& attachment = state.modIHQ;
    attachment.LicenceConfm = "01/06/2558";
    attachment.LicenceStart = "01/07/2558";
    attachment.LicenceEnd = "30/06/2573";
    attachment.BoxA[0] = "12000000.00";
    attachment.BoxASum = "12000000.00";
    attachment.BoxB[0] = "12000000.00";
    attachment.BoxBSum = "12000000.00";
}

/// The filer declares no result but the receipts of 10,000,000.00 that item 3 lines 1, 2 and 5 have.
void receipts(ReturnState& state) {
    FieldArray& page2 = state.strFldPage2;
    page2[22] = "0";
    page2[24] = "1";
    page2[32] = "10000000.00";
    state.DataCtrl_P2.NewAtt1.clear();
    state.DataCtrl_P2.WorkIncome = {};
    state.DataCtrl_P2.WorkTax = {};
    state.strFldPage3_3[40] = "9000000.00";
    state.strFldPage3_3[43] = "1000000.00";
    state.strFldPage3_3[49] = "";
}

/// The rate (2.1) of small companies.
void smallCompany(ReturnState& state) { state.DataCtrl_P2.NewAtt1 = "(2.1)"; }

/// The privilege of option 0 to 3, for three years from the first day of 2560.
void privilege(ReturnState& state, std::size_t option) {
    promote(state);
    FieldArray& page2 = state.strFldPage2;
    page2[4 + option] = "1";
    page2[9 + option] = "3";
    page2[13 + option] = "01/01/2560";
    page2[17 + option] = "31/12/2562";
    if (option == 0) page2[38] = "0.00";
    if (option == 3) page2[8] = "ลดหย่อนพิเศษ";
}

void fillItem5(ReturnState& state, std::size_t total, const char* amount) {
    state.strFldPage4_5[total] = amount;
}

/// Both columns of item 3 reach line 21, so that its side box must state line 22.
void bothColumns(ReturnState& state) {
    state.strFldPage3_3[19] = "0.00";
    state.BoxAmount = "2200000.00";
    state.BoxProfit = true;
}

void period(ReturnState& state, std::size_t row, const char* from, const char* to) {
    state.strFldPage6_11[row] = from;
    state.strFldPage6_11[13 + row] = to;
}

// clang-format off
const Broken brokenRows[] = {
    // The gates.
    {"NoNumber", "M132", [](ReturnState& s) { s.FucChk.LastValidId.clear(); }},
    {"NoBusiness", "M085", [](ReturnState& s) { for (const std::size_t i : {23U, 24U, 25U, 26U, 27U, 28U}) s.strFldPage1[i].clear(); }},
    {"NoAuditReport", "M521", [](ReturnState& s) { s.intAuditStatus = 0; }},
    {"WorksheetWithoutIncome", "M527", [](ReturnState& s) { s.DataCtrl_P2.WorkIncome = {}; s.DataCtrl_P2.WorkTax = {}; }},
    {"ZoneRowWithoutIncome", "M527", [](ReturnState& s) { s.DataCtrl_P2.NewAtt2 = "(2.6)"; }},
    {"BankRowWithoutIncome", "M527", [](ReturnState& s) { s.strFldPage1[24] = "641910"; s.DataCtrl_P2.NewAtt4 = "1"; }},
    {"SmallCompanyRateWithTooMuchCapital", "M100", [](ReturnState& s) { regionalOffice(s); s.DataCtrl_P2.NewAtt1.clear(); s.strFldPage7_12[18] = "5000000.01"; }},
    {"SmallCompanyRateWithoutCapital", "M089", [](ReturnState& s) { regionalOffice(s); s.DataCtrl_P2.NewAtt1.clear(); s.strFldPage7_12[18].clear(); }},
    // Page 1.
    {"AuditorIsAccountant", "เลขบัตรประจำตัวประชาชนของผู้ตรวจสอบบัญชี ต้องไม่ซ้ำกับของผู้ทำบัญชี หน้าที่ 1",
        [](ReturnState& s) { s.strFldPage1[31] = s.strFldPage1[38]; }},
    {"NoFilingKind", "M076", [](ReturnState& s) { s.strFldPage1[7].clear(); }},
    {"AdditionalWithoutNumber", "M004", [](ReturnState& s) { s.strFldPage1[7] = "0"; s.strFldPage1[9] = "1"; s.strFldPage2[39] = "0.00"; }},
    {"NoAuditor", "M141", [](ReturnState& s) { s.strFldPage1[31].clear(); }},
    {"NoAuditorTitle", "M011", [](ReturnState& s) { s.strFldPage1[32] = "0"; }},
    {"NoAuditorName", "M012", [](ReturnState& s) { s.strFldPage1[33].clear(); }},
    {"NoAuditorSurname", "M013", [](ReturnState& s) { s.strFldPage1[34].clear(); }},
    {"NoAuditorRegistration", "M014", [](ReturnState& s) { s.strFldPage1[35].clear(); }},
    {"NoAuditOffice", "M015", [](ReturnState& s) { s.strFldPage1[46].clear(); }},
    {"NoReportDate", "M016", [](ReturnState& s) { s.strFldPage1[37].clear(); }},
    {"NoAccountant", "M142", [](ReturnState& s) { s.strFldPage1[38].clear(); }},
    {"NoAccountantTitle", "M020", [](ReturnState& s) { s.strFldPage1[39] = "0"; }},
    {"NoAccountantName", "M021", [](ReturnState& s) { s.strFldPage1[40].clear(); }},
    {"NoAccountantSurname", "M022", [](ReturnState& s) { s.strFldPage1[41].clear(); }},
    {"NoAccountingOffice", "M024", [](ReturnState& s) { s.strFldPage1[47].clear(); }},
    // Page 2.
    {"AdditionalWithoutEarlierTax", "กรุณากรอก ภาษีที่ชำระแล้วตามแบบ ก.ข.ค. 77 (กรณียื่นเพิ่มเติม) (รายการที่ 2 ข้อ 3)",
        [](ReturnState& s) { s.strFldPage1[7] = "0"; s.strFldPage1[9] = "1"; s.strFldPage1[10] = "01"; }},
    {"NoCertificate", "M025", [](ReturnState& s) { privilege(s, 1); s.strFldPage2[0].clear(); }},
    {"NoCertificateDate", "M080", [](ReturnState& s) { privilege(s, 1); s.strFldPage2[1].clear(); }},
    {"NoPromotedBusiness", "M028", [](ReturnState& s) { privilege(s, 1); s.strFldPage2[3].clear(); }},
    {"NoPrivilege", "M029", promote},
    {"ReductionWithoutYears", "M030", [](ReturnState& s) { privilege(s, 0); s.strFldPage2[9].clear(); }},
    {"ReductionWithoutStart", "M031", [](ReturnState& s) { privilege(s, 0); s.strFldPage2[13].clear(); }},
    {"ReductionWithoutEnd", "M034", [](ReturnState& s) { privilege(s, 0); s.strFldPage2[17].clear(); }},
    {"FullExemptionWithoutYears", "M030", [](ReturnState& s) { privilege(s, 1); s.strFldPage2[10].clear(); }},
    {"FullExemptionWithoutStart", "M031", [](ReturnState& s) { privilege(s, 1); s.strFldPage2[14].clear(); }},
    {"FullExemptionWithoutEnd", "M034", [](ReturnState& s) { privilege(s, 1); s.strFldPage2[18].clear(); }},
    {"PartExemptionWithoutYears", "M030", [](ReturnState& s) { privilege(s, 2); s.strFldPage2[11].clear(); }},
    {"PartExemptionWithoutStart", "M031", [](ReturnState& s) { privilege(s, 2); s.strFldPage2[15].clear(); }},
    {"PartExemptionWithoutEnd", "M034", [](ReturnState& s) { privilege(s, 2); s.strFldPage2[19].clear(); }},
    {"OtherPrivilegeWithoutName", "M036", [](ReturnState& s) { privilege(s, 3); s.strFldPage2[8].clear(); }},
    {"OtherPrivilegeWithoutYears", "M030", [](ReturnState& s) { privilege(s, 3); s.strFldPage2[12].clear(); }},
    {"OtherPrivilegeWithoutStart", "M031", [](ReturnState& s) { privilege(s, 3); s.strFldPage2[16].clear(); }},
    {"OtherPrivilegeWithoutEnd", "M034", [](ReturnState& s) { privilege(s, 3); s.strFldPage2[20].clear(); }},
    {"SideBoxMissing", "M529", [](ReturnState& s) { bothColumns(s); s.BoxAmount.clear(); }},
    {"SideBoxDiffers", "M529", [](ReturnState& s) { bothColumns(s); s.BoxAmount = "2200000.01"; }},
    {"SideBoxWithoutTick", "M530", [](ReturnState& s) { bothColumns(s); s.BoxProfit = false; }},
    {"ReductionWithoutItsTax", "M088", [](ReturnState& s) { privilege(s, 0); s.strFldPage2[38].clear(); }},
    {"NoResultTicked", "M037", [](ReturnState& s) { s.strFldPage2[22] = "0"; s.DataCtrl_P2.NewAtt1.clear(); }},
    {"SmallCompanyWithLargeSales", "M156", [](ReturnState& s) { smallCompany(s); s.strFldPage3_3[20] = "30000000.01"; }},
    {"SmallCompanyWithLargeCapital", "M155", [](ReturnState& s) { smallCompany(s); s.strFldPage7_12[18] = "5000000.01"; }},
    {"ProfitOnPage2Alone", "M302", [](ReturnState& s) { s.strFldPage3_3[65] = "0"; }},
    {"LossOfItem3Alone", "M039", [](ReturnState& s) { s.strFldPage3_3[66] = "1"; }},
    {"NoResult", "M041", [](ReturnState& s) {
        s.strFldPage2[32].clear(); s.DataCtrl_P2.NewAtt1.clear(); s.DataCtrl_P2.WorkIncome = {}; s.DataCtrl_P2.WorkTax = {}; }},
    {"ReceiptsDiffer", "M087", [](ReturnState& s) { receipts(s); s.strFldPage3_3[43] = "1000000.01"; }},
    {"ResultDiffers", "M042", [](ReturnState& s) { s.strFldPage3_3[60] = "2200000.01"; }},
    // Item 3 with its schedules.
    {"Item4Column2", "M045", [](ReturnState& s) { s.strFldPage3_4[17] = "7000000.01"; }},
    {"Item4Column1", "M045", [](ReturnState& s) { s.strFldPage3_4[8] = "0.01"; }},
    {"Item6Column1", "M046", [](ReturnState& s) { s.strFldPage4_6[6] = "0.01"; }},
    {"Item6Column2", "M046", [](ReturnState& s) { s.strFldPage4_6[13] = "100000.01"; }},
    {"Item7Column1", "M047", [](ReturnState& s) { s.strFldPage4_7[4] = "0.01"; }},
    {"Item7Column2", "M047", [](ReturnState& s) { s.strFldPage4_7[9] = "50000.01"; }},
    {"Item8Column1", "M048", [](ReturnState& s) { s.strFldPage5_8[23] = "0.01"; }},
    {"Item8Column2", "M048", [](ReturnState& s) { s.strFldPage5_8[47] = "3000000.01"; }},
    {"Item9Column1", "M049", [](ReturnState& s) { s.strFldPage5_9[5] = "0.01"; }},
    {"Item9Column2", "M049", [](ReturnState& s) { s.strFldPage5_9[11] = "150000.01"; }},
    {"Item10Column1", "M082", [](ReturnState& s) { s.strFldPage6_10[11] = "0.01"; }},
    {"Item10Column2", "M082", [](ReturnState& s) { s.strFldPage6_10[23] = "0.01"; }},
    {"Item11", "M050", [](ReturnState& s) { s.strFldPage6_11[68] = "0.01"; }},
    {"Item5Column1", "M051", [](ReturnState& s) { fillItem5(s, 16, "0.01"); }},
    {"Item5Column2", "M051", [](ReturnState& s) { fillItem5(s, 33, "0.01"); }},
    {"Item5BelowZero", "M054", [](ReturnState& s) { fillItem5(s, 33, "-1.00"); s.strFldPage3_4[11] = "-1.00"; }},
    {"Item5SumBelowZero", "M054", [](ReturnState& s) { fillItem5(s, 50, "-1.00"); }},
    {"Item5ExemptBelowZero", "M054", [](ReturnState& s) { s.intInvestment = 5; fillItem5(s, 16, "-1.00"); s.strFldPage3_4[2] = "-1.00"; }},
    {"Item8WithItem9", "M122", [](ReturnState& s) { s.FucChk.TmpSum8_15to25 += 0.01; }},
    // The attachment of a headquarters.
    {"NoApproval", "M501", [](ReturnState& s) { headquarters(s); s.modIHQ.LicenceConfm.clear(); }},
    {"NoPrivilegeStart", "M501", [](ReturnState& s) { headquarters(s); s.modIHQ.LicenceStart.clear(); }},
    {"NoPrivilegeEnd", "M501", [](ReturnState& s) { headquarters(s); s.modIHQ.LicenceEnd.clear(); }},
    {"ExemptIncomeDiffers", "M502", [](ReturnState& s) { headquarters(s); s.strFldPage3_3[0] = "11999999.99"; }},
    {"TaxableIncomeAboveExempt", "M503", [](ReturnState& s) { headquarters(s); s.modIHQ.BoxBSum = "12000000.01"; s.strFldPage3_3[20] = "12000000.01"; }},
    {"TaxableIncomeDiffers", "M504", [](ReturnState& s) { headquarters(s); s.strFldPage3_3[20] = "11999999.99"; }},
    {"ExemptLossNotStated", "M511", [](ReturnState& s) { headquarters(s); s.modIHQ.BoxMoney[1] = "100.00"; }},
    {"TaxableLossNotStated", "M512", [](ReturnState& s) { headquarters(s); s.modIHQ.BoxMoney[3] = "100.00"; }},
    {"ExemptLossDiffers", "M505", [](ReturnState& s) { headquarters(s); s.modIHQ.BoxG1 = "100.00"; }},
    {"TaxableLossDiffers", "M506", [](ReturnState& s) { headquarters(s); s.modIHQ.BoxG2 = "100.00"; }},
    {"Item6InUse", "M507", [](ReturnState& s) { headquarters(s); s.strFldPage4_6[20] = "0.00"; }},
    {"Item11InUse", "M508", [](ReturnState& s) { headquarters(s); s.strFldPage6_11[68] = "0.00"; }},
    {"EarlierPeriodWithoutEnd", "M534 : กรุณาบันทึกรอบระยะเวลาบัญชี (รายการที่ 2 ใบแนบฯ กิจการ IHQ)",
        [](ReturnState& s) { headquarters(s); s.modIHQ.BoxDateFrom[0] = "01/01/2560"; s.modIHQ.BoxMoney[0] = "0.00"; s.modIHQ.BoxG1 = "0.00"; }},
    {"EarlierPeriodWithoutResult", "M534 : กรุณาบันทึกจำนวนเงินกำไรสุทธิหรือขาดทุนสุทธิ (รายการที่ 2 ใบแนบฯ กิจการ IHQ)",
        [](ReturnState& s) { headquarters(s); s.modIHQ.BoxDateFrom[0] = "01/01/2560"; s.modIHQ.BoxDateTo[0] = "31/12/2560"; }},
    // Item 11.
    {"PeriodWithoutEnd", "M102", [](ReturnState& s) { period(s, 7, "01/01/2560", ""); }},
    {"ExemptPeriodWithoutResult", "M118", [](ReturnState& s) { period(s, 7, "01/01/2560", "31/12/2560"); }},
    {"TaxablePeriodWithoutResult", "M118", [](ReturnState& s) { period(s, 12, "01/01/2560", "31/12/2560"); }},
    {"PeriodsApart", "M541", [](ReturnState& s) {
        s.intItem11Count = 2;
        s.strItem11Start[0] = "01/01/2560"; s.strItem11End[0] = "31/12/2560";
        s.strItem11Start[1] = "01/01/2559"; s.strItem11End[1] = "30/12/2559"; }},
    // Item 12.
    {"BalanceSheet", "M084", [](ReturnState& s) { s.strFldPage7_12[22] = "3000000.01"; }},
    {"NoBalanceSheet", "M105", [](ReturnState& s) { s.strFldPage7_12[9].clear(); s.strFldPage7_12[22].clear(); }},
    // The notification form.
    {"Question1Open", "M057", [](ReturnState& s) { s.strFldPage8[6].clear(); s.strFldPage8[8].clear(); }},
    {"Question1WithoutReason", "M058", [](ReturnState& s) { s.strFldPage8[6] = "1"; s.strFldPage8[7].clear(); s.strFldPage8[8].clear(); }},
    {"Question2Open", "M059", [](ReturnState& s) { s.strFldPage8[9].clear(); s.strFldPage8[11].clear(); }},
    {"Question2WithoutReason", "M060", [](ReturnState& s) { s.strFldPage8[9] = "1"; s.strFldPage8[10].clear(); s.strFldPage8[11].clear(); }},
    {"Question3Open", "M061", [](ReturnState& s) { s.strFldPage8[12].clear(); s.strFldPage8[14].clear(); }},
    {"Question3WithoutReason", "M062", [](ReturnState& s) { s.strFldPage8[12] = "1"; s.strFldPage8[13].clear(); s.strFldPage8[14].clear(); }},
    {"Question4Open", "M063", [](ReturnState& s) { s.strFldPage8[15].clear(); s.strFldPage8[17].clear(); }},
    {"Question4WithoutReason", "M064", [](ReturnState& s) { s.strFldPage8[15] = "1"; s.strFldPage8[16].clear(); s.strFldPage8[17].clear(); }},
    {"Question5Open", "M065", [](ReturnState& s) { s.strFldPage8[18].clear(); s.strFldPage8[19].clear(); }},
    {"Question5WithoutReason", "M066", [](ReturnState& s) { s.strFldPage8[18].clear(); s.strFldPage8[19] = "1"; s.strFldPage8[20].clear(); }},
    {"NoStatementDate", "M067", [](ReturnState& s) { s.strFldPage8[23].clear(); }},
};
// clang-format on

class EveryRow : public testing::TestWithParam<Broken> {};

INSTANTIATE_TEST_SUITE_P(ProblemList, EveryRow, testing::ValuesIn(brokenRows),
    [](const testing::TestParamInfo<Broken>& info) { return info.param.name; });

TEST_P(EveryRow, StopsTheStoreFirstAndBeginsTheList) {
    ReturnState state = soundReturn();
    GetParam().breaks(state);
    const std::string wanted = messageText(GetParam().message);
    EXPECT_EQ(CompleteStore(state).firstRefusal(), wanted);
    EXPECT_EQ(firstOf(listProblems(state, today)), wanted);
}

/// The filers of the table before one thing is broken.
// clang-format off
const Broken soundFilers[] = {
    {"OrdinaryCompany", "", [](ReturnState&) {}},
    {"PromotedWithReduction", "", [](ReturnState& s) { privilege(s, 0); }},
    {"PromotedWithFullExemption", "", [](ReturnState& s) { privilege(s, 1); }},
    {"PromotedWithPartExemption", "", [](ReturnState& s) { privilege(s, 2); }},
    {"PromotedWithOtherPrivilege", "", [](ReturnState& s) { privilege(s, 3); }},
    {"BothColumns", "", bothColumns},
    {"RegionalOffice", "", regionalOffice},
    {"Headquarters", "", headquarters},
    {"SmallCompany", "", smallCompany},
    {"Receipts", "", receipts},
};
// clang-format on

class SoundFiler : public testing::TestWithParam<Broken> {};

INSTANTIATE_TEST_SUITE_P(ProblemList, SoundFiler, testing::ValuesIn(soundFilers),
    [](const testing::TestParamInfo<Broken>& info) { return info.param.name; });

TEST_P(SoundFiler, IsStoredAndHasAnEmptyList) {
    ReturnState state = soundReturn();
    GetParam().breaks(state);
    EXPECT_EQ(CompleteStore(state).firstRefusal(), "");
    EXPECT_EQ(firstOf(listProblems(state, today)), "");
}

TEST(ProblemList, AZoneWithoutALegalFormStopsTheStoreOnPage1) {
    CompleteStore store(soundReturn());
    store.goToPage2();
    // Page 1 with box 11 alone; its light check would have asked earlier.
    ReturnState& state = store.state();
    std::fill(&state.strFldPage1[12], &state.strFldPage1[23], "0");
    state.strFldPage1[44] = "1";
    state.DataCtrl_P1.BusIndex = {11};
    state.DataCtrl_P1.IndcBusType.clear();
    EXPECT_EQ(firstOf(ProblemLister(today).list(state, store.pageOnScreen())), messageText("M144"));
    EXPECT_EQ(store.firstRefusal(), messageText("M144"));
}

TEST(ProblemList, AReturnWithoutAStatusIsRefusedByTheGate) {
    ReturnState state = soundReturn();
    std::fill(&state.strFldPage1[12], &state.strFldPage1[23], "0");
    state.DataCtrl_P1.BusIndex.clear();
    state.DataCtrl_P1.IndcBusType.clear();
    EXPECT_EQ(CompleteStore(state).firstRefusal(), messageText("M006"));
    EXPECT_EQ(firstOf(listProblems(state, today)), messageText("M006"));
}

TEST(ProblemList, ListsEverythingInTheOrderOfTheStore) {
    ReturnState state = soundReturn();
    state.strFldPage8[23].clear();
    state.strFldPage7_12[22] = "3000000.01";
    state.strFldPage4_7[9] = "37500.00";
    state.strFldPage1[47].clear();
    state.strFldPage1[37].clear();
    state.intAuditStatus = 0;
    const std::vector<std::string> wanted = {"M521", "M016", "M024", "M047", "M084", "M067"};
    EXPECT_EQ(codesOf(listProblems(state, today)), wanted);
}

TEST(ProblemList, SaysWhereAProblemIsMended) {
    ReturnState state = soundReturn();
    state.strFldPage4_7[9] = "37500.00";
    const std::vector<Problem> problems = listProblems(state, today);
    ASSERT_EQ(problems.size(), 1U);
    EXPECT_EQ(problems[0].page, page::item3);
    EXPECT_EQ(problems[0].pageName, "รายการที่ 3");
    EXPECT_EQ(problems[0].refusal.form, "frmLodgePage3_3");
    EXPECT_EQ(problems[0].refusal.control, "txtMoney32(5)");
}

TEST(ProblemList, ATieHasBothSides) {
    ReturnState state = soundReturn();
    state.strFldPage4_7[9] = "37500.00"; // item 3 line 6 says 50,000.00
    state.FucChk.TmpSum8_15to25 = 100.0; // item 9 line 5 is empty
    const std::vector<Problem> problems = listProblems(state, today);
    ASSERT_EQ(codesOf(problems), (std::vector<std::string>{"M047", "M122"}));
    ASSERT_TRUE(problems[0].refusal.sides && problems[1].refusal.sides);
    EXPECT_EQ(problems[0].refusal.sides->here, 50000.0);
    EXPECT_EQ(problems[0].refusal.sides->there, 37500.0);
    EXPECT_EQ(problems[1].refusal.sides->here, 0.0);
    EXPECT_EQ(problems[1].refusal.sides->there, 100.0);
}

TEST(ProblemList, WhatIsAskedAtTwoStepsIsListedOnce) {
    ReturnState state = soundReturn();
    for (const std::size_t entry : {23U, 24U, 25U, 26U, 27U, 28U})
        state.strFldPage1[entry].clear();
    EXPECT_EQ(codesOf(listProblems(state, today)), std::vector<std::string>{"M085"});
}

TEST(ProblemList, EveryProblemLeadsToAFieldOfItsPage) {
    TestHost host;
    Program program(host);
    const Shell shell(program);
    ReturnState nothing;
    fillLookupTables(nothing);
    nothing.intNewReturn = 3;
    std::vector<Problem> problems = listProblems(nothing, today);
    EXPECT_GT(problems.size(), 20U);
    for (const Broken& broken : brokenRows) {
        ReturnState state = soundReturn();
        broken.breaks(state);
        std::ranges::copy(listProblems(state, today), std::back_inserter(problems));
    }
    for (const Problem& problem : problems) {
        const PageRow* row = findPage(problem.page);
        ASSERT_NE(row, nullptr) << problem.refusal.text;
        EXPECT_EQ(problem.refusal.form, row->form);
        EXPECT_NE(program.desk.loadedOrDesign(row->form).find(problem.refusal.control), nullptr)
            << problem.refusal.form << '.' << problem.refusal.control << ": " << problem.refusal.text;
    }
}

TEST(ProblemList, ListingTwiceSaysTheSame) {
    ReturnState state = soundReturn();
    state.strFldPage4_7[9] = "37500.00";
    ProblemLister lister(today);
    const std::vector<std::string> once = codesOf(lister.list(state));
    EXPECT_EQ(codesOf(lister.list(state)), once);
    EXPECT_EQ(codesOf(lister.list(soundReturn())), std::vector<std::string>());
    EXPECT_EQ(codesOf(lister.list(state)), once);
}

// --- The page on screen ---

class PageOnScreen : public testing::TestWithParam<std::int16_t> {};

INSTANTIATE_TEST_SUITE_P(ProblemList, PageOnScreen, testing::ValuesIn([] {
    std::vector<std::int16_t> codes;
    for (const PageRow& row : pageTable())
        codes.push_back(row.code);
    return codes;
}()));

TEST_P(PageOnScreen, GivesTheCopyWhatItsOwnStoreWouldKeep) {
    TestHost host;
    Program program(host);
    Shell shell(program);
    shell.start();
    program.state = soundReturn();
    shell.ShowPage1();
    Navigation navigation(program);
    navigation.ShowPage(GetParam());
    const Form& shown = *program.desk.find(findPage(GetParam())->form);
    ProblemLister lister(today);
    EXPECT_EQ(codesOf(lister.list(program.state, shown)), std::vector<std::string>());

    // The same through the page's own procedures in the program itself.
    shell.StorePageOnScreen();
    navigation.ShowPage(page::first);
    shell.StorePageOnScreen();
    const ReturnState& mine = program.state;
    const ReturnState& copy = lister.stored();
    EXPECT_EQ(copy.strFldPage3_3, mine.strFldPage3_3);
    EXPECT_EQ(copy.strFldPage3_4, mine.strFldPage3_4);
    EXPECT_EQ(copy.strFldPage4_5, mine.strFldPage4_5);
    EXPECT_EQ(copy.strFldPage4_6, mine.strFldPage4_6);
    EXPECT_EQ(copy.strFldPage4_7, mine.strFldPage4_7);
    EXPECT_EQ(copy.strFldPage5_8, mine.strFldPage5_8);
    EXPECT_EQ(copy.strFldPage5_9, mine.strFldPage5_9);
    EXPECT_EQ(copy.strFldPage6_10, mine.strFldPage6_10);
    EXPECT_EQ(copy.strFldPage6_11, mine.strFldPage6_11);
    EXPECT_EQ(copy.strFldPage7_12, mine.strFldPage7_12);
    EXPECT_EQ(copy.strFldPage8, mine.strFldPage8);
}

TEST(ProblemList, SeesWhatIsTypedAndNotYetStored) {
    TestHost host;
    Program program(host);
    Shell shell(program);
    User user(program.desk);
    shell.start();
    program.state = soundReturn();
    shell.ShowPage1();
    Navigation(program).ShowPage(page::item7);
    host.shown.clear();
    const Form& item7 = *program.desk.find("frmLodgePage4_7");
    user.type(*item7.find("txtMoney72(0)"), "60000");
    const std::string stored = program.state.strFldPage4_7[9];
    ProblemLister lister(today);
    EXPECT_EQ(codesOf(lister.list(program.state, item7)), std::vector<std::string>{"M047"});
    EXPECT_EQ(program.state.strFldPage4_7[9], stored) << "the return itself is left alone";
    EXPECT_TRUE(host.shown.empty());
}

TEST(ProblemList, BreaksOfALineBecomeOneBlank) {
    EXPECT_EQ(onOneLine("หนึ่ง\r\nสอง"), "หนึ่ง สอง");
    EXPECT_EQ(onOneLine("หนึ่ง \r สอง\r"), "หนึ่ง สอง");
    EXPECT_EQ(onOneLine("หนึ่ง  สอง "), "หนึ่ง  สอง ");
    EXPECT_EQ(onOneLine(""), "");
}

} // namespace
} // namespace lodge
