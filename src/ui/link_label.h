// A text of a page that leads to another item: where the figure beside it comes from.
#pragma once

#include "ui/text_label.h"

namespace lodge {

class LinkLabel : public TextLabel {
    Q_OBJECT

    /// The button of the chooser that opens the item.
    Q_PROPERTY(QString target READ target WRITE setTarget)

  public:
    explicit LinkLabel(QWidget* parent = nullptr);
    LinkLabel(const QString& text, const QString& target);

    [[nodiscard]] const QString& target() const { return target_; }
    void setTarget(const QString& target) { target_ = target; }

  signals:
    void followed();

  protected:
    bool event(QEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    QString target_;
};

} // namespace lodge
