#include "file/file_io.h"
#include "stored_returns.h"

#include <gtest/gtest.h>

#include <string>

namespace lodge {
namespace {

TEST(Files, AreReadAsTheyWereWritten) {
    const WorkFolder folder;
    const std::string bytes("a\0b\r\n\xFF", 6);
    EXPECT_EQ(writeWholeFile(folder.path("a"), bytes), std::nullopt);
    EXPECT_EQ(readWholeFile(folder.path("a"), 6).bytes, bytes);
    EXPECT_EQ(writeWholeFile(folder.path("a"), "x"), std::nullopt);
    EXPECT_EQ(readWholeFile(folder.path("a"), 6).bytes, "x");
}

TEST(Files, LongerThanTheLimitAreRefused) {
    const WorkFolder folder;
    EXPECT_EQ(writeWholeFile(folder.path("a"), "123456"), std::nullopt);
    EXPECT_EQ(readWholeFile(folder.path("a"), 6).error, "");
    const FileContent refused = readWholeFile(folder.path("a"), 5);
    EXPECT_EQ(refused.error, "larger than 5 bytes");
    EXPECT_EQ(refused.bytes, "");
}

TEST(Files, ThatAreNoneAreRefused) {
    const WorkFolder folder;
    EXPECT_EQ(readWholeFile(folder.path("missing"), 10).error, "no such file");
    EXPECT_EQ(readWholeFile(folder.text(), 10).error, "not a regular file");
    EXPECT_EQ(readWholeFile("/dev/zero", 10).error, "not a regular file");
}

TEST(Files, ThatCannotBeWrittenTellTheCause) {
    EXPECT_NE(writeWholeFile("/nowhere/at/all", "x"), std::nullopt);
    EXPECT_NE(writeWholeFile("/dev/full", "x"), std::nullopt);
}

TEST(Files, AreDeletedAlreadyWhenTheyAreNotThere) {
    const WorkFolder folder;
    EXPECT_EQ(removeFile(folder.path("missing")), std::nullopt);
    EXPECT_EQ(writeWholeFile(folder.path("a"), "x"), std::nullopt);
    EXPECT_EQ(removeFile(folder.path("a")), std::nullopt);
    EXPECT_FALSE(fileExists(folder.path("a")));
}

TEST(Paths, AreCutBehindTheirLastSeparatorOfEitherKind) {
    EXPECT_EQ(splitPath("/data/returns/a.txt").folder, "/data/returns/");
    EXPECT_EQ(splitPath("/data/returns/a.txt").name, "a.txt");
    EXPECT_EQ(splitPath("D:\\returns\\a.txt").folder, "D:/returns/");
    EXPECT_EQ(splitPath("D:\\returns\\a.txt").name, "a.txt");
    EXPECT_EQ(splitPath("/data\\a.txt").name, "a.txt");
    EXPECT_EQ(splitPath("a.txt").folder, "");
    EXPECT_EQ(splitPath("a.txt").name, "a.txt");
}

TEST(Paths, OfAFolderEndWithOneSeparator) {
    EXPECT_EQ(asFolder("/data"), "/data/");
    EXPECT_EQ(asFolder("/data/"), "/data/");
    EXPECT_EQ(asFolder("D:\\data\\"), "D:/data/");
    EXPECT_EQ(asFolder(""), "");
}

} // namespace
} // namespace lodge
