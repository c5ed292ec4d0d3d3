// Any bytes in place of an archive: refused, or members within the limits that survive being packed again.
#include "file/archive.h"
#include "invariants.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    for (const std::size_t memberCount : {1U, 2U})
        lodge::fuzz::checkArchive(bytes, memberCount);
    return 0;
}
