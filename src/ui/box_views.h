// Boxes to type into on screen.
#pragma once

#include "controls/text_box.h"
#include "ui/control_view.h"
#include "ui/date_edit.h"

#include <QLineEdit>
#include <QPlainTextEdit>

#include <optional>

namespace lodge {

/// What one-line, many-line and date boxes share: each typed character passes the handlers of the box.
class BoxView : public ControlView {
    Q_OBJECT

  public:
    using ControlView::ControlView;
    void takeUp(Control& control) override;
    void paint(Aspect aspect) override;
    void markRefused() override;
    void focusCame() override;

  protected:
    bool keyPressed(QKeyEvent& event) override;
    bool otherEvent(QEvent& event) override;
    void paintProblem() override { paintState(); }

    /// Whether the box has room for one more character.
    [[nodiscard]] virtual bool hasRoomFor(const QString& /*text*/) const { return true; }
    [[nodiscard]] bool isFirstTouch() const { return fresh_; }
    void setFresh(bool fresh) { fresh_ = fresh; }
    /// Takes what the box holds now for what Esc gives back.
    void keepFigure() { before_ = control()->reading(); }
    /// The ground and border of the box as the program has set it.
    void paintState();

  private:
    bool characterTyped(const QKeyEvent& event);
    [[nodiscard]] std::optional<QString> passed(const QString& text);
    void describe();
    void touched();
    bool giveBack();

    std::string before_;   // what the box held before the person touched it
    bool fresh_ = false;   // nothing was done to the box since the focus came
    bool refused_ = false; // shown as refused until the next keystroke
    bool feeding_ = false; // an event of our own making is on its way to the widget
};

class TextView : public BoxView {
    Q_OBJECT

  public:
    TextView(Control& control, QLineEdit& edit, UserDoor& door);
    void takeUp(Control& control) override;
    void paint(Aspect aspect) override;
    void focusCame() override;
    [[nodiscard]] bool isLike(const ControlView& other) const override;

  protected:
    bool keyPressed(QKeyEvent& event) override;
    bool otherEvent(QEvent& event) override;
    bool mousePressed(QMouseEvent& event) override;
    [[nodiscard]] bool hasRoomFor(const QString& text) const override;

  private:
    [[nodiscard]] TextBox& box() const { return static_cast<TextBox&>(*control()); }
    [[nodiscard]] bool isAmount() const { return box().textKind() == TextKind::Amount; }
    bool arrowPressed(const QKeyEvent& event);
    void edited(const QString& text);
    void paintText();

    QLineEdit& edit_;
};

/// A box of several lines; Ctrl+Enter breaks a line, because Enter moves on.
class LinesView : public BoxView {
    Q_OBJECT

  public:
    LinesView(Control& control, QPlainTextEdit& edit, UserDoor& door);
    void takeUp(Control& control) override;
    void paint(Aspect aspect) override;

  protected:
    bool keyPressed(QKeyEvent& event) override;
    bool mousePressed(QMouseEvent& event) override;

  private:
    void edited();

    QPlainTextEdit& edit_;
    bool painting_ = false;
};

class DateView : public BoxView {
    Q_OBJECT

  public:
    DateView(Control& control, DateEdit& edit, UserDoor& door);
    void takeUp(Control& control) override;
    void paint(Aspect aspect) override;
    void focusCame() override;

  protected:
    bool mousePressed(QMouseEvent& event) override;

  private:
    DateEdit& edit_;
};

} // namespace lodge
