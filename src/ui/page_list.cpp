#include "ui/page_list.h"

#include "shell/page_table.h"
#include "ui/item_marks.h"
#include "ui/list_keys.h"
#include "ui/look.h"
#include "ui/text_label.h"
#include "ui/theme.h"
#include "ui/type.h"
#include "values/money.h"

#include <QAbstractListModel>
#include <QEvent>
#include <QListView>
#include <QMainWindow>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include <algorithm>

namespace lodge {

namespace {

constexpr int listWidth = 184;
/// Of the marks alone.
constexpr int markWidth = 44;
constexpr int rowHeight = 32;
constexpr int leastRowHeight = 20;
constexpr int markSize = 16;
constexpr int padding = 12;
constexpr int handWidth = 3;
/// The narrowest page beside which the list says the names, too.
constexpr int pageWidth = 1180;

QFont fontNamed(const char* type) { return fontOf(typeOf(QLatin1String(type)), zoomNow()); }

} // namespace

class PageModel : public QAbstractListModel {
  public:
    using QAbstractListModel::QAbstractListModel;

    void show(const std::vector<ItemState>& items) {
        beginResetModel();
        items_ = items;
        endResetModel();
    }
    [[nodiscard]] const ItemState& item(int row) const { return items_.at(static_cast<std::size_t>(row)); }
    [[nodiscard]] int rowOf(std::int16_t page) const {
        const auto found = std::ranges::find(items_, page, &ItemState::page);
        return found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
    }

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(items_.size());
    }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
        const ItemState& state = item(index.row());
        switch (role) {
        case Qt::DisplayRole: return shortPageName(state.page);
        case Qt::ToolTipRole:
        case Qt::AccessibleTextRole:
            return QStringLiteral("%1: %2").arg(shortPageName(state.page), stateWords(state));
        default: return {};
        }
    }
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override {
        const bool closed = item(index.row()).progress == ItemProgress::Closed;
        return closed ? Qt::NoItemFlags : QAbstractListModel::flags(index);
    }

  private:
    std::vector<ItemState> items_;
};

/// What the list lies in: as wide as its rows, with names or without.
class PageColumn : public QFrame {
  public:
    PageColumn() {
        setProperty("role", QByteArray("pages"));
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    }
    [[nodiscard]] bool isNarrow() const { return narrow_; }
    void setNarrow(bool narrow) {
        narrow_ = narrow;
        updateGeometry();
    }
    [[nodiscard]] QSize sizeHint() const override {
        return {zoomed(narrow_ ? markWidth : listWidth), QFrame::sizeHint().height()};
    }
    [[nodiscard]] QSize minimumSizeHint() const override {
        return {sizeHint().width(), QFrame::minimumSizeHint().height()};
    }

  private:
    bool narrow_ = false;
};

namespace {

/// A mark of the state, the name of the page, how many things are in the way; in a narrow list the mark.
class PageDelegate : public QStyledItemDelegate {
  public:
    PageDelegate(const PageModel& model, const PageColumn& column) : model_(model), column_(column) {}

