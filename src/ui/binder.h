// Binds the desk to the screen: shows its forms, repaints what changes, and lets a person act on it.
//
// There is no code a page: a form's layout has a widget of the name of each control, and that is all.
#pragma once

#include "program/program.h"
#include "ui/desk_clock.h"
#include "ui/form_view.h"
#include "ui/qt_host.h"
#include "ui/user_door.h"

#include <QMainWindow>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <map>
#include <memory>
#include <string>
#include <vector>

class QDialog;
class QStackedWidget;

namespace lodge {

class KeyCommands;
class Look;
class StatusLine;
class PageList;
class ProblemDock;
class ProblemWatch;
struct Problem;

class Binder : public QObject, public DeskObserver, public UserDoor, public WaitWatcher {
    Q_OBJECT

  public:
    Binder(Program& program, const Look& look);
    ~Binder() override;

    /// The view on a loaded form that has been on screen, nullptr otherwise.
    [[nodiscard]] FormView* viewOf(std::string_view form) const;
    [[nodiscard]] QMainWindow* frame() const { return frame_; }

    /// The list of what is in the way, made the first time that it is asked for. Only with a frame.
    ProblemDock& problemDock();
    /// Presses a button that the person can reach; false for one that is not open.
    bool pressOpen(std::string_view form, const std::string& button);
    /// Where the focus belongs when it comes back to a form, nullptr where nothing takes it.
    [[nodiscard]] Control* restingPlace(const Form& form) const;

    void act(const std::function<void(User&)>& what) override;
    void press(Control& button) override;
    void openItem(const std::string& chooserButton) override;
    void moveAcross(Control& from, Direction where) override;
    void settleSoon() override;

    void waitBegins() override;
    void waitEnds() override;
    /// Whether a box or dialog waits for its answer.
    [[nodiscard]] bool isWaiting() const { return waits_ > 0; }

    void formShown(Form& form) override;
    void formHidden(Form& form) override;
    void formUnloaded(Form& form) override;
    void formChanged(Form& form) override;
    void controlChanged(Control& control, Aspect aspect) override;
    void focusMoved(Control* control) override;
    void timersChanged() override { clock_.timersChanged(); }

  signals:
    /// The last box or dialog that waited has its answer.
    void waitsOver();
    /// A person wants everything drawn that many steps larger, or as designed for 0.
    void zoomAsked(int steps);

  private:
    FormView& viewFor(Form& form);
    FormView* takeUpKept(Form& form);
    bool keep(FormView& view);
    void dropKept();
    void dressAgain();
    static void fitDialog(QDialog& dialog);
    void tellStatus();
    void placeFrame(QMainWindow& frame);
    void placePage(QWidget& page);
    void placeDialog(const Form& form, QWidget& dialog);
    void showWindow(const Form& form, QWidget& window);
    void showTopPage();
    void placeProblems(QMainWindow& frame);
    void goToProblem(const Problem& problem);
    void goToPage(std::int16_t page, std::vector<std::string> controls);
    void toggleProblems();
    void showItemStates();
    void markFields();
    void settle();
    void bringFocus(QWidget& widget);

    Program& program_;
    const Look& look_;
    DeskClock clock_;
    User user_;
    std::map<std::string, FormView*, std::less<>> views_;
    std::map<std::string, FormView*, std::less<>> kept_; // of pages that were left: their widgets serve again
    QPointer<QMainWindow> frame_;
    QPointer<QStackedWidget> pages_;
    std::vector<FormView*> shownPages_; // bottom to top
    QPointer<QWidget> status_;          // what the page on top has in the status bar
    QPointer<QWidget> statusPage_;
    std::unique_ptr<KeyCommands> keys_; // of the frame
    QPointer<StatusLine> statusLine_;
    std::unique_ptr<ProblemWatch> problems_;
    QPointer<ProblemDock> problemDock_;
    QPointer<PageList> pageList_;
    int waits_ = 0;
    bool boxAnswered_ = false; // a box came up in what the person did last
    QTimer settling_;          // fires once everything that is under way has ended
};

} // namespace lodge
