// A program with one page of the return on screen, for tests.
#pragma once

#include "controls/label.h"
#include "controls/text_box.h"
#include "program/program.h"
#include "program/user.h"
#include "test_host.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

namespace lodge {

class Desktop {
  public:
    TestHost host;
    Program program{host};
    User user{program.desk};

    ReturnState& state() { return program.state; }

    /// Both columns are filled in unless a test says otherwise.
    Desktop() {
        state().intP1Box1 = 1;
        state().intP1Box2 = 1;
    }

    template <typename Page>
    Page& open() {
        program.desk.add(Page::formName, [this] { return std::make_unique<Page>(program); });
        Form& form = program.desk.load(Page::formName);
        static_cast<Page&>(form).ArrayToVar();
        program.desk.show(Page::formName);
        return static_cast<Page&>(form);
    }

    static Control& control(const Form& form, std::string_view name) {
        Control* found = form.find(name);
        if (found == nullptr) throw std::logic_error("no control " + std::string(name));
        return *found;
    }
    static std::string read(const Form& form, std::string_view name) { return control(form, name).reading(); }
    void type(const Form& form, std::string_view name, std::string_view text) {
        const Refused refused = user.type(control(form, name), text);
        if (refused) throw std::logic_error(*refused);
    }
    std::string lastMessage() { return host.shown.empty() ? "" : host.shown.back().text; }
};

} // namespace lodge
