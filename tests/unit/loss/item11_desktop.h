// Item 11 of a return for 1 January to 31 December 2561 on screen, for tests.
#pragma once

#include "open_page.h"
#include "pages/loss/item11_page.h"
#include "pages/loss/item11_popup.h"
#include "values/messages.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace lodge {

/// Remembers what the pages asked of the toolbar.
class ToolbarAlone : public ShellServices {
  public:
    bool toolsOn = true;

    void EnableTools(bool enabled) override { toolsOn = enabled; }
    void ShowPage1() override {}
    void EnableExit() override {}
    void EnableNav(bool /*enabled*/) override {}
    void ShowTools(bool /*shown*/) override {}
    void UnloadPages() override {}
    void StorePageOnScreen() override {}
    void SwitchPage(bool /*on*/) override {}
    void PrintReturn() override {}
    void EndReturn() override {}
};

class Item11Desktop : public Desktop {
  public:
    ToolbarAlone shell;

    Item11Desktop() {
        program.attach(shell);
        program.desk.add(frmLodgePage6_11Popup::formName,
            [this] { return std::make_unique<frmLodgePage6_11Popup>(program); });
        period("01012561", "31122561");
    }

    /// The period of the return, each day eight digits.
    void period(const std::string& first, const std::string& last) {
        ReturnState& r = state();
        const auto words = [&](std::size_t at, const std::string& day) {
            r.strFldPage1[at] = day.substr(0, 2);
            r.strFldPage1[at + 1] = MonthName("2", std::stoi(day.substr(2, 2)));
            r.strFldPage1[at + 2] = day.substr(4);
        };
        words(1, first);
        words(4, last);
        r.strStartDDMMYY = first;
        r.strFinishDDMMYY = last;
        EXPECT_TRUE(r.FucDate.Str2StartDate(first, 2019));
        EXPECT_TRUE(r.FucDate.Str2EndDate(last, 2019));
        r.FucDate.SetCarryYears(5);
    }

    frmLodgePage6_11& openPage() { return open<frmLodgePage6_11>(); }
    frmLodgePage6_11Popup& openPopup() {
        auto* page = program.desk.find<frmLodgePage6_11>();
        if (page == nullptr) page = &openPage();
        EXPECT_FALSE(user.click(page->Command1));
        return *program.desk.find<frmLodgePage6_11Popup>();
    }

    /// Enters a period of a taxable business with a loss.
    void addTaxable(frmLodgePage6_11Popup& popup, const char* start, const char* loss) {
        if (!popup.Check2.value()) user.click(popup.Check2);
        type(popup, "mskDateFrom(0)", start);
        type(popup, "txtMoney1(3)", loss);
        user.click(popup.cmdOK01);
    }
    /// Enters a period of an exempt business with a loss.
    void addExempt(frmLodgePage6_11Popup& popup, const char* start, const char* loss) {
        if (!popup.Check1.value()) user.click(popup.Check1);
        type(popup, "mskDateFrom(0)", start);
        type(popup, "txtMoney1(1)", loss);
        user.click(popup.cmdOK01);
    }
    void expectMessage(const char* code) {
        EXPECT_EQ(lastMessage(), GetMessage(code)) << code;
        host.shown.clear();
    }
};

} // namespace lodge
