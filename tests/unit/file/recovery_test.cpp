// The copy of a return in hand: found when its program is gone, and at no other time.
#include "file/recovery.h"
#include "file/return_file.h"
#include "file/store_load.h"
#include "stored_returns.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace lodge {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t numberField = 45;

/// The encoded text of a return of that filer.
std::string textOf(const std::string& number) {
    ReturnState state;
    state.strStartDDMMYY = "01012561";
    state.strFinishDDMMYY = "31122561";
    state.strFldPage1[numberField] = number;
    state.strFldPage3_3[20] = "1000.00";
    return encodeReturn(state);
}

class RecoveryTest : public ::testing::Test {
  protected:
    /// A program that has written its copy and is gone without its end.
    void leaveCopy(const std::string& number) const {
        RecoveryWriter writer(folder);
        writer.write(textOf(number));
        writer.flush();
    }
    [[nodiscard]] std::string onlyCopy() const {
        std::string found;
        for (const auto& entry : fs::directory_iterator(folder))
            if (entry.path().extension() == ".txt") found = entry.path().string();
        return found;
    }
    [[nodiscard]] bool isEmpty() const { return !fs::exists(folder) || fs::is_empty(folder); }

    WorkFolder work;
    std::string folder = work.path("state/lodge77/recovery/");
};

TEST(RecoveryFolder, StandsInTheStateFolderOfTheUser) {
    EXPECT_EQ(recoveryFolder("/s", "/home/a"), "/s/lodge77/recovery/");
    EXPECT_EQ(recoveryFolder("", "/home/a"), "/home/a/.local/state/lodge77/recovery/");
    EXPECT_EQ(recoveryFolder("relative", "/home/a"), "/home/a/.local/state/lodge77/recovery/");
    EXPECT_EQ(recoveryFolder("", ""), "");
}

TEST_F(RecoveryTest, ACopyIsFoundOnceItsProgramIsGone) {
    {
        RecoveryWriter writer(folder);
        writer.write(textOf("0105536000313"));
        writer.flush();
        EXPECT_FALSE(findRecovered(folder)) << "its program is still there";
    }
    const auto found = findRecovered(folder);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->note.number, "0105536000313");
    EXPECT_EQ(found->note.start, "01012561");
    EXPECT_EQ(found->note.finish, "31122561");
    EXPECT_EQ(found->note.path, found->slot.path());
    EXPECT_LE(std::chrono::system_clock::now() - found->note.storedAt, std::chrono::minutes(1));
}

TEST_F(RecoveryTest, AProgramThatIsKilledLeavesALoadableCopy) {
    std::array<int, 2> ready{};
    ASSERT_EQ(::pipe(ready.data()), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        RecoveryWriter writer(folder);
        writer.write(textOf("0105536000313"));
        writer.flush();
        (void)!::write(ready[1], "x", 1);
        ::pause();
    }
    char sign = 0;
    ASSERT_EQ(::read(ready[0], &sign, 1), 1);
    EXPECT_FALSE(findRecovered(folder)) << "the other program is still there";
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    const auto found = findRecovered(folder);
    ASSERT_TRUE(found);
    ReturnState state;
    EXPECT_EQ(loadReturn(found->note.path, state, 2561).status, ReadStatus::Loaded);
    EXPECT_EQ(state.strFldPage3_3[20], "1000.00");
}

TEST_F(RecoveryTest, TheLastTextIsTheCopy) {
    {
        RecoveryWriter writer(folder);
        for (const char* number : {"0105536000313", "0105540000128", "0105536000321"})
            writer.write(textOf(number));
        writer.flush();
    }
    const auto found = findRecovered(folder);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->note.number, "0105536000321");
}

TEST_F(RecoveryTest, WhatIsUnderWayIsWrittenBeforeTheWriterGoes) {
    RecoveryWriter(folder).write(textOf("0105536000313"));
    EXPECT_TRUE(findRecovered(folder));
}

TEST_F(RecoveryTest, RemovingLeavesNothingAndTheNextTextBeginsAnew) {
    RecoveryWriter writer(folder);
    writer.write(textOf("0105536000313"));
    writer.remove();
    EXPECT_TRUE(isEmpty());
    writer.write(textOf("0105536000313"));
    writer.flush();
    EXPECT_FALSE(onlyCopy().empty());
    writer.remove();
    writer.remove();
    EXPECT_TRUE(isEmpty());
}

TEST_F(RecoveryTest, TwoProgramsKeepACopyEach) {
    RecoveryWriter one(folder);
    RecoveryWriter other(folder);
    one.write(textOf("0105536000313"));
    other.write(textOf("0105540000128"));
    one.flush();
    other.flush();
    other.remove();
    EXPECT_FALSE(onlyCopy().empty());
    EXPECT_FALSE(findRecovered(folder));
    one.remove();
    EXPECT_TRUE(isEmpty());
}

