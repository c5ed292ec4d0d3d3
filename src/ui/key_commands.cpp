#include "ui/key_commands.h"

#include "shell/page_table.h"
#include "ui/amount_captions.h"
#include "ui/amount_rows.h"
#include "ui/binder.h"
#include "ui/field_help.h"
#include "ui/go_to_window.h"

#include <QApplication>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QScrollArea>
#include <QShortcut>
#include <QWheelEvent>

#include <algorithm>

namespace lodge {

namespace {

constexpr const char* frameForm = "MDILodge";
constexpr const char* chooserForm = "frmLodgeChoose";
constexpr const char* toPage1 = "cmdPage1";
constexpr const char* toChooser = "cmdChoose";

/// Whether the page of that row can be gone to: the attachment is for an international headquarters alone.
bool isOpenPage(const PageRow& row, const ReturnState& state) {
    return row.code != page::headquarters || state.blnIHQPage;
}

LinePlace placeOf(const PageRow& row) {
    return {.chooserButton = row.chooserButton == nullptr ? std::string() : std::string(row.chooserButton),
        .form = row.form,
        .controls = {}};
}

/// "3" of "cmdItem03"; empty for a page that bears no number of an item.
QString itemNumber(const PageRow& row) {
    static const QRegularExpression number(QStringLiteral("0*(\\d+)$"));
    return number.match(QString::fromUtf8(row.chooserButton == nullptr ? "" : row.chooserButton)).captured(1);
}

/// "รายการที่ 5  ต้นทุนผลิต": as the chooser calls it, and what it is about.
QString nameOf(const PageRow& row) {
    const QString name = QString::fromUtf8(row.chooserCaption == nullptr ? row.title : row.chooserCaption);
    return QStringLiteral("%1  %2")
        .arg(name.simplified(), fromText(itemName(itemNumber(row).toInt())))
        .trimmed();
}

/// The first control of a page that takes the focus, in the order of the paper.
Control* firstOf(const Form& form) {
    const auto first = std::ranges::find_if(form.controls(), [](const Control* c) { return canRestOn(*c); });
    return first == form.controls().end() ? nullptr : *first;
}

void bringIntoView(QWidget& widget) {
    for (QWidget* around = widget.parentWidget(); around != nullptr; around = around->parentWidget()) {
        if (auto* sheet = qobject_cast<QScrollArea*>(around)) {
            sheet->ensureWidgetVisible(&widget);
        }
    }
}

} // namespace

template <typename Do>
void KeyCommands::bind(const char* keys, Do what) {
    for (const QKeySequence& key : QKeySequence::listFromString(QLatin1String(keys))) {
        auto* shortcut = new QShortcut(key, &frame_);
        shortcut->setAutoRepeat(false);
        connect(shortcut, &QShortcut::activated, this, what);
    }
}

KeyCommands::KeyCommands(Program& program, Binder& binder, QMainWindow& frame)
    : program_(program), binder_(binder), frame_(frame), help_(new HelpDock(&frame)) {
    frame.addDockWidget(Qt::BottomDockWidgetArea, help_);
    help_->hide();
    // clang-format off
    bind("Ctrl+PgUp",   [this] { turnPage(-1); });
    bind("Ctrl+PgDown", [this] { turnPage(1); });
    bind("Ctrl+G; F4",  [this] { askWhere(); });
    bind("F6",          [this] { nextPane(false); });
    bind("Shift+F6",    [this] { nextPane(true); });
    bind("Ctrl++; Ctrl+=", [this] { emit zoomAsked(1); });
    bind("Ctrl+-",      [this] { emit zoomAsked(-1); });
    bind("Ctrl+0",      [this] { emit zoomAsked(0); });
    // clang-format on
    // Help is there in every window of the program.
    auto* help = new QShortcut(QKeySequence(Qt::Key_F1), &frame);
    help->setContext(Qt::ApplicationShortcut);
    connect(help, &QShortcut::activated, this, &KeyCommands::help);
    frame.installEventFilter(this);
    qApp->installEventFilter(this); // the wheel turns over whatever lies under it
}

Form* KeyCommands::pageOnScreen() const {
    const PageRow* row = findPage(program_.state.intPageCur);
    return program_.desk.find(row == nullptr ? chooserForm : row->form);
}

bool KeyCommands::canLeave() const {
    const Form* frame = program_.desk.find(frameForm);
    const Control* button = frame == nullptr ? nullptr : frame->find(toChooser);
    return button != nullptr && button->isShown() && button->isOpen()
           && !program_.desk.liesUnderModal(*frame);
}

void KeyCommands::turnPage(int step) {
    const ReturnState& state = program_.state;
    const auto rows = pageTable();
    // From the chooser the way goes on where it was left.
    const std::int16_t from = state.intPageCur == page::chooser ? state.intPagePrev : state.intPageCur;
    const auto here = std::ranges::find(rows, from, &PageRow::code);
    const auto count = static_cast<std::ptrdiff_t>(rows.size());
    if (!canLeave() || here == rows.end()) {
        return;
    }
    for (std::ptrdiff_t at = here - rows.begin() + step; at >= 0 && at < count; at += step) {
        const PageRow& row = rows[static_cast<std::size_t>(at)];
        if (isOpenPage(row, state)) {
            goTo(placeOf(row));
            return;
        }
    }
}

void KeyCommands::askWhere(const QString& begun) {
    if (!canLeave()) {
        return;
    }
    QVector<GoToWindow::Page> pages;
    for (const PageRow& row : pageTable()) {
        pages.append({.number = itemNumber(row),
            .name = nameOf(row),
            .place = placeOf(row),
            .open = isOpenPage(row, program_.state)});
    }
    binder_.waitBegins();
    const std::optional<LinePlace> place = GoToWindow(pages, begun, &frame_).ask();
    binder_.waitEnds();
    if (place) {
        goTo(*place);
    }
}

void KeyCommands::goTo(const LinePlace& place) {
    const Form* before = pageOnScreen();
    if (before == nullptr || before->name() != place.form) {
        if (place.chooserButton.empty()) {
            binder_.pressOpen(frameForm, toPage1);
        } else {
            binder_.openItem(place.chooserButton);
        }
    }
    settleOn(place);
}

void KeyCommands::settleOn(const LinePlace& place) {
    const Form* form = program_.desk.find(place.form);
    const FormView* view = form == nullptr || !form->isShown() ? nullptr : binder_.viewOf(place.form);
    if (view == nullptr || pageOnScreen() != form) {
        return; // a rule kept the person where he was
    }
    for (const std::string& name : place.controls) {
        Control* control = form->find(name);
        const ControlView* field = control == nullptr ? nullptr : view->find(*control);
        if (field == nullptr || !control->isShown()) {
            continue;
        }
        bringIntoView(*field->widget());
        if (canRestOn(*control)) {
            binder_.act([&](User& user) { user.focus(*control); });
            return;
        }
    }
}

std::vector<QWidget*> KeyCommands::panes() const {
    std::vector<QWidget*> all = {frame_.menuWidget()};
    const auto addDocks = [&](Qt::DockWidgetArea area) {
        for (QDockWidget* dock : frame_.findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (dock != help_ && dock->isVisible() && frame_.dockWidgetArea(dock) == area) {
                all.push_back(dock);
            }
        }
    };
    addDocks(Qt::LeftDockWidgetArea);
    all.push_back(frame_.centralWidget());
    addDocks(Qt::RightDockWidgetArea);
    addDocks(Qt::BottomDockWidgetArea);
    return all;
}

void KeyCommands::nextPane(bool backwards) {
    const std::vector<QWidget*> all = panes();
    const QWidget* focused = QApplication::focusWidget();
    const auto here = std::ranges::find_if(all, [&](const QWidget* pane) {
        return focused != nullptr && (pane == focused || pane->isAncestorOf(focused));
    });
    const std::size_t count = all.size();
    const std::size_t at = here == all.end() ? 0 : static_cast<std::size_t>(here - all.begin());
    enterPane(*all[(at + (backwards ? count - 1 : 1)) % count]);
}

void KeyCommands::enterPane(QWidget& pane) {
    if (&pane == frame_.menuWidget() || &pane == frame_.centralWidget()) {
        const Form* form =
            &pane == frame_.centralWidget() ? program_.desk.top() : program_.desk.find(frameForm);
        Control* rest = form == nullptr ? nullptr : binder_.restingPlace(*form);
        rest = rest == nullptr && form != nullptr ? firstOf(*form) : rest;
        if (rest != nullptr) {
            binder_.act([&](User& user) { user.focus(*rest); });
        }
        return;
    }
    // A field is left before its page is: its check may keep the person there.
    binder_.act([](User& user) { user.leave(); });
    if (program_.desk.focus() == nullptr) {
        const auto inside = pane.findChildren<QWidget*>();
        const auto first = std::ranges::find_if(inside, [](const QWidget* widget) {
            return widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) != 0;
        });
        if (first != inside.end()) {
            (*first)->setFocus(Qt::TabFocusReason);
        }
    }
}

