// Round trips of the return file: whatever a return holds that a file can carry comes back from it, and a
// file read and written again is the same. Where the lines give a value a form of its own, that form is named
// here.
#include "file/layout.h"
#include "file/line_codec.h"
#include "file/return_file.h"
#include "file/token_values.h"
#include "state/field_names.h"
#include "state/lookup_tables.h"
#include "values/code_page.h"
#include "values/money.h"

#include <fmt/format.h>
#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <cstdint>
#include <string>
#include <vector>

namespace lodge {
namespace {

// --- Values as a filer may leave them ---

// Bytes of the code page that a text box takes: all but control characters and the bar.
rc::Gen<std::string> texts() {
    const auto bytes = rc::gen::suchThat(
        rc::gen::inRange(0x20, 0x100), [](int byte) { return byte != '|' && byte != 0x7F; });
    return rc::gen::map(rc::gen::container<std::string>(rc::gen::map(bytes,
                            [](int byte) { return static_cast<char>(static_cast<std::uint8_t>(byte)); })),
        [](const std::string& text) { return fromCodePage(text); });
}

// Amounts as the pages store them: empty, or plain with two decimals, negative ones among them.
rc::Gen<std::string> amounts() {
    return rc::gen::map(rc::gen::inRange(-99'999'999, 99'999'999),
        [](int satang) { return satang % 5 == 0 ? std::string() : formatFixed(satang / 100.0); });
}

rc::Gen<std::string> dates(const char* separator) {
    return rc::gen::map(
        rc::gen::tuple(rc::gen::inRange(0, 32), rc::gen::inRange(1, 13), rc::gen::inRange(2500, 2600)),
        [separator](const std::tuple<int, int, int>& parts) {
            const auto [day, month, year] = parts;
            return day == 0 ? std::string()
                            : fmt::format("{:02}{}{:02}{}{}", day, separator, month, separator, year);
        });
}

rc::Gen<std::string> titleRowNumbers() {
    return rc::gen::map(
        rc::gen::inRange<std::size_t>(0, titleCount), [](std::size_t row) { return std::to_string(row); });
}

// --- A random return, filled along the layout table ---

void fillChoice(ReturnState& state, const Entries& entries, std::size_t line) {
    const auto chosen = *rc::gen::inRange<std::size_t>(0, entries.count + 1U);
    for (std::size_t place = 0; place < entries.count; ++place) {
        const bool isUnset = *rc::gen::arbitrary<bool>();
        entries.source.text(state, entries.at(place, line)) =
            place + 1 == chosen ? "1" : (isUnset ? "" : "0");
    }
}

std::string valueFor(TokenKind kind) {
    switch (kind) {
    case TokenKind::Date: return *dates("");
    case TokenKind::MaskDate: return *dates("/");
    case TokenKind::Title: return *titleRowNumbers();
    case TokenKind::Amount:
    case TokenKind::Plain: return *amounts();
    default: return *texts();
    }
}

void fillToken(ReturnState& state, const Token& token, std::size_t line) {
    if (token.kind == TokenKind::Choice) fillChoice(state, token.entries, line);
    if (token.kind == TokenKind::Choice || token.kind == TokenKind::Sign || token.kind == TokenKind::Special)
        return;
    for (std::size_t place = 0; place < token.entries.count && token.kind != TokenKind::Blank; ++place) {
        const std::size_t index = token.entries.at(place, line);
        if (token.kind == TokenKind::Number) {
            token.entries.source.number(state, index) = *rc::gen::arbitrary<std::int16_t>();
        } else {
            token.entries.source.text(state, index) = valueFor(token.kind);
        }
    }
}

void fillPrivilege(FieldArray& page) {
    const auto option = *rc::gen::inRange<std::size_t>(0, 5);
    if (option == 0) return;
    page[3 + option] = "1";
    page[8 + option] = *texts();
    page[12 + option] = *dates("/");
    page[16 + option] = *dates("/");
}

// A balance of item 2: an overpayment may be nil, a tax to pay may not.
void fillBalance(std::string& status, std::string& amount) {
    amount = *amounts();
    const bool isZero = readNumber(amount) == 0.0;
    status = *rc::gen::arbitrary<bool>() ? "2" : (isZero ? "0" : "1");
}

void fillTax(ReturnState& state) {
    TaxRecord& tax = state.DataCtrl_P2;
    tax.PayStatus = *rc::gen::element<std::string>("", "0", "1", "2", "3");
    tax.RateIndex1 = *rc::gen::inRange<std::int16_t>(0, 9);
    tax.TaxValue = *amounts();
    tax.Select_2_1.reset();
    if (state.strFldPage2[26] == "1") tax.Select_2_1 = std::int16_t{2};
    if (state.strFldPage2[27] == "1") tax.Select_2_1 = std::int16_t{3};
    fillBalance(tax.Line4Status, tax.Line4Amount);
    fillBalance(tax.Line6Status, tax.Line6Amount);
}

ReturnState randomReturn() {
    ReturnState state;
    for (const LayoutRow& row : layoutRows()) {
        for (std::size_t line = 0; line + row.firstLine <= row.lastLine; ++line) {
            for (const Token& token : row.allTokens())
                fillToken(state, token, line);
        }
    }
    fillPrivilege(state.strFldPage2);
    fillTax(state);
    // The sheet's sum stands exactly when its first figure does.
    state.strFldPage1_2[2] = state.modGreen.GreenIncome[0].empty() ? "" : "1.00";
    state.modNew3.NewBox1 = *rc::gen::arbitrary<bool>();
    state.modNew3.NewBox2 = !state.modNew3.NewBox1 && *rc::gen::arbitrary<bool>();
    state.modNew3.NewBoxAmount = *amounts();
    return state;
}

// --- What comes back ---

// The form that the lines give a value. `kind` is that of its token.
std::string regularForm(TokenKind kind, const std::string& text) {
    switch (kind) {
    case TokenKind::Choice: return text == "1" ? "1" : ""; // A box that is not ticked is empty.
    case TokenKind::Title: return text == "0" ? "" : text; // Row 0 is no title.
    case TokenKind::Plain: return text.empty() ? "0" : text;
    default: return text;
    }
}

void expectEntries(
    ReturnState& read, ReturnState& written, TokenKind kind, const Entries& entries, std::size_t line) {
    for (std::size_t place = 0; place < entries.count; ++place) {
        const std::size_t index = entries.at(place, line);
        if (entries.source.number != nullptr) {
            RC_ASSERT(entries.source.number(read, index) == entries.source.number(written, index));
        } else {
            RC_ASSERT(
                entries.source.text(read, index) == regularForm(kind, entries.source.text(written, index)));
        }
    }
}

void expectToken(ReturnState& read, ReturnState& written, const Token& token, std::size_t line) {
    if (token.kind == TokenKind::Blank || token.kind == TokenKind::Sign) return;
    if (token.kind != TokenKind::Special) {
        expectEntries(read, written, token.kind, token.entries, line);
        return;
    }
    for (const Entries& entries : token.special->carries) {
        // The stated result of item 3 is the one amount of a rule that an empty text makes "0".
        const bool isStated = entries.source.name == "modNew3.NewBoxAmount";
        expectEntries(read, written, isStated ? TokenKind::Plain : TokenKind::Text, entries, line);
    }
}

TEST(ReturnFile, ReadingWhatWasWrittenGivesEveryCarriedValueAgain) {
    EXPECT_TRUE(rc::check([] {
        ReturnState written = randomReturn();
        // A store itself makes regular: the tax year, the tax, the balances and the empty value lines.
        const std::string bytes = encodeReturn(written);
        ReturnState read;
        const ReadResult result = readReturn(bytes, read);
        RC_ASSERT(result.status == ReadStatus::Loaded);
        RC_ASSERT(result.damagedLines.empty());
        for (const LayoutRow& row : layoutRows()) {
            for (std::size_t line = 0; line + row.firstLine <= row.lastLine; ++line) {
                for (const Token& token : row.allTokens())
                    expectToken(read, written, token, line);
            }
        }
        RC_ASSERT(read.modNew3.NewBox1 == written.modNew3.NewBox1);
        RC_ASSERT(read.modNew3.NewBox2 == written.modNew3.NewBox2);
        RC_ASSERT(read.DataCtrl_P2.Select_2_1 == written.DataCtrl_P2.Select_2_1);
    }));
}

TEST(ReturnFile, WritingWhatWasReadGivesTheSameLines) {
    EXPECT_TRUE(rc::check([] {
        ReturnState written = randomReturn();
        const std::vector<std::string> lines = returnLines(written);
        ReturnState read;
        RC_ASSERT(readReturn(encodeReturn(written), read).status == ReadStatus::Loaded);
        RC_ASSERT(returnLines(read) == lines);
        RC_ASSERT(lines.size() == returnLineCount);
    }));
}

TEST(ReturnFile, WritingTwiceGivesTheSameLines) {
    EXPECT_TRUE(rc::check([] {
        ReturnState state = randomReturn();
        const std::string first = encodeReturn(state);
        RC_ASSERT(encodeReturn(state) == first);
    }));
}

// --- The code of a line ---

rc::Gen<std::string> byteTexts() {
    return rc::gen::container<std::string>(rc::gen::map(rc::gen::inRange(0, 256),
        [](int byte) { return static_cast<char>(static_cast<std::uint8_t>(byte)); }));
}

TEST(LineCodec, DecodesWhatItEncodedForAnyBytes) {
    EXPECT_TRUE(rc::check([] {
        const std::string bytes = *byteTexts();
        const DecodedLine decoded = decodeLine(encodeLine(bytes));
        RC_ASSERT(!decoded.damaged);
        RC_ASSERT(decoded.text == bytes);
    }));
}

TEST(LineCodec, CatchesEveryChangeOfOneDigit) {
    EXPECT_TRUE(rc::check([] {
        std::string digits = encodeLine(*rc::gen::nonEmpty(byteTexts()));
        const auto at = *rc::gen::inRange<std::size_t>(0, digits.size());
        const char other = *rc::gen::suchThat(
            rc::gen::inRange<char>('0', '9' + 1), [&](char digit) { return digit != digits[at]; });
        digits[at] = other;
        RC_ASSERT(decodeLine(digits).damaged);
    }));
}

// --- Bytes that are no return ---

TEST(ReturnFile, AnyBytesAreReadOrRefused) {
    EXPECT_TRUE(rc::check([] {
        ReturnState state;
        const ReadResult result = readReturn(*byteTexts(), state);
        RC_ASSERT((result.status == ReadStatus::Loaded) == result.message.empty());
    }));
}

TEST(ReturnFile, AReturnWithForeignLinesIsReadOrRefused) {
    ReturnState empty;
    const std::vector<std::string> lines = returnLines(empty);
    EXPECT_TRUE(rc::check([&lines] {
        std::vector<std::string> changed = lines;
        for (int change = 0; change < 10; ++change) {
            const auto at = *rc::gen::inRange<std::size_t>(0, changed.size());
            const auto bars = *rc::gen::inRange<std::size_t>(0, 60);
            const std::string text = *texts();
            std::string line;
            for (std::size_t k = 0; k < bars; ++k)
                line += "|" + text;
            const auto moved = *rc::gen::inRange<std::size_t>(0, lines.size());
            changed[at] = *rc::gen::elementOf(std::vector<std::string>{line, text, lines[moved]});
        }
        std::string bytes;
        for (const std::string& line : changed)
            bytes += EnCodeLine(line) + "\r\n";
        ReturnState state;
        const ReadResult result = readReturn(bytes, state);
        RC_ASSERT((result.status == ReadStatus::Loaded) == result.message.empty());
        // Whatever was read can be written.
        RC_ASSERT(returnLines(state).size() == returnLineCount);
    }));
}

} // namespace
} // namespace lodge
