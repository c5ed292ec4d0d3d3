// The text inside a right archive: whatever it is, the archive opens and the text is read.
// archive_mutator.cpp keeps the archive right while it changes the text.
#include "file/archive.h"
#include "invariants.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const lodge::Unpacked unpacked = lodge::unpackArchive(bytes, 1);
    if (unpacked.fault == lodge::ArchiveFault::None)
        lodge::fuzz::checkReturnText(unpacked.members.front().content);
    return 0;
}
