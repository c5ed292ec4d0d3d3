#include "ui/binder.h"

#include "ui/look.h"

#include <QApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QScreen>
#include <QScrollArea>
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

/// How far a field that gets the focus stands off the edge of a scrolled sheet: three rows.
constexpr int scrollMargin = 90;

/// Whether a person could put the focus there.
bool canRestOn(const Control& control) {
    return control.takesFocus() && control.isShown() && control.isOpen() && !control.locked();
}

} // namespace

Binder::Binder(Program& program, const Look& look)
    : program_(program), look_(look), clock_(program.desk), user_(program.desk) {
    settling_.setSingleShot(true);
    connect(&settling_, &QTimer::timeout, this, &Binder::settle);
    program.desk.observe(*this);
}

Binder::~Binder() {
    program_.desk.forget(*this);
    for (const auto& [name, view] : views_) {
        delete view;
    }
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
}

void Binder::press(Control& button) {
    Desk& desk = program_.desk;
    const bool isTool = frame_ != nullptr && viewOf(button.form().name())->root() == frame_;
    const Control* before = desk.focus();
    const std::string form = before == nullptr ? std::string() : before->form().name();
    const std::string name = before == nullptr ? std::string() : before->fullName();
    act([&](User& user) {
        user.click(button);
        // A tool that left the page as it was gives the focus back to the field that it was called from.
        if (isTool && desk.focus() == &button) {
            const Form* page = desk.find(form);
            Control* field = page == nullptr ? nullptr : page->find(name);
            if (field != nullptr && field != &button) {
                user.focus(*field);
            }
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

void Binder::waitBegins() {
    ++waits_;
    clock_.hold();
}

void Binder::waitEnds() {
    --waits_;
    clock_.release();
    boxAnswered_ = true;
    settleSoon();
}

FormView& Binder::viewFor(Form& form) {
    if (FormView* known = viewOf(form.name())) {
        return *known;
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
    // Only now: a style sheet takes the fonts away from widgets that change their window.
    look_.dress(root);
    return *view;
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
}

void Binder::placePage(QWidget& page) {
    if (pages_ != nullptr) {
        pages_->addWidget(&page);
    }
}

void Binder::placeDialog(const Form& form, QWidget& dialog) {
    dialog.setParent(frame_, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
                                 | (form.isClosable() ? Qt::WindowCloseButtonHint : Qt::WindowFlags()));
}

void Binder::formShown(Form& form) {
    FormView& view = viewFor(form);
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
    // The widgets go when the event that unloaded the form has ended: it may have come from one of them.
    FormView* view = found->second;
    views_.erase(found);
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
    pages_->setCurrentWidget(page);
    if (status_ != nullptr && statusPage_ != page) {
        frame_->statusBar()->removeWidget(status_);
        status_->setParent(statusPage_); // it lives and dies with its page
    }
    status_ = page->findChild<QWidget*>(QLatin1String(pageStatusName));
    statusPage_ = page;
    if (status_ != nullptr) {
        frame_->statusBar()->addPermanentWidget(status_);
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
            sheet->ensureWidgetVisible(&widget, 0, scrollMargin);
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
