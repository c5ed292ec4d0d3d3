#include "filled_return.h"
#include "job_list.h"
#include "print/field_map.h"
#include "print/print_return.h"
#include "state/field_names.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <set>

namespace lodge {
namespace {

using testing::ElementsAre;
using testing::Not;

const ReportTemplate& templateOf(std::string_view name) {
    for (const ReportTemplate& report : reportTemplates()) {
        if (report.name == name) {
            return report;
        }
    }
    throw std::out_of_range(std::string(name));
}

ReportField fieldOf(std::string_view report, std::string_view name) {
    for (const ReportField& field : fieldsOf(templateOf(report))) {
        if (field.name == name) {
            return field;
        }
    }
    throw std::out_of_range(std::string(name));
}

/// What the template gets for the field, blank or filled.
std::string sentFor(std::string_view report, std::string_view name, ReturnState& state) {
    const ReportField field = fieldOf(report, name);
    const auto value = valueOf(field, state);
    return value ? valueAssignment(field, *value) : blankAssignment(field);
}

std::vector<std::string> linesOf(const std::string& path) {
    std::ifstream file(path);
    EXPECT_TRUE(file) << path;
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);) {
        lines.push_back(line);
    }
    return lines;
}

// --- The table itself ---

TEST(FieldMap, NamesTheTenTemplatesInTheOrderOfTheirPages) {
    std::vector<std::string> names;
    int page = 0;
    for (const ReportTemplate& report : reportTemplates()) {
        EXPECT_EQ(report.page, ++page);
        names.emplace_back(report.name);
    }
    EXPECT_THAT(names,
        ElementsAre("rptLodgePage1", "rptLodgePage2", "rptLodgePage3", "rptLodgePage4", "rptLodgePage5",
            "rptLodgePage6", "rptLodgePage7", "rptLodgePage8", "rptLodgePageIHQ", "rptLodgeAttachPage"));
}

TEST(FieldMap, HasEveryNameOfATemplateOnceAndASlotForEach) {
    for (const ReportTemplate& report : reportTemplates()) {
        std::set<std::string> names;
        std::size_t slot = 0;
        for (const ReportField& field : fieldsOf(report)) {
            EXPECT_TRUE(names.insert(field.name).second) << report.name << ' ' << field.name;
            EXPECT_EQ(field.slot, slot++) << report.name << ' ' << field.name;
        }
    }
}

TEST(FieldMap, ReadsOnlyEntriesThatAreThere) {
    ReturnState state;
    for (const ReportTemplate& report : reportTemplates()) {
        for (const ReportField& field : fieldsOf(report)) {
            const Source& source = field.row->source;
            EXPECT_NE(field.row->computed != nullptr, source.text != nullptr || source.number != nullptr)
                << field.name;
            if (!source.isArray) {
                EXPECT_EQ(field.entry, 0U) << field.name;
            } else {
                const std::string name = std::string(source.name) + '[' + std::to_string(field.entry) + ']';
                EXPECT_TRUE(findStateValue(state, name).has_value()) << field.name << ' ' << name;
            }
        }
    }
}

TEST(FieldMap, Page1HasNoFieldForWhatIsFoldedIntoTheNames) {
    for (const ReportField& field : fieldsOf(templateOf("rptLodgePage1"))) {
        EXPECT_THAT(field.name, Not(testing::AnyOf("lblFld33", "lblFld34", "lblFld40", "lblFld41")));
    }
}

// --- Whole pages ---

class EveryPage : public testing::TestWithParam<const char*> {};

TEST_P(EveryPage, OfAFilledReturnIsSentAsItsFileTells) {
    ReturnState state = filledReturn();
    JobList engine;
    printPage(templateOf(GetParam()), state, "/opt/lodge77", engine);
    ASSERT_EQ(engine.done.size(), 1U);
    std::vector<std::string> sent;
    for (const auto& [slot, formula] : engine.done[0].formulas) {
        sent.push_back(formula);
    }
    const std::string expected =
        std::string(LODGE_TEST_DATA "/print/filled-return/") + GetParam() + ".formulas";
    EXPECT_EQ(sent, linesOf(expected));
}

TEST_P(EveryPage, OfAnEmptyReturnHasATextForEveryFieldButTheZoneRates) {
    ReturnState state;
    JobList engine;
    printPage(templateOf(GetParam()), state, "/opt/lodge77", engine);
    ASSERT_EQ(engine.done.size(), 1U);
    for (const ReportField& field : fieldsOf(templateOf(GetParam()))) {
        const bool isZoneRate = field.name == "rate_eco_584" || field.name == "rate_eco_591";
        EXPECT_EQ(engine.done[0].formulas.count(field.slot), isZoneRate ? 0U : 1U) << field.name;
    }
}

