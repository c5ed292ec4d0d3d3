#include "file/layout.h"
#include "file/line_codec.h"
#include "file/reading_limits.h"
#include "file/return_file.h"
#include "stored_returns.h"
#include "values/code_page.h"
#include "values/messages.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace lodge {
namespace {

using Lines = std::vector<std::string>;

std::string encoded(const Lines& lines) {
    std::string bytes;
    for (const std::string& line : lines)
        bytes += EnCodeLine(line) + "\r\n";
    return bytes;
}

// A plain text file of the lines, in the Thai code page.
std::string plain(const Lines& lines) {
    std::string bytes;
    for (const std::string& line : lines)
        bytes += toCodePage(line) + "\r\n";
    return bytes;
}

// The lines of a return of the year 2561 in which nothing is filled but the period.
Lines emptyReturn() {
    ReturnState state;
    state.strStartDDMMYY = "01012561";
    state.strFinishDDMMYY = "31122561";
    state.strStoreType = "N";
    return returnLines(state);
}

// What a load makes of an empty return with one line changed.
ReturnState readWithLine(std::size_t number, const std::string& text) {
    Lines lines = emptyReturn();
    lines.at(number - 1) = text;
    ReturnState state;
    EXPECT_EQ(readReturn(encoded(lines), state).status, ReadStatus::Loaded) << text;
    return state;
}

// The line that a return writes after `fill` has changed it.
std::string writtenLine(std::size_t number, const std::function<void(ReturnState&)>& fill) {
    ReturnState state;
    fill(state);
    return returnLines(state).at(number - 1);
}

// A line of a return, written and read again, as it is written the next time.
std::string rewrittenLine(std::size_t number, const std::string& text) {
    ReturnState state = readWithLine(number, text);
    return returnLines(state).at(number - 1);
}

// --- The stored returns ---

TEST(StoredReturns, ReadAndWrittenAgainGiveTheSameLines) {
    for (const auto& [story, storeType] : std::vector<std::pair<std::string, std::string>>{
             {"ordinary-company", "C"}, {"every-field", "N"}, {"not-encoded", "N"}}) {
        const Lines lines = storyLines(story);
        ASSERT_EQ(lines.size(), returnLineCount) << story;
        ReturnState state;
        EXPECT_EQ(readReturn(encoded(lines), state).status, ReadStatus::Loaded) << story;
        state.strStoreType = storeType;
        EXPECT_EQ(returnLines(state), lines) << story;
        EXPECT_EQ(encodeReturn(state), encoded(lines)) << story;
    }
}

TEST(StoredReturns, AreReadTheSameWithoutEncoding) {
    const Lines lines = storyLines("not-encoded");
    ReturnState fromPlain;
    ReturnState fromEncoded;
    EXPECT_EQ(readReturn(plain(lines), fromPlain).status, ReadStatus::Loaded);
    EXPECT_EQ(readReturn(encoded(lines), fromEncoded).status, ReadStatus::Loaded);
    EXPECT_EQ(returnLines(fromPlain), returnLines(fromEncoded));
}

// The stored return carries a number of its own in nearly every field, counted from 1001 in the order below;
// its two decimals repeat the last two digits.
class FigureCounter {
  public:
    std::string next() {
        ++number;
        return fmt::format("{}.{:02}", number, number % 100);
    }
    // Three figures in one value: columns 1, 2 and the total.
    std::string nextPacked() {
        const std::string one = next();
        const std::string two = next();
        return "|" + one + "|" + two + "|" + next() + "|";
    }

