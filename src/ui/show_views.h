// What only shows on screen: labels, frames, pictures. They may feel the mouse.
#pragma once

#include "controls/label.h"
#include "ui/control_view.h"

#include <QFrame>
#include <QLabel>

namespace lodge {

class PanelView : public ControlView {
    Q_OBJECT

  public:
    using ControlView::ControlView;
    PanelView(Control& control, QFrame& frame, UserDoor& door) : ControlView(control, frame, door) {}
    void takeUp(Control& control) override;

  protected:
    bool mousePressed(QMouseEvent& event) override;
    bool mouseReleased(QMouseEvent& event) override;

  private:
    bool held_ = false;
};

class LabelView : public PanelView {
    Q_OBJECT

  public:
    LabelView(Control& control, QLabel& label, UserDoor& door);
    void paint(Aspect aspect) override;

  protected:
    bool otherEvent(QEvent& event) override;

  private:
    QLabel& label_;
};

} // namespace lodge
