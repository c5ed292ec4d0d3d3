#include "failing_files.h"
#include "file/safe_writer.h"
#include "temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <set>
#include <sys/stat.h>
#include <unistd.h>

namespace lodge {
namespace {

using namespace lodge::testing;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;
namespace fs = std::filesystem;

const std::string name = "01055360003132561100C.txt";
const std::string earlier(3000, 'e');
const std::string newer(5000, 'n');

std::set<std::string> namesOf(const fs::path& folder) {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder))
        names.insert(entry.path().filename().string());
    return names;
}

mode_t modeOf(const std::string& path) {
    struct stat entry {};
    EXPECT_EQ(::lstat(path.c_str(), &entry), 0);
    return entry.st_mode & 07777U;
}

// --- What a store does ---

TEST(SafeWriter, AStoreLeavesTheBytesUnderTheNameAndNothingElse) {
    const TemporaryFolder folder;
    SystemFiles files;
    EXPECT_TRUE(storeSafely(files, folder / name, newer).ok());
    EXPECT_EQ(bytesOf(folder / name), newer);
    EXPECT_THAT(namesOf(folder.path()), UnorderedElementsAre(name));
}

TEST(SafeWriter, AnEmptyFileIsStoredAsWell) {
    const TemporaryFolder folder;
    SystemFiles files;
    EXPECT_TRUE(storeSafely(files, folder / name, "").ok());
    EXPECT_TRUE(fs::exists(folder / name));
    EXPECT_EQ(bytesOf(folder / name), "");
}

TEST(SafeWriter, AFileOfTheNameIsReplaced) {
    const TemporaryFolder folder;
    SystemFiles files;
    putBytes(folder / name, earlier);
    EXPECT_TRUE(storeSafely(files, folder / name, newer).ok());
    EXPECT_EQ(bytesOf(folder / name), newer);
}

TEST(SafeWriter, ItsUserAloneCanReadWhatIsStored) {
    const TemporaryFolder folder;
    SystemFiles files;
    putBytes(folder / name, earlier);
    fs::permissions(folder / name, fs::perms(0644));
    EXPECT_TRUE(storeSafely(files, folder / name, newer).ok());
    EXPECT_EQ(modeOf(folder / name), 0600U);
}

TEST(SafeWriter, ANameAloneIsStoredInTheCurrentFolder) {
    const TemporaryFolder folder;
    const fs::path before = fs::current_path();
    fs::current_path(folder.path());
    SystemFiles files;
    const SafeStoreResult result = storeSafely(files, name, newer);
    fs::current_path(before);
    EXPECT_TRUE(result.ok());
    EXPECT_EQ(bytesOf(folder / name), newer);
}

TEST(SafeWriter, TheBytesReachTheDiskBeforeTheNameAndTheFolderAfterIt) {
    const TemporaryFolder folder;
    SystemFiles real;
    FailingFiles files(real, {});
    ASSERT_TRUE(storeSafely(files, folder / name, newer).ok());
    EXPECT_THAT(files.names(), ::testing::ElementsAre("kindOf", "openFolder", "namesIn", "createFile",
                                   "write", "sync", "close", "rename", "sync", "close"));
}

// --- Links and what else may have the name ---

TEST(SafeWriter, ASymbolicLinkStaysALinkAndItsFileIsReplaced) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "data");
    putBytes(folder / "data/kept.txt", earlier);
    fs::create_symlink("data/kept.txt", folder / name);
    SystemFiles files;
    EXPECT_TRUE(storeSafely(files, folder / name, newer).ok());
    EXPECT_EQ(fs::read_symlink(folder / name), "data/kept.txt");
    EXPECT_EQ(bytesOf(folder / "data/kept.txt"), newer);
    EXPECT_THAT(namesOf(folder / "data"), UnorderedElementsAre("kept.txt"));
}

TEST(SafeWriter, AChainOfLinksIsFollowedToItsEnd) {
    const TemporaryFolder folder;
    fs::create_symlink("second", folder / name);
    fs::create_symlink(folder / "third", folder / "second");
    SystemFiles files;
    EXPECT_TRUE(storeSafely(files, folder / name, newer).ok());
    EXPECT_TRUE(fs::is_symlink(folder / "second"));
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(folder / "third")));
    EXPECT_EQ(bytesOf(folder / "third"), newer);
}

TEST(SafeWriter, LinksInACircleAreRefused) {
    const TemporaryFolder folder;
    fs::create_symlink("second", folder / name);
    fs::create_symlink(name, folder / "second");
    SystemFiles files;
    const SafeStoreResult result = storeSafely(files, folder / name, newer);
    EXPECT_EQ(result.step, StoreStep::FindTarget);
    EXPECT_EQ(result.error, ELOOP);
}