INSTANTIATE_TEST_SUITE_P(Templates, EveryPage,
    testing::Values("rptLodgePage1", "rptLodgePage2", "rptLodgePage3", "rptLodgePage4", "rptLodgePage5",
        "rptLodgePage6", "rptLodgePage7", "rptLodgePage8", "rptLodgePageIHQ", "rptLodgeAttachPage"),
    [](const auto& info) { return std::string(info.param); });

TEST(Job, SendsEachFormulaBlankBeforeItsValue) {
    ReturnState state = filledReturn();
    JobList engine;
    printPage(templateOf("rptLodgePage7"), state, "/opt/lodge77", engine);
    const std::vector<std::string>& sent = engine.done[0].sent;
    ASSERT_EQ(sent.size(), 49U); // 25 blank ones and 24 values: entry 6 is empty
    EXPECT_EQ(sent[0], "lblFld00 = ' ' ");
    EXPECT_EQ(sent[1], "lblFld00 =  ' 712,000.00 ' ");
    EXPECT_EQ(sent[2], "lblFld01 = ' ' ");
}

TEST(Job, NamesTheTemplateBesideTheProgramAndSetsTheOptionBeforeItRuns) {
    ReturnState state;
    JobList engine;
    printPage(templateOf("rptLodgeAttachPage"), state, "/opt/lodge77", engine);
    EXPECT_EQ(engine.done[0].file, "/opt/lodge77/rptLodgeAttachPage.rpt");
    EXPECT_EQ(engine.done[0].option, 0L);
    EXPECT_THAT(engine.actions, ElementsAre(1));
}

// --- The forms of an assignment ---

TEST(Assignment, OfATextHasABlankOnEachSideOfTheValue) {
    ReturnState state;
    state.strFldPage1[10] = "01";
    EXPECT_EQ(sentFor("rptLodgePage1", "lblFld10", state), "lblFld10 =  ' 01 ' ");
    state.strFldPage1[10] = "";
    EXPECT_EQ(sentFor("rptLodgePage1", "lblFld10", state), "lblFld10 = ' ' ");
}

TEST(Assignment, OfACheckIsOneOnlyForOne) {
    ReturnState state;
    for (const char* other : {"", "0", "2", " 1", "True"}) {
        state.strFldPage1[7] = other;
        EXPECT_EQ(sentFor("rptLodgePage1", "lblFld07", state), "lblFld07 = '0' ") << other;
    }
    state.strFldPage1[7] = "1";
    EXPECT_EQ(sentFor("rptLodgePage1", "lblFld07", state), "lblFld07 = '1' ");
}

TEST(Assignment, OfABareCodeHasTheBlankBeforeItsQuotes) {
    ReturnState state;
    EXPECT_EQ(sentFor("rptLodgePage1", "Cash_Refund", state), "Cash_Refund =  '0' ");
    state.intAuditStatus = 6;
    EXPECT_EQ(sentFor("rptLodgePage1", "Audit", state), "Audit =  '6' ");
    state.DataCtrl_P2.NewAtt1 = "(2.1)";
    EXPECT_EQ(sentFor("rptLodgeAttachPage", "ChkBox_NewAtt1", state), "ChkBox_NewAtt1 =  '(2.1)' ");
    EXPECT_EQ(sentFor("rptLodgeAttachPage", "ChkBox_NewAtt2", state), "ChkBox_NewAtt2 = ' ' ");
}

TEST(Assignment, OfTheTwoHiddenStatusBoxesEndsWithItsQuote) {
    ReturnState state;
    state.strFldPage1[48] = "1";
    EXPECT_EQ(sentFor("rptLodgePage1", "ChkBox09", state), "ChkBox09 = '1'");
    EXPECT_EQ(sentFor("rptLodgePage1", "ChkBox12", state), "ChkBox12 = '0'");
}

