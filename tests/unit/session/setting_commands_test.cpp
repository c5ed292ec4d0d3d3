// What a script sets: clock, calendar, environment, values of the return, where print jobs go.

#include "stage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

namespace lodge {
namespace {

using ::testing::HasSubstr;
using namespace std::chrono_literals;

void goesThrough(Stage& stage, const std::string& lines) {
    EXPECT_EQ(stage.play(lines), SessionEnd::AllWentThrough) << stage.errors.str();
}

std::string faultOf(const std::string& lines) {
    Stage stage;
    EXPECT_EQ(stage.play(lines), SessionEnd::ScriptAtFault) << lines;
    return stage.errors.str();
}

TEST(Settings, TodayIsTheMachinesUntilTheScriptSetsIt) {
    Stage stage;
    EXPECT_TRUE(stage.host.today().ok());
    EXPECT_GE(stage.host.today().year(), std::chrono::year(2024));
    goesThrough(stage, "today 2019-05-20\n");
    EXPECT_EQ(stage.host.today(), std::chrono::year_month_day(2019y, std::chrono::May, 20d));
}

TEST(Settings, TodayTakesOnlyADayOfTheCalendar) {
    for (const char* day : {"2019-02-29", "2019-13-01", "2019-00-10", "2019-5-20", "20190520", "20-05-2019",
             "2019/05/20", "tomorrow", "+019-05-20", "2019--5-20"}) {
        EXPECT_THAT(faultOf("today " + std::string(day)), HasSubstr("no day written YYYY-MM-DD")) << day;
    }
}

TEST(Settings, TheCalendarIsChristianUntilTheScriptSetsIt) {
    Stage stage;
    EXPECT_EQ(stage.host.calendar(), Calendar::Christian);
    goesThrough(stage, "today 2019-05-20\ncalendar buddhist\n");
    EXPECT_EQ(machineYear(stage.host), 2562);
    goesThrough(stage, "calendar christian\n");
    EXPECT_EQ(machineYear(stage.host), 2019);
    EXPECT_THAT(faultOf("calendar budhist"), HasSubstr("the nearest name is \"buddhist\""));
}

TEST(Settings, AnEnvironmentValueGoesBeforeTheMachines) {
    Stage stage;
    ASSERT_EQ(::setenv("tmp", "/machine", 1), 0);
    EXPECT_EQ(stage.host.environment("tmp"), "/machine");
    goesThrough(stage, "environment tmp \"/my tmp\"\n");
    EXPECT_EQ(stage.host.environment("tmp"), "/my tmp");
    goesThrough(stage, "environment tmp \"\"\n");
    EXPECT_EQ(stage.host.environment("tmp"), "");
    ::unsetenv("tmp");
    EXPECT_EQ(stage.host.environment("no such name"), "");
}

TEST(Settings, PokeWritesAValueOfTheReturn) {
    Stage stage;
    goesThrough(stage, "poke strFldPage2[44] \"a text\"\npoke intPageCur 2\npoke blnNeedPage2 True\n"
                       "poke modIHQ.BoxA(3) 5.00\npoke RateList (2.1),(2.3)\n");
    const ReturnState& state = stage.program.state;
    EXPECT_EQ(state.strFldPage2[44], "a text");
    EXPECT_EQ(state.intPageCur, 2);
    EXPECT_TRUE(state.blnNeedPage2);
    EXPECT_EQ(state.modIHQ.BoxA[3], "5.00");
    EXPECT_EQ(state.DataCtrl_P1.RateList, (std::vector<std::string>{"(2.1)", "(2.3)"}));
}

TEST(Settings, PokeOfATextThatDoesNotFitIsAFault) {
    EXPECT_THAT(faultOf("poke intPageCur two"), HasSubstr("\"two\" does not fit the state value intPageCur"));
    EXPECT_THAT(faultOf("poke blnNeedPage2 yes"), HasSubstr("does not fit"));
}

TEST(Settings, PokeWritesNoControl) {
    EXPECT_THAT(
        faultOf("poke frmStage.lblSum 1.00"), HasSubstr("there is no state value \"frmStage.lblSum\""));
    EXPECT_THAT(faultOf("poke intPageCurr 1"), HasSubstr("the nearest name is \"intPageCur\""));
}

TEST(Settings, ReportKeepsTheFolderOfThePrintJobs) {
    Stage stage;
    EXPECT_EQ(stage.host.reportFolder(), "");
    goesThrough(stage, "report \"/tmp/my jobs\"\n");
    EXPECT_EQ(stage.host.reportFolder(), "/tmp/my jobs");
}

} // namespace
} // namespace lodge
