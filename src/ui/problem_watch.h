// Keeps the list of what is in the way of filing up to date while the return is filled in: a moment after a
// field is left, a box ticked or a page shown, never while somebody types, and on a copy that nobody sees.
#pragma once

#include "program/program.h"
#include "shell/item_states.h"
#include "shell/problem_list.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <vector>

namespace lodge {

/// What stands in the way, on one line without doubled blanks.
[[nodiscard]] QString textOf(const Problem& problem);

class ProblemWatch : public QObject, public DeskObserver {
    Q_OBJECT

  public:
    /// `mayLook` tells whether nothing is under way that a look would meet half done.
    ProblemWatch(Program& program, std::function<bool()> mayLook);
    ~ProblemWatch() override;

    /// Whether a return is open; without one there are neither problems nor states.
    [[nodiscard]] bool hasReturn() const { return hasReturn_; }
    [[nodiscard]] const std::vector<Problem>& problems() const { return problems_; }
    [[nodiscard]] const std::vector<ItemState>& items() const { return items_; }
    /// The return as a store would write it, as of the last look.
    [[nodiscard]] const ReturnState& stored() const { return lister_.stored(); }

    /// Looks again once everything that is under way has ended.
    void lookSoon();

    void formShown(Form& form) override;
    void formUnloaded(Form& form) override;
    void controlChanged(Control& control, Aspect aspect) override;
    void focusMoved(Control* control) override;

  signals:
    /// The problems or the states of the items are others than before.
    void changed();

  private:
    void look();

    Program& program_;
    std::function<bool()> mayLook_;
    ProblemLister lister_;
    QTimer timer_;
    bool hasReturn_ = false;
    std::vector<Problem> problems_;
    std::vector<ItemState> items_;
};

} // namespace lodge
