#include "file/archive.h"
#include "file/zip.h"
#include "stored_returns.h"

#include <gtest/gtest.h>
#include <zip.h>

#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <string>
#include <vector>

namespace lodge {
namespace {

void writeFile(const std::string& path, const std::string& bytes) {
    ASSERT_EQ(writeWholeFile(path, bytes), std::nullopt);
}

std::chrono::local_seconds moment() {
    return std::chrono::local_days{std::chrono::year{2019} / 5 / 20} + std::chrono::hours(14)
           + std::chrono::minutes(30);
}

// Packs one file and gives the archive's bytes.
std::string packed(const WorkFolder& folder, const std::string& content) {
    writeFile(folder.path("a.txt"), content);
    CGZipFiles zip;
    zip.ZipFileName = folder.path("a.zip");
    zip.MemberTime = moment();
    EXPECT_EQ(zip.AddFile(folder.path("a.txt")), std::nullopt);
    EXPECT_EQ(zip.MakeZipFile(), 0) << zip.GetLastMessage();
    return bytesOf(folder.path("a.zip"));
}

unsigned word(const std::string& bytes, std::size_t at) {
    return static_cast<std::uint8_t>(bytes.at(at)) + 256U * static_cast<std::uint8_t>(bytes.at(at + 1));
}

// --- CGZipFiles ---

TEST(CGZipFiles, BeginsWithItsDefaults) {
    const CGZipFiles zip;
    EXPECT_EQ(zip.RootDirectory, "\\");
    EXPECT_FALSE(zip.RecurseFolders);
    EXPECT_FALSE(zip.IncludeSystemFiles);
    EXPECT_FALSE(zip.UpdatingZip);
    EXPECT_FALSE(zip.Encrypted);
}

TEST(CGZipFiles, ANewListHoldsThePlaceholder) {
    CGZipFiles zip;
    EXPECT_EQ(zip.ZipFileCount(), 1U);
    EXPECT_TRUE(zip.AddFile("querty"));
    EXPECT_FALSE(zip.RemoveFile("querty"));
    EXPECT_EQ(zip.ZipFileCount(), 0U);
}

TEST(CGZipFiles, RefusesANameThatIsListedAlready) {
    CGZipFiles zip;
    EXPECT_FALSE(zip.AddFile("a.txt"));
    const auto refusal = zip.AddFile("a.txt");
    ASSERT_TRUE(refusal);
    EXPECT_EQ(refusal->number, 0x800407D1U);
    EXPECT_EQ(refusal->source, "CGZip::AddFile");
    EXPECT_EQ(refusal->text, "File is already in Zip List");
    EXPECT_EQ(zip.ZipFileCount(), 2U);
}

TEST(CGZipFiles, RefusesToRemoveANameThatIsNotListed) {
    CGZipFiles zip;
    const auto refusal = zip.RemoveFile("a.txt");
    ASSERT_TRUE(refusal);
    EXPECT_EQ(refusal->number, 0x800407D2U);
    EXPECT_EQ(refusal->source, "CGZip::RemoveFile");
    EXPECT_EQ(refusal->text, "File is not in Zip List");
}

TEST(CGZipFiles, PacksAFileUnderItsNameWithoutItsFolder) {
    const WorkFolder folder;
    const Unpacked archive = unpackArchive(packed(folder, "content"), 1);
    EXPECT_EQ(archive.fault, ArchiveFault::None);
    ASSERT_EQ(archive.members.size(), 1U);
    EXPECT_EQ(archive.members[0].name, "a.txt");
    EXPECT_EQ(archive.members[0].content, "content");
}

TEST(CGZipFiles, MakesAPlainDosEntryWithoutExtraFields) {
    const WorkFolder folder;
    const std::string bytes = packed(folder, std::string(1000, 'x'));
    // Local header: signature, version needed, flags, method, time, date; name and extra lengths at 26
    // and 28.
    EXPECT_TRUE(beginsAsArchive(bytes));
    EXPECT_EQ(word(bytes, 6), 0U);
    EXPECT_EQ(word(bytes, 8), 8U); // deflated
    EXPECT_EQ(word(bytes, 10), 14U << 11U | 30U << 5U);
    EXPECT_EQ(word(bytes, 12), (2019U - 1980U) << 9U | 5U << 5U | 20U);
    EXPECT_EQ(word(bytes, 28), 0U);
    // Directory entry: version made by at 4, extra and comment lengths at 30 and 32, external attributes
    // at 38.
    const std::size_t entry = bytes.find("PK\x01\x02");
    ASSERT_NE(entry, std::string::npos);
    EXPECT_EQ(word(bytes, entry + 4) >> 8U, 0U);
    EXPECT_EQ(word(bytes, entry + 30), 0U);
    EXPECT_EQ(word(bytes, entry + 32), 0U);
    EXPECT_EQ(word(bytes, entry + 38), 0U);
    EXPECT_EQ(word(bytes, entry + 40), 0U);
}

TEST(CGZipFiles, WritesTheSameBytesInEveryTimeZone) {
    const WorkFolder folder;
    std::vector<std::string> archives;
    for (const char* zone : {"UTC", "Asia/Bangkok", "America/New_York"}) {
        ASSERT_EQ(setenv("TZ", zone, 1), 0);
        tzset();
        archives.push_back(packed(folder, "content"));
    }
    unsetenv("TZ");
    tzset();
    EXPECT_EQ(archives[0], archives[1]);
    EXPECT_EQ(archives[0], archives[2]);
}

TEST(CGZipFiles, ReplacesAnArchiveThatIsThere) {
    const WorkFolder folder;
    packed(folder, "first");
    writeFile(folder.path("b.txt"), "second");
    CGZipFiles zip;
    zip.ZipFileName = folder.path("a.zip");
    EXPECT_FALSE(zip.AddFile(folder.path("b.txt")));
    ASSERT_EQ(zip.MakeZipFile(), 0) << zip.GetLastMessage();
    const Unpacked archive = unpackArchive(bytesOf(folder.path("a.zip")), 1);
    ASSERT_EQ(archive.members.size(), 1U);
    EXPECT_EQ(archive.members[0].name, "b.txt");
}

TEST(CGZipFiles, MakesNoArchiveWhenAFileIsMissing) {
    const WorkFolder folder;
    CGZipFiles zip;
    zip.ZipFileName = folder.path("a.zip");
    EXPECT_FALSE(zip.AddFile(folder.path("missing.txt")));
    EXPECT_NE(zip.MakeZipFile(), 0);
    EXPECT_NE(zip.GetLastMessage(), "");
    EXPECT_TRUE(folder.names().empty());
}

TEST(CGZipFiles, MakesNoArchiveOfThePlaceholderAlone) {
    const WorkFolder folder;
    CGZipFiles zip;
    zip.ZipFileName = folder.path("a.zip");
    EXPECT_NE(zip.MakeZipFile(), 0);
    EXPECT_TRUE(folder.names().empty());
}

TEST(CGZipFiles, MakesNoArchiveOfMoreThanOneHundredEntries) {
    const WorkFolder folder;
    CGZipFiles zip;
    zip.ZipFileName = folder.path("a.zip");
    for (int k = 1; k < 100; ++k) {
        writeFile(folder.path(std::to_string(k)), "x");
        EXPECT_FALSE(zip.AddFile(folder.path(std::to_string(k))));
    }
    EXPECT_EQ(zip.ZipFileCount(), 100U);
    EXPECT_EQ(zip.MakeZipFile(), 0) << zip.GetLastMessage();
    EXPECT_FALSE(zip.AddFile(folder.path("1") + "x"));
    EXPECT_NE(zip.MakeZipFile(), 0);
}

TEST(CGZipFiles, TellsWhenTheArchiveCannotBeWritten) {
    const WorkFolder folder;
    writeFile(folder.path("a.txt"), "x");
    CGZipFiles zip;
    zip.ZipFileName = folder.path("missing folder/a.zip");
    EXPECT_FALSE(zip.AddFile(folder.path("a.txt")));
    EXPECT_NE(zip.MakeZipFile(), 0);
    EXPECT_NE(zip.GetLastMessage(), "");
}

// --- CGUnzipFiles ---

TEST(CGUnzipFiles, BeginsWithItsDefaults) {
    const CGUnzipFiles unzip;
    EXPECT_EQ(unzip.MessageLevel, 2);
    for (const bool flag : {unzip.ExtractNewer, unzip.SpaceToUnderScore, unzip.PromptOverwrite,
             unzip.WriteToStdOut, unzip.TestZip, unzip.ExtractList, unzip.ExtractOnlyNewer,
             unzip.DisplayComment, unzip.HonorDirectories, unzip.OverWriteFiles, unzip.ConvertCRtoCRLF,
             unzip.Verbose, unzip.CaseSensitive, unzip.Privilege}) {
        EXPECT_FALSE(flag);
    }
    EXPECT_EQ(unzip.ZipFileName + unzip.ExtractDir, "");
}

TEST(CGUnzipFiles, UnpacksIntoTheFolder) {
    const WorkFolder folder;
    packed(folder, "content");
    removeFile(folder.path("a.txt"));
    CGUnzipFiles unzip;
    EXPECT_EQ(unzip.Unzip(folder.path("a.zip"), folder.text()), 0) << unzip.GetLastMessage();
    EXPECT_EQ(bytesOf(folder.path("a.txt")), "content");
    EXPECT_EQ(unzip.writtenFiles(), std::vector<std::string>{folder.path("a.txt")});
}

TEST(CGUnzipFiles, AnArgumentReplacesThePropertyOnlyWhenItIsNotEmpty) {
    const WorkFolder folder;
    packed(folder, "content");
    CGUnzipFiles unzip;
    unzip.ZipFileName = folder.path("a.zip");
    unzip.ExtractDir = folder.text();
    unzip.OverWriteFiles = true;
    EXPECT_EQ(unzip.Unzip(), 0) << unzip.GetLastMessage();
    EXPECT_NE(unzip.Unzip(folder.path("other.zip")), 0);
    EXPECT_EQ(unzip.ZipFileName, folder.path("other.zip"));
    EXPECT_EQ(unzip.ExtractDir, folder.text());
}

TEST(CGUnzipFiles, ReplacesAFileOnlyWhenToldTo) {
    const WorkFolder folder;
    packed(folder, "content");
    writeFile(folder.path("a.txt"), "mine");
    CGUnzipFiles unzip;
    EXPECT_NE(unzip.Unzip(folder.path("a.zip"), folder.text()), 0);
    EXPECT_EQ(bytesOf(folder.path("a.txt")), "mine");
    unzip.OverWriteFiles = true;
    EXPECT_EQ(unzip.Unzip(), 0);
    EXPECT_EQ(bytesOf(folder.path("a.txt")), "content");
}

TEST(CGUnzipFiles, TestsWithoutWriting) {
    const WorkFolder folder;
    packed(folder, "content");
    removeFile(folder.path("a.txt"));
    CGUnzipFiles unzip;
    unzip.TestZip = true;
    EXPECT_EQ(unzip.Unzip(folder.path("a.zip"), folder.text()), 0);
    EXPECT_EQ(folder.names(), std::vector<std::string>{"a.zip"});
}

TEST(CGUnzipFiles, RefusesAPlainTextFileWithAMessage) {
    const WorkFolder folder;
    writeFile(folder.path("a.txt"), "a plain text");
    CGUnzipFiles unzip;
    EXPECT_NE(unzip.Unzip(folder.path("a.txt"), folder.text()), 0);
    EXPECT_EQ(unzip.GetLastMessage(), faultText(ArchiveFault::NotAnArchive));
}

TEST(CGUnzipFiles, RefusesAFileThatIsNotThere) {
    CGUnzipFiles unzip;
    EXPECT_NE(unzip.Unzip("/nowhere/a.zip", "/nowhere"), 0);
    EXPECT_NE(unzip.GetLastMessage(), "");
}

// One byte of the packed content is flipped: the check sum of the member no longer fits.
TEST(CGUnzipFiles, CatchesADamagedMemberAndLeavesNoFileBehind) {
    const WorkFolder folder;
    std::string bytes = packed(folder, std::string(3000, 'x') + "the end");
    removeFile(folder.path("a.txt"));
    const std::size_t contentAt = 30 + word(bytes, 26);
    bytes[contentAt + 6] = static_cast<char>(bytes[contentAt + 6] ^ 0x10);
    writeFile(folder.path("a.zip"), bytes);
    CGUnzipFiles unzip;
    EXPECT_NE(unzip.Unzip(folder.path("a.zip"), folder.text()), 0);
    EXPECT_NE(unzip.GetLastMessage(), "");
    EXPECT_EQ(folder.names(), std::vector<std::string>{"a.zip"});
}

TEST(CGUnzipFiles, CatchesAWrongCheckSumThatShowsOnlyAtTheEnd) {
    const WorkFolder folder;
    std::string bytes = packed(folder, "content");
    const std::size_t entry = bytes.find("PK\x01\x02");
    bytes[entry + 16] = static_cast<char>(bytes[entry + 16] ^ 1); // The check sum in the directory.
    bytes[14] = bytes[entry + 16];                                // And in the local header.
    EXPECT_EQ(unpackArchive(bytes, 1).fault, ArchiveFault::Damaged);
}

TEST(CGUnzipFiles, CatchesAnArchiveThatWasCutShort) {
    const WorkFolder folder;
    const std::string bytes = packed(folder, std::string(3000, 'x'));
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        EXPECT_NE(unpackArchive(bytes.substr(0, length), 1).fault, ArchiveFault::None) << length;
    }
}

// An archive with one member of the given name.
std::string archiveWith(const WorkFolder& folder, const std::string& member) {
    std::string path = folder.path("made.zip");
    zip_t* const archive = zip_open(path.c_str(), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
    zip_source_t* const source = zip_source_buffer(archive, "x", 1, 0);
    EXPECT_GE(zip_file_add(archive, member.c_str(), source, ZIP_FL_ENC_UTF_8), 0);
    EXPECT_EQ(zip_close(archive), 0);
    return path;
}

TEST(CGUnzipFiles, NeverWritesOutsideTheFolder) {
    const WorkFolder folder;
    std::filesystem::create_directory(folder.path("in"));
    for (const std::string member :
        {"../evil.txt", "/evil.txt", "..\\evil.txt", "sub/../../evil.txt", ".."}) {
        const std::string path = archiveWith(folder, member);
        for (const bool honorDirectories : {true, false}) {
            CGUnzipFiles unzip;
            unzip.HonorDirectories = honorDirectories;
            unzip.OverWriteFiles = true;
            static_cast<void>(unzip.Unzip(path, folder.path("in")));
            EXPECT_FALSE(fileExists(folder.path("evil.txt"))) << member;
            EXPECT_FALSE(fileExists("/evil.txt")) << member;
        }
    }
}

TEST(CGUnzipFiles, DropsFoldersEvenWhenItIsToHonorThem) {
    const WorkFolder folder;
    const std::string path = archiveWith(folder, "sub/a b.txt");
    CGUnzipFiles unzip;
    unzip.HonorDirectories = true;
    EXPECT_EQ(unzip.Unzip(path, folder.text()), 0) << unzip.GetLastMessage();
    EXPECT_TRUE(fileExists(folder.path("a b.txt")));
    unzip.SpaceToUnderScore = true;
    EXPECT_EQ(unzip.Unzip(), 0) << unzip.GetLastMessage();
    EXPECT_TRUE(fileExists(folder.path("a_b.txt")));
}

TEST(CGUnzipFiles, RefusesAnotherNumberOfMembersThanItIsToldToExpect) {
    const WorkFolder folder;
    const std::string path = archiveWith(folder, "a.txt");
    CGUnzipFiles unzip;
    unzip.MemberCount = 2;
    EXPECT_NE(unzip.Unzip(path, folder.text()), 0);
    EXPECT_EQ(unzip.GetLastMessage(), faultText(ArchiveFault::MemberCount));
}

TEST(UnpackArchive, RefusesAMemberThatUnpacksToMoreThanTheLimit) {
    const WorkFolder folder;
    const std::string bytes = packed(folder, std::string(100000, 'x'));
    ReadingLimits limits;
    limits.memberBytes = 99999;
    EXPECT_EQ(unpackArchive(bytes, 1, limits).fault, ArchiveFault::UnpackedTooLarge);
    limits.memberBytes = 100000;
    EXPECT_EQ(unpackArchive(bytes, 1, limits).fault, ArchiveFault::None);
}

} // namespace
} // namespace lodge
