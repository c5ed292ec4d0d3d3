#include "hostile_archives.h"

#include "file/reading_limits.h"
#include "zip_builder.h"

#include <functional>

namespace lodge::testing {

namespace {

using Fault = ArchiveFault;
using namespace std::string_literals;

class Collection {
  public:
    explicit Collection(const std::string& inner) : inner(inner) {}

    void add(const std::string& story, Fault fault, std::string bytes, std::size_t memberCount = 1) {
        archives.push_back({story, fault, std::move(bytes), memberCount});
    }
    /// A right archive but for what `spoil` does to it.
    void spoilArchive(
        const std::string& story, Fault fault, const std::function<void(PlannedArchive&)>& spoil) {
        PlannedArchive plan{.members = {member()}};
        spoil(plan);
        add(story, fault, build(plan));
    }
    void spoilMember(
        const std::string& story, Fault fault, const std::function<void(PlannedMember&)>& spoil) {
        spoilArchive(story, fault, [&](PlannedArchive& plan) { spoil(plan.members.front()); });
    }
    [[nodiscard]] PlannedMember member() const { return {.content = inner}; }

    const std::string& inner;
    std::vector<HostileArchive> archives;
};

void addNoArchives(Collection& all) {
    all.add("empty", Fault::NotAnArchive, "");
    all.add("plain text", Fault::NotAnArchive, all.inner);
    all.add("gzip", Fault::NotAnArchive, "\x1f\x8b\x08" + std::string(200, 'x'));
    all.add("7z", Fault::NotAnArchive, "7z\xBC\xAF\x27\x1C" + std::string(200, 'x'));
    all.add("the beginning of an archive alone", Fault::NotAnArchive, "PK\x03\x04");
    all.add("an end without members", Fault::MemberCount, build({}));
    all.add("half an end", Fault::NotAnArchive, build({}).substr(0, 21));
    all.add("zeros up to the limit", Fault::NotAnArchive, std::string(readingLimits.fileBytes, '\0'));
    all.add("one byte over the limit", Fault::TooLarge, std::string(readingLimits.fileBytes + 1, 'P'));
    all.add("ends of archives up to the limit", Fault::MemberCount, [] {
        std::string bytes;
        while (bytes.size() + 22 <= readingLimits.fileBytes)
            bytes += build({});
        return bytes;
    }());
}

void addNames(Collection& all) {
    const std::vector<std::string> leadingOut{"../return.txt", "..\\return.txt", "a/../../return.txt",
        "a\\..\\return.txt", "..", "a/..", "/etc/passwd", "\\windows\\win.ini", "C:\\return.txt",
        "c:return.txt", "\\\\server\\share\\x", "", "return.txt\0.exe"s, "return\n.txt", "\x1b[2J.txt"};
    for (const std::string& name : leadingOut)
        all.spoilMember("name " + name, Fault::BadName, [&](PlannedMember& member) { member.name = name; });
    for (const char* name : {"return.txt/", "return.txt\\"}) {
        all.spoilMember(std::string("folder ") + name, Fault::NotAFile,
            [&](PlannedMember& member) { member.name = name; });
    }
}

void addKinds(Collection& all) {
    struct Kind {
        const char* story;
        std::uint32_t mode;
    };
    for (const Kind& kind :
        {Kind{"symbolic link", 0120777U}, Kind{"folder", 0040755U}, Kind{"pipe", 0010644U},
            Kind{"character device", 0020644U}, Kind{"block device", 0060644U}, Kind{"socket", 0140644U}}) {
        all.spoilMember(kind.story, Fault::NotAFile, [&](PlannedMember& member) {
            member.madeBy = 3;
            member.attributes = kind.mode << 16U;
        });
    }
    all.spoilMember("symbolic link that leads out", Fault::NotAFile, [](PlannedMember& member) {
        member.madeBy = 3;
        member.attributes = 0120777U << 16U;
        member.method = 0;
        member.content = "/etc/passwd";
    });
    all.spoilMember(
        "folder of DOS", Fault::NotAFile, [](PlannedMember& member) { member.attributes = 0x10; });
    all.spoilMember("volume label", Fault::NotAFile, [](PlannedMember& member) { member.attributes = 0x08; });
}

void addCounts(Collection& all) {
    PlannedMember other = all.member();
    other.name = "other.txt";
    all.add("two members", Fault::MemberCount, build({.members = {all.member(), other}}));
    all.add("one name twice", Fault::Contradiction, build({.members = {all.member(), all.member()}}), 2);
    all.add("one member where two are asked for", Fault::MemberCount, build({.members = {all.member()}}), 2);
    all.add("five thousand members", Fault::MemberCount,
        build({.members = std::vector<PlannedMember>(5000, {.content = "x", .method = 0})}));
    all.spoilArchive("two members claimed", Fault::MemberCount, [](auto& plan) { plan.count = 2; });
    all.spoilArchive("no member claimed", Fault::MemberCount, [](auto& plan) { plan.count = 0; });
    all.spoilArchive("65535 members claimed", Fault::MemberCount, [](auto& plan) { plan.count = 65535; });
    all.spoilArchive("counts contradict", Fault::Contradiction, [](auto& plan) { plan.countOfThisDisk = 2; });
    all.spoilArchive("another disk", Fault::Contradiction, [](auto& plan) { plan.disk = 1; });
    all.spoilMember("a member on another disk", Fault::Contradiction, [](auto& member) { member.disk = 3; });
    PlannedMember hidden = other;
    hidden.offset = 0;
    all.add("two names for one member", Fault::Contradiction, build({.members = {all.member(), hidden}}), 2);
}

void addBombs(Collection& all) {
    const std::string large(std::size_t{5} << 20U, '0');
    const std::string exact(readingLimits.memberBytes + 1, '0');
    all.spoilMember("bomb", Fault::UnpackedTooLarge, [&](PlannedMember& member) { member.content = large; });
    all.spoilMember("one byte over the limit unpacked", Fault::UnpackedTooLarge,
        [&](PlannedMember& member) { member.content = exact; });
    all.spoilMember("bomb that claims to be small", Fault::Damaged, [&](PlannedMember& member) {
        member.content = large;
        member.size = 12158;
    });
    all.spoilMember("bomb that claims the limit", Fault::Damaged, [&](PlannedMember& member) {
        member.content = large;
        member.size = static_cast<std::uint32_t>(readingLimits.memberBytes);
    });
    all.spoilMember("bomb of four gigabytes claimed", Fault::UnpackedTooLarge,
        [&](PlannedMember& member) { member.size = 0xFFFFFFFEU; });
    all.spoilMember("stored bomb of many bytes claimed", Fault::UnpackedTooLarge, [&](PlannedMember& member) {
        member.method = 0;
        member.size = 0x7FFFFFFFU;
    });
}

void addSizes(Collection& all) {
    const auto size = static_cast<std::uint32_t>(all.inner.size());
    const auto packedSize = static_cast<std::uint32_t>(deflated(all.inner).size());
    all.spoilMember("a byte more claimed", Fault::Damaged, [&](auto& member) { member.size = size + 1; });
    all.spoilMember("a byte less claimed", Fault::Damaged, [&](auto& member) { member.size = size - 1; });
    all.spoilMember("nothing claimed", Fault::Damaged, [&](auto& member) { member.size = 0; });
    all.spoilMember("packed: a byte more claimed", Fault::Contradiction,
        [&](auto& member) { member.packedSize = packedSize + 1; });
    all.spoilMember("packed: a byte less claimed", Fault::StrayBytes,
        [&](auto& member) { member.packedSize = packedSize - 1; });
    all.spoilMember("packed: more claimed than the file has", Fault::Contradiction,
        [&](auto& member) { member.packedSize = 0x7FFFFFFFU; });
    all.spoilMember("directory and member claim other sizes", Fault::Contradiction,
        [&](auto& member) { member.localSize = size + 1; });
    all.spoilMember("directory and member claim other packed sizes", Fault::Contradiction,
        [&](auto& member) { member.localPackedSize = packedSize - 1; });
    all.spoilMember("stored in two sizes", Fault::Contradiction, [&](PlannedMember& member) {
        member.method = 0;
        member.size = size - 1;
    });
    all.spoilMember("packed bytes cut short", Fault::Damaged,
        [&](auto& member) { member.packed = deflated(all.inner).substr(0, packedSize / 2); });
    all.spoilMember("packed bytes of nonsense", Fault::Damaged,
        [&](auto& member) { member.packed = std::string(packedSize, '\xFF'); });
    all.spoilMember("no packed bytes", Fault::Damaged, [&](auto& member) { member.packed = ""; });
}

void addCheckSums(Collection& all) {
    all.spoilMember("wrong check sum", Fault::Damaged, [](auto& member) { member.checkSum = 0x12345678; });
    all.spoilMember("wrong check sum, stored", Fault::Damaged, [](PlannedMember& member) {
        member.checkSum = 0;
        member.method = 0;
    });
    all.spoilMember("wrong check sum in the directory", Fault::Contradiction,
        [](auto& member) { member.directoryCheckSum = 0x12345678; });
    all.spoilMember("wrong check sum at the member", Fault::Contradiction,
        [](auto& member) { member.localCheckSum = 0x12345678; });
    all.spoilMember("wrong check sum, sizes behind the member", Fault::Damaged, [](PlannedMember& member) {
        member.flags = 0x0008;
        member.directoryCheckSum = 0x12345678;
    });
}

void addLargeForms(Collection& all) {
    const std::string record = "PK\x06\x06" + eight(44) + two(45) + two(45) + four(0) + four(0)
                               + eight(std::uint64_t{1} << 40U) + eight(std::uint64_t{1} << 40U)
                               + eight(std::uint64_t{1} << 50U) + eight(0);
    all.spoilArchive(
        "64-bit end with a million million members", Fault::Contradiction, [&](PlannedArchive& plan) {
            plan.behindDirectory = record + "PK\x06\x07" + four(0) + eight(1222) + four(1);
        });
    all.spoilArchive("64-bit end outside the file", Fault::Contradiction, [&](PlannedArchive& plan) {
        plan.behindDirectory = "PK\x06\x07" + four(0) + eight(~std::uint64_t{0} - 3) + four(1);
        plan.count = 0xFFFF;
        plan.directorySize = plan.directoryOffset = 0xFFFFFFFFU;
    });
    const auto large = [](std::uint64_t size) { return two(1) + two(16) + eight(size) + eight(size); };
    for (const std::uint64_t size : {std::uint64_t{12158}, std::uint64_t{1} << 63U, ~std::uint64_t{0}}) {
        all.spoilMember(
            "64-bit sizes of " + std::to_string(size), Fault::UnpackedTooLarge, [&](PlannedMember& member) {
                member.size = member.packedSize = 0xFFFFFFFFU;
                member.extra = member.localExtra = large(size);
            });
    }
    all.spoilMember("64-bit packed size", Fault::Contradiction, [&](PlannedMember& member) {
        member.packedSize = 0xFFFFFFFFU;
        member.extra = two(1) + two(8) + eight(1);
    });
    all.spoilMember("64-bit place", Fault::Contradiction, [&](PlannedMember& member) {
        member.offset = 0xFFFFFFFFU;
        member.extra = two(1) + two(8) + eight(0);
    });
}

void addLocks(Collection& all) {
    using Words = std::initializer_list<std::uint16_t>;
    for (const std::uint16_t flags : Words{0x0001, 0x0041, 0x2000}) {
        all.spoilMember("encrypted, flags " + std::to_string(flags), Fault::Encrypted,
            [&](PlannedMember& member) { member.flags = flags; });
    }
    all.spoilMember("encrypted says the member alone", Fault::Contradiction,
        [](PlannedMember& member) { member.localFlags = 0x0001; });
    for (const std::uint16_t method : Words{1, 6, 9, 12, 14, 95, 98, 99, 0xFFFF}) {
        all.spoilMember("packed by method " + std::to_string(method), Fault::Method,
            [&](PlannedMember& member) { member.method = method; });
    }
    all.spoilMember("another method says the member", Fault::Contradiction,
        [](PlannedMember& member) { member.localMethod = 0; });
    all.spoilMember("another name says the member", Fault::Contradiction,
        [](PlannedMember& member) { member.localName = "01055360003132561100NM.txt"; });
    all.spoilMember("deflated in the name, stored in truth", Fault::Damaged,
        [&](PlannedMember& member) { member.packed = all.inner; });
}

void addStrayBytes(Collection& all) {
    const std::string junk = "MZ this program cannot be run in DOS mode";
    all.spoilArchive("junk before, unknown to the offsets", Fault::StrayBytes, [&](PlannedArchive& plan) {
        plan.before = junk;
        plan.offsetsCountBefore = false;
    });
    all.spoilArchive("junk before", Fault::StrayBytes, [&](auto& plan) { plan.before = junk; });
    all.spoilArchive("junk behind", Fault::NotAnArchive, [&](auto& plan) { plan.behind = junk; });
    all.spoilArchive("a byte behind", Fault::NotAnArchive, [&](auto& plan) { plan.behind = "\n"; });
    all.spoilArchive(
        "junk before the directory", Fault::StrayBytes, [&](auto& plan) { plan.beforeDirectory = junk; });
    all.spoilArchive(
        "junk behind the directory", Fault::StrayBytes, [&](auto& plan) { plan.behindDirectory = junk; });
    all.spoilArchive(
        "a comment that is shorter than claimed", Fault::NotAnArchive, [&](PlannedArchive& plan) {
            plan.comment = junk;
            plan.commentLength = 1000;
        });
    all.spoilMember(
        "junk in place of the sizes behind the member", Fault::StrayBytes, [&](PlannedMember& member) {
            member.flags = 0x0008;
            member.descriptor = junk;
        });
    const std::string whole = build({.members = {all.member()}});
    all.add("two archives one behind the other", Fault::StrayBytes, whole + whole);
    all.spoilArchive(
        "an archive in the comment", Fault::StrayBytes, [&](auto& plan) { plan.comment = whole; });
}

void addPlaces(Collection& all) {
    const std::string whole = build({.members = {all.member()}});
    const auto size = static_cast<std::uint32_t>(whole.size());
    all.spoilMember(
        "a member outside the file", Fault::Contradiction, [&](auto& member) { member.offset = size; });
    all.spoilMember("a member in the directory", Fault::Contradiction,
        [&](auto& member) { member.offset = size - 22 - 72; });
    all.spoilMember(
        "a member inside a member", Fault::Contradiction, [&](auto& member) { member.offset = 4; });
    all.spoilArchive("a directory outside the file", Fault::Contradiction,
        [&](auto& plan) { plan.directoryOffset = 0x7FFFFFFFU; });
    all.spoilArchive(
        "a directory at the front", Fault::StrayBytes, [](auto& plan) { plan.directoryOffset = 0; });
    all.spoilArchive("a directory larger than it is", Fault::Contradiction,
        [](auto& plan) { plan.directorySize = 0x7FFFFFFFU; });
    all.spoilArchive("a directory of nothing", Fault::StrayBytes, [](auto& plan) { plan.directorySize = 0; });
    all.spoilMember("a name longer than the directory", Fault::Contradiction,
        [](auto& member) { member.nameLength = 0xFFFF; });
    all.spoilMember("an extra field longer than the directory", Fault::Contradiction,
        [](auto& member) { member.extraLength = 0xFFFF; });
    all.spoilMember(
        "a name shorter than it is", Fault::Contradiction, [](auto& member) { member.nameLength = 3; });
    all.spoilMember("a name longer than the file", Fault::Contradiction,
        [](auto& member) { member.localNameLength = 0xFFFF; });

    // Two members whose bytes overlap: the second is packed inside the first, stored one.
    const std::string quoted = build({.members = {{.name = "b.txt", .content = "inside", .method = 0}}});
    const std::size_t localPart = 30 + 5 + 6;
    PlannedMember outer{.name = "a.txt", .content = quoted.substr(0, localPart), .method = 0};
    PlannedMember inside{.name = "b.txt", .content = "inside", .method = 0, .offset = 35};
    all.add(
        "overlapping members", Fault::Contradiction,
        [&] {
            PlannedArchive plan{.members = {outer, inside}};
            return build(plan);
        }(),
        2);
}

} // namespace

std::vector<HostileArchive> hostileArchives(const std::string& inner) {
    Collection all(inner);
    addNoArchives(all);
    addNames(all);
    addKinds(all);
    addCounts(all);
    addBombs(all);
    addSizes(all);
    addCheckSums(all);
    addLargeForms(all);
    addLocks(all);
    addStrayBytes(all);
    addPlaces(all);
    return std::move(all.archives);
}

} // namespace lodge::testing
