// The commands that empty: clear all, clear page, new return, and the end of a stored return.
#pragma once

#include "program/program.h"
#include "shell/navigation.h"

namespace lodge {

class ReturnCommands {
  public:
    ReturnCommands(Program& program, Navigation& navigation) : program_(program), navigation_(navigation) {}

    /// Empties every page but the period, after a question.
    void CmdClear1_Click();
    /// Empties the page on screen, after a question.
    void CmdClear2_Click();
    /// Leaves the return for a new one, after a question.
    void cmdPageFirst_Click();
    /// Empties the state, closes every form and shows the start screen.
    void endReturn();

  private:
    bool confirms(const char* text, const char* title);
    void clearAll();
    void clearPage(const PageRow& row);

    Program& program_;
    Navigation& navigation_;
};

} // namespace lodge
