// The assignments of the print run, read back.
#include "paper/formula.h"
#include "paper_kit.h"

#include <gmock/gmock.h>

namespace lodge {
namespace {

using ::testing::HasSubstr;

TEST(Formula, ATextIsReadWithoutTheBlanksBesideIt) {
    const Assignment read = readFormula("lblFld32 =  ' นายสมชาย  ใจดี ' ");
    EXPECT_EQ(read.field, "lblFld32");
    EXPECT_EQ(read.value, "นายสมชาย  ใจดี");
}

TEST(Formula, TheBlankFormIsAnEmptyValue) {
    EXPECT_EQ(readFormula("lblFld00 = ' ' ").value, "");
    EXPECT_EQ(readFormula("boiTextVar =  '  ' ").value, "");
}

TEST(Formula, ACheckMarkAndABareCodeAreRead) {
    EXPECT_EQ(readFormula("lblFld07 = '1' ").value, "1");
    EXPECT_EQ(readFormula("Cash_Refund =  '2' ").value, "2");
}

TEST(Formula, TheNameNeedsNoBlankBehindIt) {
    const Assignment read = readFormula("rate_eco_591= '1 ' ");
    EXPECT_EQ(read.field, "rate_eco_591");
    EXPECT_EQ(read.value, "1");
}

TEST(Formula, AValueMayHoldAnEqualsSign) {
    EXPECT_EQ(readFormula("Website =  ' http://a.co.th/?a=b ' ").value, "http://a.co.th/?a=b");
}

TEST(Formula, AnApostropheInTheValueIsRefusedByTheNameOfItsField) {
    const std::string failure = failureOf([] { (void)readFormula("lblFld35 =  ' O'Neil ' "); });
    EXPECT_THAT(failure, HasSubstr("4 "));
    EXPECT_THAT(failure, HasSubstr("lblFld35"));
}

TEST(Formula, ATextWithoutQuotesOrWithoutAFieldIsRefused) {
    for (const char* formula : {"lblFld00 = 1", "lblFld00", "= ' 1 '", "lblFld00 = '", "lblFld00 ="}) {
        EXPECT_THAT(failureOf([&] { (void)readFormula(formula); }), HasSubstr("9 ")) << formula;
    }
}

} // namespace
} // namespace lodge
