#include "ui/control_view.h"

#include "ui/box_views.h"
#include "ui/dress.h"
#include "ui/list_views.h"
#include "ui/press_views.h"
#include "ui/show_views.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace lodge {

namespace {

template <typename View, typename Widget>
std::unique_ptr<ControlView> viewOn(Control& control, QWidget& widget, UserDoor& door) {
    auto* suited = qobject_cast<Widget*>(&widget);
    return suited == nullptr ? nullptr : std::make_unique<View>(control, *suited, door);
}

} // namespace

std::unique_ptr<ControlView> makeView(Control& control, QWidget& widget, UserDoor& door) {
    switch (control.kind()) {
    case ControlKind::TextBox:
        if (auto view = viewOn<LinesView, QPlainTextEdit>(control, widget, door)) return view;
        return viewOn<TextView, QLineEdit>(control, widget, door);
    case ControlKind::MaskedBox: return viewOn<DateView, DateEdit>(control, widget, door);
    case ControlKind::CheckBox: return viewOn<TickView, QCheckBox>(control, widget, door);
    case ControlKind::OptionButton: return viewOn<TickView, QRadioButton>(control, widget, door);
    case ControlKind::CommandButton: return viewOn<PressView, QAbstractButton>(control, widget, door);
    case ControlKind::Label: return viewOn<LabelView, QLabel>(control, widget, door);
    case ControlKind::Frame:
    case ControlKind::Picture: return viewOn<PanelView, QFrame>(control, widget, door);
    case ControlKind::ListBox: return viewOn<ListView, QListWidget>(control, widget, door);
    case ControlKind::ComboBox: return viewOn<ComboView, QComboBox>(control, widget, door);
    case ControlKind::Grid: return viewOn<GridView, QTableWidget>(control, widget, door);
    case ControlKind::Timer: return nullptr;
    }
    return nullptr;
}

QString widgetName(const Control& control) {
    const QString name = QString::fromStdString(control.name());
    return control.index() < 0 ? name : QStringLiteral("%1_%2").arg(name).arg(control.index());
}

QString captionText(const std::string& caption) {
    QString text = QString::fromStdString(caption);
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return text.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

bool canRestOn(const Control& control) {
    return control.takesFocus() && control.isShown() && control.isOpen() && !control.locked();
}

QString nameOf(const QWidget& widget) {
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    const bool named = !widget.accessibleName().isEmpty() || button == nullptr;
    return named ? widget.accessibleName()
                 : button->text().replace(QStringLiteral("&&"), QStringLiteral("&"));
}

MouseGesture gestureOf(const QMouseEvent& event) {
    return {.button = event.button() == Qt::RightButton ? MouseButton::Right : MouseButton::Left,
        .shift = event.modifiers().testFlag(Qt::ShiftModifier),
        .ctrl = event.modifiers().testFlag(Qt::ControlModifier),
        .alt = event.modifiers().testFlag(Qt::AltModifier)};
}

ControlView::ControlView(Control& control, QWidget& widget, UserDoor& door)
    : control_(&control), widget_(&widget), door_(door) {
    widget.installEventFilter(this);
    // The focus comes by the desk's own rules, never by the toolkit's click or tab.
    widget.setFocusPolicy(control.takesFocus() ? Qt::TabFocus : Qt::NoFocus);
}

void ControlView::takeUp(Control& control) { control_ = &control; }

void ControlView::paintAll() {
    for (const Aspect aspect : {Aspect::Items, Aspect::Cells, Aspect::Text, Aspect::Caption, Aspect::Value,
             Aspect::Selection, Aspect::Locked, Aspect::Back, Aspect::Enabled, Aspect::Visible}) {
        paint(aspect);
    }
}

void ControlView::paint(Aspect aspect) {
    if (aspect == Aspect::Enabled) {
        widget_->setEnabled(control_->enabled());
    } else if (aspect == Aspect::Visible) {
        widget_->setVisible(control_->visible());
    }
}

void ControlView::showProblem(const QString& message) {
    if (message != problem_) {
        problem_ = message;
        widget_->setToolTip(message);
        paintProblem();
    }
}

void ControlView::setState(const char* state) { setWorn(*widget_, "state", state); }

bool ControlView::come() {
    if (control_->hasFocus()) {
        return true;
    }
    door_.act([this](User& user) { user.focus(*control_); });
    return control_ != nullptr && control_->hasFocus();
}

bool ControlView::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (control_ == nullptr || widget_ == nullptr) {
        return false;
    }
    switch (event->type()) {
    case QEvent::KeyPress: return keyPressed(*static_cast<QKeyEvent*>(event));
    case QEvent::KeyRelease: return keyReleased(*static_cast<QKeyEvent*>(event));
    case QEvent::MouseButtonPress: return mousePressed(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonDblClick: return doubleClicked(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseMove: return mouseMoved(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonRelease: return mouseReleased(*static_cast<QMouseEvent*>(event));
    case QEvent::FocusIn:
        // The toolkit moves its focus by itself when a widget goes or closes.
        if (!control_->hasFocus()) {
            door_.settleSoon();
        }
        return false;
    default: return otherEvent(*event);
    }
}

bool ControlView::moveOnKey(const QKeyEvent& event) {
    const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    const bool tab = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
    if ((!enter && !tab) || (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0) {
        return false;
    }
    const bool backwards = event.key() == Qt::Key_Backtab || event.modifiers().testFlag(Qt::ShiftModifier);
    door_.act([&](User& user) {
        if (enter && !backwards) {
            user.enter(*control_);
        } else {
            user.moveOn(*control_, backwards);
        }
    });
    return true;
}

bool ControlView::keyPressed(QKeyEvent& event) { return moveOnKey(event); }

bool ControlView::mousePressed(QMouseEvent& event) {
    const bool plain = event.button() == Qt::LeftButton && event.modifiers() == Qt::NoModifier;
    return !plain && gesture(event);
}

bool ControlView::gesture(const QMouseEvent& event) {
    const bool felt = static_cast<bool>(control_->onMouseDown) || static_cast<bool>(control_->onMouseUp);
    if (felt) {
        door_.act([&](User& user) { user.mouse(*control_, gestureOf(event)); });
    }
    return felt;
}

bool ControlView::doubleClicked(QMouseEvent& event) {
    if (control_->onDoubleClick && event.button() == Qt::LeftButton) {
        door_.act([this](User& user) { user.doubleClick(*control_); });
        return true;
    }
    return mousePressed(event); // the second press of two quick ones
}

} // namespace lodge
