// A small program to run scripts over: a form with a control of every kind, a form that lies over it, and a
// session whose transcript and errors can be read.
#pragma once

#include "controls/buttons.h"
#include "controls/control_array.h"
#include "controls/form.h"
#include "controls/label.h"
#include "controls/lists.h"
#include "controls/text_box.h"
#include "controls/timer.h"
#include "program/program.h"
#include "session/session.h"
#include "session/session_host.h"

#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace lodge {

/// The form that a session on the stage begins with. It writes down every event of its controls.
class frmStage : public Form {
  public:
    static constexpr const char* formName = "frmStage";

    frmStage(Program& program, std::vector<std::string>& events);

    Frame fraAll{*this, "fraAll"};
    TextBox txtName{*this, "txtName"};
    TextBox txtAmount{*this, "txtAmount"};
    MaskedBox mskDay{*this, "mskDay"};
    CheckBox chkYes{*this, "chkYes"};
    ControlArray<CheckBox> chkKind{*this, "chkKind", 3};
    OptionButton optFirst{*this, "optFirst"};
    OptionButton optSecond{*this, "optSecond"};
    CommandButton cmdGo{*this, "cmdGo"};
    Label lblSum{*this, "lblSum"};
    ListBox lstLines{*this, "lstLines"};
    ComboBox cboTitle{*this, "cboTitle"};
    Grid grdFound{*this, "grdFound"};
    Picture picMark{*this, "picMark"};
    Timer tmrTick{*this, "tmrTick", std::chrono::milliseconds(250)};
    /// It bears the name of a value of the return.
    CheckBox BoxProfit{*this, "BoxProfit"};

    void Form_MouseDown(const MouseGesture& gesture) override;

  private:
    void watch(Control& control);
    std::vector<std::string>& events_;
};

class frmPopup : public Form {
  public:
    static constexpr const char* formName = "frmPopup";

    explicit frmPopup(Program& program) : Form(program.desk, formName, "รายการ") {}

    CommandButton cmdExit{*this, "cmdExit"};
    TextBox txtIn{*this, "txtIn"};
    ComboBox cboKind{*this, "cboKind"};
};

class Stage {
  public:
    Stage();

    /// Runs the lines. What it wrote is in `transcript` and `errors`.
    SessionEnd play(std::string_view lines, bool keepGoing = false);

    std::ostringstream transcript;
    std::ostringstream errors;
    SessionHost host{"/opt/lodge77", transcript};
    Program program{host};
    /// "cmdGo click", "txtName change" and so on, in order.
    std::vector<std::string> events;

    /// The form on the stage; it is loaded with the stage.
    [[nodiscard]] frmStage& form() const { return *program.desk.find<frmStage>(); }
};

} // namespace lodge