TEST(SafeWriter, AFolderOfTheNameIsLeftAlone) {
    const TemporaryFolder folder;
    fs::create_directory(folder / name);
    SystemFiles files;
    const SafeStoreResult result = storeSafely(files, folder / name, newer);
    EXPECT_EQ(result.error, EISDIR);
    EXPECT_TRUE(fs::is_directory(folder / name));
    EXPECT_EQ(storeSafely(files, folder.path().string() + "/", newer).error, EISDIR);
}

TEST(SafeWriter, APipeOfTheNameIsLeftAlone) {
    const TemporaryFolder folder;
    ASSERT_EQ(::mkfifo((folder / name).c_str(), 0600), 0);
    SystemFiles files;
    EXPECT_EQ(storeSafely(files, folder / name, newer).error, EINVAL);
    EXPECT_TRUE(fs::is_fifo(folder / name));
}

// --- What earlier crashes left ---

TEST(SafeWriter, ALeftOverOfTheSameFileIsSweptAndNoOtherFileIsTouched) {
    const TemporaryFolder folder;
    const std::string leftOver = "." + name + ".lodge77-00c0ffee00c0ffee.part";
    const std::set<std::string> others{
        ".01055360003132561100N.txt.lodge77-00c0ffee00c0ffee.part", // Of another return.
        "." + name + ".lodge77-00c0ffee00c0ffe.part",               // One digit short.
        "." + name + ".lodge77-00c0ffee00c0ffeg.part",              // Not a number.
        "." + name + ".lodge77-00c0ffee00c0ffee.part~",             //
        name + ".bak",
    };
    putBytes(folder / leftOver, "half of");
    for (const std::string& other : others)
        putBytes(folder / other, "kept");
    fs::create_directory(folder / ("." + name + ".lodge77-00c0ffee00c0ffed.part"));

    SystemFiles files;
    EXPECT_TRUE(storeSafely(files, folder / name, newer).ok());
    std::set<std::string> wanted = others;
    wanted.insert(name);
    wanted.insert("." + name + ".lodge77-00c0ffee00c0ffed.part");
    EXPECT_EQ(namesOf(folder.path()), wanted);
}

TEST(SafeWriter, AFileThatIsSweptByNameMustBeAFile) {
    const TemporaryFolder folder;
    putBytes(folder / "target", "kept");
    fs::create_symlink("target", folder / "link");
    putBytes(folder / "file", "gone");
    fs::create_directory(folder / "folder");
    SystemFiles files;
    for (const char* entry : {"link", "file", "folder", "nothing"})
        sweepFile(files, folder / entry);
    EXPECT_THAT(namesOf(folder.path()), UnorderedElementsAre("target", "link", "folder"));
}

// --- Failures ---

constexpr std::array injectedErrors{ENOSPC, EIO, EDQUOT, EINTR, EACCES, EROFS};

// A store over an earlier file with this fault. Afterwards one of the two is there, whole, and the new one
// when the store says so.
void storeWith(const Fault& fault) {
    const TemporaryFolder folder;
    putBytes(folder / name, earlier);
    SystemFiles real;
    FailingFiles files(real, fault);
    const SafeStoreResult result = storeSafely(files, folder / name, newer);
    const std::string found = bytesOf(folder / name);
    if (result.ok() || (fault.thoughDone && !result.leftEarlierFile())) {
        EXPECT_TRUE(result.ok() ? found == newer : (found == newer || found == earlier));
    } else if (result.leftEarlierFile() || result.step == StoreStep::Replace) {
        EXPECT_EQ(found, earlier);
    } else {
        EXPECT_EQ(found, newer); // The folder could not be synced.
    }
    if (!result.ok()) {
        EXPECT_EQ(result.error, fault.error);
    }
    // A fault that passes leaves no rubbish behind; one that does not may also hinder the cleaning.
    if (!fault.fromThenOn && !fault.thoughDone) {
        EXPECT_THAT(namesOf(folder.path()), UnorderedElementsAre(name));
    }
    EXPECT_EQ(storeFailureText(result).empty(), result.ok());
}

std::size_t callsOfAStore(std::size_t mostBytesAWrite) {
    const TemporaryFolder folder;
    putBytes(folder / name, earlier);
    SystemFiles real;
    FailingFiles files(real, {.mostBytesAWrite = mostBytesAWrite});
    EXPECT_TRUE(storeSafely(files, folder / name, newer).ok());
    EXPECT_EQ(bytesOf(folder / name), newer);
    return files.calls();
}

