#include "message_checksums.h"
#include "values/messages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>

namespace lodge {
namespace {

using ::testing::Contains;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

std::uint64_t fnv1a(std::string_view text) {
    std::uint64_t hash = 0xcbf29ce484222325ULL;
    for (const char c : text) {
        hash ^= static_cast<std::uint8_t>(c);
        hash *= 0x100000001b3ULL;
    }
    return hash;
}

// The head that the text of a code repeats: its letter and three digits, without the form behind the point.
std::string headOf(std::string_view code) { return std::string{code.substr(0, 4)}; }

TEST(Messages, TheCatalogueHasARowForEachChecksumInTheSameOrder) {
    ASSERT_EQ(messageRows().size(), 199U);
    ASSERT_EQ(messageRows().size(), messageChecksums.size());
    for (std::size_t i = 0; i < messageRows().size(); ++i)
        EXPECT_EQ(messageRows()[i].code, messageChecksums[i].code);
}

TEST(Messages, EveryTextIsHeldToTheByte) {
    for (const MessageChecksum& wanted : messageChecksums) {
        const std::string_view text = GetMessage(wanted.code);
        EXPECT_EQ(text.size(), wanted.bytes) << wanted.code;
        EXPECT_EQ(fnv1a(text), wanted.fnv1a) << wanted.code;
    }
}

TEST(Messages, EveryTextRepeatsItsCodeAtItsHead) {
    for (const MessageRow& row : messageRows())
        EXPECT_THAT(std::string{row.text}, StartsWith(headOf(row.code))) << row.code;
}

TEST(Messages, TheThreeFormsOfM534AreTextsOfTheirOwnThatBeginAlike) {
    EXPECT_NE(GetMessage("M534"), GetMessage("M534.1"));
    EXPECT_NE(GetMessage("M534.1"), GetMessage("M534.2"));
    EXPECT_NE(GetMessage("M534.2"), GetMessage("M534.3"));
    for (const char* code : {"M534", "M534.1", "M534.2", "M534.3"})
        EXPECT_THAT(std::string{GetMessage(code)}, StartsWith("M534 : "));
}

TEST(Messages, ACodeInAGapOfTheNumberingHasAnEmptyText) {
    for (const char* code : {"M090", "M099", "M107", "M108", "M110", "M159", "M199", "M208", "M299", "M303",
             "M500", "M509", "M510", "M543", "M000", "M534.4"})
        EXPECT_EQ(GetMessage(code), "") << code;
}

TEST(Messages, ACodeIsComparedLetterByLetter) {
    EXPECT_EQ(GetMessage("m001"), "");
    EXPECT_EQ(GetMessage("M001 "), "");
    EXPECT_EQ(GetMessage("M01"), "");
    EXPECT_EQ(GetMessage(""), "");
}

TEST(Messages, M503HasAnEmptyLineAndReturnsToItsThirdLine) {
    const std::string text{GetMessage("M503")};
    const std::string third = "ผลรวมรายได้ฯ ข้อ 1 ถึง 4 ของกิจการที่ได้รับยกเว้นภาษีเงินได้ในใบแนบฯ IHQ";
    EXPECT_THAT(text, HasSubstr("\r" + third + "\r\rท่านจะต้องบันทึก"));
    EXPECT_THAT(text, EndsWith("\r" + third));
}

TEST(Messages, OnlyM501BreaksItsLineWithALineFeed) {
    for (const MessageRow& row : messageRows())
        EXPECT_EQ(row.text.find('\n') != std::string_view::npos, row.code == "M501") << row.code;
    EXPECT_THAT(std::string{GetMessage("M501")}, HasSubstr("วันที่สิทธิสิ้นสุด\r\nในใบแนบ"));
}

TEST(Messages, TrailingAndDoubledBlanksStay) {
    EXPECT_THAT(std::string{GetMessage("M118")}, EndsWith("(รายการที่ 11) "));
    EXPECT_THAT(std::string{GetMessage("M018")}, HasSubstr("ผู้ทำบัญชี  (หน้าที่ 1)"));
    EXPECT_THAT(std::string{GetMessage("M048")}, HasSubstr("จำนวนเงิน   \r           รายจ่าย"));
}

TEST(Messages, OnlyM150HasAPlaceForTheNumberOfPeriods) {
    EXPECT_THAT(std::string{GetMessage("M150")}, HasSubstr(" x "));
    EXPECT_THAT(std::string{GetMessage("M516")}, Not(HasSubstr("x")));
}

TEST(Messages, TheCodesThatNobodyRaisesAreKeptInTheCatalogue) {
    EXPECT_EQ(messagesNobodyRaises().size(), 39U);
    for (const std::string_view code : messagesNobodyRaises())
        EXPECT_NE(GetMessage(code), "") << code;
    EXPECT_TRUE(std::ranges::is_sorted(messagesNobodyRaises()));
    EXPECT_THAT(messagesNobodyRaises(), Contains("M540"));
    EXPECT_THAT(messagesNobodyRaises(), Not(Contains("M073")));
    EXPECT_THAT(messagesNobodyRaises(), Not(Contains("M154"))); // it has its call, though none gets there
}

} // namespace
} // namespace lodge
