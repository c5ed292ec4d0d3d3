#include "session/nearest_name.h"

#include <algorithm>
#include <limits>

namespace lodge {

namespace {

char small(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool same(char a, char b) { return small(a) == small(b); }

} // namespace

std::size_t editDistance(std::string_view a, std::string_view b) {
    // Three rows of the table of distances between all heads of `a` and all heads of `b`.
    std::vector<std::size_t> beforeLast(b.size() + 1);
    std::vector<std::size_t> last(b.size() + 1);
    std::vector<std::size_t> row(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j) {
        row[j] = j;
    }
    for (std::size_t i = 1; i <= a.size(); ++i) {
        beforeLast.swap(last);
        last.swap(row);
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t exchange = last[j - 1] + (same(a[i - 1], b[j - 1]) ? 0 : 1);
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, exchange});
            if (i > 1 && j > 1 && same(a[i - 1], b[j - 2]) && same(a[i - 2], b[j - 1])) {
                row[j] = std::min(row[j], beforeLast[j - 2] + 1);
            }
        }
    }
    return row[b.size()];
}

std::string nearestName(std::string_view name, const std::vector<std::string>& candidates) {
    std::string_view nearest;
    std::size_t smallest = std::numeric_limits<std::size_t>::max();
    for (const std::string& candidate : candidates) {
        const std::size_t distance = editDistance(name, candidate);
        if (distance < smallest) {
            smallest = distance;
            nearest = candidate;
        }
    }
    return std::string(nearest);
}

std::string nearestNameHint(std::string_view name, const std::vector<std::string>& candidates) {
    if (candidates.empty()) {
        return {};
    }
    return "; the nearest name is \"" + nearestName(name, candidates) + '"';
}

} // namespace lodge
