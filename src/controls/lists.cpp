#include "controls/lists.h"

#include <utility>

namespace lodge {

void ItemList::addItem(std::string item) {
    items_.push_back(std::move(item));
    changed(Aspect::Items);
}

void ItemList::removeItem(int at) {
    if (at < 0 || at >= count()) {
        return;
    }
    items_.erase(items_.begin() + at);
    if (selected_ == at) {
        selected_ = -1;
    } else if (selected_ > at) {
        --selected_;
    }
    changed(Aspect::Items);
}

void ItemList::setItems(std::vector<std::string> items) {
    items_ = std::move(items);
    selected_ = -1;
    changed(Aspect::Items);
}

void ItemList::clear() { setItems({}); }

void ItemList::select(int at) {
    const int entry = at >= 0 && at < count() ? at : -1;
    if (selected_ != entry) {
        selected_ = entry;
        changed(Aspect::Selection);
        raise(onClick);
    }
}

std::string ItemList::selectedText() const {
    return selected_ < 0 ? std::string() : items_[static_cast<std::size_t>(selected_)];
}

ListBox::ListBox(Form& form, std::string name, int index)
    : ItemList(form, ControlKind::ListBox, std::move(name), index) {}

std::string ListBox::reading() const {
    std::string joined;
    for (const std::string& item : items()) {
        if (&item != &items().front()) {
            joined += ',';
        }
        joined += item;
    }
    return joined;
}

ComboBox::ComboBox(Form& form, std::string name, int index)
    : ItemList(form, ControlKind::ComboBox, std::move(name), index) {}

Grid::Grid(Form& form, std::string name, int index)
    : Control(form, ControlKind::Grid, std::move(name), index) {}

void Grid::setColumns(std::vector<std::string> heads) {
    columns_ = std::move(heads);
    changed(Aspect::Cells);
}

void Grid::setRows(std::vector<Row> rows) {
    rows_ = std::move(rows);
    picked_ = -1;
    changed(Aspect::Cells);
}

std::string Grid::cell(int row, int column) const {
    if (row < 0 || column < 0 || static_cast<std::size_t>(row) >= rows_.size()) {
        return {};
    }
    const Row& texts = rows_[static_cast<std::size_t>(row)];
    const auto at = static_cast<std::size_t>(column);
    return at < texts.size() ? texts[at] : std::string();
}

void Grid::pick(int row) {
    if (row < 0 || static_cast<std::size_t>(row) >= rows_.size()) {
        return;
    }
    if (picked_ != row) {
        picked_ = row;
        changed(Aspect::Selection);
    }
    raise(onClick);
}

} // namespace lodge
