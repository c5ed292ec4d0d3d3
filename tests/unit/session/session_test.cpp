// How a run ends, what it tells, and what it never does.

#include "session/session.h"
#include "stage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace lodge {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

TEST(Session, EndsWith0WhenAllWentThrough) {
    Stage stage;
    EXPECT_EQ(stage.play("on frmStage\nclick cmdGo\nexpect cmdGo ตกลง\n"), SessionEnd::AllWentThrough);
    EXPECT_EQ(stage.errors.str(), "");
    EXPECT_EQ(static_cast<int>(SessionEnd::AllWentThrough), 0);
}

TEST(Session, EndsWith1AtTheFirstFailedExpectation) {
    Stage stage;
    EXPECT_EQ(stage.play("on frmStage\n\n# the sum\nexpect lblSum 1.00\nclick cmdGo\n"),
        SessionEnd::ExpectationFailed);
    EXPECT_EQ(stage.errors.str(), "test.session:4: expected lblSum = \"1.00\", found \"0.00\"\n");
    EXPECT_THAT(stage.events, IsEmpty());
    EXPECT_EQ(static_cast<int>(SessionEnd::ExpectationFailed), 1);
}

TEST(Session, EndsWith2AtAFaultOfTheScript) {
    Stage stage;
    EXPECT_EQ(stage.play("on frmStage\nclik cmdGo\nclick cmdGo\n"), SessionEnd::ScriptAtFault);
    EXPECT_EQ(
        stage.errors.str(), "test.session:2: unknown command \"clik\"; the nearest name is \"click\"\n");
    EXPECT_THAT(stage.events, IsEmpty());
    EXPECT_EQ(static_cast<int>(SessionEnd::ScriptAtFault), 2);
}

TEST(Session, KeepsGoingAfterFailedExpectationsWhenAsked) {
    Stage stage;
    EXPECT_EQ(stage.play("on frmStage\nexpect lblSum 1.00\nclick cmdGo\nexpect-shown frmPopup\n", true),
        SessionEnd::ExpectationFailed);
    EXPECT_EQ(stage.errors.str(), "test.session:2: expected lblSum = \"1.00\", found \"0.00\"\n"
                                  "test.session:4: expected frmPopup on screen, found it is not\n");
}

TEST(Session, AFaultEndsItAlsoWhenItKeepsGoing) {
    Stage stage;
    EXPECT_EQ(stage.play("on frmStage\nexpect lblSum 1.00\nclick cmdNo\nexpect lblSum 2.00\n", true),
        SessionEnd::ScriptAtFault);
    EXPECT_THAT(stage.errors.str(), HasSubstr("test.session:3: "));
    EXPECT_THAT(stage.errors.str(), Not(HasSubstr("test.session:4: ")));
}

TEST(Session, TextsInItsErrorsAreEscaped) {
    Stage stage;
    stage.form().lblSum.setCaption("two\rlines \"here\"");
    EXPECT_EQ(stage.play("expect frmStage.lblSum \"one\\nline\""), SessionEnd::ExpectationFailed);
    EXPECT_THAT(stage.errors.str(), HasSubstr(R"("one\nline", found "two\rlines \"here\"")"));
}

TEST(Session, TakesByteOrderMarkAndCarriageReturns) {
    Stage stage;
    EXPECT_EQ(stage.play("\xEF\xBB\xBFon frmStage\r\nexpect lblSum 0.00\r\n\r\nclick cmdGo\r"),
        SessionEnd::AllWentThrough);
}

TEST(Session, AMalformedLineIsAFaultWithItsNumber) {
    Stage stage;
    EXPECT_EQ(stage.play("on frmStage\nclick \xA1\n"), SessionEnd::ScriptAtFault);
    EXPECT_EQ(stage.errors.str(), "test.session:2: the line is not UTF-8\n");
}

TEST(Session, AWrongNumberOfWordsTellsHowToWriteIt) {
    Stage stage;
    EXPECT_EQ(stage.play("type frmStage.txtName Siam Trading\n"), SessionEnd::ScriptAtFault);
    EXPECT_THAT(stage.errors.str(), HasSubstr("too many words; write: type CONTROL TEXT"));
    EXPECT_EQ(stage.play("click\n"), SessionEnd::ScriptAtFault);
    EXPECT_THAT(stage.errors.str(), HasSubstr("too few words; write: click CONTROL"));
    EXPECT_EQ(stage.play("expect-no-message M001\n"), SessionEnd::ScriptAtFault);
    EXPECT_THAT(stage.errors.str(), HasSubstr("write: expect-no-message "));
}

TEST(Session, AnExceptionOfTheProgramIsAFaultAtItsLine) {
    Stage stage;
    stage.form().cmdGo.onClick = [] { throw std::out_of_range("no field 101"); };
    EXPECT_EQ(stage.play("\nclick frmStage.cmdGo\n"), SessionEnd::ScriptAtFault);
    EXPECT_EQ(stage.errors.str(), "test.session:2: the program failed: no field 101\n");
}

TEST(Session, AnythingThrownIsAFault) {
    Stage stage;
    stage.form().cmdGo.onClick = [] { throw 7; };
    EXPECT_EQ(stage.play("click frmStage.cmdGo\n"), SessionEnd::ScriptAtFault);
    EXPECT_EQ(stage.errors.str(), "test.session:1: the program failed\n");
}

TEST(Session, StartsTheProgramWithTheClockThatTheScriptSetsFirst) {
    Stage stage;
    int yearAtStart = 0;
    int starts = 0;
    Session session(stage.program, stage.host, [&] {
        ++starts;
        yearAtStart = machineYear(stage.host);
    });
    std::istringstream script("today 2019-05-20\ncalendar buddhist\non frmStage\nclick cmdGo\nclick cmdGo\n");
    EXPECT_EQ(session.run(script, {.scriptName = "s", .substitutes = {}}, stage.errors),
        SessionEnd::AllWentThrough);
    EXPECT_EQ(yearAtStart, 2562);
    EXPECT_EQ(starts, 1);
}

TEST(Session, AScriptWithoutACommandStartsTheProgramAllTheSame) {
    Stage stage;
    int starts = 0;
    Session session(stage.program, stage.host, [&] { ++starts; });
    std::istringstream script("# nothing yet\n");
    EXPECT_EQ(session.run(script, {.scriptName = "s", .substitutes = {}}, stage.errors),
        SessionEnd::AllWentThrough);
    EXPECT_EQ(starts, 1);
}

TEST(Session, AFailureToStartIsAFault) {
    Stage stage;
    Session session(stage.program, stage.host, [] { throw std::runtime_error("no table"); });
    std::istringstream script("");
    EXPECT_EQ(
        session.run(script, {.scriptName = "s", .substitutes = {}}, stage.errors), SessionEnd::ScriptAtFault);
    EXPECT_THAT(stage.errors.str(), HasSubstr("no table"));
}

TEST(Session, AfterThePersonLeftOnlyExpectationsGoOn) {
    Stage stage;
    stage.form().cmdGo.onClick = [&] {
        stage.program.desk.unloadAllExcept({});
        stage.host.quit();
    };
    EXPECT_EQ(stage.play("click frmStage.cmdGo\nexpect-hidden frmStage\nexpect intError 0\n"),
        SessionEnd::AllWentThrough);
    EXPECT_EQ(stage.play("click frmStage.cmdGo\n"), SessionEnd::ScriptAtFault);
    EXPECT_THAT(stage.errors.str(), HasSubstr("the program has ended"));
}

} // namespace
} // namespace lodge
