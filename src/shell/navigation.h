// The way between pages: leaving one with its check and its store, showing another.
#pragma once

#include "program/program.h"
#include "shell/page_table.h"

#include <functional>

namespace lodge {

class Navigation {
  public:
    explicit Navigation(Program& program) : program_(program) {}

    /// Starts a store into the "temp" folder, without a dialog, on the way to the chooser.
    void onAutomaticStore(std::function<void()> store) { automaticStore_ = std::move(store); }

    /// Runs the light check of the page on screen and, when it passes, its store procedure. False when the
    /// check refused; the page then stays on screen.
    bool LeavePage();
    /// Shows a page, filled from its array, and unloads the chooser and every other page.
    void ShowPage(std::int16_t code);
    /// Shows a page as its design has it, without filling it.
    void ShowBlank(std::int16_t code);
    /// Leaves the page on screen for page 1. False when a check refused.
    bool cmdPage1_Click();
    /// Leaves the page on screen for the chooser. False when a check refused.
    bool cmdChoose_Click();

  private:
    void show(const PageRow& row, bool fill);
    /// The page on screen goes; the chooser is no page.
    void unloadPageOnScreen();

    Program& program_;
    std::function<void()> automaticStore_;
};

} // namespace lodge
