#include "pages/schedules/schedule_page.h"

#include "pages/schedules/figures.h"
#include "values/money.h"
#include "values/text.h"

#include <algorithm>
#include <utility>

namespace lodge {

namespace {

constexpr std::size_t slot(Column column) { return static_cast<std::size_t>(column); }

bool isBox(const Control& control) { return control.kind() == ControlKind::TextBox; }

} // namespace

ScheduleForm::ScheduleForm(Program& program, const Schedule& schedule)
    : PageForm(program.desk, schedule.form), program_(program), schedule_(schedule) {
    for (const ScheduleLine& line : scheduleLines(schedule))
        addRow(line);
}

void ScheduleForm::addRow(const ScheduleLine& line) {
    Row row{.line = &line, .cells = {}};
    for (const Column column : allColumns) {
        std::string name = controlName(schedule_, line, column);
        const int index = controlIndex(line, column);
        if (line.isComputed() || column == Column::Total) {
            controls_.push_back(std::make_unique<Label>(*this, std::move(name), index));
        } else {
            auto box = std::make_unique<TextBox>(*this, std::move(name), index);
            wire(*box, line, column);
            controls_.push_back(std::move(box));
        }
        row.cells[slot(column)] = controls_.back().get();
    }
    rows_.push_back(row);
}

void ScheduleForm::wire(TextBox& box, const ScheduleLine& line, Column column) {
    box.setTextKind(TextKind::Amount);
    box.onGotFocus = [&box] { showPlainDigits(box); };
    box.onLostFocus = [this, &line, column] {
        program_.state.PageChk.CurrentLine = static_cast<std::int16_t>(line.cell);
        program_.state.PageChk.SilentCheck = 0;
        MoneyChk(column);
    };
}

void ScheduleForm::Form_Load() {
    ReturnState& state = program_.state;
    const bool closed = schedule_.closedForHeadquarters && state.blnIHQPage;
    state.intPageCur = schedule_.pageCode;
    enableColumn(Column::Exempt, state.intP1Box1 >= 1 && !closed);
    enableColumn(Column::Taxable, state.intP1Box2 >= 1 && !closed);
}

void ScheduleForm::Form_Unload() {
    unsigned_.restore();
    if (schedule_.afterChange != nullptr) schedule_.afterChange(program_.state);
}

void ScheduleForm::enableColumn(Column column, bool open) {
    for (const Row& row : rows_) {
        Control& cell = *row.cells[slot(column)];
        if (isBox(cell)) {
            open ? openBox(cell) : closeBox(cell);
        }
    }
}

const ScheduleForm::Row* ScheduleForm::rowOf(int cell) const {
    const auto row = std::ranges::find_if(rows_, [&](const Row& other) { return other.line->cell == cell; });
    return row == rows_.end() ? nullptr : &*row;
}

void ScheduleForm::ArrayToVar() {
    unsigned_.restore(); // a page that is filled again begins from the signed amounts
    FieldArray& fields = program_.state.*schedule_.fields;
    for (const Row& row : rows_) {
        if (row.line->shape == EntryShape::Packed) {
            unpack(row, fields[row.line->entry]);
            continue;
        }
        for (const Column column : allColumns) {
            const std::size_t entry = entryOf(schedule_, *row.line, column);
            showFigure(*row.cells[slot(column)], unsigned_.show(fields[entry]));
        }
    }
}

void ScheduleForm::DataToArray() {
    unsigned_.forget();
    FieldArray& fields = program_.state.*schedule_.fields;
    for (const Row& row : rows_) {
        if (row.line->shape == EntryShape::Packed) {
            fields[row.line->entry] = pack(row);
            continue;
        }
        for (const Column column : allColumns)
            fields[entryOf(schedule_, *row.line, column)] = plainAmount(row.cells[slot(column)]->reading());
    }
    if (schedule_.afterChange != nullptr) schedule_.afterChange(program_.state);
}

void ScheduleForm::unpack(const Row& row, const std::string& entry) {
    const auto parts = splitBar(entry);
    for (const Column column : allColumns) {
        const std::size_t part = slot(column) + 1; // the text begins with a bar
        showFigure(
            *row.cells[slot(column)], part < parts.size() ? formatBracketText(parts[part]) : std::string());
    }
}

std::string ScheduleForm::pack(const Row& row) {
    std::string entry = "|";
    for (const Control* cell : row.cells)
        entry += plainAmount(cell->reading()) + "|";
    return entry;
}

void ScheduleForm::PageChk() {
    CheckScratchRecord& scratch = program_.state.PageChk;
    for (const Column column : inputColumns) {
        for (const Row& row : rows_) {
            if (row.line->isComputed()) continue;
            showPlainDigits(static_cast<TextBox&>(*row.cells[slot(column)]));
            scratch.CurrentLine = static_cast<std::int16_t>(row.line->cell);
            scratch.SilentCheck = 1;
            MoneyChk(column);
            if (program_.state.intError == 1) return;
        }
    }
}

void ScheduleForm::MoneyChk(Column column) {
    const CheckScratchRecord& scratch = program_.state.PageChk;
    const int edited = scratch.CurrentLine;
    const Row* row = rowOf(edited);
    if (row == nullptr || row->line->isComputed()) return;
    auto& box = static_cast<TextBox&>(*row->cells[slot(column)]);
    if (!passesMoneyCheck(box.text(), program_)) {
        box.setText("");
        program_.state.intError = 1;
        if (scratch.SilentCheck == 0) box.setFocus();
    }
    box.setText(formatBracketText(box.text()));
    showRowSum(*row);
    for (const Row& other : rows_) {
        if (!dependsOn(schedule_, *other.line, edited)) continue;
        compute(other, column);
        showRowSum(other);
    }
}

void ScheduleForm::compute(const Row& row, Column column) {
    FigureSum sum;
    for (const Term& term : row.line->terms) {
        for (int cell = term.first; cell <= term.last; ++cell) {
            if (const Row* input = rowOf(cell)) sum.add(input->cells[slot(column)]->reading(), term.sign);
        }
    }
    showFigure(*row.cells[slot(column)], sum.text());
}

void ScheduleForm::showRowSum(const Row& row) {
    FigureSum sum;
    for (const Column column : inputColumns)
        sum.add(row.cells[slot(column)]->reading());
    showFigure(*row.cells[slot(Column::Total)], sum.text());
}

} // namespace lodge
