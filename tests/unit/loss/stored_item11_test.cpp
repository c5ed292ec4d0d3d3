// Item 11 and its entry log through the return file and back.
#include "file/return_file.h"
#include "item11_desktop.h"
#include "pages/loss/item11_rules.h"

#include <gtest/gtest.h>

namespace lodge {
namespace {

TEST(StoredItem11, ComesBackWithItsEntryLog) {
    Item11Desktop desktop;
    auto& popup = desktop.openPopup();
    desktop.addTaxable(popup, "01072560", "100.25"); // half a year
    desktop.addExempt(popup, "01072559", "200");
    desktop.addTaxable(popup, "01072558", "300");
    desktop.user.click(popup.cmdCan01);
    desktop.type(*desktop.program.desk.find("frmLodgePage6_11"), "txtMoney1(42)", "600.25");
    P6_11_DataToArray(desktop.program);
    ReturnState& state = desktop.state();
    state.strVersion = "2561.00";

    ReturnState loaded;
    ASSERT_EQ(readReturn(encodeReturn(state), loaded).status, ReadStatus::Loaded);
    EXPECT_EQ(loaded.strFldPage6_11, state.strFldPage6_11);
    EXPECT_EQ(loaded.strItem11Start, state.strItem11Start);
    EXPECT_EQ(loaded.strItem11End, state.strItem11End);
    EXPECT_EQ(loaded.intItem11Type, state.intItem11Type);
    EXPECT_EQ(loaded.intItem11Count, 3);
    EXPECT_EQ(loaded.intItem11CountA, 1);
    EXPECT_EQ(loaded.intItem11CountB, 2);
    EXPECT_EQ(loaded.strFldPage6_11[12], "01/07/2560");
    EXPECT_EQ(loaded.strFldPage6_11[68], "600.25");
}

TEST(StoredItem11, UnwindsAfterALoadAsBefore) {
    Item11Desktop desktop;
    auto& popup = desktop.openPopup();
    desktop.addTaxable(popup, "01012560", "100");
    desktop.addTaxable(popup, "01012559", "200");
    desktop.user.click(popup.cmdCan01);
    P6_11_DataToArray(desktop.program);
    desktop.state().strVersion = "2561.00";
    const std::string file = encodeReturn(desktop.state());

    Item11Desktop again;
    ASSERT_EQ(readReturn(file, again.state()).status, ReadStatus::Loaded);
    again.period("01012561", "31122561");
    auto& page = again.openPage();
    EXPECT_TRUE(page.DelButton[11].visible());
    EXPECT_FALSE(page.DelButton[12].visible());
    EXPECT_EQ(page.txtSum.text(), "300.00");
    auto& next = again.openPopup();
    EXPECT_EQ(next.mskDateTo[0].digits(), "31122558");
}

TEST(StoredItem11, OfEntriesWithAGapLoadsAndIsStoppedAtTheStore) {
    Item11Desktop desktop;
    ReturnState& state = desktop.state();
    state.strVersion = "2561.00";
    logEntry(state, 12, "01/01/2560", "31/12/2560");
    logEntry(state, 11, "01/01/2558", "31/12/2558");

    Item11Desktop again;
    ASSERT_EQ(readReturn(encodeReturn(state), again.state()).status, ReadStatus::Loaded);
    auto& page = again.openPage();
    EXPECT_TRUE(page.DelButton[11].visible());
    Chk_Item11Store(again.program);
    again.expectMessage("M541");
}

} // namespace
} // namespace lodge
