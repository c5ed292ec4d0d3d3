#include "ui/problem_dock.h"

#include "ui/dress.h"
#include "ui/item_marks.h"
#include "ui/list_keys.h"
#include "ui/look.h"
#include "ui/text_label.h"
#include "ui/type.h"
#include "values/money.h"

#include <QAbstractTableModel>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPainter>
#include <QStackedWidget>
#include <QStyledItemDelegate>
#include <QTreeView>

#include <algorithm>
#include <array>
#include <cmath>

namespace lodge {

namespace {

enum ProblemColumn { IconColumn, PageColumn, TextColumn, SidesColumn, DifferenceColumn, ColumnCount };

constexpr int rowHeight = 30;
constexpr int titleHeight = 32;
constexpr int markSize = 16;
constexpr int cellPadding = 8;
constexpr int columnGap = 8;

const std::array<QString, ColumnCount> heads = {QString(), QStringLiteral("หน้า"), QStringLiteral("ข้อความ"),
    QStringLiteral("สองยอดที่ต้องเท่ากัน"), QStringLiteral("ต่าง")};

QString money(double amount) { return QString::fromStdString(formatBracket(amount)); }

QString sidesOf(const Problem& problem) {
    const auto& sides = problem.refusal.sides;
    return sides ? QStringLiteral("%1 / %2").arg(money(sides->here), money(sides->there)) : QString();
}

QString differenceOf(const Problem& problem) {
    const auto& sides = problem.refusal.sides;
    return sides ? money(std::abs(sides->here - sides->there)) : QString();
}

QFont fontNamed(const char* type) { return fontOf(typeOf(QLatin1String(type)), zoomNow()); }

/// Plain rows with a hairline below each; the row in hand is tinted.
class RowDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(
        const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return {QStyledItemDelegate::sizeHint(option, index).width(), zoomed(rowHeight)};
    }
    void paint(
        QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const bool inHand = (option.state & QStyle::State_Selected) != 0;
        painter->fillRect(option.rect, option.palette.color(inHand ? QPalette::Midlight : QPalette::Light));
        painter->setPen(option.palette.color(QPalette::Mid));
        painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
        const QRect room = option.rect.adjusted(zoomed(cellPadding), 0, -zoomed(cellPadding), -1);
        const QVariant icon = index.data(Qt::DecorationRole);
        if (icon.isValid()) {
            const int size = zoomed(markSize);
            icon.value<QIcon>().paint(painter, QRect(room.left(), room.center().y() - size / 2, size, size));
        }
        const QVariant ink = index.data(Qt::ForegroundRole);
        painter->setPen(ink.isValid() ? ink.value<QColor>() : option.palette.color(QPalette::Text));
        painter->setFont(option.font);
        painter->drawText(room, index.data(Qt::TextAlignmentRole).toInt(),
            option.fontMetrics.elidedText(
                index.data(Qt::DisplayRole).toString(), Qt::ElideRight, room.width()));
    }
};

/// A key on a little cap, with what it does.
void addKey(QHBoxLayout& row, const QString& key, const QString& meaning) {
    auto* cap = new TextLabel(key);
    cap->setProperty("type", QByteArray("tag"));
    cap->setProperty("role", QByteArray("keycap"));
    auto* does = new TextLabel(meaning);
    does->setProperty("type", QByteArray("tag"));
    row.addWidget(cap, 0, Qt::AlignVCenter);
    row.addWidget(does, 0, Qt::AlignVCenter);
    row.addSpacing(8);
}

/// The head of the dock, which asks it for its height and not for the least one. The keys go where there is
/// no room for them.
class DockTitle : public QFrame {
  public:
    explicit DockTitle(QWidget* parent) : QFrame(parent), keys_(new QWidget) {
        auto* row = new QHBoxLayout(keys_);
        row->setContentsMargins(0, 0, 0, 0);
        row->setSpacing(6);
        addKey(*row, QStringLiteral("F8"), QStringLiteral("ถัดไป"));
        addKey(*row, QStringLiteral("Shift+F8"), QStringLiteral("ก่อนหน้า"));
        addKey(*row, QStringLiteral("Enter"), QStringLiteral("ไปที่ช่อง"));
        addKey(*row, QStringLiteral("F7"), QStringLiteral("ซ่อน"));
    }

