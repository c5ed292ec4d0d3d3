// The pages of a print below one another, as large as the person wants them.
//
// A page is drawn when it comes into view, one a turn of the event loop, so that the window answers while a
// long print is being drawn.
#pragma once

#include <QAbstractScrollArea>
#include <QImage>
#include <QPixmap>
#include <QTimer>

#include <array>
#include <functional>
#include <vector>

namespace lodge {

// The paper of the form, A4, in inches.
inline constexpr double paperWidth = 210 / 25.4;
inline constexpr double paperHeight = 297 / 25.4;

class PageStrip : public QAbstractScrollArea {
    Q_OBJECT

  public:
    enum class Fit { None, Width, Page };
    /// Draws a page, from 0, at so many pixels an inch; a null image for one that cannot be drawn.
    using DrawPage = std::function<QImage(int page, double pixelsPerInch)>;

    /// The sizes that Ctrl and the wheel step through; 1 is the size of the paper.
    static constexpr std::array zoomSteps = {0.25, 0.5, 0.75, 1.0, 1.25, 1.5, 2.0, 3.0};

    PageStrip(int pageCount, DrawPage draw, QWidget* parent = nullptr);

    [[nodiscard]] int pageCount() const { return static_cast<int>(pages_.size()); }
    [[nodiscard]] int currentPage() const { return current_; }
    /// Brings the top of the page to the top of the view; a number beyond the ends is the page at that end.
    void goTo(int page);

    [[nodiscard]] Fit fitting() const { return fit_; }
    [[nodiscard]] double zoom() const { return zoom_; }
    /// Keeps the pages as wide, or as large, as the view from now on.
    void fit(Fit fit);
    void setZoom(double zoom);
    /// The next size up or down.
    void stepZoom(int direction);

    /// Whether the page is drawn as large as it is shown.
    [[nodiscard]] bool isDrawn(int page) const;

  signals:
    void pageChanged(int page);
    void zoomChanged();
    /// Everything that is in view is drawn.
    void viewDrawn();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

  private:
    struct Page {
        QPixmap picture;
        double pixelsPerInch = 0; // at which it was drawn; 0 for not yet
    };

    [[nodiscard]] QSize pageSize() const;
    [[nodiscard]] int stride() const;
    [[nodiscard]] QRect placeOf(int page) const; // in the viewport
    [[nodiscard]] int pageAtTop() const;
    [[nodiscard]] bool isInView(int page) const;
    [[nodiscard]] double pixelsPerInch() const;
    [[nodiscard]] double fittingZoom() const;
    void zoomTo(double zoom);
    void layOut();
    void setCurrent(int page);
    void drawNext();

    std::vector<Page> pages_;
    DrawPage draw_;
    Fit fit_ = Fit::Width;
    double zoom_ = 1;
    int current_ = 0;
    bool goingTo_ = false;
    QTimer drawing_;
};

} // namespace lodge
