// What the start screen offers after a crash: the return that was not stored, and beside it the newest
// automatic store.
#pragma once

#include "file/recovery.h"

#include <QFrame>

#include <optional>

class QLabel;
class QPushButton;

namespace lodge {

class RecoveryBand : public QFrame {
    Q_OBJECT

  public:
    explicit RecoveryBand(QWidget* parent = nullptr);

    void offer(const ReturnNote& recovered, const std::optional<ReturnNote>& automatic);

  signals:
    void taken();
    void thrownAway();
    void automaticTaken();

  private:
    QLabel* recovered_;
    QLabel* automatic_;
    QFrame* rule_;
    QPushButton* take_;
    QPushButton* throwAway_;
    QPushButton* takeAutomatic_;
};

} // namespace lodge
