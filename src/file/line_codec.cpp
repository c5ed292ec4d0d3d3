#include "file/line_codec.h"

#include "values/code_page.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>

namespace lodge {

namespace {

constexpr std::size_t groupLength = 4;
constexpr unsigned checkModulus = 10000;
constexpr unsigned codeCount = 256;

using Group = std::array<char, groupLength>;

constexpr Group groupOf(unsigned number) {
    Group group{};
    for (std::size_t place = groupLength; place-- > 0; number /= 10)
        group[place] = static_cast<char>('0' + number % 10);
    return group;
}

constexpr std::array<Group, codeCount> groupsOfCodes = [] {
    std::array<Group, codeCount> groups{};
    for (unsigned code = 0; code < codeCount; ++code)
        groups[code] = groupOf(code);
    return groups;
}();

// The value of a character as a digit; a value above 9 for any other.
constexpr std::uint8_t noDigit = 0x80;
constexpr std::array<std::uint8_t, 256> digitValues = [] {
    std::array<std::uint8_t, 256> values{};
    values.fill(noDigit);
    for (unsigned digit = 0; digit < 10; ++digit)
        values['0' + digit] = static_cast<std::uint8_t>(digit);
    return values;
}();

// The number of a group, and whether it is one.
struct GroupNumber {
    unsigned number;
    bool isSound;
};

GroupNumber readGroup(std::string_view digits, std::size_t at) {
    const auto digit = [&](std::size_t place) -> unsigned {
        return digitValues[static_cast<std::uint8_t>(digits[at + place])];
    };
    const unsigned all = digit(0) | digit(1) | digit(2) | digit(3);
    return {digit(0) * 1000 + digit(1) * 100 + digit(2) * 10 + digit(3), (all & noDigit) == 0};
}

std::optional<std::string> decodeSound(std::string_view digits) {
    if (digits.empty() || digits.size() % groupLength != 0) return std::nullopt;
    const std::size_t checkAt = digits.size() - groupLength;
    std::string bytes(checkAt / groupLength, '\0');
    unsigned long sum = 0;
    for (std::size_t index = 0; index < bytes.size(); ++index) {
        const auto [code, isSound] = readGroup(digits, index * groupLength);
        if (!isSound || code >= codeCount) return std::nullopt;
        bytes[index] = static_cast<char>(static_cast<std::uint8_t>(code));
        sum += code;
    }
    const auto [check, isSound] = readGroup(digits, checkAt);
    if (!isSound || check != sum % checkModulus) return std::nullopt;
    return bytes;
}

} // namespace

std::string encodeLine(std::string_view bytes) {
    if (bytes.empty()) return {};
    std::string digits((bytes.size() + 1) * groupLength, '\0');
    char* at = digits.data();
    unsigned long sum = 0;
    for (const char byte : bytes) {
        const auto code = static_cast<std::uint8_t>(byte);
        at = std::ranges::copy(groupsOfCodes[code], at).out;
        sum += code;
    }
    std::ranges::copy(groupOf(static_cast<unsigned>(sum % checkModulus)), at);
    return digits;
}

DecodedLine decodeLine(std::string_view digits) {
    if (digits.empty()) return {};
    if (auto bytes = decodeSound(digits)) return {std::move(*bytes), false};
    return {std::string(damagedLineText), true};
}

std::string EnCodeLine(std::string_view text) { return encodeLine(toCodePage(text)); }

std::string DeCodeLine(std::string_view digits) { return fromCodePage(decodeLine(digits).text); }

} // namespace lodge
