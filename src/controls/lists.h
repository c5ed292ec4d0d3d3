// Lists to choose from: list box, combo box, grid of texts.
#pragma once

#include "controls/control.h"

#include <string>
#include <vector>

namespace lodge {

/// What list boxes and combo boxes share: entries in order, of which at most one is selected.
class ItemList : public Control {
  public:
    [[nodiscard]] const std::vector<std::string>& items() const { return items_; }
    [[nodiscard]] int count() const { return static_cast<int>(items_.size()); }
    void addItem(std::string item);
    /// Removes the entry at `at`; a selection behind it moves up with its entry.
    void removeItem(int at);
    void setItems(std::vector<std::string> items);
    void clear();

    /// The entry selected, counted from 0; -1 for none.
    [[nodiscard]] int selected() const { return selected_; }
    /// Selects an entry (-1: none) and raises the click event when the selection differs. An entry that does
    /// not exist counts as none.
    void select(int at);
    /// The text of the entry selected, empty for none.
    [[nodiscard]] std::string selectedText() const;

  protected:
    using Control::Control;

  private:
    std::vector<std::string> items_;
    int selected_ = -1;
};

class ListBox : public ItemList {
  public:
    ListBox(Form& form, std::string name, int index = -1);
    /// All entries, joined by ",".
    [[nodiscard]] std::string reading() const override;
};

class ComboBox : public ItemList {
  public:
    ComboBox(Form& form, std::string name, int index = -1);
    [[nodiscard]] std::string reading() const override { return selectedText(); }
};

/// Rows of texts below fixed column heads; row 0 is the first row of data.
class Grid : public Control {
  public:
    using Row = std::vector<std::string>;

    Grid(Form& form, std::string name, int index = -1);

    [[nodiscard]] const std::vector<std::string>& columns() const { return columns_; }
    void setColumns(std::vector<std::string> heads);
    [[nodiscard]] const std::vector<Row>& rows() const { return rows_; }
    void setRows(std::vector<Row> rows);
    /// The text at a place, empty outside the grid.
    [[nodiscard]] std::string cell(int row, int column) const;

    /// The row picked last, -1 for none.
    [[nodiscard]] int picked() const { return picked_; }
    /// Picks a row and raises the click event, also when it is picked already; a row that does not exist is
    /// not picked.
    void pick(int row);

    /// The number of rows.
    [[nodiscard]] std::string reading() const override { return std::to_string(rows_.size()); }

  private:
    std::vector<std::string> columns_;
    std::vector<Row> rows_;
    int picked_ = -1;
};

} // namespace lodge
