// The notice behind "โปรดอ่าน" on the start screen: whom the program cannot serve.
#pragma once

#include "controls/buttons.h"
#include "controls/control_array.h"
#include "controls/form.h"
#include "controls/label.h"
#include "program/program.h"

namespace lodge {

class frmDialogAlert : public Form {
  public:
    static constexpr const char* formName = "frmDialogAlert";

    explicit frmDialogAlert(Program& program);

    ControlArray<Label> lblNotice{*this, "lblNotice", 6};
    CommandButton cmdExit{*this, "cmdExit"};
};

} // namespace lodge