    [[nodiscard]] QWidget* keys() const { return keys_; }
    [[nodiscard]] QSize sizeHint() const override {
        return {QFrame::sizeHint().width(), zoomed(titleHeight)};
    }
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, zoomed(titleHeight)}; }

  protected:
    bool event(QEvent* event) override {
        if (event->type() == QEvent::LayoutRequest) {
            fit();
        }
        return QFrame::event(event);
    }
    void resizeEvent(QResizeEvent* event) override {
        QFrame::resizeEvent(event);
        fit();
    }

  private:
    void fit() {
        const int keys = keys_->sizeHint().width() + layout()->spacing();
        const int others = QFrame::sizeHint().width() - (keys_->isHidden() ? 0 : keys);
        keys_->setVisible(others + keys <= width());
    }

    QWidget* keys_;
};

} // namespace

class ProblemModel : public QAbstractTableModel {
  public:
    using QAbstractTableModel::QAbstractTableModel;

    void show(const std::vector<Problem>& problems) {
        beginResetModel();
        problems_ = problems;
        endResetModel();
    }
    [[nodiscard]] const std::vector<Problem>& problems() const { return problems_; }
    /// The row that says the same of the same field, -1 for none.
    [[nodiscard]] int rowOf(const Refusal& refusal) const {
        const auto found = std::ranges::find_if(problems_, [&](const Problem& problem) {
            return problem.refusal.text == refusal.text && problem.refusal.form == refusal.form
                   && problem.refusal.control == refusal.control;
        });
        return found == problems_.end() ? -1 : static_cast<int>(found - problems_.begin());
    }

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(problems_.size());
    }
    [[nodiscard]] int columnCount(const QModelIndex& /*parent*/) const override { return ColumnCount; }
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (orientation != Qt::Horizontal) return {};
        if (role == Qt::DisplayRole) return heads.at(static_cast<std::size_t>(section));
        if (role == Qt::TextAlignmentRole) return alignment(section);
        return {};
    }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
        const Problem& problem = problems_.at(static_cast<std::size_t>(index.row()));
        const QPalette palette = static_cast<const QWidget*>(QObject::parent())->palette();
        const QColor stop = palette.color(QPalette::BrightText);
        switch (role) {
        case Qt::DisplayRole: return text(problem, index.column());
        case Qt::AccessibleTextRole:
            return index.column() == IconColumn ? QStringLiteral("ติดขัด") : text(problem, index.column());
        case Qt::ToolTipRole:
            return QStringList({textOf(problem), sidesOf(problem)}).join(QLatin1Char('\n')).trimmed();
        case Qt::TextAlignmentRole: return alignment(index.column());
        case Qt::DecorationRole:
            return index.column() == IconColumn ? QVariant(iconOf(QStringLiteral("stop"), stop, stop))
                                                : QVariant();
        case Qt::ForegroundRole:
            if (index.column() == PageColumn) return palette.color(QPalette::LinkVisited);
            return index.column() == DifferenceColumn ? QVariant(stop) : QVariant();
        default: return {};
        }
    }

  private:
    static QVariant alignment(int column) {
        const bool isAmount = column == SidesColumn || column == DifferenceColumn;
        return QVariant::fromValue((isAmount ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    static QString text(const Problem& problem, int column) {
        switch (column) {
        case PageColumn: return shortPageName(problem.page);
        case TextColumn: return textOf(problem);
        case SidesColumn: return sidesOf(problem);
        case DifferenceColumn: return differenceOf(problem);
        default: return {};
        }
    }

    std::vector<Problem> problems_;
};

ProblemDock::ProblemDock(const ProblemWatch& watch, QWidget* parent)
    : QDockWidget(parent), watch_(watch), list_(new QTreeView), count_(new TextLabel),
      nothing_(new TextLabel(QStringLiteral("ไม่มีรายการติดขัด จัดเก็บได้"))), body_(new QStackedWidget) {
    setObjectName(QStringLiteral("decorProblems"));
    setWindowTitle(QStringLiteral("รายการที่ยังติดขัด"));
    setAccessibleName(windowTitle());
    setFeatures(QDockWidget::DockWidgetClosable);
    setTitleBarWidget(makeTitle());
    makeList();
    body_->addWidget(list_);
    body_->addWidget(makeNothing());
    body_->setMinimumHeight(3 * rowHeight);
    setWidget(body_);
    connect(&watch, &ProblemWatch::changed, this, &ProblemDock::refresh);
    refresh();
}

QWidget* ProblemDock::makeTitle() {
    auto* title = new DockTitle(this);
    title->setProperty("role", QByteArray("dockTitle"));
    auto* row = new QHBoxLayout(title);
    row->setContentsMargins(12, 0, 12, 0);
    row->setSpacing(6);
    auto* name = new TextLabel(windowTitle());
    name->setProperty("type", QByteArray("advice"));
    row->addWidget(name);
    row->addSpacing(6);
    count_->setProperty("type", QByteArray("tag"));
    count_->setProperty("role", QByteArray("pill"));
    row->addWidget(count_, 0, Qt::AlignVCenter);
    row->addStretch(1);
    row->addWidget(title->keys());
    auto* close = new QToolButton;
    close->setProperty("drawing", QByteArray("cross"));
    close->setAccessibleName(QStringLiteral("ซ่อน"));
    close->setAutoRaise(true);
    close->setFocusPolicy(Qt::NoFocus);
    connect(close, &QToolButton::clicked, this, [this] {
        hide();
        emit left();
    });
    row->addWidget(close);
    return title;
}

QWidget* ProblemDock::makeNothing() {
    auto* paper = new QFrame;
    paper->setProperty("role", QByteArray("paper"));
    auto* rows = new QVBoxLayout(paper);
    rows->setContentsMargins(0, 0, 0, 0);
    nothing_->setProperty("type", QByteArray("field"));
    nothing_->setProperty("role", QByteArray("nothing"));
    nothing_->setFixedHeight(titleHeight);
    rows->addWidget(nothing_);
    rows->addStretch(1);
    return paper;
}

void ProblemDock::makeList() {
    model_ = new ProblemModel(list_);
    list_->setModel(model_);
    list_->setItemDelegate(new RowDelegate(list_));
    list_->setRootIsDecorated(false);
    list_->setUniformRowHeights(true);
    list_->setSelectionBehavior(QAbstractItemView::SelectRows);
    list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list_->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->setIconSize(QSize(markSize, markSize));
    list_->setAccessibleName(windowTitle());
    list_->setProperty("role", QByteArray("problems"));
    list_->setProperty("type", QByteArray("field"));
    QHeaderView& head = *list_->header();
    head.setProperty("type", QByteArray("label"));
    head.setSectionsMovable(false);
    head.setSectionsClickable(false);
    head.setStretchLastSection(false);
    head.setSectionResizeMode(QHeaderView::Fixed);
    head.setSectionResizeMode(TextColumn, QHeaderView::Stretch);
    auto* keys = new ListKeys(*list_);
    connect(keys, &ListKeys::chosen, this, &ProblemDock::choose);
    connect(keys, &ListKeys::left, this, &ProblemDock::left);
    connect(list_, &QTreeView::doubleClicked, this, [this](const QModelIndex& at) { choose(at.row()); });
}

/// Everything but the text has the width that it needs; the text takes what is left.
void ProblemDock::fitColumns() {
    QHeaderView& head = *list_->header();
    const QFontMetrics ofHeads(fontNamed("label"));
    const QFontMetrics ofCells(fontNamed("field"));
    const int mark = zoomed(markSize + 2 * cellPadding);
    head.setMinimumSectionSize(mark);
    head.resizeSection(IconColumn, mark);
    for (const int column : {PageColumn, SidesColumn, DifferenceColumn}) {
        int width = ofHeads.horizontalAdvance(heads.at(static_cast<std::size_t>(column)));
        for (int row = 0; row < model_->rowCount({}); ++row) {
            width = std::max(width, ofCells.horizontalAdvance(model_->index(row, column).data().toString()));
        }
        head.resizeSection(column, width + zoomed(2 * cellPadding + columnGap));
    }
}

void ProblemDock::changeEvent(QEvent* event) {
    QDockWidget::changeEvent(event);
    // With a new style everything may be drawn larger or smaller than before.
    if (event->type() == QEvent::StyleChange && isVisible()) {
        fitColumns();
    }
}

void ProblemDock::showEvent(QShowEvent* event) {
    QDockWidget::showEvent(event);
    fitColumns();
}

void ProblemDock::refresh() {
    const int row = list_->currentIndex().row();
    const Refusal kept = row < 0 ? Refusal() : model_->problems().at(static_cast<std::size_t>(row)).refusal;
    const std::vector<Problem>& problems = watch_.problems();
    model_->show(problems);
    if (isVisible()) {
        fitColumns();
    }
    if (const int same = model_->rowOf(kept); same >= 0) {
        list_->setCurrentIndex(model_->index(same, TextColumn));
    }
    const bool clear = problems.empty();
    count_->setVisible(watch_.hasReturn() && !clear);
    count_->setText(QStringLiteral("ขวางการจัดเก็บ %1").arg(problems.size()));
    nothing_->setVisible(watch_.hasReturn());
    if (clear && hasFocusInside()) {
        emit left(); // nothing is left to stand on
    }
    body_->setCurrentIndex(clear ? 1 : 0);
}

void ProblemDock::enter() {
    show();
    raise();
    if (!watch_.problems().empty()) {
        if (!list_->currentIndex().isValid()) {
            list_->setCurrentIndex(model_->index(0, TextColumn));
        }
        list_->setFocus(Qt::ShortcutFocusReason);
    }
}

bool ProblemDock::hasFocusInside() const { return list_->hasFocus(); }

void ProblemDock::step(int step) {
    const auto count = static_cast<int>(model_->problems().size());
    if (count == 0) {
        return;
    }
    const int row = list_->currentIndex().row();
    const int next = row < 0 ? (step > 0 ? 0 : count - 1) : (row + step + count) % count;
    list_->setCurrentIndex(model_->index(next, TextColumn));
    choose(next);
}

void ProblemDock::choose(int row) {
    if (row >= 0) {
        const Problem problem = model_->problems().at(static_cast<std::size_t>(row)); // it may go on the way
        emit chosen(problem);
    }
}

ProblemButton::ProblemButton(const ProblemWatch& watch) : watch_(watch) {
    setObjectName(QStringLiteral("decorProblemButton"));
    setProperty("type", QByteArray("label"));
    setProperty("role", QByteArray("problems"));
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setIconSize(QSize(markSize, markSize));
    setAutoRaise(true);
    setFocusPolicy(Qt::NoFocus);
    connect(&watch, &ProblemWatch::changed, this, &ProblemButton::refresh);
    refresh();
}

void ProblemButton::refresh() {
    const std::size_t count = watch_.problems().size();
    const bool clear = count == 0;
    setVisible(watch_.hasReturn());
    setText(clear ? QStringLiteral("ไม่ติดขัด") : QStringLiteral("ติดขัด %1").arg(count));
    setToolTip(QStringLiteral("รายการที่ยังติดขัด (F7)"));
    setWorn(*this, "tone", clear ? "ok" : "stop");
    const QColor ink = palette().color(inkOf(*this));
    setIcon(iconOf(clear ? QStringLiteral("whole") : QStringLiteral("stop"), ink, ink));
    setIconSize(zoomed(QSize(markSize, markSize)));
}

} // namespace lodge
