// Round trips and invariants of the values: amounts, texts, dates.
#include "values/code_page.h"
#include "values/dates.h"
#include "values/identification.h"
#include "values/money.h"
#include "values/text.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

namespace lodge {
namespace {

constexpr std::int64_t largestSatang = 999'999'999'999'999; // the largest amount, 9,999,999,999,999.99

// The amount as a double. A quotient of two exactly held numbers is the double nearest to the decimal.
double baht(std::int64_t satang) { return static_cast<double>(satang) / 100; }

// What a page shows for an amount, from its whole number of satang, by integer arithmetic alone.
std::string shownBySatang(std::int64_t satang) {
    std::string whole = std::to_string(std::abs(satang) / 100);
    for (auto at = static_cast<std::ptrdiff_t>(whole.size()) - 3; at > 0; at -= 3)
        whole.insert(static_cast<std::size_t>(at), ",");
    const std::string cents = std::to_string(100 + std::abs(satang) % 100).substr(1);
    const std::string amount = whole + "." + cents;
    return satang < 0 ? "(" + amount + ")" : amount;
}

// Amounts of every size up to the limit: a plain range would hardly ever give a small one.
rc::Gen<std::int64_t> amounts() {
    return rc::gen::mapcat(rc::gen::inRange(0, 16), [](int digits) {
        std::int64_t limit = 1;
        for (int i = 0; i < digits; ++i)
            limit *= 10;
        limit = std::min(limit, largestSatang + 1);
        return rc::gen::inRange<std::int64_t>(-limit + 1, limit);
    });
}

// Texts of bytes of the code page, and of any bytes at all.
rc::Gen<std::string> byteTexts() {
    return rc::gen::container<std::string>(rc::gen::map(rc::gen::inRange(0, 256),
        [](int byte) { return static_cast<char>(static_cast<unsigned char>(byte)); }));
}

rc::Gen<InputKind> inputKinds() {
    return rc::gen::element(
        InputKind::Text, InputKind::MultiLine, InputKind::Amount, InputKind::Number, InputKind::Date);
}

// Texts in which the characters that input is made regular by are frequent.
rc::Gen<std::string> typedTexts() {
    return rc::gen::map(rc::gen::container<std::vector<std::string>>(rc::gen::oneOf(
                            rc::gen::element<std::string>("\u0E4D", "\u0E32", "\u0E33", "\u200B", "\uFEFF",
                                "|", "\r", "\n", "\t", "๑", "น", "้", "é", "😀", "\xFF", "5", "€"),
                            byteTexts())),
        [](const std::vector<std::string>& pieces) {
            std::string text;
            for (const std::string& piece : pieces)
                text += piece;
            return text;
        });
}

TEST(ValuesProperties, AnAmountShownIsReadBackToTheSatang) {
    EXPECT_TRUE(rc::check("MoneyTextToDouble(DoubleToMoneyText(x)) is x", [] {
        const std::int64_t satang = *amounts();
        const std::string shown = DoubleToMoneyText(baht(satang));
        RC_ASSERT(shown == shownBySatang(satang));
        RC_ASSERT(MoneyTextToDouble(shown) == baht(satang));
        RC_ASSERT(readFigure(shown) == baht(satang));
    }));
}

TEST(ValuesProperties, AnAmountWithMoreDecimalsIsRoundedHalfAwayFromZero) {
    // Thousandths of a satang keep within the 15 digits that count up to 9,999,999,999.99 baht.
    EXPECT_TRUE(rc::check("MoneyTextToDouble(DoubleToMoneyText(x)) is x rounded to two decimals", [] {
        const std::int64_t satang =
            *rc::gen::suchThat(amounts(), [](std::int64_t s) { return std::abs(s) <= 999'999'999'999; });
        const std::int64_t thousandths = *rc::gen::oneOf(rc::gen::inRange<std::int64_t>(0, 1000),
            rc::gen::element<std::int64_t>(0, 1, 499, 500, 501, 999));
        const std::int64_t sign = satang < 0 ? -1 : 1;
        const std::int64_t exact = satang * 1000 + sign * thousandths;
        const std::int64_t rounded = satang + (thousandths >= 500 ? sign : 0);
        const double value = static_cast<double>(exact) / 100'000;
        RC_ASSERT(MoneyTextToDouble(DoubleToMoneyText(value)) == baht(rounded));
        RC_ASSERT(roundMoney(value) == baht(rounded));
    }));
}

TEST(ValuesProperties, TheBracketFormatStrippedIsTheNumberWithAMinus) {
    EXPECT_TRUE(rc::check("xx_Val(formatBracket(x)) is x as a plain text of two decimals", [] {
        const std::int64_t satang = *amounts();
        RC_ASSERT(xx_Val(formatBracket(baht(satang))) == formatFixed(baht(satang)));
        RC_ASSERT(readNumber(xx_Val(formatBracket(baht(satang)))) == baht(satang));
    }));
}

TEST(ValuesProperties, APlainNumberTextIsReadBack) {
    EXPECT_TRUE(rc::check("readNumber(plainNumberText(x)) is x within 15 digits", [] {
        const double value = baht(*amounts());
        RC_ASSERT(readNumber(plainNumberText(value)) == value);
        RC_ASSERT(isNumericText(plainNumberText(value)));
    }));
}

TEST(ValuesProperties, EveryAmountAsItIsTypedPassesTheMoneyCheck) {
    struct Silent final : Notifier {
        void notify(const std::string&) override { ++count; }
        int count = 0;
    };
    EXPECT_TRUE(rc::check("ChkMoney takes formatMoney(x) and formatFixed(x)", [] {
        Silent notifier;
        const double value = baht(*amounts());
        RC_ASSERT(ChkMoney(formatMoney(value), notifier) == "1");
        RC_ASSERT(ChkMoney(formatFixed(value), notifier) == "1");
        RC_ASSERT(notifier.count == 0);
    }));
    EXPECT_TRUE(rc::check("ChkMoney shows one message or none, and accepts only numeric texts", [] {
        Silent notifier;
        const std::string text = *rc::gen::oneOf(
            byteTexts(), rc::gen::container<std::string>(rc::gen::element('0', '9', '5', ',', '.', '-')));
        const bool accepted = ChkMoney(text, notifier) == "1";
        RC_ASSERT(notifier.count == (accepted ? 0 : 1));
        if (accepted) RC_ASSERT(isNumericText(text));
    }));
}

TEST(ValuesProperties, EveryByteTextSurvivesTheCodePage) {
    EXPECT_TRUE(rc::check("toCodePage(fromCodePage(b)) is b", [] {
        const std::string bytes = *byteTexts();
        const std::string text = fromCodePage(bytes);
        RC_ASSERT(toCodePage(text) == bytes);
        RC_ASSERT(textLength(text) == bytes.size());
    }));
}

TEST(ValuesProperties, LeftMidAndRightPutTogetherAreTheText) {
    EXPECT_TRUE(rc::check("textLeft(n) + textMid(n + 1) is the text, textRight likewise", [] {
        const std::string text = *rc::gen::oneOf(byteTexts(), rc::gen::map(byteTexts(), fromCodePage));
        const std::size_t length = textLength(text);
        const std::size_t count = *rc::gen::inRange<std::size_t>(0, length + 3);
        RC_ASSERT(std::string{textLeft(text, count)} + std::string{textMid(text, count + 1)} == text);
        const std::size_t rest = length - std::min(count, length);
        RC_ASSERT(std::string{textLeft(text, rest)} + std::string{textRight(text, count)} == text);
        RC_ASSERT(textLength(toCodePage(text)) <= length);
    }));
}

TEST(ValuesProperties, RegularInputStaysAsItIsAndFitsTheReturnFile) {
    EXPECT_TRUE(rc::check("regularInput twice is regularInput once", [] {
        const InputKind kind = *inputKinds();
        const std::string regular = regularInput(*typedTexts(), kind);
        RC_ASSERT(regularInput(regular, kind) == regular);
        RC_ASSERT(fromCodePage(toCodePage(regular)) == regular);
        RC_ASSERT(regular.find('|') == std::string::npos);
        if (kind != InputKind::MultiLine) RC_ASSERT(regular.find_first_of("\r\n") == std::string::npos);
    }));
}

TEST(ValuesProperties, PiecesBetweenBarsJoinedAreTheText) {
    EXPECT_TRUE(rc::check("splitBar undone is the text", [] {
        const std::string text = *rc::gen::container<std::string>(rc::gen::element('|', 'a', '5'));
        std::string joined;
        for (const std::string_view piece : splitBar(text)) {
            joined += piece;
            joined += '|';
        }
        RC_ASSERT(joined == text + "|");
    }));
}

TEST(ValuesProperties, EveryDayOfTheBuddhistEraIsADateText) {
    EXPECT_TRUE(rc::check("dateText, maskText, ChkDate and DateFromText agree with the calendar", [] {
        // 1 January 1957 is B.E. 2500; 1 January 1970 is the Julian day 2440588.
        const int days = *rc::gen::inRange(-4748, 500'000);
        const Date date{std::chrono::sys_days{std::chrono::days{days}}};
        const std::string text = dateText(date);
        RC_ASSERT(ChkDate(text) == text);
        RC_ASSERT(dateDigits(maskText(date)) == text);
        RC_ASSERT(DateFromText(text) == days + 2440588);
        RC_ASSERT((DateToYMD(text) < DateToYMD(dateText(AddDays(date, 1)))));
    }));
}

TEST(ValuesProperties, ExactlyOneThirteenthDigitFits) {
    struct Silent final : Notifier {
        void notify(const std::string&) override {}
    };
    EXPECT_TRUE(rc::check("of the ten numbers with the same twelve digits one passes", [] {
        const auto head = *rc::gen::container<std::string>(12, rc::gen::inRange<char>('0', '9' + 1));
        Silent notifier;
        int passed = 0;
        for (char digit = '0'; digit <= '9'; ++digit)
            passed += ChkTax13(head + digit, notifier).empty() ? 0 : 1;
        RC_ASSERT(passed == 1);
    }));
}

} // namespace
} // namespace lodge
