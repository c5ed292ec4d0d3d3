#include "pages/filer/name_pattern.h"

#include "values/text.h"

#include <algorithm>
#include <utility>

namespace lodge {

namespace {

char32_t folded(char32_t c) { return c >= U'A' && c <= U'Z' ? c - U'A' + U'a' : c; }

std::u32string foldedCharacters(std::string_view text) {
    std::u32string characters;
    characters.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        characters += folded(nextCharacter(text, at));
    }
    return characters;
}

} // namespace

bool NamePattern::Element::takes(char32_t c) const {
    switch (kind) {
    case Kind::Run:
    case Kind::Any: return true;
    case Kind::Digit: return c >= U'0' && c <= U'9';
    case Kind::Itself: return c == character;
    case Kind::Set:
        return std::ranges::any_of(ranges, [c](const Range& r) { return c >= r.first && c <= r.last; })
               != allOthers;
    }
    return false;
}

NamePattern::NamePattern(std::string_view pattern) {
    const std::u32string characters = foldedCharacters(pattern);
    for (std::size_t at = 0; at < characters.size();) {
        const char32_t c = characters[at++];
        switch (c) {
        case U'*': elements_.push_back({.kind = Element::Kind::Run}); break;
        case U'?': elements_.push_back({.kind = Element::Kind::Any}); break;
        case U'#': elements_.push_back({.kind = Element::Kind::Digit}); break;
        case U'[':
            if (readSet(characters, at)) {
                break;
            }
            [[fallthrough]];
        default: elements_.push_back({.kind = Element::Kind::Itself, .character = c}); break;
        }
    }
}

bool NamePattern::readSet(const std::u32string& pattern, std::size_t& at) {
    const std::size_t end = pattern.find(U']', at);
    if (end == std::u32string::npos) {
        return false;
    }
    Element set{.kind = Element::Kind::Set};
    if (pattern[at] == U'!') {
        set.allOthers = true;
        ++at;
    }
    while (at < end) {
        const char32_t first = pattern[at++];
        char32_t last = first;
        if (at + 1 < end && pattern[at] == U'-') {
            last = pattern[at + 1];
            at += 2;
        }
        set.ranges.push_back({.first = std::min(first, last), .last = std::max(first, last)});
    }
    at = end + 1;
    if (!set.ranges.empty()) { // an empty set stands for no character at all
        elements_.push_back(std::move(set));
    }
    return true;
}

bool NamePattern::matches(std::string_view text) const {
    const std::u32string characters = foldedCharacters(text);
    std::size_t at = 0;
    std::size_t element = 0;
    // The last "*" seen and where its run ends so far; a mismatch behind it lets the run take one more.
    std::size_t run = elements_.size();
    std::size_t runEnd = 0;
    while (at < characters.size()) {
        if (element < elements_.size() && elements_[element].kind == Element::Kind::Run) {
            run = element++;
            runEnd = at;
        } else if (element < elements_.size() && elements_[element].takes(characters[at])) {
            ++element;
            ++at;
        } else if (run < elements_.size()) {
            element = run + 1;
            at = ++runEnd;
        } else {
            return false;
        }
    }
    return std::all_of(elements_.begin() + static_cast<std::ptrdiff_t>(element), elements_.end(),
        [](const Element& rest) { return rest.kind == Element::Kind::Run; });
}

} // namespace lodge
