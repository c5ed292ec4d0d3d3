#include "ui/field_help.h"

#include "controls/form.h"
#include "pages/fields/small_company.h"
#include "pages/schedules/item12_page.h"
#include "pages/schedules/item3_page.h"
#include "pages/schedules/schedule.h"
#include "ui/amount_captions.h"
#include "values/money.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

namespace lodge {

namespace {

constexpr std::array<std::string_view, 3> columnTexts = {"ช่อง 1 ยอดของกิจการที่ได้รับยกเว้นภาษีเงินได้",
    "ช่อง 2 ยอดของกิจการที่ต้องเสียภาษีเงินได้", "ช่องรวม โปรแกรมคำนวณจากช่อง 1 บวกช่อง 2"};

/// The loss of earlier periods, which line 15 of item 3 takes off.
constexpr int carriedLossPage = 611;
/// The line of item 4 that item 5 gives, and that of item 9 that item 8 gives, by their cells.
constexpr int costOfManufactureCell = 2;
constexpr int givingCell = 5;

/// The paragraphs of a help text, one after the other.
class Paragraphs {
  public:
    void add(std::string_view paragraph) {
        if (!paragraph.empty()) {
            text_ += text_.empty() ? "" : "\n";
            text_ += paragraph;
        }
    }
    [[nodiscard]] std::string text() && { return std::move(text_); }

