// The command `check` as an accounting firm calls it over a folder.
#include "cli_call.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace lodge {
namespace {

const std::string& sound() {
    static const std::string path = storedReturn("ordinary-company", "C");
    return path;
}

const std::string& withProblems() {
    static const std::string path = storedReturn("two-problems");
    return path;
}

/// What the two problems of the story are, each on one line.
constexpr const char* problemLines =
    "รายการที่ 3: M047 : จำนวนเงิน รายจ่ายอื่น (รายการที่ 3 ข้อ 6) ไม่เท่ากับ จำนวนเงิน รายจ่ายอื่น (รายการที่ 7 ข้อ 5) "
    "[frmLodgePage3_3.txtMoney32(5)] 50,000.00 / 37,500.00: 12,500.00\n"
    "แบบแจ้งข้อความฯ: M067 : กรุณาระบุ วันที่ (แบบแจ้งข้อความ) [frmLodgePage8.mskDate1]\n";

TEST(CheckCommand, NothingInTheWayIsSaidAndExits0) {
    const Result result = run({"check", sound()});
    EXPECT_EQ(result.status, exitDone);
    EXPECT_EQ(result.out, "nothing in the way\n");
    EXPECT_EQ(result.err, "");
}

TEST(CheckCommand, EachProblemIsOneLineAndTheExitIs1) {
    const Result result = run({"check", withProblems()});
    EXPECT_EQ(result.status, exitFailed);
    EXPECT_EQ(result.out, problemLines);
    EXPECT_EQ(result.err, "");
}

TEST(CheckCommand, GoesOnAfterAnUnreadableFileAndExits2) {
    const Result result =
        run({"check", withProblems(), "/nowhere.txt", storedReturn("version-2560"), sound()});
    EXPECT_EQ(result.status, exitAtFault);
    EXPECT_EQ(result.err, "/nowhere.txt: no such file\n" + storedReturn("version-2560")
                              + ": not a return of version 2561.00 (M121)\n");
    EXPECT_EQ(result.out,
        "==> " + withProblems() + " <==\n" + problemLines + "\n==> " + sound()
            + " <==\nnothing in the way\n"
              "\n4 files: 1 with nothing in the way, 1 with something (2 in all), 2 unreadable\n");
}

TEST(CheckCommand, TellsDamagedLinesBesideTheResult) {
    const std::string path = storedReturn("damaged-line-17");
    const Result result = run({"check", path});
    EXPECT_EQ(result.out, "nothing in the way\n") << "no rule asks for the sales that the line held";
    EXPECT_EQ(result.err, path + ": damaged line 17\n");
}

TEST(CheckCommand, PrintsJson) {
    const Result result = run({"check", "--json", withProblems(), sound()});
    EXPECT_EQ(result.status, exitFailed);
    const auto wanted = nlohmann::json::parse(R"json([
      {"file": "", "damagedLines": [], "problems": [
        {"code": "M047", "text": "M047 : จำนวนเงิน รายจ่ายอื่น (รายการที่ 3 ข้อ 6) ไม่เท่ากับ จำนวนเงิน รายจ่ายอื่น (รายการที่ 7 ข้อ 5)",
         "page": 33, "pageName": "รายการที่ 3", "form": "frmLodgePage3_3", "field": "txtMoney32(5)",
         "here": "50,000.00", "there": "37,500.00", "difference": "12,500.00"},
        {"code": "M067", "text": "M067 : กรุณาระบุ วันที่ (แบบแจ้งข้อความ)",
         "page": 8, "pageName": "แบบแจ้งข้อความฯ", "form": "frmLodgePage8", "field": "mskDate1"}]},
      {"file": "", "damagedLines": [], "problems": []}])json");
    auto found = nlohmann::json::parse(result.out);
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0]["file"], withProblems());
    EXPECT_EQ(found[1]["file"], sound());
    found[0]["file"] = found[1]["file"] = "";
    EXPECT_EQ(found, wanted);
}

TEST(CheckCommand, JsonOfUnreadableFilesIsAnEmptyArray) {
    const Result result = run({"check", "--json", "/nowhere.txt"});
    EXPECT_EQ(result.status, exitAtFault);
    EXPECT_EQ(nlohmann::json::parse(result.out), nlohmann::json::array());
}

TEST(CheckCommand, SeveralJobsSayTheSameInTheSameOrder) {
    std::vector<std::string> call = {"check"};
    for (int round = 0; round < 40; ++round)
        call.insert(call.end(), {withProblems(), sound(), "/nowhere.txt", storedReturn("every-field")});
    const Result alone = run(call);
    call.insert(call.end(), {"-j", "4"});
    const Result together = run(call);
    EXPECT_EQ(together.status, alone.status);
    EXPECT_EQ(together.out, alone.out);
    EXPECT_EQ(together.err, alone.err);
}

TEST(CheckCommand, NoJobsOrTooManyAreAtFault) {
    EXPECT_EQ(run({"check", "-j", "0", sound()}).status, exitAtFault);
    EXPECT_EQ(run({"check", "-j", "257", sound()}).status, exitAtFault);
    EXPECT_EQ(run({"check", "-j", "many", sound()}).status, exitAtFault);
    EXPECT_EQ(run({"check"}).status, exitAtFault);
}

TEST(CheckCommand, OneReturnDoesNotShowThroughTheNext) {
    const Result both = run({"check", "--json", storedReturn("every-field"), sound()});
    EXPECT_EQ(nlohmann::json::parse(both.out)[1]["problems"], nlohmann::json::array());
}

} // namespace
} // namespace lodge
