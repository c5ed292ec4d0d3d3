// What only shows: labels, and the frames and pictures that other controls lie in.
#pragma once

#include "controls/control.h"

#include <string>

namespace lodge {

class Label : public Control {
  public:
    Label(Form& form, std::string name, int index = -1);

    [[nodiscard]] const std::string& caption() const { return caption_; }
    /// Raises the change event when the caption differs: rules hang on figures that labels show.
    void setCaption(std::string caption);
    [[nodiscard]] std::string reading() const override { return caption_; }

    Handler onChange;

  private:
    std::string caption_;
};

class Frame : public Control {
  public:
    Frame(Form& form, std::string name, int index = -1);

    [[nodiscard]] const std::string& caption() const { return caption_; }
    void setCaption(std::string caption);
    [[nodiscard]] std::string reading() const override { return caption_; }

  private:
    std::string caption_;
};

/// A panel without a caption; it may hold controls and feel the mouse.
class Picture : public Control {
  public:
    Picture(Form& form, std::string name, int index = -1);
    [[nodiscard]] std::string reading() const override { return {}; }
};

} // namespace lodge
