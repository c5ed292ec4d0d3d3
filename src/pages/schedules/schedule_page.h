// The pages of items 4 to 10: one form for all seven schedules, made from the schedule's table, with the
// controls and procedures by the system's names.
#pragma once

#include "controls/label.h"
#include "controls/text_box.h"
#include "pages/fields/amounts.h"
#include "pages/schedules/schedule.h"
#include "program/page_form.h"
#include "program/program.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace lodge {

class ScheduleForm : public PageForm {
  public:
    ScheduleForm(Program& program, const Schedule& schedule);

    /// Fills the page from its array. While it is on screen its negative entries stand there without their
    /// sign.
    void ArrayToVar();
    /// Writes the entries of the schedule's lines from the page; what else the array carries stays.
    void DataToArray();
    /// Checks the cell PageChk.CurrentLine of a typed column, shows it as an amount and recomputes what hangs
    /// on it. A text that is no amount empties the cell, sets `intError` and, unless PageChk.SilentCheck is
    /// 1, takes the focus.
    void MoneyChk(Column column);
    /// The cell check down both columns, to the first refusal.
    void PageChk();

    void Form_Load() override;
    void Form_Unload() override;

  private:
    /// A line with its three controls; those of the typed columns are boxes unless the line is computed.
    struct Row {
        const ScheduleLine* line;
        std::array<Control*, 3> cells;
    };

    void addRow(const ScheduleLine& line);
    void wire(TextBox& box, const ScheduleLine& line, Column column);
    void enableColumn(Column column, bool open);

    [[nodiscard]] const Row* rowOf(int cell) const;
    void compute(const Row& row, Column column);
    static void showRowSum(const Row& row);
    static void unpack(const Row& row, const std::string& entry);
    [[nodiscard]] static std::string pack(const Row& row);

    Program& program_;
    const Schedule& schedule_;
    std::vector<std::unique_ptr<Control>> controls_;
    std::vector<Row> rows_;
    UnsignedEntries unsigned_;
};

/// The form of one item, so that each has its type and name.
template <int Item>
class SchedulePage : public ScheduleForm {
  public:
    static constexpr const char* formName = scheduleOf(Item).form;
    explicit SchedulePage(Program& program) : ScheduleForm(program, scheduleOf(Item)) {}
};

using frmLodgePage3_4 = SchedulePage<4>;
using frmLodgePage4_5 = SchedulePage<5>;
using frmLodgePage4_6 = SchedulePage<6>;
using frmLodgePage4_7 = SchedulePage<7>;
using frmLodgePage5_8 = SchedulePage<8>;
using frmLodgePage5_9 = SchedulePage<9>;
using frmLodgePage6_10 = SchedulePage<10>;

/// A procedure of an item for the shell: nothing while the item's form is not loaded.
template <int Item, auto Procedure, auto... Arguments>
void onSchedulePage(Program& program) {
    if (auto* page = program.desk.find<SchedulePage<Item>>()) (page->*Procedure)(Arguments...);
}

template <int Item>
inline constexpr auto arrayToVar = &onSchedulePage<Item, &ScheduleForm::ArrayToVar>;
template <int Item>
inline constexpr auto dataToArray = &onSchedulePage<Item, &ScheduleForm::DataToArray>;
template <int Item>
inline constexpr auto pageCheck = &onSchedulePage<Item, &ScheduleForm::PageChk>;
template <int Item, Column Which>
inline constexpr auto moneyCheck = &onSchedulePage<Item, &ScheduleForm::MoneyChk, Which>;

// clang-format off
inline constexpr auto ArrayToVar_Item4  = arrayToVar<4>,  DataToArray_Item4  = dataToArray<4>;
inline constexpr auto ArrayToVar_Item5  = arrayToVar<5>,  DataToArray_Item5  = dataToArray<5>;
inline constexpr auto ArrayToVar_Item6  = arrayToVar<6>,  DataToArray_Item6  = dataToArray<6>;
inline constexpr auto ArrayToVar_Item7  = arrayToVar<7>,  DataToArray_Item7  = dataToArray<7>;
inline constexpr auto ArrayToVar_Item8  = arrayToVar<8>,  DataToArray_Item8  = dataToArray<8>;
inline constexpr auto ArrayToVar_Item9  = arrayToVar<9>,  DataToArray_Item9  = dataToArray<9>;
inline constexpr auto ArrayToVar_Item10 = arrayToVar<10>, DataToArray_Item10 = dataToArray<10>;

inline constexpr auto PageChk_Item4  = pageCheck<4>,  MoneyChk_Item4_1  = moneyCheck<4,  Column::Exempt>, MoneyChk_Item4_2  = moneyCheck<4,  Column::Taxable>;
inline constexpr auto PageChk_Item5  = pageCheck<5>,  MoneyChk_Item5_1  = moneyCheck<5,  Column::Exempt>, MoneyChk_Item5_2  = moneyCheck<5,  Column::Taxable>;
inline constexpr auto PageChk_Item6  = pageCheck<6>,  MoneyChk_Item6_1  = moneyCheck<6,  Column::Exempt>, MoneyChk_Item6_2  = moneyCheck<6,  Column::Taxable>;
inline constexpr auto PageChk_Item7  = pageCheck<7>,  MoneyChk_Item7_1  = moneyCheck<7,  Column::Exempt>, MoneyChk_Item7_2  = moneyCheck<7,  Column::Taxable>;
inline constexpr auto PageChk_Item8  = pageCheck<8>,  MoneyChk_Item8_1  = moneyCheck<8,  Column::Exempt>, MoneyChk_Item8_2  = moneyCheck<8,  Column::Taxable>;
inline constexpr auto PageChk_Item9  = pageCheck<9>,  MoneyChk_Item9_1  = moneyCheck<9,  Column::Exempt>, MoneyChk_Item9_2  = moneyCheck<9,  Column::Taxable>;
inline constexpr auto PageChk_Item10 = pageCheck<10>, MoneyChk_Item10_1 = moneyCheck<10, Column::Exempt>, MoneyChk_Item10_2 = moneyCheck<10, Column::Taxable>;
// clang-format on

} // namespace lodge
