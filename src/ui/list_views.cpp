#include "ui/list_views.h"

#include "ui/type.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QSignalBlocker>

#include <algorithm>

namespace lodge {

namespace {

QString shown(const std::string& text) { return QString::fromStdString(text); }

constexpr int tableRow = 30;
/// What an open list needs beside its entries: margins, borders, the scroll bar.
constexpr int besideEntry = 32;

} // namespace

ListView::ListView(Control& control, QListWidget& list, UserDoor& door)
    : ControlView(control, list, door), list_(list) {
    watchPart(*list.viewport());
    connect(&list, &QListWidget::currentRowChanged, this, &ListView::chosen);
}

void ListView::paint(Aspect aspect) {
    const auto& items = static_cast<const ItemList&>(*control());
    const QSignalBlocker silent(&list_);
    if (aspect == Aspect::Items) {
        list_.clear();
        for (const std::string& item : items.items()) {
            list_.addItem(shown(item));
        }
        list_.setCurrentRow(items.selected());
    } else if (aspect == Aspect::Selection) {
        list_.setCurrentRow(items.selected());
    } else {
        ControlView::paint(aspect);
    }
}

bool ListView::mousePressed(QMouseEvent& event) { return ControlView::mousePressed(event) || !come(); }

void ListView::chosen(int row) {
    if (control() == nullptr || row < 0) {
        return;
    }
    door().act([&](User& user) { user.choose(static_cast<ItemList&>(*control()), row); });
    if (control() != nullptr) {
        paint(Aspect::Selection);
    }
}

ComboView::ComboView(Control& control, QComboBox& combo, UserDoor& door)
    : ControlView(control, combo, door), combo_(combo) {
    combo.setEditable(false);
    connect(&combo, &QComboBox::activated, this, &ComboView::chosen);
}

void ComboView::paint(Aspect aspect) {
    const auto& items = static_cast<const ItemList&>(*control());
    const QSignalBlocker silent(&combo_);
    if (aspect == Aspect::Items) {
        combo_.clear();
        int widest = 0;
        for (const std::string& item : items.items()) {
            combo_.addItem(shown(item));
            widest = std::max(widest, combo_.fontMetrics().horizontalAdvance(shown(item)));
        }
        // Open, the list is as wide as its longest entry; closed, it keeps to its place.
        combo_.view()->setMinimumWidth(widest + zoomed(besideEntry));
        combo_.setCurrentIndex(items.selected());
    } else if (aspect == Aspect::Selection) {
        combo_.setCurrentIndex(items.selected());
    } else {
        ControlView::paint(aspect);
    }
}

bool ComboView::mousePressed(QMouseEvent& event) { return ControlView::mousePressed(event) || !come(); }

bool ComboView::otherEvent(QEvent& event) {
    if (event.type() != QEvent::Wheel) {
        return false;
    }
    event.ignore(); // a wheel over a closed list scrolls the page and chooses nothing
    return true;
}

void ComboView::chosen(int row) {
    if (control() == nullptr) {
        return;
    }
    door().act([&](User& user) { user.choose(static_cast<ItemList&>(*control()), row); });
    if (control() != nullptr) {
        paint(Aspect::Selection);
    }
}

GridView::GridView(Control& control, QTableWidget& table, UserDoor& door)
    : ControlView(control, table, door), table_(table) {
    watchPart(*table.viewport());
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setSelectionMode(QAbstractItemView::SingleSelection);
    table.setTabKeyNavigation(false);
    table.horizontalHeader()->setProperty("type", "label");
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table.horizontalHeader()->setDefaultSectionSize(zoomed(table.horizontalHeader()->defaultSectionSize()));
    table.verticalHeader()->hide();
    table.verticalHeader()->setDefaultSectionSize(zoomed(tableRow));
    connect(&table, &QTableWidget::cellClicked, this, [this](int row, int /*column*/) { pick(row); });
}

void GridView::paint(Aspect aspect) {
    if (aspect == Aspect::Cells) {
        paintCells();
    } else if (aspect == Aspect::Selection) {
        const int row = static_cast<const Grid&>(*control()).picked();
        table_.setCurrentCell(row, row < 0 ? -1 : 0);
    } else {
        ControlView::paint(aspect);
    }
}

void GridView::paintCells() {
    const auto& grid = static_cast<const Grid&>(*control());
    table_.setColumnCount(static_cast<int>(grid.columns().size()));
    table_.setRowCount(static_cast<int>(grid.rows().size()));
    int column = 0;
    for (const std::string& head : grid.columns()) {
        table_.setHorizontalHeaderItem(column++, new QTableWidgetItem(shown(head)));
    }
    for (int row = 0; row < table_.rowCount(); ++row) {
        for (column = 0; column < table_.columnCount(); ++column) {
            table_.setItem(row, column, new QTableWidgetItem(shown(grid.cell(row, column))));
        }
    }
    table_.setCurrentCell(grid.picked(), grid.picked() < 0 ? -1 : 0);
}

void GridView::pick(int row) {
    if (control() == nullptr || row < 0) {
        return;
    }
    door().act([&](User& user) { user.pick(static_cast<Grid&>(*control()), row); });
}

bool GridView::keyPressed(QKeyEvent& event) {
    if (ControlView::keyPressed(event)) {
        return true;
    }
    const int last = table_.rowCount() - 1;
    const int row = table_.currentRow();
    switch (event.key()) {
    case Qt::Key_Up: pick(std::max(0, row - 1)); return true;
    case Qt::Key_Down: pick(std::min(last, row + 1)); return true;
    case Qt::Key_Home: pick(0); return true;
    case Qt::Key_End: pick(last); return true;
    case Qt::Key_Space: pick(row); return true;
    default: return false;
    }
}

bool GridView::mousePressed(QMouseEvent& event) { return ControlView::mousePressed(event) || !come(); }

} // namespace lodge
