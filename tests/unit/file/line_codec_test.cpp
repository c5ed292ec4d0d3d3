#include "file/line_codec.h"
#include "values/code_page.h"

#include <gtest/gtest.h>

#include <string>

namespace lodge {
namespace {

TEST(EnCodeLine, AnEmptyTextStaysEmpty) { EXPECT_EQ(EnCodeLine(""), ""); }

TEST(EnCodeLine, WritesTheCodeOfEachCharacterThenTheirSum) {
    EXPECT_EQ(EnCodeLine("A"), "00650065");
    EXPECT_EQ(EnCodeLine("|"), "01240124");
    EXPECT_EQ(EnCodeLine("|1|"), "0124004901240297");
}

TEST(EnCodeLine, AThaiCharacterIsItsByteInTheCodePage) { EXPECT_EQ(EnCodeLine("ก"), "01610161"); }

TEST(EnCodeLine, PadsASmallSumWithZeros) { EXPECT_EQ(EnCodeLine("A").substr(4), "0065"); }

TEST(EnCodeLine, KeepsTheLastFourDigitsOfALargeSum) {
    // 49 times "ฺ" (218) and once "?" (63) make 10745.
    std::string text;
    for (int i = 0; i < 49; ++i)
        text += "ฺ";
    text += "?";
    const std::string digits = EnCodeLine(text);
    EXPECT_EQ(digits.substr(digits.size() - 4), "0745");
}

TEST(DeCodeLine, AnEmptyTextStaysEmpty) { EXPECT_EQ(DeCodeLine(""), ""); }

TEST(DeCodeLine, ReadsWhatEnCodeLineWrote) {
    for (const std::string text : {"A", "|", "[PAGE1]", "|1|ซูเปอร์มาร์เก็ต|471110|||||0|0|", "||||", "-1"}) {
        EXPECT_EQ(DeCodeLine(EnCodeLine(text)), text);
    }
}

TEST(DeCodeLine, EveryByteOfTheCodePageSurvives) {
    std::string bytes;
    for (int code = 0; code < 256; ++code)
        bytes += static_cast<char>(code);
    const DecodedLine decoded = decodeLine(encodeLine(bytes));
    EXPECT_FALSE(decoded.damaged);
    EXPECT_EQ(decoded.text, bytes);
}

TEST(DeCodeLine, AWrongCheckValueGivesMinusOne) {
    EXPECT_EQ(DeCodeLine("00650066"), "-1");
    EXPECT_EQ(DeCodeLine("00660065"), "-1");
}

TEST(DeCodeLine, ATextShorterThanFourCharactersIsDamaged) {
    for (const std::string digits : {"0", "00", "006"})
        EXPECT_EQ(DeCodeLine(digits), "-1") << digits;
}

// The check is a plain sum: one digit up and another down go unseen.
TEST(DeCodeLine, AnAlterationThatKeepsTheSumGoesUnseen) {
    EXPECT_EQ(DeCodeLine("006500650130"), "AA");
    EXPECT_EQ(DeCodeLine("006400660130"), "@B");
}

TEST(DeCodeLine, ALengthThatIsNoMultipleOfFourIsDamaged) {
    EXPECT_TRUE(decodeLine("0065065").damaged);
    EXPECT_TRUE(decodeLine("006500065").damaged);
}

TEST(DeCodeLine, AGroupThatIsNotFourDigitsIsDamaged) {
    for (const std::string digits :
        {"006x0006", "+0650065", " 0650065", "00650065 ", "00.50005", "0065-065"}) {
        EXPECT_TRUE(decodeLine(digits).damaged) << digits;
    }
}

TEST(DeCodeLine, ACodeAbove255IsDamagedEvenWhenTheSumFits) {
    EXPECT_TRUE(decodeLine("02560256").damaged);
    EXPECT_FALSE(decodeLine("02550255").damaged);
}

TEST(DeCodeLine, TheCheckValueOfNothingIsNothing) {
    const DecodedLine decoded = decodeLine("0000");
    EXPECT_FALSE(decoded.damaged);
    EXPECT_EQ(decoded.text, "");
}

TEST(DeCodeLine, ASoundLineThatSaysMinusOneIsNotDamaged) {
    const DecodedLine decoded = decodeLine(encodeLine("-1"));
    EXPECT_EQ(decoded.text, "-1");
    EXPECT_FALSE(decoded.damaged);
}

} // namespace
} // namespace lodge
