// The keys of a list beside the pages: Enter chooses the row in hand, Esc and Tab go back to the page.
#pragma once

#include <QObject>

class QAbstractItemView;

namespace lodge {

class ListKeys : public QObject {
    Q_OBJECT

  public:
    /// The list owns it.
    explicit ListKeys(QAbstractItemView& list);

  signals:
    /// -1 where no row is in hand.
    void chosen(int row);
    void left();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QAbstractItemView& list_;
};

} // namespace lodge
