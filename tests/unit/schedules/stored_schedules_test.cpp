// Schedules and item 12 through the return file and back.
#include "family.h"
#include "file/return_file.h"
#include "open_page.h"
#include "pages/schedules/item12_page.h"
#include "pages/schedules/schedule_page.h"

#include <gtest/gtest.h>

namespace lodge {
namespace {

/// What the file makes of a return.
ReturnState storedAndLoaded(ReturnState& state) {
    state.strVersion = "2561.00";
    state.strStartDDMMYY = "01012561";
    state.strFinishDDMMYY = "31122561";
    ReturnState loaded;
    EXPECT_EQ(readReturn(encodeReturn(state), loaded).status, ReadStatus::Loaded);
    return loaded;
}

template <typename Page>
void fillPage(Desktop& desktop, const Member& member) {
    auto& page = desktop.open<Page>();
    for (const Cell& cell : member.cells) {
        desktop.type(page, member.box(1, cell.cell), std::to_string(1000 + cell.cell) + ".25");
        desktop.type(page, member.box(2, cell.cell), "-" + std::to_string(cell.cell + 1));
    }
    page.DataToArray();
}

TEST(StoredSchedules, ComeBackEntryForEntry) {
    Desktop desktop;
    fillPage<frmLodgePage3_4>(desktop, item4());
    fillPage<frmLodgePage4_5>(desktop, item5());
    fillPage<frmLodgePage4_6>(desktop, item6());
    fillPage<frmLodgePage4_7>(desktop, item7());
    fillPage<frmLodgePage5_8>(desktop, item8());
    fillPage<frmLodgePage5_9>(desktop, item9());
    fillPage<frmLodgePage6_10>(desktop, item10());
    const ReturnState loaded = storedAndLoaded(desktop.state());
    for (const Schedule& schedule : schedules)
        EXPECT_EQ(loaded.*schedule.fields, desktop.state().*schedule.fields) << "item " << schedule.item;
}

TEST(StoredSchedules, OfEmptyPagesShowEmptyPages) {
    Desktop desktop;
    fillPage<frmLodgePage6_10>(desktop, Member{10, 12, {}});
    desktop.state() = storedAndLoaded(desktop.state());
    desktop.state().intP1Box1 = 1;
    auto& page = static_cast<frmLodgePage6_10&>(*desktop.program.desk.find("frmLodgePage6_10"));
    page.ArrayToVar();
    for (const Control* control : page.controls())
        EXPECT_EQ(control->reading(), "") << control->fullName();
}

TEST(StoredItem12, ComesBackWithItsTicks) {
    Desktop desktop;
    auto& page = desktop.open<frmLodgePage7_12>();
    desktop.type(page, "txtMoney2(8)", "100");
    desktop.type(page, "txtMoney3(5)", "250");
    desktop.user.click(page.chkLose);
    desktop.type(page, "txtMoney4(3)", "150");
    page.DataToArray();
    const ReturnState loaded = storedAndLoaded(desktop.state());
    EXPECT_EQ(loaded.strFldPage7_12[24], "1");
    EXPECT_EQ(loaded.strFldPage7_12[20], "150.00");
    EXPECT_EQ(loaded.strFldPage7_12[21], "-150.00");
    EXPECT_EQ(loaded.strFldPage7_12[22], "100.00");
}

} // namespace
} // namespace lodge
