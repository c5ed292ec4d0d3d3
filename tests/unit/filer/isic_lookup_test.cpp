#include "filer_fixture.h"
#include "pages/filer/isic_lookup.h"
#include "pages/filer/name_pattern.h"
#include "program/business_line_page.h"
#include "values/text.h"

namespace lodge {
namespace {

using Texts = std::vector<std::string>;

// --- Patterns ---

TEST(NamePattern, AStarIsAnyRunAndAQuestionMarkOneCharacter) {
    EXPECT_TRUE(NamePattern("*").matches(""));
    EXPECT_TRUE(NamePattern("ก*ง").matches("กขคง"));
    EXPECT_TRUE(NamePattern("ก*ง").matches("กง"));
    EXPECT_FALSE(NamePattern("ก*ง").matches("กงจ"));
    EXPECT_TRUE(NamePattern("*ข?ค*").matches("กขำคง"));
    EXPECT_FALSE(NamePattern("?").matches(""));
    EXPECT_FALSE(NamePattern("?").matches("กข"));
    EXPECT_TRUE(NamePattern("*ab*abc*").matches("xababcx"));
    EXPECT_FALSE(NamePattern("*ab*abc").matches("xababcx"));
}

TEST(NamePattern, ANumberSignIsOneDigit) {
    EXPECT_TRUE(NamePattern("ชั้น #").matches("ชั้น 3"));
    EXPECT_FALSE(NamePattern("ชั้น #").matches("ชั้น x"));
}

TEST(NamePattern, BracketsAreASet) {
    EXPECT_TRUE(NamePattern("[กข]ค").matches("ขค"));
    EXPECT_FALSE(NamePattern("[กข]ค").matches("คค"));
    EXPECT_TRUE(NamePattern("[a-c]1").matches("B1"));
    EXPECT_FALSE(NamePattern("[a-c]1").matches("d1"));
    EXPECT_TRUE(NamePattern("[!a-c]1").matches("d1"));
    EXPECT_FALSE(NamePattern("[!a-c]1").matches("b1"));
    EXPECT_TRUE(NamePattern("[*]").matches("*"));
    EXPECT_FALSE(NamePattern("[*]").matches("x"));
    EXPECT_TRUE(NamePattern("a[]b").matches("ab"));
}

TEST(NamePattern, EverythingElseIsItselfWithoutRegardToCase) {
    EXPECT_TRUE(NamePattern("*SmEs (x.y)*").matches("กิจการ SMES (X.Y) ไทย"));
    EXPECT_FALSE(NamePattern("x.y").matches("xzy"));
    EXPECT_TRUE(NamePattern("a[b").matches("A[B")) << "a bracket that nothing closes";
}

TEST(NamePattern, ManyStarsAreMatchedInReasonableTime) {
    const std::string text(5000, 'a');
    EXPECT_FALSE(NamePattern("*a*a*a*a*a*a*a*a*b").matches(text));
}

// --- Long names ---

std::string words(std::size_t first, std::size_t second) {
    return std::string(first, 'x') + ' ' + std::string(second, 'y');
}

TEST(BrokenName, SeventySixCharactersAreBrokenAndSeventyFiveAreNot) {
    EXPECT_EQ(brokenName(words(40, 34)), words(40, 34)); // 75
    EXPECT_EQ(brokenName(words(40, 35)), std::string(40, 'x') + '\n' + std::string(35, 'y'));
}

TEST(BrokenName, TheBreakStandsAtTheLastBlankBeforePosition76) {
    EXPECT_EQ(brokenName(words(74, 10)), std::string(74, 'x') + '\n' + std::string(10, 'y'));
    EXPECT_EQ(brokenName("a " + words(74, 10)), "a\n" + words(74, 10)) << "the blank at 77 is too far";
    EXPECT_EQ(brokenName(std::string(90, 'x')), std::string(90, 'x')) << "no blank, no break";
}

TEST(BrokenName, CharactersAreCountedNotBytes) {
    std::string thai;
    for (int i = 0; i < 60; ++i) {
        thai += i == 30 ? " " : "ก";
    }
    EXPECT_EQ(brokenName(thai), thai);
}

// --- The dialog ---

/// Stands for page 2, which has a single business line.
class OneLinePage : public Form, public BusinessLinePage {
  public:
    explicit OneLinePage(Desk& desk) : Form(desk, "frmLodgePage2") {}
    bool takeBusinessLine(int /*row*/, const std::string& name, const std::string& code) override {
        taken = code + " " + name;
        return true;
    }
    std::string taken;
};

class IsicDialog : public FilerTest {
  protected:
    IsicDialog() {
        state.strIsicCode = {"011210", "471110", "471121", "641910", "477111"};
        state.strIsicName = {"การปลูกข้าวเจ้า", "ซูเปอร์มาร์เก็ต", "ร้านสะดวกซื้อ/มินิมาร์ท", "ธนาคารพาณิชย์",
            std::string(60, 'x') + " " + std::string(30, 'y')};
        state.intIsicCount = 5;
    }

