#include "pages/schedules/schedule.h"

#include <algorithm>

namespace lodge {

namespace {

constexpr auto columns = EntryShape::Columns;
constexpr auto row = EntryShape::Row;
constexpr auto packed = EntryShape::Packed;

// A computed line stands behind the lines that it is computed from, so that one walk down the paper computes
// all of them; line 10 of item 10 alone stands before its parts and feeds no other line.
// clang-format off

// Item 4: cost of sales, from opening stock and the cost of manufacture of item 5 to closing stock.
constexpr std::array item4Line6 = {Term{2, 4}};
constexpr std::array item4Line7 = {Term{0, 4}};
constexpr std::array item4Total = {Term{6, 6}, Term{7, 7, -1}};
constexpr auto item4 = std::to_array<ScheduleLine>({
    {1, 0, 0, columns},
    {2, 1, 1, columns},
    {3, 2, 2, columns},
    {4, 3, 3, columns},
    {5, 4, 4, columns},
    {6, 5, 5, columns, item4Line6, "_06"},
    {7, 6, 6, columns, item4Line7, "_07"},
    {8, 7, 7, columns},
    {9, totalCell, 8, columns, item4Total},
});

// Item 5: cost of manufacture, materials, wages and overheads, less what is still in process.
constexpr std::array item5Line4  = {Term{0, 2}};
constexpr std::array item5Line6  = {Term{3, 4}};
constexpr std::array item5Line14 = {Term{7, 12}};
constexpr std::array item5Line15 = {Term{5, 6}, Term{13, 13}};
constexpr std::array item5Total  = {Term{14, 14}, Term{15, 15, -1}};
constexpr auto item5 = std::to_array<ScheduleLine>({
    { 1,  0,  0, columns},
    { 2,  1,  1, columns},
    { 3,  2,  2, columns},
    { 4,  3,  3, columns, item5Line4, "_04"},
    { 5,  4,  4, columns},
    { 6,  5,  5, columns, item5Line6, "_06"},
    { 7,  6,  6, columns},
    { 8,  7,  7, columns},
    { 9,  8,  8, columns},
    {10,  9,  9, columns},
    {11, 10, 10, columns},
    {12, 11, 11, columns},
    {13, 12, 12, columns},
    {14, 13, 13, columns, item5Line14, "_14"},
    {15, 14, 14, columns, item5Line15, "_15"},
    {16, 15, 15, columns},
    {17, totalCell, 16, columns, item5Total},
});

// Item 6: other income.
constexpr std::array item6Total = {Term{0, 5}};
constexpr auto item6 = std::to_array<ScheduleLine>({
    {1, 0, 0, columns},
    {2, 1, 1, columns},
    {3, 2, 2, columns},
    {4, 3, 3, columns},
    {5, 4, 4, columns},
    {6, 5, 5, columns},
    {7, totalCell, 6, columns, item6Total},
});

// Item 7: other expenses.
constexpr std::array item7Total = {Term{0, 3}};
constexpr auto item7 = std::to_array<ScheduleLine>({
    {1, 0, 0, columns},
    {2, 1, 1, columns},
    {3, 2, 2, columns},
    {4, 3, 3, columns},
    {5, totalCell, 4, columns, item7Total},
});

// Item 8: selling and administrative expenses. The paper put its later lines between the older ones; their
// amounts went to free entries behind the columns.
constexpr std::array item8Total = {Term{0, 22}, Term{23, 23}, Term{30, 40}};
constexpr auto item8 = std::to_array<ScheduleLine>({
    { 1,  0,  0, columns},
    { 2,  1,  1, columns},
    { 3,  2,  2, columns},
    { 4,  3,  3, columns},
    { 5,  4,  4, columns},
    { 6,  5,  5, columns},
    { 7,  6,  6, columns},
    { 8,  7,  7, columns},
    { 9,  8,  8, columns},
    {10,  9,  9, columns},
    {11, 10, 10, columns},
    {12, 11, 11, columns},
    {13, 12, 12, columns},
    {14, 13, 13, columns},
    {15, 14, 14, columns},
    {16, 15, 15, columns},
    {17, 30, 75, packed},
    {18, 31, 76, packed},
    {19, 32, 77, packed},
    {20, 33, 78, packed},
    {21, 34, 79, packed},
    {22, 35, 80, packed},
    {23, 36, 81, packed},
    {24, 37, 82, packed},
    {25, 38, 83, packed},
    {26, 39, 84, packed},
    {27, 23, 72, row},
    {28, 16, 16, columns},
    {29, 17, 17, columns},
    {30, 18, 18, columns},
    {31, 19, 19, columns},
    {32, 20, 20, columns},
    {33, 21, 21, columns},
    {34, 22, 22, columns},
    { 0, 40, 85, packed},
    {35, totalCell, 23, columns, item8Total},
});

// Item 9: expenses that the Revenue Code does not allow.
constexpr std::array item9Total = {Term{0, 5}};
constexpr auto item9 = std::to_array<ScheduleLine>({
    {1, 0,  0, columns},
    {2, 1,  1, columns},
    {3, 2,  2, columns},
    {4, 3,  3, columns},
    {5, 5, 18, row},
    {6, 4,  4, columns},
    {7, totalCell, 5, columns, item9Total},
});

// Item 10: exempt income and expenses that count for more than was spent. Line 10 is a heading with its parts
// below it; the paper numbers neither the parts nor the rows of later years.
constexpr std::array item10Line10 = {Term{15, 26}};
constexpr std::array item10Total  = {Term{27, 32}, Term{33, 41}, Term{1, 8}, Term{10, 10}, Term{15, 26}};
constexpr auto item10 = std::to_array<ScheduleLine>({
    { 1,  0,  0, columns},
    { 2,  1,  1, columns},
    { 3,  2,  2, columns},
    { 4,  3,  3, columns},
    { 5,  4,  4, columns},
    { 6,  5,  5, columns},
    { 7,  6,  6, columns},
    { 8,  7,  7, columns},
    { 9,  8,  8, columns},
    {10,  9,  9, columns, item10Line10, ""},
    { 0, 15, 51, packed},
    { 0, 16, 52, packed},
    { 0, 17, 53, packed},
    { 0, 18, 54, packed},
    { 0, 19, 55, packed},
    { 0, 20, 56, packed},
    { 0, 21, 57, packed},
    { 0, 22, 58, packed},
    { 0, 23, 59, packed},
    { 0, 24, 60, packed},
    { 0, 25, 61, packed},
    { 0, 26, 62, packed},
    {11, 10, 10, columns},
    { 0, 11, 36, row},
    { 0, 12, 39, row},
    { 0, 13, 42, row},
    { 0, 14, 45, row},
    { 0, 27, 63, packed},
    { 0, 28, 64, packed},
    { 0, 29, 65, packed},
    { 0, 30, 66, packed},
    { 0, 31, 67, packed},
    { 0, 32, 68, packed},
    { 0, 33, 69, packed},
    { 0, 34, 70, packed},
    { 0, 35, 71, packed},
    { 0, 36, 72, packed},
    { 0, 37, 73, packed},
    { 0, 38, 74, packed},
    { 0, 39, 75, packed},
    { 0, 40, 76, packed},
    { 0, 41, 77, packed},
    { 0, totalCell, 11, columns, item10Total},
});
// clang-format on

constexpr std::array<std::span<const ScheduleLine>, schedules.size()> lines = {
    item4, item5, item6, item7, item8, item9, item10};

constexpr std::size_t slot(Column column) { return static_cast<std::size_t>(column); }

bool isTotal(const ScheduleLine& line) { return line.cell == totalCell; }

} // namespace

std::span<const ScheduleLine> scheduleLines(const Schedule& schedule) {
    return lines.at(static_cast<std::size_t>(schedule.item - schedules.front().item));
}

bool dependsOn(const Schedule& schedule, const ScheduleLine& line, int cell) {
    const auto holds = [&](int input) {
        return std::ranges::any_of(
            line.terms, [&](const Term& term) { return term.first <= input && input <= term.last; });
    };
    return holds(cell) || std::ranges::any_of(scheduleLines(schedule), [&](const ScheduleLine& other) {
        return other.isComputed() && !isTotal(other) && holds(other.cell) && dependsOn(schedule, other, cell);
    });
}

std::string controlName(const Schedule& schedule, const ScheduleLine& line, Column column) {
    const std::string ending = std::to_string(schedule.item) + std::to_string(slot(column) + 1);
    if (isTotal(line)) return "lblSumMoney" + ending;
    if (column == Column::Total) return "lblMoney" + ending;
    return line.isComputed() ? "lblMoney" + ending + std::string(line.label) : "txtMoney" + ending;
}

int controlIndex(const ScheduleLine& line, Column column) {
    const bool standsAlone = isTotal(line) || (line.isComputed() && column != Column::Total);
    return standsAlone ? -1 : line.cell;
}

std::size_t entryOf(const Schedule& schedule, const ScheduleLine& line, Column column) {
    switch (line.shape) {
    case EntryShape::Columns: return line.entry + slot(column) * schedule.columnLength;
    case EntryShape::Row: return line.entry + slot(column);
    case EntryShape::Packed: return line.entry;
    }
    return line.entry;
}

} // namespace lodge
