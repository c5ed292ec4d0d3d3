#include "ui/binder.h"

#include "shell/chooser.h"
#include "shell/page_table.h"
#include "ui/card_button.h"
#include "ui/key_commands.h"
#include "ui/look.h"
#include "ui/page_list.h"
#include "ui/page_scroll.h"
#include "ui/problem_dock.h"
#include "ui/problem_watch.h"
#include "ui/status_line.h"
#include "ui/type.h"

#include <QApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QStackedWidget>
#include <QStatusBar>

#include <algorithm>

namespace lodge {

namespace {

/// What a layout of the main frame calls the parts that the binder fills.
constexpr const char* toolsName = "decorTools";
constexpr const char* pagesName = "decorPages";
constexpr const char* statusName = "decorStatus";
/// And what a page calls the part that stands in the status bar while the page is on screen.
constexpr const char* pageStatusName = "decorPageStatus";

/// In the status bar: behind decorStatus, before what stands at the end for every page.
constexpr int placeOfPageStatus = 1;

/// How far a field that gets the focus stands off the edge of a scrolled sheet: three rows.
constexpr int scrollMargin = 90;

} // namespace

Binder::Binder(Program& program, const Look& look)
    : program_(program), look_(look), clock_(program.desk), user_(program.desk) {
    settling_.setSingleShot(true);
    connect(&look, &Look::changed, this, &Binder::dressAgain);
    connect(&settling_, &QTimer::timeout, this, &Binder::settle);
    program.desk.observe(*this);
    problems_ = std::make_unique<ProblemWatch>(program, [this] { return waits_ == 0; });
    connect(problems_.get(), &ProblemWatch::changed, this, &Binder::showItemStates);
}

Binder::~Binder() {
    program_.desk.forget(*this);
    for (const auto& [name, view] : views_) {
        delete view;
    }
    dropKept();
}

FormView* Binder::viewOf(std::string_view form) const {
    const auto found = views_.find(form);
    return found == views_.end() ? nullptr : found->second;
}

void Binder::act(const std::function<void(User&)>& what) {
    if (waits_ > 0) {
        return; // a box stands before everything
    }
    clock_.catchUp();
    boxAnswered_ = false;
    const Desk::EventScope scope(program_.desk);
    what(user_);
    if (statusLine_ != nullptr) {
        statusLine_->refresh();
    }
}

void Binder::tellStatus() {
    if (statusLine_ != nullptr) {
        statusLine_->refresh();
        statusLine_->refreshStore();
    }
}

void Binder::press(Control& button) {
    Desk& desk = program_.desk;
    const bool isTool = frame_ != nullptr && viewOf(button.form().name())->root() == frame_;
    const Control* before = desk.focus();
    const std::string form = before == nullptr ? std::string() : before->form().name();
    const std::string name = before == nullptr ? std::string() : before->fullName();
    const std::string topBefore = desk.top() == nullptr ? std::string() : desk.top()->name();
    act([&](User& user) {
        user.click(button);
        if (!isTool || desk.focus() != &button) {
            return;
        }
        // A tool that left the page as it was gives the focus back to the field that it was called from; the
        // page that it brought up gets the focus, unless it took it by itself.
        const Form* top = desk.top();
        const Form* page = desk.find(form);
        Control* field = page == nullptr ? nullptr : page->find(name);
        if (top != nullptr && top->name() != topBefore && viewOf(top->name()) != nullptr) {
            field = restingPlace(*top);
        }
        if (field != nullptr && field != &button) {
            user.focus(*field);
        }
    });
    settleSoon();
}

bool Binder::pressOpen(std::string_view form, const std::string& button) {
    const Form* owner = program_.desk.find(form);
    Control* found = owner == nullptr ? nullptr : owner->find(button);
    if (found == nullptr || !found->isShown() || !found->isOpen()) {
        return false;
    }
    press(*found);
    return true;
}

void Binder::openItem(const std::string& chooserButton) {
    if (pressOpen("MDILodge", "cmdChoose")) {
        pressOpen("frmLodgeChoose", chooserButton);
    }
}

void Binder::moveAcross(Control& from, Direction where) {
    const FormView* view = viewOf(from.form().name());
    const ControlView* next = view == nullptr ? nullptr : view->neighbour(from, where);
    if (next != nullptr) {
        act([&](User& user) { user.focus(*next->control()); });
    }
}

void Binder::waitBegins() {
    ++waits_;
    clock_.hold();
}

void Binder::waitEnds() {
    --waits_;
    clock_.release();
    boxAnswered_ = true;
    settleSoon();
    problems_->lookSoon();
    if (waits_ == 0) {
        emit waitsOver();
    }
}

FormView& Binder::viewFor(Form& form) {
    if (FormView* known = viewOf(form.name())) {
        return *known;
    }
    if (FormView* again = takeUpKept(form)) {
        return *again;
    }
    auto* view = new FormView(form, *this);
    views_.emplace(form.name(), view);
    QWidget& root = *view->root();
    if (auto* frame = qobject_cast<QMainWindow*>(&root)) {
        placeFrame(*frame);
    } else if (qobject_cast<QDialog*>(&root) != nullptr) {
        placeDialog(form, root);
    } else {
        placePage(root);
    }
    look_.dress(root);
    if (auto* dialog = qobject_cast<QDialog*>(&root)) {
        fitDialog(*dialog);
    }
    return *view;
}

FormView* Binder::takeUpKept(Form& form) {
    const auto found = kept_.find(form.name());
    if (found == kept_.end()) {
        return nullptr;
    }
    FormView* view = found->second;
    kept_.erase(found);
    if (view->root() == nullptr || !view->takeUp(form)) {
        delete view;
        return nullptr;
    }
    views_.emplace(form.name(), view);
    PageScroll::around(*view->root())->setUpdatesEnabled(true);
    return view;
}

/// Keeps the widgets of a page that is left for its next visit; false for a form that comes up once.
bool Binder::keep(FormView& view) {
    const std::string& name = view.form()->name();
    PageScroll* scroll = view.root() == nullptr ? nullptr : PageScroll::around(*view.root());
    const bool comesAgain =
        name == frmLodgeChoose::formName
        || std::ranges::any_of(pageTable(), [&](const PageRow& row) { return name == row.form; });
    if (scroll == nullptr || !comesAgain) {
        return false;
    }
    view.letGo();
    kept_.emplace(name, &view);
    // Whenever the stack turns to another page it goes through all widgets that may draw themselves.
    scroll->setUpdatesEnabled(false);
    return true;
}

void Binder::dropKept() {
    for (const auto& [name, view] : kept_) {
        delete view;
    }
    kept_.clear();
}

void Binder::fitDialog(QDialog& dialog) {
    constexpr const char* designName = "designedWindow";
    if (!dialog.property(designName).isValid()) {
        // A layout that gives no size of its own wants the one that its parts need.
        dialog.setProperty(designName, dialog.testAttribute(Qt::WA_Resized) ? dialog.size() : QSize());
    }
    const QSize design = dialog.property(designName).toSize();
    if (design.isValid()) {
        dialog.resize(
            zoomed(design).expandedTo(dialog.minimumSizeHint()).boundedTo(dialog.screen()->availableSize()));
    } else {
        dialog.adjustSize();
    }
}

void Binder::dressAgain() {
    if (frame_ == nullptr) {
        return;
    }
    dropKept();           // the next visit makes them anew, so that only what is on screen need change
    look_.dress(*frame_); // its pages and dialogs lie in it
    statusLine_->showZoom(look_.zoom());
    for (const auto& [name, view] : views_) {
        if (auto* dialog = qobject_cast<QDialog*>(view->root())) {
            fitDialog(*dialog);
        }
    }
}

void Binder::placeFrame(QMainWindow& frame) {
    frame_ = &frame;
    pages_ = frame.findChild<QStackedWidget*>(QLatin1String(pagesName));
    frame.setAnimated(false);
    frame.setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    // Above and below the docks, over the whole width.
    frame.setMenuWidget(frame.findChild<QWidget*>(QLatin1String(toolsName)));
    frame.statusBar()->setSizeGripEnabled(false);
    frame.statusBar()->addWidget(frame.findChild<QWidget*>(QLatin1String(statusName)), 1);
    keys_ = std::make_unique<KeyCommands>(program_, *this, frame);
    connect(keys_.get(), &KeyCommands::zoomAsked, this, &Binder::zoomAsked);
    statusLine_ =
        new StatusLine(program_, *frame.findChild<QWidget*>(QLatin1String(statusName)), *frame.statusBar());
    statusLine_->setParent(&frame);
    placeProblems(frame);
    statusLine_->addZoom(look_.zoom());
}

void Binder::placeProblems(QMainWindow& frame) {
    pageList_ = new PageList(program_, *problems_, &frame);
    frame.addDockWidget(Qt::LeftDockWidgetArea, pageList_);
    connect(pageList_, &PageList::chosen, this, [this](std::int16_t page) { goToPage(page, {}); });
    connect(pageList_, &PageList::left, this, &Binder::settleSoon);
    auto* button = new ProblemButton(*problems_);
    frame.statusBar()->addPermanentWidget(button);
    connect(button, &QToolButton::clicked, this, &Binder::toggleProblems);

    const auto bind = [&](const QKeySequence& key, const auto& what) {
        connect(new QShortcut(key, &frame), &QShortcut::activated, this, what);
    };
    bind(QKeySequence(Qt::Key_F7), [this] { toggleProblems(); });
    bind(QKeySequence(Qt::Key_F8), [this] { problemDock().step(1); });
    bind(QKeySequence(Qt::SHIFT | Qt::Key_F8), [this] { problemDock().step(-1); });
}

ProblemDock& Binder::problemDock() {
    if (problemDock_ == nullptr) {
        problemDock_ = new ProblemDock(*problems_, frame_);
        problemDock_->hide();
        frame_->addDockWidget(Qt::BottomDockWidgetArea, problemDock_);
        look_.dress(*problemDock_);
        connect(problemDock_, &ProblemDock::chosen, this, &Binder::goToProblem);
        connect(problemDock_, &ProblemDock::left, this, &Binder::settleSoon);
    }
    return *problemDock_;
}

/// The list comes up with the focus in it, and goes when it has the focus already.
void Binder::toggleProblems() {
    if (!problems_->hasReturn() || waits_ > 0) {
        return;
    }
    ProblemDock& dock = problemDock();
    if (dock.isVisible() && (dock.hasFocusInside() || problems_->problems().empty())) {
        dock.hide();
        settleSoon();
        return;
    }
    // A field is left before its page is: its check may keep the person there.
    act([](User& user) { user.leave(); });
    if (program_.desk.focus() == nullptr) {
        dock.enter();
    }
}

void Binder::goToProblem(const Problem& problem) { goToPage(problem.page, {problem.refusal.control}); }

void Binder::goToPage(std::int16_t page, std::vector<std::string> controls) {
    const PageRow* row = findPage(page);
    if (row == nullptr) {
        return;
    }
    keys_->goTo({.chooserButton = row->chooserButton == nullptr ? std::string() : row->chooserButton,
        .form = row->form,
        .controls = std::move(controls)});
    settleSoon();
}

void Binder::markFields() {
    const PageRow* row = findPage(program_.state.intPageCur);
    FormView* page = row == nullptr ? nullptr : viewOf(row->form);
    if (page == nullptr) {
        return;
    }
    std::map<std::string, QString> messages;
    std::size_t count = 0;
    for (const Problem& problem : problems_->problems()) {
        if (problem.page == row->code) {
            messages.emplace(problem.refusal.control, textOf(problem));
            ++count;
        }
    }
    page->showProblems(messages, count);
}

void Binder::showItemStates() {
    markFields();
    const FormView* chooser = viewOf(frmLodgeChoose::formName);
    if (chooser == nullptr) {
        return;
    }
    for (const ItemState& item : problems_->items()) {
        const PageRow* row = findPage(item.page);
        auto* card = row->chooserButton == nullptr
                         ? nullptr
                         : chooser->root()->findChild<CardButton*>(QLatin1String(row->chooserButton));
        if (card != nullptr) {
            card->showState(item);
        }
    }
}

void Binder::placePage(QWidget& page) {
    if (pages_ != nullptr) {
        new PageScroll(page, *pages_); // the stack owns it
    }
}

void Binder::placeDialog(const Form& form, QWidget& dialog) {
    dialog.setParent(frame_, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
                                 | (form.isClosable() ? Qt::WindowCloseButtonHint : Qt::WindowFlags()));
}

void Binder::formShown(Form& form) {
    FormView& view = viewFor(form);
    view.readOthers(program_.state);
    tellStatus();
    if (view.isWindow()) {
        showWindow(form, *view.root());
    } else {
        std::erase(shownPages_, &view);
        shownPages_.push_back(&view);
        showTopPage();
    }
    settleSoon();
}

void Binder::showWindow(const Form& form, QWidget& window) {
    if (&window != frame_) {
        window.setWindowModality(form.isModal() ? Qt::WindowModal : Qt::NonModal);
    }
    const QSize room = window.screen()->availableSize();
    const bool fits = room.width() > window.width() && room.height() > window.height();
    if (&window == frame_ && !fits) {
        window.showMaximized();
    } else {
        window.show();
    }
    window.raise();
    window.activateWindow();
}

void Binder::formHidden(Form& form) {
    FormView* view = viewOf(form.name());
    if (view == nullptr) {
        return;
    }
    if (view->isWindow()) {
        view->root()->hide();
    } else {
        std::erase(shownPages_, view);
        showTopPage();
    }
    settleSoon();
}

void Binder::formUnloaded(Form& form) {
    const auto found = views_.find(form.name());
    if (found == views_.end()) {
        return;
    }
    tellStatus();
    FormView* view = found->second;
    views_.erase(found);
    if (keep(*view)) {
        return;
    }
    // The widgets go when the event that unloaded the form has ended: it may have come from one of them.
    view->letGo();
    view->setParent(this);
    view->deleteLater();
    if (view->root() == frame_) {
        view->root()->hide();
    }
}

void Binder::showTopPage() {
    if (pages_ == nullptr) {
        return;
    }
    QWidget* page = shownPages_.empty() ? pages_->widget(0) : shownPages_.back()->root();
    PageScroll* scroll = PageScroll::around(*page);
    // The list comes or goes first, so that the page is laid out once, in the room that it will have.
    pageList_->takeRoom();
    frame_->layout()->activate();
    pages_->setCurrentWidget(scroll == nullptr ? page : scroll);
    if (status_ != nullptr && statusPage_ != page) {
        frame_->statusBar()->removeWidget(status_);
        status_->setParent(statusPage_); // it lives and dies with its page
    }
    status_ = page->findChild<QWidget*>(QLatin1String(pageStatusName));
    statusPage_ = page;
    if (status_ != nullptr) {
        frame_->statusBar()->insertPermanentWidget(placeOfPageStatus, status_);
        look_.dress(*status_);
        status_->show();
    }
}

void Binder::formChanged(Form& form) {
    if (FormView* view = viewOf(form.name())) {
        view->paintForm();
    }
}

void Binder::controlChanged(Control& control, Aspect aspect) {
    FormView* view = viewOf(control.form().name());
    if (view == nullptr) {
        return;
    }
    view->paint(control, aspect);
    const bool mayLoseFocus = aspect == Aspect::Enabled || aspect == Aspect::Visible;
    if (mayLoseFocus && program_.desk.focus() != nullptr) {
        settleSoon();
    }
}

void Binder::focusMoved(Control* control) {
    FormView* view = control == nullptr ? nullptr : viewOf(control->form().name());
    ControlView* field = view == nullptr ? nullptr : view->find(*control);
    if (field == nullptr) {
        return;
    }
    view->noteFocus(*control);
    bringFocus(*field->widget());
    field->focusCame();
    if (keys_ != nullptr) {
        keys_->followFocus();
    }
    if (boxAnswered_ && program_.state.intError == 1) {
        field->markRefused();
    }
}

void Binder::bringFocus(QWidget& widget) {
    if (widget.window() != QApplication::activeWindow()) {
        widget.window()->activateWindow();
    }
    widget.setFocus(Qt::OtherFocusReason);
    for (QWidget* around = widget.parentWidget(); around != nullptr; around = around->parentWidget()) {
        if (auto* sheet = qobject_cast<QScrollArea*>(around)) {
            sheet->ensureWidgetVisible(&widget, 0, zoomed(scrollMargin));
        }
    }
}

void Binder::settleSoon() {
    if (!settling_.isActive()) {
        settling_.start();
    }
}

void Binder::settle() {
    if (waits_ > 0) {
        return; // the end of the wait settles again
    }
    Control* focused = program_.desk.focus();
    if (focused != nullptr && !user_.whyNot(focused->form()) && canRestOn(*focused)) {
        const FormView* view = viewOf(focused->form().name());
        const ControlView* field = view == nullptr ? nullptr : view->find(*focused);
        if (field != nullptr && !field->widget()->hasFocus()) {
            bringFocus(*field->widget());
        }
        return;
    }
    const Form* top = program_.desk.top();
    if (focused != nullptr && top == &focused->form()) {
        // Closed or hidden under the person's hands: the next one takes over.
        act([&](User& user) { user.moveOn(*focused); });
    } else if (top != nullptr && viewOf(top->name()) != nullptr) {
        if (Control* rest = restingPlace(*top)) {
            act([&](User& user) { user.focus(*rest); });
        }
    }
}

Control* Binder::restingPlace(const Form& form) const {
    Control* last = form.find(viewOf(form.name())->lastFocus());
    if (last != nullptr && canRestOn(*last)) {
        return last;
    }
    const auto first = std::find_if(form.controls().begin(), form.controls().end(),
        [](const Control* control) { return canRestOn(*control); });
    return first == form.controls().end() ? nullptr : *first;
}

} // namespace lodge