    [[nodiscard]] QSize sizeHint(
        const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const override {
        if (!column_.isNarrow()) {
            return zoomed(QSize(listWidth, rowHeight));
        }
        // Without names the rows move together before some of them are out of view.
        const auto* list = qobject_cast<const QListView*>(option.widget);
        const int share = list == nullptr ? 0 : list->viewport()->height() / model_.rowCount({});
        return {
            zoomed(markWidth - 2 * padding), std::clamp(share, zoomed(leastRowHeight), zoomed(rowHeight))};
    }
    void paint(
        QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const ItemState& item = model_.item(index.row());
        const bool inHand = (option.state & QStyle::State_Selected) != 0;
        if (inHand) {
            painter->fillRect(option.rect, option.palette.color(QPalette::Midlight));
            painter->fillRect(option.rect.adjusted(0, 0, zoomed(handWidth) - option.rect.width(), 0),
                option.palette.color(QPalette::Link));
        }
        const QRect room = option.rect.adjusted(zoomed(padding), 0, -zoomed(padding), 0);
        const QColor ink = inkOf(item, option.palette);
        const int size = zoomed(markSize);
        const int left = column_.isNarrow() ? option.rect.center().x() - size / 2 : room.left();
        iconOf(stateDrawing(item.progress), ink, ink)
            .paint(painter, QRect(left, room.center().y() - size / 2 + 1, size, size));
        if (column_.isNarrow()) {
            return;
        }
        if (item.progress == ItemProgress::InTheWay) {
            painter->setFont(fontNamed("tag"));
            painter->setPen(ink);
            painter->drawText(room, Qt::AlignRight | Qt::AlignVCenter, QString::number(item.problems));
        }
        QFont name = fontNamed("field");
        name.setBold(inHand);
        painter->setFont(name);
        const bool closed = item.progress == ItemProgress::Closed;
        painter->setPen(option.palette.color(closed ? QPalette::PlaceholderText : QPalette::WindowText));
        painter->drawText(room.adjusted(size + zoomed(padding) - 4, 0, 0, 0),
            Qt::AlignLeft | Qt::AlignVCenter, index.data().toString());
    }

  private:
    [[nodiscard]] static QColor inkOf(const ItemState& item, const QPalette& palette) {
        switch (item.progress) {
        case ItemProgress::Clear: return palette.color(ink::ok);
        case ItemProgress::Named: return palette.color(ink::warn);
        case ItemProgress::InTheWay: return palette.color(QPalette::BrightText);
        default: return palette.color(QPalette::PlaceholderText);
        }
    }

    const PageModel& model_;
    const PageColumn& column_;
};

} // namespace

PageList::PageList(const Program& program, const ProblemWatch& watch, QWidget* parent)
    : QDockWidget(parent), program_(program), watch_(watch), list_(new QListView), body_(new PageColumn),
      captions_(), figures_() {
    setObjectName(QStringLiteral("decorPageList"));
    setWindowTitle(QStringLiteral("รายการ"));
    setAccessibleName(windowTitle());
    setFeatures(QDockWidget::NoDockWidgetFeatures);
    setTitleBarWidget(new QWidget(this));
    model_ = new PageModel(list_);
    list_->setModel(model_);
    list_->setItemDelegate(new PageDelegate(*model_, *body_));
    list_->itemDelegate()->setParent(list_);
    list_->setUniformItemSizes(true);
    list_->setResizeMode(QListView::Adjust); // rows of a narrow list share its height
    list_->setProperty("role", QByteArray("pages"));
    list_->setAccessibleName(windowTitle());
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // A click goes to the page, and the focus with it; F6 comes here to choose by keys.
    list_->setFocusPolicy(Qt::TabFocus);
    auto* keys = new ListKeys(*list_);
    connect(keys, &ListKeys::chosen, this, &PageList::choose);
    connect(keys, &ListKeys::left, this, &PageList::left);
    connect(list_, &QListView::clicked, this, [this](const QModelIndex& at) { choose(at.row()); });

    watchBar_ = makeWatchBar();
    auto* rows = new QVBoxLayout(body_);
    rows->setContentsMargins(0, 8, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(list_, 1);
    rows->addWidget(watchBar_);
    setWidget(body_);
    hide();
    parent->installEventFilter(this);
    connect(&watch, &ProblemWatch::changed, this, &PageList::refresh);
}

QWidget* PageList::makeWatchBar() {
    auto* bar = new QFrame;
    bar->setProperty("role", QByteArray("watchBar"));
    auto* rows = new QVBoxLayout(bar);
    rows->setContentsMargins(padding, 6, padding, 8);
    rows->setSpacing(0);
    for (std::size_t i = 0; i < figures_.size(); ++i) {
        captions_.at(i) = new TextLabel;
        captions_.at(i)->setProperty("type", QByteArray("label"));
        figures_.at(i) = new TextLabel;
        figures_.at(i)->setProperty("type", QByteArray("heading"));
        figures_.at(i)->setProperty("role", QByteArray("watched"));
        figures_.at(i)->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        rows->addWidget(captions_.at(i));
        rows->addWidget(figures_.at(i));
    }
    return bar;
}

void PageList::refresh() {
    const ReturnState& stored = watch_.stored();
    const FieldArray& tax = stored.strFldPage2;
    model_->show(watch_.items());
    const int row = model_->rowOf(program_.state.intPageCur);
    if (row >= 0) {
        list_->setCurrentIndex(model_->index(row));
    }
    constexpr std::size_t loss = 23;
    constexpr std::size_t receipts = 24;
    constexpr std::size_t result = 32;
    constexpr std::size_t computedTax = 33;
    constexpr std::size_t overpaid = 31;
    constexpr std::size_t balance = 43;
    const std::array<QString, 3> captions = {tax[loss] == "1" ? QStringLiteral("ขาดทุนสุทธิ")
                                             : tax[receipts] == "1" ? QStringLiteral("รายรับก่อนหักรายจ่าย")
                                                                    : QStringLiteral("กำไรสุทธิที่ต้องเสียภาษี"),
        QStringLiteral("ภาษีที่คำนวณได้"),
        tax[overpaid] == "1" ? QStringLiteral("ชำระไว้เกิน") : QStringLiteral("ชำระเพิ่มเติม")};
    const std::string& taxOfReturn =
        stored.DataCtrl_P2.TaxValue.empty() ? tax[computedTax] : stored.DataCtrl_P2.TaxValue;
    const std::array<std::string, 3> figures = {tax[result], taxOfReturn, tax[balance]};
    for (std::size_t i = 0; i < figures_.size(); ++i) {
        captions_.at(i)->setText(captions.at(i));
        figures_.at(i)->setText(QString::fromStdString(formatMoneyText(figures.at(i))));
    }
    takeRoom();
}

bool PageList::isNarrow() const { return body_->isNarrow(); }

void PageList::takeRoom() {
    const bool narrow = parentWidget()->width() - zoomed(listWidth) < zoomed(pageWidth);
    if (narrow != isNarrow()) {
        body_->setNarrow(narrow);
        watchBar_->setVisible(!narrow);
        list_->doItemsLayout();
    }
    setVisible(watch_.hasReturn() && findPage(program_.state.intPageCur) != nullptr);
}

void PageList::changeEvent(QEvent* event) {
    QDockWidget::changeEvent(event);
    // With a new style everything may be drawn larger or smaller than before.
    if (event->type() == QEvent::StyleChange && watchBar_ != nullptr) {
        takeRoom();
    }
}

void PageList::choose(int row) {
    if (row < 0 || model_->item(row).progress == ItemProgress::Closed) {
        return;
    }
    const std::int16_t page = model_->item(row).page;
    // Where a check keeps the person, the list says so by its row.
    if (const int here = model_->rowOf(program_.state.intPageCur); here >= 0) {
        list_->setCurrentIndex(model_->index(here));
    }
    emit chosen(page);
}

bool PageList::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parentWidget() && event->type() == QEvent::Resize) {
        takeRoom();
    }
    return QDockWidget::eventFilter(watched, event);
}

} // namespace lodge
