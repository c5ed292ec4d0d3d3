// How much of a file the program is willing to read. A return of 261 lines stays far below every limit; what
// exceeds one is refused before it costs memory or time.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lodge {

struct ReadingLimits {
    std::uint64_t memberBytes = 4U << 20U; ///< Of a member of an archive, unpacked.
    std::uint64_t fileBytes =
        (4U << 20U) + (64U << 10U);     ///< Of a chosen file: a stored member and its headers.
    std::size_t lineBytes = 64U << 10U; ///< Of a line, as it stands in the file.
    std::size_t lines = 10000;          ///< Of a text.
    std::size_t tokens = 52;            ///< Of a field line: as many as the form's reader ever had room for.
};

inline constexpr ReadingLimits readingLimits;

} // namespace lodge