  private:
    int number = 1000;
};

TEST(StoredReturns, EveryFigureOfEveryFieldStandsInItsOwnField) {
    ReturnState state;
    ASSERT_EQ(readReturn(encoded(storyLines("every-field")), state).status, ReadStatus::Loaded);
    FigureCounter figures;
    const auto expectRun = [&](const char* name, const FieldArray& array, std::size_t first,
                               std::size_t last) {
        for (std::size_t k = first; k <= last; ++k)
            EXPECT_EQ(array[k], figures.next()) << name << k;
    };
    const auto expectPacked = [&](const char* name, const FieldArray& array, std::size_t first,
                                  std::size_t last) {
        for (std::size_t k = first; k <= last; ++k)
            EXPECT_EQ(array[k], figures.nextPacked()) << name << k;
    };
    expectRun("item 3, field ", state.strFldPage3_3, 0, 59);
    expectRun("item 4, field ", state.strFldPage3_4, 0, 26);
    expectRun("item 5, field ", state.strFldPage4_5, 0, 50);
    expectRun("item 6, field ", state.strFldPage4_6, 0, 20);
    expectRun("item 7, field ", state.strFldPage4_7, 0, 14);
    expectRun("item 8, field ", state.strFldPage5_8, 0, 74);
    expectRun("item 9, field ", state.strFldPage5_9, 0, 20);
    expectRun("item 10, field ", state.strFldPage6_10, 0, 50);
    expectRun("item 12, field ", state.strFldPage7_12, 0, 22);
    expectRun("item 3, field ", state.strFldPage3_3, 60, 60);
    expectRun("item 3, field ", state.strFldPage3_3, 67, 69);
    expectRun("page 2, field ", state.strFldPage2, 34, 40);
    expectPacked("item 3, field ", state.strFldPage3_3, 70, 81);
    expectPacked("item 8, field ", state.strFldPage5_8, 75, 85);
    expectPacked("item 10, field ", state.strFldPage6_10, 51, 77);
    expectRun("item 11, field ", state.strFldPage6_11, 26, 68);
    EXPECT_EQ(state.strFldPage6_11[0], "01/01/2548");
    EXPECT_EQ(state.strFldPage6_11[12], "01/01/2560");
    EXPECT_EQ(state.strFldPage6_11[13], "31/12/2548");
    EXPECT_EQ(state.strFldPage6_11[25], "31/12/2560");
}

TEST(StoredReturns, OneOfAnotherVersionIsRefusedWithM121) {
    ReturnState state;
    const ReadResult result = readReturn(encoded(storyLines("version-2560")), state);
    EXPECT_EQ(result.status, ReadStatus::Refused);
    EXPECT_EQ(result.message, GetMessage("M121"));
    EXPECT_EQ(state.strFldPage3_3[20], "");
}

TEST(StoredReturns, AShortOneLoadsWhatItHasAndLeavesTheLaterFieldsEmpty) {
    const Lines lines = storyLines("first-153-lines");
    ASSERT_EQ(lines.size(), 153U);
    ReturnState state;
    EXPECT_EQ(readReturn(encoded(lines), state).status, ReadStatus::Loaded);
    EXPECT_EQ(state.strFldPage8[23], "10052562");
    EXPECT_EQ(state.strFldPage3_3[70], "");
    EXPECT_EQ(state.strWebsite, "");
    EXPECT_EQ(state.modIHQ.BoxA[0], "");
    Lines again = returnLines(state);
    again.resize(lines.size());
    EXPECT_EQ(again, lines);
}

TEST(StoredReturns, ADamagedLineLeavesItsFieldsEmptyAndIsRemembered) {
    const Lines lines = storyLines("damaged-line-17");
    std::string bytes;
    for (std::size_t k = 0; k < lines.size(); ++k) {
        std::string line = EnCodeLine(lines[k]);
        if (k + 1 == 17) line.back() = line.back() == '9' ? '0' : '9';
        bytes += line + "\r\n";
    }
    ReturnState state;
    const ReadResult result = readReturn(bytes, state);
    EXPECT_EQ(result.status, ReadStatus::Loaded);
    EXPECT_EQ(result.damagedLines, (std::vector<std::size_t>{17}));
    EXPECT_EQ(state.strFldPage3_3[0] + state.strFldPage3_3[20] + state.strFldPage3_3[40], "");
    EXPECT_EQ(state.strFldPage3_3[21], "7000000.00");
    Lines wanted = lines;
    wanted[16] = "||||";
    // The sign of line 19 compares the lost income with the cost of line 18.
    wanted[18] = "|1|||0|5000000.00|5,000,000.00|2|5000000.00|5,000,000.00|";
    EXPECT_EQ(returnLines(state), wanted);
}

// --- Lines of a file ---

TEST(FileLines, EndWithCarriageReturnAndLineFeedWithEitherOrWithTheFile) {
    for (const std::string bytes : {"a\r\nb\r\nc\r\n", "a\nb\nc\n", "a\rb\rc", "a\r\nb\nc"}) {
        const std::vector<FileLine> lines = decodeFile(bytes);
        ASSERT_EQ(lines.size(), 3U) << bytes;
        EXPECT_EQ(lines[2].text, "c");
    }
}

TEST(FileLines, AnEmptyLineCounts) {
    const std::vector<FileLine> lines = decodeFile("a\r\n\r\nc\r\n");
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[1].text, "");
}

TEST(FileLines, OnlyALineThatBeginsWithZeroIsDecoded) {
    const std::vector<FileLine> lines = decodeFile("00650065\r\nA\r\n00650066\r\n\xA1\r\n");
    EXPECT_EQ(lines[0].text, "A");
    EXPECT_EQ(lines[1].text, "A");
    EXPECT_EQ(lines[2].text, "-1");
    EXPECT_EQ(lines[3].text, "ก");
    EXPECT_EQ(damagedLineNumbers(lines), std::vector<std::size_t>{3});
}

TEST(FileLines, OfAnEmptyFileAreNone) { EXPECT_TRUE(decodeFile("").empty()); }

TEST(SplitLine, TakesWhatStandsBetweenTheBars) {
    EXPECT_EQ(SplitLine("|a|b|c|"), (std::vector<std::string_view>{"a", "b", "c"}));
    EXPECT_EQ(SplitLine("|||"), (std::vector<std::string_view>{"", ""}));
}

TEST(SplitLine, BeginsAtTheSecondCharacterAndDropsWhatStandsBehindTheLastBar) {
    EXPECT_EQ(SplitLine("xa|b|rest"), (std::vector<std::string_view>{"a", "b"}));
    EXPECT_EQ(SplitLine("กa|b|"), (std::vector<std::string_view>{"a", "b"}));
    EXPECT_EQ(SplitLine("|a|b"), (std::vector<std::string_view>{"a"}));
}

