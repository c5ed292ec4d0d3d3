#include "ui/press_views.h"

#include "ui/card_button.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>

namespace lodge {

namespace {

QString captionOf(const Control& control) {
    switch (control.kind()) {
    case ControlKind::CheckBox: return captionText(static_cast<const CheckBox&>(control).caption());
    case ControlKind::OptionButton: return captionText(static_cast<const OptionButton&>(control).caption());
    default: return captionText(static_cast<const CommandButton&>(control).caption());
    }
}

} // namespace

PressView::PressView(Control& control, QAbstractButton& button, UserDoor& door)
    : ControlView(control, button, door), button_(button) {
    if (auto* push = qobject_cast<QPushButton*>(&button)) {
        push->setAutoDefault(false); // Enter moves on from every control of a form
    }
    // Keys and mouse end in the filter; what is left is a click by an assistive program.
    connect(&button, &QAbstractButton::clicked, this, [this] {
        if (this->control() != nullptr) {
            paint(Aspect::Value);
            press();
        }
    });
}

void PressView::takeUp(Control& control) {
    held_ = false;
    button_.setDown(false);
    ControlView::takeUp(control);
}

void PressView::paint(Aspect aspect) {
    if (aspect == Aspect::Caption) {
        const QString caption = captionOf(*control());
        if (button_.text() != caption) {
            button_.setText(caption);
        }
        // One caption may stand on several lines of a page.
        const QString said = button_.property("said").toString();
        if (!said.isEmpty()) {
            button_.setAccessibleName(QStringLiteral("%1 %2").arg(said, caption));
        }
    } else {
        ControlView::paint(aspect);
    }
}

void PressView::press() { door().press(*control()); }

bool PressView::isLike(const ControlView& other) const {
    return qobject_cast<const CardButton*>(&button_) != nullptr
           && qobject_cast<const CardButton*>(other.widget()) != nullptr;
}

bool PressView::keyPressed(QKeyEvent& event) {
    if (ControlView::keyPressed(event) || (isLike(*this) && arrowPressed(event))) {
        return true;
    }
    switch (event.key()) {
    case Qt::Key_Space:
    case Qt::Key_Select:
        if (!event.isAutoRepeat()) {
            held_ = true;
            button_.setDown(true);
        }
        return true;
    case Qt::Key_Down:
    case Qt::Key_Right: door().act([this](User& user) { user.moveOn(*control()); }); return true;
    case Qt::Key_Up:
    case Qt::Key_Left: door().act([this](User& user) { user.moveOn(*control(), true); }); return true;
    default: return false;
    }
}

bool PressView::arrowPressed(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Up: door().moveAcross(*control(), Direction::Up); return true;
    case Qt::Key_Down: door().moveAcross(*control(), Direction::Down); return true;
    case Qt::Key_Left: door().moveAcross(*control(), Direction::Left); return true;
    case Qt::Key_Right: door().moveAcross(*control(), Direction::Right); return true;
    default: return false;
    }
}

bool PressView::keyReleased(QKeyEvent& event) {
    if (event.key() != Qt::Key_Space && event.key() != Qt::Key_Select) {
        return false;
    }
    if (held_ && !event.isAutoRepeat()) {
        held_ = false;
        button_.setDown(false);
        press();
    }
    return true;
}

bool PressView::mousePressed(QMouseEvent& event) {
    if (ControlView::mousePressed(event)) {
        return true;
    }
    if (event.button() == Qt::LeftButton) {
        held_ = true;
        button_.setDown(true);
    }
    return true;
}

bool PressView::mouseMoved(QMouseEvent& event) {
    if (held_) {
        button_.setDown(button_.rect().contains(event.position().toPoint()));
    }
    return true;
}

bool PressView::mouseReleased(QMouseEvent& event) {
    if (!held_ || event.button() != Qt::LeftButton) {
        return true;
    }
    held_ = false;
    button_.setDown(false);
    if (button_.rect().contains(event.position().toPoint())) {
        press();
    }
    return true;
}

TickView::TickView(Control& control, QAbstractButton& button, UserDoor& door)
    : PressView(control, button, door) {
    button.setAutoExclusive(false); // the rules say which choices exclude one another
}

void TickView::paint(Aspect aspect) {
    if (aspect != Aspect::Value) {
        PressView::paint(aspect);
        return;
    }
    const bool ticked = control()->kind() == ControlKind::CheckBox
                            ? static_cast<const CheckBox&>(*control()).value()
                            : static_cast<const OptionButton&>(*control()).value();
    button().setChecked(ticked);
}

void TickView::paintProblem() { setState(isInTheWay() ? "way" : ""); }

} // namespace lodge
