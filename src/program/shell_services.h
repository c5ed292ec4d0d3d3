// What a page or a dialog may ask of the shell without knowing it: its toolbar and its way between pages.
#pragma once

namespace lodge {

class ShellServices {
  public:
    virtual ~ShellServices() = default;

    /// Closes the start screen and opens page 1 of the return in the state.
    virtual void ShowPage1() = 0;
    /// Switches the nine buttons of the toolbar.
    virtual void EnableTools(bool enabled) = 0;
    /// Switches on "ออก", the one button that the start screen leaves.
    virtual void EnableExit() = 0;
    /// Switches only the two buttons that lead to page 1 and to the chooser.
    virtual void EnableNav(bool enabled) = 0;
    /// Hides the toolbar behind a dialog that must be finished first, or shows it again.
    virtual void ShowTools(bool shown) = 0;
    /// Unloads every form but the main frame and the start screen.
    virtual void UnloadPages() = 0;

    /// Runs the store procedure of the page on screen, so that the arrays are current.
    virtual void StorePageOnScreen() = 0;
    /// Switches the page on screen off while a store is under way, or on again.
    virtual void SwitchPage(bool on) = 0;
    /// Prints the pages of the return that the person chooses, as they stand in the arrays.
    virtual void PrintReturn() = 0;
    /// Puts the return away: everything is emptied, and the start screen comes up.
    virtual void EndReturn() = 0;
};

} // namespace lodge
