#include "paper/caption_reader.h"

#include "paper/text_setter.h"
#include "values/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <string_view>
#include <system_error>
#include <utility>

namespace lodge {

namespace {

// What an element around a text may say that does not change the text.
constexpr std::array<std::string_view, 7> idleAround{
    "id", "width", "height", "version", "stroke-width", "stroke-linecap", "stroke-dasharray"};

// What a text and the elements around it may say of it; the innermost counts.
constexpr std::array<std::string_view, 6> wordsOfText{
    "font-family", "font-size", "font-weight", "text-anchor", "fill", "stroke"};

// clang-format off
constexpr std::array<std::pair<std::string_view, SlotAlign>, 3> anchors{{
    {"start",  SlotAlign::Start},
    {"middle", SlotAlign::Middle},
    {"end",    SlotAlign::End},
}};
constexpr std::array<std::pair<std::string_view, bool>, 4> weights{{
    {"400", false}, {"normal", false},
    {"700", true},  {"bold", true},
}};
// clang-format on

std::optional<double> numberOf(const std::optional<std::string>& text) {
    double value = 0;
    if (!text) return std::nullopt;
    const auto [end, error] = std::from_chars(text->data(), text->data() + text->size(), value);
    return error == std::errc{} && end == text->data() + text->size() ? std::optional(value) : std::nullopt;
}

std::optional<Colour> colourOf(std::string_view text) {
    std::uint32_t code = 0;
    if (text.size() != 7 || text.front() != '#') return std::nullopt;
    const auto [end, error] = std::from_chars(text.data() + 1, text.data() + text.size(), code, 16);
    if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    const auto part = [code](unsigned shift) { return ((code >> shift) & 0xFF) / 255.0; };
    return Colour{.red = part(16), .green = part(8), .blue = part(0)};
}

template <typename Words>
auto meaningOf(const Words& words, std::string_view text) {
    const auto found = std::ranges::find(words, text, &Words::value_type::first);
    return found == words.end() ? std::nullopt : std::optional(found->second);
}

/// Whether nothing but the given words is said of an element. Attributes of a namespace are an editor's
/// notes, but for those of XML itself.
template <typename... WordLists>
bool saysOnly(const XmlElement& element, const WordLists&... lists) {
    for (const xmlAttr* attribute = element.node().properties; attribute != nullptr;
         attribute = attribute->next) {
        if (attribute->ns != nullptr) continue;
        const std::string_view name(reinterpret_cast<const char*>(attribute->name));
        if (!((std::ranges::find(lists, name) != std::ranges::end(lists)) || ...)) return false;
    }
    return true;
}

/// Whether the elements around the text leave it where and as it says it is.
bool standsPlainly(const XmlElement& text) {
    constexpr std::array<std::string_view, 3> place{"x", "y", "id"};
    constexpr std::array<std::string_view, 1> page{"viewBox"};
    if (!saysOnly(text, place, wordsOfText)) return false;
    for (auto around = text.parent(); around; around = around->parent()) {
        const bool isPage = !around->parent();
        if (around->name() != (isPage ? "svg" : "g")) return false;
        const bool isPlain = isPage ? saysOnly(*around, idleAround, wordsOfText, page)
                                    : saysOnly(*around, idleAround, wordsOfText);
        if (!isPlain) return false;
    }
    return true;
}

std::string inherited(const XmlElement& text, const char* name, const char* otherwise) {
    for (std::optional<XmlElement> element = text; element; element = element->parent())
        if (auto value = element->attribute(name)) return *std::move(value);
    return otherwise;
}

/// The blanks of a text as SVG has them: all of them, or, without xml:space, none at the ends and single ones
/// between words.
std::string withItsBlanks(const XmlElement& element, const std::string& text) {
    const bool keeps = element.keepsBlanks();
    std::string result;
    for (const char c : text) {
        const bool isBlank = c == ' ' || c == '\t' || (keeps && (c == '\n' || c == '\r'));
        if (!isBlank && (c == '\n' || c == '\r')) continue;
        if (isBlank && !keeps && (result.empty() || result.back() == ' ')) continue;
        result += isBlank ? ' ' : c;
    }
    return keeps ? result : std::string(trimBlanks(result));
}

} // namespace

std::optional<Caption> captionOf(const XmlElement& element) {
    if (element.name() != "text" || !standsPlainly(element)) return std::nullopt;
    const auto text = element.text();
    const auto x = numberOf(element.attribute("x"));
    const auto y = numberOf(element.attribute("y"));
    const auto size = numberOf(inherited(element, "font-size", ""));
    const auto weight = meaningOf(weights, inherited(element, "font-weight", "normal"));
    const auto align = meaningOf(anchors, inherited(element, "text-anchor", "start"));
    const auto colour = colourOf(inherited(element, "fill", "#000000"));
    const bool isOurs =
        inherited(element, "font-family", "") == formFamily && inherited(element, "stroke", "none") == "none";
    if (!text || !x || !y || !size || !weight || !align || !colour || !isOurs) return std::nullopt;
    return Caption{.text = withItsBlanks(element, *text),
        .x = *x,
        .baseline = *y,
        .align = *align,
        .size = *size,
        .isBold = *weight,
        .colour = *colour};
}

} // namespace lodge
