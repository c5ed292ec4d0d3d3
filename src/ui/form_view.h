// One form on screen: its layout, dressed, with a view on each of its controls.
#pragma once

#include "controls/form.h"
#include "ui/control_view.h"

#include <QPointer>
#include <QWidget>

#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace lodge {

class FormView : public QObject {
    Q_OBJECT

  public:
    /// Builds the layout of the form; one that has none is shown as a blank page of its title.
    FormView(Form& form, UserDoor& door);
    ~FormView() override;

    /// nullptr once the form has gone.
    [[nodiscard]] Form* form() const { return form_; }
    [[nodiscard]] QWidget* root() const { return root_; }
    /// Whether the layout is a window of its own rather than a page of the main frame.
    [[nodiscard]] bool isWindow() const;
    /// The view on a control, nullptr for one without a widget.
    [[nodiscard]] ControlView* find(const Control& control) const;
    /// The name of the control that had the focus last, to come back to.
    [[nodiscard]] const std::string& lastFocus() const { return lastFocus_; }
    void noteFocus(const Control& control) { lastFocus_ = control.fullName(); }

    void paint(Control& control, Aspect aspect);
    /// Shows the caption of the form and whether it is open.
    void paintForm();
    /// The form has gone: nothing of it is touched any more.
    void letGo();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void bindControls();
    void bindKeys();
    void bindLinks();
    void paintCaptions(const std::string& of, const std::string& caption);
    bool keyPressed(const QKeyEvent& event);

    Form* form_;
    UserDoor& door_;
    QPointer<QWidget> root_;
    std::vector<std::unique_ptr<ControlView>> views_;
    std::unordered_map<const Control*, ControlView*> byControl_;
    std::string lastFocus_;
};

} // namespace lodge
