// The list of what is in the way of filing, below the page: a row a problem, with both sides of amounts that
// must agree. It follows the return by itself and never takes the focus by itself.
#pragma once

#include "ui/problem_watch.h"

#include <QColor>
#include <QDockWidget>
#include <QToolButton>

class QLabel;
class QStackedWidget;
class QTreeView;

namespace lodge {

class ProblemModel;

class ProblemDock : public QDockWidget {
    Q_OBJECT

  public:
    /// `watch` must outlive the dock.
    ProblemDock(const ProblemWatch& watch, QWidget* parent);

    /// Shows the list and goes to it.
    void enter();
    [[nodiscard]] bool hasFocusInside() const;
    /// Selects the problem `step` rows on, around the ends, and asks for its place.
    void step(int step);

    [[nodiscard]] QTreeView* list() const { return list_; }

  signals:
    /// The person wants to go where the problem is mended.
    void chosen(const lodge::Problem& problem);
    /// The person is done with the list.
    void left();

  protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    [[nodiscard]] QWidget* makeTitle();
    [[nodiscard]] QWidget* makeNothing();
    void makeList();
    void fitColumns();
    void refresh();
    void choose(int row);

    const ProblemWatch& watch_;
    ProblemModel* model_ = nullptr;
    QTreeView* list_;
    QLabel* count_;
    QLabel* nothing_;
    QStackedWidget* body_;
};

/// The button of the status bar: how many things are in the way.
class ProblemButton : public QToolButton {
    Q_OBJECT

  public:
    explicit ProblemButton(const ProblemWatch& watch);

  private:
    void refresh();

    const ProblemWatch& watch_;
};

} // namespace lodge
