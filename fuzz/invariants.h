// What must hold for any input. A breach aborts, which is how a fuzzer and the replay of its corpus learn of
// it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace lodge::fuzz {

/// Encoded and decoded again a line is the same; any line decodes.
void checkCodec(std::string_view bytes);

/// A text reads into a return or is refused with a message; a return that was read can be stored and read
/// again.
void checkReturnText(std::string_view bytes);

/// An archive is refused, or its members stay within the limits and are the same after they were packed
/// again.
void checkArchive(std::string_view bytes, std::size_t memberCount);

/// Encodes each line of a decoded text.
std::string encodeLines(std::string_view text);

/// The lines of an encoded text, decoded; damaged ones as they stand.
std::string decodeLines(std::string_view text);

} // namespace lodge::fuzz
