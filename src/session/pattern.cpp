#include "session/pattern.h"

#include <cstddef>

namespace lodge {

bool matchesPattern(std::string_view text, std::string_view pattern) {
    std::size_t t = 0;
    std::size_t p = 0;
    // Where to go on when a later part does not fit: the star met last takes one character more.
    std::size_t star = std::string_view::npos;
    std::size_t taken = 0;
    while (t < text.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            taken = t;
        } else if (p < pattern.size() && pattern[p] == text[t]) {
            ++p;
            ++t;
        } else if (star != std::string_view::npos) {
            p = star + 1;
            t = ++taken;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

} // namespace lodge
