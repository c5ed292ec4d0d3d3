#include "values/text.h"

#include "values/code_page.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>

namespace lodge {

namespace {

constexpr char32_t malformed = 0xFFFD;

constexpr char32_t nikhahit = 0x0E4D;
constexpr std::size_t nikhahitSize = 3; // bytes
constexpr char32_t saraAa = 0x0E32;
constexpr char32_t saraAm = 0x0E33;
constexpr char32_t thaiZero = 0x0E50;
constexpr char32_t thaiNine = 0x0E59;
constexpr std::array<char32_t, 5> zeroWidthBlanks{0x200B, 0x200C, 0x200D, 0x2060, 0xFEFF};

// A form of a UTF-8 character, told by its first byte.
struct Form {
    std::uint8_t mask;
    std::uint8_t lead;
    std::size_t length;
    char32_t smallest; // what is below has a shorter form and is malformed in this one
};

constexpr std::array<Form, 3> longForms{{
    {0xE0, 0xC0, 2, 0x80},
    {0xF0, 0xE0, 3, 0x800},
    {0xF8, 0xF0, 4, 0x10000},
}};

bool isCharacter(char32_t value) { return value <= 0x10FFFF && (value < 0xD800 || value > 0xDFFF); }

std::uint8_t byteAt(std::string_view text, std::size_t index) {
    return static_cast<std::uint8_t>(text[index]);
}

// The character of a form at `position`; `malformed` when the bytes are not such a character.
char32_t decode(const Form& form, std::string_view text, std::size_t position) {
    if (text.size() - position < form.length) return malformed;
    auto value = static_cast<char32_t>(byteAt(text, position) & static_cast<std::uint8_t>(~form.mask));
    for (std::size_t i = 1; i < form.length; ++i) {
        const std::uint8_t byte = byteAt(text, position + i);
        if ((byte & 0xC0) != 0x80) return malformed;
        value = value << 6 | (byte & 0x3F);
    }
    return value >= form.smallest && isCharacter(value) ? value : malformed;
}

// The byte index of the character that has `count` characters before it, or the end.
std::size_t indexAfter(std::string_view text, std::size_t count) {
    std::size_t position = 0;
    for (; count > 0 && position < text.size(); --count)
        nextCharacter(text, position);
    return position;
}

bool isControl(char32_t character) { return character < 0x20 || (character >= 0x7F && character <= 0x9F); }

bool isTaken(char32_t character, InputKind kind) {
    if (character == U'\r' || character == U'\n') return kind == InputKind::MultiLine;
    if (character == U'|' || isControl(character)) return false;
    return std::ranges::find(zeroWidthBlanks, character) == zeroWidthBlanks.end();
}

bool isFigures(InputKind kind) {
    return kind == InputKind::Amount || kind == InputKind::Number || kind == InputKind::Date;
}

char32_t regularCharacter(char32_t character, InputKind kind) {
    if (isFigures(kind) && character >= thaiZero && character <= thaiNine)
        return U'0' + (character - thaiZero);
    return inCodePage(character) ? character : U'?';
}

} // namespace

std::size_t textLength(std::string_view text) {
    std::size_t length = 0;
    for (std::size_t position = 0; position < text.size(); ++length)
        nextCharacter(text, position);
    return length;
}

std::string_view textLeft(std::string_view text, std::size_t count) {
    return text.substr(0, indexAfter(text, count));
}

std::string_view textMid(std::string_view text, std::size_t start, std::size_t count) {
    return textLeft(text.substr(indexAfter(text, start > 0 ? start - 1 : 0)), count);
}

std::string_view textRight(std::string_view text, std::size_t count) {
    const std::size_t length = textLength(text);
    return text.substr(indexAfter(text, length - std::min(count, length)));
}

std::string_view trimBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string removeAll(std::string_view text, std::string_view characters) {
    std::string kept;
    kept.reserve(text.size());
    std::ranges::copy_if(text, std::back_inserter(kept),
        [characters](char c) { return characters.find(c) == std::string_view::npos; });
    return kept;
}

bool allDigits(std::string_view text) { return std::ranges::all_of(text, isDigit); }

std::vector<std::string_view> splitBar(std::string_view text) {
    std::vector<std::string_view> pieces;
    pieces.reserve(static_cast<std::size_t>(std::ranges::count(text, '|')) + 1);
    for (std::size_t bar = text.find('|'); bar != std::string_view::npos; bar = text.find('|')) {
        pieces.push_back(text.substr(0, bar));
        text.remove_prefix(bar + 1);
    }
    pieces.push_back(text);
    return pieces;
}

char32_t nextCharacter(std::string_view text, std::size_t& position) {
    const std::uint8_t first = byteAt(text, position);
    if (first < 0x80) {
        ++position;
        return first;
    }
    for (const Form& form : longForms) {
        if ((first & form.mask) != form.lead) continue;
        const char32_t character = decode(form, text, position);
        const bool wellFormed = character != malformed || text.substr(position).starts_with("\xEF\xBF\xBD");
        position += wellFormed ? form.length : 1;
        return character;
    }
    ++position;
    return malformed;
}

void appendCharacter(std::string& text, char32_t character) {
    const auto tail = [character](
                          unsigned shift) { return static_cast<char>(0x80 | ((character >> shift) & 0x3F)); };
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += {static_cast<char>(0xC0 | character >> 6), tail(0)};
    } else if (character < 0x10000) {
        text += {static_cast<char>(0xE0 | character >> 12), tail(6), tail(0)};
    } else {
        text += {static_cast<char>(0xF0 | character >> 18), tail(12), tail(6), tail(0)};
    }
}

std::string regularInput(std::string_view typed, InputKind kind) {
    std::string regular;
    regular.reserve(typed.size());
    char32_t last = 0;
    for (std::size_t position = 0; position < typed.size();) {
        const char32_t character = nextCharacter(typed, position);
        if (!isTaken(character, kind)) continue;
        const bool joins = character == saraAa && last == nikhahit;
        if (joins) regular.resize(regular.size() - nikhahitSize);
        last = joins ? saraAm : regularCharacter(character, kind);
        appendCharacter(regular, last);
    }
    return regular;
}

} // namespace lodge
