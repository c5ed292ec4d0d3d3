#include "ui/amount_page.h"

#include "pages/schedules/column.h"
#include "pages/schedules/item12_page.h"
#include "pages/schedules/item3_lines.h"
#include "pages/schedules/item3_page.h"
#include "pages/schedules/schedule.h"
#include "ui/amount_captions.h"
#include "ui/amount_rows.h"
#include "ui/follow_frame.h"
#include "ui/layouts.h"
#include "ui/sheet_title.h"
#include "ui/tie_tag.h"

#include <QFrame>
#include <QRegularExpression>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace lodge {

namespace {

constexpr std::size_t slot(Column column) { return static_cast<std::size_t>(column); }

constexpr std::array<const char*, 3> columnNames = {"ช่อง 1", "ช่อง 2", "รวม"};

QString numberText(int number) { return number == 0 ? QString() : QStringLiteral("%1.").arg(number); }

/// "รายการที่ 5 ข้อ 6. ช่อง 2 รวม (4. + 5.)": what a screen reader calls a figure.
QString saidName(int item, const QString& number, Column column, const QString& caption) {
    QString name = QStringLiteral("รายการที่ %1").arg(item);
    if (!number.isEmpty()) {
        name += QStringLiteral(" ข้อ ") + number;
    }
    name += QLatin1Char(' ') + QString::fromUtf8(columnNames[slot(column)]) + QLatin1Char(' ') + caption;
    return name.replace(QLatin1Char('\n'), QLatin1Char(' '));
}

/// Another item with which figures of a row must agree.
struct Source {
    int item = 0; ///< 0 for none.
    QString text;
};

/// Leaves of a caption what the line is about, and gives the item that its bracket names.
Source cutSource(QString& caption) {
    static const QRegularExpression origin(
        QStringLiteral("\\s*\\((จากรายการที่ (\\d+)(?:\\s+\\d+\\.)?(?:\\s+ถึง\\s+\\d+\\.)?)\\s*([^)]*)\\)$"));
    const QRegularExpressionMatch match = origin.match(caption);
    if (!match.hasMatch()) {
        return {};
    }
    caption = caption.left(match.capturedStart());
    if (!match.captured(3).isEmpty()) {
        caption += QStringLiteral("\n(%1)").arg(match.captured(3));
    }
    return {match.captured(2).toInt(), match.captured(1).simplified()};
}

/// The tag of the row's ties; nullptr for a row that stands for itself.
TieTag* addSource(AmountRow& row, const Source& source) {
    if (source.item == 0) {
        row.addSourceGap();
        return nullptr;
    }
    return row.addSource(source.text, QStringLiteral("cmdItem%1").arg(source.item, 2, 10, QLatin1Char('0')));
}

/// The figure of an item by its name in the return.
QString entryName(const char* form, std::size_t entry) {
    QString fields = QLatin1String(form);
    return QStringLiteral("%1[%2]")
        .arg(fields.replace(QLatin1String("frmLodge"), QLatin1String("strFld")))
        .arg(entry);
}

QString totalName(const Schedule& schedule, Column column) {
    return entryName(schedule.form, entryOf(schedule, scheduleLines(schedule).back(), column));
}

/// An empty page with its title, and the parts of it that are filled.
struct Sheet {
    explicit Sheet(int item) : root(makeLayout("blank")) {
        auto* title = root->findChild<SheetTitle*>();
        title->setProperty("captionOf", QVariant()); // the paper names the item, the form does not
        title->setText(QStringLiteral("รายการที่ %1").arg(item));
        title->setRemark(fromText(itemName(item)));
        frame = static_cast<QVBoxLayout*>(root->findChild<QFrame*>(QStringLiteral("decorSheet"))->layout());
        body = static_cast<QVBoxLayout*>(root->findChild<QWidget*>(QStringLiteral("decorBody"))->layout());
        tintRowInHand(*root);
        new SourceFold(*root); // which owns it
    }

    void addHead(QWidget* head) const { frame->insertWidget(1, head); }
    /// Below the last row; what is left of the sheet stays free under it.
    void add(QWidget* row) const { body->insertWidget(body->count() - 1, row); }

    QVBoxLayout* addFoot() const {
        auto* foot = new QFrame;
        foot->setProperty("role", QByteArray("foot"));
        auto* rows = new QVBoxLayout(foot);
        rows->setContentsMargins(0, 6, 12, 6); // the scroll bar of the rows above
        rows->setSpacing(4);
        frame->addWidget(foot);
        return rows;
    }