TEST(SplitLine, FindsNoTokenWithoutABar) {
    EXPECT_TRUE(SplitLine("").empty());
    EXPECT_TRUE(SplitLine("-1").empty());
    EXPECT_TRUE(SplitLine("|").empty());
}

// --- Refusals ---

TEST(Reading, AFileWithoutALineIsRefusedWithM121) {
    ReturnState state;
    const ReadResult result = readReturn("", state);
    EXPECT_EQ(result.status, ReadStatus::Refused);
    EXPECT_EQ(result.message, GetMessage("M121"));
}

TEST(Reading, ADamagedHeaderIsRefusedWithM121) {
    ReturnState state;
    std::string bytes = encoded(emptyReturn());
    bytes[0] = '0';
    bytes[3] = bytes[3] == '4' ? '5' : '4'; // The first bar's code no longer fits the sum.
    const ReadResult result = readReturn(bytes, state);
    EXPECT_EQ(result.status, ReadStatus::Refused);
    EXPECT_EQ(result.damagedLines, std::vector<std::size_t>{1});
}

TEST(Reading, ATextThatIsNoReturnIsRefusedWithM121) {
    ReturnState state;
    EXPECT_EQ(readReturn("just a text\r\n", state).status, ReadStatus::Refused);
    EXPECT_EQ(readReturn("\r\n\r\n", state).status, ReadStatus::Refused);
    EXPECT_EQ(readReturn(std::string(5000, '\0'), state).status, ReadStatus::Refused);
    EXPECT_EQ(readReturn(std::string(5000, '0'), state).status, ReadStatus::Refused);
}

TEST(Reading, ALineOfUpTo52TokensIsReadAndALongerOneMakesTheFileUnreadable) {
    Lines lines = emptyReturn();
    lines[16] = "|1|2|3" + std::string(readingLimits.tokens - 2, '|');
    ReturnState state;
    EXPECT_EQ(readReturn(encoded(lines), state).status, ReadStatus::Loaded);
    EXPECT_EQ(state.strFldPage3_3[40], "3");
    lines[16] += '|';
    const ReadResult result = readReturn(encoded(lines), state);
    EXPECT_EQ(result.status, ReadStatus::Unreadable);
    EXPECT_NE(result.message, "");
    EXPECT_EQ(result.cause, "line 17 has more than 52 fields");
}

TEST(Reading, LinesBehindTheLastAreNotRead) {
    Lines lines = emptyReturn();
    lines.emplace_back("|1|2|3|");
    ReturnState state;
    EXPECT_EQ(readReturn(encoded(lines), state).status, ReadStatus::Loaded);
    EXPECT_EQ(returnLines(state), emptyReturn());
}

TEST(Reading, FillsTheStateOnTopOfWhatItHolds) {
    ReturnState state;
    state.strFldPage1[0] = "1234567890";
    EXPECT_EQ(readReturn(encoded(emptyReturn()), state).status, ReadStatus::Loaded);
    EXPECT_EQ(state.strFldPage1[0], "1234567890");
}

// --- Line 1 ---

TEST(Header, SaysCompleteForACompleteStoreOnly) {
    const auto header = [](const char* storeType) {
        return writtenLine(1, [storeType](ReturnState& state) { state.strStoreType = storeType; });
    };
    EXPECT_TRUE(header("C").starts_with("|COMPLETE|"));
    for (const char* storeType : {"N", "T", ""})
        EXPECT_TRUE(header(storeType).starts_with("|NONCOMPLETE|")) << storeType;
}

TEST(Header, CarriesThePeriodTheInvestmentTheTaxYearAndTheVersion) {
    ReturnState state;
    state.strStartDDMMYY = "01042560";
    state.strFinishDDMMYY = "31032561";
    state.intInvestment = 4;
    EXPECT_EQ(returnLines(state)[0], "|NONCOMPLETE|01|04|2560|31|03|2561|4|2561|2561.00|");
    EXPECT_EQ(state.strTaxYear, "2561");
}

TEST(Header, GivesThePeriodBackAndNotesAPromotedBusiness) {
    const ReturnState state = readWithLine(1, "|COMPLETE|01|04|2560|31|03|2561|1|2561|2561.00|");
    EXPECT_EQ(state.strStartDDMMYY, "01042560");
    EXPECT_EQ(state.strFinishDDMMYY, "31032561");
    EXPECT_EQ(state.intInvestment, 1);
    EXPECT_EQ(state.ChkInvestmentFlag1, 1);
    EXPECT_EQ(readWithLine(1, "|COMPLETE|01|04|2560|31|03|2561|4|2561|2561.00|").ChkInvestmentFlag1, 0);
}

// --- Lines 3 to 7: page 1 ---

