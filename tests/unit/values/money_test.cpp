#include "recording_notifier.h"
#include "values/money.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace lodge {
namespace {

using ::testing::ElementsAre;

// The code of the message that ChkMoney shows for a text; empty when it is accepted.
std::string refusalOf(std::string_view text) {
    RecordingNotifier notifier;
    const std::string result = ChkMoney(text, notifier);
    EXPECT_EQ(result, notifier.codes.empty() ? "1" : "0") << text;
    EXPECT_LE(notifier.codes.size(), 1U) << text;
    return notifier.codes.empty() ? std::string{} : notifier.codes.front();
}

TEST(Money, AnAmountWithOrWithoutSeparatorsIsAccepted) {
    for (const char* text :
        {"0", "5", "1234.5", "1,234.50", "-1,234.50", ".5", "5.", "-.5", "0.001", "1,,2", "12,34"})
        EXPECT_EQ(refusalOf(text), "") << text;
}

TEST(Money, BothLimitsAreAcceptedAndASatangMoreIsRefusedWithM069) {
    EXPECT_EQ(refusalOf("9,999,999,999,999.99"), "");
    EXPECT_EQ(refusalOf("-9,999,999,999,999.99"), "");
    EXPECT_EQ(refusalOf("9,999,999,999,999.98"), "");
    EXPECT_EQ(refusalOf("10,000,000,000,000.00"), "M069");
    EXPECT_EQ(refusalOf("10000000000000"), "M069");
    EXPECT_EQ(refusalOf("-10000000000000"), "M069");
}

TEST(Money, ATextOfMoreThanSixteenCharactersIsRefusedWithM069) {
    EXPECT_EQ(refusalOf("0000000000000.01"), "");
    EXPECT_EQ(refusalOf("-0000000000000.01"), "");
    EXPECT_EQ(refusalOf("00000000000000.01"), "M069");
    EXPECT_EQ(refusalOf("-00000000000000.01"), "M069");
    EXPECT_EQ(refusalOf("0.123456789012345"), "M069");
    EXPECT_EQ(refusalOf("0.12345678901234"), "");
}

TEST(Money, ATextOfCommasAloneIsRefusedWithM073) {
    for (const char* text : {"", ",", ",,,", ".", "..", "--", ",-", "-.", "-,", ".,-"})
        EXPECT_EQ(refusalOf(text), "M073") << text;
}

TEST(Money, ASecondPointIsRefusedWithM073) {
    EXPECT_EQ(refusalOf("1.2.3"), "M073");
    EXPECT_EQ(refusalOf("1..2"), "M073");
}

TEST(Money, AMinusAnywhereButFirstIsRefusedWithM075) {
    EXPECT_EQ(refusalOf("12-3"), "M075");
    EXPECT_EQ(refusalOf("5-"), "M075");
    EXPECT_EQ(refusalOf("--5"), "M075");
    EXPECT_EQ(refusalOf(",-5"), "M075");
}

TEST(Money, AMinusAloneIsRefusedWithM075) { EXPECT_EQ(refusalOf("-"), "M075"); }

TEST(Money, AnyOtherCharacterIsRefusedWithM075) {
    for (const char* text : {"12a", "(5.00)", " 5", "5 ", "+5", "1e5", "๑๒", "ก", "5\xFF", "abc"})
        EXPECT_EQ(refusalOf(text), "M075") << text;
}

TEST(Money, TheFirstFaultFromTheLeftDecidesTheMessage) {
    EXPECT_EQ(refusalOf("1.2.3a"), "M073");
    EXPECT_EQ(refusalOf("a1.2.3"), "M075");
    EXPECT_EQ(refusalOf("99999999999999999999a"), "M075");
}

TEST(Money, TheMessageIsTheCataloguesText) {
    RecordingNotifier notifier;
    EXPECT_EQ(ChkMoney("1.2.3", notifier), "0");
    EXPECT_THAT(notifier.texts, ElementsAre("M073 : รูปแบบตัวเลขไม่ถูกต้อง"));
}

TEST(Money, ANumericTextIsANumberFromItsHeadToItsEnd) {
    for (const char* text :
        {"0", "-5", "+5", "1,234.50", ".5", "5.", " 5", "(1,234.50)", "00012", "99999999999999999999"})
        EXPECT_TRUE(isNumericText(text)) << text;
    for (const char* text : {"", ",", ".", "-", " ", "5 ", "1.2.3", "12-3", "1e5", "abc", "5a", "()", "(5",
             "5)", "(-5)", "(.)", "๕", "- 5", "((5))"})
        EXPECT_FALSE(isNumericText(text)) << text;
}

TEST(Money, ANumberIsReadUpToTheFirstCharacterThatDoesNotFit) {
    EXPECT_EQ(readNumber("123.45"), 123.45);
    EXPECT_EQ(readNumber("  -7.5baht"), -7.5);
    EXPECT_EQ(readNumber("+3"), 3.0);
    EXPECT_EQ(readNumber("1,234"), 1.0);
    EXPECT_EQ(readNumber("1.2.3"), 1.2);
    EXPECT_EQ(readNumber("12-3"), 12.0);
    EXPECT_EQ(readNumber("1e5"), 1.0);
    EXPECT_EQ(readNumber("0x10"), 0.0);
    EXPECT_EQ(readNumber(".5"), 0.5);
    EXPECT_EQ(readNumber("5."), 5.0);
    EXPECT_EQ(readNumber("-.25"), -0.25);
}

TEST(Money, NothingReadableIsZero) {
    for (const char* text : {"", " ", "-", ".", "-.", "abc", "--5", "- 5", "\t5", "(5)", "inf", "nan", "๕"})
        EXPECT_EQ(readNumber(text), 0.0) << text;
    EXPECT_FALSE(std::signbit(readNumber("-0")));
}

TEST(Money, AnOverlongNumberIsReadWithoutFailing) {
    EXPECT_EQ(readNumber(std::string(400, '9')), std::numeric_limits<double>::max());
    EXPECT_EQ(readNumber("-" + std::string(400, '9')), -std::numeric_limits<double>::max());
    EXPECT_EQ(readNumber("0." + std::string(400, '0') + "1"), 0.0);
    EXPECT_EQ(readNumber(std::string(400, '0') + "1"), 1.0);
}

TEST(Money, AFigureOfAPageIsReadWithoutSeparatorsAndWithBracketsAsMinus) {
    EXPECT_EQ(readFigure("(1,234.50)"), -1234.5);
    EXPECT_EQ(readFigure("1,234.50"), 1234.5);
    EXPECT_EQ(readFigure("-1,234.50"), -1234.5);
    EXPECT_EQ(readFigure("9,999,999,999,999.99"), 9999999999999.99);
    EXPECT_EQ(readFigure(""), 0.0);
    EXPECT_EQ(readFigure("ก"), 0.0);
}

TEST(Money, BracketsMakeAShownAmountNegative) {
    EXPECT_EQ(MoneyTextToDouble("(1,234.50)"), -1234.5);
    EXPECT_EQ(MoneyTextToDouble("1,234.50"), 1234.5);
    EXPECT_EQ(MoneyTextToDouble(""), 0.0);
    EXPECT_EQ(MoneyTextToDouble("(5"), 5.0); // one bracket is no pair
    EXPECT_EQ(MoneyTextToDouble("5)"), 5.0);
    EXPECT_EQ(MoneyTextToDouble("(-5)"), 5.0);
    EXPECT_EQ(MoneyTextToDouble("()"), 0.0);
    EXPECT_FALSE(std::signbit(MoneyTextToDouble("(0.00)")));
}

TEST(Money, AShownAmountIsStrippedToAPlainNumberText) {
    EXPECT_EQ(xx_Val("(1,234.50)"), "-1234.50");
    EXPECT_EQ(xx_Val("1,234.50"), "1234.50");
    EXPECT_EQ(xx_Val("  1 234 "), "1234");
    EXPECT_EQ(xx_Val(" ( 5.00 ) "), "-5.00");
    EXPECT_EQ(xx_Val("-5"), "-5");
}

TEST(Money, AnEmptyTextIsStrippedToZero) { EXPECT_EQ(xx_Val(""), "0"); }

TEST(Money, StrippingCannotFail) {
    EXPECT_EQ(xx_Val("("), "(");
    EXPECT_EQ(xx_Val("()"), "-");
    EXPECT_EQ(xx_Val(" "), "");
    EXPECT_EQ(xx_Val("abc"), "abc");
    EXPECT_EQ(xx_Val("(12ก"), "-12"); // the last character goes whatever it is
}

struct Shown {
    double value;
    const char* money;
    const char* fixed;
    const char* bracket;
    const char* plain;
};

TEST(Money, EveryFormatRoundsHalfAwayFromZeroOnTheDecimalText) {
    // clang-format off
    const std::vector<Shown> table{
        {0,                    "0.00",                      "0.00",                  "0.00",                    "0"},
        {-0.0,                 "0.00",                      "0.00",                  "0.00",                    "0"},
        {0.01,                 "0.01",                      "0.01",                  "0.01",                    "0.01"},
        {-0.01,                "-0.01",                     "-0.01",                 "(0.01)",                  "-0.01"},
        {0.004,                "0.00",                      "0.00",                  "0.00",                    "0.004"},
        {-0.004,               "0.00",                      "0.00",                  "(0.00)",                  "-0.004"},
        {0.005,                "0.01",                      "0.01",                  "0.01",                    "0.005"},
        {-0.005,               "-0.01",                     "-0.01",                 "(0.01)",                  "-0.005"},
        {0.0049999999999,      "0.00",                      "0.00",                  "0.00",                    "0.0049999999999"},
        {2.345,                "2.35",                      "2.35",                  "2.35",                    "2.345"},
        {-2.345,               "-2.35",                     "-2.35",                 "(2.35)",                  "-2.345"},
        {1.005,                "1.01",                      "1.01",                  "1.01",                    "1.005"},
        {0.125,                "0.13",                      "0.13",                  "0.13",                    "0.125"},
        {0.375,                "0.38",                      "0.38",                  "0.38",                    "0.375"},
        {0.1 + 0.2,            "0.30",                      "0.30",                  "0.30",                    "0.3"},
        {0.994999,             "0.99",                      "0.99",                  "0.99",                    "0.994999"},
        {0.995,                "1.00",                      "1.00",                  "1.00",                    "0.995"},
        {999.995,              "1,000.00",                  "1000.00",               "1,000.00",                "999.995"},
        {-999.995,             "-1,000.00",                 "-1000.00",              "(1,000.00)",              "-999.995"},
        {5,                    "5.00",                      "5.00",                  "5.00",                    "5"},
        {-5,                   "-5.00",                     "-5.00",                 "(5.00)",                  "-5"},
        {100,                  "100.00",                    "100.00",                "100.00",                  "100"},
        {1000,                 "1,000.00",                  "1000.00",               "1,000.00",                "1000"},
        {123456.7,             "123,456.70",                "123456.70",             "123,456.70",              "123456.7"},
        {1234567.891,          "1,234,567.89",              "1234567.89",            "1,234,567.89",            "1234567.891"},
        {9999999999999.99,     "9,999,999,999,999.99",      "9999999999999.99",      "9,999,999,999,999.99",    "9999999999999.99"},
        {-9999999999999.99,    "-9,999,999,999,999.99",     "-9999999999999.99",     "(9,999,999,999,999.99)",  "-9999999999999.99"},
        {9999999999999.98,     "9,999,999,999,999.98",      "9999999999999.98",      "9,999,999,999,999.98",    "9999999999999.98"},
        {10000000000000.0,     "10,000,000,000,000.00",     "10000000000000.00",     "10,000,000,000,000.00",   "10000000000000"},
        {1000000000000.125,    "1,000,000,000,000.13",      "1000000000000.13",      "1,000,000,000,000.13",    "1000000000000.13"},
        {123456789012.345,     "123,456,789,012.35",        "123456789012.35",       "123,456,789,012.35",      "123456789012.345"},
        {1e15,                 "1,000,000,000,000,000.00",  "1000000000000000.00",   "1,000,000,000,000,000.00", "1000000000000000"},
        {123456789012345678.0, "123,456,789,012,346,000.00", "123456789012346000.00", "123,456,789,012,346,000.00", "123456789012346000"},
        {1e-7,                 "0.00",                      "0.00",                  "0.00",                    "0.0000001"},
        {1.0 / 3,              "0.33",                      "0.33",                  "0.33",                    "0.333333333333333"},
        {2.0 / 3,              "0.67",                      "0.67",                  "0.67",                    "0.666666666666667"},
        {0.9999999999999999,   "1.00",                      "1.00",                  "1.00",                    "1"},
    };
    // clang-format on
    for (const Shown& shown : table) {
        EXPECT_EQ(formatMoney(shown.value), shown.money) << shown.plain;
        EXPECT_EQ(formatFixed(shown.value), shown.fixed) << shown.plain;
        EXPECT_EQ(formatBracket(shown.value), shown.bracket) << shown.plain;
        EXPECT_EQ(DoubleToMoneyText(shown.value), shown.bracket) << shown.plain;
        EXPECT_EQ(plainNumberText(shown.value), shown.plain);
    }
}

TEST(Money, AMissingAmountIsShownEmpty) {
    EXPECT_EQ(DoubleToMoneyText(std::nullopt), "");
    EXPECT_EQ(DoubleToMoneyText(-5), "(5.00)");
}

TEST(Money, AnEmptyTextIsFormattedEmpty) {
    EXPECT_EQ(formatMoneyText(""), "");
    EXPECT_EQ(formatFixedText(""), "");
    EXPECT_EQ(formatBracketText(""), "");
    EXPECT_EQ(xx_Val(formatBracketText("")), "0");
}

TEST(Money, ATextIsFormattedByTheFigureThatItHolds) {
    EXPECT_EQ(formatMoneyText("1234.5"), "1,234.50");
    EXPECT_EQ(formatMoneyText("(1,234.50)"), "-1,234.50");
    EXPECT_EQ(formatFixedText("1,234.5"), "1234.50");
    EXPECT_EQ(formatBracketText("-1234.5"), "(1,234.50)");
    EXPECT_EQ(formatBracketText("(1,234.50)"), "(1,234.50)");
    EXPECT_EQ(formatMoneyText("abc"), "0.00");
}

TEST(Money, WhatIsNoFiniteNumberIsFormattedWithoutFailing) {
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(formatMoney(std::numeric_limits<double>::quiet_NaN()), "0.00");
    EXPECT_EQ(formatMoney(infinity), formatMoney(std::numeric_limits<double>::max()));
    EXPECT_EQ(formatBracket(-infinity), formatBracket(-std::numeric_limits<double>::max()));
    EXPECT_EQ(formatMoney(std::numeric_limits<double>::denorm_min()), "0.00");
}

TEST(Money, RoundingToSatangIsTheFormatsRounding) {
    EXPECT_EQ(roundMoney(1.005), 1.01);
    EXPECT_EQ(roundMoney(-2.345), -2.35);
    EXPECT_EQ(roundMoney(0.1 + 0.2), 0.3);
    EXPECT_FALSE(std::signbit(roundMoney(-0.004)));
}

TEST(Money, ADigitFilterKeepsDigitsAndPadsThemWithZeros) {
    EXPECT_EQ(DigitFilter("12345", 5, 5), "12345");
    EXPECT_EQ(DigitFilter("00120", 5, 5), "00120");
    EXPECT_EQ(DigitFilter("123", 3, 8), "00000123");
    EXPECT_EQ(DigitFilter("12345", 3, 3), "123");
    EXPECT_EQ(DigitFilter("12345", 5, 3), "12345");
    EXPECT_EQ(DigitFilter("", 0, 2), "00");
}

TEST(Money, ADigitFilterEmptiesATextWithAnotherCharacterAmongThem) {
    EXPECT_EQ(DigitFilter("12a45", 5, 5), "");
    EXPECT_EQ(DigitFilter("12 45", 5, 8), "");
    EXPECT_EQ(DigitFilter("1-345", 5, 5), "");
    EXPECT_EQ(DigitFilter("๑๒๓", 3, 3), "");
    EXPECT_EQ(DigitFilter("123a", 3, 3), "123"); // what stands behind is not looked at
}

TEST(Money, ADigitFilterEmptiesATextThatIsTooShort) { EXPECT_EQ(DigitFilter("123", 5, 5), ""); }

TEST(Money, AFractionIsCutAtThePoint) {
    EXPECT_EQ(TruncValue("12.99"), "12");
    EXPECT_EQ(TruncValue("-12.99"), "-12");
    EXPECT_EQ(TruncValue("12"), "12");
    EXPECT_EQ(TruncValue(".5"), "");
    EXPECT_EQ(TruncValue(""), "");
}

TEST(Money, ARemainderIsThatOfWholeNumbers) {
    EXPECT_EQ(ModOf("352", "11"), 0);
    EXPECT_EQ(ModOf("353", "11"), 1);
    EXPECT_EQ(ModOf("-7", "3"), -1);
    EXPECT_EQ(ModOf("7.9", "3"), 1);
    EXPECT_EQ(ModOf("1,000", "7"), 6);
    EXPECT_EQ(ModOf("999999999999999999", "10"), 9);
    EXPECT_EQ(ModOf("", "3"), 0);
    EXPECT_EQ(ModOf("-99999999999999999999", "-1"), 0);
}

TEST(Money, ABaseOfZeroLeavesNothing) {
    EXPECT_EQ(ModOf("7", "0"), 0);
    EXPECT_EQ(ModOf("7", ""), 0);
    EXPECT_EQ(ModOf("7", "0.9"), 0);
}

} // namespace
} // namespace lodge