  private:
    std::string text_;
};

std::string into(int line, bool added, bool isTotal) {
    const std::string_view verb = added ? "บวกเข้า" : "หักออก";
    return line == 0 ? fmt::format("{}ใน{}", verb, isTotal ? "ยอดรวม" : "ผลรวมย่อย")
                     : fmt::format("{}ในข้อ {}", verb, line);
}

// Items 4 to 10.

const ScheduleLine& totalOf(const Schedule& schedule) { return scheduleLines(schedule).back(); }

std::string tieOf(const Schedule& schedule, const ScheduleLine& line) {
    if (schedule.item == 4 && line.cell == costOfManufactureCell) {
        return fmt::format("ต้องเท่ากับยอดรวมของรายการที่ 5 ข้อ {}", totalOf(scheduleOf(5)).number);
    }
    if (schedule.item == 9 && line.cell == givingCell) {
        return "ช่องรวมต้องเท่ากับรายการที่ 8 ข้อ 15. ถึง 26. รวมกัน";
    }
    return {};
}

/// What becomes of a figure: the sums that take it in, "" for one that none does.
std::string usesOf(const Schedule& schedule, const ScheduleLine& line) {
    std::string uses;
    for (const ScheduleLine& other : scheduleLines(schedule)) {
        for (const Term& term : other.terms) {
            if (term.first <= line.cell && line.cell <= term.last) {
                uses += uses.empty() ? "" : ", ";
                uses += into(other.number, term.sign > 0, other.cell == totalCell);
            }
        }
    }
    return uses;
}

std::string helpOnSchedule(const Schedule& schedule, const Control& control) {
    for (const ScheduleLine& line : scheduleLines(schedule)) {
        for (const Column column : allColumns) {
            if (controlName(schedule, line, column) != control.name()
                || controlIndex(line, column) != control.index()) {
                continue;
            }
            const std::string uses = usesOf(schedule, line);
            Paragraphs paragraphs;
            paragraphs.add(columnTexts.at(static_cast<std::size_t>(column)));
            paragraphs.add(line.isComputed() ? "โปรแกรมคำนวณจากข้อที่ระบุ" : "พิมพ์ยอดจากบัญชีของรอบระยะเวลาบัญชีนี้");
            paragraphs.add(uses.empty() && !line.isComputed() ? "ยอดนี้ไม่นับรวมในผลรวม" : uses);
            paragraphs.add(tieOf(schedule, line));
            return std::move(paragraphs).text();
        }
    }
    return {};
}

// Item 3.

std::string sourceOf(const Item3Line& line) {
    if (line.fromPage == carriedLossPage) {
        return "ช่องรวมต้องเท่ากับผลขาดทุนสุทธิของรายการที่ 11 กิจการ IHQ ใช้รายการที่ 2 ของใบแนบแทน";
    }
    const auto schedule = std::ranges::find(schedules, line.fromPage, &Schedule::pageCode);
    if (schedule == schedules.end()) {
        return "พิมพ์ยอดจากบัญชีของรอบระยะเวลาบัญชีนี้";
    }
    return fmt::format("ต้องเท่ากับยอดรวมของรายการที่ {} ช่องเดียวกัน", schedule->item);
}

std::string usesOf(const Item3Line& line) {
    std::string uses;
    for (const Item3Line& other : item3Lines()) {
        for (const int term : other.sum) {
            if (term == line.number || term == -line.number) {
                uses += uses.empty() ? "" : ", ";
                uses += into(other.number, term > 0, false);
            }
        }
    }
    return uses;
}

std::string helpOnItem3(const Control& control) {
    const auto column = control.name() == "txtMoney31"   ? Column::Exempt
                        : control.name() == "txtMoney32" ? Column::Taxable
                                                         : Column::Total;
    Paragraphs paragraphs;
    if (column == Column::Total) {
        return {};
    }
    const auto subLine = std::ranges::find(item3SubLines(), control.index(), &Item3SubLine::place);
    const auto line = std::ranges::find(item3Lines(), control.index(), &Item3Line::place);
    if (subLine != item3SubLines().end()) {
        paragraphs.add(columnTexts.at(static_cast<std::size_t>(column)));
        paragraphs.add("รายจ่ายส่วนที่เกินร้อยละ 10 ของกำไรสุทธิ บวกเข้าในข้อ 21");
    } else if (line != item3Lines().end()) {
        paragraphs.add(columnTexts.at(static_cast<std::size_t>(column)));
        paragraphs.add(sourceOf(*line));
        paragraphs.add(usesOf(*line));
    }
    return std::move(paragraphs).text();
}

// Item 12.

constexpr std::string_view registeredCapital = "3.1";
constexpr std::string_view paidCapital = "3.2";

std::string helpOnBalance(const Control& control) {
    for (const std::span<const BalanceLine> side : {assetLines(), fundingLines()}) {
        for (const BalanceLine& line : side) {
            if (line.control != control.name() || line.index != control.index()) {
                continue;
            }
            Paragraphs paragraphs;
            paragraphs.add("พิมพ์ยอดจากงบแสดงฐานะการเงิน ณ วันสุดท้ายของรอบระยะเวลาบัญชี");
            if (line.number == registeredCapital) {
                paragraphs.add("ต้องไม่น้อยกว่าทุนที่ออกและชำระแล้ว");
            } else if (line.number == paidCapital) {
                paragraphs.add("ต้องไม่เกินทุนจดทะเบียน อัตราภาษีของกิจการขนาดเล็กใช้ได้เมื่อไม่เกิน "
                               + formatMoney(largestSmallCapital) + " บาท");
            }
            paragraphs.add("รวมสินทรัพย์ต้องเท่ากับรวมหนี้สินและส่วนของผู้ถือหุ้น");
            return std::move(paragraphs).text();
        }
    }
    return {};
}

std::string helpOnAmount(const Control& control) {
    const std::string& form = control.form().name();
    if (form == frmLodgePage3_3::formName) {
        return helpOnItem3(control);
    }
    if (form == frmLodgePage7_12::formName) {
        return helpOnBalance(control);
    }
    const auto schedule = std::ranges::find(schedules, form, &Schedule::form);
    return schedule == schedules.end() ? std::string() : helpOnSchedule(*schedule, control);
}

} // namespace

std::string helpOn(const Control& control) {
    const auto written = [&](std::string_view name) {
        return std::ranges::find_if(fieldHelp(), [&](const FieldHelp& help) {
            return help.form == control.form().name() && help.control == name;
        });
    };
    auto row = written(control.fullName());
    if (row == fieldHelp().end()) {
        row = written(control.name());
    }
    return row != fieldHelp().end() ? std::string(row->text) : helpOnAmount(control);
}

} // namespace lodge
