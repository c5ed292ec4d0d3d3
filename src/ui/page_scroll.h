// Lets a page that needs more width than the window has scroll sideways as a whole, so that the heads of its
// columns and its foot go along; up and down the sheet scrolls by itself.
#pragma once

#include <QScrollArea>

class QStackedWidget;

namespace lodge {

class PageScroll : public QScrollArea {
    Q_OBJECT

  public:
    /// Takes the page in, as one of these; it goes when the page goes.
    PageScroll(QWidget& page, QStackedWidget& pages);

    /// The scroll that a page lies in.
    [[nodiscard]] static PageScroll* around(const QWidget& page);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void fit();
    static void keepWidth(QScrollArea& sheet);
};

} // namespace lodge