TEST(SafeWriterFaults, EveryErrorAtEveryCallLeavesOneOfTheTwoFilesWholeAndIsNeverCalledStored) {
    for (const std::size_t mostBytes : {Fault::never, std::size_t{1999}}) {
        const std::size_t calls = callsOfAStore(mostBytes);
        for (std::size_t call = 0; call < calls; ++call) {
            for (const int error : injectedErrors) {
                for (const bool fromThenOn : {false, true}) {
                    SCOPED_TRACE(::testing::Message()
                                 << "call " << call << ", errno " << error << ", from then on " << fromThenOn
                                 << ", write " << mostBytes);
                    storeWith({.failAt = call,
                        .error = error,
                        .fromThenOn = fromThenOn,
                        .mostBytesAWrite = mostBytes});
                }
            }
        }
    }
}

TEST(SafeWriterFaults, ACallThatHadItsEffectAndStillFailsIsNoStoreEither) {
    const std::size_t calls = callsOfAStore(Fault::never);
    for (std::size_t call = 0; call < calls; ++call) {
        SCOPED_TRACE(call);
        storeWith({.failAt = call, .error = EIO, .thoughDone = true});
    }
}

TEST(SafeWriterFaults, AStoreThatFailsOnlyWhereNothingIsLostGoesThrough) {
    // By the name of the call: what a failure of it, once, may end in.
    const TemporaryFolder folder;
    SystemFiles real;
    FailingFiles counting(real, {});
    ASSERT_TRUE(storeSafely(counting, folder / name, newer).ok());
    for (std::size_t call = 0; call < counting.calls(); ++call) {
        const std::string& failing = counting.names().at(call);
        SCOPED_TRACE(failing);
        FailingFiles files(real, {.failAt = call, .error = EIO});
        const bool mayPass =
            failing == "namesIn" || call + 1 == counting.calls(); // The sweep; the folder's close.
        EXPECT_EQ(storeSafely(files, folder / name, newer).ok(), mayPass);
        EXPECT_TRUE(files.struck());
    }
}

TEST(SafeWriterFaults, KilledBeforeAnyCallTheUserHasTheEarlierFileOrTheNewOneAndTheNextStoreCleansUp) {
    for (const std::size_t mostBytes : {Fault::never, std::size_t{700}}) {
        const std::size_t calls = callsOfAStore(mostBytes);
        for (std::size_t call = 0; call < calls; ++call) {
            SCOPED_TRACE(call);
            const TemporaryFolder folder;
            putBytes(folder / name, earlier);
            SystemFiles real;
            FailingFiles files(real, {.killBefore = call, .mostBytesAWrite = mostBytes});
            try {
                (void)storeSafely(files, folder / name, newer);
            } catch (
                const Killed&) { // NOLINT(bugprone-empty-catch): what is left on the disk is looked at below.
            }
            EXPECT_TRUE(files.struck());
            const std::string found = bytesOf(folder / name);
            EXPECT_TRUE(found == earlier || found == newer);

            EXPECT_TRUE(storeSafely(real, folder / name, newer).ok());
            EXPECT_EQ(bytesOf(folder / name), newer);
            EXPECT_THAT(namesOf(folder.path()), UnorderedElementsAre(name));
        }
    }
}

TEST(SafeWriterFaults, AnInterruptedCallIsRepeatedExceptASync) {
    const TemporaryFolder folder;
    SystemFiles real;
    FailingFiles counting(real, {});
    ASSERT_TRUE(storeSafely(counting, folder / name, newer).ok());
    for (std::size_t call = 0; call < counting.calls(); ++call) {
        const std::string& failing = counting.names().at(call);
        SCOPED_TRACE(failing);
        FailingFiles files(real, {.failAt = call, .error = EINTR});
        EXPECT_EQ(storeSafely(files, folder / name, newer).ok(), failing != "sync" && failing != "rename");
    }
}

TEST(SafeWriterFaults, NothingIsRepeatedAfterAFailedSync) {
    const TemporaryFolder folder;
    SystemFiles real;
    FailingFiles counting(real, {});
    ASSERT_TRUE(storeSafely(counting, folder / name, newer).ok());
    const auto& names = counting.names();
    const auto firstSync = static_cast<std::size_t>(std::ranges::find(names, "sync") - names.begin());
    for (const int error : injectedErrors) {
        FailingFiles files(real, {.failAt = firstSync, .error = error});
        EXPECT_EQ(storeSafely(files, folder / name, newer).step, StoreStep::Sync);
        EXPECT_EQ(std::ranges::count(files.names(), "sync"), 1);
        EXPECT_EQ(std::ranges::count(files.names(), "rename"), 0);
        EXPECT_EQ(std::ranges::count(files.names(), "createFile"), 1);
    }
}

TEST(SafeWriterFaults, AWriteThatTakesNothingIsAFailureAndNoEndlessLoop) {
    const TemporaryFolder folder;
    SystemFiles real;
    FailingFiles files(real, {.mostBytesAWrite = 0});
    const SafeStoreResult result = storeSafely(files, folder / name, newer);
    EXPECT_EQ(result.step, StoreStep::Write);
    EXPECT_EQ(result.error, EIO);
}

