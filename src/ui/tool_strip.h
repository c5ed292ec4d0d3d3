// The toolbar: where its buttons do not fit, first the keys beside their captions go, then the captions; the
// lines between them are there only with buttons on both sides.
#pragma once

#include <QFrame>

namespace lodge {

class ToolStrip : public QFrame {
    Q_OBJECT

  public:
    using QFrame::QFrame;

    /// As narrow as icons alone.
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void fit();
    void showLines();
};

} // namespace lodge
