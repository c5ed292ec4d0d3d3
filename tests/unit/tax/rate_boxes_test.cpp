#include "tax_fixture.h"

namespace lodge {
namespace {

class RateBoxesOnPage : public TaxTest {
  protected:
    void showProfit(int row) {
        show();
        click("chkTaxPay(0)");
        const std::string box = "ChkBox_NewAtt(" + std::to_string(row) + ")";
        if (reading(box) != "1") click(box);
    }
};

TEST_F(RateBoxesOnPage, FollowTheWorksheet) {
    showProfit(1);
    EXPECT_EQ(reading("ChkBox_NewRate(0)"), "1");
    EXPECT_EQ(reading("chkTaxCal(0)"), "0");
    EXPECT_EQ(reading("chkTaxCal(1)"), "1");
    EXPECT_EQ(record.Select_2_1, 2);
    EXPECT_EQ(record.nRateCode, "1.1");
    EXPECT_EQ(record.nRateLabel, "(2.1)") << "the caption of the box";
    EXPECT_EQ(record.nRateNo, "1");
    EXPECT_EQ(record.RateTag, "20|1.1|1");
    EXPECT_EQ(record.index_nRate, 0);
    EXPECT_EQ(record.RateIndex1, 1);
    EXPECT_EQ(record.RateCodePrint, "1.1");
    EXPECT_EQ(state.modGreen.RateCodeShown, "1.1");
    EXPECT_EQ(state.strFldPage2[44], "1.1");
    click("ChkBox_NewAtt(0)");
    wait(250);
    EXPECT_EQ(reading("ChkBox_NewRate(0)"), "0");
    EXPECT_EQ(reading("chkTaxCal(0)"), "1");
    EXPECT_EQ(reading("chkTaxCal(1)"), "0");
    EXPECT_EQ(record.Select_2_1, std::nullopt);
}

TEST_F(RateBoxesOnPage, AReturnOfTheGeneralRateCarriesNoRateNumber) {
    showProfit(1);
    click("ChkBox_NewAtt(0)");
    wait(1000);
    EXPECT_EQ(record.RateIndex1, 0);
    EXPECT_EQ(record.nRateCode, "");
    EXPECT_EQ(record.index_nRate, -1);
}

TEST_F(RateBoxesOnPage, TheTaxOfTheWorksheetStandsWhateverTheTimerDoes) {
    for (const int row : {0, 1}) {
        showProfit(row);
        type("txtIncome(0)", "1000000");
        const std::string tax = reading("lblMoney1");
        EXPECT_EQ(tax, row == 0 ? "200,000.00" : "105,000.00"); // 20%; 700,000 x 15%
        const std::string before = picture();
        wait(1000);
        EXPECT_EQ(reading("lblMoney1"), tax);
        EXPECT_EQ(picture(), before);
        program.desk.unload(frmLodgePage2::formName);
    }
}

TEST_F(RateBoxesOnPage, AFloodOfTicksAndClicksEndsInTheSameState) {
    showProfit(1);
    type("txtIncome(0)", "1000000");
    wait(250);
    const std::string before = picture();
    const std::string tag = record.RateTag;
    for (int i = 0; i < 200; ++i) {
        for (Control* each : program.desk.find(frmLodgePage2::formName)->controls()) {
            // Every handler that follows a value is called again with the value that it holds.
            if (each->kind() == ControlKind::CheckBox) each->raise(each->onClick);
        }
        wait(250);
    }
    EXPECT_EQ(picture(), before);
    EXPECT_EQ(record.RateTag, tag);
    EXPECT_EQ(record.Select_2_1, 2);
    EXPECT_EQ(record.PayStatus, "1");
    EXPECT_EQ(shown(), std::vector<std::string>{});
}

TEST_F(RateBoxesOnPage, AStrayTickIsTakenBackByTheTimer) {
    showProfit(0);
    type("txtIncome(0)", "1000000");
    click("ChkBox_NewRate(0)");
    EXPECT_EQ(reading("lblMoney1"), "200,000.00") << "the worksheet wins at once";
    wait(250);
    EXPECT_EQ(reading("ChkBox_NewRate(0)"), "0");
    EXPECT_EQ(reading("chkTaxCal(1)"), "0");
    EXPECT_EQ(record.nRateCode, "");
}

TEST_F(RateBoxesOnPage, RowsWithoutACodeLeaveItEmpty) {
    status("20", {"(2.7)"});
    showProfit(6);
    wait(250);
    EXPECT_EQ(reading("ChkBox_NewRate17"), "1");
    EXPECT_EQ(reading("chkTaxCal(1)"), "1");
    EXPECT_EQ(record.nRateCode, "");
    EXPECT_EQ(record.Select_2_1, 2);
    EXPECT_TRUE(state.IsRate17);
}

TEST_F(RateBoxesOnPage, TheTaxOfARowWithoutACodeStandsBeforeTheTimerHasTickedItsCase) {
    status("18", {"(2.8)"});
    showProfit(7);
    type("txtIncome(0)", "2200000");
    EXPECT_EQ(reading("lblMoney1"), "190,000.00"); // (2,200,000 - 300,000) x 10%
    EXPECT_EQ(reading("lblMoney2(1)"), "190,000.00");
}

TEST_F(RateBoxesOnPage, TheSingleBoxesCannotBeUnticked) {
    status("18", {"(2.8)"});
    showProfit(7);
    click("ChkBox_NewRate18");
    EXPECT_EQ(reading("ChkBox_NewRate18"), "1");
    EXPECT_TRUE(state.IsRate18);
}

TEST_F(RateBoxesOnPage, AreOpenForTheRatesOfASingleStatus) {
    show();
    EXPECT_TRUE(control("ChkBox_NewRate(0)").enabled());
    EXPECT_FALSE(control("ChkBox_NewRate(1)").enabled());
    program.desk.unload(frmLodgePage2::formName);
    zone();
    show();
    EXPECT_FALSE(control("ChkBox_NewRate(0)").enabled()) << "two statuses lock the boxes";
}

TEST_F(RateBoxesOnPage, UntickingTheLastOneForgetsTheRate) {
    show();
    click("ChkBox_NewRate(0)");
    EXPECT_EQ(record.nRateCode, "1.1");
    click("ChkBox_NewRate(0)");
    EXPECT_EQ(record.nRateCode, "");
    EXPECT_EQ(record.index_nRate, -1);
    EXPECT_EQ(state.strFldPage2[44], "");
    EXPECT_EQ(reading("txtNTax"), "");
}

TEST_F(RateBoxesOnPage, AChangeOfRateAsksBeforeItEmptiesTheGreenSheet) {
    bank();
    status("1", {"(2.1)", "(2.2)"});
    show();
    click("ChkBox_NewRate(0)");
    state.modGreen.GreenIncomeSum = "500.00";
    host.answers = {Answer::Cancel};
    click("ChkBox_NewRate(1)");
    EXPECT_EQ(reading("ChkBox_NewRate(1)"), "0");
    EXPECT_EQ(state.modGreen.GreenIncomeSum, "500.00");
    host.answers = {Answer::Ok};
    click("ChkBox_NewRate(1)");
    EXPECT_EQ(reading("ChkBox_NewRate(1)"), "1");
    EXPECT_EQ(state.modGreen.GreenIncomeSum, "");
    EXPECT_EQ(record.nRateCode, "1.2");
    EXPECT_EQ(shown(), (std::vector<std::string>(2, "ถ้าเปลี่ยนข้อลดอัตราภาษี โปรแกรมจะล้างข้อมูลกำไรที่บันทึกไว้")));
}

TEST_F(RateBoxesOnPage, TheHiddenButtonTellsTheTwoFlags) {
    show();
    state.IsRate17 = true;
    control("cmd_CHKRate1718").raise(control("cmd_CHKRate1718").onClick);
    EXPECT_EQ(shown(), (std::vector<std::string>{"True", "False"}));
    EXPECT_FALSE(control("cmd_CHKRate1718").visible());
}

TEST_F(RateBoxesOnPage, TheTimerRunsFromActivationToUnload) {
    auto& page = show();
    EXPECT_TRUE(page.Timer1_rate.enabled());
    program.desk.unload(frmLodgePage2::formName);
    EXPECT_LT(program.desk.untilNextTimer().count(), 0);
}

} // namespace
} // namespace lodge
