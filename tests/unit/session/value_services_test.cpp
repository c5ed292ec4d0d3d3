// The value services by their names, as `call` and `expect-call` reach them.

#include "session/fault.h"
#include "session/value_services.h"
#include "stage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lodge {
namespace {

using ::testing::HasSubstr;

/// The service's result on a stage of its own.
std::string called(std::string_view name, const Words& arguments) {
    Stage stage;
    return callValueService(stage.program, name, arguments);
}

TEST(ValueServices, GiveTheirResultsAsTexts) {
    EXPECT_EQ(called("ChkMoney", {"9,999,999,999,999.99"}), "1");
    EXPECT_EQ(called("ChkMoney", {"12-3"}), "0");
    EXPECT_EQ(called("xx_Val", {"(1,234.50)"}), "-1234.50");
    EXPECT_EQ(called("MoneyTextToDouble", {"(1,234.50)"}), "-1234.5");
    EXPECT_EQ(called("DoubleToMoneyText", {"-5"}), "(5.00)");
    EXPECT_EQ(called("DoubleToMoneyText", {"1,234.5"}), "1,234.50");
    EXPECT_EQ(called("DoubleToMoneyText", {""}), "");
    EXPECT_EQ(called("DigitFilter", {"12", "2", "5"}), "00012");
    EXPECT_EQ(called("TruncValue", {"12.9"}), "12");
    EXPECT_EQ(called("ModOf", {"352", "11"}), "0");
    EXPECT_EQ(called("ChkDate", {"29022563"}), "29022563");
    EXPECT_EQ(called("ChkDate", {"29022562"}), "");
    EXPECT_EQ(called("DateToYMD", {"31122561"}), "25611231");
    EXPECT_EQ(called("DateFromText", {"01012561"}), "2458120"); // the Julian day of 1 January 2018
    EXPECT_EQ(called("MonthName", {"1", "2"}), "ก.พ.");
    EXPECT_EQ(called("MonthName", {"2", "7"}), "กรกฏาคม");
    EXPECT_EQ(called("ChkNid13", {"1234567890121"}), "True");
    EXPECT_EQ(called("ChkNid13", {"1234567890122"}), "False");
    EXPECT_EQ(called("ChkPerson13", {"1234567890121"}), "1234567890121");
    EXPECT_EQ(called("ChkTax13", {"1234567890122"}), "");
    EXPECT_EQ(called("ChkTax10", {"0000000000"}), "");
    EXPECT_EQ(called("HasPrefix", {"0992123456789", "0992 0993 0994"}), "True");
    EXPECT_EQ(called("HasPrefix", {"1992123456789", "0992 0993 0994"}), "False");
    EXPECT_EQ(called("GetMessage", {"M055"}), "M055 : วันที่ต้องน้อยกว่าวันปัจจุบัน");
    EXPECT_EQ(called("GetMessage", {"M999"}), "");
    EXPECT_EQ(called("EnCodeLine", {"A"}), "00650065");
    EXPECT_EQ(called("EnCodeLine", {"|"}), "01240124");
    EXPECT_EQ(called("DeCodeLine", {"01610161"}), "ก");
    EXPECT_EQ(called("DeCodeLine", {"01610162"}), "-1");
    EXPECT_EQ(called("FormatBox", {"-1234.5"}), "(1,234.50)");
    EXPECT_EQ(called("FormatBox", {""}), "");
    EXPECT_EQ(called("ChkBoxNum", {""}), "True");
    EXPECT_EQ(called("ChkBoxNum", {"12-3"}), "False");
}

TEST(ValueServices, TheirMessagesAreBoxesLikeAnyOther) {
    Stage stage;
    EXPECT_EQ(stage.play("expect-call 0 ChkMoney 12-3\nexpect-message M075\n"
                         "expect-call \"\" ChkTax13 1234567890122\nexpect-message M129\nexpect-no-message\n"),
        SessionEnd::AllWentThrough)
        << stage.errors.str();
    EXPECT_THAT(stage.transcript.str(), HasSubstr("message \"M075"));
}

TEST(ValueServices, TheIdCheckRemembersInTheReturn) {
    Stage stage;
    EXPECT_EQ(stage.play("call ChkNid13 1234567890121\nexpect FucChk.LastValidId 1234567890121\n"
                         "call ChkNid13 1234567890122\nexpect FucChk.LastValidId \"\"\n"),
        SessionEnd::AllWentThrough)
        << stage.errors.str();
}

TEST(ValueServices, CallPrintsTheResultWithItsEscapes) {
    Stage stage;
    EXPECT_EQ(stage.play("call DoubleToMoneyText -5\ncall GetMessage M158\n"), SessionEnd::AllWentThrough);
    EXPECT_EQ(stage.transcript.str(), "(5.00)\nM158 : วันที่เริ่มต้นของรอบระยะเวลาบัญชี \\rจะต้องอยู่ในปี พ.ศ. 2560 และ "
                                      "พ.ศ. 2561 เท่านั้น\n");
}

TEST(ValueServices, AnotherResultThanTheExpectedOneFails) {
    Stage stage;
    EXPECT_EQ(stage.play("expect-call 5.00 DoubleToMoneyText -5\n"), SessionEnd::ExpectationFailed);
    EXPECT_EQ(stage.errors.str(),
        "test.session:1: expected DoubleToMoneyText to give \"5.00\", found \"(5.00)\"\n");
}

TEST(ValueServices, AnUnknownNameAWrongNumberOrNoNumberIsAFault) {
    for (const auto& [line, cause] : {
             std::pair{"call DoubleToMoneyTxt 5", "the nearest name is \"DoubleToMoneyText\""},
             std::pair{"call DoubleToMoneyText", "takes: DoubleToMoneyText NUMBER; it was given 0"},
             std::pair{"call ChkDate 01012561 1", "takes: ChkDate DATE; it was given 2"},
             std::pair{"expect-call 1 DigitFilter 12 2", "takes: DigitFilter TEXT LENGTH WANTED"},
             std::pair{"call DoubleToMoneyText five", "\"five\" is not a number"},
             std::pair{"call DigitFilter 12 two 5", "\"two\" is not a whole number"},
             std::pair{"call DigitFilter 12 -1 5", "\"-1\" is not a whole number"},
             std::pair{"call MonthName 1 May", "\"May\" is not a whole number"},
         }) {
        Stage stage;
        EXPECT_EQ(stage.play(line), SessionEnd::ScriptAtFault) << line;
        EXPECT_THAT(stage.errors.str(), HasSubstr(cause));
    }
}

} // namespace
} // namespace lodge
