#include "controls/text_box.h"
#include "program/checks.h"
#include "test_host.h"
#include "values/messages.h"

#include <gtest/gtest.h>

#include <array>

namespace lodge {
namespace {

constexpr std::array<CheckRow, 3> rows = {{
    {"M132", "txtNid", [](const CheckContext& c) { return c.state.strFldPage1[45].empty(); }},
    {"M141", "txtAuditPinID", [](const CheckContext& c) { return c.state.strFldPage1[31].empty(); }},
    {"ข้อความที่ไม่มีรหัส", "", [](const CheckContext& c) { return c.state.strFldPage1[38].empty(); }},
}};

class FormWithNumber : public Form {
  public:
    explicit FormWithNumber(Desk& desk) : Form(desk, "frmNumber") {}
    TextBox txtNid{*this, "txtNid"};
    TextBox txtAuditPinID{*this, "txtAuditPinID"};
};

class Checks : public testing::Test {
  protected:
    Checks() {
        program.desk.add("frmNumber", [this] { return std::make_unique<FormWithNumber>(program.desk); });
        program.desk.show("frmNumber");
    }
    TestHost host;
    Program program{host};
};

TEST_F(Checks, TheFirstRowThatRefusesShowsItsMessageAndGetsTheFocus) {
    program.state.strFldPage1[45] = "0105536000313";
    EXPECT_FALSE(runChecks(program, "frmNumber", rows));
    ASSERT_EQ(host.shown.size(), 1U);
    EXPECT_EQ(host.shown[0].text, GetMessage("M141"));
    EXPECT_EQ(host.shown[0].title, "ก.ข.ค.77");
    EXPECT_EQ(program.state.intError, 1);
    EXPECT_EQ(program.desk.focus()->name(), "txtAuditPinID");
}

TEST_F(Checks, ARunWithoutARefusalSaysNothing) {
    program.state.strFldPage1[45] = program.state.strFldPage1[31] = program.state.strFldPage1[38] = "1";
    EXPECT_TRUE(runChecks(program, "frmNumber", rows));
    EXPECT_TRUE(host.shown.empty());
    EXPECT_EQ(program.state.intError, 0);
}

TEST_F(Checks, RunToTheirEndTheRowsListEveryRefusalSilently) {
    std::vector<Refusal> refusals;
    collectRefusals({program.state, host}, "frmNumber", rows, refusals);
    ASSERT_EQ(refusals.size(), 3U);
    EXPECT_EQ(refusals[0].code, "M132");
    EXPECT_EQ(refusals[0].control, "txtNid");
    EXPECT_EQ(refusals[2].code, "");
    EXPECT_EQ(refusals[2].text, "ข้อความที่ไม่มีรหัส");
    EXPECT_TRUE(host.shown.empty());
    EXPECT_EQ(program.state.intError, 0);
}

} // namespace
} // namespace lodge
