// The attachment of a return for 1 January to 31 December 2561 on screen, for tests.
#pragma once

#include "open_page.h"
#include "pages/ihq/ihq_page.h"
#include "values/messages.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace lodge {

class IhqDesktop : public Desktop {
  public:
    IhqDesktop() {
        program.desk.add(frmIHQ::formName, [this] { return std::make_unique<frmIHQ>(program); });
        ReturnState& r = state();
        r.strFldPage1[45] = "0105536000313";
        r.strStartDDMMYY = r.modIHQ.PeriodStart = "01012561";
        r.strFinishDDMMYY = r.modIHQ.PeriodEnd = "31122561";
        EXPECT_TRUE(r.FucDate.Str2StartDate("01012561", 2019));
        EXPECT_TRUE(r.FucDate.Str2EndDate("31122561", 2019));
        r.FucDate.SetCarryYears(5);
    }

    /// The page as the shell shows it.
    frmIHQ& openPage() {
        program.desk.load(frmIHQ::formName);
        IHQ_FormToBox(program);
        return static_cast<frmIHQ&>(program.desk.show(frmIHQ::formName));
    }
    frmIHQ& openAgain() {
        program.desk.unload(frmIHQ::formName);
        return openPage();
    }
    HeadquartersRecord& record() { return state().modIHQ; }

    /// The box that came up last bears the code's text; nothing is left to expect.
    void expectMessage(std::string_view code) {
        EXPECT_EQ(host.shown.size(), 1U);
        EXPECT_EQ(lastMessage(), GetMessage(code)) << code;
        host.shown.clear();
    }
    void expectNoMessage() { EXPECT_TRUE(host.shown.empty()) << lastMessage(); }
};

} // namespace lodge