TEST(FilingLine, RestoresTheBoxesOfEachFilingType) {
    const auto boxes = [](const std::string& line) {
        const FieldArray page = readWithLine(3, line).strFldPage1;
        return Lines{page[7], page[8], page[9], page[10]};
    };
    EXPECT_EQ(boxes("||1|00||"), (Lines{"1", "0", "0", ""}));
    EXPECT_EQ(boxes("||2|07||"), (Lines{"0", "0", "1", "07"}));
    // The "2" of an advance payment is meant: no tick of the additional filing.
    EXPECT_EQ(boxes("||3|00||"), (Lines{"0", "1", "2", ""}));
    EXPECT_EQ(boxes("||0|00||"), (Lines{"", "", "", ""}));
}

TEST(FilingLine, LabelsThePeriodOnPage1AndInTheAttachment) {
    const ReturnState state = readWithLine(1, "|COMPLETE|01|04|2560|31|03|2561|0|2561|2561.00|");
    const FieldArray& page = state.strFldPage1;
    EXPECT_EQ(
        (Lines(page.begin() + 1, page.begin() + 7)), (Lines{"01", "เมษายน", "2560", "31", "มีนาคม", "2561"}));
    EXPECT_EQ(state.modIHQ.PeriodStart, "01042560");
    EXPECT_EQ(state.modIHQ.PeriodEnd, "31032561");
}

TEST(StatusLine, RestoresTheStatusItsBoxAndTheZone) {
    const ReturnState alone = readWithLine(4, "|10||||||||1|");
    EXPECT_EQ(alone.DataCtrl_P1.IndcBusType, "10");
    EXPECT_EQ(alone.DataCtrl_P1.IndcBusCode, "10");
    EXPECT_EQ(alone.DataCtrl_P1.BusIndex, std::vector<std::int16_t>{17});
    EXPECT_EQ(alone.DataCtrl_P1.ChkStatus11, 0);
    EXPECT_EQ(alone.DataCtrl_P1.ChkStatus14, 1);

    const ReturnState inZone = readWithLine(4, "|1|||||||1|0|");
    EXPECT_EQ(inZone.DataCtrl_P1.BusIndex, (std::vector<std::int16_t>{0, 11}));
    EXPECT_EQ(inZone.DataCtrl_P1.ChkStatus11, 1);
    EXPECT_EQ(inZone.strFldPage1[44], "1");
}

TEST(TitleLines, CarryTheCodeAndNameOfTheRow) {
    EXPECT_EQ(
        writtenLine(6, [](ReturnState& state) { state.strFldPage1[32] = "45"; }), "||3204|พล.อ.ท.||||||||");
    EXPECT_EQ(readWithLine(6, "||3204|พล.อ.ท.||||||||").strFldPage1[32], "45");
    EXPECT_EQ(readWithLine(6, "||3204|พล.ร.ท.||||||||").strFldPage1[32], "36");
    EXPECT_EQ(readWithLine(7, "||2130|น.ส.||||||||").strFldPage1[39], "3");
}

TEST(TitleLines, AnEmptyOrUnknownTitleIsAnEmptyIndex) {
    EXPECT_EQ(readWithLine(6, "||||||||||||").strFldPage1[32], "");
    EXPECT_EQ(readWithLine(6, "||9999|x||||||||").strFldPage1[32], "");
    for (const std::string row : {"", "0", "170", "-1", "32767", "x"}) {
        EXPECT_EQ(writtenLine(6, [&row](ReturnState& state) { state.strFldPage1[32] = row; }), "|||||||||||")
            << row;
    }
}

TEST(Dates, OfPage1AreEightDigits) {
    EXPECT_EQ(readWithLine(6, "||||||||05|03|2562|").strFldPage1[37], "05032562");
    EXPECT_EQ(rewrittenLine(6, "||||||||05|03|2562|"), "||||||||05|03|2562|");
    EXPECT_EQ(readWithLine(6, "|||||||||||").strFldPage1[37], "");
}

// --- Line 9: item 1 ---

TEST(PrivilegeLine, CarriesTheOptionThatIsTicked) {
    const auto line = writtenLine(9, [](ReturnState& state) {
        FieldArray& page = state.strFldPage2;
        page[0] = "B123";
        page[1] = "02/03/2550";
        page[6] = "1";
        page[11] = "8";
        page[15] = "01/01/2555";
        page[19] = "31/12/2562";
        page[12] = "9"; // Of an option that is not ticked.
    });
    EXPECT_EQ(line, "|B123|02|03|2550|||3|8|01|01|2555|31|12|2562|||");
}

TEST(PrivilegeLine, RestoresThatOption) {
    const FieldArray page = readWithLine(9, "|B123|02|03|2550|||3|8|01|01|2555|31|12|2562|x|y|").strFldPage2;
    EXPECT_EQ(page[1], "02/03/2550");
    EXPECT_EQ((Lines{page[4], page[5], page[6], page[7]}), (Lines{"", "", "1", ""}));
    EXPECT_EQ(page[11], "8");
    EXPECT_EQ(page[15], "01/01/2555");
    EXPECT_EQ(page[19], "31/12/2562");
    EXPECT_EQ(page[8] + page[21], "xy");
}

