// The chooser: from here the filer goes to the items of the return.
#pragma once

#include "controls/buttons.h"
#include "controls/label.h"
#include "program/page_form.h"
#include "program/program.h"
#include "shell/navigation.h"

#include <memory>
#include <vector>

namespace lodge {

class frmLodgeChoose : public PageForm {
  public:
    static constexpr const char* formName = "frmLodgeChoose";

    frmLodgeChoose(Program& program, Navigation& navigation);

    /// Where the automatic store of a return that was left lies.
    Label lblHint{*this, "lblHint"};
    /// Shown when the program's folder cannot take it.
    Label lblNoWrite{*this, "lblNoWrite"};

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

  private:
    void closeForOthers();

    Program& program_;
    std::vector<std::unique_ptr<CommandButton>> items_;
};

} // namespace lodge
