// A program with the filer pages and nothing behind them: what the shell does around them is done here by
// hand, as the shell does it.
#pragma once

#include "pages/filer/isic_lookup.h"
#include "pages/filer/notification_form.h"
#include "pages/filer/page1.h"
#include "pages/filer/page1_fields.h"
#include "program/user.h"
#include "state/lookup_tables.h"
#include "test_host.h"
#include "values/messages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace lodge {

class FilerHost : public TestHost {
  public:
    std::map<std::string, std::string> variables;
    [[nodiscard]] std::string environment(const std::string& name) const override {
        const auto found = variables.find(name);
        return found == variables.end() ? std::string() : found->second;
    }
};

/// Remembers whether the toolbar is shown.
class FilerShell : public ShellServices {
  public:
    bool tools = true;
    void ShowPage1() override {}
    void EnableTools(bool /*enabled*/) override {}
    void EnableExit() override {}
    void EnableNav(bool /*enabled*/) override {}
    void ShowTools(bool shown) override { tools = shown; }
    void UnloadPages() override {}
    void StorePageOnScreen() override {}
    void SwitchPage(bool /*on*/) override {}
    void PrintReturn() override {}
    void EndReturn() override {}
};

/// The number with the check digit that its first twelve digits ask for.
inline std::string withCheckDigit(std::string twelve) {
    int sum = 0;
    for (std::size_t i = 0; i < 12; ++i) {
        sum += (13 - static_cast<int>(i)) * (twelve[i] - '0');
    }
    return twelve + std::to_string((11 - sum % 11) % 10);
}

class FilerTest : public testing::Test {
  protected:
    FilerTest() {
        program.attach(shell);
        program.desk.add(
            frmLodgePage1::formName, [this] { return std::make_unique<frmLodgePage1>(program); });
        program.desk.add(frmLodgeISIC::formName, [this] { return std::make_unique<frmLodgeISIC>(program); });
        program.desk.add(
            frmLodgePage8::formName, [this] { return std::make_unique<frmLodgePage8>(program); });
        for (const char* later : {"frmLodgePage2", "frmLodgePage3_3", "frmLodgePage7_12"}) {
            program.desk.add(later, [this, later] { return std::make_unique<Form>(program.desk, later); });
        }
        fillLookupTables(state);
        state.strStartDDMMYY = "01012561";
        state.strFinishDDMMYY = "31122561";
        const std::vector<std::string> period = {"01", "มกราคม", "2561", "31", "ธันวาคม", "2561"};
        std::copy(period.begin(), period.end(), state.strFldPage1.begin() + 1);
    }

    /// Page 1 of a new return, as the start screen opens it.
    frmLodgePage1& newReturn() {
        state.intNewReturn = 1;
        state.strFldPage1[7] = "1";
        return showPage1();
    }

    frmLodgePage1& showPage1() {
        return static_cast<frmLodgePage1&>(program.desk.show(frmLodgePage1::formName));
    }

    /// Leaves page 1 with a store and shows it again.
    frmLodgePage1& storeAndShowAgain() {
        P1_DataToArray(program);
        program.desk.unload(frmLodgePage1::formName);
        P1_ArrayToVar(program);
        return showPage1();
    }

    frmLodgePage8& showPage8() {
        P8_ArrayToVar(program);
        return static_cast<frmLodgePage8&>(program.desk.show(frmLodgePage8::formName));
    }

    /// The texts of all boxes shown since the last call.
    std::vector<std::string> shown() {
        std::vector<std::string> texts;
        for (const Box& box : host.shown) {
            texts.push_back(box.text);
        }
        host.shown.clear();
        return texts;
    }

    static std::vector<std::string> messages(std::initializer_list<std::string_view> codes) {
        std::vector<std::string> texts;
        for (const std::string_view code : codes) {
            texts.emplace_back(GetMessage(code));
        }
        return texts;
    }

    /// Whether a check of a page lets the return pass.
    bool passes(void (*check)(Program&)) {
        state.intError = 0;
        check(program);
        return state.intError == 0;
    }

    [[nodiscard]] std::string focused() const {
        const Control* control = program.desk.focus();
        return control == nullptr ? std::string() : control->fullName();
    }

    FilerHost host;
    Program program{host};
    FilerShell shell;
    ReturnState& state = program.state;
    User user{program.desk};
};

} // namespace lodge
