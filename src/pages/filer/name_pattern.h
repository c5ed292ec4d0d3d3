// The patterns that a search by name understands: "*" any run of characters, "?" one character, "#" one
// digit,
// "[...]" one character of a set, in which "a-z" is a range and a leading "!" means all others. Everything
// else is itself. Upper and lower case are the same. A "[" that nothing closes is itself.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lodge {

class NamePattern {
  public:
    explicit NamePattern(std::string_view pattern);

    /// Whether the whole text is of the pattern. Takes time in proportion to both lengths at most.
    [[nodiscard]] bool matches(std::string_view text) const;

  private:
    struct Range {
        char32_t first;
        char32_t last;
    };
    struct Element {
        enum class Kind { Run, Any, Digit, Set, Itself } kind;
        char32_t character = 0;
        bool allOthers = false;
        std::vector<Range> ranges = {};

        [[nodiscard]] bool takes(char32_t c) const;
    };

    /// Reads the set that begins behind a "[" at `at`; false when nothing closes it.
    bool readSet(const std::u32string& pattern, std::size_t& at);

    std::vector<Element> elements_;
};

} // namespace lodge
