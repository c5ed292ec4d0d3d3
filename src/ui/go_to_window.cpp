#include "ui/go_to_window.h"

#include "ui/type.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace lodge {

namespace {

constexpr int padding = 16;
constexpr int gap = 8;
constexpr int listWidth = 420;
constexpr int rowHeight = 30;

} // namespace

GoToWindow::GoToWindow(const QVector<Page>& pages, const QString& begun, QWidget* parent)
    : QDialog(parent), pages_(pages), line_(new QLineEdit), list_(new QListWidget), note_(new QLabel) {
    setWindowTitle(QStringLiteral("ไปที่"));
    auto* prompt = new QLabel(QStringLiteral("รายการ หรือ รายการ.ข้อ เช่น 3 หรือ 3.22"));
    prompt->setBuddy(line_);
    line_->setAccessibleName(prompt->text());
    list_->setAccessibleName(QStringLiteral("รายชื่อหน้า"));
    list_->setUniformItemSizes(true);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (const Page& page : pages_) {
        const QString number = page.number.isEmpty() ? QString() : page.number + QStringLiteral(".  ");
        auto* item = new QListWidgetItem(number + page.name, list_);
        item->setSizeHint(zoomed(QSize(listWidth, rowHeight)));
        item->setFlags(page.open ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags);
    }
    list_->setFixedSize(zoomed(QSize(listWidth, 0)).width(),
        zoomed(QSize(0, rowHeight)).height() * static_cast<int>(pages_.size()) + 2 * list_->frameWidth() + 2);
    note_->setProperty("tone", QByteArray("stop"));

    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(padding, padding, padding, padding);
    rows->setSpacing(gap);
    for (QWidget* part : std::initializer_list<QWidget*>{prompt, line_, list_, note_}) {
        rows->addWidget(part);
    }
    // The list shows; the line has the keys, so that a number and the arrows work at once.
    list_->setFocusPolicy(Qt::NoFocus);
    line_->installEventFilter(this);
    connect(line_, &QLineEdit::textEdited, this, &GoToWindow::typed);
    connect(line_, &QLineEdit::returnPressed, this, &GoToWindow::choose);
    connect(list_, &QListWidget::itemClicked, this,
        [this](QListWidgetItem* item) { go(pages_.at(list_->row(item)).place); });
    line_->setText(begun);
    typed(begun);
}

std::optional<LinePlace> GoToWindow::ask() {
    line_->setFocus();
    exec();
    return chosen_;
}

void GoToWindow::typed(const QString& text) {
    note_->setText(QString());
    const std::optional<LinePlace> place = placeOfLine(text.toStdString());
    const auto page = std::find_if(pages_.cbegin(), pages_.cend(), [&](const Page& row) {
        return place && row.open && row.place.chooserButton == place->chooserButton;
    });
    list_->setCurrentRow(page == pages_.cend() ? -1 : static_cast<int>(page - pages_.cbegin()));
}

void GoToWindow::choose() {
    const std::optional<LinePlace> place = placeOfLine(line_->text().toStdString());
    if (place) {
        go(*place);
    } else if (line_->text().isEmpty() && list_->currentRow() >= 0) {
        go(pages_.at(list_->currentRow()).place);
    } else if (!line_->text().isEmpty()) {
        note_->setText(QStringLiteral("ไม่มี %1 ในแบบ").arg(line_->text()));
        line_->selectAll();
    }
}

void GoToWindow::go(const LinePlace& place) {
    chosen_ = place;
    accept();
}

bool GoToWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) {
        return QDialog::eventFilter(watched, event);
    }
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Up && key != Qt::Key_Down) {
        return false;
    }
    const int step = key == Qt::Key_Down ? 1 : -1;
    int row = list_->currentRow() + step;
    while (row >= 0 && row < list_->count() && !pages_.at(row).open) {
        row += step;
    }
    if (row >= 0 && row < list_->count()) {
        line_->clear(); // what is chosen in the list counts from now on
        note_->clear();
        list_->setCurrentRow(row);
    }
    return true;
}

} // namespace lodge
