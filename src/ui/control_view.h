// One control on screen: paints what changed about it, and passes on what a person does to its widget.
//
// A view never writes back what it was told to paint: only keys, the mouse and input methods make it act.
#pragma once

#include "controls/control.h"
#include "ui/user_door.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <memory>

class QKeyEvent;
class QMouseEvent;

namespace lodge {

class ControlView : public QObject {
    Q_OBJECT

  public:
    ControlView(Control& control, QWidget& widget, UserDoor& door);

    /// nullptr once the form has gone.
    [[nodiscard]] Control* control() const { return control_; }
    [[nodiscard]] QWidget* widget() const { return widget_; }
    void letGo() { control_ = nullptr; }
    /// Stands for the control of a form that was loaded again, with nothing left of the one before.
    virtual void takeUp(Control& control);

    /// Paints one aspect, or everything.
    virtual void paint(Aspect aspect);
    void paintAll();
    /// The focus has come to the control.
    virtual void focusCame() {}
    /// Whether arrow keys lead from the one to the other: a view of the same kind of field.
    [[nodiscard]] virtual bool isLike(const ControlView& /*other*/) const { return false; }
    /// A rule refused what the box holds and sent the person back to it.
    virtual void markRefused() {}
    /// What is in the way of filing at this control; an empty text for nothing.
    void showProblem(const QString& message);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    /// Whether the event ends here.
    virtual bool keyPressed(QKeyEvent& event);
    virtual bool keyReleased(QKeyEvent& /*event*/) { return false; }
    /// By itself it passes on only what is more than a plain click: other buttons, held keys.
    virtual bool mousePressed(QMouseEvent& event);
    virtual bool mouseMoved(QMouseEvent& /*event*/) { return false; }
    virtual bool mouseReleased(QMouseEvent& /*event*/) { return false; }
    virtual bool otherEvent(QEvent& /*event*/) { return false; }

    /// Goes to the control, as a press of the mouse does. False when a rule kept the focus elsewhere.
    bool come();
    /// A press with its button and keys, for a control that feels the mouse. False for one that does not.
    bool gesture(const QMouseEvent& event);
    [[nodiscard]] UserDoor& door() const { return door_; }
    /// Watches a part of the widget that gets the mouse in its place.
    void watchPart(QWidget& part) { part.installEventFilter(this); }
    /// What is in the way here has changed.
    virtual void paintProblem() {}
    void setState(const char* state);
    [[nodiscard]] bool isInTheWay() const { return !problem_.isEmpty(); }

  private:
    bool moveOnKey(const QKeyEvent& event);
    bool doubleClicked(QMouseEvent& event);

    Control* control_;
    QPointer<QWidget> widget_;
    UserDoor& door_;
    QString problem_; // in the way of filing
};

/// The view that suits the control; nothing when the widget is of a kind that cannot show it.
[[nodiscard]] std::unique_ptr<ControlView> makeView(Control& control, QWidget& widget, UserDoor& door);

/// "chkStatus_11" for `chkStatus(11)`.
[[nodiscard]] QString widgetName(const Control& control);
/// A caption as a toolkit caption: its line breaks, and "&" as it stands.
[[nodiscard]] QString captionText(const std::string& caption);
/// Whether a person could put the focus there, its form apart.
[[nodiscard]] bool canRestOn(const Control& control);
/// What a screen reader calls a widget: the name it was given, or else its caption.
[[nodiscard]] QString nameOf(const QWidget& widget);
[[nodiscard]] MouseGesture gestureOf(const QMouseEvent& event);

} // namespace lodge
