// A whole return, stored over an earlier one while everything that can go wrong goes wrong.
#include "failing_files.h"
#include "file/store_load.h"
#include "temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <set>

namespace lodge {
namespace {

using namespace lodge::testing;
using ::testing::HasSubstr;
using ::testing::UnorderedElementsAre;
namespace fs = std::filesystem;

constexpr int machineYear = 2019;
constexpr std::size_t nameField = 33;
const std::string userId = "0105536000313";
const std::string packedName = "01055360003132561100N.txt";
const std::string innerName = "01055360003132561100NM.txt";
constexpr std::array injectedErrors{ENOSPC, EIO, EDQUOT, EINTR, EACCES, EROFS};

ReturnState returnOf(const std::string& name) {
    ReturnState state;
    state.strStartDDMMYY = "01012561";
    state.strFinishDDMMYY = "31122561";
    state.strFilingType = "1";
    state.strStoreType = "N";
    state.strFldPage1[nameField] = name;
    return state;
}

StoreResult storeInto(FileOperations& files, const TemporaryFolder& folder, const std::string& name) {
    ReturnState state = returnOf(name);
    return storeReturn(files, state, folder.path().string(), userId, {});
}

std::string nameStoredIn(const TemporaryFolder& folder) {
    ReturnState state;
    const ReadResult result = loadReturn(folder / packedName, state, machineYear);
    EXPECT_EQ(result.status, ReadStatus::Loaded) << result.cause;
    return state.strFldPage1[nameField];
}

std::set<std::string> namesIn(const TemporaryFolder& folder) {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder.path()))
        names.insert(entry.path().filename().string());
    return names;
}

std::size_t callsOfAStore() {
    const TemporaryFolder folder;
    SystemFiles real;
    EXPECT_EQ(storeInto(real, folder, "earlier").error, "");
    FailingFiles files(real, {});
    EXPECT_EQ(storeInto(files, folder, "newer").error, "");
    return files.calls();
}

TEST(StoreFaults, EveryErrorAtEveryCallLeavesALoadableReturnAndStoredIsNeverSaidFalsely) {
    const std::size_t calls = callsOfAStore();
    for (std::size_t call = 0; call < calls; ++call) {
        for (const int error : injectedErrors) {
            for (const bool fromThenOn : {false, true}) {
                SCOPED_TRACE(
                    ::testing::Message() << "call " << call << ", errno " << error << ", " << fromThenOn);
                const TemporaryFolder folder;
                SystemFiles real;
                ASSERT_EQ(storeInto(real, folder, "earlier").error, "");
                FailingFiles files(
                    real, {.failAt = call, .error = error, .fromThenOn = fromThenOn, .mostBytesAWrite = 300});
                const StoreResult result = storeInto(files, folder, "newer");
                const std::string found = nameStoredIn(folder);
                EXPECT_TRUE(found == "newer" || (found == "earlier" && !result.error.empty())) << found;
                if (!result.error.empty()) {
                    EXPECT_THAT(result.error, HasSubstr(folder.path().string()));
                }
            }
        }
    }
}

TEST(StoreFaults, KilledBeforeEveryCallTheUserLoadsTheEarlierReturnOrTheNewOne) {
    const std::size_t calls = callsOfAStore();
    for (std::size_t call = 0; call < calls; ++call) {
        SCOPED_TRACE(call);
        const TemporaryFolder folder;
        SystemFiles real;
        ASSERT_EQ(storeInto(real, folder, "earlier").error, "");
        FailingFiles files(real, {.killBefore = call});
        try {
            storeInto(files, folder, "newer");
        } catch (const Killed&) { // NOLINT(bugprone-empty-catch): what is left is loaded below.
        }
        const std::string found = nameStoredIn(folder);
        EXPECT_TRUE(found == "earlier" || found == "newer");

        ASSERT_EQ(storeInto(real, folder, "the next").error, "");
        EXPECT_EQ(nameStoredIn(folder), "the next");
        EXPECT_THAT(namesIn(folder), UnorderedElementsAre(packedName));
    }
}

TEST(StoreFaults, TheReturnInMemoryOutlivesAFailedStore) {
    const TemporaryFolder folder;
    SystemFiles real;
    ReturnState state = returnOf("kept");
    FailingFiles full(real, {.failAt = 4, .error = ENOSPC, .fromThenOn = true});
    EXPECT_THAT(
        storeReturn(full, state, folder.path().string(), userId, {}).error, HasSubstr("พื้นที่ว่างในดิสก์ไม่พอ"));
    EXPECT_EQ(state.strFldPage1[nameField], "kept");

    const TemporaryFolder other;
    EXPECT_EQ(storeReturn(real, state, other.path().string(), userId, {}).error, "");
    EXPECT_EQ(nameStoredIn(other), "kept");
}

TEST(StoreFaults, AnInnerFileOfAnInterruptedStoreGoesOnceThePackedFileIsThere) {
    const TemporaryFolder folder;
    putBytes(folder / innerName, "left over");
    putBytes(folder / "01055360003132561100CM.txt", "of another return");
    SystemFiles real;
    FailingFiles failing(real, {.failAt = 0, .error = EIO});
    EXPECT_NE(storeInto(failing, folder, "newer").error, "");
    EXPECT_TRUE(fs::exists(folder / innerName)); // It may be all that the user has.
    EXPECT_EQ(storeInto(real, folder, "newer").error, "");
    EXPECT_THAT(namesIn(folder), UnorderedElementsAre(packedName, "01055360003132561100CM.txt"));
}

TEST(StoreFaults, NoInnerFileIsMadeAndTheStoredReturnIsItsUsersAlone) {
    const TemporaryFolder folder;
    SystemFiles real;
    FailingFiles files(real, {});
    EXPECT_EQ(storeInto(files, folder, "newer").error, "");
    EXPECT_EQ(std::ranges::count(files.names(), "createFile"), 1);
    EXPECT_THAT(namesIn(folder), UnorderedElementsAre(packedName));
    EXPECT_EQ(fs::status(folder / packedName).permissions(), fs::perms(0600));
}

} // namespace
} // namespace lodge
