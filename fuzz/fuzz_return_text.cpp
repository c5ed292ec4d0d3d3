// The decoder with the layout behind it: any text of a return file is read, whatever stands in it, and what
// was read can was read can be stored and read again.
#include "file/line_codec.h"
#include "invariants.h"

// The first byte says how the rest is taken: as the bytes of a file, or as its decoded lines, which are
// encoded first, so that the fuzzer need not find the check values.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
    lodge::fuzz::checkCodec(bytes);
    if (data[0] % 2 == 0) {
        lodge::fuzz::checkReturnText(bytes);
    } else {
        lodge::fuzz::checkReturnText(lodge::fuzz::encodeLines(bytes));
    }
    return 0;
}