void KeyCommands::help() {
    if (help_->isVisible()) {
        help_->hide();
    } else {
        showHelp();
    }
}

void KeyCommands::followFocus() {
    if (help_ != nullptr && help_->isVisible()) {
        showHelp();
    }
}

void KeyCommands::showHelp() {
    const Control* control = program_.desk.focus();
    const FormView* view = control == nullptr ? nullptr : binder_.viewOf(control->form().name());
    const ControlView* field = view == nullptr ? nullptr : view->find(*control);
    const QString text = field == nullptr ? QString() : QString::fromStdString(helpOn(*control));
    if (text.isEmpty()) {
        help_->showKeys(QString::fromStdString(helpOnKeys()));
    } else {
        help_->showField(nameOf(*field->widget()), text);
    }
}

bool KeyCommands::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && watched == &frame_) {
        return keyLeft(*static_cast<const QKeyEvent*>(event));
    }
    // A window that stands before the program has a zoom of its own, or none.
    if (event->type() == QEvent::Wheel && watched->isWidgetType() && !binder_.isWaiting()) {
        const auto& wheel = static_cast<const QWheelEvent&>(*event);
        const int turned = wheel.angleDelta().y();
        if (wheel.modifiers().testFlag(Qt::ControlModifier) && turned != 0) {
            emit zoomAsked(turned > 0 ? 1 : -1);
            return true;
        }
    }
    return false;
}

/// A key comes here when no field has made anything of it.
bool KeyCommands::keyLeft(const QKeyEvent& key) {
    if (key.key() == Qt::Key_Escape && help_->isVisible()) {
        help_->hide();
        return true;
    }
    const bool isNumber = key.text().size() == 1 && key.text().front().isDigit();
    if (isNumber && program_.state.intPageCur == page::chooser && pageOnScreen() != nullptr) {
        askWhere(key.text());
        return true;
    }
    return false;
}

} // namespace lodge