TEST(PrivilegeLine, WithoutAnOptionWritesAndReadsNothingOfIt) {
    EXPECT_EQ(writtenLine(9, [](ReturnState& state) { state.strFldPage2[9] = "8"; }), "|||||||0||||||||||");
    const FieldArray page = readWithLine(9, "|||||||0|8|01|01|2555|31|12|2562|x|y|").strFldPage2;
    for (std::size_t entry = 4; entry <= 20; ++entry) {
        if (entry != 8) {
            EXPECT_EQ(page[entry], "") << entry;
        }
    }
    EXPECT_EQ(page[8] + page[21], "xy");
}

TEST(PrivilegeLine, AnOptionThatDoesNotExistIsNone) {
    for (const std::string option : {"5", "9", "-1", "99999999999", "x"}) {
        const FieldArray page =
            readWithLine(9, "|||||||" + option + "|8|01|01|2555|31|12|2562|||").strFldPage2;
        EXPECT_EQ(page[9], "") << option;
    }
}

// --- Lines 10 to 14: item 2 ---

TEST(ResultLine, CarriesThePayStatusAndRestoresItsTick) {
    for (std::size_t kind = 1; kind <= 3; ++kind) {
        const std::string line = fmt::format("|{}|500.00|", kind);
        const ReturnState state = readWithLine(10, line);
        EXPECT_EQ(state.DataCtrl_P2.PayStatus, std::to_string(kind));
        EXPECT_EQ(state.strFldPage2[21 + kind], "1");
        EXPECT_EQ(state.strFldPage2[32], "500.00");
        EXPECT_EQ(rewrittenLine(10, line), line);
    }
    EXPECT_EQ(writtenLine(10, [](ReturnState&) {}), "|0||");
    EXPECT_EQ(readWithLine(10, "|0||").strFldPage2[22], "");
}

TEST(ResultLine, AnIncomeEditReplacesTheFiguresOfTheFile) {
    ReturnState state;
    state.DataCtrl_P2.PayStatus = "1";
    state.strFldPage2[32] = "100.00";
    state.DataCtrl_P2.TaxValue = "20.00";
    state.modEdit = {true, "3", "900.00", "45.00"};
    const Lines lines = returnLines(state);
    EXPECT_EQ(lines[9], "|3|900.00|");
    EXPECT_EQ(lines[10], "|0|0|45.00|");
}

TEST(RateLine, CarriesTheCaseTheRateNumberAndTheTax) {
    const auto line = writtenLine(11, [](ReturnState& state) {
        state.DataCtrl_P2.Select_2_1 = std::int16_t{2};
        state.DataCtrl_P2.RateIndex1 = 4;
        state.DataCtrl_P2.TaxValue = "1234.5";
    });
    EXPECT_EQ(line, "|2|4|1234.50|");
}

TEST(RateLine, AnEmptyTaxIsWrittenAsZero) {
    EXPECT_EQ(writtenLine(11, [](ReturnState&) {}), "|0|0|0.00|");
}

TEST(RateLine, TheCaseInForceStandsOverOlderTicks) {
    const auto line = writtenLine(11, [](ReturnState& state) {
        state.strFldPage2[25] = "1";
        state.DataCtrl_P2.Select_2_1 = std::int16_t{3};
    });
    EXPECT_EQ(line, "|3|0|0.00|");
    EXPECT_EQ(writtenLine(11, [](ReturnState& state) { state.strFldPage2[25] = "1"; }), "|1|0|0.00|");
}

TEST(RateLine, RestoresTheRateFromItsNumber) {
    const ReturnState state = readWithLine(11, "|2|4|1234.50|");
    const TaxRecord& tax = state.DataCtrl_P2;
    EXPECT_EQ(state.strFldPage2[26], "1");
    EXPECT_EQ(tax.Select_2_1, 2);
    EXPECT_EQ(tax.RateIndex1, 4);
    EXPECT_EQ(tax.index_nRate, 3);
    EXPECT_EQ(tax.nRateLabel, "(1.4)");
    EXPECT_EQ(tax.nRateCode, "1.4");
    EXPECT_EQ(tax.nRateNo, "4");
    EXPECT_EQ(tax.TaxValue, "1234.50");
    EXPECT_EQ(state.strFldPage2[33], "1234.50");
    EXPECT_EQ(state.strFldPage2[44], "4");
    EXPECT_EQ(state.strFldPage2[45], "");
}

TEST(RateLine, ANumberOutsideTheLabelledRatesSetsNone) {
    for (const std::string number : {"0", "7", "-1", "99999", ""}) {
        const TaxRecord tax = readWithLine(11, "|2|" + number + "|0.00|").DataCtrl_P2;
        EXPECT_EQ(tax.index_nRate, -1) << number;
        EXPECT_EQ(tax.nRateCode, "") << number;
    }
    EXPECT_EQ(readWithLine(11, "|2|8|0.00|").DataCtrl_P2.RateIndex1, 8);
}

TEST(RateLine, ALabelInPlaceOfTheNumberGivesThePanelsNumber) {
    const std::vector<std::pair<std::string, std::string>> panel{
        {"(1.1)", "1"}, {"(1.2)", "2"}, {"(1.3)", "4"}, {"(1.4)", "5"}, {"(1.5)", "3"}, {"(1.6)", ""}};
    for (const auto& [label, number] : panel) {
        EXPECT_EQ(readWithLine(11, "|2|" + label + "|0.00|").strFldPage2[45], number) << label;
    }
}

