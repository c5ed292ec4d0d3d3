// One form on screen: its layout, dressed, with a view on each of its controls.
#pragma once

#include "controls/form.h"
#include "state/return_state.h"
#include "ui/control_view.h"

#include <QMultiHash>
#include <QPointer>
#include <QWidget>

#include <map>
#include <memory>
#include <string>
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
    /// The nearest view of the same kind that a person could go to from there, nullptr when there is none: an
    /// amount in the same column, a card of the chooser.
    [[nodiscard]] ControlView* neighbour(const Control& from, Direction where) const;
    /// The name of the control that had the focus last, to come back to.
    [[nodiscard]] const std::string& lastFocus() const { return lastFocus_; }
    void noteFocus(const Control& control) { lastFocus_ = control.fullName(); }

    void paint(Control& control, Aspect aspect);
    /// Shows the caption of the form and whether it is open.
    void paintForm();
    /// Has the page compare its figures with those that its other pages have in the return.
    void readOthers(ReturnState& state);
    /// Marks the fields at which something is in the way of filing, by their names, and unmarks all others;
    /// the head of the sheet says how many things there are.
    void showProblems(const std::map<std::string, QString>& messages, std::size_t count);
    /// The form has gone: nothing of it is touched any more.
    void letGo();
    /// Shows the form, loaded again, in the widgets of the one before, as if they had just been made. False
    /// when it is not of the same controls; then the view is of no more use.
    [[nodiscard]] bool takeUp(Form& form);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void bindControls();
    void bindCaptions();
    void paintAll();
    void bindKeys();
    void bindLinks();
    void paintCaptions(const QString& of, const std::string& caption);
    bool keyPressed(const QKeyEvent& event);

    Form* form_;
    UserDoor& door_;
    QPointer<QWidget> root_;
    std::vector<std::unique_ptr<ControlView>> views_;
    std::unordered_map<const Control*, ControlView*> byControl_;
    QMultiHash<QString, QWidget*> captions_; // by the frame whose caption they show
    std::string lastFocus_;
};

} // namespace lodge
