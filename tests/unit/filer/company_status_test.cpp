#include "filer_fixture.h"

namespace lodge {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Texts = std::vector<std::string>;

// --- One box alone ---

/// What one box leaves behind when it is the only one ticked.
struct OneBox {
    int box;
    Texts rateList;
    int statusB;
    std::string busCode;
    std::string busTypeAfterSecondTick;
    std::string list1;
    std::string rate; // strFldPage2[44]
    int statusIndex;
    bool exemptColumnAlone;
};

// clang-format off
const std::vector<OneBox> oneBoxes = {
    //box rate list          B   code  type  List1       rate 44  index exempt
    {0,  {"(1)", "(2.1)"},   1,  "1",  "1",  "(1),(2.1)", "",      0,  false},
    {1,  {"(1.1)"},          0,  "2",  "",   "(1.1)",     "(1.1)", 1,  false},
    {2,  {"(1.1)"},          0,  "3",  "",   "(1.1)",     "(1.1)", 2,  false},
    {3,  {"(1)"},            0,  "4",  "4",  "(1)",       "(1.1)", 3,  false},
    {4,  {"(1)"},            0,  "5",  "5",  "(1)",       "(1.1)", 4,  false},
    {5,  {"(1)"},            0,  "6",  "6",  "(1)",       "(1.1)", 5,  false},
    {6,  {"(1)"},            0,  "7",  "7",  "(1)",       "(1.1)", 6,  false},
    {7,  {},                 -1, "",   "",   "",          "",      7,  false},
    {8,  {"-"},              0,  "9",  "9",  "-",         "",      8,  true},
    {9,  {},                 -1, "",   "",   "",          "(1.3)", 9,  false},
    {10, {"(2.2)"},          0,  "11", "11", "(2.2)",     "(1.4)", 10, false},
    {11, {"(2.6)"},          0,  "",   "",   "(2.6)",     "(2.6)", -1, false},
    {12, {"-"},              0,  "12", "",   "-",         "",      12, false},
    {13, {"(2.3)"},          0,  "13", "13", "(2.3)",     "(1.6)", 13, false},
    {14, {"(2.7)"},          0,  "20", "20", "(2.7)",     "(2.7)", 14, false},
    {15, {"-"},              0,  "14", "14", "-",         "-",     15, true},
    {16, {"(2.5)"},          0,  "15", "15", "(2.5)",     "(2.5)", 16, false},
    {17, {"(2.4)"},          0,  "10", "10", "(2.4)",     "(2.4)", 17, false},
    {18, {"-"},              0,  "0",  "",   "-",         "-",     18, false},
    {19, {"-"},              0,  "16", "16", "-",         "-",     19, true},
    {20, {"-"},              0,  "17", "17", "-",         "-",     20, true},
    {21, {"(2.8)"},          0,  "18", "18", "(2.8)",     "(2.8)", 21, false},
    {22, {"-"},              0,  "19", "19", "-",         "-",     22, true},
    {23, {"-"},              0,  "21", "21", "-",         "-",     23, true},
};
// clang-format on

class EachStatusBox : public FilerTest, public testing::WithParamInterface<OneBox> {};

TEST_P(EachStatusBox, LeavesItsRowOfTheTable) {
    const OneBox& wanted = GetParam();
    frmLodgePage1& page = newReturn();
    const CompanyStatusRecord& record = state.DataCtrl_P1;

    page.chkStatus[wanted.box].setValue(true);
    EXPECT_EQ(record.RateList, wanted.rateList);
    EXPECT_EQ(record.StatusA, 1);
    EXPECT_EQ(record.StatusB, wanted.statusB);
    EXPECT_EQ(record.IndcBusCode, wanted.busCode);
    EXPECT_EQ(record.IndcBusType, "") << "the first tick only counts";
    EXPECT_EQ(record.StatusBusy, wanted.box == 11 ? 0 : 1);
    EXPECT_EQ(page.List1.reading(), wanted.list1);
    EXPECT_EQ(page.List2.reading(), std::to_string(wanted.box));
    EXPECT_EQ(state.strFldPage2[44], wanted.rate);
    EXPECT_EQ(state.intStatusIndex, wanted.statusIndex);
    EXPECT_EQ(page.chkTaxType[0].value(), wanted.exemptColumnAlone);
    EXPECT_FALSE(page.chkTaxType[1].value());
    EXPECT_EQ(page.chkTaxType[0].enabled(), !wanted.exemptColumnAlone);
    EXPECT_EQ(page.chkTaxType[1].enabled(), !wanted.exemptColumnAlone);
    EXPECT_EQ(state.intP1Box1, wanted.exemptColumnAlone ? 1 : 0);
    EXPECT_EQ(state.intP1Box2, 0);
    EXPECT_TRUE(state.blnNeedPage2);

    page.chkStatus[wanted.box].setValue(false);
    EXPECT_EQ(page.List1.reading(), "");
    EXPECT_EQ(page.List2.reading(), "");
    EXPECT_THAT(record.RateList, IsEmpty());
    EXPECT_EQ(record.StatusA, 0);
    EXPECT_EQ(record.StatusB, -1);
    EXPECT_EQ(state.intStatusIndex, -1);
    EXPECT_TRUE(page.chkTaxType[0].enabled() && page.chkTaxType[1].enabled());
    EXPECT_FALSE(page.chkTaxType[0].value() || page.chkTaxType[1].value());
    EXPECT_EQ(state.intP1Box1, 0);

    page.chkStatus[wanted.box].setValue(true);
    EXPECT_EQ(record.IndcBusType, wanted.busTypeAfterSecondTick);
}

INSTANTIATE_TEST_SUITE_P(All, EachStatusBox, testing::ValuesIn(oneBoxes),
    [](const auto& row) { return "Box" + std::to_string(row.param.box); });

// --- Exclusion ---

class CompanyStatusTest : public FilerTest {
  protected:
    static Texts entries(const ListBox& list) { return list.items(); }
};

TEST_F(CompanyStatusTest, MovingFromOneLegalFormToAnotherTakesOnlyTheOldBoxesOwnCodesAway) {
    frmLodgePage1& page = newReturn();
    user.click(page.chkStatus[0]);
    user.click(page.chkStatus[3]);
    EXPECT_FALSE(page.chkStatus[0].value());
    EXPECT_THAT(entries(page.List1), ElementsAre("(1)"));
    EXPECT_THAT(entries(page.List2), ElementsAre("3"));
    EXPECT_THAT(state.DataCtrl_P1.RateList, ElementsAre("(1)"));
    EXPECT_EQ(state.DataCtrl_P1.StatusA, 1);
    EXPECT_EQ(state.intStatusIndex, 3);
}

TEST_F(CompanyStatusTest, TheFirstTickLeavesTheStatusNumberAndTheSecondSetsIt) {
    frmLodgePage1& page = newReturn();
    state.DataCtrl_P1.IndcBusType = "7";
    user.click(page.chkStatus[0]);
    EXPECT_EQ(state.DataCtrl_P1.IndcBusType, "7");
    EXPECT_EQ(state.DataCtrl_P1.StatusBusy, 1);
    user.click(page.chkStatus[3]);
    EXPECT_EQ(state.DataCtrl_P1.IndcBusType, "4");
    EXPECT_EQ(state.DataCtrl_P1.StatusBusy, 1);
}

TEST_F(CompanyStatusTest, AReturnWithOneSingleTickGetsItsNumberWhenPage1IsShownAgain) {
    frmLodgePage1& page = newReturn();
    user.click(page.chkStatus[0]);
    EXPECT_EQ(state.DataCtrl_P1.IndcBusType, "");
    frmLodgePage1& again = storeAndShowAgain();
    EXPECT_EQ(state.DataCtrl_P1.IndcBusType, "1");
    EXPECT_TRUE(again.chkStatus[0].value());
    EXPECT_EQ(state.intStatusIndex, 0);
}

TEST_F(CompanyStatusTest, ClearMakesTheNextTickTheFirstAgain) {
    frmLodgePage1& page = newReturn();
    user.click(page.chkStatus[0]);
    user.click(page.chkStatus[3]);
    state.DataCtrl_P1.Clear();
    user.click(page.chkStatus[4]);
    EXPECT_EQ(state.DataCtrl_P1.IndcBusType, "");
}

TEST_F(CompanyStatusTest, AllExcludingBoxesClearOneAnother) {
    frmLodgePage1& page = newReturn();
    for (const int box : statusSet::others) {
        page.chkStatus[box].setValue(true);
        EXPECT_EQ(page.status.tickedCount(), 1) << "box " << box;
        EXPECT_EQ(entries(page.List2), Texts{std::to_string(box)});
    }
}

TEST_F(CompanyStatusTest, MoreThanOneCodeKeepsARateThatIsAmongThem) {
    frmLodgePage1& page = newReturn();
    state.strFldPage2[44] = "(2.1)";
    user.click(page.chkStatus[0]);
    EXPECT_EQ(state.strFldPage2[44], "(2.1)");
    user.click(page.chkStatus[0]);
    state.strFldPage2[44] = "2.1";
    user.click(page.chkStatus[0]);
    EXPECT_EQ(state.strFldPage2[44], "");
}

// --- Box 11 ---

TEST_F(CompanyStatusTest, Box11StandsOpenOnlyUnderALegalForm) {
    frmLodgePage1& page = newReturn();
    EXPECT_FALSE(page.chkStatus[11].enabled());
    user.click(page.chkStatus[0]);
    EXPECT_TRUE(page.chkStatus[11].enabled());
    user.click(page.chkStatus[0]);
    EXPECT_FALSE(page.chkStatus[11].enabled());
}

TEST_F(CompanyStatusTest, Box11StaysThroughAMoveToAnotherLegalForm) {
    frmLodgePage1& page = newReturn();
    user.click(page.chkStatus[0]);
    user.click(page.chkStatus[11]);
    EXPECT_TRUE(state.blnStatus11Kept);
    user.click(page.chkStatus[3]);
    EXPECT_TRUE(page.chkStatus[11].value());
    EXPECT_TRUE(page.chkStatus[11].enabled());
    EXPECT_TRUE(state.blnStatus11Kept);
    EXPECT_THAT(entries(page.List1), ElementsAre("(2.6)", "(1)"));
    EXPECT_THAT(entries(page.List2), ElementsAre("11", "3"));
    EXPECT_THAT(state.DataCtrl_P1.RateList, ElementsAre("(2.6)", "(1)"));
    EXPECT_EQ(state.DataCtrl_P1.StatusA, 2);
    EXPECT_EQ(state.intStatusIndex, 3);
}

TEST_F(CompanyStatusTest, Box11StaysTickedUnderBox13ButIsNoLongerRemembered) {
    frmLodgePage1& page = newReturn();
    user.click(page.chkStatus[0]);
    user.click(page.chkStatus[11]);
    user.click(page.chkStatus[13]);
    EXPECT_TRUE(page.chkStatus[11].value());
    EXPECT_FALSE(page.chkStatus[0].value());
    EXPECT_FALSE(state.blnStatus11Kept);
    EXPECT_EQ(state.DataCtrl_P1.IndcBusType, "13");
    page.chkStatus[11].setValue(false);
    user.click(page.chkStatus[0]);
    EXPECT_FALSE(page.chkStatus[11].value()) << "moving back does not tick it again";
}

TEST_F(CompanyStatusTest, ARememberedBox11ComesBackWithALegalForm) {
    frmLodgePage1& page = newReturn();
    state.blnStatus11Kept = true;
    user.click(page.chkStatus[4]);
    EXPECT_TRUE(page.chkStatus[11].value());
    EXPECT_THAT(entries(page.List2), ElementsAre("11", "4"));
}

TEST_F(CompanyStatusTest, Box11NeitherClearsALegalFormNorIsClearedByOne) {
    frmLodgePage1& page = newReturn();
    user.click(page.chkStatus[0]);
    user.click(page.chkStatus[11]);
    EXPECT_TRUE(page.chkStatus[0].value());
    EXPECT_EQ(state.intStatusIndex, 0) << "box 11 is no status of its own";
    EXPECT_EQ(state.DataCtrl_P1.IndcBusCode, "1");
    EXPECT_EQ(state.DataCtrl_P1.StatusA, 2);
}

TEST_F(CompanyStatusTest, ThePersonsOwnUntickOfTheLegalFormClearsAndClosesBox11) {
    frmLodgePage1& page = newReturn();
    user.click(page.chkStatus[0]);
    user.click(page.chkStatus[11]);
    user.click(page.chkStatus[0]);
    EXPECT_FALSE(page.chkStatus[11].value());
    EXPECT_FALSE(page.chkStatus[11].enabled());
    EXPECT_FALSE(state.blnStatus11Kept);
    EXPECT_EQ(page.List1.count(), 0);
}

TEST_F(CompanyStatusTest, UntickingBox11IsForgotten) {
    frmLodgePage1& page = newReturn();
    user.click(page.chkStatus[0]);
    user.click(page.chkStatus[11]);
    user.click(page.chkStatus[11]);
    EXPECT_FALSE(state.blnStatus11Kept);
    user.click(page.chkStatus[3]);
    EXPECT_FALSE(page.chkStatus[11].value());
}

TEST_F(CompanyStatusTest, TheNumberOfBox11IsNeverAStatusNumber) {
    frmLodgePage1& page = newReturn();
    user.click(page.chkStatus[0]);
    user.click(page.chkStatus[11]);
    user.click(page.chkStatus[14]); // behind box 11 in the search
    EXPECT_EQ(state.DataCtrl_P1.IndcBusType, "20");
}

TEST_F(CompanyStatusTest, CodesWithoutASeamOfBracketsStayOneText) {
    frmLodgePage1& page = newReturn();
    user.click(page.chkStatus[0]);
    user.click(page.chkStatus[11]);
    user.click(page.chkStatus[15]);
    EXPECT_THAT(entries(page.List1), ElementsAre("(2.6)", "-"));
    EXPECT_THAT(state.DataCtrl_P1.RateList, ElementsAre("(2.6)-"));
    EXPECT_EQ(state.DataCtrl_P1.StatusB, 0);
}

TEST_F(CompanyStatusTest, Box11MovesTheWorksheetsCopies) {
    frmLodgePage1& page = newReturn();
    user.click(page.chkStatus[0]);
    state.strFldPage1_2[0] = "100.00";
    state.strFldPage1_2[6] = "30.00";
    state.SheetRate = "2.6";
    user.click(page.chkStatus[11]);
    EXPECT_EQ(state.Sheet71a, "100.00");
    EXPECT_EQ(state.Sheet71c, "30.00");
    EXPECT_EQ(state.SheetRate, "2.6");
    user.click(page.chkStatus[11]);
    EXPECT_EQ(state.Sheet71a, "");
    EXPECT_EQ(state.Sheet71c, "");
    EXPECT_EQ(state.SheetRate, "");
    EXPECT_EQ(state.strFldPage1_2[0], "");
    EXPECT_EQ(state.strFldPage1_2[6], "");
}

TEST_F(CompanyStatusTest, AnyOtherBoxRefreshesTheWorksheetsCopies) {
    frmLodgePage1& page = newReturn();
    state.strFldPage1_2[0] = "5.00";
    state.strFldPage1_2[6] = "6.00";
    user.click(page.chkStatus[3]);
    EXPECT_EQ(state.Sheet71a, "5.00");
    EXPECT_EQ(state.Sheet71c, "6.00");
}

TEST_F(CompanyStatusTest, TheTimerForgetsBox11WithoutAStatusThatItKnows) {
    frmLodgePage1& page = newReturn();
    state.blnStatus11Kept = true;
    page.chkStatus[0].setValue(true);
    program.desk.pass(std::chrono::milliseconds(2000));
    EXPECT_TRUE(state.blnStatus11Kept);
    page.chkStatus[23].setValue(true); // not among the boxes that the timer looks at
    page.chkStatus[11].setValue(false);
    state.blnStatus11Kept = true;
    program.desk.pass(std::chrono::milliseconds(1999));
    EXPECT_TRUE(state.blnStatus11Kept);
    program.desk.pass(std::chrono::milliseconds(1));
    EXPECT_FALSE(state.blnStatus11Kept);
}

// --- Columns ---

TEST_F(CompanyStatusTest, AnExemptBusinessMovesTheReturnToColumn1WithoutAWarning) {
    for (const int box : statusSet::columnOneOnly) {
        program.desk.unload(frmLodgePage1::formName);
        state.intP1Box1 = state.intP1Box2 = 0;
        state.DataCtrl_P1.Clear();
        frmLodgePage1& page = newReturn();
        user.click(page.chkTaxType[1]);
        state.DataCtrl_P1.StatusChanged = true;
        user.click(page.chkStatus[box]);
        EXPECT_TRUE(host.shown.empty()) << "box " << box;
        EXPECT_TRUE(page.chkTaxType[0].value());
        EXPECT_FALSE(page.chkTaxType[1].value());
        EXPECT_FALSE(page.chkTaxType[0].enabled() || page.chkTaxType[1].enabled());
        EXPECT_EQ(state.intP1Box1, 1);
        EXPECT_EQ(state.intP1Box2, 0);
    }
}

TEST_F(CompanyStatusTest, LeavingAnExemptBusinessFreesBothColumns) {
    frmLodgePage1& page = newReturn();
    user.click(page.chkStatus[15]);
    user.click(page.chkStatus[0]);
    EXPECT_TRUE(page.chkTaxType[0].enabled() && page.chkTaxType[1].enabled());
    EXPECT_FALSE(page.chkTaxType[0].value() || page.chkTaxType[1].value());
    EXPECT_EQ(state.intP1Box1, 0);
    user.click(page.chkStatus[8]);
    user.click(page.chkStatus[20]);
    EXPECT_FALSE(page.chkTaxType[0].enabled() || page.chkTaxType[1].enabled());
    EXPECT_EQ(state.intP1Box1, 1);
}

TEST_F(CompanyStatusTest, AnIhqThatHasChosenColumn1LosesColumn2) {
    frmLodgePage1& page = newReturn();
    user.click(page.chkTaxType[0]);
    user.click(page.chkTaxType[1]);
    user.click(page.chkStatus[16]);
    EXPECT_TRUE(state.blnIHQPage);
    EXPECT_TRUE(page.chkTaxType[0].value());
    EXPECT_FALSE(page.chkTaxType[1].value());
    EXPECT_FALSE(page.chkTaxType[1].enabled());
    EXPECT_EQ(state.intP1Box2, 0);
    user.click(page.chkStatus[16]);
    EXPECT_TRUE(page.chkTaxType[1].enabled());
}

TEST_F(CompanyStatusTest, AnIhqThatChoosesColumn1AfterwardsMayChooseBoth) {
    frmLodgePage1& page = newReturn();
    user.click(page.chkStatus[16]);
    user.click(page.chkTaxType[0]);
    user.click(page.chkTaxType[1]);
    EXPECT_EQ(state.intP1Box1, 1);
    EXPECT_EQ(state.intP1Box2, 1);
    user.click(page.chkTaxType[0]);
    EXPECT_EQ(state.intP1Box1, 0);
    EXPECT_EQ(state.intP1Box2, 0) << "column 2 goes with column 1";
    EXPECT_FALSE(page.chkTaxType[1].enabled());
}

TEST_F(CompanyStatusTest, AnIhqReturnWithBothColumnsHasBothWhenPage1IsShownAgain) {
    frmLodgePage1& page = newReturn();
    user.click(page.chkStatus[16]);
    user.click(page.chkTaxType[0]);
    user.click(page.chkTaxType[1]);
    for (int time = 0; time < 2; ++time) { // with the first tick only counted, and with the number known
        frmLodgePage1& again = storeAndShowAgain();
        EXPECT_TRUE(again.chkTaxType[0].value() && again.chkTaxType[1].value());
        EXPECT_TRUE(again.chkTaxType[0].enabled() && again.chkTaxType[1].enabled());
        EXPECT_EQ(state.intP1Box1, 1);
        EXPECT_EQ(state.intP1Box2, 1);
        EXPECT_TRUE(state.blnIHQPage);
    }
    EXPECT_EQ(state.DataCtrl_P1.IndcBusType, "15");
}

TEST_F(CompanyStatusTest, ColumnsFollowTheirBoxes) {
    frmLodgePage1& page = newReturn();
    user.click(page.chkTaxType[1]);
    EXPECT_EQ(state.intP1Box1, 0);
    EXPECT_EQ(state.intP1Box2, 1);
    user.click(page.chkTaxType[0]);
    EXPECT_EQ(state.intP1Box1, 1);
    user.click(page.chkTaxType[1]);
    EXPECT_EQ(state.intP1Box2, 0);
}

TEST_F(CompanyStatusTest, UnloadingPage1RecordsWhetherTheFilerIsAnIhq) {
    frmLodgePage1& page = newReturn();
    user.click(page.chkStatus[16]);
    user.click(page.chkStatus[0]);
    EXPECT_TRUE(state.blnIHQPage);
    program.desk.unload(frmLodgePage1::formName);
    EXPECT_FALSE(state.blnIHQPage);
}

// --- The question before a change ---

constexpr const char* statusQuestion =
    "ถ้าเปลี่ยนสถานภาพบริษัท โปรแกรมจะล้างข้อมูลที่บันทึกไว้ในรายการที่ 2 ถึง 12\rและใบแนบฯ IHQ";

TEST_F(CompanyStatusTest, WithoutTheGateNothingIsAsked) {
    frmLodgePage1& page = newReturn();
    user.click(page.chkStatus[0]);
    user.click(page.chkStatus[3]);
    EXPECT_TRUE(host.shown.empty());
}

TEST_F(CompanyStatusTest, WithNothingTickedNothingIsAskedAndTheClickGoesOn) {
    frmLodgePage1& page = newReturn();
    state.DataCtrl_P1.StatusChanged = true;
    user.click(page.chkStatus[0]);
    EXPECT_TRUE(host.shown.empty());
    EXPECT_TRUE(page.chkStatus[0].value());
    EXPECT_TRUE(state.DataCtrl_P1.StatusChanged);
    EXPECT_TRUE(state.blnMouseUp);
}

TEST_F(CompanyStatusTest, CancelKeepsTheBoxAndRunsNoMouseUp) {
    frmLodgePage1& page = newReturn();
    user.click(page.chkStatus[0]);
    state.DataCtrl_P1.StatusChanged = true;
    state.blnMouseUp = false;
    state.strFldPage3_3[0] = "100.00";
    host.answers = {Answer::Cancel};
    user.click(page.chkStatus[3]);
    ASSERT_EQ(host.shown.size(), 1U);
    EXPECT_EQ(host.shown[0].text, statusQuestion);
    EXPECT_EQ(host.shown[0].title, "ยืนยัน");
    EXPECT_EQ(host.shown[0].buttons, Buttons::OkCancel);
    EXPECT_FALSE(page.chkStatus[3].value());
    EXPECT_TRUE(page.chkStatus[0].value());
    EXPECT_TRUE(state.DataCtrl_P1.StatusChanged);
    EXPECT_FALSE(state.blnMouseUp);
    EXPECT_EQ(state.strFldPage3_3[0], "100.00");
}

TEST_F(CompanyStatusTest, OkMakesTheChangeEmptiesTheLaterPagesAndRunsTheMouseUp) {
    frmLodgePage1& page = newReturn();
    user.click(page.chkStatus[0]);
    program.desk.load("frmLodgePage2");
    program.desk.load("frmLodgePage7_12");
    state.DataCtrl_P1.StatusChanged = true;
    state.blnMouseUp = false;
    state.blnNeedPage2 = false;
    state.strFldPage3_3[0] = "100.00";
    host.answers = {Answer::Ok};
    user.click(page.chkStatus[13]);
    EXPECT_TRUE(page.chkStatus[13].value());
    EXPECT_FALSE(page.chkStatus[0].value());
    EXPECT_FALSE(state.DataCtrl_P1.StatusChanged) << "the chooser raises it again";
    EXPECT_TRUE(state.blnMouseUp);
    EXPECT_TRUE(state.blnNeedPage2);
    EXPECT_EQ(state.strFldPage3_3[0], "");
    EXPECT_EQ(state.strFldPage2[44], "(1.6)") << "the release writes the rate label into the emptied page";
    EXPECT_EQ(state.intStatusIndex, 13);
    EXPECT_EQ(focused(), "txtNid");
    EXPECT_EQ(program.desk.find("frmLodgePage2"), nullptr);
    EXPECT_EQ(program.desk.find("frmLodgePage7_12"), nullptr);
    user.click(page.chkStatus[0]);
    EXPECT_EQ(host.shown.size(), 1U) << "the next change is not asked about";
}

TEST_F(CompanyStatusTest, AnUntickIsAskedAboutToo) {
    frmLodgePage1& page = newReturn();
    user.click(page.chkStatus[0]);
    state.DataCtrl_P1.StatusChanged = true;
    host.answers = {Answer::Ok};
    user.click(page.chkStatus[0]);
    EXPECT_FALSE(page.chkStatus[0].value());
    EXPECT_EQ(state.intStatusIndex, -1);
}

TEST_F(CompanyStatusTest, AColumnIsAskedAboutOnlyWhenItIsChosenAndAStatusIsTicked) {
    const std::string question = "หากท่านประสงค์จะเปลี่ยนช่องที่ต้องการฯ โปรแกรมจะล้างข้อมูลที่กรอกไว้หน้าต่อไปออกทั้งหมด \r"
                                 "ท่านจะต้องกรอกข้อมูลในหน้าต่อไปใหม่อีกครั้ง หากท่านประสงค์กดปุ่ม OK \r"
                                 "หากไม่ประสงค์กดปุ่ม Cancel";
    frmLodgePage1& page = newReturn();
    state.DataCtrl_P1.StatusChanged = true;
    user.click(page.chkTaxType[1]);
    user.click(page.chkTaxType[1]);
    user.click(page.chkTaxType[1]);
    EXPECT_TRUE(host.shown.empty()) << "no status is ticked";
    user.click(page.chkStatus[0]);
    user.click(page.chkTaxType[0]);
    EXPECT_TRUE(host.shown.empty()) << "column 1 was not chosen yet";
    host.answers = {Answer::Cancel, Answer::Ok};
    user.click(page.chkTaxType[1]);
    EXPECT_EQ(shown(), Texts{question});
    EXPECT_EQ(state.intP1Box2, 1);
    EXPECT_TRUE(state.DataCtrl_P1.StatusChanged);
    state.strFldPage8[6] = "1";
    user.click(page.chkTaxType[1]);
    EXPECT_EQ(state.intP1Box2, 0);
    EXPECT_EQ(state.strFldPage8[6], "");
    EXPECT_FALSE(state.DataCtrl_P1.StatusChanged);
    EXPECT_EQ(focused(), "txtNid");
}

TEST_F(CompanyStatusTest, TheHiddenBoxAsksWithItsOwnSentence) {
    frmLodgePage1& page = newReturn();
    user.click(page.chkStatus[0]);
    state.DataCtrl_P1.StatusChanged = true;
    MousePress press;
    host.answers = {Answer::Ok};
    page.condition12.raiseMouseDown(press);
    EXPECT_EQ(shown(), Texts{"ถ้าเปลี่ยนสถานภาพบริษัท โปรแกรมจะล้างข้อมูลที่บันทึกไว้ในรายการที่ 2 ถึง 11\r"
                             "และใบแนบฯ IHQ"});
    EXPECT_EQ(press.follow, MousePress::Follow::ReleaseOnly);
    EXPECT_TRUE(page.condition12.value());
    EXPECT_EQ(state.intP1Box5, 1);
}

TEST_F(CompanyStatusTest, TheHiddenBoxOpensTheExemptBusinessesAndTheirColumn) {
    frmLodgePage1& page = newReturn();
    user.click(page.chkStatus[0]);
    page.condition12.setValue(true);
    EXPECT_EQ(page.status.tickedCount(), 0);
    for (const int box : statusSet::exemptByLaw) {
        EXPECT_TRUE(page.chkStatus[box].enabled());
    }
    EXPECT_TRUE(page.Label1_81.enabled() && page.Label1_82.enabled());
    EXPECT_FALSE(page.chkTaxType[0].enabled() || page.chkTaxType[1].enabled());
    EXPECT_EQ(state.intP1Box1, 1);
    EXPECT_EQ(state.intP1Box5, 1);

    page.chkStatus[19].setValue(true);
    page.condition12.setValue(false);
    EXPECT_EQ(page.status.tickedCount(), 0);
    for (const int box : statusSet::exemptByLaw) {
        EXPECT_FALSE(page.chkStatus[box].enabled());
    }
    EXPECT_FALSE(page.Label1_81.enabled() || page.Label1_82.enabled());
    EXPECT_TRUE(page.chkTaxType[0].enabled() && page.chkTaxType[1].enabled());
    EXPECT_FALSE(page.chkTaxType[0].value() || page.chkTaxType[1].value());
    EXPECT_EQ(state.intP1Box1, 0);
    EXPECT_EQ(state.intP1Box5, 0);
}

// --- The wipe ---

TEST_F(CompanyStatusTest, TheWipeEmptiesEverythingBehindPage1) {
    newReturn();
    const std::vector<FieldArray*> later = {&state.strFldPage2, &state.strFldPage3_3, &state.strFldPage3_4,
        &state.strFldPage4_5, &state.strFldPage4_6, &state.strFldPage4_7, &state.strFldPage5_8,
        &state.strFldPage5_9, &state.strFldPage6_10, &state.strFldPage6_11, &state.strFldPage7_12,
        &state.strFldPage8};
    for (FieldArray* array : later) {
        array->fill("9");
    }
    state.strFldPage1_2[0] = "1";
    state.modGreen.GreenIncome[0] = "1";
    state.modNew3.NewBox1 = true;
    state.DataCtrl_P2.NewAtt1 = state.DataCtrl_P2.WorkTaxSum = "1";
    state.modIHQ.BoxASum = state.modIHQ.LicenceStart = "1";
    state.BoxProfit = true;
    state.BoxAmount = "1";
    state.intItem11Count = state.intItem11CountA = state.intItem11CountB = 3;
    state.strItem11Start[0] = state.strItem11End[0] = "01/01/2560";
    state.intItem11Type[0] = 4;
    state.Item11Net = 5.0;
    state.FucChk.TmpSum8_15to25 = 6.0;
    state.DataCtrl_P1.IndcBusType = "4";
    state.FucChk.LastValidId = "0105536000313";
    state.strWebsite = "http://www.example.co.th";

    WipeLaterPages(program);

    for (const FieldArray* array : later) {
        EXPECT_THAT(*array, testing::Each(""));
    }
    EXPECT_EQ(state.modGreen.GreenIncome[0], "");
    EXPECT_FALSE(state.modNew3.NewBox1);
    EXPECT_EQ(state.DataCtrl_P2.NewAtt1, "");
    EXPECT_EQ(state.DataCtrl_P2.WorkTaxSum, "");
    EXPECT_EQ(state.modIHQ.BoxASum, "");
    EXPECT_EQ(state.modIHQ.LicenceStart, "");
    EXPECT_FALSE(state.BoxProfit);
    EXPECT_EQ(state.BoxAmount, "");
    EXPECT_EQ(state.intItem11Count, 0);
    EXPECT_EQ(state.intItem11CountA, 0);
    EXPECT_EQ(state.intItem11CountB, 0);
    EXPECT_EQ(state.strItem11Start[0], "");
    EXPECT_EQ(state.strItem11End[0], "");
    EXPECT_EQ(state.intItem11Type[0], 0);
    EXPECT_EQ(state.Item11Net, 0.0);
    EXPECT_EQ(state.FucChk.TmpSum8_15to25, 0.0);

    EXPECT_EQ(state.strFldPage1[7], "1");
    EXPECT_EQ(state.strFldPage1_2[0], "1");
    EXPECT_EQ(state.DataCtrl_P1.IndcBusType, "4");
    EXPECT_EQ(state.FucChk.LastValidId, "0105536000313");
    EXPECT_EQ(state.strWebsite, "http://www.example.co.th");
    EXPECT_EQ(state.modIHQ.PeriodStart, "01012561") << "the period is the return's own";
}

} // namespace
} // namespace lodge
