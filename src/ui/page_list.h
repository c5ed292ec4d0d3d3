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

class PageList : public QDockWidget {
    Q_OBJECT

  public:
    /// Both must outlive the list.
    PageList(const Program& program, const ProblemWatch& watch, QWidget* parent);

    [[nodiscard]] QListView* list() const { return list_; }
    /// Comes up or goes as the page on screen wants it.
    void takeRoom();

  signals:
    /// The person wants to go to that page.
    void chosen(std::int16_t page);
    /// The person is done with the list.
    void left();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] QWidget* makeWatchBar();
    void refresh();
    void choose(int row);

    const Program& program_;
    const ProblemWatch& watch_;
    PageModel* model_;
    QListView* list_;
    std::array<QLabel*, 3> captions_;
    std::array<QLabel*, 3> figures_;
};

} // namespace lodge
