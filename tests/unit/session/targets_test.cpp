// What targets read: controls, their properties, forms, values of the return.

#include "stage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lodge {
namespace {

using ::testing::HasSubstr;

/// What `show TARGET` prints.
std::string shown(Stage& stage, const std::string& target, const std::string& before = {}) {
    stage.transcript.str("");
    EXPECT_EQ(stage.play(before + "show \"" + target + "\"\n"), SessionEnd::AllWentThrough)
        << stage.errors.str();
    return stage.transcript.str();
}

std::string reading(Stage& stage, const std::string& target) {
    const std::string line = shown(stage, "frmStage." + target);
    const std::string head = "frmStage." + target + " = \"";
    EXPECT_TRUE(line.starts_with(head)) << line;
    return line.substr(head.size(), line.size() - head.size() - 2);
}

std::string faultOf(const std::string& lines) {
    Stage stage;
    EXPECT_EQ(stage.play(lines), SessionEnd::ScriptAtFault) << lines;
    return stage.errors.str();
}

TEST(Targets, AControlAloneReadsWhatItIsFor) {
    Stage stage;
    frmStage& form = stage.form();
    form.mskDay.setDigits("0102");
    form.chkKind[2].setValue(true);
    form.optSecond.setValue(true);
    form.cboTitle.select(1);
    EXPECT_EQ(reading(stage, "txtName"), "as designed");
    EXPECT_EQ(reading(stage, "mskDay"), "0102");
    EXPECT_EQ(reading(stage, "chkYes"), "0");
    EXPECT_EQ(reading(stage, "chkKind(2)"), "1");
    EXPECT_EQ(reading(stage, "optSecond"), "1");
    EXPECT_EQ(reading(stage, "lblSum"), "0.00");
    EXPECT_EQ(reading(stage, "cmdGo"), "ตกลง");
    EXPECT_EQ(reading(stage, "fraAll"), "ทั้งหมด");
    EXPECT_EQ(reading(stage, "lstLines"), "ปลูกข้าว,ค้าส่ง");
    EXPECT_EQ(reading(stage, "cboTitle"), "นาย");
    EXPECT_EQ(reading(stage, "grdFound"), "2");
}

TEST(Targets, TextIsWhatTheBoxShows) {
    Stage stage;
    stage.form().mskDay.setDigits("010");
    stage.form().cboTitle.select(1);
    stage.form().lstLines.select(1);
    EXPECT_EQ(reading(stage, "txtName.text"), "as designed");
    EXPECT_EQ(reading(stage, "mskDay.text"), "01/0_/____");
    EXPECT_EQ(reading(stage, "cboTitle.text"), "นาย");
    EXPECT_EQ(reading(stage, "lstLines.text"), "ค้าส่ง");
}

TEST(Targets, CaptionIsTheWordingOfAControl) {
    Stage stage;
    EXPECT_EQ(reading(stage, "cmdGo.caption"), "ตกลง");
    EXPECT_EQ(reading(stage, "chkYes.caption"), "ใช่");
    EXPECT_EQ(reading(stage, "optFirst.caption"), "แรก");
    EXPECT_EQ(reading(stage, "lblSum.caption"), "0.00");
    EXPECT_EQ(reading(stage, "fraAll.caption"), "ทั้งหมด");
}

TEST(Targets, ValueIsWhatTheControlAloneReads) {
    Stage stage;
    stage.form().chkYes.setValue(true);
    stage.form().mskDay.setDigits("01022561");
    EXPECT_EQ(reading(stage, "chkYes.value"), "1");
    EXPECT_EQ(reading(stage, "optFirst.value"), "0");
    EXPECT_EQ(reading(stage, "mskDay.value"), "01022561");
}

TEST(Targets, SwitchesReadYesOrNo) {
    Stage stage;
    EXPECT_EQ(reading(stage, "txtName.enabled"), "yes");
    EXPECT_EQ(reading(stage, "txtName.visible"), "yes");
    EXPECT_EQ(reading(stage, "txtName.locked"), "no");
    EXPECT_EQ(reading(stage, "tmrTick.enabled"), "no");
    stage.form().txtName.setEnabled(false);
    stage.form().txtName.setVisible(false);
    stage.form().txtName.setLocked(true);
    EXPECT_EQ(reading(stage, "txtName.enabled"), "no");
    EXPECT_EQ(reading(stage, "txtName.visible"), "no");
    EXPECT_EQ(reading(stage, "txtName.locked"), "yes");
}

TEST(Targets, ASwitchIsTheControlsOwn) {
    Stage stage;
    stage.form().cmdGo.putIn(stage.form().fraAll);
    stage.form().fraAll.setEnabled(false);
    stage.form().fraAll.setVisible(false);
    EXPECT_EQ(reading(stage, "cmdGo.enabled"), "yes");
    EXPECT_EQ(reading(stage, "cmdGo.visible"), "yes");
    EXPECT_EQ(reading(stage, "fraAll.enabled"), "no");
}

TEST(Targets, BackIsTheGroundOfAField) {
    Stage stage;
    EXPECT_EQ(reading(stage, "txtName.back"), "window");
    stage.form().txtName.setBack(BackColour::Button);
    EXPECT_EQ(reading(stage, "txtName.back"), "button");
}

TEST(Targets, TagAndMaxLengthReadAsTheyAre) {
    Stage stage;
    EXPECT_EQ(reading(stage, "chkKind(1).tag"), "2.1");
    EXPECT_EQ(reading(stage, "chkKind(0).tag"), "");
    EXPECT_EQ(reading(stage, "txtAmount.maxlength"), "16");
    EXPECT_EQ(reading(stage, "txtName.maxlength"), "0");
}

TEST(Targets, ListsTellTheirPlaceAndCount) {
    Stage stage;
    EXPECT_EQ(reading(stage, "cboTitle.index"), "-1");
    EXPECT_EQ(reading(stage, "grdFound.index"), "-1");
    EXPECT_EQ(reading(stage, "lstLines.count"), "2");
    EXPECT_EQ(reading(stage, "cboTitle.count"), "5");
    EXPECT_EQ(reading(stage, "grdFound.count"), "2");
}

TEST(Targets, ACellIsReadByRowAndColumnFromTheFirstDataRow) {
    Stage stage;
    EXPECT_EQ(reading(stage, "grdFound.cell(0,0)"), "01111");
    EXPECT_EQ(reading(stage, "grdFound.cell(1,1)"), "ค้าส่ง");
    EXPECT_EQ(reading(stage, "grdFound.cell(1, 0)"), "46");
    EXPECT_EQ(reading(stage, "grdFound.cell(2,0)"), "");
    EXPECT_EQ(reading(stage, "grdFound.cell(0,5)"), "");
}

TEST(Targets, APropertyThatTheControlDoesNotHaveIsAFault) {
    EXPECT_THAT(faultOf("show frmStage.lblSum.maxlength"),
        HasSubstr("frmStage.lblSum has no property \"maxlength\"\n"));
    EXPECT_THAT(faultOf("show frmStage.txtName.count"), HasSubstr("has no property \"count\""));
    EXPECT_THAT(faultOf("show frmStage.txtName.cell(0,0)"), HasSubstr("has no property"));
    EXPECT_THAT(faultOf("show frmStage.grdFound.cell(0)"), HasSubstr("has no property"));
    EXPECT_THAT(faultOf("show frmStage.grdFound.cell(a,b)"), HasSubstr("has no property"));
    EXPECT_THAT(faultOf("show frmStage.picMark.value"), HasSubstr("has no property"));
}

TEST(Targets, AMisspeltPropertyIsAFaultWithTheNearest) {
    EXPECT_THAT(faultOf("show frmStage.txtName.enable"),
        HasSubstr("no property \"enable\"; the nearest name is \"enabled\""));
}

TEST(Targets, AFormReadsItsTitle) {
    Stage stage;
    EXPECT_EQ(shown(stage, "frmStage.caption"), "frmStage.caption = \"เวที\"\n");
    EXPECT_EQ(shown(stage, "frmPopup.caption"), "frmPopup.caption = \"รายการ\"\n");
}

TEST(Targets, AFormAloneIsNoTarget) {
    EXPECT_THAT(faultOf("show frmStage"), HasSubstr("\"frmStage\" is a form: write FORM.caption"));
}

TEST(Targets, AFormThatIsNotLoadedReadsItsDesign) {
    Stage stage;
    EXPECT_EQ(shown(stage, "frmPopup.txtIn.enabled"), "frmPopup.txtIn.enabled = \"yes\"\n");
    stage.form().txtName.setText("typed");
    stage.program.desk.unload(frmStage::formName);
    EXPECT_EQ(shown(stage, "frmStage.txtName"), "frmStage.txtName = \"as designed\"\n");
    EXPECT_EQ(stage.program.desk.find(frmStage::formName), nullptr);
}

TEST(Targets, ABareNameIsAControlOfTheFormThatOnSets) {
    Stage stage;
    EXPECT_EQ(shown(stage, "lblSum", "on frmStage\n"), "lblSum = \"0.00\"\n");
    EXPECT_EQ(shown(stage, "chkKind(1).tag", "on frmPopup\non frmStage\n"), "chkKind(1).tag = \"2.1\"\n");
}

TEST(Targets, OnLastsUntilTheNextOn) {
    EXPECT_THAT(
        faultOf("on frmStage\non frmPopup\nshow lblSum"), HasSubstr("test.session:3: nothing has the name"));
}

TEST(Targets, ABareNameWithoutAFormIsAFault) {
    EXPECT_THAT(faultOf("click cmdGo"), HasSubstr("no form is set by \"on\""));
    EXPECT_THAT(faultOf("expect lblSum 0.00"), HasSubstr("no form is set by \"on\""));
}

TEST(Targets, AStateValueGoesBeforeAControlOfTheSameName) {
    Stage stage;
    stage.program.state.BoxProfit = true;
    EXPECT_EQ(shown(stage, "BoxProfit", "on frmStage\n"), "BoxProfit = \"True\"\n");
    EXPECT_EQ(shown(stage, "frmStage.BoxProfit"), "frmStage.BoxProfit = \"0\"\n");
}

TEST(Targets, AStateNameMeansTheControlWhereAControlIsAsked) {
    Stage stage;
    EXPECT_EQ(
        stage.play("on frmStage\ntick BoxProfit\nexpect frmStage.BoxProfit 1\nexpect BoxProfit False\n"),
        SessionEnd::AllWentThrough);
}

TEST(Targets, StateValuesReadInTheirForms) {
    Stage stage;
    ReturnState& state = stage.program.state;
    state.strFldPage2[44] = "ข้อความ";
    state.DataCtrl_P1.RateList = {"(2.1)", "(2.3)"};
    state.FucChk.TmpSum8_15to25 = 1234.5;
    state.FucDate.Str2StartDate("01012561", 2019);
    EXPECT_EQ(shown(stage, "strFldPage2[44]"), "strFldPage2[44] = \"ข้อความ\"\n");
    EXPECT_EQ(shown(stage, "RateList"), "RateList = \"(2.1),(2.3)\"\n");
    EXPECT_EQ(shown(stage, "FucChk.TmpSum8_15to25"), "FucChk.TmpSum8_15to25 = \"1234.5\"\n");
    EXPECT_EQ(shown(stage, "FucDate.PeriodStartDate"), "FucDate.PeriodStartDate = \"2018-01-01\"\n");
    EXPECT_EQ(shown(stage, "blnNeedPage2"), "blnNeedPage2 = \"False\"\n");
    EXPECT_EQ(shown(stage, "intStatusIndex"), "intStatusIndex = \"-1\"\n");
}

TEST(Targets, UnknownNamesAreFaultsWithTheNearestKnownOne) {
    EXPECT_THAT(
        faultOf("on frmStgae"), HasSubstr("there is no form \"frmStgae\"; the nearest name is \"frmStage\""));
    EXPECT_THAT(faultOf("click frmStage.cmdGoo"),
        HasSubstr("there is no control \"cmdGoo\" on frmStage; the nearest name is \"cmdGo\""));
    EXPECT_THAT(faultOf("on frmStage\nclick cmdGoo"), HasSubstr("\"cmdGoo\"; the nearest name is \"cmdGo\""));
    EXPECT_THAT(faultOf("show frmStgae.lblSum"), HasSubstr("the nearest name is \"frmStage.lblSum\""));
    EXPECT_THAT(
        faultOf("on frmStage\nshow lblSun.caption"), HasSubstr("the nearest name is \"lblSum.caption\""));
    EXPECT_THAT(
        faultOf("show DataCtrl_P1.IndcBusTyp"), HasSubstr("the nearest name is \"DataCtrl_P1.IndcBusType\""));
    EXPECT_THAT(faultOf("expect intPageCurr 1"), HasSubstr("the nearest name is \"intPageCur\""));
    EXPECT_THAT(faultOf("expect-shown frmPopip"), HasSubstr("the nearest name is \"frmPopup\""));
    EXPECT_THAT(faultOf("expect-hidden frmPopip"), HasSubstr("the nearest name is \"frmPopup\""));
}

TEST(Targets, AnIndexOutsideItsArrayIsAFault) {
    EXPECT_THAT(faultOf("show strFldPage2[101]"), HasSubstr("nothing has the name \"strFldPage2[101]\""));
    EXPECT_THAT(faultOf("show frmStage.chkKind(3)"), HasSubstr("there is no control \"chkKind(3)\""));
}

TEST(Targets, AControlArrayNeedsItsIndex) {
    EXPECT_THAT(faultOf("on frmStage\ntick chkKind"), HasSubstr("write its index, as in \"chkKind(0)\""));
}

TEST(Targets, ANameOfTooManyPartsIsAFault) {
    EXPECT_THAT(faultOf("show frmStage.lblSum.caption.text"), HasSubstr("too many parts"));
}

} // namespace
} // namespace lodge