TEST(RateLine, TheTicksSayWhichCaseIsInForce) {
    EXPECT_EQ(readWithLine(11, "|1|0|0.00|").DataCtrl_P2.Select_2_1, std::nullopt);
    EXPECT_EQ(readWithLine(11, "|2|0|0.00|").DataCtrl_P2.Select_2_1, 2);
    EXPECT_EQ(readWithLine(11, "|3|0|0.00|").DataCtrl_P2.Select_2_1, 3);
    EXPECT_EQ(readWithLine(11, "|0|0|0.00|").DataCtrl_P2.Select_2_1, std::nullopt);
}

TEST(BalanceLines, CarryTheChoiceAndThePlainAmount) {
    const auto fill = [](ReturnState& state) {
        state.DataCtrl_P2.Line4Status = "1";
        state.DataCtrl_P2.Line4Amount = "1,234.50";
        state.DataCtrl_P2.Line6Status = "2";
        state.DataCtrl_P2.Line6Amount = "(5.00)";
    };
    EXPECT_EQ(writtenLine(13, fill), "|1|1234.50|");
    EXPECT_EQ(writtenLine(14, fill), "|2|-5.00|");
    EXPECT_EQ(writtenLine(13, [](ReturnState&) {}), "|0|0|");
}

TEST(BalanceLines, RestoreTheTicksTheAmountAndTheStatus) {
    const ReturnState more = readWithLine(13, "|1|340000.00|");
    EXPECT_EQ(more.strFldPage2[28] + more.strFldPage2[29], "1");
    EXPECT_EQ(more.strFldPage2[41], "340000.00");
    EXPECT_EQ(more.DataCtrl_P2.Line4Status, "1");
    EXPECT_EQ(more.DataCtrl_P2.Line4Amount, "340000.00");

    const ReturnState over = readWithLine(14, "|2|0|");
    EXPECT_EQ(over.strFldPage2[31], "1");
    EXPECT_EQ(over.strFldPage2[43], "0");
    EXPECT_EQ(over.DataCtrl_P2.Line6Status, "2");

    EXPECT_EQ(readWithLine(13, "|0|0|").DataCtrl_P2.Line4Status, "0");
    EXPECT_EQ(readWithLine(13, "|0|12.00|").DataCtrl_P2.Line4Status, "1");
    EXPECT_EQ(readWithLine(13, "|1|0.00|").DataCtrl_P2.Line4Status, "0");
}

// --- Lines 15 and 219 to 221: the rate worksheet ---

TEST(WorksheetLine, CarriesBothRowsAndWhetherThereIsASum) {
    const auto fill = [](ReturnState& state) {
        state.strFldPage1_2[2] = "30";
        state.modGreen.GreenIncome = {"1", "2", "3", "4", "", ""};
        state.modGreen.GreenTax = {"1,234.50", "(7.00)", "", "-8", "", ""};
    };
    EXPECT_EQ(writtenLine(15, fill), "|1|1|2|3|4||1234.50|-7.00|0|-8.00||");
    EXPECT_EQ(writtenLine(219, fill), "|1|2|3|4|");
    EXPECT_EQ(writtenLine(220, fill), "|1234.50|-7.00|0|-8.00|");
    EXPECT_EQ(writtenLine(15, [](ReturnState&) {}), "|0||||||0|0|0|0||");
}

TEST(WorksheetLine, FillsTheSheetAndItsSums) {
    const WorksheetArray sheet = readWithLine(15, "|1|100|20.5|0.25|40|5|6||||x|").strFldPage1_2;
    EXPECT_EQ(sheet[0], "100");
    EXPECT_EQ(sheet[1], "20.5");
    EXPECT_EQ(sheet[6], "0.25");
    EXPECT_EQ(sheet[2], "120.75");
    EXPECT_EQ(sheet[3], "40");
    EXPECT_EQ(sheet[4], "5");
    EXPECT_EQ(sheet[7], "6");
}

TEST(WorksheetLine, HasNoSumWithoutItsFirstFigure) {
    const WorksheetArray sheet = readWithLine(15, "|1||20|30||5|6|||||").strFldPage1_2;
    EXPECT_EQ(sheet[2], "");
    EXPECT_EQ(sheet[5], "");
}

TEST(WorksheetLine, ItsTaxSumStandsInAShortFile) {
    Lines lines = emptyReturn();
    lines.resize(153);
    lines[14] = "|1|100|||40|5|0.5|||||";
    ReturnState state;
    EXPECT_EQ(readReturn(encoded(lines), state).status, ReadStatus::Loaded);
    EXPECT_EQ(state.strFldPage1_2[5], "45.5");
}

TEST(GreenLines, RestoreTheRecordAndTheTaxOfTheSheet) {
    const ReturnState state = readWithLine(221, "|1.2|9000.00|1234.50|");
    EXPECT_EQ(state.modGreen.RateCodeShown, "1.2");
    EXPECT_EQ(state.modGreen.GreenIncomeSum, "9000.00");
    EXPECT_EQ(state.modGreen.GreenTaxSum, "1234.50");
    EXPECT_EQ(state.strFldPage1_2[5], "1,234.50");
    EXPECT_EQ(readWithLine(221, "||||").strFldPage1_2[5], "");
}

