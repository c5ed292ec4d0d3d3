// Jobs into a document, and what is in the document.
#include "paper/attachment.h"
#include "paper/paper_press.h"
#include "paper_kit.h"

#include <gmock/gmock.h>

namespace lodge {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

const Attachment data{.name = "return.json", .mimeType = "application/json", .bytes = "[{\"ก\": 1}]\n"};

class PaperPressTest : public ::testing::Test {
  protected:
    void begin(const std::string& elements, const std::string& name = "rptTest.rpt") {
        press.setReportFileName(folder.write(name, svgPage(elements)));
    }
    void run() {
        press.setOutputOption(0);
        press.setAction(1);
    }

    TestFolder folder;
    PaperPress press;
};

constexpr const char* slot = R"(<rect id="lblFld10" x="20" y="20" width="80" height="6" fill="none"/>)";

TEST_F(PaperPressTest, EachJobIsAPage) {
    begin(slot);
    press.setFormula(0, "lblFld10 =  ' 01 ' ");
    run();
    begin(slot, "other.rpt");
    press.setFormula(0, "lblFld10 =  ' 02 ' ");
    run();
    EXPECT_EQ(press.pageCount(), 2U);
    const std::string text = textOf(press.finishDocument("ก.ข.ค.77", data));
    EXPECT_THAT(text, AllOf(HasSubstr("01"), HasSubstr("02")));
}

TEST_F(PaperPressTest, ALaterFormulaOfASlotReplacesTheEarlierOne) {
    begin(slot);
    press.setFormula(7, "lblFld10 = ' ' ");
    press.setFormula(7, "lblFld10 =  ' 12345 ' ");
    run();
    EXPECT_THAT(textOf(press.finishDocument("", data)), HasSubstr("12345"));
}

TEST_F(PaperPressTest, NothingIsDrawnBeforeTheActionIsOne) {
    begin(slot);
    press.setAction(0);
    EXPECT_EQ(press.pageCount(), 0U);
}

TEST_F(PaperPressTest, ANewJobForgetsTheFormulasOfTheOneBefore) {
    begin(slot);
    press.setFormula(0, "lblFld10 =  ' 12345 ' ");
    press.setReportFileName(folder.path / "rptTest.rpt");
    run();
    EXPECT_THAT(textOf(press.finishDocument("", data)), Not(HasSubstr("12345")));
}

TEST_F(PaperPressTest, AFormulaWithoutASlotIsRefusedByTemplateAndField) {
    begin(slot);
    press.setFormula(0, "lblFld11 = ' ' ");
    EXPECT_THAT(failureOf([this] { run(); }),
        AllOf(StartsWith("3 "), HasSubstr("rptTest.rpt"), HasSubstr("lblFld11")));
}

TEST_F(PaperPressTest, PagesThatWereDoneStayWhenALaterJobFails) {
    begin(slot);
    press.setFormula(0, "lblFld10 =  ' 12345 ' ");
    run();
    press.setReportFileName(folder.path / "rptMissing.rpt");
    EXPECT_THAT(failureOf([this] { run(); }), StartsWith("2 "));
    EXPECT_EQ(press.pageCount(), 1U);
    EXPECT_THAT(textOf(press.finishDocument("", data)), HasSubstr("12345"));
}

TEST_F(PaperPressTest, ANewDocumentHasNoPages) {
    begin(slot);
    run();
    press.beginDocument();
    EXPECT_EQ(press.pageCount(), 0U);
}

TEST_F(PaperPressTest, APageOfTheDocumentIsAnImageAsWell) {
    begin("");
    run();
    begin(R"(<rect x="0" y="0" width="210" height="297" fill="#000000"/>)", "other.rpt");
    run();
    const PageImage first = press.pageImage(0, 25.4);
    const PageImage second = press.pageImage(1, 25.4);
    EXPECT_EQ(first.width, 210);
    EXPECT_EQ(first.height, 297);
    EXPECT_EQ(first.pixels.front(), 0xFFFFFFFFU);
    EXPECT_EQ(second.pixels.front(), 0xFF000000U);
    press.beginDocument();
    EXPECT_THROW((void)press.pageImage(0, 25.4), std::out_of_range);
}

TEST_F(PaperPressTest, TheDocumentCarriesTheAttachedFileByteForByte) {
    begin(slot);
    run();
    const auto pdf = folder.write("page.pdf", press.finishDocument("ก.ข.ค.77", data));
    EXPECT_THAT(outputOf("pdfdetach -list " + pdf.string()), HasSubstr("return.json"));
    EXPECT_EQ(outputOf("pdfdetach -save 1 -o /dev/stdout " + pdf.string()), data.bytes);
}

TEST_F(PaperPressTest, TheDocumentIsA4WithATitleAndEmbeddedLetters) {
    begin(std::string(slot) + R"(<text x="20" y="60" font-size="4" font-weight="700">กำไร</text>)");
    press.setFormula(0, "lblFld10 =  ' น้ำดื่ม 123 ' ");
    run();
    const auto pdf = folder.write("page.pdf", press.finishDocument("ก.ข.ค.77", data));
    EXPECT_THAT(outputOf("pdfinfo " + pdf.string()), AllOf(HasSubstr("ก.ข.ค.77"), HasSubstr("(A4)")));
    const std::string fonts = outputOf("pdffonts " + pdf.string());
    EXPECT_THAT(fonts, AllOf(HasSubstr("+Laksaman "), HasSubstr("+Laksaman-Bold ")));
    EXPECT_THAT(fonts, Not(HasSubstr(" no  "))); // embedded and subset, each of them
    EXPECT_EQ(outputOf("pdfimages -list " + pdf.string() + " | tail -n +3"), "");
}

TEST(Attachment, WhatIsNoDocumentIsRefused) {
    EXPECT_THAT(failureOf([] { (void)withAttachment("no document", data); }), StartsWith("9 "));
}

} // namespace
} // namespace lodge