    std::unique_ptr<QWidget> root;
    QVBoxLayout* frame;
    QVBoxLayout* body;
};

// Items 4 to 10.

/// The figures of one row, by column.
using Figures = std::array<QWidget*, 3>;

/// The line of item 4 to which item 5 is carried, and that of item 9 which item 8 gives.
constexpr int costOfManufactureCell = 2;
constexpr int givingCell = 5;

/// Where the total of a schedule is carried to.
Source carriedTo(const Schedule& schedule) {
    if (schedule.item == 5) {
        return {4, QStringLiteral("รายการที่ 4 ข้อ 3")};
    }
    const auto line = std::ranges::find(item3Lines(), schedule.pageCode, &Item3Line::fromPage);
    return {3, QStringLiteral("รายการที่ 3 ข้อ %1").arg(line->number)};
}

/// The figure with which the total of a schedule must agree.
QString carriedName(const Schedule& schedule, Column column) {
    if (schedule.item == 5) {
        const Schedule& item4 = scheduleOf(4);
        const auto line = std::ranges::find(scheduleLines(item4), costOfManufactureCell, &ScheduleLine::cell);
        return entryName(item4.form, entryOf(item4, *line, column));
    }
    const auto line = std::ranges::find(item3Lines(), schedule.pageCode, &Item3Line::fromPage);
    return entryName(frmLodgePage3_3::formName, line->entries[slot(column)]);
}

void tieLine(TieTag& tie, const Schedule& schedule, const ScheduleLine& line, const Figures& figures) {
    if (schedule.item == scheduleOf(9).item && line.cell == givingCell) {
        tie.compare(*figures[slot(Column::Total)], QStringLiteral("FucChk.TmpSum8_15to25"));
        return;
    }
    for (const Column column : inputColumns) {
        const bool isTotal = line.cell == totalCell;
        tie.compare(*figures[slot(column)],
            isTotal ? carriedName(schedule, column) : totalName(scheduleOf(5), column));
    }
}

AmountRow* makeScheduleRow(const Schedule& schedule, const ScheduleLine& line) {
    const QString number = numberText(line.number);
    QString caption = fromText(scheduleCaption(schedule.item, line.cell));
    const Source source = line.cell == totalCell ? carriedTo(schedule) : cutSource(caption);
    auto* row = new AmountRow(
        line.isComputed() ? AmountRow::Kind::Computed : AmountRow::Kind::Typed, number, caption);
    Figures figures{};
    for (const Column column : allColumns) {
        const QString name =
            controlWidgetName(controlName(schedule, line, column), controlIndex(line, column));
        const QString said = saidName(schedule.item, number, column, caption);
        const bool computed = line.isComputed() || column == Column::Total;
        figures[slot(column)] =
            computed ? static_cast<QWidget*>(row->addFigure(name, said)) : row->addBox(name, said);
    }
    if (TieTag* tie = addSource(*row, source)) {
        tieLine(*tie, schedule, line, figures);
    }
    return row;
}

std::unique_ptr<QWidget> makeSchedule(const Schedule& schedule) {
    Sheet sheet(schedule.item);
    sheet.addHead(makeColumnHead());
    for (const ScheduleLine& line : scheduleLines(schedule)) {
        sheet.add(makeScheduleRow(schedule, line));
    }
    return std::move(sheet.root);
}

// Item 3.

/// The ticks that stand in place of a caption, and what follows them.
struct TickedLine {
    int number;
    const char* profit;
    const char* loss;
    const char* remark;
};

constexpr std::array<TickedLine, 2> tickedLines = {{
    {3, "chkProfit3", "chkLose3", ""},
    {9, "chkProfit9", "chkLose9", "ตามบัญชีกำไรขาดทุน"},
}};

/// The form bears two captions for line 18: its figure takes what either of them names.
constexpr int twiceCaptioned = 18;
constexpr std::string_view furtherCaption = "18. บวก รายจ่ายส่วนที่เกินร้อยละ 5 ของกำไรสุทธิ";

/// The caption without the number in front of it.
QString captionOf(const Item3Line& line) {
    const auto bare = [&](std::string_view text) {
        return fromText(text).mid(numberText(line.number).size()).trimmed();
    };
    return line.number == twiceCaptioned ? bare(line.text) + QLatin1Char('\n') + bare(furtherCaption)
                                         : bare(line.text);
}

void addTicks(AmountRow& row, int number) {
    const auto ticked = std::ranges::find(tickedLines, number, &TickedLine::number);
    if (ticked != tickedLines.end()) {
        row.addTicks(
            {QLatin1String(ticked->profit), QLatin1String(ticked->loss)}, QString::fromUtf8(ticked->remark));
    }
}

/// The carried loss of item 11, which line 15 takes over in the column of totals.
constexpr int carriedLossPage = 611;
constexpr const char* carriedLossName = "strFldPage6_11[68]";

void tieLine(TieTag& tie, int fromPage, const Figures& figures) {
    if (fromPage == carriedLossPage) {
        tie.compare(*figures[slot(Column::Total)], QLatin1String(carriedLossName));
        return;
    }
    const auto schedule = std::ranges::find(schedules, fromPage, &Schedule::pageCode);
    for (const Column column : inputColumns) {
        tie.compare(*figures[slot(column)], totalName(*schedule, column));
    }
}

AmountRow* makeTypedRow(const QString& number, QString caption, int place, int fromPage = 0) {
    const Source source = cutSource(caption);
    auto* row = new AmountRow(AmountRow::Kind::Typed, number, caption);
    const Figures figures = {
        row->addBox(controlWidgetName("txtMoney31", place), saidName(3, number, Column::Exempt, caption)),
        row->addBox(controlWidgetName("txtMoney32", place), saidName(3, number, Column::Taxable, caption)),
        row->addFigure(controlWidgetName("lblMoney33", place), saidName(3, number, Column::Total, caption))};
    if (TieTag* tie = addSource(*row, source)) {
        tieLine(*tie, fromPage, figures);
    }
    return row;
}

AmountRow* makeComputedRow(const Item3Line& line) {
    const QString number = numberText(line.number);
    const QString caption = captionOf(line);
    auto* row = new AmountRow(AmountRow::Kind::Computed, number, caption);
    addTicks(*row, line.number);
    row->endCaption();
    for (const Column column : allColumns) {
        const std::string_view label = line.labels[slot(column)];
        row->addFigure(label.empty() ? controlWidgetName("lblMoney33", line.place) : controlWidgetName(label),
            saidName(3, number, column, caption));
    }
    row->addSourceGap();
    return row;
}

/// The box in which a company with figures in both columns states line 22 itself.
constexpr const char* statedBox = "txtBOI";

/// It stands on screen only while its box does.
QWidget* makeStatedResult() {
    const QString task = QStringLiteral("ข้อ 22 กำไรสุทธิที่ต้องเสียภาษี หรือขาดทุนสุทธิ ตามหลักเกณฑ์ ...");
    auto* sheet = new FollowFrame;
    sheet->setShownWith(QLatin1String(statedBox));
    sheet->setProperty("role", QByteArray("stated"));
    auto* rows = new QVBoxLayout(sheet);
    rows->setContentsMargins(0, 4, 0, 0);
    rows->setSpacing(0);

    auto* texts = new QHBoxLayout;
    texts->setContentsMargins(20, 0, 4, 0);
    texts->setSpacing(16);
    QLabel* heading = makeText(QStringLiteral("กระดาษทำการสำหรับ บริษัทที่ประกอบทั้งกิจการที่ได้รับยกเว้น..."), "advice");
    heading->setProperty("tone", QByteArray("ok"));
    QLabel* asked = makeText(QStringLiteral("กรุณาบันทึก ") + task, "label");
    asked->setWordWrap(true);
    texts->addWidget(heading);
    texts->addWidget(asked, 1);
    rows->addLayout(texts);

    auto* row = new AmountRow(AmountRow::Kind::Typed, QString(), QString());
    row->endCaption();
    row->addTicks({QStringLiteral("chkProfitX"), QStringLiteral("chkLoseX")});
    row->addBox(QLatin1String(statedBox), saidName(3, {}, Column::Total, task));
    row->addSourceGap();
    rows->addWidget(row);
    return sheet;
}

/// Line 22 stays on screen below the rows.
void addItem3Foot(const Sheet& sheet) {
    QVBoxLayout* foot = sheet.addFoot();
    foot->addWidget(makeStatedResult());

    auto* line22 = new AmountRow(AmountRow::Kind::Computed, numberText(22), QString());
    line22->addTicks({QStringLiteral("chkProfit20"), QStringLiteral("chkLose20")});
    line22->endCaption();
    line22->addFigure(
        QStringLiteral("lblTotMoney33"), saidName(3, numberText(22), Column::Total, fromText(itemName(3))));
    line22->addSource(QStringLiteral("รายการที่ 2 ข้อ 1"), QStringLiteral("cmdItem01"));
    foot->addWidget(line22);
}

std::unique_ptr<QWidget> makeItem3() {
    Sheet sheet(3);
    sheet.addHead(makeColumnHead());
    for (const Item3Line& line : item3Lines()) {
        sheet.add(line.isComputed()
                      ? makeComputedRow(line)
                      : makeTypedRow(numberText(line.number), captionOf(line), line.place, line.fromPage));
        if (line.number == 17) { // its further items stand right below its first one
            for (const Item3SubLine& subLine : item3SubLines()) {
                sheet.add(makeTypedRow(fromText(subLine.number), fromText(subLine.text), subLine.place));
            }
        }
    }
    addItem3Foot(sheet);
    return std::move(sheet.root);
}

// Item 12.

constexpr const char* resultBox = "txtMoney4_3";

AmountRow* makeBalanceRow(const BalanceLine& line) {
    const bool heading = line.control.empty();
    const bool sum = line.control.starts_with("lbl");
    const QString caption = fromText(line.text);
    auto* row = new AmountRow(heading ? AmountRow::Kind::Heading
                              : sum   ? AmountRow::Kind::Computed
                                      : AmountRow::Kind::Typed,
        fromText(line.number), caption);
    const QString name = controlWidgetName(line.control, line.index);
    const QString said = QStringLiteral("รายการที่ 12 %1 %2").arg(fromText(line.number), caption);
    if (name == QLatin1String(resultBox)) {
        // Before the ticks decide, the amount is neither a profit nor a loss.
        row->addTicks({QStringLiteral("chkProfit"), QStringLiteral("chkLose")});
    }
    row->endCaption();
    if (sum) {
        row->addFigure(name, said);
    } else if (!heading) {
        row->addBox(name, said);
    }
    return row;
}

/// One side of the balance sheet, its total at the bottom however short the side is.
QVBoxLayout* makeSide(std::span<const BalanceLine> lines) {
    auto* side = new QVBoxLayout;
    side->setSpacing(0);
    for (const BalanceLine& line : lines) {
        if (&line == &lines.back()) {
            side->addStretch(1);
        }
        side->addWidget(makeBalanceRow(line));
    }
    return side;
}

QWidget* makeBalanceTie(const QWidget& sides) {
    auto* foot = new QWidget;
    auto* line = new QHBoxLayout(foot);
    line->setContentsMargins(0, 4, 4, 4);
    line->setSpacing(8);
    line->addStretch(1);
    line->addWidget(makeText(QStringLiteral("รวมสินทรัพย์ กับ รวมหนี้สินและส่วนของผู้ถือหุ้น"), "label"));
    auto* tie = new TieTag;
    tie->compare(*sides.findChild<QLabel*>(QStringLiteral("lblSumMoney2")),
        *sides.findChild<QLabel*>(QStringLiteral("lblSumMoney34")));
    line->addWidget(tie);
    return foot;
}

std::unique_ptr<QWidget> makeItem12() {
    Sheet sheet(12);
    auto* both = new QWidget;
    auto* sides = new QHBoxLayout(both);
    sides->setContentsMargins(0, 4, 0, 4);
    sides->setSpacing(12);
    sides->addLayout(makeSide(assetLines()), 1);
    auto* upright = new QFrame;
    upright->setProperty("role", QByteArray("upright"));
    sides->addWidget(upright);
    sides->addLayout(makeSide(fundingLines()), 1);
    sheet.add(both);
    sheet.addFoot()->addWidget(makeBalanceTie(*both));
    return std::move(sheet.root);
}

} // namespace

std::unique_ptr<QWidget> makeAmountPage(std::string_view form) {
    if (form == frmLodgePage3_3::formName) {
        return makeItem3();
    }
    if (form == frmLodgePage7_12::formName) {
        return makeItem12();
    }
    const auto schedule = std::ranges::find(schedules, form, &Schedule::form);
    return schedule == schedules.end() ? nullptr : makeSchedule(*schedule);
}

QStringList amountPageNames() {
    QStringList names = {QLatin1String(frmLodgePage3_3::formName), QLatin1String(frmLodgePage7_12::formName)};
    for (const Schedule& schedule : schedules) {
        names << QLatin1String(schedule.form);
    }
    return names;
}

} // namespace lodge
