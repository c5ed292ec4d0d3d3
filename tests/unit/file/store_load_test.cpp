#include "file/line_codec.h"
#include "file/store_load.h"
#include "stored_returns.h"
#include "values/messages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace lodge {
namespace {

constexpr int machineYear = 2019;

// A copy of a stored return, because a load unpacks beside the file.
std::string copyOf(const std::string& story, const WorkFolder& folder, const std::string& storeType = "N") {
    const std::string original = storedReturn(story, storeType);
    std::string copy = folder.path(splitPath(original).name);
    std::filesystem::copy_file(original, copy);
    return copy;
}

std::chrono::local_seconds moment() { return std::chrono::local_days{std::chrono::year{2019} / 5 / 20}; }

TEST(FileNames, FollowFromTheReturnAndItsId) {
    ReturnState state;
    state.strTaxYear = "2561";
    state.strFilingType = "2";
    state.strAddNo = "07";
    state.strStoreType = "C";
    const ReturnFileNames names = returnFileNames(state, "0105536000313");
    EXPECT_EQ(names.inner, "01055360003132561207CM.txt");
    EXPECT_EQ(names.packed, "01055360003132561207C.txt");
    EXPECT_EQ(names.packed.size(), 25U);
}

TEST(LoadReturn, FillsTheReturnAndLeavesNothingBesideTheFile) {
    const WorkFolder folder;
    ReturnState state;
    const ReadResult result = loadReturn(copyOf("ordinary-company", folder, "C"), state, machineYear);
    EXPECT_EQ(result.status, ReadStatus::Loaded) << result.cause;
    EXPECT_EQ(state.strFldPage1[45], "0105536000313");
    EXPECT_EQ(state.strFldPage3_3[60], "2200000.00");
    EXPECT_TRUE(state.DataCtrl_P1.StatusChanged);
    EXPECT_EQ(folder.names().size(), 1U);
}

TEST(LoadReturn, UnderstandsBothSeparators) {
    const WorkFolder folder;
    std::string path = copyOf("ordinary-company", folder, "C");
    std::ranges::replace(path, '/', '\\');
    ReturnState state;
    EXPECT_EQ(loadReturn(path, state, machineYear).status, ReadStatus::Loaded);
}

TEST(LoadReturn, SetsThePeriodAsDays) {
    const WorkFolder folder;
    ReturnState state;
    ASSERT_EQ(
        loadReturn(copyOf("ordinary-company", folder, "C"), state, machineYear).status, ReadStatus::Loaded);
    const auto day = [](int year, unsigned month, unsigned number) {
        return Date{std::chrono::year(year), std::chrono::month(month), std::chrono::day(number)};
    };
    EXPECT_EQ(state.FucDate.PeriodStartDate, day(2018, 1, 1));
    EXPECT_EQ(state.FucDate.PeriodEndDate, day(2018, 12, 31));
    EXPECT_EQ(state.FucDate.DayBeforePeriodStart, day(2017, 12, 31));
    EXPECT_EQ(state.FucDate.CarryYearLimit, 5);
    EXPECT_EQ(state.FucDate.EarliestStartDate, day(2013, 1, 1));
}

TEST(LoadReturn, ClearsTheReturnBeforeButLeavesTheAttachmentToTheFile) {
    const WorkFolder folder;
    ReturnState state;
    state.strFldPage1[0] = "1234567890";
    state.strFldPage3_4[99] = "x";
    state.FucChk.LastValidId = "x";
    state.modIHQ.BoxMoney[20] = "x";
    ASSERT_EQ(
        loadReturn(copyOf("ordinary-company", folder, "C"), state, machineYear).status, ReadStatus::Loaded);
    EXPECT_EQ(state.strFldPage1[0] + state.strFldPage3_4[99] + state.FucChk.LastValidId, "");
    EXPECT_EQ(state.modIHQ.BoxMoney[20], "x");
}

// Lines 15 and 16 of item 8 in the total column, and the totals of the ten packed lines 75 to 84: 1237.37,
// 1238.38 and, from 1394.94 on, every third figure up to 1421.21.
TEST(LoadReturn, SumsTheFurtherLinesOfItem8) {
    const WorkFolder folder;
    ReturnState state;
    ASSERT_EQ(loadReturn(copyOf("every-field", folder), state, machineYear).status, ReadStatus::Loaded);
    double wanted = 1237.37 + 1238.38;
    for (int number = 1394; number <= 1421; number += 3)
        wanted += number + (number % 100) / 100.0;
    EXPECT_NEAR(state.FucChk.TmpSum8_15to25, wanted, 1e-6);
}

TEST(LoadReturn, RefusesAnotherVersionWithM121) {
    const WorkFolder folder;
    ReturnState state;
    const ReadResult result = loadReturn(copyOf("version-2560", folder), state, machineYear);
    EXPECT_EQ(result.status, ReadStatus::Refused);
    EXPECT_EQ(result.message, GetMessage("M121"));
    EXPECT_EQ(folder.names().size(), 1U);
}

TEST(LoadReturn, TellsTheDamagedLines) {
    const WorkFolder folder;
    ReturnState state;
    const ReadResult result = loadReturn(copyOf("damaged-line-17", folder), state, machineYear);
    EXPECT_EQ(result.status, ReadStatus::Loaded);
    EXPECT_EQ(result.damagedLines, std::vector<std::size_t>{17});
}

TEST(LoadReturn, ShowsTheMessageOfAFailedUnpackingAndLeavesTheReturnAlone) {
    const WorkFolder folder;
    ASSERT_EQ(writeWholeFile(folder.path("plain.txt"), "a plain text"), std::nullopt);
    ReturnState state;
    state.strFldPage1[0] = "1234567890";
    for (const std::string name : {"plain.txt", "missing.txt"}) {
        const ReadResult result = loadReturn(folder.path(name), state, machineYear);
        EXPECT_EQ(result.status, ReadStatus::Unreadable);
        EXPECT_NE(result.message, "");
    }
    EXPECT_EQ(state.strFldPage1[0], "1234567890");
}

TEST(LoadReturn, TouchesNoFileOfTheFolder) {
    const WorkFolder folder;
    const std::string renamed = folder.path("renamed.txt");
    std::filesystem::copy_file(storedReturn("ordinary-company", "C"), renamed);
    ASSERT_EQ(writeWholeFile(folder.path("01055360003132561100CM.txt"), "mine"), std::nullopt);
    ReturnState state;
    EXPECT_EQ(loadReturn(renamed, state, machineYear).status, ReadStatus::Loaded);
    EXPECT_EQ(bytesOf(folder.path("01055360003132561100CM.txt")), "mine");
}

TEST(StoreReturn, WritesWhatALoadReads) {
    const WorkFolder folder;
    ReturnState state;
    ASSERT_EQ(
        loadReturn(copyOf("ordinary-company", folder, "C"), state, machineYear).status, ReadStatus::Loaded);
    state.strStoreType = "N";
    const StoreResult stored = storeReturn(state, folder.text(), state.strFldPage1[45], moment());
    EXPECT_EQ(stored.error, "");
    EXPECT_EQ(stored.packedPath, folder.path("01055360003132561100N.txt"));
    EXPECT_EQ(state.strFileName, folder.path("01055360003132561100NM.txt"));
    EXPECT_EQ(folder.names().size(), 2U);

    ReturnState again;
    ASSERT_EQ(loadReturn(stored.packedPath, again, machineYear).status, ReadStatus::Loaded);
    again.strStoreType = "N";
    EXPECT_EQ(returnLines(again), returnLines(state));
}

TEST(StoreReturn, ReplacesAnEarlierFileOfTheName) {
    const WorkFolder folder;
    ReturnState state;
    state.strStoreType = "N";
    state.strFldPage1[33] = "first";
    EXPECT_EQ(storeReturn(state, folder.text(), "1", moment()).error, "");
    state.strFldPage1[33] = "second";
    const StoreResult stored = storeReturn(state, folder.text(), "1", moment());
    EXPECT_EQ(stored.error, "");
    const InnerFile inner = readInnerFile(stored.packedPath);
    EXPECT_EQ(inner.bytes, encodeReturn(state));
    EXPECT_EQ(folder.names().size(), 1U);
}

TEST(StoreReturn, TellsWhenTheFolderIsMissing) {
    ReturnState state;
    EXPECT_NE(storeReturn(state, "/nowhere/at/all", "1", moment()).error, "");
}

// The id and the year may come from a file of somebody else's making.
TEST(StoreReturn, StoresNothingUnderANameThatLeavesTheFolderOrEndsEarly) {
    const WorkFolder folder;
    std::filesystem::create_directory(folder.path("temp"));
    for (const std::string& id : {std::string("../evil"), std::string("..\\evil"), std::string("sub/evil"),
             std::string("evil\0", 5), std::string("evil\n")}) {
        ReturnState state;
        state.strFileName = "as before";
        EXPECT_NE(storeReturn(state, folder.path("temp"), id, moment()).error, "") << id;
        EXPECT_EQ(state.strFileName, "as before");
    }
    ReturnState state;
    state.strFinishDDMMYY = "3112/abc";
    EXPECT_NE(storeReturn(state, folder.path("temp"), "..", moment()).error, "");
    EXPECT_EQ(folder.names(), std::vector<std::string>{"temp"});
    EXPECT_TRUE(std::filesystem::is_empty(folder.path("temp")));
}

TEST(InnerFiles, ArePackedOrPlainByTheirContent) {
    const WorkFolder folder;
    const InnerFile packed = readInnerFile(storedReturn("ordinary-company", "C"));
    EXPECT_EQ(packed.error, "");
    ASSERT_EQ(writeWholeFile(folder.path("inner"), packed.bytes), std::nullopt);
    EXPECT_EQ(readInnerFile(folder.path("inner")).bytes, packed.bytes);
    EXPECT_NE(readInnerFile(folder.path("missing")).error, "");
}

TEST(InnerFiles, OfTheStoredReturnsDecodeToTheirLines) {
    for (const auto& [story, storeType] :
        std::vector<std::pair<std::string, std::string>>{{"ordinary-company", "C"}, {"every-field", "N"},
            {"first-153-lines", "N"}, {"not-encoded", "N"}, {"version-2560", "N"}}) {
        const InnerFile inner = readInnerFile(storedReturn(story, storeType));
        ASSERT_EQ(inner.error, "") << story;
        std::vector<std::string> lines;
        for (const FileLine& line : decodeFile(inner.bytes))
            lines.push_back(line.text);
        EXPECT_EQ(lines, storyLines(story)) << story;
    }
}

} // namespace
} // namespace lodge
