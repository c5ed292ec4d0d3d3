// What each of the items 4 to 10 must do, told cell by cell and apart from the program's own tables: where a
// cell is stored and which figures of its column it enters.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace lodge {

/// A computed figure that a cell enters: its entry in the exempt column, and its sign.
struct Fed {
    std::size_t entry;
    int sign = 1;
};

struct Cell {
    int cell;
    /// Its three entries; for a packed row the one entry that holds all three, thrice.
    std::array<std::size_t, 3> entries;
    std::vector<Fed> feeds;

    [[nodiscard]] bool isPacked() const { return entries[0] == entries[1]; }
};

struct Member {
    int item;
    std::size_t length; ///< Entries of a column.
    std::vector<Cell> cells;

    [[nodiscard]] std::string box(int column, int cell) const {
        return "txtMoney" + std::to_string(item) + std::to_string(column) + "(" + std::to_string(cell) + ")";
    }
    [[nodiscard]] std::string total(int column) const {
        return "lblSumMoney" + std::to_string(item) + std::to_string(column);
    }
};

inline void addCells(Member& member, int from, int to, const std::vector<Fed>& feeds) {
    for (int cell = from; cell <= to; ++cell) {
        const auto entry = static_cast<std::size_t>(cell);
        member.cells.push_back({cell, {entry, entry + member.length, entry + 2 * member.length}, feeds});
    }
}

inline void addRow(Member& member, int cell, std::size_t entry, const std::vector<Fed>& feeds) {
    member.cells.push_back({cell, {entry, entry + 1, entry + 2}, feeds});
}

inline void addPacked(Member& member, int from, int to, std::size_t offset, const std::vector<Fed>& feeds) {
    for (int cell = from; cell <= to; ++cell) {
        const std::size_t entry = static_cast<std::size_t>(cell) + offset;
        member.cells.push_back({cell, {entry, entry, entry}, feeds});
    }
}

inline Member item4() {
    Member m{4, 9, {}};
    addCells(m, 0, 1, {{6}, {8}});      // lines 1 and 2: line 7, and so the total line 9
    addCells(m, 2, 4, {{5}, {6}, {8}}); // lines 3 to 5: line 6 besides
    addCells(m, 7, 7, {{8, -1}});       // line 8 is taken off
    return m;
}

inline Member item5() {
    Member m{5, 17, {}};
    addCells(m, 0, 2, {{3}, {5}, {14}, {16}}); // lines 1 to 3: line 4, line 6, line 15, the total line 17
    addCells(m, 4, 4, {{5}, {14}, {16}});      // line 5: line 6 and on
    addCells(m, 6, 6, {{14}, {16}});           // line 7: line 15 and on
    addCells(m, 7, 12, {{13}, {14}, {16}});    // lines 8 to 13: line 14 and on
    addCells(m, 15, 15, {{16, -1}});           // line 16 is taken off
    return m;
}

inline Member item6() {
    Member m{6, 7, {}};
    addCells(m, 0, 5, {{6}});
    return m;
}

inline Member item7() {
    Member m{7, 5, {}};
    addCells(m, 0, 3, {{4}});
    return m;
}

inline Member item8() {
    Member m{8, 24, {}};
    addCells(m, 0, 22, {{23}});
    addRow(m, 23, 72, {{23}});
    addPacked(m, 30, 40, 45, {{23}});
    return m;
}

inline Member item9() {
    Member m{9, 6, {}};
    addCells(m, 0, 4, {{5}});
    addRow(m, 5, 18, {{5}});
    return m;
}

inline Member item10() {
    Member m{10, 12, {}};
    addCells(m, 0, 0, {}); // line 1 stands outside the total
    addCells(m, 1, 8, {{11}});
    addCells(m, 10, 10, {{11}});
    addRow(m, 11, 36, {});
    addRow(m, 12, 39, {});
    addRow(m, 13, 42, {});
    addRow(m, 14, 45, {});
    addPacked(m, 15, 26, 36, {{9}, {11}}); // line 10 and the total
    addPacked(m, 27, 41, 36, {{11}});
    return m;
}

inline std::vector<Member> family() {
    return {item4(), item5(), item6(), item7(), item8(), item9(), item10()};
}

} // namespace lodge
