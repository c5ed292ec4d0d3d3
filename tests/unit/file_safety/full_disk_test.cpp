// A disk that is really full: a small tmpfs, which only root can mount.
#include "file/safe_writer.h"
#include "temporary_folder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <sys/mount.h>

namespace lodge {
namespace {

using namespace lodge::testing;

constexpr const char* diskSize = "size=256k";

class FullDisk : public ::testing::Test {
  protected:
    void SetUp() override {
        if (::mount("tmpfs", folder.path().c_str(), "tmpfs", 0, diskSize) != 0)
            GTEST_SKIP() << "a full disk needs the right to mount a tmpfs: " << std::strerror(errno);
        mounted = true;
    }
    void TearDown() override {
        if (mounted) ::umount(folder.path().c_str());
    }
    void fillUp() const { putBytes(folder / "filler", std::string(std::size_t{1} << 20U, 'f')); }

    TemporaryFolder folder;
    bool mounted = false;
};

TEST_F(FullDisk, AStoreIsRefusedAndTheEarlierReturnIsThere) {
    SystemFiles files;
    const std::string path = folder / "01055360003132561100C.txt";
    const std::string earlier(1200, 'e');
    ASSERT_TRUE(storeSafely(files, path, earlier).ok());
    fillUp();
    // The sizes of a return and of a text that a buffered writer would keep until its close.
    for (const std::size_t size :
        {std::size_t{1}, std::size_t{1200}, std::size_t{16} << 10U, std::size_t{1} << 20U}) {
        const SafeStoreResult result = storeSafely(files, path, std::string(size, 'n'));
        EXPECT_EQ(result.error, ENOSPC) << size;
        EXPECT_TRUE(result.leftEarlierFile());
        EXPECT_EQ(bytesOf(path), earlier);
    }
}

TEST_F(FullDisk, OnceThereIsRoomAgainTheStoreGoesThrough) {
    SystemFiles files;
    const std::string path = folder / "01055360003132561100C.txt";
    fillUp();
    ASSERT_FALSE(storeSafely(files, path, std::string(5000, 'n')).ok());
    EXPECT_FALSE(std::filesystem::exists(path));
    std::filesystem::remove(folder / "filler");
    EXPECT_TRUE(storeSafely(files, path, std::string(5000, 'n')).ok());
    EXPECT_EQ(bytesOf(path), std::string(5000, 'n'));
}

TEST_F(FullDisk, WhatAnInterruptedStoreLeftMakesRoomForTheNext) {
    SystemFiles files;
    const std::string name = "01055360003132561100C.txt";
    putBytes(folder / ("." + name + ".lodge77-00c0ffee00c0ffee.part"), std::string(100000, 'h'));
    fillUp();
    EXPECT_TRUE(storeSafely(files, folder / name, std::string(50000, 'n')).ok());
}

} // namespace
} // namespace lodge
