#include "values/code_page.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <iconv.h>
#include <set>
#include <string>

namespace lodge {
namespace {

std::string everyByte() {
    std::string bytes;
    for (int code = 0; code < 256; ++code)
        bytes += static_cast<char>(code);
    return bytes;
}

// The UTF-8 text of one byte by the C library's table of the page; empty where it has none.
std::string byTheLibrary(iconv_t converter, char byte) {
    std::array<char, 8> text{};
    char* in = &byte;
    char* out = text.data();
    std::size_t inLeft = 1;
    std::size_t outLeft = text.size();
    iconv(converter, nullptr, nullptr, nullptr, nullptr);
    if (iconv(converter, &in, &inLeft, &out, &outLeft) == static_cast<std::size_t>(-1)) return {};
    return {text.data(), text.size() - outLeft};
}

TEST(CodePage, ThaiLettersHaveTheirBytes) {
    EXPECT_EQ(toCodePage("กขค"), "\xA1\xA2\xA4");
    EXPECT_EQ(toCodePage("น้ำ"), "\xB9\xE9\xD3");
    EXPECT_EQ(toCodePage("๐๙๛"), "\xF0\xF9\xFB");
    EXPECT_EQ(toCodePage("฿"), "\xDF");
    EXPECT_EQ(fromCodePage("\xA1.\xA2.\xA4.77"), "ก.ข.ค.77");
}

TEST(CodePage, TheWindowsSignsHaveTheirBytes) {
    EXPECT_EQ(toCodePage("€…‘’“”•–—\u00A0"), "\x80\x85\x91\x92\x93\x94\x95\x96\x97\xA0");
}

TEST(CodePage, EveryByteComesBack) { EXPECT_EQ(toCodePage(fromCodePage(everyByte())), everyByte()); }

TEST(CodePage, EveryByteIsACharacterOfItsOwn) {
    std::set<char32_t> characters;
    for (int code = 0; code < 256; ++code)
        characters.insert(characterOf(static_cast<std::uint8_t>(code)));
    EXPECT_EQ(characters.size(), 256U);
}

TEST(CodePage, AsciiIsItself) {
    for (int code = 0; code < 128; ++code)
        EXPECT_EQ(characterOf(static_cast<std::uint8_t>(code)), static_cast<char32_t>(code));
}

TEST(CodePage, TheThirtyOneUndefinedBytesHaveStandInsThatAreNoCharactersOfThePage) {
    int undefined = 0;
    for (int code = 0; code < 256; ++code) {
        const char32_t character = characterOf(static_cast<std::uint8_t>(code));
        EXPECT_EQ(codeOf(character), static_cast<std::uint8_t>(code));
        if (!inCodePage(character)) ++undefined;
    }
    EXPECT_EQ(undefined, 31);
    EXPECT_EQ(characterOf(0x81), U'\u0081');
    EXPECT_EQ(characterOf(0xDB), U'\uF8C1');
    EXPECT_EQ(characterOf(0xDE), U'\uF8C4');
    EXPECT_EQ(characterOf(0xFC), U'\uF8C5');
    EXPECT_EQ(characterOf(0xFF), U'\uF8C8');
}

TEST(CodePage, ACharacterThatThePageDoesNotHaveBecomesAQuestionMark) {
    EXPECT_EQ(toCodePage("é中😀"), "???");
    EXPECT_EQ(codeOf(U'é'), std::nullopt);
    EXPECT_EQ(codeOf(U'\u0080'), std::nullopt); // 0x80 is the euro sign
    EXPECT_EQ(codeOf(U'\u0E5C'), std::nullopt);
    EXPECT_FALSE(inCodePage(U'é'));
    EXPECT_TRUE(inCodePage(U'ก'));
    EXPECT_TRUE(inCodePage(U'€'));
}

TEST(CodePage, EachMalformedByteBecomesAQuestionMark) {
    EXPECT_EQ(toCodePage("a\xFFz"), "a?z");
    EXPECT_EQ(toCodePage("\xE0\xB8"), "??"); // a Thai letter cut short
    EXPECT_EQ(toCodePage("\xC0\xAF"), "??"); // an overlong slash
    EXPECT_EQ(toCodePage("\xED\xA0\x80"), "???");
}

TEST(CodePage, AnEmptyTextIsEmpty) {
    EXPECT_EQ(toCodePage(""), "");
    EXPECT_EQ(fromCodePage(""), "");
}

TEST(CodePage, TheTableAgreesWithTheCLibrarys) {
    const iconv_t converter = iconv_open("UTF-8", "WINDOWS-874");
    if (reinterpret_cast<std::intptr_t>(converter) == -1)
        GTEST_SKIP() << "this C library has no table of the page";
    for (const char byte : everyByte()) {
        const std::string theirs = byTheLibrary(converter, byte);
        const std::uint8_t code = static_cast<std::uint8_t>(byte);
        EXPECT_EQ(theirs.empty(), !inCodePage(characterOf(code))) << static_cast<int>(code);
        if (theirs.empty()) continue;
        EXPECT_EQ(fromCodePage({&byte, 1}), theirs) << static_cast<int>(code);
    }
    iconv_close(converter);
}

} // namespace
} // namespace lodge
