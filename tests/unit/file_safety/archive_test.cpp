#include "file/archive.h"
#include "hostile_archives.h"
#include "temporary_folder.h"
#include "zip_builder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <iostream>
#include <set>

namespace lodge {
namespace {

using namespace lodge::testing;
namespace fs = std::filesystem;

const fs::path archives = fs::path(LODGE_TEST_DATA) / "archives";
const std::string name = "01055360003132561100CM.txt";

std::string innerText() { return bytesOf(archives / "inner.txt"); }

std::chrono::local_seconds aMoment() {
    using namespace std::chrono;
    return local_days{2018y / May / 31} + 23h + 59min + 59s;
}

std::uint64_t littleEndianAt(const std::string& bytes, std::size_t at, std::size_t width) {
    std::uint64_t number = 0;
    for (std::size_t place = width; place-- > 0;)
        number = number << 8U | static_cast<unsigned char>(bytes.at(at + place));
    return number;
}

// --- Packing ---

TEST(PackedArchive, ItHoldsTheOneMember) {
    const Packed packed = packArchive(name, innerText(), aMoment());
    ASSERT_EQ(packed.error, "");
    const Unpacked unpacked = unpackArchive(packed.bytes, 1);
    ASSERT_EQ(unpacked.fault, ArchiveFault::None);
    EXPECT_EQ(unpacked.members.at(0).name, name);
    EXPECT_EQ(unpacked.members.at(0).content, innerText());
}

TEST(PackedArchive, TheMemberIsAPlainDeflatedEntryOfADosMachine) {
    const std::string bytes = packArchive(name, innerText(), aMoment()).bytes;
    const std::size_t directory = littleEndianAt(bytes, bytes.size() - 6, 4);
    EXPECT_EQ(littleEndianAt(bytes, 8, 2), 8U);                            // deflated
    EXPECT_EQ(littleEndianAt(bytes, 28, 2), 0U);                           // no extra field
    EXPECT_EQ(littleEndianAt(bytes, directory + 5, 1), 0U);                // made by DOS
    EXPECT_EQ(littleEndianAt(bytes, directory + 30, 2), 0U);               // no extra field
    EXPECT_EQ(littleEndianAt(bytes, directory + 32, 2), 0U);               // no comment
    EXPECT_EQ(littleEndianAt(bytes, directory + 38, 4), 0U);               // no attributes
    EXPECT_EQ(littleEndianAt(bytes, 10, 2), 23U << 11U | 59U << 5U | 29U); // 23:59:58
    EXPECT_EQ(littleEndianAt(bytes, 12, 2), 38U << 9U | 5U << 5U | 31U);   // 31 May 2018
}

TEST(PackedArchive, TheSameReturnGivesTheSameBytesInEveryTimeZone) {
    const std::string here = packArchive(name, innerText(), aMoment()).bytes;
    ::setenv("TZ", "Asia/Bangkok", 1);
    ::tzset();
    const std::string there = packArchive(name, innerText(), aMoment()).bytes;
    ::unsetenv("TZ");
    ::tzset();
    EXPECT_EQ(here, there);
}

TEST(PackedArchive, AnEmptyMemberIsPackedToo) {
    const Packed packed = packArchive(name, "", aMoment());
    ASSERT_EQ(packed.error, "");
    const Unpacked unpacked = unpackArchive(packed.bytes, 1);
    ASSERT_EQ(unpacked.fault, ArchiveFault::None);
    EXPECT_EQ(unpacked.members.at(0).content, "");
}

// --- Archives of ordinary programs ---

TEST(OrdinaryArchive, EveryZipProgramsArchiveOfAReturnIsRead) {
    std::size_t count = 0;
    for (const auto& entry : fs::directory_iterator(archives / "ordinary")) {
        SCOPED_TRACE(entry.path().filename().string());
        const Unpacked unpacked = unpackArchive(bytesOf(entry.path()), 1);
        EXPECT_EQ(unpacked.fault, ArchiveFault::None) << faultCause(unpacked.fault);
        ASSERT_EQ(unpacked.members.size(), 1U);
        EXPECT_EQ(unpacked.members.front().content, innerText());
        ++count;
    }
    EXPECT_GE(count, 12U);
}

TEST(OrdinaryArchive, TwoMembersAreReadWhereTwoAreAskedFor) {
    const std::string bytes = build({.members = {{.name = "isiccode.txt", .content = "codes"},
                                         {.name = "country.txt", .content = "countries", .method = 0}}});
    const Unpacked unpacked = unpackArchive(bytes, 2);
    ASSERT_EQ(unpacked.fault, ArchiveFault::None);
    EXPECT_EQ(unpacked.members.at(0).content, "codes");
    EXPECT_EQ(unpacked.members.at(1).content, "countries");
}

TEST(OrdinaryArchive, AMemberOfExactlyTheLimitIsRead) {
    const std::string content(readingLimits.memberBytes, 'x');
    EXPECT_EQ(unpackArchive(build({.members = {{.content = content}}}), 1).fault, ArchiveFault::None);
    const std::string stored = build({.members = {{.content = content, .method = 0}}});
    EXPECT_EQ(unpackArchive(stored, 1).fault, ArchiveFault::None);
}

// --- Hostile ones ---

TEST(HostileArchive, EachIsRefusedByTheWallThatIsMeantForIt) {
    const auto all = hostileArchives(innerText());
    EXPECT_GE(all.size(), 50U);
    std::chrono::duration<double, std::milli> slowest{};
    std::string slowestStory;
    for (const HostileArchive& archive : all) {
        SCOPED_TRACE(archive.story);
        const auto begin = std::chrono::steady_clock::now();
        const Unpacked unpacked = unpackArchive(archive.bytes, archive.memberCount);
        const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - begin;
        EXPECT_EQ(faultCause(unpacked.fault), faultCause(archive.fault));
        EXPECT_TRUE(unpacked.members.empty());
        if (taken > slowest) {
            slowest = taken;
            slowestStory = archive.story;
        }
    }
    std::cout << all.size() << " hostile archives, the slowest refused in " << slowest.count() << " ms ("
              << slowestStory << ")\n";
}

TEST(HostileArchive, TheBuilderMakesRightArchivesWhenItIsNotAskedToSpoilThem) {
    const std::string bytes = build({.members = {{.content = innerText()}}});
    EXPECT_EQ(unpackArchive(bytes, 1).fault, ArchiveFault::None);
}

TEST(HostileArchive, EveryFaultHasACauseAndAThaiText) {
    std::set<std::string> causes;
    for (int number = 1; number <= static_cast<int>(ArchiveFault::Damaged); ++number) {
        const auto fault = static_cast<ArchiveFault>(number);
        causes.insert(std::string(faultCause(fault)));
        EXPECT_THAT(faultText(fault), ::testing::StartsWith("ไม่สามารถอ่านไฟล์ข้อมูลได้ ("));
    }
    EXPECT_EQ(causes.size(), static_cast<std::size_t>(ArchiveFault::Damaged));
    EXPECT_EQ(faultText(ArchiveFault::None), "");
}

} // namespace
} // namespace lodge
