#include "session/fault.h"
#include "session/words.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lodge {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

const Substitutes substitutes = {{"ID", "1234567890121"}, {"FOLDER", "/home/an accountant/\"returns\"\\2561"},
    {"PROGRAM", "/opt/lodge77"}};

Words words(std::string_view line) { return splitWords(line, substitutes); }

std::string faultOf(std::string_view line) {
    try {
        static_cast<void>(words(line));
    } catch (const ScriptFault& fault) {
        return fault.what();
    }
    return "no fault";
}

TEST(Words, BlanksAndTabsPartThem) {
    EXPECT_THAT(words("  type\tmskDate1   01012561  "), ElementsAre("type", "mskDate1", "01012561"));
}

TEST(Words, ABlankLineHasNone) {
    EXPECT_THAT(words(""), IsEmpty());
    EXPECT_THAT(words(" \t "), IsEmpty());
}

TEST(Words, QuotesHoldBlanksTogether) {
    EXPECT_THAT(
        words("type txtName \"บริษัท  ตัวอย่าง จำกัด \""), ElementsAre("type", "txtName", "บริษัท  ตัวอย่าง จำกัด "));
}

TEST(Words, AnEmptyPairOfQuotesIsAnEmptyWord) {
    EXPECT_THAT(words("type txtName \"\""), ElementsAre("type", "txtName", ""));
}

TEST(Words, TheFourEscapesWorkInsideQuotes) {
    EXPECT_THAT(words(R"("\"a\\b\n\r")"), ElementsAre("\"a\\b\n\r"));
}

TEST(Words, OutsideQuotesABackslashIsItself) {
    EXPECT_THAT(words(R"(file C:\new\returns.txt)"), ElementsAre("file", R"(C:\new\returns.txt)"));
}

TEST(Words, AnotherEscapeIsAFault) {
    EXPECT_THAT(faultOf(R"(file "C:\temp")"), HasSubstr("unknown escape"));
    EXPECT_THAT(faultOf("file \"C:\\"), HasSubstr("unknown escape"));
}

TEST(Words, AQuoteThatIsNotClosedIsAFault) {
    EXPECT_THAT(faultOf("type txtName \"Siam"), HasSubstr("not closed"));
    EXPECT_THAT(faultOf(R"(type txtName "Siam\")"), HasSubstr("not closed"));
}

TEST(Words, AClosingQuoteEndsTheWord) {
    EXPECT_THAT(faultOf("type txtName \"Siam\"Ltd"), HasSubstr("a blank must follow"));
    EXPECT_THAT(faultOf("type txtName \"Siam\"# the name"), HasSubstr("a blank must follow"));
}

TEST(Words, AQuoteInsideAWordIsAFault) {
    EXPECT_THAT(faultOf("type txtName Siam\"Ltd\""), HasSubstr("quotation mark inside a word"));
}

TEST(Words, ACommentBeginsAtTheStartOfALineOrAfterABlank) {
    EXPECT_THAT(words("# a whole line"), IsEmpty());
    EXPECT_THAT(words("   # indented"), IsEmpty());
    EXPECT_THAT(words("click CmdOK1 # opens the return"), ElementsAre("click", "CmdOK1"));
    EXPECT_THAT(words("click CmdOK1\t#opens"), ElementsAre("click", "CmdOK1"));
}

TEST(Words, ANumberSignElsewhereIsItself) {
    EXPECT_THAT(words("expect A#1 \"# no comment\""), ElementsAre("expect", "A#1", "# no comment"));
}

TEST(Words, TheEntryThatChooseNamesByItsPlaceIsNoComment) {
    EXPECT_THAT(words("choose cboTitle #12"), ElementsAre("choose", "cboTitle", "#12"));
    EXPECT_THAT(words("choose cboTitle \"#12\""), ElementsAre("choose", "cboTitle", "#12"));
    EXPECT_THAT(words("choose cboTitle #12 #the first"), ElementsAre("choose", "cboTitle", "#12"));
    EXPECT_THAT(words("choose cboTitle # 12"), ElementsAre("choose", "cboTitle"));
    EXPECT_THAT(words("click cmdGo #12"), ElementsAre("click", "cmdGo"));
}

TEST(Words, ADefinedNameIsReplacedInsideAndOutsideQuotes) {
    EXPECT_THAT(words("type txtNid ${ID}"), ElementsAre("type", "txtNid", "1234567890121"));
    EXPECT_THAT(words("file ${PROGRAM}/${ID}.txt"), ElementsAre("file", "/opt/lodge77/1234567890121.txt"));
    EXPECT_THAT(words("file \"${PROGRAM}/my ${ID}\""), ElementsAre("file", "/opt/lodge77/my 1234567890121"));
}

TEST(Words, AReplacedValuePartsAndEscapesNothing) {
    EXPECT_THAT(words("file ${FOLDER}"), ElementsAre("file", "/home/an accountant/\"returns\"\\2561"));
    EXPECT_THAT(words("file \"${FOLDER}\""), ElementsAre("file", "/home/an accountant/\"returns\"\\2561"));
}

TEST(Words, AnUnknownNameIsAFaultWithTheNearestOne) {
    EXPECT_THAT(faultOf("file ${PROGRAMM}"), HasSubstr("${PROGRAMM}; the nearest name is \"PROGRAM\""));
}

TEST(Words, ANameWithoutItsBraceIsAFault) { EXPECT_THAT(faultOf("file ${ID"), HasSubstr("closing brace")); }

TEST(Words, ADollarSignAloneIsItself) { EXPECT_THAT(words("a $ID $"), ElementsAre("a", "$ID", "$")); }

TEST(Words, ACommentReplacesNothing) { EXPECT_THAT(words("# ${NOBODY}"), IsEmpty()); }

TEST(Words, WhatIsNotUtf8IsAFault) {
    EXPECT_THAT(faultOf("type txtName \xA1"), HasSubstr("not UTF-8"));
    EXPECT_THAT(faultOf("# \xE0\xB8"), HasSubstr("not UTF-8"));
}

TEST(Words, TheReplacementCharacterWrittenOutIsUtf8) { EXPECT_TRUE(isUtf8("\xEF\xBF\xBD")); }

TEST(Words, AnEscapedTextReadsBackAsItWas) {
    const std::string text = "\"M042\" : \\ a\rb\nc ก";
    EXPECT_EQ(escaped(text), R"(\"M042\" : \\ a\rb\nc ก)");
    EXPECT_THAT(words(inQuotes(text)), ElementsAre(text));
}

} // namespace
} // namespace lodge
