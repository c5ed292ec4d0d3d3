#include "ui/form_view.h"

#include "controls/label.h"
#include "state/field_names.h"
#include "ui/boxes.h"
#include "ui/layouts.h"
#include "ui/link_label.h"
#include "ui/sheet_title.h"
#include "ui/tie_tag.h"
#include "ui/veil.h"

#include <QDialog>
#include <QHash>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMouseEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>

#include <optional>

namespace lodge {

namespace {

/// What a form without a layout of its own is shown as.
constexpr const char* blankLayout = "blank";
/// What a widget asks for that shows the caption of its form.
constexpr const char* ofTheForm = "form";

QRect placeIn(const QWidget& root, const ControlView& view) {
    return {view.widget()->mapTo(&root, QPoint()), view.widget()->size()};
}

/// How far the other place is away in that direction, nothing when it does not lie there: up and down it must
/// stand in the same column, left and right on the same line.
std::optional<int> distance(const QRect& from, const QRect& other, Direction where) {
    const bool upright = where == Direction::Up || where == Direction::Down;
    const bool aligned = upright ? from.left() <= other.center().x() && other.center().x() <= from.right()
                                 : from.top() <= other.center().y() && other.center().y() <= from.bottom();
    const QPoint way = other.center() - from.center();
    const int far = where == Direction::Up     ? -way.y()
                    : where == Direction::Down ? way.y()
                    : where == Direction::Left ? -way.x()
                                               : way.x();
    return aligned && far > 0 ? std::optional(far) : std::nullopt;
}

std::unique_ptr<QWidget> layoutOf(const Form& form) {
    std::unique_ptr<QWidget> root = makeLayout(form.name());
    return root != nullptr ? std::move(root) : makeLayout(blankLayout);
}

} // namespace

FormView::FormView(Form& form, UserDoor& door) : form_(&form), door_(door), root_(layoutOf(form).release()) {
    bindControls();
    bindCaptions();
    bindKeys();
    bindLinks();
    paintAll();
    if (!isWindow()) {
        new Veil(*root_); // the page owns it
    }
    root_->installEventFilter(this);
}

FormView::~FormView() {
    views_.clear();
    delete root_; // not there any more when the window that it lay in went first
}

bool FormView::isWindow() const {
    return qobject_cast<QDialog*>(root_) != nullptr || qobject_cast<QMainWindow*>(root_) != nullptr;
}

void FormView::bindControls() {
    QHash<QString, QWidget*> widgets;
    for (QWidget* widget : root_->findChildren<QWidget*>()) {
        widgets.insert(widget->objectName(), widget);
    }
    for (Control* control : form_->controls()) {
        QWidget* widget = widgets.value(widgetName(*control));
        if (widget == nullptr) {
            continue; // hidden for good
        }
        std::unique_ptr<ControlView> view = makeView(*control, *widget, door_);
        if (view == nullptr) {
            qFatal("%s.%s: the layout has a widget of another kind", form_->name().c_str(),
                control->fullName().c_str());
        }
        byControl_.emplace(control, view.get());
        views_.push_back(std::move(view));
    }
}

void FormView::bindCaptions() {
    for (QWidget* widget : root_->findChildren<QWidget*>()) {
        const QString frame = widget->property("captionOf").toString();
        if (!frame.isEmpty()) {
            captions_.insert(frame, widget);
        }
    }
}

void FormView::bindKeys() {
    for (const auto& [control, view] : byControl_) {
        const QString keys = view->widget()->property("keys").toString();
        for (const QKeySequence& key : QKeySequence::listFromString(keys)) {
            auto* shortcut = new QShortcut(key, view->widget());
            connect(shortcut, &QShortcut::activated, view, [this, view = view] {
                if (view->control() != nullptr) {
                    door_.press(*view->control());
                }
            });
        }
    }
}

void FormView::bindLinks() {
    for (LinkLabel* link : root_->findChildren<LinkLabel*>()) {
        connect(link, &LinkLabel::followed, this,
            [this, item = link->target().toStdString()] { door_.openItem(item); });
    }
}

ControlView* FormView::find(const Control& control) const {
    const auto found = byControl_.find(&control);
    return found == byControl_.end() ? nullptr : found->second;
}

ControlView* FormView::neighbour(const Control& from, Direction where) const {
    const ControlView* start = find(from);
    ControlView* nearest = nullptr;
    int least = 0;
    for (const std::unique_ptr<ControlView>& view : views_) {
        if (view.get() == start || !view->isLike(*start) || !canRestOn(*view->control())) {
            continue;
        }
        const std::optional<int> far = distance(placeIn(*root_, *start), placeIn(*root_, *view), where);
        if (far && (nearest == nullptr || *far < least)) {
            nearest = view.get();
            least = *far;
        }
    }
    return nearest;
}

bool FormView::takeUp(Form& form) {
    form_ = &form;
    lastFocus_.clear();
    byControl_.clear();
    auto next = views_.begin();
    for (Control* control : form.controls()) {
        if (next != views_.end() && (*next)->widget()->objectName() == widgetName(*control)) {
            (*next)->takeUp(*control);
            byControl_.emplace(control, next->get());
            ++next;
        }
    }
    if (next != views_.end()) {
        return false;
    }
    paintAll();
    showProblems({}, 0);
    for (const QAbstractScrollArea* sheet : root_->findChildren<QAbstractScrollArea*>()) {
        sheet->verticalScrollBar()->setValue(0);
        sheet->horizontalScrollBar()->setValue(0);
    }
    return true;
}

void FormView::paintAll() {
    for (const std::unique_ptr<ControlView>& view : views_) {
        view->paintAll();
    }
    paintForm();
}

void FormView::paint(Control& control, Aspect aspect) {
    if (ControlView* view = find(control)) {
        view->paint(aspect);
    }
    if (aspect == Aspect::Caption && control.kind() == ControlKind::Frame) {
        paintCaptions(QString::fromStdString(control.name()), static_cast<const Frame&>(control).caption());
    }
}

void FormView::paintForm() {
    root_->setWindowTitle(shownText(form_->caption()));
    root_->setEnabled(form_->enabled());
    paintCaptions(QLatin1String(ofTheForm), form_->caption());
    for (const Control* control : form_->controls()) {
        if (control->kind() == ControlKind::Frame) {
            paintCaptions(
                QString::fromStdString(control->name()), static_cast<const Frame*>(control)->caption());
        }
    }
}

void FormView::paintCaptions(const QString& of, const std::string& caption) {
    for (auto widget = captions_.constFind(of); widget != captions_.constEnd() && widget.key() == of;
         ++widget) {
        widget.value()->setProperty("text", shownText(caption));
    }
}

void FormView::readOthers(ReturnState& state) {
    for (TieTag* tie : root_->findChildren<TieTag*>()) {
        tie->readOthers([&](const QString& name) -> std::optional<std::string> {
            // The losses of a headquarters company stand in its attachment instead.
            if (state.blnIHQPage && name.startsWith(QLatin1String("strFldPage6_11"))) {
                return std::nullopt;
            }
            const auto value = findStateValue(state, name.toStdString());
            return value ? std::optional(value->get()) : std::nullopt;
        });
    }
}

void FormView::showProblems(const std::map<std::string, QString>& messages, std::size_t count) {
    for (const std::unique_ptr<ControlView>& view : views_) {
        if (view->control() != nullptr && view->widget() != nullptr) {
            const auto found = messages.find(view->control()->fullName());
            view->showProblem(found == messages.end() ? QString() : found->second);
        }
    }
    if (auto* tag = root_->findChild<SheetTag*>()) {
        tag->setProblems(count);
    }
}

void FormView::letGo() {
    form_ = nullptr;
    for (const std::unique_ptr<ControlView>& view : views_) {
        view->letGo();
    }
}

bool FormView::keyPressed(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Escape:
        if (qobject_cast<QDialog*>(root_) == nullptr) {
            return false;
        }
        door_.act([this](User& user) { user.close(*form_); });
        return true;
    // These come here only when nothing has the focus.
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
    case Qt::Key_Backtab: door_.settleSoon(); return true;
    default: return false;
    }
}

bool FormView::eventFilter(QObject* watched, QEvent* event) {
    if (form_ == nullptr || watched != root_) {
        return false;
    }
    switch (event->type()) {
    case QEvent::Close:
        // The program decides what becomes of its windows.
        event->ignore();
        door_.act([this](User& user) { user.close(*form_); });
        return true;
    case QEvent::MouseButtonPress: {
        const MouseGesture gesture = gestureOf(*static_cast<QMouseEvent*>(event));
        door_.act([&](User& user) { user.mouse(*form_, gesture); });
        return false;
    }
    case QEvent::KeyPress: return keyPressed(*static_cast<QKeyEvent*>(event));
    default: return false;
    }
}

} // namespace lodge
