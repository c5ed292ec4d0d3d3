#include "pages/tax/page2_fields.h"
#include "tax_fixture.h"

#include <set>

namespace lodge {
namespace {

TEST(Page2Fields, NoEntryAndNoControlStandsTwice) {
    std::set<std::size_t> entries = {taxEntry, rateCodeEntry, rateNumberEntry};
    std::set<std::string_view> controls;
    for (const Page2Field& field : page2Fields()) {
        EXPECT_TRUE(entries.insert(field.entry).second) << field.entry;
        EXPECT_TRUE(controls.insert(field.control).second) << field.control;
    }
    EXPECT_EQ(entries.size(), 46U);
    EXPECT_EQ(*entries.rbegin(), 45U);
}

class Page2 : public TaxTest {};

TEST_F(Page2, EveryFieldNamesAControl) {
    const Form& design = program.desk.loadedOrDesign(frmLodgePage2::formName);
    for (const Page2Field& field : page2Fields())
        EXPECT_NE(design.find(field.control), nullptr) << field.control;
}

TEST_F(Page2, LengthsAreThoseOfTheForm) {
    auto& page = show();
    EXPECT_EQ(page.txtInvestID.maxLength(), 15);
    EXPECT_EQ(page.txtInvestOther.maxLength(), 50);
    EXPECT_EQ(page.txtOther.maxLength(), 150);
    EXPECT_EQ(page.txtYearNo[3].maxLength(), 3);
    EXPECT_EQ(page.txtMoney[7].maxLength(), 16);
    EXPECT_EQ(page.txtIncome[0].maxLength(), 20);
}

TEST_F(Page2, LeavingAndComingBackChangesNothing) {
    state.intInvestment = 1;
    state.strFldPage1[9] = "1";
    show();
    type("txtInvestID", "1234/2561");
    type("mskInvestDate", "01012560");
    click("chkInvestType(1)");
    type("txtYearNo(1)", "8");
    type("mskDateFrom(1)", "01022560");
    type("txtOther", "ค้าปลีก");
    click("chkTaxPay(0)");
    click("ChkBox_NewAtt(1)");
    type("txtIncome(0)", "2200000");
    type("txtMoney(4)", "500000");
    type("txtMoney(7)", "12.5");
    ASSERT_TRUE(leave());
    const FieldArray stored = state.strFldPage2;
    EXPECT_EQ(stored[32], "2200000.00");
    EXPECT_EQ(record.TaxValue, "285000.00"); // 1,900,000 x 15%
    EXPECT_EQ(stored[33], "2200000.00") << "unloading writes the income there; TaxValue is the tax";
    EXPECT_EQ(stored[41], "-215012.50"); // 285,000 - 500,012.50
    EXPECT_EQ(stored[31], "1");
    EXPECT_EQ(stored[13], "");
    EXPECT_EQ(stored[14], "01/02/2560");
    EXPECT_EQ(stored[18], "31/01/2568");
    EXPECT_EQ(stored[44], "1.1");
    EXPECT_EQ(stored[45], "1");
    const TaxRecord kept = record;

    show();
    EXPECT_EQ(reading("lblMoney1"), "285,000.00");
    EXPECT_EQ(reading("lblMoney2(1)"), "(215,012.50)");
    EXPECT_EQ(state.strFldPage2[41], "215012.50") << "without its sign while the page is on screen";
    EXPECT_EQ(reading("ChkBox_NewAtt(1)"), "1");
    EXPECT_EQ(reading("lbSumR(0)"), "285,000.00");
    EXPECT_EQ(reading("txtMoney(0)"), "2,200,000.00");
    wait(1000);
    EXPECT_EQ(reading("lblMoney1"), "285,000.00");
    ASSERT_TRUE(leave());
    EXPECT_EQ(state.strFldPage2, stored);
    EXPECT_EQ(record.TaxValue, kept.TaxValue);
    EXPECT_EQ(record.Select_2_1, kept.Select_2_1);
    EXPECT_EQ(record.PayStatus, kept.PayStatus);
    EXPECT_EQ(record.RateIndex1, kept.RateIndex1);
    EXPECT_EQ(record.NewAtt1, kept.NewAtt1);
    EXPECT_EQ(record.WorkIncome, kept.WorkIncome);
    EXPECT_EQ(record.WorkTaxSum, kept.WorkTaxSum);
    EXPECT_EQ(record.Line4Status, "2");
    EXPECT_EQ(record.Line4Amount, "-215012.50");
    EXPECT_EQ(shown(), std::vector<std::string>{});
}

// The general rate and the zone's beside it tick both cases of line 2; the file can carry one.
TEST_F(Page2, TheCaseOfLine2StaysTheOneChosenLast) {
    zone();
    show();
    click("chkTaxPay(0)");
    click("ChkBox_NewAtt(0)");
    click("ChkBox_NewAtt(8)");
    type("txtIncome(0)", "400000");
    type("txtIncome(1)", "1800000");
    ASSERT_TRUE(leave());
    EXPECT_EQ(record.Select_2_1, 2);
    show();
    EXPECT_EQ(record.Select_2_1, 2);
    click("ChkBox_NewAtt(0)");
    click("ChkBox_NewAtt(0)");
    type("txtIncome(0)", "400000");
    ASSERT_TRUE(leave());
    EXPECT_EQ(record.Select_2_1, std::nullopt);
    show();
    wait(1000);
    EXPECT_EQ(reading("chkTaxCal(1)"), "1");
    EXPECT_EQ(record.Select_2_1, std::nullopt);
}

// A complete store right after this looks into the entry: with page 1's "(2.4)" it would hold a regional
// headquarters against the capital of a small company.
TEST_F(Page2, TheCodeOfATickedRowStandsWherePage1HasPutItsCaption) {
    status("10", {"(2.4)"});
    show();
    click("chkTaxPay(0)");
    type("txtIncome(0)", "2200000");
    ASSERT_TRUE(leave());
    state.strFldPage2[44] = "(2.4)";
    show();
    EXPECT_EQ(state.strFldPage2[44], "1.4");
}

TEST_F(Page2, AnUnstoredPageGivesTheSignsBack) {
    state.strFldPage2[41] = "-15.00";
    show();
    EXPECT_EQ(state.strFldPage2[41], "15.00");
    program.desk.unload(frmLodgePage2::formName);
    EXPECT_EQ(state.strFldPage2[41], "-15.00");
}

TEST_F(Page2, ShowsAStoredReturnWithoutRefusingIt) {
    state.strFldPage3_3 = {}; // item 3 is missing, and a person's tick would be refused
    state.strFldPage2[22] = "1";
    record.NewAtt1 = "(1)";
    record.WorkIncome[0] = "100.00";
    record.WorkTax[0] = "20.00";
    show();
    EXPECT_EQ(shown(), std::vector<std::string>{});
    EXPECT_EQ(reading("chkTaxPay(0)"), "1");
    EXPECT_EQ(record.NewAtt1, "(1)");
    EXPECT_EQ(reading("txtIncome(0)"), "100.00");
}

TEST_F(Page2, TheGreenSheetsTaxStandsInForTheEntry) {
    state.strFldPage2[22] = "1";
    state.strFldPage2[33] = "500.00";
    state.strFldPage1_2[5] = "750";
    show();
    EXPECT_EQ(reading("lblMoney1"), "750.00");
}

TEST_F(Page2, AnExemptBusinessWithANilResultHasNoLoss) {
    status("14", {"-"});
    item3("0.00");
    state.strFldPage2[23] = "1";
    state.strFldPage2[32] = "5.00";
    show();
    EXPECT_EQ(reading("chkTaxPay(1)"), "0");
    EXPECT_EQ(reading("txtMoney(0)"), "0.00");
}

TEST_F(Page2, WithoutItem3ThereIsNoAmount) {
    state.strFldPage3_3 = {};
    state.strFldPage2[32] = "5.00";
    show();
    EXPECT_EQ(reading("txtMoney(0)"), "");
}

TEST_F(Page2, Line5IsCarriedThrough) {
    state.strFldPage2[42] = "12.34";
    show();
    EXPECT_EQ(reading("lblMoney2(2)"), "12.34");
    ASSERT_TRUE(leave());
    EXPECT_EQ(state.strFldPage2[42], "12.34");
}

TEST_F(Page2, HandsLine6ToPage1) {
    state.strFldPage1[29] = "stale";
    state.strFldPage1[30] = "stale";
    state.strFldPage2[43] = "340000.00";
    state.strFldPage2[30] = "1";
    show();
    EXPECT_EQ(state.strFldPage1[29], "340000.00");
    EXPECT_EQ(state.strFldPage1[30], "");
}

TEST_F(Page2, TheFirstOpenAmountHasTheFocus) {
    show();
    EXPECT_EQ(focused(), "txtMoney(0)");
    click("chkTaxPay(0)");
    click("ChkBox_NewAtt(0)");
    type("txtIncome(0)", "1");
    ASSERT_TRUE(leave());
    show();
    EXPECT_EQ(focused(), "txtMoney(3)") << "line 1 comes from the worksheet";
}

TEST_F(Page2, ALossShowsItsBalanceWithoutASign) {
    item3("-500.00");
    show();
    click("chkTaxPay(1)");
    type("txtMoney(0)", "500");
    type("txtMoney(4)", "30");
    EXPECT_EQ(reading("lblMoney2(1)"), "(30.00)");
    ASSERT_TRUE(leave());
    EXPECT_EQ(state.strFldPage2[32], "-500.00");
    EXPECT_EQ(state.strFldPage2[43], "-30.00");
    show();
    EXPECT_EQ(reading("lblMoney1"), "0.00");
    EXPECT_EQ(reading("lblMoney2(1)"), "30.00");
    EXPECT_EQ(reading("lblMoney2(3)"), "30.00");
    user.leave(); // line 1 has the focus, and so its plain digits
    EXPECT_EQ(reading("txtMoney(0)"), "(500.00)");
    ASSERT_TRUE(leave());
    EXPECT_EQ(state.strFldPage2[43], "-30.00") << "leaving reckons it anew";
}

TEST_F(Page2, AVisitToAnEmptyPageLeavesItEmpty) {
    const FieldArray untouched = state.strFldPage2;
    show();
    user.leave();
    wait(500);
    ASSERT_TRUE(leave());
    for (const std::size_t entry : {32U, 33U, 40U, 41U, 43U})
        EXPECT_EQ(state.strFldPage2[entry], untouched[entry]) << entry;
    EXPECT_EQ(record.TaxValue, "");
}

TEST_F(Page2, ClearsTheRequestToVisitIt) {
    state.blnNeedPage2 = true;
    show();
    EXPECT_FALSE(state.blnNeedPage2);
}

TEST_F(Page2, APaidReturnOfAnEarlierFilingIsAskedForOnlyThen) {
    show();
    EXPECT_FALSE(control("txtMoney(7)").enabled());
    EXPECT_FALSE(control("txtMoney(6)").enabled());
    program.desk.unload(frmLodgePage2::formName);
    state.strFldPage1[9] = "1";
    show();
    EXPECT_TRUE(control("txtMoney(7)").enabled());
}

TEST_F(Page2, ARefusedFieldKeepsThePage) {
    state.intInvestment = 1;
    show();
    static_cast<MaskedBox&>(control("mskInvestDate")).setDigits("31022561");
    EXPECT_FALSE(leave());
    EXPECT_EQ(shown(), messages({"M026"}));
    EXPECT_EQ(focused(), "mskInvestDate");
}

} // namespace
} // namespace lodge
