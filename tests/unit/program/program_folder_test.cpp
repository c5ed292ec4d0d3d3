#include "program/program_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <unistd.h>

namespace lodge {
namespace {

namespace fs = std::filesystem;

void write(const fs::path& file, const std::string& text) {
    fs::create_directories(file.parent_path());
    std::ofstream(file) << text;
}

std::string read(const fs::path& file) {
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

/// A program in a folder, and a user.
class ProgramFolder : public testing::Test {
  protected:
    void SetUp() override { write(installation / "lodge77", ""); }
    void TearDown() override { fs::remove_all(root); }

    void installForAll() const {
        write(model / "rptLodgePage1.rpt", "page 1");
        write(model / "Spreadsheet" / "README.txt", "yours");
    }
    [[nodiscard]] fs::path folder() const { return programFolderOf(installation, userData); }

    const fs::path root =
        fs::temp_directory_path() / ("lodge77-program-folder-" + std::to_string(::getpid()));
    const fs::path installation = root / "opt";
    const fs::path model = installation / modelFolderName;
    const fs::path userData = root / "home" / "share";
    const fs::path own = userData / "lodge77";
};

TEST_F(ProgramFolder, IsThatOfTheProgramWhereverItWasUnpacked) {
    EXPECT_EQ(folder(), installation);
    EXPECT_FALSE(fs::exists(userData)) << "nothing is made for a user who needs nothing";
}

TEST_F(ProgramFolder, IsTheUsersOwnWhereTheProgramIsInstalledForAll) {
    installForAll();
    EXPECT_EQ(folder(), own);
    EXPECT_EQ(read(own / "rptLodgePage1.rpt"), "page 1");
    EXPECT_EQ(read(own / "Spreadsheet" / "README.txt"), "yours");
}

TEST_F(ProgramFolder, FoldersInItAreTheUsersOwn) {
    installForAll();
    ASSERT_EQ(folder(), own);
    write(own / "Spreadsheet" / "papers.ods", "mine");
    write(own / "temp" / "01055360003132561100T.txt", "stored");
    EXPECT_FALSE(fs::exists(model / "Spreadsheet" / "papers.ods"));
    EXPECT_FALSE(fs::exists(model / "temp"));
}

TEST_F(ProgramFolder, AnUpdateOfTheProgramReachesIt) {
    installForAll();
    ASSERT_EQ(folder(), own);
    write(model / "rptLodgePage1.rpt", "a better page 1");
    write(model / "rptLodgePage2.rpt", "page 2");
    EXPECT_EQ(folder(), own);
    EXPECT_EQ(read(own / "rptLodgePage1.rpt"), "a better page 1");
    EXPECT_EQ(read(own / "rptLodgePage2.rpt"), "page 2");
}

TEST_F(ProgramFolder, AFileOfTheUserStays) {
    installForAll();
    write(own / "rptLodgePage1.rpt", "my page 1");
    EXPECT_EQ(folder(), own);
    EXPECT_EQ(read(own / "rptLodgePage1.rpt"), "my page 1");
    EXPECT_EQ(read(model / "rptLodgePage1.rpt"), "page 1");
}

TEST_F(ProgramFolder, LinksToWhereTheProgramStoodBeforeAreRenewed) {
    installForAll();
    fs::create_directories(own);
    fs::create_symlink(root / "earlier" / "rptLodgePage1.rpt", own / "rptLodgePage1.rpt");
    EXPECT_EQ(folder(), own);
    EXPECT_EQ(read(own / "rptLodgePage1.rpt"), "page 1");
}

TEST_F(ProgramFolder, IsTheModelWhereTheUserHasNone) {
    installForAll();
    EXPECT_EQ(programFolderOf(installation, {}), model);
    write(userData, "a file where the folder would stand");
    EXPECT_EQ(folder(), model);
}

} // namespace
} // namespace lodge
