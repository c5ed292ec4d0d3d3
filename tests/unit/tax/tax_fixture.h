// A program with page 2, its green sheet and the income edit, and nothing else; what page 1 and item 3 leave
// in the return is put there by hand.
#pragma once

#include "pages/tax/green_sheet.h"
#include "pages/tax/income_edit.h"
#include "pages/tax/page2.h"
#include "program/user.h"
#include "test_host.h"
#include "values/messages.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lodge {

class TaxHost : public TestHost {
  public:
    std::optional<std::string> input;
    std::vector<InputBox> asked;
    std::optional<std::string> ask(const InputBox& box) override {
        asked.push_back(box);
        return input;
    }
};

class TaxTest : public testing::Test {
  protected:
    TaxTest() {
        add<frmLodgePage2>();
        add<frmLodgePage1_2>();
        add<frm_incomeEdit>();
        status("1", {"(1)", "(2.1)"});
        item3("2200000.00");
    }

    template <typename T>
    void add() {
        program.desk.add(T::formName, [this] { return std::make_unique<T>(program); });
    }

    /// The company status as page 1 leaves it.
    void status(const std::string& number, std::vector<std::string> rates, std::int16_t ticked = 1) {
        state.DataCtrl_P1.IndcBusType = number;
        state.DataCtrl_P1.IndcBusCode = number;
        state.DataCtrl_P1.RateList = std::move(rates);
        state.DataCtrl_P1.StatusA = ticked;
    }

    /// The special-purpose development zone beside the status: a second tick.
    void zone() {
        state.DataCtrl_P1.ChkStatus11 = 1;
        state.DataCtrl_P1.StatusA = 2;
        state.strFldPage1[44] = "1";
    }

    void bank() { state.strFldPage1[24] = "641910"; }

    /// Item 3 of a business without an exempt column: line 22, plain digits.
    void item3(const std::string& line22) {
        FieldArray& fields = state.strFldPage3_3;
        fields[39] = line22;
        fields[59] = line22;
        fields[60] = line22;
        fields[65] = line22.starts_with('-') || line22 == "0.00" ? "0" : "1";
        fields[66] = line22.starts_with('-') ? "1" : "0";
    }

    frmLodgePage2& show() {
        program.desk.load(frmLodgePage2::formName);
        P2_ArrayToControls(program);
        return static_cast<frmLodgePage2&>(program.desk.show(frmLodgePage2::formName));
    }

    /// Leaves the page as the navigation does. False when its light check refuses.
    bool leave() {
        state.intError = 0;
        P2_CheckFields(program);
        if (state.intError != 0) return false;
        P2_ControlsToArray(program);
        program.desk.unload(frmLodgePage2::formName);
        return true;
    }

    Control& control(const std::string& name, const char* form = frmLodgePage2::formName) {
        Form* page = program.desk.find(form);
        Control* found = page == nullptr ? nullptr : page->find(name);
        if (found == nullptr) throw std::runtime_error("no control " + name);
        return *found;
    }
    std::string reading(const std::string& name) { return control(name).reading(); }
    void type(const std::string& name, const std::string& text) {
        EXPECT_EQ(user.type(control(name), text), std::nullopt) << name;
    }
    void click(const std::string& name) { EXPECT_EQ(user.click(control(name)), std::nullopt) << name; }
    void wait(int milliseconds) { program.desk.pass(std::chrono::milliseconds(milliseconds)); }

    /// The texts of all boxes shown since the last call.
    std::vector<std::string> shown() {
        std::vector<std::string> texts;
        for (const Box& box : host.shown)
            texts.push_back(box.text);
        host.shown.clear();
        return texts;
    }
    static std::vector<std::string> messages(std::initializer_list<std::string_view> codes) {
        std::vector<std::string> texts;
        for (const std::string_view code : codes)
            texts.emplace_back(GetMessage(code));
        return texts;
    }
    [[nodiscard]] std::string focused() const {
        const Control* focus = program.desk.focus();
        return focus == nullptr ? std::string() : focus->fullName();
    }

    /// Everything that a person could see of the page.
    std::string picture() {
        std::string all;
        for (const Control* each : program.desk.find(frmLodgePage2::formName)->controls()) {
            all += each->fullName() + "=" + each->reading() + (each->enabled() ? " e" : " d")
                   + (each->visible() ? "v" : "h") + (each->locked() ? "l" : "") + "\n";
        }
        return all;
    }

    TaxHost host;
    Program program{host};
    ReturnState& state = program.state;
    TaxRecord& record = state.DataCtrl_P2;
    User user{program.desk};
};

} // namespace lodge
