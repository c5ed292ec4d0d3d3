// Two parts of a page side by side where there is room, one below the other where there is not.
#pragma once

#include <QWidget>

namespace lodge {

class TwoColumns : public QWidget {
    Q_OBJECT

  public:
    /// Its layout must be a box layout with two parts.
    using QWidget::QWidget;

    /// No more than the wider of the parts needs.
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void turn();
};

} // namespace lodge
