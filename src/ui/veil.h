// The veil over a page that is closed while a window in front of it asks for something: 9% of ink.
#pragma once

#include <QWidget>

namespace lodge {

class Veil : public QWidget {
    Q_OBJECT

  public:
    /// Lies over the page for as long as the page is disabled.
    explicit Veil(QWidget& page);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void lie();
};

} // namespace lodge
