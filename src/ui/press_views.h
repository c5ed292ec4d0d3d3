// Buttons, ticks and choices on screen. The widget only shows; it never changes by itself.
#pragma once

#include "controls/buttons.h"
#include "ui/control_view.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QRadioButton>

namespace lodge {

class PressView : public ControlView {
    Q_OBJECT

  public:
    PressView(Control& control, QAbstractButton& button, UserDoor& door);
    void takeUp(Control& control) override;
    void paint(Aspect aspect) override;
    /// Cards stand in rows and columns.
    [[nodiscard]] bool isLike(const ControlView& other) const override;

  protected:
    bool keyPressed(QKeyEvent& event) override;
    bool keyReleased(QKeyEvent& event) override;
    bool mousePressed(QMouseEvent& event) override;
    bool mouseMoved(QMouseEvent& event) override;
    bool mouseReleased(QMouseEvent& event) override;

    [[nodiscard]] QAbstractButton& button() const { return button_; }

  private:
    bool arrowPressed(const QKeyEvent& event);
    void press();

    QAbstractButton& button_;
    bool held_ = false; // a press has begun here and not ended yet
};

/// A check box or an option button.
class TickView : public PressView {
    Q_OBJECT

  public:
    TickView(Control& control, QAbstractButton& button, UserDoor& door);
    void paint(Aspect aspect) override;

  protected:
    void paintProblem() override;
};

} // namespace lodge