TEST(SafeWriterFaults, AFolderThatVanishedIsTold) {
    const TemporaryFolder folder;
    SystemFiles files;
    const SafeStoreResult result = storeSafely(files, folder / ("gone/" + name), newer);
    EXPECT_EQ(result.step, StoreStep::OpenFolder);
    EXPECT_EQ(result.error, ENOENT);
    EXPECT_EQ(result.path, folder / "gone/");
}

TEST(SafeWriterFaults, AFolderThatIsAFileIsTold) {
    const TemporaryFolder folder;
    putBytes(folder / "file", "kept");
    SystemFiles files;
    EXPECT_EQ(storeSafely(files, folder / ("file/" + name), newer).error, ENOTDIR);
}

TEST(SafeWriterFaults, ANameThatIsTooLongIsTold) {
    const TemporaryFolder folder;
    SystemFiles files;
    EXPECT_EQ(storeSafely(files, folder / std::string(300, 'n'), newer).error, ENAMETOOLONG);
}

TEST(SafeWriterFaults, AFolderWithoutTheRightToWriteKeepsItsFile) {
    if (::geteuid() == 0) GTEST_SKIP() << "root may write everywhere";
    const TemporaryFolder folder;
    putBytes(folder / name, earlier);
    fs::permissions(folder.path(), fs::perms(0500));
    SystemFiles files;
    const SafeStoreResult result = storeSafely(files, folder / name, newer);
    fs::permissions(folder.path(), fs::perms(0700));
    EXPECT_EQ(result.error, EACCES);
    EXPECT_EQ(bytesOf(folder / name), earlier);
}

// --- Folders ---

TEST(SafeFolder, ItIsMadeForItsUserAloneAndItsParentReachesTheDisk) {
    const TemporaryFolder folder;
    SystemFiles real;
    FailingFiles files(real, {});
    EXPECT_TRUE(makeFolderSafely(files, folder / "temp/").ok());
    EXPECT_EQ(modeOf(folder / "temp"), 0700U);
    EXPECT_THAT(files.names(), ::testing::ElementsAre("makeFolder", "openFolder", "sync", "close"));
}

TEST(SafeFolder, OneThatIsThereIsMadeAlready) {
    const TemporaryFolder folder;
    SystemFiles files;
    EXPECT_TRUE(makeFolderSafely(files, folder.path()).ok());
}

TEST(SafeFolder, AFailureIsTold) {
    const TemporaryFolder folder;
    SystemFiles files;
    const SafeStoreResult result = makeFolderSafely(files, folder / "gone/temp");
    EXPECT_EQ(result.step, StoreStep::Create);
    EXPECT_EQ(result.error, ENOENT);
    EXPECT_EQ(result.path, folder / "gone/temp");
}

// --- The message ---

TEST(StoreFailureText, ItTellsWhatFailedWhyWhereAndThatTheReturnIsStillThere) {
    const SafeStoreResult full{StoreStep::Write, ENOSPC, "/media/usb/" + name};
    EXPECT_EQ(storeFailureText(full), "ไม่สามารถเขียนข้อมูลลงไฟล์ : พื้นที่ว่างในดิสก์ไม่พอ\r"
                                      "/media/usb/01055360003132561100C.txt\r"
                                      "ไฟล์เดิม (ถ้ามี) ยังอยู่ครบถ้วน\r"
                                      "ข้อมูลในโปรแกรมยังอยู่ เลือกโฟลเดอร์อื่นแล้วจัดเก็บอีกครั้งได้");
}

TEST(StoreFailureText, AfterTheReplacementItDoesNotPromiseTheEarlierFile) {
    EXPECT_THAT(storeFailureText({StoreStep::SyncFolder, EIO, "x"}), HasSubstr("อาจเป็นไฟล์เดิมหรือไฟล์ใหม่"));
}

TEST(StoreFailureText, AStoreThatWentThroughHasNone) { EXPECT_THAT(storeFailureText({}), IsEmpty()); }

TEST(StoreFailureText, EachCommonCauseHasWordsOfItsOwn) {
    std::set<std::string> texts;
    const std::array common{ENOSPC, EDQUOT, EACCES, EROFS, ENOENT, EIO, ENAMETOOLONG, EISDIR, ELOOP, EINTR};
    for (const int error : common)
        texts.insert(failureCause(error));
    EXPECT_EQ(texts.size(), common.size());
    EXPECT_EQ(failureCause(EROFS), "ดิสก์นี้อ่านได้อย่างเดียว");
}

TEST(StoreFailureText, ARareCauseIsToldByItsNumber) {
    EXPECT_EQ(failureCause(9999), "ข้อผิดพลาดของระบบหมายเลข 9999");
}

} // namespace
} // namespace lodge
