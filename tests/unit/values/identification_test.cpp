#include "recording_notifier.h"
#include "values/identification.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lodge {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(Identification, ANumberWhoseThirteenthDigitFitsComesBack) {
    // 1·13+2·12+3·11+4·10+5·9+6·8+7·7+8·6+9·5+0·4+1·3+2·2 = 352 = 32·11, so the digit is (11 − 0) mod 10 = 1.
    RecordingNotifier notifier;
    EXPECT_EQ(ChkPerson13("1234567890121", notifier), "1234567890121");
    EXPECT_EQ(ChkTax13("1234567890121", notifier), "1234567890121");
    EXPECT_EQ(ChkTax13("0994000160500", notifier), "0994000160500"); // the State Audit Office
    EXPECT_THAT(notifier.codes, IsEmpty());
}

TEST(Identification, RemaindersOfOneGiveTheDigitZero) {
    // 1·13 + 1·9 + 1·2 = 24, remainder 2, digit 9; 1·12 = 12, remainder 1, digit 0.
    RecordingNotifier notifier;
    EXPECT_EQ(ChkPerson13("1000100000019", notifier), "1000100000019");
    EXPECT_EQ(ChkPerson13("0100000000000", notifier), "0100000000000");
    EXPECT_THAT(notifier.codes, IsEmpty());
}

TEST(Identification, AWrongCheckDigitIsRefusedWithTheMessageOfItsKind) {
    RecordingNotifier notifier;
    EXPECT_EQ(ChkPerson13("1234567890122", notifier), "");
    EXPECT_EQ(ChkTax13("1234567890122", notifier), "");
    EXPECT_THAT(notifier.codes, ElementsAre("M114", "M129"));
}

TEST(Identification, ANumberOfAnotherLengthIsRefused) {
    RecordingNotifier notifier;
    EXPECT_EQ(ChkPerson13("123456789012", notifier), "");
    EXPECT_EQ(ChkTax13("12345678901210", notifier), "");
    EXPECT_THAT(notifier.codes, ElementsAre("M114", "M069"));
}

TEST(Identification, ANumberWithALetterFailsInTheMoneyCheckAlone) {
    RecordingNotifier notifier;
    EXPECT_EQ(ChkPerson13("12345678901A1", notifier), "");
    EXPECT_EQ(ChkTax13("12345678901ก1", notifier), "");
    EXPECT_THAT(notifier.codes, ElementsAre("M075", "M075"));
}

TEST(Identification, AnEmptyTextFailsInTheMoneyCheckAlone) {
    RecordingNotifier notifier;
    EXPECT_EQ(ChkPerson13("", notifier), "");
    EXPECT_THAT(notifier.codes, ElementsAre("M073"));
}

TEST(Identification, SeparatorsThatTheMoneyCheckTakesAreNoDigits) {
    RecordingNotifier notifier;
    EXPECT_EQ(ChkPerson13("123456789,121", notifier), "");
    EXPECT_THAT(notifier.codes, ElementsAre("M114"));
}

TEST(Identification, AnOldTaxNumberWeighsItsDigitsThreeAndOneInTurn) {
    // 1·3+2+3·3+4+5·3+6+7·3+8+9·3+5 = 100.
    RecordingNotifier notifier;
    EXPECT_EQ(ChkTax10("1234567895", notifier), "1234567895");
    EXPECT_EQ(ChkTax10("4000000008", notifier), "4000000008");
    EXPECT_THAT(notifier.codes, IsEmpty());
}

TEST(Identification, AnOldTaxNumberWithAWrongSumIsRefusedWithM003) {
    RecordingNotifier notifier;
    EXPECT_EQ(ChkTax10("1234567890", notifier), "");
    EXPECT_THAT(notifier.codes, ElementsAre("M003"));
}

TEST(Identification, AnOldTaxNumberHasTenDigits) {
    RecordingNotifier notifier;
    EXPECT_EQ(ChkTax10("123456789", notifier), "");
    EXPECT_EQ(ChkTax10("12345678950", notifier), "");
    EXPECT_EQ(ChkTax10("123456789A", notifier), "");
    EXPECT_EQ(ChkTax10("", notifier), "");
    EXPECT_THAT(notifier.codes, ElementsAre("M003", "M003", "M003", "M003"));
}

TEST(Identification, AnOldTaxNumberThatBeginsOutsideOneToFourIsRefusedWithoutAMessage) {
    RecordingNotifier notifier;
    EXPECT_EQ(ChkTax10("0000000000", notifier), "");
    EXPECT_EQ(ChkTax10("5000000005", notifier), "");
    EXPECT_EQ(ChkTax10("5000000000", notifier), "");
    EXPECT_EQ(ChkTax10("9000000003", notifier), "");
    EXPECT_THAT(notifier.codes, IsEmpty());
}

TEST(Identification, TheCompanysNumberIsRememberedWhenItFits) {
    RecordingNotifier notifier;
    std::string remembered;
    EXPECT_TRUE(ChkNid13("1234567890121", remembered, notifier));
    EXPECT_EQ(remembered, "1234567890121");
    EXPECT_THAT(notifier.codes, IsEmpty());
}

TEST(Identification, TheMemoryIsEmptiedByANumberThatDoesNotFit) {
    RecordingNotifier notifier;
    std::string remembered = "1234567890121";
    EXPECT_FALSE(ChkNid13("1234567890122", remembered, notifier));
    EXPECT_EQ(remembered, "");
    EXPECT_THAT(notifier.codes, IsEmpty());
}

TEST(Identification, TheMemoryIsEmptiedByThirteenCharactersWithALetter) {
    RecordingNotifier notifier;
    std::string remembered = "1234567890121";
    EXPECT_FALSE(ChkNid13("12345678901ก1", remembered, notifier));
    EXPECT_EQ(remembered, "");
    EXPECT_THAT(notifier.codes, ElementsAre("M075"));
}

TEST(Identification, ATextOfAnotherLengthIsRememberedUnchecked) {
    RecordingNotifier notifier;
    std::string remembered = "1234567890121";
    EXPECT_FALSE(ChkNid13("12", remembered, notifier));
    EXPECT_EQ(remembered, "12");
    EXPECT_FALSE(ChkNid13("", remembered, notifier));
    EXPECT_EQ(remembered, "");
    EXPECT_THAT(notifier.codes, IsEmpty());
}

TEST(Identification, APrefixIsTheFirstFourCharacters) {
    EXPECT_TRUE(HasPrefix("0991000000000", companyRefusedPrefixes));
    EXPECT_TRUE(HasPrefix("0992000000000", companyRefusedPrefixes));
    EXPECT_FALSE(HasPrefix("0993000000000", companyRefusedPrefixes));
    EXPECT_FALSE(HasPrefix("0991000000000", accountantRefusedPrefixes));
    EXPECT_TRUE(HasPrefix("0993000000000", accountantRefusedPrefixes));
    EXPECT_TRUE(HasPrefix("0994000160500", accountantRefusedPrefixes));
    EXPECT_TRUE(HasPrefix("0992", accountantRefusedPrefixes));
    EXPECT_FALSE(HasPrefix("1234567890121", accountantRefusedPrefixes));
}

TEST(Identification, AShortTextHasNoPrefix) {
    EXPECT_FALSE(HasPrefix("", companyRefusedPrefixes));
    EXPECT_FALSE(HasPrefix("099", companyRefusedPrefixes));
}

} // namespace
} // namespace lodge
