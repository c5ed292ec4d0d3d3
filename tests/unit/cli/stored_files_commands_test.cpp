// The commands `lines` and `show` as a script calls them.
#include "cli_call.h"
#include "state/field_names.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace lodge {
namespace {

std::string linesOf(const std::string& story) {
    std::ifstream file(LODGE_TEST_DATA "/returns/" + story + "/lines.txt");
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

// --- The program ---

TEST(CommandLine, WithoutACommandOrWithAnUnknownOneIsAtFault) {
    EXPECT_EQ(run({}).status, exitAtFault);
    EXPECT_EQ(run({"nothing"}).status, exitAtFault);
    EXPECT_EQ(run({"lines"}).status, exitAtFault);
    EXPECT_EQ(run({"show", "--nothing", storedReturn("every-field")}).status, exitAtFault);
    EXPECT_NE(run({}).err, "");
    EXPECT_EQ(run({}).out, "");
}

TEST(CommandLine, HelpGoesThroughAndNamesTheCommands) {
    const Result help = run({"--help"});
    EXPECT_EQ(help.status, exitDone);
    for (const char* command : {"check", "lines", "show"}) {
        EXPECT_NE(help.out.find(command), std::string::npos);
        EXPECT_EQ(run({command, "--help"}).status, exitDone);
        EXPECT_NE(run({command, "--help"}).out.find("exit status is 2"), std::string::npos);
    }
}

// --- lines ---

TEST(LinesCommand, PrintsTheLinesOfTheStoredReturns) {
    for (const auto& [story, storeType] :
        std::vector<std::pair<std::string, std::string>>{{"ordinary-company", "C"}, {"every-field", "N"},
            {"first-153-lines", "N"}, {"not-encoded", "N"}, {"version-2560", "N"}}) {
        const Result result = run({"lines", storedReturn(story, storeType)});
        EXPECT_EQ(result.status, exitDone) << story;
        EXPECT_EQ(result.out, linesOf(story)) << story;
        EXPECT_EQ(result.err, "") << story;
    }
}

TEST(LinesCommand, TakesAnUnpackedFile) {
    const TestFile file("|COMPLETE|\r\n01240124\r\n");
    const Result result = run({"lines", file.path});
    EXPECT_EQ(result.status, exitDone);
    EXPECT_EQ(result.out, "|COMPLETE|\n|\n");
}

TEST(LinesCommand, TellsDamagedLinesBesideTheResult) {
    const std::string path = storedReturn("damaged-line-17");
    const Result result = run({"lines", path});
    EXPECT_EQ(result.status, exitDone);
    EXPECT_NE(result.out.find("\n[PAGE3]\n-1\n||7000000.00|"), std::string::npos);
    EXPECT_EQ(result.err, path + ": damaged line 17\n");
}

TEST(LinesCommand, TellsAllDamagedLinesInOneLine) {
    const TestFile file("|a|\n00650066\n0x\n");
    EXPECT_EQ(run({"lines", file.path}).err, file.path + ": damaged lines 2, 3\n");
}

TEST(LinesCommand, HeadsEachOfSeveralFiles) {
    const TestFile file("|a|\r\n");
    EXPECT_EQ(run({"lines", file.path, file.path}).out,
        "==> " + file.path + " <==\n|a|\n\n==> " + file.path + " <==\n|a|\n");
}

TEST(LinesCommand, AFileAtFaultIsToldInOneLineAndTheOthersAreStillDone) {
    const TestFile file("|a|\r\n");
    const Result result = run({"lines", "/nowhere.txt", file.path});
    EXPECT_EQ(result.status, exitAtFault);
    EXPECT_EQ(result.err, "/nowhere.txt: no such file\n");
    EXPECT_EQ(result.out, "==> " + file.path + " <==\n|a|\n");
}

TEST(LinesCommand, AFileWithoutALineIsAtFault) {
    const TestFile file("");
    const Result result = run({"lines", file.path});
    EXPECT_EQ(result.status, exitAtFault);
    EXPECT_EQ(result.err, file.path + ": no line in it\n");
}

TEST(LinesCommand, ABrokenArchiveIsAtFault) {
    std::ifstream packed(storedReturn("every-field"), std::ios::binary);
    std::ostringstream bytes;
    bytes << packed.rdbuf();
    const TestFile file(bytes.str().substr(0, 1000));
    const Result result = run({"lines", file.path});
    EXPECT_EQ(result.status, exitAtFault);
    EXPECT_EQ(result.out, "");
    EXPECT_TRUE(result.err.starts_with(file.path + ": ")) << result.err;
}

// --- show ---

TEST(ShowCommand, PrintsEveryFieldByItsNameInAFixedOrder) {
    std::istringstream out(run({"show", storedReturn("ordinary-company", "C")}).out);
    std::vector<std::string> names;
    for (std::string line; std::getline(out, line);)
        names.push_back(line.substr(0, line.find(" = ")));
    EXPECT_EQ(names, stateValueNames());
}

TEST(ShowCommand, PrintsValuesBetweenQuotes) {
    const std::string out = run({"show", storedReturn("ordinary-company", "C")}).out;
    for (const char* line : {"strFldPage3_3[20] = \"12000000.00\"\n", "strFldPage1[33] = \"สมชาย\"\n",
             "DataCtrl_P1.IndcBusType = \"1\"\n", "intP1Box2 = \"1\"\n", "strFldPage3_3[0] = \"\"\n",
             "modNew3.NewBox1 = \"False\"\n", "strStartDDMMYY = \"01012561\"\n"}) {
        EXPECT_NE(out.find(line), std::string::npos) << line;
    }
}

TEST(ShowCommand, EscapesQuotesAndBackslashes) {
    const TestFile file("|COMPLETE|01|01|2561|31|12|2561|0|2561|2561.00|\r\n[PAGE1]\r\n||0|00|a\"b\\c|\r\n");
    EXPECT_NE(run({"show", file.path}).out.find("strFldPage1[11] = \"a\\\"b\\\\c\"\n"), std::string::npos);
}

TEST(ShowCommand, LeavesOutEmptyFieldsWhenAsked) {
    const std::string out = run({"show", "--filled", storedReturn("ordinary-company", "C")}).out;
    EXPECT_EQ(out.find("= \"\"\n"), std::string::npos);
    EXPECT_NE(out.find("strFldPage3_3[20] = \"12000000.00\"\n"), std::string::npos);
}

TEST(ShowCommand, PrintsJsonWithEveryField) {
    const std::string path = storedReturn("damaged-line-17");
    const Result result = run({"show", "--json", path});
    EXPECT_EQ(result.status, exitDone);
    const auto json = nlohmann::ordered_json::parse(result.out);
    ASSERT_EQ(json.size(), 1U);
    EXPECT_EQ(json[0]["file"], path);
    EXPECT_EQ(json[0]["damagedLines"], nlohmann::ordered_json::array({17}));
    EXPECT_EQ(json[0]["fields"]["strFldPage1[33]"], "สมชาย");
    EXPECT_EQ(json[0]["fields"]["strFldPage3_3[20]"], "");
    std::vector<std::string> names;
    for (const auto& [name, value] : json[0]["fields"].items())
        names.push_back(name);
    EXPECT_EQ(names, stateValueNames());
}

TEST(ShowCommand, PrintsOneJsonArrayForSeveralFilesAndLeavesOutThoseAtFault) {
    const Result result = run({"show", "--json", storedReturn("every-field"), storedReturn("version-2560"),
        storedReturn("ordinary-company", "C")});
    EXPECT_EQ(result.status, exitAtFault);
    EXPECT_EQ(nlohmann::json::parse(result.out).size(), 2U);
    EXPECT_EQ(result.err, storedReturn("version-2560") + ": not a return of version 2561.00 (M121)\n");
}

TEST(ShowCommand, AFileThatIsNoReturnIsAtFault) {
    const TestFile file("just a text\n");
    const Result result = run({"show", file.path});
    EXPECT_EQ(result.status, exitAtFault);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, file.path + ": not a return of version 2561.00 (M121)\n");
}

TEST(ShowCommand, OneReturnDoesNotShowThroughTheNext) {
    const Result both = run({"show", "--json", storedReturn("every-field"), storedReturn("first-153-lines")});
    const Result alone = run({"show", "--json", storedReturn("first-153-lines")});
    EXPECT_EQ(nlohmann::json::parse(both.out)[1], nlohmann::json::parse(alone.out)[0]);
}

} // namespace
} // namespace lodge
