#include "state/tax_fields.h"

#include <gtest/gtest.h>

namespace lodge {
namespace {

TEST(TaxFields, TakeTheChoicesOfLines4And6) {
    struct Case {
        const char* status;
        const char* payMore;
        const char* overpaid;
    };
    for (const Case& choice :
        {Case{"1", "1", "0"}, Case{"2", "0", "1"}, Case{"0", "0", "0"}, Case{"", "0", "0"}}) {
        ReturnState state;
        state.DataCtrl_P2.Line4Status = choice.status;
        state.DataCtrl_P2.Line6Status = choice.status;
        restoreTaxFields(state);
        EXPECT_EQ(state.strFldPage2[28], choice.payMore) << choice.status;
        EXPECT_EQ(state.strFldPage2[29], choice.overpaid) << choice.status;
        EXPECT_EQ(state.strFldPage2[30], choice.payMore) << choice.status;
        EXPECT_EQ(state.strFldPage2[31], choice.overpaid) << choice.status;
    }
}

TEST(TaxFields, TakeTheAmountsOfLines4And6Crosswise) {
    ReturnState state;
    state.DataCtrl_P2.Line4Amount = "(1,400.00)";
    state.DataCtrl_P2.Line6Amount = "1,600.00";
    restoreTaxFields(state);
    EXPECT_EQ(state.strFldPage2[41], "1600.00");
    EXPECT_EQ(state.strFldPage2[43], "-1400.00");
}

TEST(TaxFields, TakeAnEmptyAmountAsZeroAndAnEmptyRateCaseAsItIs) {
    ReturnState state;
    state.strFldPage2[44] = "2.4";
    restoreTaxFields(state);
    EXPECT_EQ(state.strFldPage2[41], "0");
    EXPECT_EQ(state.strFldPage2[43], "0");
    EXPECT_EQ(state.strFldPage2[44], "");
}

TEST(TaxFields, LeaveTheTaxAndTheSurchargeAlone) {
    ReturnState state;
    state.DataCtrl_P2.TaxValue = "440000";
    state.strFldPage2[33] = "5";
    state.strFldPage2[42] = "7";
    restoreTaxFields(state);
    EXPECT_EQ(state.strFldPage2[33], "5");
    EXPECT_EQ(state.strFldPage2[42], "7");
}

} // namespace
} // namespace lodge
