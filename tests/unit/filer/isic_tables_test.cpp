#include "file/archive.h"
#include "file/isic_tables.h"
#include "filer_fixture.h"
#include "values/code_page.h"

#include <chrono>
#include <filesystem>
#include <fstream>

namespace lodge {
namespace {

using testing::ElementsAre;
using Texts = std::vector<std::string>;

void read(std::string_view utf8, ReturnState& state) { readIsicList(toCodePage(utf8), state); }

TEST(IsicList, ALineIsACodeOfSixDigitsAndANameBothQuoted) {
    ReturnState state;
    read("\"641910\",\"ธนาคารพาณิชย์\"\r\n\"471110\",\"ซูเปอร์มาร์เก็ต\"\r\n", state);
    EXPECT_THAT(state.strIsicCode, ElementsAre("641910", "471110"));
    EXPECT_THAT(state.strIsicName, ElementsAre("ธนาคารพาณิชย์", "ซูเปอร์มาร์เก็ต"));
    EXPECT_EQ(state.intIsicCount, 2);
}

TEST(IsicList, TheCharactersBetweenAreNotLookedAt) {
    ReturnState state;
    read("x641910---ธนาคารx\n", state);
    EXPECT_THAT(state.strIsicCode, ElementsAre("641910"));
    EXPECT_THAT(state.strIsicName, ElementsAre("ธนาคาร"));
}

TEST(IsicList, TheFirstEmptyLineEndsTheList) {
    ReturnState state;
    read("\"011210\",\"ข้าว\"\r\n\r\n\"641910\",\"ธนาคาร\"\r\n", state);
    EXPECT_THAT(state.strIsicCode, ElementsAre("011210"));
    read("", state);
    EXPECT_EQ(state.intIsicCount, 0);
    EXPECT_TRUE(state.strIsicCode.empty());
}

TEST(IsicList, TheLastLineNeedsNoLineBreakAndAShortLineHasNoName) {
    ReturnState state;
    read("\"0112\n\"641910\",\"\n\"471110\",\"ก\"", state);
    EXPECT_THAT(state.strIsicCode, ElementsAre("0112", "641910", "471110"));
    EXPECT_THAT(state.strIsicName, ElementsAre("", "", "ก"));
}

class IsicArchiveTest : public FilerTest {
  public:
    ~IsicArchiveTest() override { std::filesystem::remove_all(host.folder); }

  protected:
    IsicArchiveTest() {
        host.folder =
            std::filesystem::temp_directory_path()
            / ("lodge_isic_" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
        std::filesystem::remove_all(host.folder);
        std::filesystem::create_directories(host.folder);
        state.strIsicCode = {"left over"};
    }

    void writeArchive(const std::vector<Member>& members) {
        const Packed packed = packArchive(members, std::chrono::local_days{std::chrono::year{2018} / 1 / 1});
        ASSERT_EQ(packed.error, "");
        writeFile(packed.bytes);
    }
    void writeFile(const std::string& bytes) {
        std::ofstream(host.folder / "isic_country_57.txt", std::ios::binary) << bytes;
    }
    void expectAFailureIsTold(const std::string& cause) {
        IsicArchive(program).LoadIsicTables();
        const Texts texts = shown();
        ASSERT_EQ(texts.size(), 1U);
        EXPECT_TRUE(texts[0].starts_with("isic_country_57.txt\r")) << texts[0];
        EXPECT_NE(texts[0].find(cause), std::string::npos) << texts[0];
        EXPECT_TRUE(state.strIsicCode.empty());
        EXPECT_EQ(state.intIsicCount, 0);
    }
};

TEST_F(IsicArchiveTest, ReadsTheListAndLeavesNoFileBehind) {
    writeArchive({{.name = "isiccode.txt", .content = toCodePage("\"641910\",\"ธนาคารพาณิชย์\"\r\n")},
        {.name = "country.txt", .content = "\"TH\"\r\n"}});
    IsicArchive(program).LoadIsicTables();
    EXPECT_EQ(shown(), Texts{});
    EXPECT_THAT(state.strIsicCode, ElementsAre("641910"));
    EXPECT_THAT(state.strIsicName, ElementsAre("ธนาคารพาณิชย์"));
    EXPECT_FALSE(std::filesystem::exists(host.folder / "isiccode.txt"));
    EXPECT_FALSE(std::filesystem::exists(host.folder / "country.txt"));
}

TEST_F(IsicArchiveTest, TellsThatTheFileIsMissing) { expectAFailureIsTold("ไม่สามารถอ่านไฟล์ข้อมูลได้"); }

TEST_F(IsicArchiveTest, TellsThatTheFileIsNoArchive) {
    writeFile("\"641910\",\"plain text\"\r\n");
    expectAFailureIsTold("ไม่สามารถอ่านไฟล์ข้อมูลได้");
}

TEST_F(IsicArchiveTest, TellsThatTheArchiveHoldsAnotherNumberOfFiles) {
    writeArchive({{.name = "isiccode.txt", .content = "\"641910\",\"x\"\r\n"}});
    expectAFailureIsTold("ไม่สามารถอ่านไฟล์ข้อมูลได้");
}

TEST_F(IsicArchiveTest, TellsThatTheListIsNotAmongTheFiles) {
    writeArchive({{.name = "codes.txt", .content = "x"}, {.name = "country.txt", .content = "x"}});
    expectAFailureIsTold("isiccode.txt");
}

TEST_F(FilerTest, TheListThatTheProgramComesWithIsReadWhole) {
    host.folder = LODGE_PROGRAM_FOLDER;
    IsicArchive(program).LoadIsicTables();
    EXPECT_EQ(shown(), Texts{});
    EXPECT_GE(state.intIsicCount, 300);
    ASSERT_EQ(state.strIsicCode.size(), state.strIsicName.size());
    EXPECT_TRUE(std::is_sorted(state.strIsicCode.begin(), state.strIsicCode.end()));
    for (std::size_t i = 0; i < state.strIsicCode.size(); ++i) {
        EXPECT_EQ(state.strIsicCode[i].find_first_not_of("0123456789"), std::string::npos);
        EXPECT_EQ(state.strIsicCode[i].size(), 6U);
        EXPECT_FALSE(state.strIsicName[i].empty());
    }
    const auto bank = std::find(state.strIsicCode.begin(), state.strIsicCode.end(), "641910");
    ASSERT_NE(bank, state.strIsicCode.end());
    EXPECT_EQ(state.strIsicName[static_cast<std::size_t>(bank - state.strIsicCode.begin())], "ธนาคารพาณิชย์");
}

} // namespace
} // namespace lodge
