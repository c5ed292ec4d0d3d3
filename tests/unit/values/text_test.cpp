#include "values/text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace lodge {
namespace {

using ::testing::ElementsAre;

TEST(Text, LengthCountsEachVowelAndToneMark) {
    EXPECT_EQ(textLength(""), 0U);
    EXPECT_EQ(textLength("abc"), 3U);
    EXPECT_EQ(textLength("ที่"), 3U);
    EXPECT_EQ(textLength("ก.ข.ค.77"), 8U);
    EXPECT_EQ(textLength("€"), 1U);
    EXPECT_EQ(textLength("é😀"), 2U);
}

TEST(Text, LeftMidAndRightCutBetweenCharacters) {
    EXPECT_EQ(textLeft("กขคง", 2), "กข");
    EXPECT_EQ(textLeft("กขคง", 9), "กขคง");
    EXPECT_EQ(textLeft("กขคง", 0), "");
    EXPECT_EQ(textMid("กขคง", 2, 2), "ขค");
    EXPECT_EQ(textMid("กขคง", 1, 1), "ก");
    EXPECT_EQ(textMid("กขคง", 3), "คง");
    EXPECT_EQ(textMid("กขคง", 4, 9), "ง");
    EXPECT_EQ(textMid("กขคง", 5, 1), "");
    EXPECT_EQ(textMid("กขคง", 0, 2), "กข");
    EXPECT_EQ(textMid("", 1, 2), "");
    EXPECT_EQ(textRight("กขคง", 1), "ง");
    EXPECT_EQ(textRight("กขคง", 4), "กขคง");
    EXPECT_EQ(textRight("กขคง", 9), "กขคง");
    EXPECT_EQ(textRight("กขคง", 0), "");
}

TEST(Text, AMalformedByteIsOneCharacterAndIsKept) {
    const std::string text = "ก\xFF\xE0\xB8"
                             "a";
    EXPECT_EQ(textLength(text), 5U);
    EXPECT_EQ(textMid(text, 2, 1), "\xFF");
    EXPECT_EQ(textMid(text, 3, 2), "\xE0\xB8");
    EXPECT_EQ(textRight(text, 1), "a");
}

TEST(Text, OverlongFormsSurrogatesAndCodesBeyondUnicodeAreMalformed) {
    EXPECT_EQ(textLength("\xC0\xAF"), 2U);
    EXPECT_EQ(textLength("\xE0\x80\xAF"), 3U);
    EXPECT_EQ(textLength("\xED\xA0\x80"), 3U);
    EXPECT_EQ(textLength("\xF4\x90\x80\x80"), 4U);
    EXPECT_EQ(textLength("\xF8\x88\x80\x80\x80"), 5U);
    EXPECT_EQ(textLength("\x80"), 1U);
}

TEST(Text, TheReplacementCharacterIsACharacterLikeOthers) { EXPECT_EQ(textLength("\uFFFD"), 1U); }

TEST(Text, CharactersAreWrittenInUtf8) {
    std::string text;
    for (const char32_t character : {U'a', U'\u00E9', U'ก', U'\U0001F600'})
        appendCharacter(text, character);
    EXPECT_EQ(text, "aéก😀");
}

TEST(Text, TrimTakesBlanksAtBothEndsAlone) {
    EXPECT_EQ(trimBlanks("  ก ข  "), "ก ข");
    EXPECT_EQ(trimBlanks("\u00A0ก\t "), "\u00A0ก\t");
    EXPECT_EQ(trimBlanks("   "), "");
    EXPECT_EQ(trimBlanks(""), "");
}

TEST(Text, RemoveAllTakesEveryOneOfItsCharacters) {
    EXPECT_EQ(removeAll("01/02-2561 ", "/- "), "01022561");
    EXPECT_EQ(removeAll("ก,ข", ","), "กข");
    EXPECT_EQ(removeAll("abc", ""), "abc");
}

TEST(Text, DigitsAreZeroToNineAlone) {
    EXPECT_TRUE(isDigit('0'));
    EXPECT_TRUE(isDigit('9'));
    EXPECT_FALSE(isDigit('/'));
    EXPECT_FALSE(isDigit(':'));
    EXPECT_TRUE(allDigits("0123456789"));
    EXPECT_TRUE(allDigits(""));
    EXPECT_FALSE(allDigits("12 3"));
    EXPECT_FALSE(allDigits("๑๒"));
}

TEST(Text, BarsPartATextIntoOnePieceMoreThanThereAreBars) {
    EXPECT_THAT(splitBar("ก|ข|ค"), ElementsAre("ก", "ข", "ค"));
    EXPECT_THAT(splitBar("||"), ElementsAre("", "", ""));
    EXPECT_THAT(splitBar("ก"), ElementsAre("ก"));
    EXPECT_THAT(splitBar(""), ElementsAre(""));
}

TEST(RegularInput, ANikhahitAndASaraAaBecomeASaraAm) {
    EXPECT_EQ(regularInput("น\u0E4D\u0E32", InputKind::Text), "น\u0E33");
    EXPECT_EQ(regularInput("น\u0E4D\u200B\u0E32", InputKind::Text), "น\u0E33");
    EXPECT_EQ(regularInput("\u0E4D\u0E4D\u0E32\u0E32", InputKind::Text), "\u0E4D\u0E33\u0E32");
}

TEST(RegularInput, AToneMarkBetweenThemIsLeftAsItIs) {
    EXPECT_EQ(regularInput("น\u0E4D\u0E49\u0E32", InputKind::Text), "น\u0E4D\u0E49\u0E32");
    EXPECT_EQ(regularInput("\u0E32\u0E4D", InputKind::Text), "\u0E32\u0E4D");
}

TEST(RegularInput, ZeroWidthBlanksGo) {
    EXPECT_EQ(regularInput("\uFEFFก\u200Bข\u200Cค\u200Dง\u2060", InputKind::Text), "กขคง");
}

TEST(RegularInput, ThaiDigitsBecomeFiguresWhereFiguresAreMeant) {
    for (const InputKind kind : {InputKind::Amount, InputKind::Number, InputKind::Date})
        EXPECT_EQ(regularInput("๐๑๒๓๔๕๖๗๘๙", kind), "0123456789");
    EXPECT_EQ(regularInput("๒๕๖๑", InputKind::Text), "๒๕๖๑");
    EXPECT_EQ(regularInput("๒๕๖๑", InputKind::MultiLine), "๒๕๖๑");
}

TEST(RegularInput, ACharacterOutsideTheCodePageBecomesAQuestionMark) {
    EXPECT_EQ(regularInput("é中😀", InputKind::Text), "???");
    EXPECT_EQ(regularInput("a\xFFz", InputKind::Text), "a?z");
    EXPECT_EQ(regularInput("\uF8C1", InputKind::Text), "?");
    EXPECT_EQ(regularInput("“ก”…€", InputKind::Text), "“ก”…€");
}

TEST(RegularInput, BarsAndControlCharactersAreNotTaken) {
    EXPECT_EQ(regularInput("ก|ข", InputKind::Text), "กข");
    EXPECT_EQ(regularInput("ก\tข\x7F\u0085\x1B", InputKind::Text), "กข");
    EXPECT_EQ(regularInput(std::string_view{"ก\0ข", 7}, InputKind::Text), "กข");
    EXPECT_EQ(regularInput("ก|ข\tค", InputKind::MultiLine), "กขค");
}

TEST(RegularInput, LineBreaksAreTakenInBoxesOfSeveralLinesAlone) {
    EXPECT_EQ(regularInput("ก\r\nข\nค", InputKind::MultiLine), "ก\r\nข\nค");
    EXPECT_EQ(regularInput("ก\r\nข\nค", InputKind::Text), "กขค");
    EXPECT_EQ(regularInput("1\n2", InputKind::Amount), "12");
}

TEST(RegularInput, OtherTextStaysAsItIs) {
    EXPECT_EQ(regularInput(" ก  ข\u00A0น้ำ (1,234.50) ", InputKind::Text), " ก  ข\u00A0น้ำ (1,234.50) ");
    EXPECT_EQ(regularInput("", InputKind::Text), "");
}

} // namespace
} // namespace lodge
