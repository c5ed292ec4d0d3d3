// What the keys do beyond the field in hand: the pages before and after, a line by its number, the parts of
// the window in turn, help. The buttons of the toolbar have their keys by themselves (the property "keys").
#pragma once

#include "program/program.h"
#include "ui/help_dock.h"
#include "ui/line_places.h"

#include <QMainWindow>
#include <QObject>
#include <QPointer>

#include <vector>

namespace lodge {

class Binder;

class KeyCommands : public QObject {
    Q_OBJECT

  public:
    /// Makes the keys of the frame known. All three must outlive the object.
    KeyCommands(Program& program, Binder& binder, QMainWindow& frame);

    /// What a person learns about the field in hand, or about the keys where there is none.
    void help();
    /// Has an open help speak of the field that the focus has come to.
    void followFocus();
    /// The page that stands `step` pages on in the order of the form; one that is closed is passed over.
    void turnPage(int step);
    /// Asks for a page or a line and goes there; `begun` has been typed already.
    void askWhere(const QString& begun = {});
    /// Goes to a line; a rule may keep the person on the page.
    void goTo(const LinePlace& place);
    /// Toolbar, page and what else the window has, in turn.
    void nextPane(bool backwards);

  signals:
    /// Larger or smaller by that many steps, as designed for 0.
    void zoomAsked(int steps);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    template <typename Do>
    void bind(const char* keys, Do what);
    [[nodiscard]] bool canLeave() const;
    [[nodiscard]] Form* pageOnScreen() const;
    void settleOn(const LinePlace& place);
    void enterPane(QWidget& pane);
    [[nodiscard]] std::vector<QWidget*> panes() const;
    void showHelp();
    bool keyLeft(const QKeyEvent& key);

    Program& program_;
    Binder& binder_;
    QMainWindow& frame_;
    QPointer<HelpDock> help_; // the frame owns it
};

} // namespace lodge