TEST_F(RecoveryTest, ACopyThatIsLookedAtIsNotOfferedToAnotherProgram) {
    leaveCopy("0105536000313");
    const auto here = findRecovered(folder);
    ASSERT_TRUE(here);
    EXPECT_FALSE(findRecovered(folder));
}

TEST_F(RecoveryTest, ACopyThatIsThrownAwayIsGoneAndTheOneBeforeItIsNext) {
    leaveCopy("0105536000313");
    const std::string older = onlyCopy();
    fs::last_write_time(older, fs::file_time_type::clock::now() - std::chrono::hours(1));
    leaveCopy("0105540000128");
    {
        const auto newest = findRecovered(folder);
        ASSERT_TRUE(newest);
        EXPECT_EQ(newest->note.number, "0105540000128");
        newest->slot.clear();
    }
    {
        const auto next = findRecovered(folder);
        ASSERT_TRUE(next);
        EXPECT_EQ(next->note.number, "0105536000313");
        next->slot.clear();
    }
    EXPECT_FALSE(findRecovered(folder));
    EXPECT_TRUE(isEmpty());
}

TEST_F(RecoveryTest, AHalfWrittenCopyIsNeverOffered) {
    leaveCopy("0105536000313");
    const std::string copy = onlyCopy();
    const auto whole = fs::file_size(copy);
    for (const auto size : {whole - 1, whole / 2, std::uintmax_t{0}}) {
        fs::resize_file(copy, size);
        EXPECT_FALSE(findRecovered(folder)) << size;
        EXPECT_TRUE(fs::exists(copy));
    }
}

TEST_F(RecoveryTest, ADamagedCopyIsPassedOverForAnOlderSoundOne) {
    leaveCopy("0105536000313");
    fs::last_write_time(onlyCopy(), fs::file_time_type::clock::now() - std::chrono::hours(1));
    const std::string sound = onlyCopy();
    leaveCopy("0105540000128");
    for (const auto& entry : fs::directory_iterator(folder)) {
        if (entry.path().extension() != ".txt" || entry.path() == sound) continue;
        std::fstream file(entry.path(), std::ios::in | std::ios::out | std::ios::binary);
        file.seekp(static_cast<std::streamoff>(entry.file_size() / 2));
        file.write("\xFF\xFF\xFF", 3);
    }
    const auto found = findRecovered(folder);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->note.number, "0105536000313");
}

TEST_F(RecoveryTest, AnAdoptedCopyIsWrittenOverInItsPlace) {
    leaveCopy("0105536000313");
    auto found = findRecovered(folder);
    ASSERT_TRUE(found);
    const std::string path = found->note.path;
    RecoveryWriter writer(folder);
    writer.adopt(std::move(found->slot));
    EXPECT_TRUE(fs::exists(path)) << "nothing is lost before there is something newer";
    writer.write(textOf("0105540000128"));
    writer.flush();
    EXPECT_EQ(onlyCopy(), path);
    writer.remove();
    EXPECT_TRUE(isEmpty());
}

TEST_F(RecoveryTest, ALockWithoutACopyIsSweptAway) {
    fs::create_directories(folder);
    std::ofstream(folder + "0123456789abcdef.lock") << "";
    EXPECT_FALSE(findRecovered(folder));
    EXPECT_TRUE(isEmpty());
}

TEST_F(RecoveryTest, WhereNothingCanBeWrittenNothingHappens) {
    std::ofstream(work.path("state")) << "a file where the folder should be";
    RecoveryWriter writer(folder);
    writer.write(textOf("0105536000313"));
    writer.flush();
    writer.remove();
    EXPECT_FALSE(findRecovered(folder));
    RecoveryWriter nowhere("");
    nowhere.write(textOf("0105536000313"));
    nowhere.flush();
    EXPECT_FALSE(findRecovered(""));
}

TEST_F(RecoveryTest, TheNewestAutomaticStoreIsTheLastSoundOneOfItsKind) {
    ReturnState state;
    state.strStartDDMMYY = "01012561";
    state.strFinishDDMMYY = "31122561";
    const auto store = [&](const std::string& number, const std::string& type, int hoursAgo) {
        state.strFldPage1[numberField] = number;
        state.strStoreType = type;
        const StoreResult stored = storeReturn(
            state, work.path(""), number, std::chrono::local_days{std::chrono::year{2019} / 5 / 20});
        ASSERT_EQ(stored.error, "");
        fs::last_write_time(
            stored.packedPath, fs::file_time_type::clock::now() - std::chrono::hours(hoursAgo));
    };
    EXPECT_FALSE(newestAutomaticStore(work.path("")));
    store("0105536000313", "T", 3);
    store("0105540000128", "T", 2);
    store("0105536000321", "N", 1);
    std::ofstream(work.path("damagedT.txt")) << "PK no archive";
    const auto newest = newestAutomaticStore(work.path(""));
    ASSERT_TRUE(newest);
    EXPECT_EQ(newest->number, "0105540000128");
    EXPECT_FALSE(newestAutomaticStore(work.path("missing")));
}

} // namespace
} // namespace lodge
