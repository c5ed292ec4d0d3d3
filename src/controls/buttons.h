// What a person presses or ticks: command buttons, check boxes, option buttons.
#pragma once

#include "controls/control.h"

#include <string>

namespace lodge {

class CommandButton : public Control {
  public:
    CommandButton(Form& form, std::string name, int index = -1);

    [[nodiscard]] const std::string& caption() const { return caption_; }
    void setCaption(std::string caption);
    [[nodiscard]] std::string reading() const override { return caption_; }

  private:
    std::string caption_;
};

class CheckBox : public Control {
  public:
    CheckBox(Form& form, std::string name, int index = -1);

    [[nodiscard]] bool value() const { return value_; }
    /// Raises the click event when the value differs, whoever changes it.
    void setValue(bool ticked);
    [[nodiscard]] const std::string& caption() const { return caption_; }
    void setCaption(std::string caption);
    [[nodiscard]] std::string reading() const override { return value_ ? "1" : "0"; }

  private:
    bool value_ = false;
    std::string caption_;
};

/// One choice of several: the option buttons of one container exclude one another.
class OptionButton : public Control {
  public:
    OptionButton(Form& form, std::string name, int index = -1);

    [[nodiscard]] bool value() const { return value_; }
    /// Choosing raises the click event and takes the choice from the others of the container, silently;
    /// taking the choice away raises nothing.
    void setValue(bool chosen);
    [[nodiscard]] const std::string& caption() const { return caption_; }
    void setCaption(std::string caption);
    [[nodiscard]] std::string reading() const override { return value_ ? "1" : "0"; }

  private:
    bool value_ = false;
    std::string caption_;
};

} // namespace lodge
