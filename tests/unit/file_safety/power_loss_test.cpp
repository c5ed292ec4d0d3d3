// Every state that a power cut may leave a folder in, at every moment of one store and of two, on a disk that
// promises no more than POSIX does.
#include "failing_files.h"
#include "file/safe_writer.h"
#include "memory_files.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <optional>

namespace lodge {
namespace {

using namespace lodge::testing;

const std::string name = "01055360003132561100C.txt";
const std::string first = "first return";
const std::string second = "a second return, longer";
const std::string third = "third";
constexpr std::size_t bytesAWrite = 9; // Two or three writes a store.

using Found = std::optional<std::string>;

Found foundIn(const Disk& disk) {
    const auto entry = disk.find(name);
    return entry == disk.end() ? Found{} : Found{entry->second};
}

std::set<Found> allFound(const std::set<Disk>& disks) {
    std::set<Found> found;
    for (const Disk& disk : disks)
        found.insert(foundIn(disk));
    return found;
}

std::set<Found> allFound(const std::vector<std::set<Disk>>& moments) {
    std::set<Found> found;
    for (const auto& disks : moments)
        found.merge(allFound(disks));
    return found;
}

TEST(PowerLoss, TheDiskOfTheseTestsTearsAFileThatIsRenamedWithoutASync) {
    MemoryFiles files(bytesAWrite);
    files.put(name, first);
    const int handle = files.createFile("temporary").value;
    files.write(handle, second);
    files.close(handle);
    files.rename("temporary", name);
    const auto found = allFound(files.afterPowerLoss());
    EXPECT_TRUE(found.contains(first));
    EXPECT_TRUE(found.contains(""));
    EXPECT_TRUE(found.contains(second.substr(0, bytesAWrite)));
}

TEST(PowerLoss, TheDiskOfTheseTestsForgetsANameThatWasNotSynced) {
    MemoryFiles files(bytesAWrite);
    const int handle = files.createFile(name).value;
    files.write(handle, third);
    files.sync(handle);
    EXPECT_EQ(allFound(files.afterPowerLoss()), (std::set<Found>{std::nullopt, third}));
    files.sync(files.openFolder(".").value);
    EXPECT_EQ(allFound(files.afterPowerLoss()), (std::set<Found>{third}));
}

TEST(PowerLoss, AFirstStoreLeavesNothingOrTheWholeReturn) {
    MemoryFiles files(bytesAWrite);
    ASSERT_TRUE(storeSafely(files, "./" + name, second).ok());
    EXPECT_EQ(allFound(files.moments()), (std::set<Found>{std::nullopt, second}));
    EXPECT_EQ(allFound(files.afterPowerLoss()), (std::set<Found>{second}));
}

TEST(PowerLoss, AStoreOverAnEarlierReturnLeavesOneOfTheTwoWhole) {
    MemoryFiles files(bytesAWrite);
    files.put(name, first);
    ASSERT_TRUE(storeSafely(files, "./" + name, second).ok());
    EXPECT_EQ(allFound(files.moments()), (std::set<Found>{first, second}));
    EXPECT_EQ(allFound(files.afterPowerLoss()), (std::set<Found>{second}));
}

TEST(PowerLoss, OfTwoStoresOneAfterTheOtherTheFirstIsNeverLostForLessThanTheSecond) {
    MemoryFiles files(bytesAWrite);
    files.put(name, first);
    ASSERT_TRUE(storeSafely(files, "./" + name, second).ok());
    const std::size_t momentsOfFirst = files.moments().size();
    ASSERT_TRUE(storeSafely(files, "./" + name, third).ok());
    for (std::size_t moment = momentsOfFirst; moment < files.moments().size(); ++moment) {
        for (const Found& found : allFound(files.moments()[moment]))
            EXPECT_TRUE(found == second || found == third) << found.value_or("nothing");
    }
    EXPECT_EQ(allFound(files.afterPowerLoss()), (std::set<Found>{third}));
}

// The first store fails at any call, or the program is killed there; the second, by a program started again,
// goes through; then, or anywhere on the way, the power goes.
TEST(PowerLoss, AStoreAfterOneThatFailedOrWasKilledAnywhereKeepsTheEarlierReturnUntilItIsThrough) {
    for (const bool kill : {false, true}) {
        for (std::size_t call = 0;; ++call) {
            SCOPED_TRACE(::testing::Message() << (kill ? "killed before call " : "failed at call ") << call);
            MemoryFiles disk(bytesAWrite);
            disk.put(name, first);
            const Fault fault = kill ? Fault{.killBefore = call} : Fault{.failAt = call, .error = EIO};
            FailingFiles files(disk, fault);
            try {
                (void)storeSafely(files, "./" + name, second);
            } catch (const Killed&) {
            }
            if (!files.struck()) break;
            ASSERT_TRUE(storeSafely(disk, "./" + name, third).ok());
            for (const Found& found : allFound(disk.moments()))
                EXPECT_TRUE(found == first || found == second || found == third) << found.value_or("nothing");
            EXPECT_EQ(allFound(disk.afterPowerLoss()), (std::set<Found>{third}));
        }
    }
}

TEST(PowerLoss, AfterAStoreNoStateHoldsALeftOver) {
    MemoryFiles files(bytesAWrite);
    files.put("." + name + ".lodge77-00c0ffee00c0ffee.part", "half of");
    ASSERT_TRUE(storeSafely(files, "./" + name, second).ok());
    EXPECT_EQ(files.afterPowerLoss(), (std::set<Disk>{{{name, second}}}));
}

} // namespace
} // namespace lodge
