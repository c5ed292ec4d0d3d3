#include "pages/tax/page2_normalise.h"

#include <gtest/gtest.h>

namespace lodge {
namespace {

struct Normalise : testing::Test {
    ReturnState state;
    FieldArray& page1 = state.strFldPage1;
    FieldArray& page2 = state.strFldPage2;

    /// A tax of 300 with 1,000 left to pay by lines 4 and 6.
    void withTax() {
        page2[33] = "300.00";
        page2[41] = "1000.00";
        page2[43] = "1000.00";
    }
};

TEST_F(Normalise, AThaiCompanyWithoutReceiptsHasNoReceiptsCase) {
    page1[12] = "1";
    page2[27] = "1";
    normalisePage2(state);
    EXPECT_EQ(page2[27], "0");
    page2[27] = "1";
    page2[24] = "1";
    normalisePage2(state);
    EXPECT_EQ(page2[27], "1");
}

TEST_F(Normalise, AStatusWithoutGeneralCaseLosesItWithItsTax) {
    for (const std::size_t status : {13U, 14U, 19U, 21U, 49U}) {
        state = {};
        withTax();
        page1[status] = "1";
        page2[25] = "1";
        normalisePage2(state);
        EXPECT_EQ(page2[25], "0");
        EXPECT_EQ(page2[33], "0.00");
        EXPECT_EQ(page2[41], "700");
        EXPECT_EQ(page2[43], "700");
    }
}

TEST_F(Normalise, AStatusWithoutReducedCaseLosesItWithItsTax) {
    for (const std::size_t status : {15U, 16U, 17U, 18U}) {
        state = {};
        withTax();
        page1[status] = "1";
        page2[26] = "1";
        normalisePage2(state);
        EXPECT_EQ(page2[26], "0");
        EXPECT_EQ(page2[33], "0.00");
        EXPECT_EQ(page2[41], "700");
    }
}

TEST_F(Normalise, ACaseThatFitsKeepsItsTax) {
    withTax();
    page1[49] = "1"; // a procurement centre, with its reduced rate
    page2[26] = "1";
    normalisePage2(state);
    EXPECT_EQ(page2[26], "1");
    EXPECT_EQ(page2[33], "300.00");
    EXPECT_EQ(page2[41], "1000.00");
}

TEST_F(Normalise, TheWorksheetsTaxStands) {
    withTax();
    page1[15] = "1"; // a foreign company that also has a zone's income
    page2[26] = "1";
    state.DataCtrl_P2.WorkTaxSum = "300.00";
    normalisePage2(state);
    EXPECT_EQ(page2[33], "300.00");
    EXPECT_EQ(page2[41], "1000.00");
}

TEST_F(Normalise, ATypedTaxHasNoCase) {
    for (const std::size_t status : {20U, 48U}) {
        state = {};
        page1[status] = "1";
        for (const std::size_t entry : {25U, 26U, 27U})
            page2[entry] = "1";
        page2[44] = "1.1";
        normalisePage2(state);
        EXPECT_EQ(page2[25] + page2[26] + page2[27], "000");
        EXPECT_EQ(page2[44], "");
    }
}

TEST_F(Normalise, RebuildsTheLabelOfTheRatePanel) {
    page2[45] = "3";
    EXPECT_EQ(storedRateLabel(state), "");
    page1[12] = "1";
    EXPECT_EQ(storedRateLabel(state), "(2.4)");
    page1[12] = "0";
    page1[14] = "1";
    page2[45] = "5";
    EXPECT_EQ(storedRateLabel(state), "(1.4)");
}

TEST_F(Normalise, TheTaxIsTaxValueWhereItStands) {
    page2[33] = "2200000.00";
    EXPECT_EQ(storedTax(state), "2200000.00");
    state.DataCtrl_P2.TaxValue = "440000.00";
    EXPECT_EQ(storedTax(state), "440000.00");
}

} // namespace
} // namespace lodge
