// Changes the text inside an archive and packs it again, sizes and check sum right, so that the fuzzer
// reaches what stands behind the walls. Half of the changes are made to the decoded lines, whose check values
// are then right, too.
#include "file/archive.h"
#include "invariants.h"

#include <algorithm>
#include <cstring>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace {

std::string mutate(std::string text) {
    constexpr std::size_t growth = 256;
    const std::size_t size = text.size();
    text.resize(size + growth);
    text.resize(LLVMFuzzerMutate(reinterpret_cast<std::uint8_t*>(text.data()), size, text.size()));
    return text;
}

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(
    std::uint8_t* data, std::size_t size, std::size_t maxSize, unsigned int seed) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const lodge::Unpacked unpacked = lodge::unpackArchive(bytes, 1);
    std::string text = unpacked.members.empty() ? std::string(bytes) : unpacked.members.front().content;
    const bool inDecoded = seed % 2 == 0;
    text = inDecoded ? lodge::fuzz::encodeLines(mutate(lodge::fuzz::decodeLines(text))) : mutate(text);
    const std::string packed = lodge::packArchive("01055360003132561100CM.txt", text, {}).bytes;
    if (packed.size() > maxSize) return size;
    std::memcpy(data, packed.data(), packed.size());
    return packed.size();
}
