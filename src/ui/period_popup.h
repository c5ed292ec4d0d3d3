// The window that takes the earlier periods of item 11: it stands over the rows that are still empty, so that
// the newest rows, the sum and the carried loss stay in view while periods are entered one after the other.
#pragma once

#include <QDialog>

namespace lodge {

class PeriodPopup : public QDialog {
    Q_OBJECT

  public:
    using QDialog::QDialog;

  protected:
    void showEvent(QShowEvent* event) override;
};

} // namespace lodge
