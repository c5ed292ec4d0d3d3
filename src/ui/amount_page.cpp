#include "ui/amount_page.h"

#include "pages/schedules/item12_page.h"
#include "pages/schedules/item3_page.h"
#include "pages/schedules/schedule.h"
#include "ui/amount_captions.h"
#include "ui/amount_rows.h"
#include "ui/balance_tie.h"
#include "ui/layouts.h"
#include "ui/sheet_title.h"

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

/// A row, and below its caption the item from which the caption says that its figures come, if it does.
AmountRow* makeRow(AmountRow::Kind kind, const QString& number, const QString& caption) {
    static const QRegularExpression origin(QStringLiteral("\\s*\\((จากรายการที่ (\\d+)[^)]*)\\)$"));
    const QRegularExpressionMatch match = origin.match(caption);
    if (!match.hasMatch()) {
        return new AmountRow(kind, number, caption);
    }
    auto* row = new AmountRow(kind, number, caption.left(match.capturedStart()));
    row->addOrigin(match.captured(1).simplified(),
        QStringLiteral("cmdItem%1").arg(match.captured(2).toInt(), 2, 10, QLatin1Char('0')));
    return row;
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

std::unique_ptr<QWidget> makeSchedule(const Schedule& schedule) {
    Sheet sheet(schedule.item);
    sheet.addHead(makeColumnHead());
    for (const ScheduleLine& line : scheduleLines(schedule)) {
        const QString number = numberText(line.number);
        const QString caption = fromText(scheduleCaption(schedule.item, line.cell));
        auto* row =
            makeRow(line.isComputed() ? AmountRow::Kind::Computed : AmountRow::Kind::Typed, number, caption);
        row->endCaption();
        for (const Column column : allColumns) {
            const QString name =
                controlWidgetName(controlName(schedule, line, column), controlIndex(line, column));
            const QString said = saidName(schedule.item, number, column, caption);
            if (line.isComputed() || column == Column::Total) {
                row->addFigure(name, said);
            } else {
                row->addBox(name, said);
            }
        }
        sheet.add(row);
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

/// The caption without the number in front of it.
QString captionOf(const Item3Line& line) {
    return fromText(line.text).mid(numberText(line.number).size()).trimmed();
}

void addTicks(AmountRow& row, int number) {
    const auto ticked = std::ranges::find(tickedLines, number, &TickedLine::number);
    if (ticked != tickedLines.end()) {
        row.addTick(QLatin1String(ticked->profit));
        row.addTick(QLatin1String(ticked->loss));
        row.addRemark(QString::fromUtf8(ticked->remark));
    }
}

AmountRow* makeTypedRow(const QString& number, const QString& caption, int place) {
    auto* row = makeRow(AmountRow::Kind::Typed, number, caption);
    row->endCaption();
    row->addBox(controlWidgetName("txtMoney31", place), saidName(3, number, Column::Exempt, caption));
    row->addBox(controlWidgetName("txtMoney32", place), saidName(3, number, Column::Taxable, caption));
    row->addFigure(controlWidgetName("lblMoney33", place), saidName(3, number, Column::Total, caption));
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
    return row;
}

/// Line 22 stays on screen below the rows, with the box of a company that has figures in both columns.
void addItem3Foot(const Sheet& sheet) {
    QVBoxLayout* foot = sheet.addFoot();
    const QString stated = QStringLiteral("กรณีมีทั้งสองช่อง ระบุตามหลักเกณฑ์ที่อธิบดีกำหนด");
    auto* sideBox = new AmountRow(AmountRow::Kind::Typed, QString(), stated);
    sideBox->endCaption();
    sideBox->addTick(QStringLiteral("chkProfitX"));
    sideBox->addTick(QStringLiteral("chkLoseX"));
    sideBox->follow(*sideBox->addBox(QStringLiteral("txtBOI"), saidName(3, {}, Column::Total, stated)));
    foot->addWidget(sideBox);

    auto* line22 = new AmountRow(AmountRow::Kind::Computed, numberText(22), QString());
    line22->addTick(QStringLiteral("chkProfit20"));
    line22->addTick(QStringLiteral("chkLose20"));
    line22->endCaption();
    line22->addFigure(
        QStringLiteral("lblTotMoney33"), saidName(3, numberText(22), Column::Total, fromText(itemName(3))));
    foot->addWidget(line22);
}

std::unique_ptr<QWidget> makeItem3() {
    Sheet sheet(3);
    sheet.addHead(makeColumnHead());
    for (const Item3Line& line : item3Lines()) {
        sheet.add(line.isComputed() ? makeComputedRow(line)
                                    : makeTypedRow(numberText(line.number), captionOf(line), line.place));
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
        row->addTick(QStringLiteral("chkProfit"))->setAccessibleName(QStringLiteral("กำไรสะสม"));
        row->addRemark(QStringLiteral("กำไร"));
        row->addTick(QStringLiteral("chkLose"))->setAccessibleName(QStringLiteral("ขาดทุนสะสม"));
        row->addRemark(QStringLiteral("ขาดทุน"));
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
    sheet.addFoot()->addWidget(new BalanceTie(*both->findChild<QLabel*>(QStringLiteral("lblSumMoney2")),
        *both->findChild<QLabel*>(QStringLiteral("lblSumMoney34"))));
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
