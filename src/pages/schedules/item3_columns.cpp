#include "pages/schedules/item3_columns.h"

#include <utility>

namespace lodge {

namespace {

constexpr std::array<std::string_view, 3> columnNames = {"txtMoney31", "txtMoney32", "lblMoney33"};

constexpr std::size_t slot(Column column) { return static_cast<std::size_t>(column); }

} // namespace

const std::string& FigureCell::text() const {
    static const std::string none;
    if (box_ != nullptr) return box_->text();
    return label_ == nullptr ? none : label_->caption();
}

void FigureCell::show(std::string text) const {
    if (box_ != nullptr) {
        box_->setText(std::move(text));
    } else if (label_ != nullptr) {
        label_->setCaption(std::move(text));
    }
}

Item3Columns::Item3Columns(Form& form) {
    for (const Item3Line& line : item3Lines()) {
        if (line.place < 0) {
            for (const Column column : {Column::Exempt, Column::Taxable, Column::Total}) {
                line21_[slot(column)] = FigureCell(addLabel(form, line.labels[slot(column)], -1));
            }
            continue;
        }
        if (line.isComputed()) {
            const auto place = static_cast<std::size_t>(line.place);
            for (const Column column : inputColumns) {
                const std::string_view name = line.labels[slot(column)];
                byPlace_[slot(column)][place] = FigureCell(addLabel(form, name, -1));
            }
            byPlace_[slot(Column::Total)][place] = FigureCell(addLabel(form, columnNames.back(), line.place));
        } else {
            addRow(form, line.place);
        }
        if (line.number == 17) { // its further items stand right below its first one
            for (const Item3SubLine& subLine : item3SubLines())
                addRow(form, subLine.place);
        }
    }
}

void Item3Columns::addRow(Form& form, int place) {
    const auto here = static_cast<std::size_t>(place);
    for (const Column column : inputColumns) {
        byPlace_[slot(column)][here] = FigureCell(addBox(form, columnNames[slot(column)], place));
    }
    byPlace_[slot(Column::Total)][here] = FigureCell(addLabel(form, columnNames.back(), place));
}

TextBox& Item3Columns::addBox(Form& form, std::string_view name, int place) {
    auto box = std::make_unique<TextBox>(form, std::string(name), place);
    box->setTextKind(TextKind::Amount);
    TextBox& added = *box;
    controls_.push_back(std::move(box));
    return added;
}

Label& Item3Columns::addLabel(Form& form, std::string_view name, int place) {
    auto label = std::make_unique<Label>(form, std::string(name), place);
    Label& added = *label;
    controls_.push_back(std::move(label));
    return added;
}

FigureCell Item3Columns::cell(Column column, const Item3Line& line) const {
    return line.place < 0 ? line21_[slot(column)] : at(column, line.place);
}

FigureCell Item3Columns::cell(Column column, const Item3SubLine& line) const {
    return at(column, line.place);
}

TextBox* Item3Columns::box(Column column, int place) const { return at(column, place).box(); }

FigureCell Item3Columns::at(Column column, int place) const {
    return byPlace_[slot(column)].at(static_cast<std::size_t>(place));
}

} // namespace lodge
