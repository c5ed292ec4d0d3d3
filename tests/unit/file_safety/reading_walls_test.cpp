#include "file/reading_limits.h"
#include "file/return_file.h"
#include "file/store_load.h"
#include "hostile_archives.h"
#include "temporary_folder.h"
#include "values/messages.h"
#include "zip_builder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <iostream>
#include <sys/stat.h>

namespace lodge {
namespace {

using namespace lodge::testing;
using ::testing::HasSubstr;
namespace fs = std::filesystem;

constexpr int machineYear = 2019;
const std::string returns = LODGE_TEST_DATA "/returns/";

std::string plainReturn() {
    const InnerFile file = readInnerFile(returns + "not-encoded/01055360003132561100N.txt");
    EXPECT_EQ(file.error, "");
    return file.bytes;
}

/// A plain return whose line of this number, from 1, is replaced.
std::string withLine(std::size_t number, const std::string& line) {
    std::string text = plainReturn();
    std::size_t begin = 0;
    for (std::size_t before = 1; before < number; ++before)
        begin = text.find("\r\n", begin) + 2;
    return text.replace(begin, text.find("\r\n", begin) - begin, line);
}

std::string refusalOfLine(std::size_t number) {
    return "ไม่สามารถอ่านไฟล์ข้อมูลได้ (บรรทัดที่ " + std::to_string(number) + ")";
}

void expectRefused(const std::string& text, std::size_t line) {
    ReturnState state;
    const ReadResult result = readReturn(text, state);
    EXPECT_EQ(result.status, ReadStatus::Unreadable);
    EXPECT_EQ(result.message, refusalOfLine(line));
}

void expectLoaded(const std::string& text) {
    ReturnState state;
    EXPECT_EQ(readReturn(text, state).status, ReadStatus::Loaded);
}

std::string tokens(std::size_t count) {
    std::string line = "|";
    for (std::size_t token = 0; token < count; ++token)
        line += "x|";
    return line;
}

// --- Lines ---

TEST(ReadingWalls, ALineOfMoreThan52TokensIsRefusedByItsNumber) {
    expectLoaded(withLine(17, tokens(52)));
    expectRefused(withLine(17, tokens(53)), 17);
    // Whatever the line is: one cut at every bar, a marker, a value, one behind the last.
    for (const std::size_t line : {1U, 2U, 156U, 226U, 261U})
        expectRefused(withLine(line, tokens(53)), line);
    expectRefused(plainReturn() + tokens(53), 262);
}

TEST(ReadingWalls, ALineOver64KiBIsRefusedByItsNumber) {
    const std::size_t most = std::size_t{64} << 10U;
    expectLoaded(withLine(5, "|" + std::string(most - 2, 'x') + "|"));
    expectRefused(withLine(5, "|" + std::string(most - 1, 'x') + "|"), 5);
    expectRefused(plainReturn() + std::string(most + 1, 'x'), 262); // Even behind the last line that is read.
}

TEST(ReadingWalls, MoreThanTenThousandLinesAreRefused) {
    std::string text = plainReturn();
    for (std::size_t line = 261; line < 10000; ++line)
        text += "\r\n";
    expectLoaded(text);
    expectRefused(text + "\r\n", 10001);
}

TEST(ReadingWalls, TheCommandLineIsHeldByTheSameWalls) {
    const TemporaryFolder folder;
    putBytes(folder / "long.txt", plainReturn() + std::string(70000, 'x'));
    EXPECT_THAT(readInnerFile(folder / "long.txt").error, HasSubstr("line 262"));
}

TEST(ReadingWalls, AShorterTextLoads) {
    ReturnState state;
    EXPECT_EQ(loadReturn(returns + "first-153-lines/01055360003132561100N.txt", state, machineYear).status,
        ReadStatus::Loaded);
}

// --- Files ---

TEST(ReadingWalls, ARenamedArchiveStillLoadsAndNothingIsUnpackedBesideIt) {
    const TemporaryFolder folder;
    const std::string packed = bytesOf(returns + "ordinary-company/01055360003132561100C.txt");
    for (const std::string name : {"my return.zip", "01055360003132561100C (1).txt", "ภ.ง.ด.txt", "return"}) {
        putBytes(folder / name, packed);
        ReturnState state;
        EXPECT_EQ(loadReturn(folder / name, state, machineYear).status, ReadStatus::Loaded) << name;
        EXPECT_EQ(state.strFldPage1[45], "0105536000313");
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 4);
}

TEST(ReadingWalls, AFolderFullOfReadOnlyFilesLoads) {
    const TemporaryFolder folder;
    putBytes(folder / "return.txt", bytesOf(returns + "ordinary-company/01055360003132561100C.txt"));
    fs::permissions(folder / "return.txt", fs::perms(0400));
    fs::permissions(folder.path(), fs::perms(0500));
    ReturnState state;
    EXPECT_EQ(loadReturn(folder / "return.txt", state, machineYear).status, ReadStatus::Loaded);
    fs::permissions(folder.path(), fs::perms(0700));
}

TEST(ReadingWalls, WhatIsNoOrdinaryFileIsNotOpened) {
    const TemporaryFolder folder;
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    fs::create_directory(folder / "folder");
    fs::create_symlink("/dev/zero", folder / "zeros");
    ReturnState state;
    for (const char* name : {"pipe", "folder", "zeros", "nothing"}) {
        const ReadResult result = loadReturn(folder / name, state, machineYear);
        EXPECT_EQ(result.status, ReadStatus::Unreadable) << name;
        EXPECT_NE(result.message, "");
    }
}

TEST(ReadingWalls, AFileOverTheLimitIsNotOpened) {
    const TemporaryFolder folder;
    putBytes(folder / "sparse", "");
    fs::resize_file(folder / "sparse", std::uintmax_t{1} << 40U);
    ReturnState state;
    EXPECT_EQ(loadReturn(folder / "sparse", state, machineYear).status, ReadStatus::Unreadable);
    putBytes(folder / "over", std::string(readingLimits.fileBytes + 1, 'P'));
    EXPECT_EQ(loadReturn(folder / "over", state, machineYear).status, ReadStatus::Unreadable);
    EXPECT_NE(readInnerFile(folder / "over").error, "");
}

// --- Whole loads ---

bool isEmpty(const ReturnState& state) {
    ReturnState empty;
    ReturnState copy = state;
    return returnLines(copy) == returnLines(empty);
}

TEST(ReadingWalls, ARefusedLoadLeavesAnEmptyReturn) {
    const TemporaryFolder folder;
    const std::vector<std::string> texts{withLine(200, tokens(60)), withLine(1, "-1"), "", "no return at all",
        build({.members = {{.content = "an archive in the archive"}}})};
    for (const std::string& text : texts) {
        putBytes(folder / "return.txt", build({.members = {{.content = text}}}));
        ReturnState state;
        const ReadResult result = loadReturn(folder / "return.txt", state, machineYear);
        EXPECT_NE(result.status, ReadStatus::Loaded);
        EXPECT_NE(result.message, "");
        EXPECT_TRUE(isEmpty(state)) << text.substr(0, 40);
    }
}

TEST(ReadingWalls, NoHostileArchiveLoads) {
    const TemporaryFolder folder;
    const std::string inner = plainReturn();
    for (const HostileArchive& archive : hostileArchives(inner)) {
        if (archive.memberCount != 1) continue;
        putBytes(folder / "return.txt", archive.bytes);
        ReturnState state;
        const ReadResult result = loadReturn(folder / "return.txt", state, machineYear);
        EXPECT_EQ(result.status, ReadStatus::Unreadable) << archive.story;
        EXPECT_THAT(result.message, ::testing::StartsWith("ไม่สามารถอ่านไฟล์ข้อมูลได้ (")) << archive.story;
        EXPECT_TRUE(isEmpty(state)) << archive.story;
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 1);
}

} // namespace
} // namespace lodge
