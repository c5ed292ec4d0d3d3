// A text of a page that leads to another item: where the figure beside it comes from.
#pragma once

#include <QLabel>

namespace lodge {

class LinkLabel : public QLabel {
    Q_OBJECT

  public:
    /// `target` is the button of the chooser that opens the item.
    LinkLabel(const QString& text, const QString& target);

    [[nodiscard]] const QString& target() const { return target_; }

  signals:
    void followed();

  protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    QString target_;
};

} // namespace lodge
