// The pages of the return beside the page on screen: how far each has come, and below them the figures that
// an accountant keeps an eye on.
#pragma once

#include "ui/problem_watch.h"

#include <QColor>
#include <QDockWidget>

#include <array>
#include <cstdint>

class QLabel;
class QListView;

namespace lodge {

class PageModel;
class PageColumn;

class PageList : public QDockWidget {
    Q_OBJECT

  public:
    /// Both must outlive the list.
    PageList(const Program& program, const ProblemWatch& watch, QWidget* parent);

    [[nodiscard]] QListView* list() const { return list_; }
    /// Comes up or goes as the page on screen wants it, as wide as there is room for.
    void takeRoom();
    /// Whether it is no more than a column of the marks, for want of room.
    [[nodiscard]] bool isNarrow() const;

  signals:
    /// The person wants to go to that page.
    void chosen(std::int16_t page);
    /// The person is done with the list.
    void left();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    [[nodiscard]] QWidget* makeWatchBar();
    void refresh();
    void choose(int row);

    const Program& program_;
    const ProblemWatch& watch_;
    PageModel* model_ = nullptr;
    QListView* list_;
    PageColumn* body_;
    QWidget* watchBar_ = nullptr;
    std::array<QLabel*, 3> captions_;
    std::array<QLabel*, 3> figures_;
};

} // namespace lodge
