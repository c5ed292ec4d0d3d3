// The shell: makes the forms known, starts the program, and leads from screen to screen.
#pragma once

#include "file/isic_tables.h"
#include "program/program.h"
#include "shell/main_frame.h"
#include "shell/navigation.h"
#include "shell/return_commands.h"
#include "shell/store_sequence.h"

namespace lodge {

class Shell : public ShellServices {
  public:
    explicit Shell(Program& program);

    /// Shows the main frame and in it the start screen; there is no other main routine.
    void start();

    void ShowPage1() override;
    void EnableTools(bool enabled) override;
    void EnableExit() override;
    void EnableNav(bool enabled) override;
    void ShowTools(bool shown) override;
    void UnloadPages() override;
    void StorePageOnScreen() override;
    void SwitchPage(bool on) override;
    void PrintReturn() override;
    void EndReturn() override;

  private:
    [[nodiscard]] MDILodge* frame() const;
    void addForms();

    Program& program_;
    IsicArchive isic_;
    Navigation navigation_;
    StoreSequence stores_;
    ReturnCommands returns_;
};

} // namespace lodge
