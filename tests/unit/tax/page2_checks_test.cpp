#include "pages/tax/page2_checks.h"
#include "tax_fixture.h"

#include <functional>

namespace lodge {
namespace {

class Page2Checks : public TaxTest {
  protected:
    /// A company whose net profit of 2,200,000 stands on page 2 as in item 3.
    Page2Checks() {
        state.strFldPage2[22] = "1";
        state.strFldPage2[32] = "2200000.00";
        record.PayStatus = "1";
        record.NewAtt1 = "(1)";
        record.WorkIncome[0] = "2,200,000.00";
    }

    std::vector<std::string> check() {
        state.intError = 0;
        ChkPage2(program);
        const auto texts = shown();
        EXPECT_EQ(state.intError, texts.empty() ? 0 : 1);
        return texts;
    }

    void promote() {
        state.intInvestment = 1;
        FieldArray& page = state.strFldPage2;
        page[0] = "1234/2561";
        page[1] = "01/01/2560";
        page[3] = "471110";
        page[5] = "1";
        page[10] = "8";
        page[14] = "01/02/2560";
        page[18] = "31/01/2568";
    }
};

TEST_F(Page2Checks, AGoodReturnPasses) {
    EXPECT_EQ(check(), std::vector<std::string>{});
    promote();
    EXPECT_EQ(check(), std::vector<std::string>{});
}

TEST_F(Page2Checks, AnAdditionalFilingNamesWhatWasPaid) {
    state.strFldPage1[9] = "1";
    EXPECT_EQ(check(),
        std::vector<std::string>{"กรุณากรอก ภาษีที่ชำระแล้วตามแบบ ก.ข.ค. 77 (กรณียื่นเพิ่มเติม) (รายการที่ 2 ข้อ 3)"});
    state.strFldPage1[9] = "2"; // an advance payment
    EXPECT_EQ(check(), std::vector<std::string>{});
}

struct Lack {
    const char* message;
    std::vector<std::size_t> emptied;
    std::size_t ticked;
};

TEST_F(Page2Checks, APromotionNeedsItsFields) {
    const std::vector<Lack> lacks = {{"M025", {0}, 5}, {"M080", {1}, 5}, {"M028", {3}, 5}, {"M029", {5}, 5},
        {"M030", {10}, 5}, {"M031", {14}, 5}, {"M034", {18}, 5}, {"M030", {}, 4}, {"M030", {}, 6},
        {"M036", {}, 7}};
    for (const Lack& lack : lacks) {
        promote();
        state.strFldPage2[38] = "1.00";
        state.strFldPage2[lack.ticked] = "1";
        for (const std::size_t entry : lack.emptied)
            state.strFldPage2[entry].clear();
        EXPECT_EQ(check(), messages({lack.message}));
        for (const std::size_t entry : {4U, 6U, 7U})
            state.strFldPage2[entry].clear();
    }
}

TEST_F(Page2Checks, TheOtherExemptionsHaveNoCertificate) {
    for (const int investment : {0, 2, 3, 4, 5}) {
        state.intInvestment = static_cast<std::int16_t>(investment);
        state.strFldPage2[4] = "1";
        state.strFldPage2[38] = "1.00";
        EXPECT_EQ(check(), std::vector<std::string>{}) << investment;
    }
}

TEST_F(Page2Checks, AnAmountNeedsItsChoice) {
    state.strFldPage2[22] = "0";
    EXPECT_EQ(check(), messages({"M037"}));
    state.strFldPage2[32] = "0.00"; // nil needs none, but item 3 says profit
    record.PayStatus = "0";
    EXPECT_EQ(check(), messages({"M531"}));
}

TEST_F(Page2Checks, TheRateCodeGoesIntoItsEntry) {
    record.nRateCode = "1.1";
    check();
    EXPECT_EQ(state.strFldPage2[44], "1.1");
}

TEST_F(Page2Checks, ASmallCompanyStaysWithinItsLimits) {
    record.NewAtt1 = "(2.1)";
    state.strFldPage3_3[20] = "29999999.99";
    state.strFldPage3_3[0] = "0.01";
    state.strFldPage7_12[18] = "5000000";
    EXPECT_EQ(check(), std::vector<std::string>{}) << "exactly at the limits";
    state.strFldPage3_3[0] = "0.02";
    EXPECT_EQ(check(), messages({"M156"}));
    state.strFldPage3_3[0] = "";
    state.strFldPage7_12[18] = "5000000.01";
    EXPECT_EQ(check(), messages({"M155"}));
    record.NewAtt1 = "(1)";
    EXPECT_EQ(check(), std::vector<std::string>{});
}

TEST_F(Page2Checks, TheSideBoxAgreesWithLine22) {
    state.strFldPage3_3[19] = "100.00";
    state.BoxProfit = true;
    EXPECT_EQ(check(), messages({"M529"})) << "no amount in the box";
    state.BoxAmount = "2200000.01";
    EXPECT_EQ(check(), messages({"M529"}));
    state.BoxAmount = "-2200000.00"; // the amounts alone are compared
    EXPECT_EQ(check(), std::vector<std::string>{});
}

TEST_F(Page2Checks, AnUntickedSideBoxRefusesAndTheWalkGoesOn) {
    state.strFldPage3_3[19] = "100.00";
    state.BoxAmount = "2200000.00";
    EXPECT_EQ(check(), messages({"M530"}));
    state.strFldPage2[32].clear();
    EXPECT_EQ(check(), messages({"M530", "M041"}));
    state.strFldPage2[32] = "0.00";
    state.strFldPage3_3[60] = "0.00";
    state.BoxAmount = "0.00";
    EXPECT_EQ(check(), std::vector<std::string>{}) << "nil is neither profit nor loss";
}

TEST_F(Page2Checks, LineOneAgreesWithLine22) {
    state.strFldPage3_3[65] = "0";
    EXPECT_EQ(check(), messages({"M302"}));
    record.PayStatus = "0";
    EXPECT_EQ(check(), messages({"M531"}));
    record.PayStatus = "1";
    state.strFldPage3_3[65] = "1";
    state.strFldPage3_3[66] = "1";
    EXPECT_EQ(check(), messages({"M039"}));
}

TEST_F(Page2Checks, AmountsAreComparedWithoutTheirSign) {
    state.strFldPage2[22] = "0";
    state.strFldPage2[23] = "1";
    state.strFldPage2[32] = "1000.00";
    item3("-1000.00");
    EXPECT_EQ(check(), std::vector<std::string>{});
    state.strFldPage2[32] = "1000.01";
    EXPECT_EQ(check(), messages({"M042"}));
}

TEST_F(Page2Checks, ReceiptsAreTheSumOfThreeLines) {
    state.strFldPage2[22] = "0";
    state.strFldPage2[24] = "1";
    state.strFldPage3_3[40] = "0.10";
    state.strFldPage3_3[43] = "0.20";
    state.strFldPage3_3[49] = "1000.00";
    state.strFldPage2[32] = "1000.30"; // the ticks of line 22 say profit, and receipts need not agree
    EXPECT_EQ(check(), std::vector<std::string>{});
    state.strFldPage2[32] = "1000.31";
    EXPECT_EQ(check(), messages({"M087"}));
}

TEST_F(Page2Checks, HalfTheRateNeedsItsTax) {
    state.strFldPage2[4] = "1";
    EXPECT_EQ(check(), messages({"M088"}));
    state.strFldPage2[38] = "5.00";
    EXPECT_EQ(check(), std::vector<std::string>{});
}

// --- Rate 2.4 and item 12 ---

TEST_F(Page2Checks, TheOldSmallCompanyCodeIsTiedToItem12) {
    EXPECT_FALSE(ChkRate24Capital(program));
    for (const char* code : {"2.4", "(2.4)"}) {
        state.strFldPage2[44] = code;
        state.strFldPage7_12[18] = "5000000.01";
        EXPECT_TRUE(ChkRate24Capital(program));
        EXPECT_EQ(shown(), messages({"M100"}));
        state.strFldPage7_12[18] = "5000000.00";
        EXPECT_FALSE(ChkRate24Capital(program));
        for (const char* nil : {"", "0", "0.00"}) {
            state.strFldPage7_12[18] = nil;
            EXPECT_TRUE(ChkRate24Capital(program));
            EXPECT_EQ(shown(), messages({"M089"}));
        }
    }
}

// --- Worksheet ---

TEST_F(Page2Checks, ATickedRowNeedsItsFigures) {
    const auto run = [this] {
        state.intError = 0;
        ChkWorksheetRows(program);
        return shown();
    };
    EXPECT_EQ(run(), std::vector<std::string>{});
    record.WorkIncome[0].clear();
    EXPECT_EQ(run(), messages({"M527"}));
    record.NewAtt1.clear();
    record.NewAtt2 = "(2.6)";
    EXPECT_EQ(run(), messages({"M527"}));
    record.WorkIncome[1] = "1.00";
    record.NewAtt3 = "x";
    EXPECT_EQ(run(), messages({"M527"}));
    record.WorkIncome[2] = "1.00";
    EXPECT_EQ(run(), messages({"M528"}));
    record.WorkTax[2] = "1.00";
    record.NewAtt4 = "1";
    EXPECT_EQ(run(), messages({"M527"}));
    record.WorkIncome[3] = "1.00";
    EXPECT_EQ(run(), std::vector<std::string>{});
    EXPECT_EQ(state.intError, 0);
}

TEST_F(Page2Checks, TheGreenSheetExcusesNoRow) {
    bank();
    zone();
    state.modGreen.GreenTaxSum = "1.00";
    state.modGreen.GreenIncomeSum = "1.00";
    EXPECT_FALSE(IsGreenCase(state));
}

TEST_F(Page2Checks, AllThatRefusesCanBeListed) {
    state.strFldPage2[32].clear();
    record.WorkIncome[0].clear();
    state.strFldPage2[4] = "1";
    std::vector<Refusal> refusals;
    collectTaxGateRefusals({state, host}, refusals);
    collectPage2Refusals({state, host}, refusals);
    std::vector<std::string> codes;
    for (const Refusal& refusal : refusals)
        codes.push_back(refusal.code);
    EXPECT_EQ(codes, (std::vector<std::string>{"M527", "M041", "M042", "M088"}));
    EXPECT_EQ(refusals[0].form, "frmLodgePage2");
    EXPECT_TRUE(shown().empty());
}

TEST_F(Page2Checks, EveryFocusIsAControlOfThePage) {
    state = {};
    state.intInvestment = 1;
    for (const std::size_t entry : {4U, 5U, 6U, 7U})
        state.strFldPage2[entry] = "1";
    std::vector<Refusal> refusals;
    collectTaxGateRefusals({state, host}, refusals);
    collectPage2Refusals({state, host}, refusals);
    const Form& design = program.desk.loadedOrDesign(frmLodgePage2::formName);
    EXPECT_GT(refusals.size(), 15U);
    for (const Refusal& refusal : refusals)
        EXPECT_TRUE(refusal.form != frmLodgePage2::formName || design.find(refusal.control) != nullptr)
            << refusal.control;
}

TEST_F(Page2Checks, AnEarlierTaxGoesBackIntoTheBalance) {
    state.strFldPage2[41] = "100.00";
    state.strFldPage2[39] = "30.00";
    state.strFldPage2[28] = "1";
    P2_AddLine6(state);
    EXPECT_EQ(state.strFldPage2[41], "130");
    state.strFldPage2[28] = "0";
    state.strFldPage2[29] = "1";
    P2_AddLine6(state);
    EXPECT_EQ(state.strFldPage2[41], "100");
}

} // namespace
} // namespace lodge
