// Figures on screen, typed in a box or shown by a label, and their sums.
#pragma once

#include "controls/control.h"

#include <string>
#include <string_view>

namespace lodge {

/// Writes a figure into a text box or a label.
void showFigure(Control& figure, std::string text);

/// Adds the figures that are there, in baht; an empty figure is none, not zero.
class FigureSum {
  public:
    void add(std::string_view figure, int sign = 1);
    /// As a page shows it, in brackets when it is below zero; empty when there was no figure.
    [[nodiscard]] std::string text() const;

  private:
    bool filled_ = false;
    double sum_ = 0.0;
};

} // namespace lodge
