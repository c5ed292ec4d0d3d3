#include "zip_builder.h"

#include <stdexcept>
#include <zlib.h>

namespace lodge::testing {

namespace {

std::string littleEndian(std::uint64_t number, std::size_t width) {
    std::string bytes;
    for (std::size_t place = 0; place < width; ++place)
        bytes += static_cast<char>(static_cast<unsigned char>(number >> (8 * place) & 0xFFU));
    return bytes;
}

std::uint32_t checkSumOf(const std::string& content) {
    return static_cast<std::uint32_t>(
        crc32(0, reinterpret_cast<const Bytef*>(content.data()), static_cast<uInt>(content.size())));
}

std::string packedBytes(const PlannedMember& member) {
    if (member.packed) return *member.packed;
    return member.method == 8 ? deflated(member.content) : member.content;
}

std::uint32_t truth(std::size_t size) { return static_cast<std::uint32_t>(size); }

std::string localHeader(const PlannedMember& member) {
    const std::string name = member.localName.value_or(member.name);
    const std::uint32_t sum = member.checkSum.value_or(checkSumOf(member.content));
    const std::uint32_t packedSize = member.packedSize.value_or(truth(packedBytes(member).size()));
    const std::uint32_t size = member.size.value_or(truth(member.content.size()));
    return "PK\x03\x04" + two(20) + two(member.localFlags.value_or(member.flags))
           + two(member.localMethod.value_or(member.method)) + two(0) + two(0x21)
           + four(member.localCheckSum.value_or(sum)) + four(member.localPackedSize.value_or(packedSize))
           + four(member.localSize.value_or(size)) + two(member.localNameLength.value_or(name.size()))
           + two(member.localExtra.size()) + name + member.localExtra;
}

std::string directoryEntry(const PlannedMember& member, std::size_t offset) {
    const std::uint32_t sum = member.checkSum.value_or(checkSumOf(member.content));
    const std::uint32_t packedSize = member.packedSize.value_or(truth(packedBytes(member).size()));
    const std::uint32_t size = member.size.value_or(truth(member.content.size()));
    return "PK\x01\x02" + two(static_cast<std::uint64_t>(member.madeBy) << 8U | 20U) + two(20)
           + two(member.flags) + two(member.method) + two(0) + two(0x21)
           + four(member.directoryCheckSum.value_or(sum))
           + four(member.directoryPackedSize.value_or(packedSize)) + four(member.directorySize.value_or(size))
           + two(member.nameLength.value_or(member.name.size()))
           + two(member.extraLength.value_or(member.extra.size())) + two(0) + two(member.disk) + two(0)
           + four(member.attributes) + four(member.offset.value_or(truth(offset))) + member.name
           + member.extra;
}

} // namespace

std::string two(std::uint64_t number) { return littleEndian(number, 2); }
std::string four(std::uint64_t number) { return littleEndian(number, 4); }
std::string eight(std::uint64_t number) { return littleEndian(number, 8); }

std::string deflated(const std::string& content, int level) {
    z_stream stream{};
    if (deflateInit2(&stream, level, Z_DEFLATED, -MAX_WBITS, 8, Z_DEFAULT_STRATEGY) != Z_OK)
        throw std::runtime_error("deflateInit2");
    std::string packed(deflateBound(&stream, content.size()), '\0');
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(content.data()));
    stream.avail_in = static_cast<uInt>(content.size());
    stream.next_out = reinterpret_cast<Bytef*>(packed.data());
    stream.avail_out = static_cast<uInt>(packed.size());
    const int result = deflate(&stream, Z_FINISH);
    packed.resize(stream.total_out);
    deflateEnd(&stream);
    if (result != Z_STREAM_END) throw std::runtime_error("deflate");
    return packed;
}

std::string build(const PlannedArchive& plan) {
    std::string bytes = plan.before;
    const std::size_t shift = plan.offsetsCountBefore ? 0 : plan.before.size();
    std::string directory;
    for (const PlannedMember& member : plan.members) {
        directory += directoryEntry(member, bytes.size() - shift);
        bytes += localHeader(member) + packedBytes(member) + member.descriptor;
    }
    bytes += plan.beforeDirectory;
    const std::uint32_t begin = truth(bytes.size() - shift);
    bytes += directory + plan.behindDirectory;
    const auto count = static_cast<std::uint16_t>(plan.members.size());
    return bytes + "PK\x05\x06" + two(plan.disk.value_or(0)) + two(plan.disk.value_or(0))
           + two(plan.countOfThisDisk.value_or(plan.count.value_or(count))) + two(plan.count.value_or(count))
           + four(plan.directorySize.value_or(truth(directory.size())))
           + four(plan.directoryOffset.value_or(begin))
           + two(plan.commentLength.value_or(plan.comment.size())) + plan.comment + plan.behind;
}

} // namespace lodge::testing
