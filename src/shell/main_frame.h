// The main frame: the window with the toolbar that is the only way between pages, into storing and printing.
#pragma once

#include "controls/buttons.h"
#include "controls/form.h"
#include "controls/label.h"
#include "program/program.h"

#include <array>

namespace lodge {

class Navigation;
class ReturnCommands;
class StoreSequence;

/// What the buttons of the toolbar run.
struct ToolCommands {
    Navigation& navigation;
    StoreSequence& stores;
    ReturnCommands& returns;
};

class MDILodge : public Form {
  public:
    static constexpr const char* formName = "MDILodge";

    MDILodge(Program& program, const ToolCommands& commands);

    CommandButton cmdPage1{*this, "cmdPage1"};
    CommandButton cmdChoose{*this, "cmdChoose"};
    CommandButton cmdSave1{*this, "cmdSave1"};
    CommandButton cmdSave2{*this, "cmdSave2"};
    CommandButton CmdPrint{*this, "CmdPrint"};
    CommandButton CmdClear1{*this, "CmdClear1"};
    CommandButton CmdClear2{*this, "CmdClear2"};
    CommandButton cmdPageFirst{*this, "cmdPageFirst"};
    CommandButton cmdExit{*this, "cmdExit"};
    Label Label2{*this, "Label2"};
    /// The mark at the end of the toolbar, the door to the tools of the program's makers.
    Picture Picture1{*this, "Picture1"};
    Label Label1{*this, "Label1"};
    // Tools of the program's makers, hidden from its users; those without a rule do nothing.
    CommandButton Command1{*this, "Command1"};
    CommandButton Command2{*this, "Command2"};
    CommandButton Command3{*this, "Command3"};
    CommandButton Command4{*this, "Command4"};
    CommandButton Command5{*this, "Command5"};
    CommandButton Command6{*this, "Command6"};
    CommandButton Command7{*this, "Command7"};
    CommandButton Command8{*this, "Command8"};

    void EnableTools(bool enabled);
    void EnableNav(bool enabled);
    void ShowTools(bool shown);

    void Form_Load() override;
    /// The cross of the window asks what "ออก" asks.
    void closedByFrame() override { cmdExit_Click(); }

  private:
    [[nodiscard]] std::array<CommandButton*, 9> tools();
    void captionControls();
    void wireTools(const ToolCommands& commands);
    void CmdPrint_Click();
    void cmdExit_Click();

    Program& program_;
};

} // namespace lodge