// --- Lines 17 to 38: item 3 ---

TEST(AmountLines, ShowACopyForTheEye) {
    const auto line = [](const std::string& amount) {
        return writtenLine(21, [&amount](ReturnState& state) { state.strFldPage3_3[4] = amount; });
    };
    EXPECT_EQ(line("5100000"), "|5100000|5,100,000.00|||||");
    EXPECT_EQ(line("-1234.5"), "|-1234.5|(1,234.50)|||||");
    EXPECT_EQ(line("0"), "|0|0.00|||||");
    EXPECT_EQ(line(""), "|||||||");
}

TEST(AmountLines, ReadOnlyTheAmount) {
    const ReturnState state = readWithLine(21, "|1|999.00||888.00|-3|777|");
    EXPECT_EQ(state.strFldPage3_3[4], "1");
    EXPECT_EQ(state.strFldPage3_3[24], "");
    EXPECT_EQ(state.strFldPage3_3[44], "-3");
}

TEST(SignTokens, CompareTheTwoLinesAbove) {
    const auto signs = [](const std::string& income, const std::string& cost) {
        return writtenLine(19, [&](ReturnState& state) {
            state.strFldPage3_3[0] = income;
            state.strFldPage3_3[1] = cost;
        });
    };
    EXPECT_EQ(signs("2", "1"), "|0|||1|||0|||");
    EXPECT_EQ(signs("1", "2"), "|0|||2|||0|||");
    EXPECT_EQ(signs("1.0", "1"), "|0|||0|||0|||");
    EXPECT_EQ(signs("", ""), "|0|||0|||0|||");
    EXPECT_EQ(writtenLine(25, [](ReturnState& state) { state.strFldPage3_3[27] = "5"; }), "|0|||0|||2|||");
}

TEST(ChoiceTokens, AreThePositionOfTheFirstTick) {
    const auto choice = [](const std::string& profit, const std::string& loss) {
        return writtenLine(38, [&](ReturnState& state) {
            state.strFldPage3_3[65] = profit;
            state.strFldPage3_3[66] = loss;
        });
    };
    EXPECT_EQ(choice("1", "0"), "|1|||");
    EXPECT_EQ(choice("0", "1"), "|2|||");
    EXPECT_EQ(choice("1", "1"), "|1|||");
    EXPECT_EQ(choice("0", ""), "|0|||");
}

TEST(ChoiceTokens, SetTheTickAndLeaveTheOthersEmpty) {
    const FieldArray page = readWithLine(38, "|2|||").strFldPage3_3;
    EXPECT_EQ(page[65], "");
    EXPECT_EQ(page[66], "1");
    for (const std::string choice : {"0", "3", "-1", "x", ""}) {
        const FieldArray untouched = readWithLine(38, "|" + choice + "|||").strFldPage3_3;
        EXPECT_EQ(untouched[65] + untouched[66] + untouched[67], "") << choice;
    }
}

TEST(ChoiceTokens, OfThePairsOfTheNotificationSkipTheReason) {
    const FieldArray page = readWithLine(148, "|2|reason|").strFldPage8;
    EXPECT_EQ(page[6], "");
    EXPECT_EQ(page[7], "reason");
    EXPECT_EQ(page[8], "1");
    EXPECT_EQ(readWithLine(152, "|2|reason|").strFldPage8[19], "1");
    EXPECT_EQ(writtenLine(151, [](ReturnState& state) { state.strFldPage8[17] = "1"; }), "|2||");
}

// --- Value lines ---

TEST(ValueLines, AnEmptyValueIsFourBarsInTheFileAndInTheReturn) {
    ReturnState state;
    EXPECT_EQ(returnLines(state)[155], "||||");
    EXPECT_EQ(state.strFldPage3_3[70], "||||");
    EXPECT_EQ(readWithLine(156, "||||").strFldPage3_3[70], "||||");
}

TEST(ValueLines, TakeTheWholeLine) {
    EXPECT_EQ(readWithLine(232, "|1|2|3|").strFldPage3_3[78], "|1|2|3|");
    EXPECT_EQ(readWithLine(257, "anything").strFldPage6_10[77], "anything");
}

TEST(ValueLines, ADamagedOneReadsAsEmpty) {
    Lines lines = emptyReturn();
    std::string bytes;
    for (std::size_t k = 0; k < lines.size(); ++k)
        bytes += (k + 1 == 156 ? "0065" : EnCodeLine(lines[k])) + "\r\n";
    ReturnState state;
    EXPECT_EQ(readReturn(bytes, state).damagedLines, std::vector<std::size_t>{156});
    EXPECT_EQ(state.strFldPage3_3[70], "");
    EXPECT_EQ(state.strFldPage3_3[71], "||||");
}

// --- Sections that are counted from their markers ---

