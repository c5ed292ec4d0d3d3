// The figures of item 3 on screen: boxes where a figure is typed, labels where it is computed, made from the
// table of its lines in the order of the paper.
#pragma once

#include "controls/form.h"
#include "controls/label.h"
#include "controls/text_box.h"
#include "pages/schedules/item3_lines.h"

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace lodge {

/// One figure on screen, typed or computed.
class FigureCell {
  public:
    FigureCell() = default;
    explicit FigureCell(TextBox& box) : box_(&box) {}
    explicit FigureCell(Label& label) : label_(&label) {}

    /// The box, nullptr where the figure is computed or does not exist.
    [[nodiscard]] TextBox* box() const { return box_; }
    [[nodiscard]] const std::string& text() const;
    void show(std::string text) const;

  private:
    TextBox* box_ = nullptr;
    Label* label_ = nullptr;
};

class Item3Columns {
  public:
    explicit Item3Columns(Form& form);

    [[nodiscard]] FigureCell cell(Column column, const Item3Line& line) const;
    [[nodiscard]] FigureCell cell(Column column, const Item3SubLine& line) const;
    /// txtMoney31(place) or txtMoney32(place), nullptr where there is none; lblMoney33(place) has no box.
    [[nodiscard]] TextBox* box(Column column, int place) const;
    [[nodiscard]] FigureCell at(Column column, int place) const;

  private:
    TextBox& addBox(Form& form, std::string_view name, int place);
    Label& addLabel(Form& form, std::string_view name, int place);
    void addRow(Form& form, int place);

    using Cells = std::array<FigureCell, item3Places>;

    std::vector<std::unique_ptr<Control>> controls_;
    std::array<Cells, 3> byPlace_;
    std::array<FigureCell, 3> line21_;
};

} // namespace lodge
