// A form: a screen of the program as the rules see it, made of named controls.
//
// Making the object gives every control its design value and touches nothing else, so a form may be made
// just to read its design. Loading (controls/desk.h) makes the object and runs `Form_Load`; unloading runs
// `Form_Unload` and destroys it.
#pragma once

#include "controls/control.h"

#include <string>
#include <string_view>
#include <vector>

namespace lodge {

class Desk;

class Form {
  public:
    Form(Desk& desk, std::string name, std::string caption = {});
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    [[nodiscard]] Desk& desk() const { return desk_; }
    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] const std::string& caption() const { return caption_; }
    void setCaption(std::string caption);

    /// Off while a window that is not modal, but must be finished first, lies over the page.
    [[nodiscard]] bool enabled() const { return enabled_; }
    void setEnabled(bool enabled);
    /// Whether the form is on screen.
    [[nodiscard]] bool isShown() const { return shown_; }
    /// Whether it stands before all forms that were on screen when it was shown.
    [[nodiscard]] bool isModal() const { return modal_; }
    /// Loaded, so that changes raise events; false for a form made only to read its design.
    [[nodiscard]] bool isLive() const { return live_; }

    /// All controls in the order of the paper, which is the order of the focus.
    [[nodiscard]] const std::vector<Control*>& controls() const { return controls_; }
    /// Brings controls into the order of the paper: they follow one another from the place of the first of
    /// them on. Control arrays register by their index, which is not always the order of the lines.
    void orderOnPaper(const std::vector<Control*>& run);
    /// The control of that name ("txtNid", "chkStatus(11)"), nullptr when there is none.
    [[nodiscard]] Control* find(std::string_view fullName) const;

    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    virtual void Form_Unload() {}
    virtual void Form_MouseDown(const MouseGesture& gesture);
    /// Whether a person can close the form by its frame.
    [[nodiscard]] virtual bool isClosable() const { return true; }
    /// The person closed the form by its frame; it unloads unless the form does more.
    virtual void closedByFrame();

  private:
    friend class Control;
    friend class Desk;

    Desk& desk_;
    std::string name_;
    std::string caption_;
    bool enabled_ = true;
    bool shown_ = false;
    bool modal_ = false;
    bool live_ = false;
    std::vector<Control*> controls_;
};

} // namespace lodge