TEST(Sections, AreFoundByTheirMarkerEvenWhereLinesAreMissing) {
    Lines lines = emptyReturn();
    lines[196] = "|01/01/2559|";
    lines[218] = "|11|12|13|14|";
    lines[222] = "|1|5.00|";
    lines.erase(lines.begin() + 190); // One line of the block before them is missing.
    ReturnState state;
    EXPECT_EQ(readReturn(encoded(lines), state).status, ReadStatus::Loaded);
    EXPECT_EQ(state.modIHQ.LicenceConfm, "01/01/2559");
    EXPECT_EQ(state.modGreen.GreenIncome[3], "14");
    EXPECT_TRUE(state.modNew3.NewBox1);
}

TEST(Sections, AreNotReadWithoutTheirMarker) {
    Lines lines = emptyReturn();
    lines[195] = "something else";
    lines[196] = "|01/01/2559|";
    lines[200] = "|1|2|3|";
    ReturnState state;
    EXPECT_EQ(readReturn(encoded(lines), state).status, ReadStatus::Loaded);
    EXPECT_EQ(state.modIHQ.LicenceConfm, "");
    EXPECT_EQ(state.modIHQ.BoxC[0], "3");
}

TEST(Sections, TheWorksheetsMarkerHasNoClosingBracket) { EXPECT_EQ(emptyReturn()[217], "[GREEN-BOX"); }

TEST(StatedResult, CarriesTheChoiceAndThePlainAmount) {
    const auto line = [](bool profit, bool loss) {
        return writtenLine(223, [&](ReturnState& state) { state.modNew3 = {profit, loss, "(1,234.50)"}; });
    };
    EXPECT_EQ(line(true, false), "|1|-1234.50|");
    EXPECT_EQ(line(false, true), "|2|-1234.50|");
    EXPECT_EQ(line(true, true), "|2|-1234.50|");
    EXPECT_EQ(line(false, false), "|0|-1234.50|");
    EXPECT_EQ(writtenLine(223, [](ReturnState&) {}), "|0|0|");
}

TEST(StatedResult, GoesToTheRecordAndToItem3) {
    const ReturnState state = readWithLine(223, "|2|1,234.50|");
    EXPECT_FALSE(state.modNew3.NewBox1);
    EXPECT_TRUE(state.modNew3.NewBox2);
    EXPECT_EQ(state.modNew3.NewBoxAmount, "1234.50");
    EXPECT_FALSE(state.BoxProfit);
    EXPECT_TRUE(state.BoxLoss);
    EXPECT_EQ(state.BoxAmount, "1234.50");
}

TEST(StatedResult, AnEmptyAmountStaysEmpty) {
    const ReturnState state = readWithLine(223, "|1||");
    EXPECT_EQ(state.modNew3.NewBoxAmount, "");
    EXPECT_EQ(state.BoxAmount, "");
}

// --- Lines 226 to 230 and 258 to 261 ---

TEST(PlainSplits, DropWhatStandsBeforeTheFirstBar) {
    const ReturnState state = readWithLine(226, "x|http://a.co.th|1|0|2|6|1|");
    EXPECT_EQ(state.strWebsite, "http://a.co.th");
    EXPECT_EQ(state.intP1Box1, 1);
    EXPECT_EQ(state.intP1Box2, 0);
    EXPECT_EQ(state.intCashRefund, 2);
    EXPECT_EQ(state.intAuditStatus, 6);
    EXPECT_EQ(state.intP1Box5, 1);
}

TEST(PlainSplits, ANumberThatDoesNotFitIsZero) {
    const ReturnState state = readWithLine(226, "||32768|x|-32769||1e3|");
    EXPECT_EQ(state.intP1Box1, 0);
    EXPECT_EQ(state.intP1Box2, 0);
    EXPECT_EQ(state.intCashRefund, 0);
    EXPECT_EQ(state.intAuditStatus, 0);
    EXPECT_EQ(state.intP1Box5, 1);
}

TEST(Item11Log, CarriesRowsZeroToTwelve) {
    ReturnState state;
    for (std::size_t row = 0; row < 20; ++row) {
        state.strItem11Start[row] = fmt::format("s{}", row);
        state.strItem11End[row] = fmt::format("e{}", row);
        state.intItem11Type[row] = static_cast<std::int16_t>(row);
    }
    state.intItem11Count = 13;
    state.intItem11CountA = 8;
    state.intItem11CountB = 5;
    const Lines lines = returnLines(state);
    EXPECT_EQ(lines[257], "|13|8|5|");
    EXPECT_EQ(lines[258], "|s0|s1|s2|s3|s4|s5|s6|s7|s8|s9|s10|s11|s12|");
    EXPECT_EQ(lines[259], "|e0|e1|e2|e3|e4|e5|e6|e7|e8|e9|e10|e11|e12|");
    EXPECT_EQ(lines[260], "|0|1|2|3|4|5|6|7|8|9|10|11|12|");
    EXPECT_EQ(readWithLine(261, lines[260]).intItem11Type[12], 12);
    EXPECT_EQ(readWithLine(259, lines[258]).strItem11Start[12], "s12");
}

} // namespace
} // namespace lodge