TEST(Assignment, OfTwoBlankFieldsHasNoGapBeforeItsEqualsSign) {
    ReturnState state;
    EXPECT_EQ(sentFor("rptLodgePage5", "lblFld10_B5", state), "lblFld10_B5= ' ' ");
    EXPECT_EQ(sentFor("rptLodgePage6", "lblFld10_17", state), "lblFld10_17= ' ' ");
    // The others around them have it, and so has the value of the same field.
    EXPECT_EQ(sentFor("rptLodgePage5", "lblFld10_A5", state), "lblFld10_A5 = ' ' ");
    EXPECT_EQ(sentFor("rptLodgePage6", "lblFld10_18", state), "lblFld10_18 = ' ' ");
    state.strFldPage6_10[17] = "5";
    EXPECT_EQ(sentFor("rptLodgePage5", "lblFld10_B5", state), "lblFld10_B5 =  ' 5.00 ' ");
    EXPECT_EQ(sentFor("rptLodgePage6", "lblFld10_17", state), "lblFld10_17 =  ' 5.00 ' ");
}

TEST(Assignment, OfTheZoneRatesIsSentForAReducedRateAlone) {
    ReturnState state;
    state.DataCtrl_P1.ChkStatus11 = 1;
    const auto sentNames = [&] {
        JobList engine;
        printPage(templateOf("rptLodgePage2"), state, "/opt/lodge77", engine);
        std::string all;
        for (const std::string& formula : engine.done[0].sent) {
            all += formula + '\n';
        }
        return all;
    };
    for (const char* other : {"", "0", "2"}) {
        state.strFldPage2[26] = other;
        EXPECT_THAT(sentNames(), Not(testing::HasSubstr("rate_eco"))) << other;
    }
    state.strFldPage2[26] = "1";
    EXPECT_THAT(sentNames(), testing::HasSubstr("rate_eco_584 = '1 ' \n"));
    EXPECT_THAT(sentNames(), testing::HasSubstr("rate_eco_591= '0 ' \n"));
}

TEST(Assignment, WithAnApostropheIsRefusedUnderTheNameOfItsField) {
    const ReportField website = fieldOf("rptLodgePage1", "Website");
    try {
        (void)valueAssignment(website, "O'Reilly");
        FAIL() << "the quotes would end behind the O";
    } catch (const ReportError& error) {
        EXPECT_EQ(error.number(), report_error::valueBroken);
        EXPECT_THAT(error.what(), testing::HasSubstr("Website"));
    }
}

// --- Kinds of values ---

TEST(MoneyField, ShowsANegativeAmountInBracketsWithoutItsMinus) {
    ReturnState state;
    state.strFldPage3_4[0] = "-1234.5";
    EXPECT_EQ(sentFor("rptLodgePage3", "lblFld4_00", state), "lblFld4_00 =  ' (1,234.50) ' ");
    state.strFldPage3_4[0] = "1234567.5";
    EXPECT_EQ(sentFor("rptLodgePage3", "lblFld4_00", state), "lblFld4_00 =  ' 1,234,567.50 ' ");
}

TEST(MoneyField, ShowsAStoredZeroAndLeavesAnEmptyElementBlank) {
    ReturnState state;
    state.strFldPage3_4[0] = "0.00";
    EXPECT_EQ(sentFor("rptLodgePage3", "lblFld4_00", state), "lblFld4_00 =  ' 0.00 ' ");
    EXPECT_EQ(sentFor("rptLodgePage3", "lblFld4_01", state), "lblFld4_01 = ' ' ");
}

TEST(ListOfThree, LeavesAnEmptyPartBlank) {
    ReturnState state;
    state.strFldPage3_3[70] = "|1000|-20.5||";
    EXPECT_EQ(sentFor("rptLodgePage3", "lblFld3_A21", state), "lblFld3_A21 =  ' 1,000.00 ' ");
    EXPECT_EQ(sentFor("rptLodgePage3", "lblFld3_B21", state), "lblFld3_B21 =  ' (20.50) ' ");
    EXPECT_EQ(sentFor("rptLodgePage3", "lblFld3_C21", state), "lblFld3_C21 = ' ' ");
}

TEST(ListOfThree, OfTheWritersEmptyValueIsBlankInAllColumns) {
    ReturnState state;
    state.strFldPage3_3[70] = "||||";
    for (const char* name : {"lblFld3_A21", "lblFld3_B21", "lblFld3_C21"}) {
        EXPECT_EQ(sentFor("rptLodgePage3", name, state), std::string(name) + " = ' ' ");
    }
}

