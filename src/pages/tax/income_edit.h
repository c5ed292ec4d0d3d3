// A tool of the program's makers: figures that replace those of item 2 in the stored file, and only there.
#pragma once

#include "controls/form.h"
#include "controls/label.h"
#include "controls/lists.h"
#include "controls/text_box.h"
#include "program/program.h"

namespace lodge {

class frm_incomeEdit : public Form {
  public:
    static constexpr const char* formName = "frm_incomeEdit";

    explicit frm_incomeEdit(Program& program);

    Label lblIncome{*this, "lblIncome"};
    TextBox txtIncome{*this, "txtIncome"};
    Label lblTax{*this, "lblTax"};
    TextBox txtTax{*this, "txtTax"};
    ComboBox Combo1{*this, "Combo1"};

    void Form_Load() override;
    /// Left button with Shift and Ctrl takes the figures.
    void Form_MouseDown(const MouseGesture& gesture) override;

  private:
    Program& program_;
};

} // namespace lodge
