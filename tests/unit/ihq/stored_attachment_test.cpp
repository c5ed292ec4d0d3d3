// The attachment through the return file and back, and what empties it.
#include "file/return_file.h"
#include "ihq_desktop.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace lodge {
namespace {

void fill(IhqDesktop& desktop) {
    frmIHQ& page = desktop.openPage();
    desktop.type(page, "mskDateConfm", "01022559");
    desktop.type(page, "mskDateStart", "01032559");
    desktop.type(page, "mskDateEnd", "28022574");
    desktop.type(page, "txtA(0)", "1000000");
    desktop.type(page, "txtA(7)", "-500.25");
    desktop.type(page, "txtB(2)", "40000");
    desktop.type(page, "mskDateFrom(0)", "01012560");
    desktop.type(page, "mskDateTo(0)", "31122560");
    desktop.type(page, "txtMoney1(1)", "70");
    desktop.type(page, "txtMoney1(2)", "30");
    desktop.type(page, "txtG1", "70");
    desktop.type(page, "txtG2", "0");
    desktop.expectNoMessage();
    desktop.state().strVersion = "2561.00";
}

TEST(StoredAttachment, ComesBackWhole) {
    IhqDesktop desktop;
    fill(desktop);
    const HeadquartersRecord& stored = desktop.record();

    ReturnState loaded;
    ASSERT_EQ(readReturn(encodeReturn(desktop.state()), loaded).status, ReadStatus::Loaded);
    const HeadquartersRecord& back = loaded.modIHQ;
    EXPECT_EQ(back.LicenceConfm, "01/02/2559");
    EXPECT_EQ(back.LicenceStart, "01/03/2559");
    EXPECT_EQ(back.LicenceEnd, "28/02/2574");
    EXPECT_EQ(back.BoxA, stored.BoxA);
    EXPECT_EQ(back.BoxB, stored.BoxB);
    EXPECT_EQ(back.BoxC, stored.BoxC);
    EXPECT_EQ(back.BoxA[7], "-500.25");
    EXPECT_EQ(back.BoxASum, "999499.75");
    EXPECT_EQ(back.BoxBSum, "40000.00");
    EXPECT_EQ(back.BoxCSum, "1039499.75");
    EXPECT_EQ(back.BoxDateFrom, stored.BoxDateFrom);
    EXPECT_EQ(back.BoxDateTo, stored.BoxDateTo);
    EXPECT_EQ(back.BoxMoney, stored.BoxMoney);
    EXPECT_EQ(back.BoxG1, "70.00");
    EXPECT_EQ(back.BoxG2, "0.00");
}

/// The text of a line of the file, from 1.
std::string lineOf(const std::vector<std::string>& lines, std::size_t number) { return lines.at(number - 1); }

TEST(StoredAttachment, StandsInThreeSectionsOfTheFile) {
    IhqDesktop desktop;
    fill(desktop);
    const std::vector<std::string> lines = returnLines(desktop.state());
    EXPECT_EQ(lineOf(lines, 196), "[IHQ] - LICENCE");
    EXPECT_EQ(lineOf(lines, 197), "|01/02/2559|");
    EXPECT_EQ(lineOf(lines, 198), "|01/03/2559|");
    EXPECT_EQ(lineOf(lines, 199), "|28/02/2574|");
    EXPECT_EQ(lineOf(lines, 200), "[IHQ] - EARNINGS");
    EXPECT_EQ(lineOf(lines, 201), "|1000000.00||1000000.00|");
    EXPECT_EQ(lineOf(lines, 202), "||||");
    EXPECT_EQ(lineOf(lines, 203), "||40000.00|40000.00|");
    EXPECT_EQ(lineOf(lines, 208), "|-500.25||-500.25|");
    EXPECT_EQ(lineOf(lines, 209), "|999499.75|40000.00|1039499.75|");
    EXPECT_EQ(lineOf(lines, 210), "[IHQ] - NETLOSS");
    EXPECT_EQ(lineOf(lines, 211), "|01/01/2560|31/12/2560|");
    EXPECT_EQ(lineOf(lines, 215), "|||");
    EXPECT_EQ(lineOf(lines, 216), "||70.00|30.00|" + std::string(17, '|'));
    EXPECT_EQ(lineOf(lines, 217), "|70.00|0.00|");
}

TEST(StoredAttachment, NothingOfItIsLeftInANewReturn) {
    IhqDesktop desktop;
    fill(desktop);
    desktop.state().beginReturn(IhqRecord::Clear);
    frmIHQ& page = desktop.openAgain();
    for (const Control* control : page.controls()) {
        if (control->kind() == ControlKind::TextBox || control->kind() == ControlKind::MaskedBox) {
            EXPECT_EQ(control->reading(), "") << control->fullName();
        }
    }
}

} // namespace
} // namespace lodge