TEST(DateField, TakesDigitsAndMaskAlike) {
    ReturnState state;
    state.strFldPage2[1] = "04/02/2561";
    EXPECT_EQ(sentFor("rptLodgePage2", "lblFld1_01", state), "lblFld1_01 =  ' 04/02/2561 ' ");
    state.strFldPage2[1] = "04022561";
    EXPECT_EQ(sentFor("rptLodgePage2", "lblFld1_01", state), "lblFld1_01 =  ' 04/02/2561 ' ");
    state.strFldPage2[1] = "__/__/____";
    EXPECT_EQ(sentFor("rptLodgePage2", "lblFld1_01", state), "lblFld1_01 = ' ' ");
}

TEST(DateField, OfTheAttachmentIsBlankForZeros) {
    ReturnState state;
    state.modIHQ.BoxDateFrom[0] = "00/00/0000";
    state.modIHQ.BoxDateTo[0] = "31/12/2559";
    state.modIHQ.LicenceStart = "00/00/0000";
    EXPECT_EQ(sentFor("rptLodgePageIHQ", "DF1", state), "DF1 = ' ' ");
    EXPECT_EQ(sentFor("rptLodgePageIHQ", "DT1", state), "DT1 =  ' 31/12/2559 ' ");
    EXPECT_EQ(sentFor("rptLodgePageIHQ", "SDAY", state), "SDAY = ' ' ");
}

// --- Values that are put together ---

TEST(PersonName, OfABlankAuditorIsASingleBlankBetweenTheQuotes) {
    ReturnState state;
    EXPECT_EQ(sentFor("rptLodgePage1", "lblFld32", state), "lblFld32 = ' ' ");
    // The State Audit Office has a name but neither title nor surname.
    state.strFldPage1[33] = "สำนักงานตรวจเงินแผ่นดิน";
    EXPECT_EQ(sentFor("rptLodgePage1", "lblFld32", state), "lblFld32 =  ' สำนักงานตรวจเงินแผ่นดิน   ' ");
    EXPECT_EQ(sentFor("rptLodgePage1", "lblFld35", state), "lblFld35 = ' ' ");
}

TEST(PersonName, HasNoTitleForARowThatIsNone) {
    ReturnState state;
    state.strTitleName[1] = "นาย";
    state.strFldPage1[40] = "สม";
    for (const char* row : {"", "-1", "170", "x", "1x"}) {
        state.strFldPage1[39] = row;
        EXPECT_EQ(sentFor("rptLodgePage1", "lblFld39", state), "lblFld39 =  ' สม   ' ") << row;
    }
    state.strFldPage1[39] = "1";
    EXPECT_EQ(sentFor("rptLodgePage1", "lblFld39", state), "lblFld39 =  ' นายสม   ' ");
}

TEST(PathOfTheFile, IsThatOfThePackedFileAndBlankBeforeAStore) {
    ReturnState state;
    EXPECT_EQ(sentFor("rptLodgePage1", "Path_File", state), "Path_File = ' ' ");
    state.strFileName = "/data/01055360003132561100CM.txt";
    EXPECT_EQ(
        sentFor("rptLodgePage1", "Path_File", state), "Path_File =  '/data/01055360003132561100C.txt' ");
}

TEST(StatusFlags, EachAnswerToOneStatusNumber) {
    struct Case {
        const char* field;
        const char* status;
    };
    ReturnState state;
    for (const Case& flag : {Case{"IHQ_Flag", "15"}, Case{"ITC_Flag", "14"}, Case{"ROH_Flag", "10"},
             Case{"Social_Indc", "16"}, Case{"NStart_Indc", "17"}, Case{"OneAcc_Indc", "18"},
             Case{"Other_Indc", "19"}, Case{"NStart_Indc_s", "21"}}) {
        for (int status = 1; status <= 21; ++status) {
            state.DataCtrl_P1.IndcBusType = std::to_string(status);
            const std::string wanted = state.DataCtrl_P1.IndcBusType == flag.status ? " = '1' " : " = '0' ";
            EXPECT_EQ(sentFor("rptLodgePage1", flag.field, state), flag.field + wanted) << status;
        }
    }
}

TEST(RatesOfLine2, AreTheGeneralOneOrAReducedOne) {
    struct Case {
        const char* first;
        const char* second;
        const char* third;
        const char* general;
        const char* reduced;
    };
    for (const Case& rows : {Case{"", "", "", "0", "0"}, Case{"(1)", "", "", "1", "0"},
             Case{"(1)", "(2.6)", "", "1", "1"}, Case{"(1)", "", "x", "1", "1"},
             Case{"(2.1)", "", "", "0", "1"}, Case{"", "(2.6)", "", "0", "1"}}) {
        ReturnState state;
        state.DataCtrl_P2.NewAtt1 = rows.first;
        state.DataCtrl_P2.NewAtt2 = rows.second;
        state.DataCtrl_P2.NewAtt3 = rows.third;
        EXPECT_EQ(sentFor("rptLodgePage2", "lblFld2_03", state),
            std::string("lblFld2_03 = '") + rows.general + "' ");
        EXPECT_EQ(sentFor("rptLodgePage2", "lblFld2_04", state),
            std::string("lblFld2_04 = '") + rows.reduced + "' ");
    }
}