    frmLodgeISIC& open(int row = 0) {
        user.click(page.cmdSISIC1[row]);
        return *program.desk.find<frmLodgeISIC>();
    }

    frmLodgePage1& page = newReturn();
};

TEST_F(IsicDialog, OpensEmptyUnderItsThreeHeads) {
    const frmLodgeISIC& dialog = open();
    EXPECT_EQ(dialog.gridISIC.columns(), (Texts{"ลำดับ", "รหัส ISIC", "ชื่อกิจการที่ประกอบ"}));
    EXPECT_TRUE(dialog.gridISIC.rows().empty());
}

TEST_F(IsicDialog, FindsByAPieceOfTheNameInTableOrder) {
    frmLodgeISIC& dialog = open();
    user.type(dialog.txtSearch, "มาร์");
    user.click(dialog.cmdSearch);
    ASSERT_EQ(dialog.gridISIC.rows().size(), 2U);
    user.type(dialog.txtSearch, "า?");
    user.click(dialog.cmdSearch);
    EXPECT_EQ(dialog.gridISIC.rows(),
        (std::vector<Grid::Row>{{"1", "011210", "การปลูกข้าวเจ้า"}, {"2", "471110", "ซูเปอร์มาร์เก็ต"},
            {"3", "471121", "ร้านสะดวกซื้อ/มินิมาร์ท"}, {"4", "641910", "ธนาคารพาณิชย์"}}));
    EXPECT_TRUE(host.shown.empty());
}

TEST_F(IsicDialog, ShowsTheHitsWhileOneTypesWithoutAWord) {
    frmLodgeISIC& dialog = open();
    user.focus(dialog.txtSearch);
    user.edit(dialog.txtSearch, "ธนา");
    EXPECT_EQ(dialog.gridISIC.cell(0, 1), "641910");
    user.edit(dialog.txtSearch, "ธนาx");
    EXPECT_TRUE(dialog.gridISIC.rows().empty());
    user.edit(dialog.txtSearch, "");
    user.focus(dialog.txtSearchISIC);
    user.edit(dialog.txtSearchISIC, "47111");
    EXPECT_TRUE(dialog.gridISIC.rows().empty());
    user.edit(dialog.txtSearchISIC, "471110");
    EXPECT_EQ(dialog.gridISIC.rows().size(), 1U);
    EXPECT_TRUE(host.shown.empty());
}

TEST_F(IsicDialog, ASearchThatFindsNothingIsM115) {
    frmLodgeISIC& dialog = open();
    user.type(dialog.txtSearch, "ไม่มีกิจการนี้");
    user.click(dialog.cmdSearch);
    EXPECT_EQ(shown(), messages({"M115"}));
    user.type(dialog.txtSearch, "");
    user.type(dialog.txtSearchISIC, "999999");
    user.click(dialog.cmdSearch);
    EXPECT_EQ(shown(), messages({"M115"}));
    user.type(dialog.txtSearchISIC, "");
    user.click(dialog.cmdSearch);
    EXPECT_EQ(shown(), messages({"M115"})) << "without a text nothing is found";
}

TEST_F(IsicDialog, ACodeHasSixDigits) {
    frmLodgeISIC& dialog = open();
    for (const char* code : {"47111", "4711101", "4711A0"}) {
        user.type(dialog.txtSearchISIC, code);
        user.click(dialog.cmdSearch);
        EXPECT_EQ(shown(), Texts{"ต้องระบุตัวเลขรหัส ISIC ให้ครบทั้ง 6 หลัก"}) << "and no M115 behind it";
    }
    user.type(dialog.txtSearchISIC, "471110");
    user.click(dialog.cmdSearch);
    EXPECT_EQ(shown(), Texts{});
    EXPECT_EQ(dialog.gridISIC.cell(0, 2), "ซูเปอร์มาร์เก็ต");
}

TEST_F(IsicDialog, ClearSetsEverythingBack) {
    frmLodgeISIC& dialog = open();
    user.type(dialog.txtSearch, "ธนา");
    user.pick(dialog.gridISIC, 0);
    EXPECT_EQ(dialog.txtISICName.text(), "ธนาคารพาณิชย์");
    user.click(dialog.cmdClear);
    EXPECT_EQ(dialog.txtSearch.text(), "");
    EXPECT_EQ(dialog.txtSearchISIC.text(), "");
    EXPECT_EQ(dialog.txtISICName.text(), "");
    EXPECT_TRUE(dialog.gridISIC.rows().empty());
    user.click(dialog.cmdOk);
    EXPECT_TRUE(dialog.isShown()) << "there is nothing left to take";
}

TEST_F(IsicDialog, OkTakesTheRowAndGivesTheToolbarBack) {
    frmLodgeISIC& dialog = open(2);
    user.type(dialog.txtSearchISIC, "641910");
    user.pick(dialog.gridISIC, 0);
    user.click(dialog.cmdOk);
    EXPECT_EQ(page.lblISICName1[2].caption(), "ธนาคารพาณิชย์");
    EXPECT_EQ(page.lblISICCode1[2].caption(), "641910");
    EXPECT_EQ(program.desk.find<frmLodgeISIC>(), nullptr);
    EXPECT_TRUE(shell.tools);
}

TEST_F(IsicDialog, ACodeOfAnotherRowLeavesTheDialogOpenWithItsContent) {
    page.takeBusinessLine(0, "ธนาคารพาณิชย์", "641910");
    frmLodgeISIC& dialog = open(1);
    user.type(dialog.txtSearch, "ธนา");
    user.pick(dialog.gridISIC, 0);
    user.click(dialog.cmdOk);
    EXPECT_TRUE(dialog.isShown());
    EXPECT_EQ(dialog.txtISICName.text(), "ธนาคารพาณิชย์");
    EXPECT_EQ(page.lblISICCode1[1].caption(), "");
    EXPECT_FALSE(shell.tools);
    user.click(dialog.cmdExit);
    frmLodgeISIC& again = open(0);
    user.type(again.txtSearch, "ธนา");
    user.pick(again.gridISIC, 0);
    user.click(again.cmdOk);
    EXPECT_EQ(program.desk.find<frmLodgeISIC>(), nullptr) << "its own row may take it again";
}

TEST_F(IsicDialog, ALongNameShowsInTwoLinesAndIsTakenInOne) {
    frmLodgeISIC& dialog = open();
    user.type(dialog.txtSearchISIC, "477111");
    user.pick(dialog.gridISIC, 0);
    EXPECT_EQ(dialog.txtISICName.text(), std::string(60, 'x') + "\n" + std::string(30, 'y'));
    EXPECT_EQ(dialog.txtLenCount.text(), "91");
    user.click(dialog.cmdOk);
    EXPECT_EQ(page.lblISICName1[0].caption(), state.strIsicName[4]);
}

TEST_F(IsicDialog, ExitAndTheCrossTakeNothingAndGiveTheToolbarBack) {
    for (const bool byFrame : {false, true}) {
        frmLodgeISIC& dialog = open();
        user.type(dialog.txtSearch, "ธนา");
        user.pick(dialog.gridISIC, 0);
        if (byFrame) {
            user.close(dialog);
        } else {
            user.click(dialog.cmdExit);
        }
        EXPECT_EQ(program.desk.find<frmLodgeISIC>(), nullptr);
        EXPECT_EQ(page.lblISICCode1[0].caption(), "");
        EXPECT_TRUE(shell.tools);
    }
}

TEST_F(FilerTest, OnAnotherPageTheChoiceGoesToPage2) {
    Desk& desk = program.desk;
    state.strIsicCode = {"641910"};
    state.strIsicName = {"ธนาคารพาณิชย์"};
    state.intPageCur = 2;
    // The name is known already, so the page is put in its place.
    Program other(host);
    other.attach(shell);
    other.state = state;
    other.desk.add("frmLodgePage2", [&other] { return std::make_unique<OneLinePage>(other.desk); });
    other.desk.add("frmLodgeISIC", [&other] { return std::make_unique<frmLodgeISIC>(other); });
    auto& page2 = static_cast<OneLinePage&>(other.desk.show("frmLodgePage2"));
    auto& dialog = static_cast<frmLodgeISIC&>(other.desk.show("frmLodgeISIC", Modality::Modal));
    dialog.txtSearch.setText("ธนา");
    dialog.gridISIC.pick(0);
    dialog.cmdOk.raise(dialog.cmdOk.onClick);
    EXPECT_EQ(page2.taken, "641910 ธนาคารพาณิชย์");
    EXPECT_EQ(other.desk.find("frmLodgeISIC"), nullptr);
    EXPECT_TRUE(desk.knows("frmLodgePage2"));
}

} // namespace
} // namespace lodge