TEST(RateRow, CountsTheCodesOneToSixAndNoOther) {
    ReturnState state;
    for (const auto& [code, digit] : std::map<std::string, std::string>{{"1.1", "1"}, {"1.2", "2"},
             {"1.3", "3"}, {"1.4", "4"}, {"1.5", "5"}, {"1.6", "6"}, {"1.7", "0"}, {"1.8", "0"}, {"", "0"}}) {
        state.DataCtrl_P2.nRateCode = code;
        EXPECT_EQ(sentFor("rptLodgePage2", "rate_nomal", state), "rate_nomal = '" + digit + "' ") << code;
    }
}

TEST(TaxOfLine2, IsTheOneKeptBesideTheFieldsWhereThereIsOne) {
    ReturnState state;
    state.strFldPage2[33] = "2200000"; // the income, as closing the page leaves it
    state.DataCtrl_P2.TaxValue = "440000";
    EXPECT_EQ(sentFor("rptLodgePage2", "lblFld2_11", state), "lblFld2_11 =  ' 440,000.00 ' ");
    state.DataCtrl_P2.TaxValue = "";
    EXPECT_EQ(sentFor("rptLodgePage2", "lblFld2_11", state), "lblFld2_11 =  ' 2,200,000.00 ' ");
}

TEST(Remark, OfAHundredCharactersStaysOnItsLine) {
    ReturnState state;
    for (int word = 0; word < 20; ++word) {
        state.strFldPage8[21] += "กกกก ";
    }
    EXPECT_EQ(sentFor("rptLodgePage8", "lblFld21", state), "lblFld21 =  ' " + state.strFldPage8[21] + " ' ");
    EXPECT_EQ(sentFor("rptLodgePage8", "lblFld21_1", state), "lblFld21_1 = ' ' ");
}

TEST(Remark, GoesOnBehindTheLastBlankOfItsFirstHundredCharacters) {
    ReturnState state;
    std::string word;
    for (int letter = 0; letter < 60; ++letter) {
        word += "ก";
    }
    state.strFldPage8[22] = word + ' ' + word;
    EXPECT_EQ(sentFor("rptLodgePage8", "lblFld22", state), "lblFld22 =  ' " + word + " ' ");
    EXPECT_EQ(sentFor("rptLodgePage8", "lblFld22_1", state), "lblFld22_1 =  ' " + word + " ' ");
}

TEST(Remark, WithoutABlankIsCutAtItsHundredthCharacter) {
    ReturnState state;
    for (int letter = 0; letter < 101; ++letter) {
        state.strFldPage8[21] += "ก";
    }
    EXPECT_EQ(sentFor("rptLodgePage8", "lblFld21_1", state), "lblFld21_1 =  ' ก ' ");
}

TEST(StatedResult, IsTwoBlanksWhereBothColumnsHaveNone) {
    ReturnState state;
    state.BoxAmount = "100";
    for (const char* nothing : {"", "0.00"}) {
        state.strFldPage3_3[39] = nothing;
        EXPECT_EQ(sentFor("rptLodgeAttachPage", "boiTextVar", state), "boiTextVar =  '  ' ");
    }
    state.strFldPage3_3[19] = "5";
    EXPECT_EQ(sentFor("rptLodgeAttachPage", "boiTextVar", state), "boiTextVar =  ' 100.00 ' ");
    state.BoxAmount = "";
    EXPECT_EQ(sentFor("rptLodgeAttachPage", "boiTextVar", state), "boiTextVar = ' ' ");
}

TEST(StatedResult, HasAMarkForProfitAndForLoss) {
    ReturnState state;
    state.BoxLoss = true;
    EXPECT_EQ(sentFor("rptLodgeAttachPage", "profitXVar", state), "profitXVar =  '0' ");
    EXPECT_EQ(sentFor("rptLodgeAttachPage", "loseXVar", state), "loseXVar =  '1' ");
}

} // namespace
} // namespace lodge
